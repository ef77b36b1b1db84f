// What holds for the buttons of all pages of the main window.
#include "app/MainForm.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

TEST_F(WindowTest, HasSomethingToDoForEachButton)
{
    for (section::FileComponent& component : session.project.FileComponents)
        component.Comp = 1;
    MainForm form(session);
    const auto buttons = form.findChildren<QPushButton*>();
    EXPECT_FALSE(buttons.isEmpty());
    for (const QPushButton* button : buttons)
        EXPECT_TRUE(button->isEnabled()) << button->objectName().toStdString();
}

TEST_F(WindowTest, MarksNoNewProjectChanged)
{
    MainForm form(session);
    ShowActive(form);
    for (int tab = 0; tab < kTabCount; ++tab)
        form.SelectTab(static_cast<Tab>(tab));
    form.ShowProject();
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
