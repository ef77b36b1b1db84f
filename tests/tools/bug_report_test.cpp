#include "tools/bug_report.h"

#include "platform/run_error.h"
#include "support/golden.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"
#include "tools/diagnosis_program.h"

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::Pair;

constexpr const char* kOwn = "C:\\Quillon";
constexpr const char* kDiagnosis = "C:\\Quillon\\Diagnos\\Diagnos.txt";
constexpr const char* kReport = "C:\\Quillon\\BugReport\\BugReport.txt";

class BugReportTest : public testing::Test {
protected:
    BugReportTest()
    {
        machine.files.Put(kDiagnosis, "1\r\n2\r\n3\r\n4\r\n5\r\nWindows XP\r\n7\r\nPentium, 512 MB"
                                      "\r\nM\xF6ss\r\n");
        answers.answers.fill(kNoAnswer);
        answers.answers[0] = "Vid installation";
        answers.answers[7] = "Fel #53";
        answers.systems = {false, true, false, false, false, true};
        answers.description = "Det går sönder.\r\nIgen.";
        state.ProjectFileName = "C:\\Projekt\\Hej.qnp";
        state.ProjectIsDirty = kOn;
        project.ProjectName.ProjectName = "Hej";
    }

    void Write() { WriteBugReport(answers, project, state, machine.host, ask, kOwn); }
    int Failure()
    {
        try {
            Write();
            return 0;
        } catch (const RunError& error) {
            return error.Number();
        }
    }

    MemoryHost machine;
    ScriptedAsk ask;
    Project project;
    OpenProjectState state;
    BugReportAnswers answers;
};

TEST_F(BugReportTest, IsWrittenInUtf8WhereANameHasOtherLetters)
{
    state.ProjectFileName = "C:\\Projekt\\日本.qnp";
    Write();
    const std::string bytes = machine.files.Get(kReport);
    EXPECT_TRUE(bytes.starts_with("\xEF\xBB\xBF"
                                  "-----"));
    EXPECT_THAT(bytes, HasSubstr("Bifogad projetfil:   日本.qnp\r\n"));
    EXPECT_THAT(bytes, HasSubstr("Det går sönder."));
    EXPECT_TRUE(machine.files.FileExists("C:\\Quillon\\BugReport\\日本.qnp"));
}

TEST_F(BugReportTest, OffersTheAnswersOfItsQuestionsWordForWord)
{
    const std::vector<std::vector<Text>> choices = {
        {"I utvecklingsmiljön", "Vid installation", "Efter en installation", "I annat sammanhang"},
        {"På denna dator", "På annan dator", "Både och"},
        {"På endast en dator", "På vissa datorer", "På alla testade datorer"},
        {"Under initieringen", "Precis innan filkopieringen", "Under filkopieringen", "I slutfasen",
         "Efter installationen"},
        {"Diskett", "CD (komprimerat)", "CD (färdigt träd)", "Internet"},
        {"Alltid existerat", "Uppkommit med uppdatering", "Vet inte"},
        {"Ja", "Nej"},
        {},
        {"Med alla projekt", "Med vissa projekt", "Hittils bara med ett projekt"},
        {"Visual Basic", "Visual C++", "Visual Basic & Visual C++", "MS Access", "MS Excel",
         "MS Word", "Borland Delphi", "Borland C++", "Macromedia Director", "Annat programspråk",
         "Inget programspråk"},
        {"Ja - inga virus funna", "Ja - ett virus hittades", "Nej"}};
    ASSERT_EQ(choices.size(), kBugQuestionCount);
    for (std::size_t i = 0; i < kBugQuestionCount; ++i)
        EXPECT_EQ(
            std::vector<Text>(kBugQuestions[i].choices.begin(), kBugQuestions[i].choices.end()),
            choices[i])
            << kBugQuestions[i].caption;
}

TEST_F(BugReportTest, IsWrittenToTheByte)
{
    Write();
    EXPECT_TRUE(
        SameBytes(machine.files.Get(kReport), GoldenFile("tools/bug_report/BugReport.txt")));
}

TEST_F(BugReportTest, HasACopyOfTheProjectAsItIsInMemory)
{
    Write();
    EXPECT_THAT(machine.files.Get("C:\\Quillon\\BugReport\\Hej.qnp"),
                HasSubstr("ProjectName = Hej\r\n"));
    EXPECT_EQ(state.ProjectFileName, "C:\\Projekt\\Hej.qnp");
    EXPECT_EQ(state.ProjectIsDirty, kOn);
    EXPECT_FALSE(machine.files.FileExists("C:\\Projekt\\Hej.qnp"));
}

