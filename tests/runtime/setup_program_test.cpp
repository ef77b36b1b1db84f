#include "runtime/support/scripted_pages.h"
#include "runtime/support/setup_fixture.h"

#include "platform/run_error.h"
#include "runtime/install/file_installer.h"

namespace quillon {

using test::BoxKind;
using test::ExpectedBox;
using test::MachineState;
using test::ScriptedAsk;
using testing::HasSubstr;

using test::kMain;

class SetupProgramTest : public test::SetupFixture {
protected:
    SetupProgramTest() { AddFile("prog.exe", "%DESTDIR", "program"); }

    // Installs, and checks that nothing has changed afterwards.
    ExitCode InstallInVain(const Text& switches = "/S")
    {
        const MachineState before = State();
        const ExitCode code = Install(switches);
        EXPECT_EQ(State(), before);
        return code;
    }
};

TEST_F(SetupProgramTest, RefusesABadSwitch)
{
    EXPECT_EQ(InstallInVain("/S /FEL"), ExitCode::BadSwitch);
    EXPECT_THAT(Log(), HasSubstr("Växeln '/FEL' är okänd eller felaktig."));
}

TEST_F(SetupProgramTest, ShowsWhatIsWrongUnlessItIsSilent)
{
    ScriptedAsk script({{BoxKind::Critical, "Installation av Exempel",
                         "Växeln '/FEL' är okänd eller felaktig. Tillåtna växlar är /S, "
                         "/passive, /D=mapp, /DIR=\"mapp\", /COMPONENTS=\"a,!b\", "
                         "/GROUP=\"...\", /LANG=..., /LOG=\"fil\" och /PASSWORD=lösenord."}});
    ask = &script;
    EXPECT_EQ(InstallInVain("/FEL"), ExitCode::BadSwitch);
}

TEST_F(SetupProgramTest, WritesNothingOutOfADamagedArchive)
{
    AddFile("andra.txt", "%DESTDIR", "text");
    damagedEntry = 1;
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(
        Log(),
        HasSubstr("Installationsfilerna är skadade eller ofullständiga (FILEDATA.DAT är skadad)."));
}

TEST_F(SetupProgramTest, TellsAMissingArchiveAsAnIncompletePackage)
{
    isContainerMissing = true;
    ScriptedAsk script(
        {{BoxKind::Critical, "Installation av Exempel",
          "Installationsfilerna är skadade eller ofullständiga (FILEDATA.DAT saknas eller kan inte "
          "läsas). Ingenting har installerats. Hämta installationsfilerna på nytt."}});
    ask = &script;
    EXPECT_EQ(InstallInVain(""), ExitCode::DamagedPackage);
}

TEST_F(SetupProgramTest, WritesNothingWhereARowLacksItsBytes)
{
    sources.clear();
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("prog.exe saknas"));
}

TEST_F(SetupProgramTest, WritesNothingWhereALengthIsWrong)
{
    package.rows[0].size += 1;
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("prog.exe har fel storlek"));
}

TEST_F(SetupProgramTest, WritesNothingOfAPackageWithAFault)
{
    package.fault = Reason{Message::PackageFileIncomplete, "QNSETUP.INF"};
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("ofullständiga (QNSETUP.INF är ofullständig)."));
}

TEST_F(SetupProgramTest, PassesOverARowThatNeverHadASource)
{
    InstallRow& row = AddFile("tom", "%DESTDIR", "");
    row.sourceFolder.clear();
    sources.pop_back();
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\tom"));
    EXPECT_THAT(Log(), HasSubstr("paketet har ingen källfil till raden"));
}

// It is copied at the very end, when everything else is in its place.
TEST_F(SetupProgramTest, WritesNothingWhereTheUninstallerIsMissing)
{
    for (const Text name : {"QNXUNIN.BIN", "QNS32X.BIN"}) {
        for (const char* bytes : {"", "x"}) {
            memory.files.Put("D:\\Paket\\" + name, bytes);
            if (*bytes != 0)
                memory.files.RemoveFile("D:\\Paket\\" + name);
            memory.files.nodes.erase(LowerCase("W:\\Arbete\\" + name));
            EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
            EXPECT_THAT(Log(), HasSubstr(name + " saknas eller kan inte läsas"));
        }
        memory.files.Put("D:\\Paket\\" + name, "whole again");
    }
    memory.files.RemoveFile("D:\\Paket\\QNXUNIN.BIN");
    project.InstallOptions.UninstallSupport = kOff;
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
}

