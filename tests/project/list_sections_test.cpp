// The lists, the components and the rows of the project file, whole and damaged.
#include "project/list_sections.h"

#include "platform/run_error.h"
#include "project/components.h"
#include "project_file_fixture.h"

namespace quillon {

using test::Empty;
using test::Full;
using test::GoldenBytes;
using test::ProjectOnDisk;
using test::ValueIn;
using test::With;
using test::WithValue;

namespace {

bool Contains(const std::string& bytes, const std::string& part)
{
    return bytes.find(part) != std::string::npos;
}

Text section::Lists::*const kPlainLists[] = {
    &section::Lists::RunScriptBefore, &section::Lists::RunScriptAfter,
    &section::Lists::Registry,        &section::Lists::AutoexecBat,
    &section::Lists::ConfigSys,       &section::Lists::RegisterFileList};

// A user whose pointer must be back to normal before a box comes up.
class WaitingUser : public test::ScriptedAsk {
public:
    using ScriptedAsk::ScriptedAsk;

    void Critical(const Text& title, const Text& text) override
    {
        EXPECT_FALSE(busyPointer);
        ScriptedAsk::Critical(title, text);
    }
};

// Loads a file whose reading must stop silently.
void ExpectSilentStop(const std::string& bytes, const char* what)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(bytes), ReadEnd::Stopped) << what;
    EXPECT_EQ(disk.beeps, 0) << what;
}

} // namespace

TEST(TextLists, ComeBackExactlyAsTheyWere)
{
    for (const char* text :
         {"a", "a\r\nb", "a\r\n", "\r\n", "\r\n\r\na\r\n\r\n", "  a  ", "\"a\"", "[Registry]x",
          ".....", "...", "> a", "a\rb", "a\nb", "a;b=c", " ", "åäö€"}) {
        ProjectOnDisk disk;
        for (const auto list : kPlainLists)
            disk.project.Lists.*list = text;
        const std::string saved = disk.Save();
        disk.project.Lists = {};
        ASSERT_EQ(disk.Load(saved), ReadEnd::Whole) << testing::PrintToString(text);
        for (const auto list : kPlainLists)
            EXPECT_EQ(disk.project.Lists.*list, text);
        EXPECT_EQ(disk.Save(), saved);
    }
}

TEST(TextLists, EndInAnExtraEmptyLineWhereTheTextEndsInALineBreak)
{
    ProjectOnDisk disk;
    disk.project.Lists.Registry = "HKEY;a\r\n";
    const std::string saved = disk.Save();
    EXPECT_TRUE(Contains(saved, "[Registry]\r\nHKEY;a\r\n\r\n....\r\n\r\n[INIFiles]"));
    disk.Load(saved);
    EXPECT_EQ(disk.project.Lists.Registry, "HKEY;a\r\n");
}

TEST(TextLists, TakeALineOfFourDotsForTheirEnd)
{
    ProjectOnDisk disk;
    disk.project.Lists.Registry = "a\r\n....\r\nb";
    disk.Load(disk.Save());
    EXPECT_EQ(disk.project.Lists.Registry, "a");
    EXPECT_EQ(disk.project.Lists.AutoexecBat, "");
}

TEST(UseFlags, AreComputedOnWritingFromTheTexts)
{
    struct Use {
        Text section::Lists::*list;
        const char* section;
        const char* flag;
    };
    const Use kUses[] = {
        {&section::Lists::Registry, "Configuration", "RegistryUse"},
        {&section::Lists::INIFiles, "Configuration", "INIFilesUse"},
        {&section::Lists::AutoexecBat, "Configuration", "AutoexecBatUse"},
        {&section::Lists::ConfigSys, "Configuration", "ConfigSysUse"},
        {&section::Lists::RegisterFileList, "RegisterFiles", "FileRegisterListUsed"},
    };
    for (const Use& use : kUses) {
        ProjectOnDisk disk;
        disk.project.Lists.*use.list = Text("x");
        const std::string saved = disk.Save();
        for (const Use& other : kUses)
            EXPECT_EQ(ValueIn(saved, other.section, other.flag), &use == &other ? "1" : "0")
                << use.flag << " " << other.flag;
    }
}

