// Files that programs hold open, and the answers of a user, or of a setup without one.
#include "runtime/support/setup_fixture.h"

#include "runtime/files_in_use.h"

namespace quillon {
namespace {

using test::BoxKind;
using test::ScriptedAsk;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using test::kMain;
const Text kProgram = kMain + "\\prog.exe";
const Text kTitle = "Installation av Exempel";
const Text kPrograms = "De här programmen använder filer som ska ersättas eller tas bort:\r\n\r\n";
const Text kClose =
    "\r\nVill du att de stängs? Om du svarar Nej kan datorn behöva startas om efteråt.";

/// Programs by the file that each one holds.
class Programs : public FileUsers {
public:
    explicit Programs(std::set<Text>* held = nullptr) : held_(held) {}

    bool IsHeld(const Text& path) const override
    {
        ++questions;
        return running.count(path) > 0;
    }
    std::vector<Text> ProgramsHolding(const std::vector<Text>& files) override
    {
        std::vector<Text> names;
        for (const Text& file : files)
            if (knowsNames)
                names.push_back(running.at(file));
        return names;
    }
    bool CloseThem() override
    {
        ++closings;
        for (auto program = running.begin(); program != running.end();)
            if (stubborn.count(program->second) > 0)
                ++program;
            else
                program = End(program);
        return running.empty();
    }

    void Run(const Text& path, const Text& name)
    {
        running[path] = name;
        if (held_ != nullptr)
            held_->insert(path);
    }

    std::map<Text, Text> running;
    std::set<Text> stubborn;
    bool knowsNames = true;
    int closings = 0;
    mutable int questions = 0;

private:
    std::map<Text, Text>::iterator End(std::map<Text, Text>::iterator program)
    {
        if (held_ != nullptr)
            held_->erase(program->first);
        return running.erase(program);
    }

    std::set<Text>* held_;
};

class FilesInUse : public testing::Test {
protected:
    bool Free(std::deque<test::ExpectedBox> boxes = {}, const Text& line = "")
    {
        ScriptedAsk ask(std::move(boxes));
        const Switches switches = ReadSwitches(line);
        return FreeFiles({ask, log, texts, &programs, switches, kTitle}, {kProgram, "C:\\b.dll"});
    }