TEST_F(SetupProgramTest, WritesNothingWhereTheHelperOfTheNextStartIsMissing)
{
    memory.files.RemoveFile("D:\\Paket\\QNXREG2.BIN");
    package.rows[0].copyOptions = "RA";
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("QNXREG2.BIN saknas eller kan inte läsas"));
    package.rows[0].copyOptions = "R";
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
}

TEST_F(SetupProgramTest, WritesNothingOfAPackageWhoseStarterIsElsewhere)
{
    for (const char* name : {"..\\viktig.doc", "C:\\x.exe", "NUL", "", "FILELIST.INF"}) {
        project.InstallOptions.SetupName = name;
        EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage) << name;
        EXPECT_THAT(Log(), HasSubstr("QNSETUP.INF är skadad"));
    }
}

TEST_F(SetupProgramTest, NamesAFileInUseByItsOwnName)
{
    memory.files.Put(kMain + "\\prog.exe", "old", {2003, 1, 1, 0, 0, 0});
    files.inUse.insert(kMain + "\\prog.exe");
    EXPECT_EQ(InstallInVain(), ExitCode::FileInUse);
    EXPECT_THAT(Log(), HasSubstr("20003: Filen '" + kMain + "\\prog.exe' används"));
}

struct PasswordCase {
    const char* switches;
    ExitCode code;
    const char* inLog;
};
class PasswordTest : public SetupProgramTest, public testing::WithParamInterface<PasswordCase> {};

TEST_P(PasswordTest, IsAskedForByAPackageWithAPasswordPage)
{
    project.DialogBoxes.PasswordDlg = 1;
    project.DialogBoxData.CorrectPassword = "Hemligt";
    const MachineState before = State();
    EXPECT_EQ(Install(GetParam().switches), GetParam().code);
    EXPECT_THAT(Log(), HasSubstr(GetParam().inLog));
    EXPECT_EQ(State() == before, GetParam().code != ExitCode::Done);
}

INSTANTIATE_TEST_SUITE_P(
    , PasswordTest,
    testing::Values(PasswordCase{"/S /PASSWORD=Hemligt", ExitCode::Done, "Klart."},
                    PasswordCase{"/S /PASSWORD=hemligt", ExitCode::Failed,
                                 "Lösenordet är felaktigt."},
                    PasswordCase{"/S", ExitCode::Failed, "Installationen kräver ett lösenord."}));

