// What each key of the settings sections becomes when it is missing, too long, too large or of
// another generation of the tool.
#include "project_file_fixture.h"

#include "helpers/ansi_text.h"
#include "project/new_project.h"
#include "project/section_walk.h"

namespace quillon {

using test::Empty;
using test::Full;
using test::GoldenBytes;
using test::NewProject;
using test::ProjectOnDisk;
using test::ValueIn;
using test::With;
using test::WithoutKey;
using test::WithoutSection;
using test::WithValue;

namespace {

// Gives every field a value that no other field has.
class DistinctValues {
public:
    void Begin(const char*) {}
    void End() {}

    template <class Record, std::size_t count>
    void Section(const char*, const ProjectKey<Record> (&keys)[count], Record& record)
    {
        Keys(keys, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], Record& record, int = 0)
    {
        for (const auto& key : keys)
            Fill(key, record);
        if constexpr (std::is_same_v<Record, section::DesPicturesAnim>)
            record.NrAnimPictures = section::kMaxAnimPictures;
    }

    void NumberedText(const char*, int, Text& text, int) { text = NextText(); }

private:
    template <class Record>
    void Fill(const ProjectKey<Record>& key, Record& record)
    {
        if (const auto text = std::get_if<Text Record::*>(&key.field))
            record.** text = TextFor(key.form);
        else if (const auto number = std::get_if<Integer Record::*>(&key.field))
            record.** number = IntegerFor(key.form);
        else
            record.*std::get<Long Record::*>(key.field) = -100000 - ++last_;
    }

    Text NextText() { return NumberText(++last_) + "å"; }

    Text TextFor(Stored form)
    {
        switch (form) {
        case Stored::AsFlagText:
            return ++last_ % 2 == 0 ? "-1" : "0";
        case Stored::AsNumberText:
            return NumberText(++last_);
        case Stored::AsLines:
        case Stored::AsLongLines:
            return NextText() + "\r\n\r\n" + NextText() + "\r\n";
        default:
            return NextText();
        }
    }

    Integer IntegerFor(Stored form)
    {
        ++last_;
        switch (form) {
        case Stored::AsFlag:
        case Stored::AsFlagOnIfMissing:
        case Stored::AsFlagWhenOn:
            return last_ % 2 == 0 ? kOn : kOff;
        case Stored::AsFlagReadAsNumber:
            return last_ % 2 == 0 ? 1 : 0;
        default:
            return static_cast<Integer>(last_);
        }
    }

