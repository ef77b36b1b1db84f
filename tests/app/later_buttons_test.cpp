// Buttons of the main window that open a window which is still to come. A button leaves this list
// when its window is there; none may join it.
#include "app/MainForm.h"

#include "support/window_test.h"

#include <set>

namespace quillon::test {
namespace {

const std::set<std::string> kLaterButtons = {"cmdAddINIvalue", "cmdAddRegistryKey",
                                             "cmdDeleteRegistryKey", "cmdUninstallRegistryKey"};

TEST_F(WindowTest, DisablesTheButtonsWhoseWindowsComeLaterAndNoOthers)
{
    for (section::FileComponent& component : session.project.FileComponents)
        component.Comp = 1;
    MainForm form(session);
    std::set<std::string> disabled;
    for (const QPushButton* button : form.findChildren<QPushButton*>())
        if (!button->isEnabled())
            disabled.insert(button->objectName().toStdString());
    EXPECT_EQ(disabled, kLaterButtons);
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
