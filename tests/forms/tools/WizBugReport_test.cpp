#include "tools/forms/WizBugReport.h"

#include "helpers/product.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

constexpr const char* kDiagnosis = "C:\\Quillon\\Diagnos\\Diagnos.txt";
constexpr const char* kReport = "C:\\Quillon\\BugReport\\BugReport.txt";

class WizBugReportTest : public WindowTest {
protected:
    void PutDiagnosis() { machine.files.Put(kDiagnosis, "1\n2\n3\n4\n5\n6\n7\n8\n"); }
    WizBugReportPage& Page(int number) { return *pages.at(static_cast<std::size_t>(number) - 1); }
    void Show(int number) { ShowActive(Page(number)); }

    BugReportWizard wizard{session};
    std::vector<std::unique_ptr<WizBugReportPage>> pages = MakeBugReportPages(wizard, nullptr);
};

TEST_F(WizBugReportTest, HasEightPagesWithTheirTitles)
{
    std::vector<Text> titles;
    for (const auto& page : pages)
        titles.push_back(FromQt(page->windowTitle()));
    EXPECT_THAT(titles,
                ElementsAre("Quillon 2004 - Felrapportguide", "Felrapportguide (steg 2)",
                            "Felrapportguide (steg 3)", "Felrapportguide (steg 4)",
                            "Felrapportguide (steg 5)", "Felrapportguide (steg 6)",
                            "Felrapportguide (skapa felrapport)", "Felrapportguide (färdig)"));
}

TEST_F(WizBugReportTest, AsksEveryQuestionWithNoAnswerChosen)
{
    for (const BugQuestion& question : kBugQuestions) {
        WizBugReportPage& page = Page(question.page);
        if (question.choices.empty()) {
            EXPECT_EQ(Find<QLabel>(page, "Label_ErrorMsg").text(),
                      QString::fromUtf8(question.caption));
            EXPECT_EQ(Find<QPlainTextEdit>(page, question.control).toPlainText(), "");
            continue;
        }
        const auto& choice = Find<QComboBox>(page, question.control);
        EXPECT_EQ(choice.currentText(), "---");
        EXPECT_EQ(choice.count(), static_cast<int>(question.choices.size()) + 1);
        const std::string label = "Q" + Text(1, Text(question.control).back());
        EXPECT_EQ(Find<QLabel>(page, label.c_str()).text(), QString::fromUtf8(question.caption));
    }
}

TEST_F(WizBugReportTest, LeavesPageTwoWithASystemOnly)
{
    Show(2);
    ask.Expect({BoxKind::Inform, "Data saknas"});
    Click(Page(2), "cmdNext");
    EXPECT_TRUE(Page(2).isVisible());
    EXPECT_FALSE(wizard.WizNext);
    Click(Page(2), "cWinME");
    Click(Page(2), "cmdNext");
    EXPECT_FALSE(Page(2).isVisible());
    EXPECT_TRUE(wizard.WizNext);
    EXPECT_THAT(wizard.answers.systems, ElementsAre(false, false, true, false, false, false));
}

TEST(WizBugReportAfterAFault, BeginsTheDescriptionWithItsNoteUntilAReportIsWritten)
{
    MemoryHost machine;
    ScriptedAsk ask({{BoxKind::Inform, "Felrapport skapad"}});
    Session session = NewSession(machine.host, ask, "C:\\Quillon");
    machine.files.Put(kDiagnosis, "1\n2\n3\n4\n5\n6\n7\n8\n");
    machine.files.Put("C:\\Quillon\\Recovery\\Fault.txt",
                      "Programversion: 6.5.6\nSignal: SIGSEGV\nquillon(main+0x12)\n");
    BugReportWizard wizard{session};
    const auto pages = MakeBugReportPages(wizard, nullptr);
    ShowActive(*pages[4]);
    EXPECT_EQ(Find<QPlainTextEdit>(*pages[4], "tBugDescription").toPlainText(),
              "Programversion: 6.5.6\nSignal: SIGSEGV\nquillon(main+0x12)\n");
    Click(*pages[4], "cmdNext");
    ShowActive(*pages[6]);
    Click(*pages[6], "cmdCreateReport");
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("Signal: SIGSEGV\r\nquillon(main+0x12)\r\n"));
    EXPECT_FALSE(machine.files.FileExists("C:\\Quillon\\Recovery\\Fault.txt"));
}