    int last_ = 100;
};

// A machine on which the side picture of the dialogs is always there.
ReadEnd LoadWithPicture(ProjectOnDisk& disk, const std::string& bytes)
{
    disk.machine.files.Put(AnsiText::FromBytes(ValueIn(bytes, "DialogBoxes", "DlgBitmap")), "BM");
    return disk.Load(bytes);
}

// The path of the tool may not fit into Windows-1252; its own picture is found again all the same.
TEST(DefaultBitmap, IsStoredByNameWhereItsPathDoesNotFit)
{
    const Text folders[] = {"C:\\verktyg Ω", "C:\\" + Text(190, 'x')};
    for (const Text& folder : folders) {
        test::ProjectOnDisk disk;
        OpenProjectState state;
        ResetToNewProject(disk.project, state, folder);
        const Text picture = DefaultDlgBitmap(folder);
        disk.machine.files.Put(picture, "BM");
        disk.project.DialogBoxData.GeneralDlgBitmap = "C:\\egen.bmp";
        const std::string saved = disk.Save();
        EXPECT_EQ(test::ValueIn(saved, "DialogBoxes", "DlgBitmap"), "SetupDef.bmp");
        EXPECT_EQ(test::ValueIn(saved, "DialogBoxData", "WelcomeDlgBitmap"), "SetupDef.bmp");
        EXPECT_EQ(test::ValueIn(saved, "DialogBoxData", "GeneralDlgBitmap"), "C:\\egen.bmp");

        test::ScriptedAsk ask;
        Project again;
        EXPECT_EQ(ReadProjectFile(again, test::kPath, disk.machine.host, ask, folder),
                  ReadEnd::Whole);
        EXPECT_EQ(again.DialogBoxes.DlgBitmap, picture);
        EXPECT_EQ(again.DialogBoxData.WelcomeDlgBitmap, picture);
        EXPECT_EQ(again.DialogBoxData.GeneralDlgBitmap, "C:\\egen.bmp");
    }
}

TEST(DefaultBitmap, IsStoredByItsPathWhereThatFits)
{
    test::ProjectOnDisk disk;
    EXPECT_EQ(test::ValueIn(disk.Save(), "DialogBoxes", "DlgBitmap"), test::kDefaultBitmap);
}

} // namespace

TEST(SettingsSections, EveryFieldSurvivesASaveAndALoad)
{
    ProjectOnDisk disk;
    DistinctValues values;
    VisitSettingsSections(values, disk.project);
    disk.project.InstallOptions.RestartWindows = kOff;
    disk.project.DialogBoxes.DlgBitmap = "C:\\sida.bmp";
    const std::string first = disk.Save();

    ProjectOnDisk other;
    ASSERT_EQ(LoadWithPicture(other, first), ReadEnd::Whole);
    EXPECT_EQ(other.Save(), first);
    EXPECT_EQ(other.project.DesTextBox.BoxXPos, disk.project.DesTextBox.BoxXPos);
    EXPECT_EQ(other.project.DialogBoxData.LicenseText, disk.project.DialogBoxData.LicenseText);
}

TEST(SettingsSections, AMissingKeyOverwritesWhatTheProjectBeforeHad)
{
    ProjectOnDisk disk;
    disk.Load(Full());
    disk.project.Lists = {};
    EXPECT_EQ(disk.Resave(GoldenBytes("missing_keys/without_keys.qnp")),
              GoldenBytes("missing_keys/saved_again.qnp"));
    EXPECT_EQ(disk.project.InstallOptions.ExpandVariablesInRegistryKeys, "0");
    EXPECT_EQ(disk.project.InstallOptions.ExpandVariablesInDialogBoxes, "0");
    EXPECT_EQ(disk.project.RunAppSelfX.ProgramFilename, "");
    EXPECT_EQ(disk.project.RunAppSelfX.Param, "");
    EXPECT_EQ(disk.project.RunAppSelfX.ReturnValueDD, "");
    EXPECT_EQ(disk.project.RunAppSelfX.DD_iHKEYIndex, "0");
    EXPECT_EQ(disk.project.RunAppSelfX.VisibleWin, kOff);
}

TEST(SettingsSections, EachMissingKeyAloneGivesWhatAMissingSectionGives)
{
    // Flags that are on when nothing is said of them.
    const std::pair<const char*, const char*> kOnIfMissing[] = {
        {"Compression", "CompressFiles"},
        {"ProgramGroup", "ProgramGroup_CurrentUser"},
        {"NET", "NET_ver10"},
        {"NET", "NET_WarnIfNoNET"},
        {"DesPictures", "HidePicturesWhenDialogsShowed"},
    };
    for (const auto& [section, key] : kOnIfMissing) {
        ProjectOnDisk disk;
        const std::string saved = disk.Resave(WithoutKey(Full(), section, key));
        EXPECT_EQ(ValueIn(saved, section, key), "1") << key;
    }
    const std::pair<const char*, const char*> kOffIfMissing[] = {
        {"InstallOptions", "DeleteProgGroup"},
        {"InstallOptions", "DontInstallSysFilesOnNewWin"},
        {"InstallOptionsInternet", "ExpandEXEInWinTempMap"},
        {"Databases", "MDAHiddenInstall"},
        {"TargetOS", "TargetOS_WinXP"},
        {"FontOptions", "NeverReplaceExistingFonts"},
        {"Media", "TargetMedia"},
    };
    for (const auto& [section, key] : kOffIfMissing) {
        ProjectOnDisk disk;
        const std::string saved = disk.Resave(WithoutKey(Empty(), section, key));
        EXPECT_EQ(ValueIn(saved, section, key), "0") << key;
    }
}

// Older tools never wrote it, and what they compare by bytes stays as it was.
TEST(SettingsSections, NameTheSmallContainerOnlyWhereItIsChosen)
{
    ProjectOnDisk disk;
    disk.Load(Empty());
    EXPECT_EQ(disk.project.Compression.SmallContainer, kOff);
    EXPECT_EQ(disk.Save().find("SmallContainer"), std::string::npos);
    disk.project.Compression.SmallContainer = kOn;
    const std::string saved = disk.Save();
    EXPECT_EQ(ValueIn(saved, "Compression", "SmallContainer"), "1");
    EXPECT_EQ(disk.Load(saved), ReadEnd::Whole);
    EXPECT_EQ(disk.project.Compression.SmallContainer, kOn);
    EXPECT_EQ(disk.Load(Empty()), ReadEnd::Whole);
    EXPECT_EQ(disk.project.Compression.SmallContainer, kOff);
}

TEST(TypeMark, ComparesWithCaseButItsKeyDoesNot)
{
    for (const char* app : {"quillon", "QUILLON", "Quillon 2", "", "Other"}) {
        ProjectOnDisk disk;
        disk.project.ProjectName.ProjectName = "Before";
        test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat",
                                "Kan ej öppna! Filen är ej en Quillon 2004 projektfil."}}};
        EXPECT_EQ(disk.Load(WithValue(Full(), "ID", "App", app), ask), ReadEnd::Refused) << app;
        EXPECT_EQ(disk.project.ProjectName.ProjectName, "Before");
        EXPECT_EQ(disk.project.Media.TargetMedia, 2);
    }
    for (const char* line : {"app = Quillon", "APP=Quillon", "App = \"Quillon\""}) {
        ProjectOnDisk disk;
        EXPECT_EQ(disk.Load(With(Full(), "App = Quillon", line)), ReadEnd::Whole) << line;
    }
}

