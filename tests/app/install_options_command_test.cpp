// The options of the setup, from the menu of the window to the project.
#include "app/MainForm.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class InstallOptionsCommand : public WindowTest {
protected:
    MainForm form{session};
};

TEST_F(InstallOptionsCommand, EditsTheOptionsOfTheProject)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "DlgInstallOptions");
        Click(dialog, "cCreateAutorunFile");
        Click(dialog, "cmdCancel");
    });
    form.RunCommand(CommandId::InstallOptions);
    EXPECT_EQ(session.project.InstallOptions.CreateAutorunFile, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "cCreateAutorunFile");
        Click(dialog, "cmdOK");
    });
    form.RunCommand(CommandId::InstallOptions);
    EXPECT_EQ(session.project.InstallOptions.CreateAutorunFile, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

} // namespace
} // namespace quillon::test
