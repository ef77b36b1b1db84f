// The program that a package for download starts before anything else.
#include "runtime/install/first_program.h"

#include "runtime/support/setup_fixture.h"
#include "runtime/texts/failure_reason.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kCopy = "W:\\Arbete\\QNFIRST.EXE";

class FirstProgramTest : public SetupFixture {
protected:
    FirstProgramTest()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        memory.files.Put("D:\\Paket\\licens.exe", "licence test");
        program.ProgramFilename = "licens.exe";
        program.VisibleWin = kOff;
        program.DD_iHKEYIndex = "1";
        program.DD_sSubKey = "Software\\Firma";
        program.DD_sValueName = "Mapp";
        target.MakeKey(kKey);
    }
    void PutFolder(const Text& folder) { target.WriteValue(kKey, "Mapp", TextData(folder)); }
    void EndWith(int code) { target.programCodes[kCopy] = code; }

    const RegistryKey kKey{RegistryRoot::CurrentUser, "Software\\Firma"};
    section::RunAppSelfX& program = project.RunAppSelfX;
};

TEST_F(FirstProgramTest, RunsFromThePrivateFolderBeforeTheFilesAreCopied)
{
    program.Param = " /x \"%PROJECTNAME\" ";
    target.onProgram = [&](const ProgramRun& run) {
        EXPECT_EQ(memory.files.Get(run.program), "licence test");
        EXPECT_FALSE(memory.files.DirExists("C:\\Program\\Exempel"));
    };
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_THAT(target.programsRun, ElementsAre(Text(kCopy) + " /x \"Exempel\" (hidden)"));
    EXPECT_FALSE(memory.files.FileExists(kCopy));
    EXPECT_THAT(Log(), HasSubstr("licens.exe slutade med kod 0"));
}

TEST_F(FirstProgramTest, ShowsItselfUnlessNothingIsShown)
{
    program.VisibleWin = kOn;
    ScriptedAsk user;
    ask = &user;
    EXPECT_EQ(Install(""), ExitCode::Done);
    EXPECT_THAT(target.programsRun, ElementsAre(kCopy));
    target.programsRun.clear();
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_THAT(target.programsRun, IsEmpty());
    EXPECT_THAT(Log(), HasSubstr("programmet före installationen: startas inte när ingenting"));
}

TEST_F(FirstProgramTest, EndsTheSetupByItsValue)
{
    const MachineState before = State();
    program.ReturnValueExit = "7";
    EndWith(7);
    EXPECT_EQ(Install(), ExitCode::Cancelled);
    EXPECT_EQ(State(), before);
    EndWith(8);
    EXPECT_EQ(Install(), ExitCode::Done);
    // 0 is no value as long as the project names none.
    program.ReturnValueExit = "";
    EndWith(0);
    EXPECT_EQ(Install(), ExitCode::Done);
    program.ReturnValueExit = "-1";
    EndWith(-1);
    EXPECT_EQ(Install(), ExitCode::Cancelled);
}

TEST_F(FirstProgramTest, BeginsAgainOrEndsWhereItGoesBack)
{
    program.ReturnValueBack = "2";
    EndWith(2);
    ScriptedAsk user(
        {{BoxKind::YesNo, "Installation av Exempel", "Vill du avbryta installationen?", Answer::No},
         {BoxKind::YesNo, "Installation av Exempel", "Vill du avbryta installationen?",
          Answer::Yes}});
    ask = &user;
    EXPECT_EQ(Install(""), ExitCode::Cancelled);
    EXPECT_EQ(target.programsRun.size(), 2U);
    // The second time it lets the setup go on.
    ScriptedAsk again({{BoxKind::YesNo, "Installation av Exempel",
                        "Vill du avbryta installationen?", Answer::No}});
    ask = &again;
    target.onProgram = [&](const ProgramRun&) { EndWith(target.programsRun.size() < 4 ? 2 : 0); };
    EXPECT_EQ(Install(""), ExitCode::Done);
    // Without a user to ask it would go on for ever.
    ask = nullptr;
    target.onProgram = [](const ProgramRun&) {};
    EndWith(2);
    EXPECT_EQ(Install("/S"), ExitCode::Cancelled);
    ScriptedAsk nobody;
    ask = &nobody;
    EXPECT_EQ(Install("/SUPPRESSMSGBOXES"), ExitCode::Cancelled);
}

TEST_F(FirstProgramTest, GivesTheMainFolderFromTheRegistry)
{
    program.ReturnValueDD = "3";
    EndWith(3);
    PutFolder("E:\\Egen mapp\\");
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\Egen mapp\\prog.exe"), "program");
    EXPECT_THAT(Log(), HasSubstr("Ny mapp för installationen: E:\\Egen mapp"));
    // A folder on the command line has precedence.
    EXPECT_EQ(Install("/S /D=E:\\Annan"), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("E:\\Annan\\prog.exe"), "program");
    // Another value changes nothing.
    EndWith(4);
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("C:\\Program\\Exempel\\prog.exe"), "program");
}

TEST_F(FirstProgramTest, KeepsTheFolderWhereTheValueIsNone)
{
    program.ReturnValueDD = "3";
    EndWith(3);
    for (const Text folder : {"", "Egen mapp", "E:\\..\\x", "E:\\a:b"}) {
        PutFolder(folder);
        EXPECT_EQ(Install(), ExitCode::Done) << folder;
        EXPECT_THAT(Log(),
                    HasSubstr("den nya mappen för installationen: '" + folder + "' är ingen"))
            << folder;
    }
    program.DD_iHKEYIndex = "6";
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("C:\\Program\\Exempel\\prog.exe"), "program");
}

TEST_F(FirstProgramTest, IsTheOneThatThePackageLists)
{
    package.manifest.state = PackageManifest::State::Whole;
    Sha256 hash;
    hash.Add(std::as_bytes(std::span(std::string_view("licence test"))));
    SilentAsk nobody;
    ActionLog log;
    const SetupVariables variables;
    const FirstProgramInput input{host,          target,        nobody,    log,
                                  package.texts, package.setup, variables, package.manifest,
                                  "D:\\Paket",   "W:\\Arbete",  true};
    EXPECT_THROW(RunFirstProgram(input), SetupFailure);
    package.manifest.lines = {{"Licens.exe", hash.Finish()}};
    EXPECT_EQ(RunFirstProgram(input), std::nullopt);
    EXPECT_EQ(target.programsRun.size(), 1U);
    // Exchanged since the package was tested.
    memory.files.Put("D:\\Paket\\licens.exe", "another one");
    EXPECT_THROW(RunFirstProgram(input), SetupFailure);
    EXPECT_EQ(target.programsRun.size(), 1U);
}

TEST_F(FirstProgramTest, MustBeThereAndCalledAsAFileCanBe)
{
    for (const char* name : {"saknas.exe", "..\\licens.exe", "con"}) {
        program.ProgramFilename = name;
        EXPECT_EQ(Install(), ExitCode::DamagedPackage) << name;
        EXPECT_THAT(Log(), HasSubstr("Ingenting har installerats")) << name;
    }
    EXPECT_THAT(target.programsRun, IsEmpty());
}

} // namespace
} // namespace quillon::test