    const LanguageTexts texts;
    ActionLog log;
    Programs programs;
};

TEST_F(FilesInUse, AskNothingWhereNoneIsHeld)
{
    EXPECT_TRUE(Free());
    EXPECT_EQ(programs.questions, 2);
}

TEST_F(FilesInUse, NameTheProgramsAndCloseThem)
{
    programs.Run(kProgram, "Exempelprogram");
    programs.Run("C:\\b.dll", "Annat program");
    EXPECT_TRUE(Free({{BoxKind::YesNoCancel, kTitle,
                       kPrograms + "Exempelprogram\r\nAnnat program\r\n" + kClose, Answer::Yes}}));
    EXPECT_EQ(programs.closings, 1);
    EXPECT_THAT(programs.running, IsEmpty());
}

TEST_F(FilesInUse, NameWhoGoesOnRunningOnceMore)
{
    programs.Run(kProgram, "Exempelprogram");
    programs.Run("C:\\b.dll", "Envist program");
    programs.stubborn = {"Envist program"};
    EXPECT_TRUE(Free(
        {{BoxKind::YesNoCancel, kTitle, "", Answer::Yes},
         {BoxKind::YesNoCancel, kTitle, kPrograms + "Envist program\r\n" + kClose, Answer::No}}));
    EXPECT_EQ(programs.closings, 1);
}

TEST_F(FilesInUse, AreLeftWhereTheUserSaysNo)
{
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(Free({{BoxKind::YesNoCancel, kTitle, "", Answer::No}}));
    EXPECT_EQ(programs.closings, 0);
}

TEST_F(FilesInUse, EndTheRunWhereTheUserCancels)
{
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_FALSE(Free({{BoxKind::YesNoCancel, kTitle, "", Answer::Cancel}}));
}

// Before Windows Vista the programs are not known, and the user has to close them.
TEST_F(FilesInUse, AreNamedThemselvesWhereTheSystemKnowsNoPrograms)
{
    programs.knowsNames = false;
    programs.Run(kProgram, "Exempelprogram");
    const Text text = "De här filerna används av ett program:\r\n\r\n" + kProgram +
                      "\r\n\r\nStäng programmet och svara Ja. Om du svarar Nej kan datorn behöva "
                      "startas om efteråt.";
    EXPECT_TRUE(Free({{BoxKind::YesNoCancel, kTitle, text, Answer::Yes},
                      {BoxKind::YesNoCancel, kTitle, text, Answer::No}}));
    EXPECT_EQ(programs.closings, 0);
}

TEST_F(FilesInUse, FillNoBoxBeyondTheDisplay)
{
    std::vector<Text> paths;
    for (int i = 0; i < 40; ++i) {
        paths.push_back("C:\\" + NumberText(i) + ".dll");
        programs.Run(paths.back(), "Program " + NumberText(i));
    }
    Text names;
    for (int i = 0; i < 10; ++i)
        names += "Program " + NumberText(i) + "\r\n";
    ScriptedAsk ask(
        {{BoxKind::YesNoCancel, kTitle, kPrograms + names + "...\r\n" + kClose, Answer::No}});
    EXPECT_TRUE(FreeFiles({ask, log, texts, &programs, {}, kTitle}, paths));
}

TEST_F(FilesInUse, AreLeftUnderSilence)
{
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(Free({}, "/S"));
    EXPECT_TRUE(Free({}, "/passive"));
    EXPECT_TRUE(Free({}, "/SUPPRESSMSGBOXES"));
    EXPECT_EQ(programs.closings, 0);
}

TEST_F(FilesInUse, EndNothingWhereNobodyIsToCancel)
{
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(
        Free({{BoxKind::YesNo, kTitle, kPrograms + "Exempelprogram\r\n" + kClose, Answer::No}},
             "/NOCANCEL"));
    EXPECT_EQ(programs.closings, 0);
    EXPECT_TRUE(Free({{BoxKind::YesNo, kTitle, "", Answer::Yes}}, "/NOCANCEL"));
    EXPECT_EQ(programs.closings, 1);
}

TEST_F(FilesInUse, AreFreedWithoutAQuestionWhereTheLineSaysSo)
{
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(Free({}, "/S /CLOSEAPPLICATIONS"));
    EXPECT_EQ(programs.closings, 1);
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(Free({}, "-closeapplications"));
    EXPECT_EQ(programs.closings, 2);
    programs.stubborn = {"Exempelprogram"};
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(Free({}, "/S /CLOSEAPPLICATIONS"));
    EXPECT_EQ(programs.closings, 3) << "once, whatever comes of it";
}

TEST_F(FilesInUse, AreNotLookedForWhereTheLineSaysSo)
{
    programs.Run(kProgram, "Exempelprogram");
    EXPECT_TRUE(Free({}, "/NOCLOSEAPPLICATIONS"));
    EXPECT_EQ(programs.questions, 0);
    EXPECT_EQ(programs.closings, 0);
}

// The whole setup and uninstaller, with a program that holds the file until it is closed.
class SetupOfFilesInUse : public test::SetupFixture {
protected:
    SetupOfFilesInUse()
    {
        AddFile("prog.exe", "%DESTDIR", "version 1", "");
        users = &programs;
    }

    void InstallNewVersionWhileItRuns()
    {
        ASSERT_EQ(Install(), ExitCode::Done);
        sources[0].bytes = "version 2";
        programs.Run(kProgram, "Exempelprogram");
    }