TEST(TypeMark, IsMissingFromAFileThatIsNoProject)
{
    for (const char* bytes : {"", "\r\n", "[ID]", "hello", "PK\x03\x04", "\xEF\xBB\xBF[ID]\r\n"}) {
        ProjectOnDisk disk;
        test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat"}}};
        EXPECT_EQ(disk.Load(bytes, ask), ReadEnd::Refused);
    }
}

TEST(TypeMark, IsMissingFromAFileThatCantBeRead)
{
    ProjectOnDisk disk;
    disk.machine.files.Put("C:\\Projekt\\locked.qnp", Full());
    disk.machine.files.At("C:\\Projekt\\locked.qnp").unreadable = true;
    for (const char* path : {"C:\\Projekt\\missing.qnp", "C:\\nowhere\\a.qnp", "C:\\Projekt",
                             "C:\\Projekt\\locked.qnp"}) {
        test::ScriptedAsk ask{{{test::BoxKind::Warn, "Fel filformat"}}};
        EXPECT_EQ(ReadProjectFile(disk.project, path, disk.machine.host, ask, test::kToolFolder),
                  ReadEnd::Refused)
            << path;
    }
}

TEST(Generation, TheThirdKnowsNoTargetSystemsAndNoSelfExtraction)
{
    for (const char* version : {"3.1", "3", "30.0", "3x"}) {
        ProjectOnDisk disk;
        EXPECT_EQ(disk.Load(WithValue(Full(), "ID", "Ver", version)), ReadEnd::Whole);
        const section::TargetOS& systems = disk.project.TargetOS;
        for (const Flag on :
             {systems.TargetOS_Win95, systems.TargetOS_Win95OSR2, systems.TargetOS_Win98,
              systems.TargetOS_WinME, systems.TargetOS_WinNT4, systems.TargetOS_WinNT4SP3,
              systems.TargetOS_Win2000, systems.TargetOS_WinXP, systems.TargetOS_WarnIfWrong})
            EXPECT_EQ(on, kOn) << version;
        EXPECT_EQ(systems.TargetOS_StopIfWrong, kOff);
        EXPECT_EQ(disk.project.InstallOptionsInternet.SelfExtractFilename, "Self.exe");
        EXPECT_EQ(disk.project.InstallOptionsInternet.SelfExtractIconFilename, "");
        EXPECT_EQ(disk.project.InstallOptionsInternet.ExpandEXEInWinTempMap, kOff);
        EXPECT_EQ(disk.project.Sign.SignSelfExtractFile, kOn);
    }
}

