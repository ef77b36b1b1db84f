// /SAVEINF= and /LOADINF=: an installation once more by the answers of an earlier one.
#include "runtime/support/scripted_pages.h"
#include "runtime/support/unattended_fixture.h"

#include "runtime/command_line/answer_file.h"

#include <gmock/gmock.h>

namespace quillon {

using test::MachineState;
using test::ScriptedPages;
using test::Typing;
using testing::HasSubstr;
using testing::Not;

using test::kMain;

class AnswerFileTest : public test::UnattendedFixture {};

TEST_F(AnswerFileTest, SavesTheAnswersAndTakesThemAgain)
{
    package.setup.UseComponents = kOn;
    for (std::size_t i = 0; i < 3; ++i) {
        project.FileComponents[i].Comp = 1;
        project.FileComponents[i].CompName = i == 1 ? "Med, komma" : "Del" + NumberText(int(i) + 1);
    }
    ASSERT_EQ(Install("/S /D=C:\\Egen mapp /GROUP=Gruppen /COMPONENTS=2,del3 /ALLUSERS "
                      "/SAVEINF=L:\\svar.inf"),
              ExitCode::Done)
        << Log();
    EXPECT_THAT(BytesOf("L:\\svar.inf"),
                testing::StartsWith("\xEF\xBB\xBF[Setup]\r\nDir=C:\\Egen mapp\r\nGroup=Gruppen\r\n"
                                    "Components=2,Del3\r\nScope=ALLUSERS\r\n"));
    EXPECT_THAT(BytesOf("L:\\svar.inf"), Not(HasSubstr("User")));
    EXPECT_THAT(BytesOf("L:\\svar.inf"), Not(HasSubstr("CompDir")));
    Switches switches = ReadSwitches("/LOADINF=L:\\svar.inf /GROUP=Annan");
    LoadAnswers(files, switches);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
    EXPECT_EQ(switches.destination, "C:\\Egen mapp");
    EXPECT_EQ(switches.programGroup, "Annan");
    EXPECT_EQ(switches.components, "2,Del3");
    EXPECT_EQ(switches.scope, InstallScope::AllUsers);
}

// A name that the user has not chosen is taken from the next machine.
TEST_F(AnswerFileTest, SavesNoNamesThatTheMachineHasGiven)
{
    project.DialogBoxData.GetNameCompanyFromRegistry = kOn;
    project.Lists.INIFiles = "-- prov.ini --\r\n[Del]\r\nNamn=%USERNAME\r\nFirma=%USERCOMPANY\r\n";
    memory.machine.owner = {"Ulla", "Ullas firma"};
    ASSERT_EQ(Install("/S /SAVEINF=L:\\svar.inf"), ExitCode::Done) << Log();
    memory.machine.owner = {"Olle", "Olles firma"};
    ASSERT_EQ(Install("/S /LOADINF=L:\\svar.inf"), ExitCode::Done) << Log();
    EXPECT_EQ(BytesOf("C:\\WINDOWS\\prov.ini"), "[Del]\r\nNamn=Olle\r\nFirma=Olles firma\r\n");
    // A file that gives one of them leaves the others as they are.
    memory.files.Put("L:\\svar.inf", "[Setup]\r\nUserName=\r\n");
    ASSERT_EQ(Install("/S /LOADINF=L:\\svar.inf"), ExitCode::Done) << Log();
    EXPECT_EQ(BytesOf("C:\\WINDOWS\\prov.ini"), "[Del]\r\nNamn=\r\nFirma=Olles firma\r\n");
}

TEST_F(AnswerFileTest, SavesWhatWasChosenOnThePages)
{
    project.DialogBoxes.WelcomeDlg = project.DialogBoxes.DestinationDlg = 0;
    project.DialogBoxes.InstallCompletedDlg = 0;
    project.DialogBoxes.NameCompanyDlg = 1;
    project.DialogBoxData.GetNameCompanyFromRegistry = kOn;
    memory.machine.owner = {"Ulla", "Ullas firma"};
    package.setup.UseComponents = kOn;
    auto& component = project.FileComponents[0];
    component = {.Comp = 1, .CompName = "Ett", .CompDir = "Ett", .CompDefault = 1};
    component.CompCanChangeDir = 1;
    package.rows[0].component = "1";
    package.rows[0].destination = "%COMPDIR1";
    project.Lists.INIFiles = "-- prov.ini --\r\n[Del]\r\nNamn=%USERNAME\r\nFirma=%USERCOMPANY\r\n";
    ScriptedPages shown(
        {{PageKind::NameCompany, PageAction::Next, Typing(PageField::UserName, "Åke")},
         {PageKind::Components, PageAction::Next, Typing(PageField::Folder, "C:\\Eget\\Ett")}});
    pages = &shown;
    ASSERT_EQ(Install("/SAVEINF=L:\\svar.inf"), ExitCode::Done) << Log();
    pages = nullptr;
    EXPECT_THAT(BytesOf("L:\\svar.inf"), HasSubstr("\r\nCompDir1=C:\\Eget\\Ett\r\n"));
    const MachineState installed = State();
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    memory.machine.owner = {"Olle", "Olles firma"};
    ASSERT_EQ(Install("/S /LOADINF=L:\\svar.inf /SAVEINF=L:\\igen.inf"), ExitCode::Done) << Log();
    EXPECT_EQ(BytesOf("C:\\Eget\\Ett\\prog.exe"), "program");
    EXPECT_EQ(BytesOf("C:\\WINDOWS\\prov.ini"), "[Del]\r\nNamn=\xC5ke\r\nFirma=Ullas firma\r\n");
    EXPECT_EQ(State(), installed);
    EXPECT_EQ(BytesOf("L:\\igen.inf"), BytesOf("L:\\svar.inf"));
    // A folder that the project does not leave to its user stays the project's.
    component.CompCanChangeDir = 0;
    ASSERT_EQ(Install("/S /LOADINF=L:\\svar.inf"), ExitCode::Done) << Log();
    EXPECT_TRUE(files.FileExists(kMain + "\\Ett\\prog.exe"));
}

TEST_F(AnswerFileTest, TakesTheNamesOfTheRegistrationPageFromAFile)
{
    memory.files.Put("L:\\svar.inf", "[Annat]\r\nDir=fel\r\n[setup]\r\nUSERNAME = \xC5ke\r\n"
                                     "Okänd=1\r\n");
    project.Lists.INIFiles = "-- prov.ini --\r\n[Del]\r\nNamn=%USERNAME\r\n";
    ASSERT_EQ(Install("/S /LOADINF=L:\\svar.inf"), ExitCode::Done) << Log();
    EXPECT_THAT(BytesOf("C:\\WINDOWS\\prov.ini"), HasSubstr("Namn=\xC5ke"));
}

TEST_F(AnswerFileTest, RefusesAFileOfAnswersThatIsNone)
{
    EXPECT_EQ(RunInVain("/S /LOADINF=L:\\borta.inf"), ExitCode::BadSwitch);
    EXPECT_THAT(Log(), HasSubstr("Växeln '/LOADINF=L:\\borta.inf' är okänd"));
    memory.files.Put("L:\\svar.inf", "[Setup]\r\nDir=fel\r\n");
    EXPECT_EQ(RunInVain("/S /LOADINF=L:\\svar.inf"), ExitCode::BadSwitch);
    EXPECT_THAT(Log(), HasSubstr("Växeln '/LOADINF=L:\\svar.inf (Dir)' är okänd"));
    for (const Text answer : {"Dir=C:\\con\\x", "CompDir2=Ett", "CompDir2=C:\\a|b"}) {
        memory.files.Put("L:\\svar.inf", "[Setup]\r\n" + answer + "\r\n");
        EXPECT_EQ(RunInVain("/S /LOADINF=L:\\svar.inf"), ExitCode::BadSwitch) << answer;
    }
}

} // namespace quillon
