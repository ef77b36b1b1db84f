#include "runtime/texts/failure_reason.h"

#include <gtest/gtest.h>

#include <new>

namespace quillon {

struct ReasonCase {
    int number;
    Text path;
    Text reason;
};

TEST(FailureReason, SaysWhatTheMachineRefused)
{
    const ReasonCase cases[] = {
        {ErrorNumber::kFileNotFound, "C:\\a", "filen 'C:\\a' finns inte"},
        {ErrorNumber::kPathNotFound, "C:\\a", "mappen till 'C:\\a' finns inte"},
        {ErrorNumber::kPermissionDenied, "C:\\a", "åtkomst nekas till 'C:\\a'"},
        {ErrorNumber::kPathFileAccess, "C:\\a", "'C:\\a' kan inte läsas eller skrivas"},
        {ErrorNumber::kDeviceIo, "C:\\a", "'C:\\a' kan inte läsas eller skrivas"},
        {ErrorNumber::kDiskFull, "C:\\a", "disken är full: 'C:\\a'"},
        {ErrorNumber::kFileInUse, "C:\\a", "filen 'C:\\a' används av ett program"},
        {ErrorNumber::kOverflow, "C:\\%1", "fel 6: 'C:\\%1'"},
        {ErrorNumber::kFileNotFound, "", "fel 53"},
    };
    for (const ReasonCase& one : cases)
        EXPECT_EQ(FailureReason(RunError(one.number, one.path), {}), one.reason);
}

TEST(FailureReason, SaysWhatIsWrongWithTheArchive)
{
    const std::pair<ZipError::Kind, const char*> cases[] = {
        {ZipError::Kind::NotAnArchive, "FILEDATA.DAT är inget arkiv"},
        {ZipError::Kind::Damaged, "FILEDATA.DAT är skadad"},
        {ZipError::Kind::Unsupported, "FILEDATA.DAT är packad på ett okänt sätt"},
        {ZipError::Kind::WrongPassword, "Lösenordet är felaktigt."},
    };
    for (const auto& [kind, reason] : cases)
        EXPECT_EQ(FailureReason(ZipError(kind, "a detail for the tool"), {}), reason);
}

TEST(FailureReason, KnowsTheSetupsOwnFailuresAndNoOthers)
{
    EXPECT_EQ(FailureReason(SetupFailure(ExitCode::Failed, "redan sagt"), {}), "redan sagt");
    EXPECT_EQ(FailureReason(SetupFailure(ExitCode::Cancelled, {}), {}), "användaren avbröt");
    EXPECT_EQ(FailureReason(std::bad_alloc(), {}), "oväntat fel");
}

TEST(FailureReason, IsToldInTheLanguageOfThePackage)
{
    LanguageTexts texts;
    texts.Set(Message::ReasonDiskFull, "the disk is full: '%1'");
    EXPECT_EQ(FailureReason(RunError(ErrorNumber::kDiskFull, "D:\\x"), texts),
              "the disk is full: 'D:\\x'");
}

TEST(DamagedPackage, EndsTheInstallationAndSaysWhy)
{
    const SetupFailure failure =
        DamagedPackage({}, {Message::PackageFilesDiffer, "QNSETUP.INF", "FILELIST.INF"});
    EXPECT_EQ(failure.Code(), ExitCode::DamagedPackage);
    EXPECT_STREQ(
        failure.what(),
        "Installationsfilerna är skadade eller ofullständiga (QNSETUP.INF och FILELIST.INF "
        "hör inte ihop). Ingenting har installerats. Hämta installationsfilerna på nytt.");
}

} // namespace quillon