TEST(Generation, TheFourthKnowsNeitherWinMeNorWinXp)
{
    ProjectOnDisk disk;
    std::string bytes = WithValue(Full(), "ID", "Ver", "4.0.2");
    bytes = WithValue(bytes, "TargetOS", "TargetOS_WinME", "0");
    bytes = WithValue(bytes, "TargetOS", "TargetOS_WinXP", "0");
    EXPECT_EQ(disk.Load(bytes), ReadEnd::Whole);
    const section::TargetOS& systems = disk.project.TargetOS;
    EXPECT_EQ(systems.TargetOS_Win95, kOff);
    EXPECT_EQ(systems.TargetOS_Win95OSR2, kOn);
    EXPECT_EQ(systems.TargetOS_Win98, kOff);
    EXPECT_EQ(systems.TargetOS_WinME, kOn);
    EXPECT_EQ(systems.TargetOS_WinNT4, kOff);
    EXPECT_EQ(systems.TargetOS_WinNT4SP3, kOn);
    EXPECT_EQ(systems.TargetOS_Win2000, kOff);
    EXPECT_EQ(systems.TargetOS_WinXP, kOn);
    EXPECT_EQ(systems.TargetOS_WarnIfWrong, kOff);
    EXPECT_EQ(systems.TargetOS_StopIfWrong, kOn);
    EXPECT_EQ(disk.project.InstallOptionsInternet.SelfExtractFilename, "raknare.exe");
}

TEST(Generation, EveryOtherVersionReadsAsTheCurrentOne)
{
    for (const char* version : {"5.0", "6.5.6", "7", "", "1.0", "v4", "\"\""}) {
        ProjectOnDisk disk;
        std::string bytes = WithValue(Full(), "ID", "Ver", version);
        bytes = WithoutKey(bytes, "TargetOS", "TargetOS_WinXP");
        EXPECT_EQ(disk.Load(bytes), ReadEnd::Whole);
        EXPECT_EQ(disk.project.TargetOS.TargetOS_WinXP, kOff) << version;
        EXPECT_EQ(disk.project.TargetOS.TargetOS_WinME, kOn) << version;
        EXPECT_EQ(disk.project.InstallOptionsInternet.SelfExtractFilename, "raknare.exe");
    }
    ProjectOnDisk disk;
    disk.Load(WithoutKey(Full(), "ID", "Ver"));
    EXPECT_EQ(disk.project.TargetOS.TargetOS_Win95, kOff);
}

TEST(Flags, AStoredMinusOneIsOff)
{
    ProjectOnDisk disk;
    disk.Load(WithValue(Empty(), "TargetOS", "TargetOS_Win95", "-1"));
    EXPECT_EQ(disk.project.TargetOS.TargetOS_Win95, kOff);
}

TEST(Flags, TheTwoOfTheDocumentComeBackAsOne)
{
    ProjectOnDisk disk;
    disk.project.ShowDocAfter.ShowCheckBox = kOn;
    disk.project.ShowDocAfter.UseInternalRTFBox = kOn;
    const std::string saved = disk.Save();
    disk.Load(saved);
    EXPECT_EQ(disk.project.ShowDocAfter.ShowCheckBox, 1);
    EXPECT_EQ(disk.project.ShowDocAfter.UseInternalRTFBox, 1);
    EXPECT_EQ(disk.Save(), saved);
}

TEST(Flags, ExpandVariablesIsTheWordTrueAtFirstAndANumberAfterALoad)
{
    ProjectOnDisk disk;
    const std::string saved = disk.Save();
    EXPECT_EQ(ValueIn(saved, "InstallOptions", "ExpandVariablesInRegistryKeys"), "1");
    EXPECT_EQ(ValueIn(saved, "InstallOptions", "ExpandVariablesInDialogBoxes"), "1");
    disk.Load(saved);
    EXPECT_EQ(disk.project.InstallOptions.ExpandVariablesInRegistryKeys, "-1");
    EXPECT_EQ(disk.project.InstallOptions.ExpandVariablesInDialogBoxes, "-1");
    EXPECT_EQ(disk.Save(), saved);
    for (const char* off : {"0", "False", ""}) {
        disk.project.InstallOptions.ExpandVariablesInRegistryKeys = off;
        EXPECT_EQ(ValueIn(disk.Save(), "InstallOptions", "ExpandVariablesInRegistryKeys"), "0");
    }
}