TEST_F(WizBugReportTest, GoesBackFromItsLastPageToo)
{
    Show(8);
    EXPECT_FALSE(Page(8).cmdNext->isVisible());
    Click(Page(8), "cmdPrev");
    EXPECT_TRUE(wizard.WizBack);
    EXPECT_FALSE(Page(8).isVisible());
}

TEST_F(WizBugReportTest, ClearsItsFlagsWhenAPageIsShown)
{
    Show(3);
    Click(Page(3), "cmdPrev");
    EXPECT_TRUE(wizard.WizBack);
    Show(2);
    EXPECT_FALSE(wizard.WizBack);
    Click(Page(2), "cmdClose");
    EXPECT_FALSE(wizard.WizNext);
    EXPECT_FALSE(wizard.WizBack);
}

TEST_F(WizBugReportTest, KeepsAnswersOnTheWayBackAndForth)
{
    Show(4);
    Find<QComboBox>(Page(4), "ComboWizBug2").setCurrentIndex(3);
    Click(Page(4), "cmdPrev");
    Show(4);
    EXPECT_EQ(Find<QComboBox>(Page(4), "ComboWizBug2").currentText(), "Visual Basic & Visual C++");
    Click(Page(4), "cmdNext");
    EXPECT_EQ(wizard.answers.answers[9], "Visual Basic & Visual C++");
}

TEST_F(WizBugReportTest, RunsTheDiagnosisBeforeItGoesOn)
{
    Show(6);
    auto& info = Find<QLabel>(Page(6), "LabelInfo");
    EXPECT_EQ(info.text(), "Nu behöver felrapportguiden utföra en analys av din dator. Detta sker "
                           "genom att köra programmet 'Tavrell Diagnos Verktyg'. Tryck på knappen "
                           "'Utför diagnos' nedan för att påbörja analysen.");
    ask.Expect({BoxKind::Inform, "Diagnosfil saknas"});
    Click(Page(6), "cmdNext");
    EXPECT_TRUE(Page(6).isVisible());
    Click(Page(6), "cmdRunDiagnos");
    EXPECT_EQ(info.text(), "Trycp på knappen 'Nästa' för att gå vidare.");
    EXPECT_THAT(machine.machine.started,
                ElementsAre(Pair("C:\\Quillon\\Diagnos\\Diagnos.exe", HasSubstr("/X"))));
    PutDiagnosis();
    Click(Page(6), "cmdNext");
    EXPECT_TRUE(wizard.WizNext);
}

TEST_F(WizBugReportTest, TellsWhereThereIsNoDiagnosisProgram)
{
    machine.machine.startFailure = 53;
    Show(6);
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(Page(6), "cmdRunDiagnos");
    EXPECT_TRUE(Find<QLabel>(Page(6), "LabelInfo").text().startsWith("Nu behöver"));
}

TEST_F(WizBugReportTest, ShowsTheReportBeforeItIsWritten)
{
    PutDiagnosis();
    wizard.answers.description = "Allt stannar.";
    Show(7);
    EXPECT_THAT(FromQt(Find<QPlainTextEdit>(Page(7), "tReport").toPlainText()),
                HasSubstr("Allt stannar."));
    EXPECT_FALSE(machine.files.FileExists(kReport));
    EXPECT_FALSE(Page(7).cmdNext->isEnabled());
    ask.Expect({BoxKind::Inform, "Felrapport skapad",
                "En felrapportfil har nu skapats! Tryck på knappen 'OK' för att gå vidare."});
    Click(Page(7), "cmdCreateReport");
    EXPECT_TRUE(wizard.WizNext);
    EXPECT_FALSE(Page(7).isVisible());
    EXPECT_TRUE(machine.files.FileExists(kReport));
    Show(7);
    EXPECT_TRUE(Page(7).cmdNext->isEnabled());
}

