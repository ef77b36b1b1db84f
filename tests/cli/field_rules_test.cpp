// quillonc set keeps the rules that the windows keep.
#include "edit_workshop.h"

namespace quillon::test {
namespace {

using testing::HasSubstr;

class FieldRules : public EditWorkshop {
protected:
    Json Value(const char* section, const char* key) const { return Show()[section][key]; }
};

TEST_F(FieldRules, LeaveOneAgreementPage)
{
    Done({"set", "DialogBoxes.LicenseInfoDlg=1"});
    EXPECT_EQ(Done({"set", "DialogBoxes.LicenseInfoRtfDlg=1"}),
              "DialogBoxes.LicenseInfoRtfDlg = 1\nDialogBoxes.LicenseInfoDlg = 0\n");
    EXPECT_EQ(Value("DialogBoxes", "LicenseInfoDlg"), 0);
    EXPECT_EQ(Value("DialogBoxes", "LicenseInfoRtfDlg"), 1);
    const Json object = DoneAsObject({"set", "dialogboxes.licenseinfodlg=1"});
    EXPECT_EQ(object["set"]["DialogBoxes.LicenseInfoRtfDlg"], "0");
    EXPECT_EQ(Value("DialogBoxes", "LicenseInfoRtfDlg"), 0);
    // Switching one off leaves the other as it is.
    Done({"set", "DialogBoxes.LicenseInfoRtfDlg=0"});
    EXPECT_EQ(Value("DialogBoxes", "LicenseInfoDlg"), 1);
    ExpectRefused({"set", "DialogBoxes.LicenseInfoDlg=1", "DialogBoxes.LicenseInfoRtfDlg=1"}, 2,
                  "DialogBoxes.LicenseInfoRtfDlg kan ej ha det värdet: en installation visar bara "
                  "en av sidorna LicenseInfoDlg och LicenseInfoRtfDlg.");
}

TEST_F(FieldRules, LeaveOneDestinationPage)
{
    EXPECT_EQ(Value("DialogBoxes", "DestinationDlg"), 1);
    Done({"set", "DialogBoxes.DestinationDriveDlg=1"});
    EXPECT_EQ(Value("DialogBoxes", "DestinationDlg"), 0);
    Done({"set", "DialogBoxes.DestinationDlg=1"});
    EXPECT_EQ(Value("DialogBoxes", "DestinationDriveDlg"), 0);
    ExpectRefused({"set", "DialogBoxes.DestinationDlg=1", "DialogBoxes.DestinationDriveDlg=1"}, 2,
                  "bara en av sidorna DestinationDlg och DestinationDriveDlg.");
    Done({"set", "DialogBoxes.DestinationDlg=0", "DialogBoxes.DestinationDriveDlg=1"});
    EXPECT_EQ(Value("DialogBoxes", "DestinationDriveDlg"), 1);
}

TEST_F(FieldRules, GiveAnUninstallIconItsUninstaller)
{
    Done({"set", "InstallOptions.UninstallSupport=0"});
    Done({"set", "InstallOptions.CreateUninstallIcon=1"});
    EXPECT_EQ(Value("InstallOptions", "UninstallSupport"), -1);
    Done({"set", "InstallOptions.UninstallSupport=0"});
    EXPECT_EQ(Value("InstallOptions", "CreateUninstallIcon"), 0);
    ExpectRefused(
        {"set", "InstallOptions.CreateUninstallIcon=1", "InstallOptions.UninstallSupport=0"}, 2,
        "kräver stöd för avinstallation (UninstallSupport).");
}

TEST_F(FieldRules, RestartAlwaysOrNever)
{
    Done({"set", "InstallOptions.NeverRestartWindows=1"});
    Done({"set", "InstallOptions.RestartWindows=1"});
    EXPECT_EQ(Value("InstallOptions", "NeverRestartWindows"), 0);
    Done({"set", "InstallOptions.NeverRestartWindows=1"});
    EXPECT_EQ(Value("InstallOptions", "RestartWindows"), 0);
    EXPECT_EQ(Value("InstallOptions", "NeverRestartWindows"), -1);
    ExpectRefused(
        {"set", "InstallOptions.RestartWindows=1", "InstallOptions.NeverRestartWindows=1"}, 2,
        "alltid (RestartWindows) eller aldrig (NeverRestartWindows), inte båda.");
}

TEST_F(FieldRules, DemandTheExtensionOfASelfExtractingFile)
{
    ExpectRefused({"set", "InstallOptionsInternet.SelfExtractFilename=setup"}, 1,
                  "Filnamnet på en självuppackande EXE-fil måste alltid ha namntillägget .EXE på "
                  "slutet!");
    Done({"set", "InstallOptionsInternet.SelfExtractFilename=setup.exe"});
    EXPECT_EQ(Value("InstallOptionsInternet", "SelfExtractFilename"), "setup.exe");
    Done({"set", "InstallOptionsInternet.SelfExtractFilename="});
}

TEST_F(FieldRules, ShowRtfDocumentsAloneInTheSetup)
{
    Done({"set", "ShowDocAfter.UseInternalRTFBox=1", "ShowDocAfter.DocFileName=%DESTDIR\\a.rtf"});
    EXPECT_EQ(Value("ShowDocAfter", "UseInternalRTFBox"), 1);
    EXPECT_EQ(Done({"set", "ShowDocAfter.DocFileName=%DESTDIR\\a.txt"}),
              "ShowDocAfter.DocFileName = %DESTDIR\\a.txt\nShowDocAfter.UseInternalRTFBox = 0\n");
    EXPECT_EQ(Value("ShowDocAfter", "UseInternalRTFBox"), 0);
    ExpectRefused({"set", "ShowDocAfter.UseInternalRTFBox=1"}, 2,
                  "ShowDocAfter.UseInternalRTFBox kan ej ha det värdet: installationsprogrammet "
                  "visar bara dokument med namntillägget .RTF (DocFileName).");
}

TEST_F(FieldRules, KeepNamesInCapitals)
{
    EXPECT_EQ(Done({"set", "Updates.UpdateReferenceFile=prog.exe"}),
              "Updates.UpdateReferenceFile = prog.exe\nUpdates.UpdateReferenceFile = PROG.EXE\n");
    EXPECT_EQ(Value("Updates", "UpdateReferenceFile"), "PROG.EXE");
    Done({"set", "Language.LanguageFile=english"});
    EXPECT_EQ(Value("Language", "LanguageFile"), "ENGLISH.LNG");
    Done({"set", "Language.LanguageFile=german.lng"});
    EXPECT_EQ(Value("Language", "LanguageFile"), "GERMAN.LNG");
    Done({"set", "Language.LanguageFile="});
    EXPECT_EQ(Value("Language", "LanguageFile"), "");
    ExpectRefused({"set", "Language.LanguageFile=a/b"}, 1, "kan inte vara ett filnamn i Windows.");
    ExpectRefused({"set", "Language.LanguageFile=con"}, 1, "namn på enheter som CON.");
}

} // namespace
} // namespace quillon::test