TEST(Repairs, RestartingWinsOverNeverRestarting)
{
    ProjectOnDisk disk;
    disk.Load(WithValue(Full(), "InstallOptions", "RestartWindows", "1"));
    EXPECT_EQ(disk.project.InstallOptions.RestartWindows, kOn);
    EXPECT_EQ(disk.project.InstallOptions.NeverRestartWindows, kOff);
    disk.Load(Full());
    EXPECT_EQ(disk.project.InstallOptions.NeverRestartWindows, kOn);
}

TEST(Repairs, ValuesBelowTheirLeastAreRaisedOnReading)
{
    struct Repair {
        const char* section;
        const char* key;
        const char* stored;
        const char* repaired;
    };
    const Repair kRepairs[] = {
        {"DesTitle", "TitleCharInterSpace", "", "0"},
        {"DesTitle", "TitleCharInterSpace", "2,5", "2,5"},
        {"DesTitleUnderline", "UnderlineHeight", "2", "3"},
        {"DesTitleUnderline", "UnderlineHeight", "-7", "3"},
        {"DesTitleUnderline", "UnderlineHeight", "3", "3"},
        {"DesTitleUnderline", "UnderlineHeight", "4", "4"},
        {"DesLogotype", "LogotypeWMFWidth", "0", "200"},
        {"DesLogotype", "LogotypeWMFWidth", "-1", "200"},
        {"DesLogotype", "LogotypeWMFWidth", "1", "1"},
        {"DesLogotype", "LogotypeWMFHeight", "0", "50"},
        {"DesLogotype", "LogotypeWMFHeight", "1", "1"},
    };
    for (const Repair& repair : kRepairs) {
        ProjectOnDisk disk;
        const std::string saved =
            disk.Resave(WithValue(Full(), repair.section, repair.key, repair.stored));
        EXPECT_EQ(ValueIn(saved, repair.section, repair.key), repair.repaired) << repair.key;
    }
}

TEST(Repairs, NothingIsRepairedOnWriting)
{
    ProjectOnDisk disk;
    disk.project.DesTitle.TitleCharInterSpace = "";
    disk.project.DesTitleUnderline.UnderlineHeight = 1;
    disk.project.DesLogotype.LogotypeWMFWidth = 0;
    disk.project.DesLogotype.LogotypeWMFHeight = -5;
    const std::string saved = disk.Save();
    EXPECT_EQ(ValueIn(saved, "DesTitle", "TitleCharInterSpace"), "");
    EXPECT_EQ(ValueIn(saved, "DesTitleUnderline", "UnderlineHeight"), "1");
    EXPECT_EQ(ValueIn(saved, "DesLogotype", "LogotypeWMFWidth"), "0");
    EXPECT_EQ(ValueIn(saved, "DesLogotype", "LogotypeWMFHeight"), "-5");
}

TEST(ProgramGroup, AnEmptyOneTakesTheProjectNameOnFileAndInTheModel)
{
    ProjectOnDisk disk;
    disk.project.ProjectName.ProjectName = "Demo";
    EXPECT_EQ(ValueIn(disk.Save(), "ProgramGroup", "ProgramGroup"), "Demo");
    EXPECT_EQ(disk.project.ProgramGroup.ProgramGroup, "Demo");
    disk.project.ProjectName.ProjectName = "Other";
    EXPECT_EQ(ValueIn(disk.Save(), "ProgramGroup", "ProgramGroup"), "Demo");
}

TEST(RunAppSelfX, StandsBetweenItsNeighboursOnlyWithAProgram)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Save().find("[RunAppSelfX]"), std::string::npos);
    disk.project.RunAppSelfX.Param = "/q";
    EXPECT_EQ(disk.Save().find("[RunAppSelfX]"), std::string::npos);
    disk.project.RunAppSelfX.ProgramFilename = "a.exe";
    const std::string saved = disk.Save();
    const std::string section = "[RunAppSelfX]\r\nProgramFilename = a.exe\r\nParam = /q\r\n"
                                "ReturnValueExit = \r\nReturnValueBack = \r\nReturnValueDD = \r\n"
                                "DD_iHKEYIndex = 0\r\nDD_sSubKey = \r\nDD_sValueName = \r\n"
                                "VisibleWin = 0\r\n\r\n[Language]\r\n";
    EXPECT_NE(saved.find("NET_StopIfNoNET = 0\r\n\r\n" + section), std::string::npos);
}

