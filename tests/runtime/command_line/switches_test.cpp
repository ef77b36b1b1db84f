#include "helpers/drive_path.h"
#include "runtime/command_line/switches.h"

#include "runtime/command_line/switch_words.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(ReadSwitches, TakesAnEmptyCommandLine)
{
    const Switches switches = ReadSwitches("  ");
    EXPECT_FALSE(switches.silent);
    EXPECT_EQ(switches.destination, "");
    EXPECT_EQ(switches.password, std::nullopt);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

TEST(ReadSwitches, IgnoresTheCaseOfNames)
{
    const Switches switches =
        ReadSwitches(R"(/s /dir="C:\Ny mapp" /log="C:\temp\en logg.txt" /Password=Hemligt)");
    EXPECT_TRUE(switches.silent);
    EXPECT_EQ(switches.destination, R"(C:\Ny mapp)");
    EXPECT_EQ(switches.logFile, R"(C:\temp\en logg.txt)");
    EXPECT_EQ(switches.password, "Hemligt");
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

struct FolderCase {
    const char* line;
    const char* folder;
    bool silent;
};

class FolderSwitch : public testing::TestWithParam<FolderCase> {};

TEST_P(FolderSwitch, IsRead)
{
    const Switches switches = ReadSwitches(GetParam().line);
    EXPECT_EQ(switches.destination, GetParam().folder);
    EXPECT_EQ(switches.silent, GetParam().silent);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    , FolderSwitch,
    testing::Values(FolderCase{R"(/D=C:\App)", R"(C:\App)", false},
                    FolderCase{R"(/D=C:\Program Files\App /S)", R"(C:\Program Files\App)", true},
                    FolderCase{R"(/S /D=C:\Program Files\App)", R"(C:\Program Files\App)", true},
                    FolderCase{R"(/D="C:\App" /S)", R"(C:\App)", true},
                    FolderCase{R"(/DIR="C:\App\" /S)", R"(C:\App)", true},
                    FolderCase{R"(/D=C:\)", R"(C:\)", false},
                    FolderCase{R"(/D=C:\Bort\..\App/Ett\\Två\. /S)", R"(C:\App\Ett\Två)", true},
                    FolderCase{R"(/DIR=\\server\del\App)", R"(\\server\del\App)", false},
                    FolderCase{R"("/D=C:\Med Blank")", R"(C:\Med Blank)", false},
                    FolderCase{R"("/DIR=C:\Med Blank\" "/S")", R"(C:\Med Blank)", true},
                    FolderCase{"\"/S\"\t\"/D=C:\\Med Blank\"", R"(C:\Med Blank)", true},
                    FolderCase{R"(/D=C:\Med Blank "/S")", R"(C:\Med Blank)", true},
                    FolderCase{R"("/D"="C:\Med Blank" /S)", R"(C:\Med Blank)", true},
                    FolderCase{R"(/D="C:\Med -S Blank")", R"(C:\Med -S Blank)", false},
                    FolderCase{R"(/D=C:\A /D=C:\B)", R"(C:\B)", false}));

Text NameIn(const Text& line)
{
    return line.substr(0, line.find_first_of("=:"));
}

class BadSwitch : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(BadSwitch, IsNamedWithoutItsValue)
{
    EXPECT_EQ(ReadSwitches(GetParam().first).badSwitch, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    , BadSwitch,
    testing::Values(std::pair{"/S /X", "/X"}, std::pair{"/SILENTS", "/SILENTS"},
                    std::pair{"/S=1", "/S"}, std::pair{"setup", "…"}, std::pair{"S", "…"},
                    std::pair{"-S=1", "-S"}, std::pair{"--S", "--S"}, std::pair{"/LANG=", "/LANG"},
                    std::pair{"/LANG=..\\x", "/LANG"}, std::pair{"/GROUP=..\\x", "/GROUP"},
                    std::pair{"INSTALLDIR=App", "INSTALLDIR"}, std::pair{"DIR=C:\\App", "DIR"},
                    std::pair{"/passive=1", "/passive"}, std::pair{"/D", "/D"},
                    std::pair{"/D=", "/D"}, std::pair{"/D=App", "/D"},
                    std::pair{"/DIR=\"C:App\"", "/DIR"}, std::pair{"/D=C:\\con\\x", "/D"},
                    std::pair{"/D=C:\\a|b /S", "/D"}, std::pair{"INSTALLDIR=C:\\a?", "INSTALLDIR"},
                    std::pair{"/D=\"C:\\Med /S Blank\"", "/D"}, std::pair{"\"/D\"=\"App\"", "/D"},
                    std::pair{"/DIR=\\\\/..", "/DIR"}, std::pair{"/LOG=", "/LOG"},
                    std::pair{"/LOG=\"\"", "/LOG"}, std::pair{"/PASSWORD", "/PASSWORD"},
                    std::pair{"/A /B", "/A"}, std::pair{"/TEST=1", "/TEST"},
                    std::pair{"/PREVIEWS", "/PREVIEWS"}, std::pair{"\"/X Y\" /S", "/X"},
                    std::pair{"/S \"\"", "/S …"}, std::pair{"/LOG=C:\\l.txt ord", "/LOG …"}));

TEST(ReadSwitches, TakesAnEmptyPasswordAsOne)
{
    EXPECT_EQ(ReadSwitches("/PASSWORD=").password, "");
}

TEST(ReadSwitches, KnowsTheTwoTestModes)
{
    EXPECT_EQ(ReadSwitches("/S").testMode, std::nullopt);
    EXPECT_EQ(ReadSwitches(" /TEST").testMode, TestMode::Test);
    EXPECT_EQ(ReadSwitches("/test /S /TEST").testMode, TestMode::Test);
    const Switches preview = ReadSwitches("/LOG=a /Preview");
    EXPECT_EQ(preview.testMode, TestMode::Preview);
    EXPECT_EQ(preview.badSwitch, std::nullopt);
    const Switches both = ReadSwitches("/PREVIEW /TEST");
    EXPECT_EQ(both.testMode, TestMode::Preview);
    EXPECT_EQ(both.badSwitch, "/TEST");
}

TEST(ReadSwitches, TakesASwitchThatIsQuotedAsAWhole)
{
    const Switches switches =
        ReadSwitches("\t\"/s\" \"/log=C:\\en logg.txt\"\t\"/PASSWORD=två ord\" \"/TEST\"");
    EXPECT_TRUE(switches.silent);
    EXPECT_EQ(switches.logFile, R"(C:\en logg.txt)");
    EXPECT_EQ(switches.password, "två ord");
    EXPECT_EQ(switches.testMode, TestMode::Test);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

TEST(ReadSwitches, TakesTheScopeOnce)
{
    EXPECT_EQ(ReadSwitches("").scope, InstallScope::Project);
    EXPECT_EQ(ReadSwitches("-allusers /ALLUSERS").scope, InstallScope::AllUsers);
    EXPECT_EQ(ReadSwitches("/CurrentUser").scope, InstallScope::CurrentUser);
    EXPECT_EQ(ReadSwitches("/ALLUSERS /CURRENTUSER").badSwitch, "/CURRENTUSER");
}

TEST(ReadSwitches, TakesOneTaskInThePlaceOfAnInstallation)
{
    EXPECT_EQ(ReadSwitches("/S").task, SetupTask::Install);
    EXPECT_EQ(ReadSwitches("/?").task, SetupTask::Help);
    EXPECT_EQ(ReadSwitches("-help").task, SetupTask::Help);
    EXPECT_EQ(ReadSwitches("-Version").task, SetupTask::Version);
    EXPECT_EQ(ReadSwitches("/uninstall").task, SetupTask::Uninstall);
    EXPECT_EQ(ReadSwitches("/PLAN /plan").task, SetupTask::Plan);
    const Switches plan = ReadSwitches("\"/PLAN=C:\\en plan.json\"");
    EXPECT_EQ(plan.task, SetupTask::Plan);
    EXPECT_EQ(plan.planFile, "C:\\en plan.json");
    const Switches unpack = ReadSwitches("/extract:\"C:\\En mapp\\\" /S");
    EXPECT_EQ(unpack.task, SetupTask::Extract);
    EXPECT_EQ(unpack.extractFolder, "C:\\En mapp");
    EXPECT_TRUE(unpack.silent);
    EXPECT_EQ(ReadSwitches("/EXTRACT=C:\\A").extractFolder, "C:\\A");
    EXPECT_EQ(ReadSwitches("/PLAN /uninstall").badSwitch, "/uninstall");
    EXPECT_EQ(ReadSwitches("/TEST /PLAN").badSwitch, "/PLAN");
    EXPECT_EQ(ReadSwitches("/PLAN /TEST").badSwitch, "/TEST");
    for (const char* line : {"/extract", "/extract:", "/extract:ut", "/extract:C:\\a?b", "/PLAN=",
                             "/LOGJSON", "/LOGJSON=", "/RESULT=", "/SAVEINF", "/LOADINF="})
        EXPECT_EQ(ReadSwitches(line).badSwitch, NameIn(line));
}

TEST(ReadSwitches, TakesALogWithAndWithoutAName)
{
    EXPECT_FALSE(ReadSwitches("/S").hasLog);
    EXPECT_TRUE(ReadSwitches("/log").hasLog);
    EXPECT_EQ(ReadSwitches("/log").logFile, "");
    const Switches named = ReadSwitches("-LOG:C:\\a.log /LOGJSON=C:\\a.json /RESULT=C:\\r.json");
    EXPECT_TRUE(named.hasLog);
    EXPECT_EQ(named.logFile, "C:\\a.log");
    EXPECT_EQ(named.jsonLogFile, "C:\\a.json");
    EXPECT_EQ(named.resultFile, "C:\\r.json");
}

TEST(ReadSwitches, TakesACodeForADueRestart)
{
    EXPECT_EQ(CodeToEndWith(ExitCode::RestartNeeded, ReadSwitches("")), ExitCode::RestartNeeded);
    const Switches switches = ReadSwitches("/RestartExitCode=77");
    EXPECT_EQ(CodeToEndWith(ExitCode::RestartNeeded, switches), ExitCode{77});
    EXPECT_EQ(CodeToEndWith(ExitCode::Done, switches), ExitCode::Done);
    for (const char* line : {"/RESTARTEXITCODE", "/RESTARTEXITCODE=", "/RESTARTEXITCODE=-1",
                             "/RESTARTEXITCODE=65536", "/RESTARTEXITCODE=7x"})
        EXPECT_EQ(ReadSwitches(line).badSwitch, NameIn(line));
}

TEST(ReadSwitches, TakesWhatKeepsBoxesAndCancelAway)
{
    const Switches switches = ReadSwitches("/SP- -suppressmsgboxes /NOCANCEL");
    EXPECT_TRUE(switches.suppressBoxes);
    EXPECT_FALSE(switches.canCancel);
    EXPECT_FALSE(switches.silent);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

TEST(ReadSwitches, NamesNoPasswordOfAMisspeltSwitch)
{
    EXPECT_EQ(ReadSwitches("/PASSWORDS=Hemligt").badSwitch, "/PASSWORDS");
    EXPECT_EQ(ReadSwitches("-pass:Hemligt").badSwitch, "-pass");
    EXPECT_EQ(ReadSwitches("/PASWORD=Hemligt").badSwitch, "/PASWORD");
    EXPECT_EQ(ReadSwitches("/PWD=Hemligt").badSwitch, "/PWD");
    EXPECT_EQ(ReadSwitches("/PWD\"Hemligt\"").badSwitch, "/PWD");
    EXPECT_EQ(ReadSwitches("\"/LOSEN Hemligt\"").badSwitch, "/LOSEN");
    EXPECT_EQ(ReadSwitches("/passwordHemligt").badSwitch, "/password");
    EXPECT_EQ(ReadSwitches("PASSWORD=Hemligt").badSwitch, "PASSWORD");
    EXPECT_EQ(ReadSwitches("PWD=Hemligt").badSwitch, "…");
    EXPECT_EQ(ReadSwitches("/PASSWORD:Hemligt").password, "Hemligt");
}

TEST(ReadSwitches, NamesNoWordThatAPasswordMayEndIn)
{
    EXPECT_EQ(ReadSwitches("/S /PASSWORD=hemligt ord").badSwitch, "/PASSWORD …");
    EXPECT_EQ(ReadSwitches("/PASSWORD=hemligt -ord").badSwitch, "/PASSWORD …");
    EXPECT_EQ(ReadSwitches("-password:hemligt o=rd").badSwitch, "-password …");
    EXPECT_EQ(ReadSwitches("/PASSWORD=hemligt /S ord").badSwitch, "/S …");
    EXPECT_EQ(ReadSwitches("/PASSWORD hemligt").badSwitch, "/PASSWORD");
    EXPECT_EQ(ReadSwitches("/PASSWORD=hemligt /LANG=").badSwitch, "/LANG");
}

class SilentWord : public testing::TestWithParam<const char*> {};

TEST_P(SilentWord, IsAsGoodAsAnyOther)
{
    const Switches switches = ReadSwitches(GetParam());
    EXPECT_TRUE(switches.silent);
    EXPECT_FALSE(switches.passive);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
    EXPECT_TRUE(HasSilentSwitch(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(, SilentWord,
                         testing::Values("/S", "-s", "/SILENT", "/VerySilent", "/quiet", "-quiet",
                                         "/q", "/qn", "/QN", "\"-qn\"", "/D=C:\\A B -s",
                                         "/LOG=a /norestart /quiet"));

TEST(ReadSwitches, ShowsProgressAloneWherePassive)
{
    for (const char* line : {"/passive", "-PASSIVE", "/qb"}) {
        const Switches switches = ReadSwitches(line);
        EXPECT_TRUE(switches.passive) << line;
        EXPECT_TRUE(switches.silent) << line << ": nobody is asked";
        EXPECT_FALSE(HasSilentSwitch(line)) << line;
        EXPECT_EQ(switches.badSwitch, std::nullopt) << line;
    }
}

// No user may be there to answer a box.
TEST(AllowsBoxes, AgreesWithTheSetup)
{
    for (const char* line :
         {"", "/S", "-qn", "/passive", "-PASSIVE", "/qb", "\"/QB\"", "/SUPPRESSMSGBOXES",
          "-suppressmsgboxes", "/LOG=a /SuppressMsgBoxes", "/SUPPRESSMSGBOX", "/PASSIV",
          "/SUPPRESSMSGBOXES2", "/D=C:\\A passive", "/D=\"C:\\A /passive\""}) {
        const std::string text = line;
        const std::wstring wide(text.begin(), text.end());
        EXPECT_EQ(AllowsBoxes(wide.c_str()), MayAsk(ReadSwitches(line))) << line;
    }
    EXPECT_FALSE(AllowsBoxes("/passive"));
    EXPECT_FALSE(AllowsBoxes("/qb"));
    EXPECT_FALSE(AllowsBoxes("/SUPPRESSMSGBOXES"));
    EXPECT_TRUE(AllowsBoxes("/NOCANCEL"));
}

TEST(ReadSwitches, TakesTheFolderAsAPropertyAndWithADash)
{
    EXPECT_EQ(ReadSwitches("INSTALLDIR=\"C:\\En mapp\"").destination, "C:\\En mapp");
    EXPECT_EQ(ReadSwitches("installdir=C:\\App").destination, "C:\\App");
    EXPECT_EQ(ReadSwitches("-dir=C:\\App").destination, "C:\\App");
    EXPECT_EQ(ReadSwitches("-D=C:\\En - mapp -q").destination, "C:\\En - mapp");
    EXPECT_EQ(ReadSwitches("-test").testMode, TestMode::Test);
}

TEST(ReadSwitches, TakesWhatIsChosenOnThePages)
{
    const Switches switches =
        ReadSwitches("/COMPONENTS=\"a, b,!c\" /GROUP=\"Min grupp\" /LANG=english");
    EXPECT_EQ(switches.components, "a, b,!c");
    EXPECT_EQ(switches.programGroup, "Min grupp");
    EXPECT_EQ(switches.languageFile, "english.LNG");
    EXPECT_EQ(ReadSwitches("/LANG=Danish.lng").languageFile, "Danish.lng");
    EXPECT_EQ(ReadSwitches("/S").components, std::nullopt);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

// The starter knows of no other switch, and has to be silent whenever the setup is.
TEST(HasSilentSwitch, AgreesWithTheSetup)
{
    for (const char* line : {"",
                             " ",
                             "/S",
                             "/s",
                             "\t/S",
                             "a\t/S",
                             "\"/S\"",
                             "x \"/s\"\ty",
                             "/D=C:\\A B /S",
                             "/D=C:\\A B \"/S\"",
                             "/D=\"C:\\A /S\"",
                             "\"/D=C:\\A /S\"",
                             "/SILENT",
                             "-S",
                             "/-S",
                             "/quiet=1",
                             "/passive",
                             "/VERYSILENTLYINDEED",
                             "/D=C:\\A - B",
                             "/D=C:\\A -s B",
                             "/X/S",
                             "/S/X",
                             "/S=1",
                             "\"/S",
                             "S",
                             "/",
                             "/LOG=/S",
                             "\"x\"/S",
                             "/\"S\"",
                             "/LOG=a /S"}) {
        const Text narrow = line;
        const std::wstring wide(narrow.begin(), narrow.end());
        const Switches switches = ReadSwitches(line);
        EXPECT_EQ(HasSilentSwitch(wide.c_str()), switches.silent && !switches.passive) << line;
    }
    EXPECT_TRUE(HasSilentSwitch("\t\"/S\""));
    EXPECT_FALSE(HasSilentSwitch("/D=\"C:\\A /S\""));
}

TEST(FindSwitchValue, AgreesWithTheSetup)
{
    for (const char* line :
         {"", "/S", "/RESULT=a.json", "-result:a.json", "/Result=\"C:\\a b.json\" /S",
          "/S \"/RESULT=C:\\a b.json\"", "/RESULT", "/RESULT=", "/RESULT=a /RESULT=b", "RESULT=a",
          "/RESULTS=a", "/D=C:\\A /B /RESULT=c", "/D=\"C:\\A /RESULT=c\"", "/LOG=/RESULT=a",
          "/RESULT=a=b:c", "\"/RESULT=a", "/RESULT=\"\""}) {
        Text::value_type value[32] = {};
        const bool isFound = FindSwitchValue(line, "RESULT", value, 32);
        EXPECT_EQ(isFound, value[0] != 0) << line;
        EXPECT_EQ(Text(value), ReadSwitches(line).resultFile) << line;
    }
}

TEST(FindSwitchValue, TakesNoValueThatHasNoRoom)
{
    char value[5];
    EXPECT_TRUE(FindSwitchValue("/RESULT=1234", "RESULT", value, 5));
    EXPECT_STREQ(value, "1234");
    EXPECT_FALSE(FindSwitchValue("/RESULT=12345", "RESULT", value, 5));
    EXPECT_STREQ(value, "");
}

struct UninstallerCase {
    const char* line;
    const char* journalPath;
    bool silent;
};

class UninstallerLine : public testing::TestWithParam<UninstallerCase> {};

TEST_P(UninstallerLine, BeginsWithTheLog)
{
    const UninstallerCommand command = ReadUninstallerCommand(GetParam().line);
    EXPECT_EQ(command.journalPath, GetParam().journalPath);
    EXPECT_EQ(command.switches.silent, GetParam().silent);
    EXPECT_EQ(command.switches.badSwitch, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    , UninstallerLine,
    testing::Values(UninstallerCase{"", "", false}, UninstallerCase{"/S", "", true},
                    UninstallerCase{"\"/S\"", "", true},
                    UninstallerCase{R"("C:\Ett program\QNXUNIN.LOG")",
                                    R"(C:\Ett program\QNXUNIN.LOG)", false},
                    UninstallerCase{R"( "C:\Ett program\QNXUNIN.LOG" /S)",
                                    R"(C:\Ett program\QNXUNIN.LOG)", true},
                    UninstallerCase{"C:\\A\\QNXUNIN2.LOG\t\"/S\"", R"(C:\A\QNXUNIN2.LOG)", true}));

TEST(ReadUninstallerCommand, KnowsNoTestMode)
{
    const auto badSwitch = [](const char* line) {
        return ReadUninstallerCommand(line).switches.badSwitch;
    };
    EXPECT_EQ(badSwitch("/S /TEST"), "/TEST");
    EXPECT_EQ(badSwitch("/preview"), "/PREVIEW");
    EXPECT_EQ(badSwitch("\"C:\\A.LOG\" /X /TEST"), "/X");
    EXPECT_EQ(badSwitch("/S C:\\A.LOG"), "/S …");
    EXPECT_EQ(badSwitch("/S"), std::nullopt);
    // What would change nothing must not remove anything.
    EXPECT_EQ(badSwitch("/S /PLAN"), "/PLAN");
    EXPECT_EQ(badSwitch("/extract:C:\\A"), "/EXTRACT");
    EXPECT_EQ(badSwitch("/LOG /RESULT=C:\\r.json /uninstall"), std::nullopt);
}

TEST(IsAbsolutePath, WantsADriveOrAServer)
{
    EXPECT_TRUE(IsAbsolutePath(R"(C:\)"));
    EXPECT_TRUE(IsAbsolutePath(R"(\\server\del)"));
    EXPECT_FALSE(IsAbsolutePath(""));
    EXPECT_FALSE(IsAbsolutePath("C:"));
    EXPECT_FALSE(IsAbsolutePath(R"(\App)"));
    EXPECT_FALSE(IsAbsolutePath(R"(%FEL\App)"));
    EXPECT_FALSE(IsAbsolutePath(R"(\\)"));
}

} // namespace quillon