TEST(UseFlags, EmptyTheListThatTheyTurnOff)
{
    for (const char* flag : {"RegistryUse", "INIFilesUse"}) {
        ProjectOnDisk disk;
        disk.Load(Full());
        disk.Load(WithValue(Full(), "Configuration", flag, "0"));
        EXPECT_EQ(disk.project.Lists.Registry.empty(), flag == std::string("RegistryUse"));
        EXPECT_EQ(disk.project.Lists.INIFiles.empty(), flag == std::string("INIFilesUse"));
    }
    ProjectOnDisk disk;
    disk.Load(Full());
    disk.Load(WithValue(Full(), "RegisterFiles", "FileRegisterListUsed", "0"));
    EXPECT_EQ(disk.project.Lists.RegisterFileList, "");
}

TEST(UseFlags, LetTheStartupLinesOfTheProjectBeforeLiveOn)
{
    ProjectOnDisk disk;
    disk.project.Lists.AutoexecBat = "SET OLD=1\r\n";
    disk.project.Lists.ConfigSys = "FILES=1";
    const std::string saved = disk.Resave(Empty());
    EXPECT_EQ(disk.project.Lists.AutoexecBat, "SET OLD=1\r\n");
    EXPECT_EQ(disk.project.Lists.ConfigSys, "FILES=1");
    EXPECT_EQ(ValueIn(saved, "Configuration", "AutoexecBatUse"), "1");
    EXPECT_EQ(ValueIn(saved, "Configuration", "ConfigSysUse"), "1");
    EXPECT_TRUE(Contains(saved, "[AutoexecBat]\r\nSET OLD=1\r\n\r\n....\r\n"));
}

TEST(UseFlags, TurnedOnOverAnEmptyListGiveAnEmptyText)
{
    ProjectOnDisk disk;
    disk.project.Lists.AutoexecBat = "SET OLD=1";
    disk.Load(WithValue(Empty(), "Configuration", "AutoexecBatUse", "1"));
    EXPECT_EQ(disk.project.Lists.AutoexecBat, "");
}

TEST(INIFiles, HaveAMarkBeforeEachLine)
{
    struct Case {
        const char* text;
        const char* onFile;
        const char* back;
    };
    const Case kCases[] = {
        {"a", ">a\r\n", "a"},
        {"a\r\n", ">a\r\n", "a"},
        {"a\r\nb", ">a\r\n>b\r\n", "a\r\nb"},
        {"a\r\n\r\nb\r\n", ">a\r\n>\r\n>b\r\n", "a\r\n\r\nb"},
        {"a\r\n\r\n", ">a\r\n>\r\n", "a\r\n"},
        {"\r\n", ">\r\n", ""},
        {"\r\na", ">\r\n>a\r\n", "\r\na"},
        {"[Registry]\r\n....", ">[Registry]\r\n>....\r\n", "[Registry]\r\n...."},
    };
    for (const Case& one : kCases) {
        ProjectOnDisk disk;
        disk.project.Lists.INIFiles = one.text;
        const std::string saved = disk.Save();
        EXPECT_TRUE(Contains(saved, std::string("[INIFiles]\r\n") + one.onFile + "....\r\n\r\n"))
            << testing::PrintToString(one.text);
        EXPECT_EQ(ValueIn(saved, "Configuration", "INIFilesUse"), "1");
        EXPECT_EQ(disk.Load(saved), ReadEnd::Whole);
        EXPECT_EQ(disk.project.Lists.INIFiles, one.back) << testing::PrintToString(one.text);
    }
}

TEST(INIFiles, LoseTheirFirstCharacterWhateverItIs)
{
    ProjectOnDisk disk;
    disk.Load(With(Full(), ">[r\xE4knare.ini]\r\n>\r\n>F", "x[a]\r\n\r\n\xE5"));
    EXPECT_EQ(disk.project.Lists.INIFiles, "[a]\r\n\r\närg=röd");
}

