#include "platform/failure_text.h"

#include "helpers/number_text.h"

namespace quillon {

namespace {

// The failures whose number alone tells a user nothing.
Text Explanation(int number)
{
    return number == ErrorNumber::kDeviceIo
               ? " Disken svarar inte som den ska, eller så är filen för stor för den."
               : "";
}

} // namespace

Text FailureText(const RunError& error, const Text& path)
{
    const Text& named = error.Path().empty() ? path : error.Path();
    switch (error.Number()) {
    case ErrorNumber::kCannotStart:
        return "'" + named + "' kan ej öppnas. Det saknas ett program för den sortens fil.";
    case ErrorNumber::kBadFileName:
        return "'" + named + "' är inget giltigt filnamn.";
    case ErrorNumber::kFileNotFound:
        return "Filen '" + named + "' finns inte.";
    case ErrorNumber::kFileInUse:
        return "'" + named + "' ändras just nu av ett annat program. Försök igen om en stund.";
    case ErrorNumber::kPathNotFound:
        return "Katalogen till '" + named + "' finns inte.";
    case ErrorNumber::kPermissionDenied:
        return "Åtkomst nekas till '" + named + "'.";
    case ErrorNumber::kPathFileAccess:
        return "'" + named + "' är ingen vanlig fil, eller så är den skrivskyddad.";
    case ErrorNumber::kDiskFull:
        return "Disken är full: '" + named + "'.";
    case ErrorNumber::kPastEndOfFile:
        return "Filen '" + named + "' är för kort.";
    default:
        return "Fel #" + NumberText(error.Number()) + (named.empty() ? "." : ": '" + named + "'.") +
               Explanation(error.Number());
    }
}

} // namespace quillon
