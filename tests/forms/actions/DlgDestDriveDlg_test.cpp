#include "actions/forms/pages/DlgDestDriveDlg.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgDestDriveDlgTest : public WindowTest {
protected:
    section::DialogBoxData& data = session.project.DialogBoxData;
};

TEST_F(DlgDestDriveDlgTest, StoresItsTwoTicks)
{
    DlgDestDriveDlg form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Enhet");
    EXPECT_FALSE(form.cShowDiskSpaceDirectly->isChecked());
    EXPECT_TRUE(form.cShowDiskSpaceButton->isChecked());
    Click(form, "cShowDiskSpaceDirectly");
    Click(form, "cShowDiskSpaceButton");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(data.DestDriveShowSizeInfo, kOn);
    EXPECT_EQ(data.DestDriveShowSizeInfoButton, kOff);
    EXPECT_EQ(data.DestDirShowSizeInfo, kOff);
    EXPECT_EQ(data.DestDirShowSizeInfoButton, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgDestDriveDlgTest, ChangesNothingOnCancel)
{
    DlgDestDriveDlg form(session, nullptr);
    ShowActive(form);
    Click(form, "cShowDiskSpaceDirectly");
    Click(form, "cShowDiskSpaceButton");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.DestDriveShowSizeInfo, kOff);
    EXPECT_EQ(data.DestDriveShowSizeInfoButton, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgDestDriveDlgTest, LooksRight)
{
    DlgDestDriveDlg form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cShowDiskSpaceDirectly->hasFocus());
    SavePicture(form, "DlgDestDriveDlg");
    SaveDarkPicture(form, "DlgDestDriveDlg");
}

} // namespace
} // namespace quillon::test
