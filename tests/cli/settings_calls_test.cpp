// quillonc new and quillonc set.
#include "edit_workshop.h"

namespace quillon::test {
namespace {

using testing::HasSubstr;

class SettingsCalls : public EditWorkshop {
protected:
    static std::string ProductNameOf(std::size_t characters)
    {
        std::string assignment = "Version.ProductName=";
        assignment.append(characters, 'x');
        return assignment;
    }
};

TEST_F(SettingsCalls, MakesANewProject)
{
    const std::string path = disk.Path("ny.qnp");
    const ProgramRun run =
        Quillonc({"new", path, "--name", "Räkna", "--destination", "%PROGRAMFILES\\Räkna\\"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("Nytt projekt: "));
    project = path;
    const Json shown = Show();
    EXPECT_EQ(shown["isWhole"], true);
    EXPECT_EQ(shown["ProjectName"]["ProjectName"], "Räkna");
    EXPECT_EQ(shown["InstallDirectories"]["DestinationDirectory"], "%PROGRAMFILES\\Räkna");
    EXPECT_EQ(shown["Media"]["TargetMedia"], 2);
    EXPECT_TRUE(shown["FileList"].empty());
    const Json object = ObjectOf(
        Quillonc({"new", disk.Path("två.qnp"), "--name", "A", "--destination", "C:\\A", "--json"}));
    EXPECT_EQ(object["changed"], true);
    EXPECT_EQ(object["destination"], "C:\\A");
}

TEST_F(SettingsCalls, RefusesNamesThatLeadOutOfThePackageOrTheStartMenu)
{
    ExpectRefused({"set", "InstallOptions.SetupName=..\\viktig.doc"}, 2,
                  "Installationsprogrammets filnamn '..\\viktig.doc' fungerar inte");
    ExpectRefused({"set", "InstallOptions.SetupName=filelist.inf"}, 2,
                  "paketet har en annan fil med det namnet.");
    ExpectRefused({"set", "ProgramGroup.ProgramGroup=C:\\Windows"}, 2,
                  "Programgruppen 'C:\\Windows' fungerar inte");
    EXPECT_EQ(Quillonc({"set", project, "InstallOptions.SetupName=INSTALL.EXE",
                        "ProgramGroup.ProgramGroup=Firma\\Program"})
                  .exitCode,
              0);
}

TEST_F(SettingsCalls, RefusesANewProjectThatCanBeNone)
{
    const auto refused = [&](std::vector<std::string> words, int exitCode, const std::string& err) {
        words.insert(words.begin(), {"new", disk.Path("ny.qnp")});
        const ProgramRun run = Quillonc(words);
        EXPECT_EQ(run.exitCode, exitCode);
        EXPECT_THAT(run.err, HasSubstr(err));
        EXPECT_FALSE(disk.Has("ny.qnp"));
    };
    refused({"--destination", "C:\\A"}, 2, "saknar växeln --name");
    refused({"--name", "A"}, 2, "saknar växeln --destination");
    refused({"--name", std::string(200, 'n'), "--destination", "C:\\A"}, 2, "rymmer högst 199");
    refused({"--name", "A", "--destination", "C:"}, 1, "måste innehålla ett katalognamn");
    refused({"--name", "A", "--destination", "%SYSDIR\\A"}, 1, "som variabel i huvudkatalogen!");
    // An existing project must not be overwritten.
    ExpectRefused({"new", "--name", "A", "--destination", "C:\\A"}, 1, "finns redan.");
    const ProgramRun lost =
        Quillonc({"new", disk.Path("gone/p.qnp"), "--name", "A", "--destination", "C:\\A"});
    EXPECT_EQ(lost.exitCode, 1);
    EXPECT_THAT(lost.err, HasSubstr("Katalogen till"));
}

TEST_F(SettingsCalls, SetsFieldsOfEveryForm)
{
    struct Case {
        const char* assignment;
        const char* section;
        const char* key;
        Json value;
    };
    const std::vector<Case> cases = {
        {"Version.ProductName=Hej = du", "Version", "ProductName", "Hej = du"},
        {"version.comments=Å", "Version", "Comments", "Å"},
        {"Media.TargetMedia=3", "Media", "TargetMedia", 3},
        {"DesBackground.BackColor1=16711680", "DesBackground", "BackColor1", 16711680},
        {"DesTextBox.BoxXPosTwips=-300", "DesTextBox", "BoxXPosTwips", -300},
        {"InstallOptions.UninstallSupport=1", "InstallOptions", "UninstallSupport", -1},
        {"InstallOptions.DeleteProgGroup=0", "InstallOptions", "DeleteProgGroup", 0},
        {"Compression.CompressFiles=0", "Compression", "CompressFiles", 0},
        {"DialogBoxes.PasswordDlg=-1", "DialogBoxes", "PasswordDlg", 1},
        {"InstallOptions.ExpandVariablesInDialogBoxes=0", "InstallOptions",
         "ExpandVariablesInDialogBoxes", "0"},
        {"DesTextBox.BoxText=one\ntwo", "DesTextBox", "BoxText", "one\r\ntwo"},
        {"DialogBoxData.LicenseText=a\r\n\r\nb", "DialogBoxData", "LicenseText", "a\r\n\r\nb"},
        {"DesPictures.PictureFilename2=s:\\b.bmp", "DesPictures", "PictureFilename2", "s:\\b.bmp"},
        {"DesPicturesAnim.NrAnimPictures=2", "DesPicturesAnim", "NrAnimPictures", 2},
        {"DesPicturesAnim.P2=s:\\c.bmp", "DesPicturesAnim", "P2", "s:\\c.bmp"},
        {"FileComponent3.Comp=1", "FileComponents", "Comp3", 1},
        {"FileComponent3.CompName=Hjälp", "FileComponents", "CompName3", "Hjälp"},
        {"FileComponents.CompDir9=%DESTDIR", "FileComponents", "CompDir9", "%DESTDIR"},
        {"InstallDirectories.DestinationDirectory=C:\\Ny\\", "InstallDirectories",
         "DestinationDirectory", "C:\\Ny"},
    };
    std::vector<std::string> words = {"set"};
    for (const Case& one : cases)
        words.emplace_back(one.assignment);
    EXPECT_THAT(Done(words), HasSubstr("Version.ProductName = Hej = du\n"));
    const Json shown = Show();
    for (const Case& one : cases)
        EXPECT_EQ(shown[one.section][one.key], one.value) << one.assignment;
    ExpectUntouched(words);
}

TEST_F(SettingsCalls, SetsTheTextsOfTheLists)
{
    const Json object = DoneAsObject(
        {"set", "Registry=one\ntwo", "INIFiles=[FileList]\r\nA=1", "runscriptbefore="});
    EXPECT_EQ(object["set"]["Registry"], "one\ntwo");
    EXPECT_EQ(Show()["Registry"], "one\r\ntwo");
    EXPECT_EQ(Show()["INIFiles"], "[FileList]\r\nA=1");
    Done({"set", "Registry="});
    EXPECT_EQ(Show()["Registry"], "");
}

TEST_F(SettingsCalls, RefusesFieldsThatAreNotThere)
{
    ExpectRefused({"set", "Version.Product=1"}, 2, "Avsnittet Version har ingen nyckel 'Product'.");
    ExpectRefused({"set", "Nothing.Key=1"}, 2, "Projektet har inget avsnitt 'Nothing'.");
    ExpectRefused({"set", "FileList=x"}, 2, "'FileList' är varken en lista eller");
    ExpectRefused({"set", "FileComponent0.CompName=x"}, 2, "inget avsnitt 'FileComponent0'");
    ExpectRefused({"set", "DesPictures.PictureFilename4=x"}, 2, "ingen nyckel");
    ExpectRefused({"set", "DesPicturesAnim.P1=x"}, 2, "ingen nyckel 'P1'");
    ExpectRefused({"set", "Version.ProductName"}, 2, "saknar formen FÄLT=VÄRDE");
    ExpectRefused({"set"}, 2, "saknar FÄLT=VÄRDE...");
}

TEST_F(SettingsCalls, RefusesValuesThatAFieldCannotHold)
{
    ExpectRefused({"set", "Version.Comments=a", "Media.TargetMedia=32768"}, 2,
                  "Media.TargetMedia kan ej vara '32768'; det är ett heltal från 1 till 4.");
    for (const char* value : {"", "3x", " 3", "1.5", "+3", "03"})
        ExpectRefused({"set", std::string("Media.TargetMedia=") + value}, 2, "är ett heltal");
    ExpectRefused({"set", "DesBackground.BackColor1=2147483648"}, 2, "till 2147483647.");
    ExpectRefused({"set", "InstallOptions.UninstallSupport=2"}, 2, "på (1 eller -1) eller av (0)");
    ExpectRefused({"set", ProductNameOf(200)}, 2, "rymmer högst 199 tecken; värdet har 200.");
    ExpectRefused({"set", "Version.ProductName=a\nb"}, 2, "ryms på en rad");
    ExpectRefused({"set", "Version.ProductName=Ω"}, 2, "tecken som inte kan lagras");
    ExpectRefused({"set", "DesPicturesAnim.NrAnimPictures=22"}, 2, "högst 21 bilder");
    ExpectRefused({"set", "InstallDirectories.DestinationDirectory=C:"}, 1, "katalognamn");
    Done({"set", ProductNameOf(199)});
}

TEST_F(SettingsCalls, RefusesNumbersThatMeanNothing)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Media.TargetMedia=0", "från 1 till 4."},
        {"Media.TargetMedia=5", "från 1 till 4."},
        {"operatingsystem.TARGETOPERATINGSYSTEM=2", "från 0 till 1."},
        {"Compression.KeepCompressedFilesOneAndOne=-1", "från 0 till 1."},
        {"Sign.SignTimeStampSystem=2", "från 0 till 1."},
        {"RunAppSelfX.DD_iHKEYIndex=6", "från 0 till 5."},
        {"FontOptions.NeverReplaceExistingFonts=2", "från 0 till 1."},
        {"Updates.AdvUpdateRegHKEYIndex=-1", "från 0 till 5."},
        {"DesBackground.Type=3", "från 1 till 2."},
        {"DesBackground.BlendDirection=6", "från 0 till 5."},
        {"DesTitle.TitleAlignment=0", "från 1 till 3."},
        {"DesTitleUnderline.UnderlineType=4", "från 0 till 3."},
        {"DesTitleUnderline.UnderlineTextOnly=2", "från 0 till 1."},
        {"DesPictures.TransparentColorNr=12", "från 0 till 11."},
        {"DesPictures.HidePicturesWhenDialogsShowed=2", "från 0 till 1."},
        {"DesLogotype.TransparentColorNr=-1", "från 0 till 11."},
        {"DesLogotype.LogotypeAlignment=4", "från 1 till 3."},
        {"DesPercentGauge.GaugeAlignmentH=0", "från 1 till 3."},
        {"DesPercentGauge.GaugeAlignmentV=4", "från 1 till 3."},
        {"FileComponent3.CompDefault=2", "från 0 till 1."},
        {"FileComponents.CompCanChangeDir3=2", "från 0 till 1."},
        {"FileComponent3.CompMustAlwaysBeInstalled=2", "från 0 till 1."},
        {"FileComponent3.CompAdvOnlyUpdate=-1", "från 0 till 1."},
        {"DesTitle.TitleFontSize=32768", "från -32768 till 32767."},
    };
    for (const auto& [assignment, range] : cases)
        ExpectRefused({"set", assignment}, 2, std::string("det är ett heltal ") + range);
    Done({"set", "Media.TargetMedia=4", "DesBackground.BlendDirection=0",
          "DesLogotype.TransparentColorNr=11"});
}

TEST_F(SettingsCalls, RefusesValuesThatWouldNotComeBackFromTheFile)
{
    ExpectRefused({"set", "Version.ProductName= x"}, 1,
                  "Värdet av Version.ProductName kan ej lagras i projektfilen som det är: "
                  "projektfilen ger ej tillbaka blanktecken i början eller slutet av ett värde. "
                  "Inget är sparat.\n");
    ExpectRefused({"set", "Version.ProductName=\"x\""}, 1, "skulle läsas som 'x'");
    ExpectRefused({"set", "Registry=a\n....\nb"}, 1,
                  "'Registry': Raden '....' kan ej lagras i projektfilen. När projektet öppnas "
                  "igen slutar listan där");
    ExpectRefused({"set", "DialogBoxes.DlgBitmap=s:\\gone.bmp"}, 1, "DialogBoxes.DlgBitmap");
    ExpectRefused({"set", "FileComponent3.CompName=x"}, 1, "FileComponents.CompName3");
}

TEST_F(SettingsCalls, TellsABlankAtTheEndOfALongTextInOneLine)
{
    const std::string text(12000, 'x');
    const ProgramRun run = Edit({"set", "DialogBoxData.LicenseText=" + text + " "});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("blanktecken i början eller slutet"));
    EXPECT_LT(run.err.size(), 300U);
}