TEST_F(SetupProgramTest, InstallsWhatWasChosenOnThePages)
{
    project.DialogBoxes.NameCompanyDlg = project.DialogBoxes.ProgramGroupDlg = 1;
    project.DialogBoxes.PasswordDlg = 1;
    project.DialogBoxData.CorrectPassword = "Hemligt";
    package.setup.UseComponents = kOn;
    for (const int number : {0, 1}) {
        project.FileComponents[std::size_t(number)].Comp = 1;
        project.FileComponents[std::size_t(number)].CompName = "Del";
    }
    AddFile("ett.txt", "%DESTDIR", "1").component = "1";
    AddFile("tva.txt", "%DESTDIR", "2").component = "2";
    package.rows[0].iconMarker = "ICON";
    package.rows[0].iconTitle = "Programmet";
    project.Lists.INIFiles = "-- %DESTDIR\\a.ini --\r\n[S]\r\nAnv=%USERNAME";
    using test::Typing;
    test::ScriptedAsk user;
    test::ScriptedPages steps(
        {{PageKind::Welcome},
         {PageKind::Password, PageAction::Next, Typing(PageField::Password, "Hemligt")},
         {PageKind::NameCompany, PageAction::Next, Typing(PageField::UserName, "Åke")},
         {PageKind::Destination, PageAction::Next, Typing(PageField::Folder, "E:\\Min mapp")},
         {PageKind::Components, PageAction::Next,
          [](SetupPage& page, const PageListener& listener) {
              page.Find(PageField::Components)->items[1].isTicked = false;
              listener(page, PageField::Components);
          }},
         {PageKind::ProgramGroup, PageAction::Next, Typing(PageField::Group, "Min grupp")},
         {PageKind::InstallCompleted}});
    ask = &user;
    pages = &steps;
    EXPECT_EQ(Install(""), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\Min mapp\\prog.exe"), "program");
    EXPECT_TRUE(memory.files.FileExists("E:\\Min mapp\\ett.txt"));
    EXPECT_FALSE(memory.files.FileExists("E:\\Min mapp\\tva.txt"));
    EXPECT_THAT(memory.files.Get("E:\\Min mapp\\a.ini"), HasSubstr("Anv=\xC5ke"));
    EXPECT_TRUE(
        memory.files.FileExists("C:\\Ulla\\Start-meny\\Program\\Min grupp\\Programmet.lnk"));
    EXPECT_FALSE(memory.files.DirExists(kMain));
}

class AfterInstall : public SetupProgramTest {
protected:
    AfterInstall()
    {
        project.DialogBoxes = {};
        project.DialogBoxes.WelcomeDlg = project.DialogBoxes.DestinationDlg = 0;
        project.RunAppAfter = {"%DESTDIR\\prog.exe", "/ny \"%DESTDIR\"", "%DESTDIR\\borta.exe", ""};
        project.ShowDocAfter.DocFileName = "%DESTDIR\\läs.rtf";
        project.ShowDocAfter.ShowCheckBox = 1;
        AddFile("läs.rtf", "%DESTDIR", "{\\rtf1 x}");
    }
    ExitCode Run(std::deque<test::ScriptedPages::Step> steps)
    {
        test::ScriptedPages script(std::move(steps));
        test::ScriptedAsk user;
        ask = &user;
        pages = &script;
        const ExitCode code = Install("");
        shown = script.shown;
        return code;
    }

    std::vector<SetupPage> shown;
};

TEST_F(AfterInstall, ProgramsAreStartedAndTheDocumentIsOpened)
{
    EXPECT_EQ(Run({{PageKind::InstallCompleted}}), ExitCode::Done);
    EXPECT_THAT(started, testing::ElementsAre(kMain + "\\prog.exe /ny \"" + kMain + "\"",
                                              kMain + "\\läs.rtf"));
    EXPECT_THAT(Log(), HasSubstr("Startar " + kMain + "\\prog.exe"));
    EXPECT_THAT(Log(), HasSubstr("Hoppar över program 2 efter installationen: filen '" + kMain +
                                 "\\borta.exe' finns inte"));
}

TEST_F(AfterInstall, TheDocumentIsNotOpenedWhereItsBoxIsCleared)
{
    EXPECT_EQ(Run({{PageKind::InstallCompleted, PageAction::Next,
                    [](SetupPage& page, const PageListener&) {
                        page.Find(PageField::ShowDocument)->isTicked = false;
                    }}}),
              ExitCode::Done);
    EXPECT_EQ(started.size(), 1U);
}

TEST_F(AfterInstall, ADocumentInRtfMayBeShownByTheSetup)
{
    project.ShowDocAfter.UseInternalRTFBox = 1;
    project.ShowDocAfter.InternalRTFBoxDlgTitle = "Läs mig";
    EXPECT_EQ(Run({{PageKind::InstallCompleted}, {PageKind::InstallCompleted}}), ExitCode::Done);
    EXPECT_EQ(shown[1].title, "Läs mig");
    EXPECT_EQ(shown[1].Find(PageField::Agreement)->text, "{\\rtf1 x}");
    EXPECT_EQ(started.size(), 1U);
}

TEST_F(AfterInstall, NothingIsStartedUnderTheSilentSwitch)
{
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_TRUE(started.empty());
    EXPECT_THAT(Log(), HasSubstr("Hoppar över program 1 efter installationen: startas inte när "
                                 "ingenting visas"));
    EXPECT_THAT(Log(), HasSubstr("Hoppar över dokumentet efter installationen: startas inte"));
}

TEST_F(SetupProgramTest, ChangesNothingWhereAPageIsCancelled)
{
    const MachineState before = State();
    test::ScriptedAsk user({{test::BoxKind::YesNo, "Installation av Exempel"}});
    test::ScriptedPages steps({{PageKind::Welcome, PageAction::Cancel}});
    ask = &user;
    pages = &steps;
    EXPECT_EQ(Install(""), ExitCode::Cancelled);
    EXPECT_EQ(State(), before);
}

class ComponentsSwitch : public SetupProgramTest {
protected:
    ComponentsSwitch()
    {
        package.setup.UseComponents = kOn;
        constexpr const char* kNames[] = {"Program", "Hjälp & tips", "Bilder"};
        for (std::size_t i = 0; i < 3; ++i) {
            auto& component = project.FileComponents[i];
            component.Comp = 1;
            component.CompName = kNames[i];
            component.CompDefault = i == 2 ? 0 : 1;
            AddFile(NumberText(std::int64_t(i) + 1) + ".txt", "%DESTDIR", "x").component =
                NumberText(std::int64_t(i) + 1);
        }
    }
    /// The numbers of the components that were installed.
    Text Installed() const
    {
        Text found;
        for (const char* number : {"1", "2", "3"})
            if (memory.files.FileExists(kMain + "\\" + number + ".txt"))
                found += number;
        return found;
    }
};

TEST_F(ComponentsSwitch, ChoosesWhatIsNamedAndNothingElse)
{
    EXPECT_EQ(Install("/S /COMPONENTS=\"hjälp & tips, 3\""), ExitCode::Done);
    EXPECT_EQ(Installed(), "23");
}

TEST_F(ComponentsSwitch, LeavesOutWhatIsMarked)
{
    EXPECT_EQ(Install("/S /COMPONENTS=!Program"), ExitCode::Done);
    EXPECT_EQ(Installed(), "2");
}

TEST_F(ComponentsSwitch, ChoosesNoneWhereItIsEmpty)
{
    project.FileComponents[1].CompMustAlwaysBeInstalled = 1;
    EXPECT_EQ(Install("/S /COMPONENTS="), ExitCode::Done);
    EXPECT_EQ(Installed(), "2") << "but what must be installed";
}

TEST_F(ComponentsSwitch, NamesAComponentThatThereIsNot)
{
    const MachineState before = State();
    EXPECT_EQ(Install("/S /COMPONENTS=Program,Annat"), ExitCode::BadSwitch);
    EXPECT_THAT(Log(), HasSubstr("'/COMPONENTS=Annat'"));
    EXPECT_EQ(State(), before);
}

TEST_F(SetupProgramTest, PutsShortcutsIntoTheGroupOfTheSwitch)
{
    package.rows[0].iconMarker = "ICON";
    package.rows[0].iconTitle = "Programmet";
    EXPECT_EQ(Install("/S /GROUP=Annan"), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists("C:\\Ulla\\Start-meny\\Program\\Annan\\Programmet.lnk"));
}

TEST_F(SetupProgramTest, SpeaksTheLanguageOfTheSwitch)
{
    memory.files.Put("D:\\Paket\\EGET.LNG", "[Log]\r\nLog_Done=Fertig.\r\n");
    package.texts = LoadPackage(memory.files, "D:\\Paket", "eget.LNG").texts;
    EXPECT_EQ(Install("/S /LANG=eget"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Fertig."));
    EXPECT_EQ(Install("/S /LANG=ingen"), ExitCode::BadSwitch);
    EXPECT_THAT(Log(), HasSubstr("'/LANG=ingen.LNG'"));
}

TEST_F(SetupProgramTest, WaitsForNoOtherSetup)
{
    const MachineState before = State();
    otherSetupRuns = true;
    EXPECT_EQ(Install(), ExitCode::OtherSetupRuns);
    EXPECT_THAT(Log(), HasSubstr("En annan installation pågår."));
    EXPECT_EQ(State(), before);
}

TEST_F(SetupProgramTest, UpdatesAnEarlierVersionInItsFolder)
{
    EXPECT_EQ(Install("/S /D=E:\\Gammal"), ExitCode::Done);
    project.Updates.HandleUpdate = kOn;
    project.Updates.UpdateReferenceFile = "PROG.EXE";
    AddFile("ny.txt", "%DESTDIR", "ny");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists("E:\\Gammal\\ny.txt"));
    EXPECT_FALSE(memory.files.DirExists(kMain));
    EXPECT_EQ(Install("/S /D=E:\\Annan"), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists("E:\\Annan\\ny.txt"));
}

TEST_F(SetupProgramTest, AsksForNoPasswordWithoutThePage)
{
    project.DialogBoxData.CorrectPassword = "Hemligt";
    EXPECT_EQ(Install(), ExitCode::Done);
}

TEST_F(SetupProgramTest, TellsBeforehandThatTheDiskIsTooSmall)
{
    memory.files.capacities["c:\\"] = 4;
    EXPECT_EQ(InstallInVain(), ExitCode::DiskFull);
    EXPECT_THAT(Log(), HasSubstr("Det finns inte tillräckligt med ledigt utrymme (C:\\)."));
}

TEST_F(SetupProgramTest, StopsOnTheWrongSystem)
{
    target.system = SystemKind::WinXP;
    project.TargetOS.TargetOS_WinXP = kOff;
    project.TargetOS.TargetOS_StopIfWrong = kOn;
    EXPECT_EQ(InstallInVain(), ExitCode::WrongSystem);
    EXPECT_THAT(Log(),
                HasSubstr("Programmet kan inte installeras på den här versionen av Windows."));
}

TEST_F(SetupProgramTest, WarnsOfTheWrongSystem)
{
    target.system = SystemKind::WinNT4;
    project.TargetOS.TargetOS_WinNT4 = kOff;
    {
        ScriptedAsk script(
            {{BoxKind::YesNo, "Installation av Exempel",
              "Programmet är inte avsett för den här versionen av Windows. Vill du fortsätta ändå?",
              Answer::No}});
        ask = &script;
        EXPECT_EQ(InstallInVain(""), ExitCode::Cancelled);
    }
    ask = nullptr;
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Paketet är inte avsett för den här versionen av Windows"));
    ScriptedAsk nobody;
    ask = &nobody;
    EXPECT_EQ(Install("/SUPPRESSMSGBOXES"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Paketet är inte avsett för den här versionen av Windows"));
}

TEST_F(SetupProgramTest, EndsAsCancelledAndUndoneWhenTheUserCancels)
{
    class CancellingAsk : public SilentAsk {
    public:
        void ProcessEvents() override
        {
            if (++calls == 3)
                throw SetupFailure(ExitCode::Cancelled, {});
        }
        int calls = 0;
    } cancelling;
    AddFile("b.txt", "%DESTDIR", "b");
    ask = &cancelling;
    // The first two calls come from the check of the archive, the third from the first file.
    EXPECT_EQ(InstallInVain(""), ExitCode::Cancelled);
    EXPECT_EQ(cancelling.calls, 3);
}

class BadDestination : public SetupProgramTest, public testing::WithParamInterface<const char*> {};

TEST_P(BadDestination, IsRefusedBeforeAnythingIsWritten)
{
    AddFile("fel.txt", GetParam(), "x");
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("fel.txt saknar giltig mapp: " + Text(GetParam())));
}

INSTANTIATE_TEST_SUITE_P(, BadDestination,
                         testing::Values("%OKÄND\\Data", "%DESTDIR\\..\\Annan", "%DESTDIR/../Annan",
                                         "Data/..", "/Data", "\\Data", "", "D:"));

TEST_F(SetupProgramTest, PutsAFolderWithoutADriveBelowTheMainOne)
{
    AddFile("a.txt", "Data", "a");
    EXPECT_EQ(Install("/S /D=E:\\Ny mapp"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\Ny mapp\\Data\\a.txt"), "a");
    EXPECT_EQ(memory.files.Get("E:\\Ny mapp\\prog.exe"), "program");
}

TEST_F(SetupProgramTest, InstallsToTheRootOfADrive)
{
    EXPECT_EQ(Install("/S /D=E:\\"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\prog.exe"), "program");
    EXPECT_TRUE(memory.files.FileExists("E:\\QNXUNIN.LOG"));
}

TEST_F(SetupProgramTest, InstallsTheComponentsThatAreTickedFromTheStart)
{
    package.setup.UseComponents = kOn;
    auto& components = project.FileComponents;
    components[0] = {.Comp = 1, .CompDir = "Ett", .CompDefault = 1};
    components[1] = {.Comp = 1, .CompDefault = 0};
    components[2] = {.Comp = 1, .CompDefault = 0, .CompMustAlwaysBeInstalled = 1};
    components[3] = {.Comp = 0, .CompDefault = 0};
    components[4] = {.Comp = 1,
                     .CompDefault = 1,
                     .CompAdvOnlyUpdate = 1,
                     .CompAdvUpdateRefFile = "%DESTDIR\\finns inte.exe"};
    components[5] = {.Comp = 1,
                     .CompDefault = 1,
                     .CompAdvOnlyUpdate = 1,
                     .CompAdvUpdateRefFile = "%WINDIR\\finns.exe"};
    memory.files.Put("C:\\WINDOWS\\finns.exe", "");
    for (int n = 1; n <= 6; ++n)
        AddFile(NumberText(n) + ".txt", n == 1 ? "%COMPDIR1" : "%DESTDIR", "x").component =
            NumberText(n);
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\Ett\\1.txt"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\2.txt"));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\3.txt"));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\4.txt"));
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\5.txt"));
    EXPECT_TRUE(memory.files.FileExists(kMain + "\\6.txt"));
    EXPECT_THAT(Log(), HasSubstr("2.txt: komponent 2 installeras inte"));
}

TEST_F(SetupProgramTest, LeavesSystemFilesToNewWindows)
{
    for (const char* name : {"OLEAUT32.DLL", "olepro32.dll", "ASYCFILT.DLL", "COMCAT.DLL",
                             "MSVCRT.DLL", "MFC42.DLL", "STDOLE2.TLB", "MSVBVM60.DLL"})
        AddFile(name, "%SYSDIR", name);
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists("C:\\WINDOWS\\SYSTEM32\\OLEPRO32.DLL"));
    EXPECT_TRUE(memory.files.FileExists("C:\\WINDOWS\\SYSTEM32\\MSVBVM60.DLL"));
    EXPECT_THAT(Log(), HasSubstr("STDOLE2.TLB: systemfilen ingår redan"));
    target.system = SystemKind::Win98;
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.FileExists("C:\\WINDOWS\\SYSTEM32\\STDOLE2.TLB"));
}

TEST_F(SetupProgramTest, ReadsFilesThatAreKeptOneByOne)
{
    sources.clear();
    project.Media.TargetMedia = 2;
    project.Compression.KeepCompressedFilesOneAndOne = 1;
    package.setup.PlaceCompressedFilesInFolderSetupFiles = kOn;
    const LocalTime time{2004, 5, 6, 7, 8, 9};
    memory.files.Put("D:\\Paket\\SetupFiles\\prog.exe_", "program", time);
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kMain + "\\prog.exe"), "program");
    EXPECT_EQ(memory.files.Status(kMain + "\\prog.exe").modified, time);
    EXPECT_EQ(openedContainer, "");
}

