#include "platform/failure_text.h"

#include "helpers/number_text.h"

namespace quillon {

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
    case ErrorNumber::kPathNotFound:
        return "Katalogen till '" + named + "' finns inte.";
    case ErrorNumber::kPermissionDenied:
        return "Åtkomst nekas till '" + named + "'.";
    case ErrorNumber::kPathFileAccess:
        return "'" + named + "' är ingen vanlig fil, eller så är den skrivskyddad.";
    case ErrorNumber::kDiskFull:
        return "Disken är full: '" + named + "'.";
    default:
        return "Fel #" + NumberText(error.Number()) + (named.empty() ? "." : ": '" + named + "'.");
    }
}

} // namespace quillon