TEST_F(SettingsCalls, TellsTheBeginningOfALongValueThatWouldBeReadOtherwise)
{
    const std::string text(12000, 'x');
    const ProgramRun run = Edit({"set", "DialogBoxData.LicenseText=\"" + text + "\""});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("det skulle läsas som 'xxxx"));
    EXPECT_LT(run.err.size(), 300U);
}

TEST_F(SettingsCalls, RefusesALineThatWouldReplaceAnotherList)
{
    Done({"set", "Registry=HKEY_USERS\\x", "AutoexecBat=SET A=1"});
    ExpectRefused({"set", "RunScriptBefore=a\n[Registry]\nb"}, 1,
                  "'Skript före installation': Raden '[Registry]' kan ej lagras i projektfilen. "
                  "När projektet öppnas igen tas den för något annat, och det som finns under "
                  "'Registry' går förlorat. Inget är sparat.\n");
    ExpectRefused({"set", "RunScriptAfter=[configuration]"}, 1,
                  "det som finns under 'Registry, INI-filer, AUTOEXEC.BAT och CONFIG.SYS'");
    ExpectRefused({"set", "ConfigSys=[FileList]"}, 1, "'Fillistan'");
    // The first line that is found counts, and other lines are left alone.
    Done({"set", "Registry=[RunScriptBefore]", "ConfigSys=[registry]\n[AutoexecBat]"});
    EXPECT_EQ(Show()["AutoexecBat"], "SET A=1");
}

TEST_F(SettingsCalls, RefusesAValueThatWouldTakeOthersAlong)
{
    Done({"set", "RunAppSelfX.ProgramFilename=a.exe", "RunAppSelfX.Param=/x"});
    ExpectRefused({"set", "RunAppSelfX.ProgramFilename="}, 1,
                  "RunAppSelfX.Param, som inte skulle ändras, skulle läsas som ''.");
    Done({"set", "RunAppSelfX.ProgramFilename=", "RunAppSelfX.Param="});
}

TEST_F(SettingsCalls, LeavesAloneWhatTheFileWouldNotGiveBackAnyway)
{
    // A picture that is gone is read as the one before it, with or without the call.
    disk.Put("src/side.bmp", "BM");
    Done({"set", "DialogBoxes.DlgBitmap=s:\\side.bmp"});
    std::filesystem::remove(disk.Path("src/side.bmp"));
    const ProgramRun run = Edit({"set", "Version.Comments=x"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(Show()["Version"]["Comments"], "x");
}

} // namespace
} // namespace quillon::test