TEST(INIFiles, OfMoreCharactersThanTheirPositionCanHoldLeaveTheFile)
{
    ProjectOnDisk disk;
    disk.project.Lists.INIFiles = Text(32767, 'x');
    EXPECT_EQ(disk.Resave(disk.Save()).size(), Empty().size() + 32767 + 3);

    const std::string saved = disk.machine.files.Get(test::kPath);
    for (const Text& text : {Text(32768, 'x'), Text("first\r\nsecond\r\n").append(32768, 'x')}) {
        disk.project.Lists.INIFiles = text;
        EXPECT_EQ(RunErrorNumber([&] { disk.Save(); }), 6);
        EXPECT_EQ(disk.machine.files.Get(test::kPath), saved);
    }

    disk.project.Lists.INIFiles = Text(32766, 'x').append("\r\n");
    EXPECT_EQ(RunErrorNumber([&] { disk.Save(); }), 6);
}

TEST(INIFiles, CountCharactersAndNotTheBytesInMemory)
{
    ProjectOnDisk disk;
    Text text;
    for (int i = 0; i < 32767; ++i)
        text += "å";
    disk.project.Lists.INIFiles = text;
    EXPECT_EQ(RunErrorNumber([&] { disk.Save(); }), 0);
}

TEST(Lists, AreFoundByTheirHeaderExactly)
{
    for (const char* header : {"[registry]", "[Registry] ", " [Registry]", "Registry", "[Registry"})
        ExpectSilentStop(With(Full(), "[Registry]", header), header);
}

TEST(Lists, StopTheReadingSilentlyWhereTheirHeaderIsMissing)
{
    for (const char* header : {"[RunScriptBefore]", "[RunScriptAfter]", "[Registry]", "[INIFiles]",
                               "[AutoexecBat]", "[ConfigSys]", "[RegisterFileList]", "[FileList]"})
        ExpectSilentStop(With(Full(), header, "[Other]"), header);
}

TEST(Lists, KeepWhatWasReadBeforeAStop)
{
    ProjectOnDisk disk;
    disk.project.Lists.AutoexecBat = "old";
    EXPECT_EQ(disk.Load(With(Full(), "[AutoexecBat]", "[Other]")), ReadEnd::Stopped);
    EXPECT_EQ(disk.project.Lists.INIFiles, "[räknare.ini]\r\n\r\nFärg=röd");
    EXPECT_EQ(disk.project.Lists.AutoexecBat, "old");
    EXPECT_EQ(disk.project.Lists.ConfigSys, "");
    EXPECT_EQ(disk.project.FileComponents[0].CompName, "");
    EXPECT_TRUE(disk.project.Files.rows.empty());
}

TEST(Lists, ThatAreNotUsedNeedNoHeader)
{
    ProjectOnDisk disk;
    std::string bytes = Empty();
    for (const char* section :
         {"Registry", "INIFiles", "AutoexecBat", "ConfigSys", "RegisterFileList"})
        bytes = test::WithoutSection(bytes, section);
    EXPECT_EQ(disk.Load(bytes), ReadEnd::Whole);
}

TEST(Lists, TellTheUserOnlyOfTheFirstOneThatDoesNotEnd)
{
    const std::string full = Full();
    ProjectOnDisk disk;
    WaitingUser ask{{{test::BoxKind::Critical, "Fel", "Projektfilen är skadad eller felaktig!"}}};
    ask.busyPointer = true;
    const std::size_t cut = full.find("MsgBox");
    EXPECT_EQ(disk.Load(full.substr(0, cut + 3), ask), ReadEnd::Damaged);
    EXPECT_EQ(ask.beeps, 0);
    EXPECT_EQ(disk.project.Lists.RunScriptBefore, "' före\r\nMsg");

    ExpectSilentStop(full.substr(0, full.find("' efter") + 3), "RunScriptAfter");
    ExpectSilentStop(full.substr(0, full.find("RAKNARE")), "AutoexecBat");
}