TEST(RunAppSelfX, ReadsItsRegistryRootAsANumber)
{
    ProjectOnDisk disk;
    disk.Load(WithValue(Full(), "RunAppSelfX", "DD_iHKEYIndex", "3x"));
    EXPECT_EQ(disk.project.RunAppSelfX.DD_iHKEYIndex, "3");
    disk.Load(WithValue(Full(), "RunAppSelfX", "DD_iHKEYIndex", ""));
    EXPECT_EQ(disk.project.RunAppSelfX.DD_iHKEYIndex, "0");
    EXPECT_EQ(disk.Load(WithValue(Full(), "RunAppSelfX", "DD_iHKEYIndex", "32768")),
              ReadEnd::Failed);
}

TEST(Texts, LoseTheirBlanksAndTheirQuotationMarks)
{
    ProjectOnDisk disk;
    disk.project.Version.Comments = "  mellan  ";
    disk.project.Version.Description = "\"i citat\"";
    disk.Load(disk.Save());
    EXPECT_EQ(disk.project.Version.Comments, "mellan");
    EXPECT_EQ(disk.project.Version.Description, "i citat");
}

TEST(Texts, OfSeveralLinesComeBackWithTheirBreaks)
{
    const std::pair<const char*, const char*> kTexts[] = {
        {"a\r\nb", "a\r\nb"},
        {"\r\n\r\n", "\r\n\r\n"},
        {"a\rbc", "a\r\nc"}, // a lone CR eats the character after it
        {"a\xC2\x9D"
         "bc",
         "a\r\nc"},    // so does a byte 157 of the text itself
        {"a\nb", "a"}, // and a lone LF ends the line on file
        {"", ""},
    };
    for (const auto& [text, back] : kTexts) {
        ProjectOnDisk disk;
        disk.project.DialogBoxData.GeneralDlgText = text;
        disk.project.DesTextBox.BoxText = text;
        disk.project.DialogBoxData.LicenseText = text;
        disk.Load(disk.Save());
        EXPECT_EQ(disk.project.DialogBoxData.GeneralDlgText, back);
        EXPECT_EQ(disk.project.DesTextBox.BoxText, back);
        EXPECT_EQ(disk.project.DialogBoxData.LicenseText, back);
    }
}

TEST(Texts, ThePasswordTextIsWrittenUpToItsFirstBreakAndNotDecoded)
{
    ProjectOnDisk disk;
    disk.project.DialogBoxData.PasswordDialogText = "Första\r\nAndra";
    EXPECT_EQ(ValueIn(disk.Save(), "DialogBoxData", "PasswordDialogText"), "F\xF6rsta");
    EXPECT_EQ(disk.project.DialogBoxData.PasswordDialogText, "Första\r\nAndra");
    disk.Load(WithValue(Full(), "DialogBoxData", "PasswordDialogText",
                        "a\x9D\x9E"
                        "b"));
    EXPECT_EQ(AnsiText::ToBytes(disk.project.DialogBoxData.PasswordDialogText), "a\x9D\x9E"
                                                                                "b");
}

TEST(DlgBitmap, TakesAPictureThatIsThere)
{
    ProjectOnDisk disk;
    disk.machine.files.Put("C:\\Bilder\\ny.bmp", "BM");
    disk.Load(WithValue(Full(), "DialogBoxes", "DlgBitmap", "c:\\bilder\\NY.bmp"));
    EXPECT_EQ(disk.project.DialogBoxes.DlgBitmap, "c:\\bilder\\NY.bmp");
}

TEST(DlgBitmap, BecomesTheToolsOwnWhenItIsEmpty)
{
    ProjectOnDisk disk;
    disk.project.DialogBoxes.DlgBitmap = "C:\\before.bmp";
    disk.machine.files.RemoveFile(test::kDefaultBitmap);
    disk.Load(WithValue(Full(), "DialogBoxes", "DlgBitmap", ""));
    EXPECT_EQ(disk.project.DialogBoxes.DlgBitmap, test::kDefaultBitmap);
}

