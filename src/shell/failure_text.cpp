#include "shell/failure_text.h"

namespace quillon {

Text FailureText(const CompressionFailure& failure)
{
    const Text named = failure.Path().empty() ? Text() : " '" + failure.Path() + "'";
    switch (failure.Result()) {
    case CompressionResult::kSourceMissing:
        return "Filen" + named + " finns inte.";
    case CompressionResult::kSourceChanged:
        return "Filen" + named + " ändrades medan den lästes.";
    case CompressionResult::kSourceDamaged:
        return "Filen" + named + " kan ej läsas till sitt slut.";
    case CompressionResult::kNothingToDo:
        return "Fillistan har inga filer att packa, endast tomma kataloger.";
    case CompressionResult::kCancelled:
        return "Nästa diskett saknas.";
    case CompressionResult::kDiskFull:
        return "Disken är full:" + named + ".";
    case CompressionResult::kNoReadAccess:
        return "Åtkomst nekas till" + named + ".";
    default:
        return "Det går ej att skriva till" + named + ".";
    }
}

Text FailureText(const CreateRun& run)
{
    if (run.failure)
        return FailureText(*run.failure, run.form.tDestinationDir);
    if (run.compressionFailure)
        return FailureText(*run.compressionFailure);
    if (!run.signingFailure.empty())
        return run.signingFailure;
    return "Installationen är ej hel; statusraderna visar vad som saknas.";
}

} // namespace quillon