TEST(Lists, AreReadFromTheFirstLineThatLooksLikeTheirHeader)
{
    ProjectOnDisk disk;
    disk.project.Lists.RunScriptBefore = "a\r\n[RunScriptAfter]\r\nb\r\n[Version]\r\nComments = c";
    disk.project.Lists.RunScriptAfter = "never seen again";
    disk.project.Version.Comments = "first";
    const std::string saved = disk.Save();
    EXPECT_EQ(disk.Load(saved), ReadEnd::Whole);
    EXPECT_EQ(disk.project.Lists.RunScriptAfter, "b\r\n[Version]\r\nComments = c");
    EXPECT_EQ(disk.project.Version.Comments, "first");
}

TEST(Lists, MayEndWithTheFile)
{
    std::string bytes = GoldenBytes("missing_keys/without_keys.qnp");
    ProjectOnDisk disk;
    bytes.resize(bytes.find("[FileList]"));
    EXPECT_EQ(disk.Load(bytes + "[FileList]"), ReadEnd::Whole);
    bytes.resize(bytes.rfind("....") + 4);
    EXPECT_EQ(disk.Load(bytes), ReadEnd::Stopped);
    EXPECT_EQ(disk.project.Lists.RunScriptAfter, "");
}

TEST(Components, AreWrittenOnlyWhenOneIsInUse)
{
    ProjectOnDisk disk;
    disk.project.FileComponents[2].CompName = "Exempel";
    EXPECT_FALSE(IsAnyComponentInUse(disk.project));
    EXPECT_TRUE(
        Contains(disk.Save(), "[FileComponents]\r\nUseComponents = 0\r\n\r\n[FileListInfo]"));
    disk.project.FileComponents[8].Comp = 1;
    EXPECT_TRUE(IsAnyComponentInUse(disk.project));
    const std::string saved = disk.Save();
    EXPECT_EQ(ValueIn(saved, "FileComponents", "CompName3"), "Exempel");
    EXPECT_EQ(ValueIn(saved, "FileComponents", "Comp9"), "1");
}

TEST(Components, GoBackToNewOnesWhereNoneIsInUse)
{
    ProjectOnDisk disk;
    disk.Load(Full());
    EXPECT_EQ(disk.project.FileComponents[0].CompName, "Hjälp");
    disk.Load(WithValue(Full(), "FileComponents", "UseComponents", "0"));
    for (const section::FileComponent& component : disk.project.FileComponents) {
        EXPECT_EQ(component.Comp, 0);
        EXPECT_EQ(component.CompName, "");
        EXPECT_EQ(component.CompDir, "");
        EXPECT_EQ(component.CompText, "");
        EXPECT_EQ(component.CompDefault, 1);
        EXPECT_EQ(component.CompCanChangeDir, 0);
        EXPECT_EQ(component.CompMustAlwaysBeInstalled, 0);
        EXPECT_EQ(component.CompAdvOnlyUpdate, 0);
        EXPECT_EQ(component.CompAdvUpdateRefFile, "");
        EXPECT_EQ(component.CompAdvUpdateInfoBoxTitle, "");
        EXPECT_EQ(component.CompAdvUpdateInfoBoxText, "");
    }
}

TEST(Components, AreReadWithZerosWhereTheFileHasNoKeysForThem)
{
    ProjectOnDisk disk;
    disk.Load(Full());
    disk.Load(WithValue(Empty(), "FileComponents", "UseComponents", "1"));
    for (const section::FileComponent& component : disk.project.FileComponents) {
        EXPECT_EQ(component.Comp, 0);
        EXPECT_EQ(component.CompName, "");
        EXPECT_EQ(component.CompDefault, 0);
    }
}

TEST(Components, ATextOfSeveralLinesIsWrittenAsItStands)
{
    ProjectOnDisk disk;
    disk.project.FileComponents[0].Comp = 1;
    disk.project.FileComponents[0].CompText = "En\r\nTvå";
    EXPECT_TRUE(Contains(disk.Save(), "CompText1 = En\r\nTv\xE5\r\nCompDefault1 = 1\r\n"));
}

} // namespace quillon