TEST_F(SetupProgramTest, ReadsTheTreeOfTheSources)
{
    sources.clear();
    project.Media.TargetMedia = 3;
    memory.files.Put("D:\\Paket\\src\\prog.exe", "program");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kMain + "\\prog.exe"), "program");
}

TEST_F(SetupProgramTest, JoinsThePiecesOfAllDisks)
{
    project.Media.TargetMedia = 1;
    package.setup.Floppies = 3;
    memory.files.Put("D:\\Paket\\FILEDATA.DAT", "ett");
    memory.files.Put("D:\\Paket\\disk2\\FILEDATA.DAT", "två");
    EXPECT_EQ(InstallInVain(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("D:\\Paket\\disk3 saknas"));
    memory.files.Put("D:\\Paket\\disk3\\FILEDATA.DAT", "tre");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(openedContainer, "etttvåtre");
    // The joined archive goes when it has been read.
    EXPECT_FALSE(memory.files.FileExists("W:\\Arbete\\FILEDATA.DAT"));
}

TEST_F(SetupProgramTest, AsksForTheNextDiskUntilItIsThere)
{
    project.Media.TargetMedia = 1;
    package.setup.Floppies = 2;
    memory.files.Put("D:\\Paket\\FILEDATA.DAT", "ett");
    ScriptedAsk script({{BoxKind::OkCancel, "Exempel", "Sätt in diskett 2.", Answer::No}});
    ask = &script;
    EXPECT_EQ(InstallInVain(""), ExitCode::Cancelled);
    ScriptedAsk nobody;
    ask = &nobody;
    EXPECT_EQ(InstallInVain("/SUPPRESSMSGBOXES"), ExitCode::DamagedPackage);
}

TEST_F(SetupProgramTest, AsksAgainWhileTheDriveIsEmpty)
{
    class DiskAsk : public SilentAsk {
    public:
        explicit DiskAsk(test::MemoryFiles& files) : files_(files) {}
        bool OkCancel(const Text&, const Text& text) override
        {
            EXPECT_EQ(text, "Sätt in diskett 2.");
            if (++calls == 1)
                files_.RemoveFile("D:\\Paket\\FILEDATA.DAT");
            else
                files_.Put("D:\\Paket\\FILEDATA.DAT", "två");
            return true;
        }
        int calls = 0;

    private:
        test::MemoryFiles& files_;
    } diskAsk(memory.files);
    project.Media.TargetMedia = 1;
    package.setup.Floppies = 2;
    memory.files.Put("D:\\Paket\\FILEDATA.DAT", "ett");
    ask = &diskAsk;
    EXPECT_EQ(Install(""), ExitCode::Done) << Log();
    EXPECT_EQ(diskAsk.calls, 2);
}

Text FaultOf(const test::MemoryHost& memory)
{
    const LoadedPackage package = LoadPackage(memory.files, "D:\\P");
    return package.fault ? package.texts(*package.fault) : "";
}

TEST(LoadPackageTest, TellsWhatIsMissingOrBroken)
{
    test::MemoryHost memory;
    EXPECT_EQ(FaultOf(memory), "QNSETUP.INF saknas eller kan inte läsas");
    memory.files.Put("D:\\P\\QNSETUP.INF", "skräp");
    EXPECT_EQ(FaultOf(memory), "FILELIST.INF saknas eller kan inte läsas");
    memory.files.Put("D:\\P\\FILELIST.INF", "skräp");
    EXPECT_EQ(FaultOf(memory), "FILELIST.INF är ofullständig");
    memory.files.Put("D:\\P\\FILELIST.INF",
                     "[Origin]\r\n\r\n[ID]\r\nApp = Quillon\r\nVer = 6.5.6\r\nFileType = FileList"
                     "\r\n\r\n[FileList]\r\n-(EOF)-\r\n\r\n");
    EXPECT_EQ(FaultOf(memory), "QNSETUP.INF är ofullständig");
    const Text setup = "[ID]\r\nApp = Quillon\r\nVer = 6.5.6\r\nFileType = Options\r\n\r\n"
                       "[ProjectName]\r\nProjectName = Prov\r\n\r\n[FileListInfo]\r\nFiles = ";
    memory.files.Put("D:\\P\\QNSETUP.INF", setup + "1\r\n\r\n-(EOF)-\r\n\r\n");
    EXPECT_EQ(FaultOf(memory), "QNSETUP.INF och FILELIST.INF hör inte ihop");
    memory.files.Put("D:\\P\\QNSETUP.INF", setup + "0\r\n\r\n-(EOF)-\r\n\r\n");
    memory.files.Put("D:\\P\\SWEDISH.LNG", "[Setup]\r\nButton_Cancel=Stopp\r\n");
    const LoadedPackage package = LoadPackage(memory.files, "D:\\P");
    EXPECT_FALSE(package.fault);
    EXPECT_EQ(package.setup.project.ProjectName.ProjectName, "Prov");
    EXPECT_EQ(package.texts[Message::Cancel], "Stopp");
}

} // namespace quillon
