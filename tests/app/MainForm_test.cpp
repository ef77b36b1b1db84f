#include "app/MainForm.h"

#include "shell/command_table.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

using MainFormTest = WindowTest;

TEST_F(MainFormTest, NamesTheProjectInItsTitle)
{
    MainForm form(session);
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [noname]");
    session.state.ProjectFileName = "C:\\Projekt\\prov.qnp";
    form.ShowTitle();
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [prov.qnp]");
}

TEST_F(MainFormTest, SelectsEachTabByItsCommand)
{
    MainForm form(session);
    for (int tab = kTabCount - 1; tab >= 0; --tab) {
        form.RunCommand(147 + tab);
        EXPECT_EQ(static_cast<int>(form.SelectedTab()), tab);
    }
}

TEST_F(MainFormTest, ShowsTheKeysOfItsCommandsInTheMenus)
{
    MainForm form(session);
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry) {
            const auto& action =
                Find<QAction>(form, ("cmd" + std::to_string(row.command.id)).c_str());
            EXPECT_EQ(FromQt(action.shortcut().toString(QKeySequence::PortableText)),
                      row.command.keys)
                << row.command.id;
        }
}

TEST_F(MainFormTest, SelectsEachTabByItsKeys)
{
    MainForm form(session);
    ShowActive(form);
    for (int tab = kTabCount - 1; tab >= 0; --tab) {
        QTest::keyClick(&form, static_cast<Qt::Key>(Qt::Key_1 + tab), Qt::ControlModifier);
        EXPECT_EQ(static_cast<int>(form.SelectedTab()), tab);
    }
    session.Settings.HideTabs.HideTabRegistry = kOn;
    form.ShowSettings();
    QTest::keyClick(&form, Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(form.SelectedTab(), Tab::Files) << "a hidden tab can't be reached";
}

TEST_F(MainFormTest, ClosesAndSavesUnderANameByItsKeys)
{
    MainForm form(session);
    ShowActive(form);
    ask.choices = {{}};
    QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Spara projekt");
    QTest::keyClick(&form, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(MainFormTest, TellsOfUnsavedChangesInTheStatusBar)
{
    MainForm form(session);
    ShowActive(form);
    const auto& pane = Find<QLabel>(form, "MainStatusBarUnsaved");
    // The window looks when there is nothing else to do.
    const auto waitForUser = [] {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
        loop.exec();
    };
    waitForUser();
    EXPECT_EQ(pane.text(), "");
    Find<QLineEdit>(form, "tProjectName").setText("Nytt namn");
    waitForUser();
    EXPECT_EQ(pane.text(), "Osparade ändringar");
    EXPECT_TRUE(pane.isVisible());
    session.state.ProjectFileName = "C:\\p.qnp";
    form.RunCommand(103);
    waitForUser();
    EXPECT_EQ(pane.text(), "");
}

TEST_F(MainFormTest, ClosesByItsCommand)
{
    MainForm form(session);
    ShowActive(form);
    form.RunCommand(112);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace quillon::test
