#include "cli/call_context.h"

#include "helpers/number_text.h"

#include <cctype>
#include <ostream>

namespace quillon::cli {

namespace {

bool IsWindowsPath(std::string_view path)
{
    const bool hasDrive = path.size() >= 2 && path[1] == ':' &&
                          std::isalpha(static_cast<unsigned char>(path[0])) != 0;
    return hasDrive && (path.size() == 2 || path[2] == '\\' || path[2] == '/');
}

} // namespace

Text CallContext::Path(const std::string& argument) const
{
    if (argument.empty())
        throw UsageError{"En sökväg är tom."};
    if (IsWindowsPath(argument))
        return ReplaceAll(argument, "/", "\\");
    const auto path = toWindows(argument);
    if (!path)
        throw UsageError{"Sökvägen '" + argument +
                         "' kan ej skrivas som en Windows-sökväg; den har ett omvänt snedstreck."};
    return *path;
}

Exit CallContext::PrintJson(Json object, Exit exit) const
{
    object["exitCode"] = static_cast<int>(exit);
    out << object.dump(2, ' ', false, Json::error_handler_t::replace) << "\n";
    return exit;
}

Exit CallContext::Fail(const Text& text, Exit exit) const
{
    err << text << "\n";
    if (WantsJson())
        PrintJson({{"error", text}}, exit);
    return exit;
}

Text FailureText(const RunError& error, const Text& path)
{
    const Text& named = error.Path().empty() ? path : error.Path();
    switch (error.Number()) {
    case ErrorNumber::kFileNotFound:
        return "Filen '" + named + "' finns inte.";
    case ErrorNumber::kPathNotFound:
        return "Katalogen till '" + named + "' finns inte.";
    case ErrorNumber::kPermissionDenied:
        return "Åtkomst nekas till '" + named + "'.";
    case ErrorNumber::kPathFileAccess:
        return "'" + named + "' är ingen vanlig fil, eller så är den skrivskyddad.";
    case ErrorNumber::kDiskFull:
        return "Disken är full: '" + named + "'.";
    default:
        return "Fel #" + NumberText(error.Number()) + ": '" + named + "'.";
    }
}

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

} // namespace quillon::cli
