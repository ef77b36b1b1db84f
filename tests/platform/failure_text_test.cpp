#include "platform/failure_text.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(FailureText, SaysWhatFailedAndNamesTheFile)
{
    const std::pair<int, const char*> cases[] = {
        {ErrorNumber::kCannotStart,
         "'C:\\a.lng' kan ej öppnas. Det saknas ett program för den sortens fil."},
        {ErrorNumber::kBadFileName, "'C:\\a.lng' är inget giltigt filnamn."},
        {ErrorNumber::kFileNotFound, "Filen 'C:\\a.lng' finns inte."},
        {ErrorNumber::kPathNotFound, "Katalogen till 'C:\\a.lng' finns inte."},
        {ErrorNumber::kPermissionDenied, "Åtkomst nekas till 'C:\\a.lng'."},
        {ErrorNumber::kPathFileAccess,
         "'C:\\a.lng' är ingen vanlig fil, eller så är den skrivskyddad."},
        {ErrorNumber::kDiskFull, "Disken är full: 'C:\\a.lng'."},
        {ErrorNumber::kFileInUse,
         "'C:\\a.lng' ändras just nu av ett annat program. Försök igen om en stund."},
        {ErrorNumber::kOverflow, "Fel #6: 'C:\\a.lng'."},
        {ErrorNumber::kDeviceIo,
         "Fel #57: 'C:\\a.lng'. Disken svarar inte som den ska, eller så är "
         "filen för stor för den."},
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(FailureText(RunError(number, "C:\\a.lng"), "C:\\b"), text);
        EXPECT_EQ(FailureText(RunError(number), "C:\\a.lng"), text) << "the other path";
    }
    EXPECT_EQ(FailureText(RunError(ErrorNumber::kOverflow), ""), "Fel #6.");
}

} // namespace
} // namespace quillon