TEST_F(BugReportTest, HasNoCopyOfAProjectThatWasNeverSaved)
{
    state.ProjectFileName = kUnsavedProjectName;
    Write();
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("Bifogad projetfil:   noname\r\n"));
    EXPECT_FALSE(machine.files.FileExists("C:\\Quillon\\BugReport\\noname"));
}

TEST_F(BugReportTest, WritesOverNoProjectThatIsOpen)
{
    state.ProjectFileName = "C:\\Quillon\\bugreport\\Hej.qnp";
    machine.files.Put(state.ProjectFileName, "as the author saved it");
    Write();
    EXPECT_EQ(machine.files.Get(state.ProjectFileName), "as the author saved it");
    EXPECT_THAT(machine.files.Get("C:\\Quillon\\BugReport\\kopia-Hej.qnp"),
                HasSubstr("ProjectName = Hej\r\n"));
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("Bifogad projetfil:   kopia-Hej.qnp\r\n"));
}

TEST_F(BugReportTest, IsWrittenAgainOverTheOldOne)
{
    Write();
    answers.answers[0] = kNoAnswer;
    Write();
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("Svar:   ---.\r\n"));
    EXPECT_THAT(machine.files.Get(kReport), Not(HasSubstr("Vid installation.")));
}

TEST_F(BugReportTest, NeedsEightLinesOfDiagnosis)
{
    machine.files.Put(kDiagnosis, "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n");
    EXPECT_EQ(Failure(), 62);
    EXPECT_FALSE(machine.files.FileExists(kReport));
    machine.files.Put(kDiagnosis, "1\n2\n3\n4\n5\n6\n7\n8");
    EXPECT_EQ(Failure(), 0);
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("-\r\n6\r\n8\r\n-"));
}

TEST_F(BugReportTest, TellsWhatCanNotBeReadOrWritten)
{
    machine.files.RemoveFile(kDiagnosis);
    EXPECT_EQ(Failure(), 53);
    machine.files.Put(kDiagnosis, "1\n2\n3\n4\n5\n6\n7\n8");
    machine.files.FailFromWrite(1, 61);
    EXPECT_EQ(Failure(), 61);
}

TEST_F(BugReportTest, AsksForASystem)
{
    EXPECT_TRUE(HasSystems(answers, ask));
    answers.systems = {};
    ask.Expect({BoxKind::Inform, "Data saknas",
                "Du har inte anget vid vilka operativsystem felet inträffar vid! Felrapportguiden "
                "behöver dessa uppgifter!"});
    EXPECT_FALSE(HasSystems(answers, ask));
}

TEST_F(BugReportTest, AsksForTheDiagnosis)
{
    EXPECT_TRUE(HasDiagnosis(machine.files, kOwn, ask));
    machine.files.RemoveFile(kDiagnosis);
    ask.Expect({BoxKind::Inform, "Diagnosfil saknas",
                "Du måste köra ett diagnostest av datorn innan du kan gå vidare!"});
    EXPECT_FALSE(HasDiagnosis(machine.files, kOwn, ask));
}

TEST_F(BugReportTest, NamesEverySystem)
{
    answers.systems.fill(true);
    Write();
    EXPECT_THAT(machine.files.Get(kReport),
                HasSubstr("Svar:   'Win 95'  'Win 98'  'Win ME'  'Win NT'  'Win 2000'  'Win XP'  "
                          "\r\n\r\n"));
}

TEST_F(BugReportTest, StartsTheDiagnosisBesideTheTool)
{
    machine.files.Put("C:\\Quillon\\Diagnos\\Diagnos.exe", "MZ");
    StartDiagnosis(machine.host, kOwn, kOwn, "");
    machine.files.Put("C:\\Quillon\\Diagnos\\Diagnos", "ELF");
    StartDiagnosis(machine.host, kOwn, "D:\\Eget", " /Qt=6");
    EXPECT_THAT(machine.machine.started,
                ElementsAre(Pair("C:\\Quillon\\Diagnos\\Diagnos.exe", " /X"),
                            Pair("C:\\Quillon\\Diagnos\\Diagnos",
                                 " /X \"/To=D:\\Eget\\Diagnos\\Diagnos.txt\" /Qt=6")));
}

} // namespace
} // namespace quillon::test