TEST_F(WizBugReportTest, WritesTheReportAgainOverTheOldOne)
{
    PutDiagnosis();
    const test::ExpectedBox created{BoxKind::Inform, "Felrapport skapad"};
    wizard.answers.systems[5] = true;
    Show(5);
    Find<QPlainTextEdit>(Page(5), "tBugDescription").setPlainText("Allt stannar.");
    Click(Page(5), "cmdNext");
    Show(7);
    ask.Expect(created);
    Click(Page(7), "cmdCreateReport");
    Show(8);
    Click(Page(8), "cmdPrev");
    Show(7);
    Click(Page(7), "cmdPrev");
    Show(5);
    EXPECT_EQ(Find<QPlainTextEdit>(Page(5), "tBugDescription").toPlainText(), "Allt stannar.");
    Find<QPlainTextEdit>(Page(5), "tBugDescription").setPlainText("Det stannar igen.");
    Click(Page(5), "cmdNext");
    Show(7);
    ask.Expect(created);
    Click(Page(7), "cmdCreateReport");
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("Det stannar igen."));
    EXPECT_THAT(machine.files.Get(kReport), testing::Not(HasSubstr("Allt stannar.")));
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("'Win XP'"));
}

TEST_F(WizBugReportTest, TellsWhyTheReportCanNotBeWritten)
{
    machine.files.Put(kDiagnosis, "1\n2\n");
    Show(7);
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(Page(7), "cmdCreateReport");
    EXPECT_FALSE(Page(7).cmdNext->isEnabled());
    EXPECT_TRUE(Page(7).isVisible());
}

TEST_F(WizBugReportTest, LeadsToTheFolderAndTheMailProgram)
{
    Show(8);
    auto& folder = Find<QLabel>(Page(8), "LabelBugReportFolder");
    EXPECT_THAT(FromQt(folder.text()), HasSubstr("BugReport"));
    emit folder.linkActivated("#");
    auto& mail = Find<QLabel>(Page(8), "LabelMailSupport");
    EXPECT_THAT(FromQt(mail.text()), HasSubstr(kSupportAddress));
    emit mail.linkActivated("#");
    Click(Page(8), "cmdStartEmailApp");
    EXPECT_THAT(machine.machine.started, ElementsAre(Pair("C:\\Quillon\\BugReport", testing::_),
                                                     Pair("C:\\Quillon\\support.url", testing::_),
                                                     Pair("C:\\Quillon\\support.url", testing::_)));
}

TEST_F(WizBugReportTest, LeadsToTheUpdates)
{
    Show(1);
    emit Find<QLabel>(Page(1), "LabelDomainNameUpdates").linkActivated("#");
    EXPECT_THAT(machine.machine.started, ElementsAre(Pair(kUpdatesAddress, testing::_)));
}

TEST_F(WizBugReportTest, GoesThroughAllPagesToTheReport)
{
    PutDiagnosis();
    int shown = 0;
    // Each page opens the next one only when it has closed.
    std::function<void(QDialog&)> step = [&](QDialog& page) {
        ++shown;
        const QString name = page.objectName();
        if (name == "WizBugReport_2")
            Click(page, "cWinXP");
        if (name == "WizBugReport_5")
            Find<QPlainTextEdit>(page, "tBugDescription").setPlainText("Fel");
        if (name != "WizBugReport_8")
            OnNextDialog(step);
        Click(page, name == "WizBugReport_7"   ? "cmdCreateReport"
                    : name == "WizBugReport_8" ? "cmdClose"
                                               : "cmdNext");
    };
    ask.Expect({BoxKind::Inform, "Felrapport skapad"});
    OnNextDialog(step);
    OpenBugReportWizard(session, nullptr);
    EXPECT_EQ(shown, 8);
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("Svar:   'Win XP'  \r\n"));
    EXPECT_THAT(machine.files.Get(kReport), HasSubstr("--------------------\r\nFel\r\n"));
}

TEST_F(WizBugReportTest, LooksRight)
{
    PutDiagnosis();
    for (int number = 1; number <= 8; ++number) {
        Show(number);
        SavePicture(Page(number), "WizBugReport_" + std::to_string(number));
        if (number == 3)
            SaveDarkPicture(Page(number), "WizBugReport_3");
        Page(number).hide();
    }
}

} // namespace
} // namespace quillon::test