TEST(DlgBitmap, StaysAsItWasWithABoxWhenThePictureIsMissing)
{
    ProjectOnDisk disk;
    disk.project.DialogBoxes.DlgBitmap = "C:\\before.bmp";
    test::ScriptedAsk ask{
        {{test::BoxKind::Critical, "Fel inträffade",
          "Hittar inte angiven bild för dialogrutor! Tryck OK för att fortsätta inläsning av övrig "
          "data från projektfilen."}}};
    EXPECT_EQ(disk.Load(WithValue(Full(), "DialogBoxes", "DlgBitmap", "C:\\borta.bmp"), ask),
              ReadEnd::Whole);
    EXPECT_EQ(disk.project.DialogBoxes.DlgBitmap, "C:\\before.bmp");
    EXPECT_EQ(disk.project.DialogBoxes.WelcomeDlg, 0);
    EXPECT_EQ(disk.project.Files.rows.size(), 3U);
}

TEST(Pixels, AreRoundedByTheScreenAtSaveTimeAndNeverRead)
{
    ProjectOnDisk disk;
    disk.project.DesTextBox.BoxXPos = 30;
    disk.project.DesTextBox.BoxYPos = 30;
    test::ScriptedAsk ask;
    WriteProjectFile(disk.project, test::kPath, disk.machine.host, ask, {.TPPX = 12, .TPPY = 20});
    const std::string saved = disk.machine.files.Get(test::kPath);
    EXPECT_EQ(ValueIn(saved, "DesTextBox", "BoxXPos"), "2"); // 2.5, to the even neighbour
    EXPECT_EQ(ValueIn(saved, "DesTextBox", "BoxYPos"), "2"); // 1.5
    EXPECT_EQ(ValueIn(saved, "DesTextBox", "BoxXPosTwips"), "30");

    disk.Load(WithValue(saved, "DesTextBox", "BoxXPos", "99999999"));
    EXPECT_EQ(disk.project.DesTextBox.BoxXPos, 30);
}

TEST(DesPicturesAnim, HasAKeyForEachPictureBehindItsInterval)
{
    ProjectOnDisk disk;
    disk.project.DesPicturesAnim.NrAnimPictures = 2;
    disk.project.DesPicturesAnim.P[0] = "a.bmp";
    disk.project.DesPicturesAnim.P[2] = "hidden.bmp";
    EXPECT_NE(disk.Save().find("IntervalSeconds = 5\r\nP1 = a.bmp\r\nP2 = \r\n\r\n[DesLogotype]"),
              std::string::npos);
}

TEST(DesPicturesAnim, LoadsOverItsFirstPicturesAlone)
{
    ProjectOnDisk disk;
    disk.project.DesPicturesAnim.P.fill("before.bmp");
    disk.Load(Full());
    EXPECT_EQ(disk.project.DesPicturesAnim.P[2], "C:\\Bilder\\film3.bmp");
    EXPECT_EQ(disk.project.DesPicturesAnim.P[3], "before.bmp");
}

TEST(DesPicturesAnim, HasRoomForTwentyOne)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(WithValue(Full(), "DesPicturesAnim", "NrAnimPictures", "21")),
              ReadEnd::Whole);
    EXPECT_EQ(disk.project.DesPicturesAnim.P[0], "C:\\Bilder\\film1.bmp");
    EXPECT_EQ(disk.project.DesPicturesAnim.P[20], "");
    EXPECT_EQ(disk.Load(WithValue(Full(), "DesPicturesAnim", "NrAnimPictures", "22")),
              ReadEnd::Failed);
    EXPECT_EQ(disk.beeps, 2);
    EXPECT_EQ(disk.project.DesPicturesAnim.NrAnimPictures, 22);
    EXPECT_EQ(disk.Load(WithValue(Full(), "DesPicturesAnim", "NrAnimPictures", "-1")),
              ReadEnd::Whole);
}

TEST(Sections, MissingAsAWholeAreNoFailure)
{
    for (const char* section : {"Version", "NET", "DesPictures", "LicenseData", "DesSound"}) {
        ProjectOnDisk disk;
        EXPECT_EQ(disk.Load(WithoutSection(Full(), section)), ReadEnd::Whole) << section;
    }
}

TEST(Sections, TheFirstOfANameCounts)
{
    ProjectOnDisk disk;
    disk.Load(With(Full(), "[ProjectName]\r\n",
                   "[PROJECTNAME]\r\nprojectname=First\r\n\r\n[ProjectName]\r\n"));
    EXPECT_EQ(disk.project.ProjectName.ProjectName, "First");
}

} // namespace quillon
