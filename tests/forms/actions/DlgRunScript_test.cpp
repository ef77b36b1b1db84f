#include "actions/forms/DlgRunScript.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgRunScriptTest : public WindowTest {
protected:
    section::Lists& lists = session.project.Lists;
};

TEST_F(DlgRunScriptTest, ShowsTheScriptsOnTwoTabs)
{
    lists.RunScriptBefore = "a\r\n\tb \r\n";
    lists.RunScriptAfter = "c";
    DlgRunScript form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Kör skript");
    EXPECT_EQ(form.ScriptTab->count(), 2);
    EXPECT_EQ(form.ScriptTab->currentIndex(), 0);
    EXPECT_EQ(form.tRunScriptBefore->toPlainText(), "a\n\tb \n");
    EXPECT_EQ(form.tRunScriptAfter->toPlainText(), "c");
    EXPECT_TRUE(form.tRunScriptBefore->hasFocus());
    EXPECT_FALSE(form.tRunScriptAfter->isVisible());
    form.ScriptTab->setCurrentIndex(1);
    EXPECT_TRUE(form.tRunScriptAfter->isVisible());
}

TEST_F(DlgRunScriptTest, StoresTheScriptsAsTyped)
{
    DlgRunScript form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tRunScriptBefore, "@ingen kontroll:  ");
    QTest::keyClick(form.tRunScriptBefore, Qt::Key_Return);
    TypeKeys(*form.tRunScriptBefore, "%destdir");
    SavePicture(form, "DlgRunScript");
    SaveDarkPicture(form, "DlgRunScript");
    form.ScriptTab->setCurrentIndex(1);
    TypeKeys(*form.tRunScriptAfter, "åäö");
    EXPECT_EQ(lists.RunScriptBefore, "");
    Click(form, "cmdOK");
    EXPECT_EQ(lists.RunScriptBefore, "@ingen kontroll:  \r\n%destdir");
    EXPECT_EQ(lists.RunScriptAfter, "åäö");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgRunScriptTest, ChangesNothingOnCancel)
{
    lists.RunScriptBefore = "a";
    DlgRunScript form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tRunScriptBefore, "x");
    form.ScriptTab->setCurrentIndex(1);
    TypeKeys(*form.tRunScriptAfter, "y");
    Click(form, "cmdCancel");
    EXPECT_EQ(lists.RunScriptBefore, "a");
    EXPECT_EQ(lists.RunScriptAfter, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgRunScriptTest, TellsALineThatTheProjectFileWouldNotGiveBack)
{
    DlgRunScript form(session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.sRunScriptBeforeWarning->isVisible());
    TypeKeys(*form.tRunScriptBefore, "[Configuration]");
    EXPECT_TRUE(form.sRunScriptBeforeWarning->isVisible());
    EXPECT_TRUE(form.sRunScriptBeforeWarning->text().startsWith("Raden '[Configuration]' kan ej"));
    QApplication::processEvents();
    SavePicture(form, "DlgRunScript-varning");
    TypeKeys(*form.tRunScriptBefore, "x"); // what follows a header does not count
    EXPECT_TRUE(form.sRunScriptBeforeWarning->isVisible());
    form.tRunScriptBefore->moveCursor(QTextCursor::Start);
    TypeKeys(*form.tRunScriptBefore, "x");
    EXPECT_FALSE(form.sRunScriptBeforeWarning->isVisible());
    form.ScriptTab->setCurrentIndex(1);
    TypeKeys(*form.tRunScriptAfter, "....");
    EXPECT_TRUE(form.sRunScriptAfterWarning->isVisible());
    Click(form, "cmdOK");
    EXPECT_EQ(lists.RunScriptAfter, "....") << "it is told, not refused";
}

TEST_F(DlgRunScriptTest, TellsOfSuchALineFromTheStart)
{
    lists.RunScriptBefore = "[Registry]";
    DlgRunScript form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.sRunScriptBeforeWarning->isVisible());
    EXPECT_EQ(form.sRunScriptBeforeWarning->window(), &form);
}

TEST_F(DlgRunScriptTest, OpensTheHelp)
{
    machine.files.Put("C:\\Quillon\\QN.HLP", "x");
    DlgRunScript form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdHelp");
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started.front().first, "C:\\Quillon\\QN.HLP");
    EXPECT_TRUE(form.isVisible());
}

} // namespace
} // namespace quillon::test