    Programs programs{&files.inUse};
};

TEST_F(SetupOfFilesInUse, ReplacesTheFileOnceItsProgramIsClosed)
{
    InstallNewVersionWhileItRuns();
    EXPECT_EQ(Install("/S /CLOSEAPPLICATIONS"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kProgram), "version 2");
    EXPECT_THAT(Log(), HasSubstr("Filen " + kProgram + " används av ett program"));
    EXPECT_THAT(Log(), HasSubstr("Programmet Exempelprogram använder filer som ska ersättas eller "
                                 "tas bort"));
    EXPECT_THAT(Log(), HasSubstr("Stänger programmen"));
    EXPECT_THAT(Log(), Not(HasSubstr("Alla program kunde inte stängas")));
}

TEST_F(SetupOfFilesInUse, TellsOfAProgramThatRunsOn)
{
    InstallNewVersionWhileItRuns();
    programs.stubborn = {"Exempelprogram"};
    EXPECT_EQ(Install("/S /CLOSEAPPLICATIONS"), ExitCode::FileInUse) << Log();
    EXPECT_EQ(memory.files.Get(kProgram), "version 1");
    EXPECT_THAT(Log(), HasSubstr("Alla program kunde inte stängas"));
}

TEST_F(SetupOfFilesInUse, NamesTheFileThatItCannotReplace)
{
    const Text told = "Filen '" + kProgram +
                      "' används av ett program och kan inte skrivas. Stäng programmet, eller "
                      "starta om datorn, och kör installationen igen. Alla ändringar har ångrats.";
    InstallNewVersionWhileItRuns();
    const test::MachineState before = State();
    // The system knows of no program, so nothing is asked that could be answered.
    for (FileUsers* const known :
         {static_cast<FileUsers*>(nullptr), static_cast<FileUsers*>(&programs)}) {
        users = known;
        EXPECT_EQ(Install("/S"), ExitCode::FileInUse);
        EXPECT_THAT(Log(), HasSubstr("20003: " + told)) << Log();
        EXPECT_EQ(State(), before);
    }
    ScriptedAsk scripted(
        {{BoxKind::YesNoCancel, kTitle, "", Answer::No}, {BoxKind::Critical, kTitle, told}});
    ask = &scripted;
    EXPECT_EQ(Install(""), ExitCode::FileInUse);
    EXPECT_EQ(State(), before);
}

// Rights that are missing are no program that could be closed.
TEST_F(SetupOfFilesInUse, IsNotWhatAFileWithoutRightsIsTakenFor)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    const test::MachineState before = State();
    files.withoutRights.insert(kProgram);
    EXPECT_EQ(Install("/S"), ExitCode::Failed);
    EXPECT_THAT(Log(), HasSubstr("åtkomst nekas till '" + kProgram + "'"));
    EXPECT_EQ(State(), before);
    package.rows[0].copyOptions = "A";
    EXPECT_EQ(Install("/S"), ExitCode::RestartNeeded) << "the system may do at its next start";
}

TEST_F(SetupOfFilesInUse, IsTheSameForAScript)
{
    InstallNewVersionWhileItRuns();
    programs.running.clear();
    package.rows[0].copyOptions = "N";
    project.Lists.RunScriptBefore = "DELETE %DESTDIR\\prog.exe";
    const test::MachineState before = State();
    EXPECT_EQ(Install("/S"), ExitCode::FileInUse);
    EXPECT_THAT(Log(), HasSubstr("20003: Filen '" + kProgram + "' används av ett program"));
    EXPECT_EQ(State(), before);
}

TEST_F(SetupOfFilesInUse, LeavesTheFileToTheNextStartWhereItsRowSaysSo)
{
    package.rows[0].copyOptions = "A";
    InstallNewVersionWhileItRuns();
    EXPECT_EQ(Install("/S"), ExitCode::RestartNeeded) << Log();
    EXPECT_EQ(programs.closings, 0);
}

TEST_F(SetupOfFilesInUse, DoesNotAskForAFileThatIsNeverReplaced)
{
    package.rows[0].copyOptions = "N";
    InstallNewVersionWhileItRuns();
    EXPECT_EQ(Install("/S /CLOSEAPPLICATIONS"), ExitCode::Done) << Log();
    EXPECT_EQ(programs.closings, 0);
}

TEST_F(SetupOfFilesInUse, ChangesNothingWhereTheUserCancels)
{
    InstallNewVersionWhileItRuns();
    const test::MachineState before = State();
    ScriptedAsk scripted({{BoxKind::YesNoCancel, kTitle, kPrograms + "Exempelprogram\r\n" + kClose,
                           Answer::Cancel}});
    ask = &scripted;
    EXPECT_EQ(Install(""), ExitCode::Cancelled);
    EXPECT_EQ(State(), before);
}

} // namespace
} // namespace quillon
