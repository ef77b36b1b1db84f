#include "actions/forms/pages/DlgProgramGroup.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgProgramGroupTest : public WindowTest {
protected:
    section::ProgramGroup& group = session.project.ProgramGroup;
};

TEST_F(DlgProgramGroupTest, ShowsAndStoresTheGroup)
{
    group.ProgramGroup = "Firma";
    DlgProgramGroup form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Programgrupp / meny");
    EXPECT_EQ(TextIn(form, "tProgramGroupName"), "Firma");
    EXPECT_EQ(form.tProgramGroupName->maxLength(), 99);
    EXPECT_TRUE(form.oCurrentUser->isChecked());
    EXPECT_FALSE(form.oAllUsers->isChecked());
    Type(form, "tProgramGroupName", "Firma\\Räkna");
    Click(form, "oAllUsers");
    EXPECT_FALSE(form.oCurrentUser->isChecked());
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(group.ProgramGroup, "Firma\\Räkna");
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOff);
    EXPECT_EQ(group.ProgramGroup_AllUsers, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgProgramGroupTest, GivesAGroupWithoutANameThatOfTheProject)
{
    session.project.ProjectName.ProjectName = "Räkna";
    DlgProgramGroup form(session, nullptr);
    EXPECT_EQ(TextIn(form, "tProgramGroupName"), "Räkna");
    // Kept: the project has it from now on, whatever button the form is left with.
    EXPECT_EQ(group.ProgramGroup, "Räkna");
    ShowActive(form);
    Click(form, "cmdCancel");
    EXPECT_EQ(group.ProgramGroup, "Räkna");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgProgramGroupTest, StaysOpenOverANameThatTheProjectFileWouldCut)
{
    session.project.ProjectName.ProjectName = Text(150, 'x');
    DlgProgramGroup form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tProgramGroupName"), Text(150, 'x'));
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tProgramGroupName->hasFocus());
    EXPECT_EQ(QToolTip::text(), "Texten är för lång. Här får högst 99 tecken stå.");
    Type(form, "tProgramGroupName", "Räkna");
    Click(form, "cmdOK");
    EXPECT_EQ(group.ProgramGroup, "Räkna");
}

TEST_F(DlgProgramGroupTest, ChangesNothingOnCancel)
{
    group.ProgramGroup = "Firma";
    DlgProgramGroup form(session, nullptr);
    ShowActive(form);
    Type(form, "tProgramGroupName", "Annan");
    Click(form, "oAllUsers");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(group.ProgramGroup, "Firma");
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOn);
    EXPECT_EQ(group.ProgramGroup_AllUsers, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgProgramGroupTest, KeepsAGroupThatGoesNowhereUntilAPlaceIsChosen)
{
    group.ProgramGroup_CurrentUser = kOff;
    {
        DlgProgramGroup form(session, nullptr);
        ShowActive(form);
        EXPECT_FALSE(form.oCurrentUser->isChecked());
        EXPECT_FALSE(form.oAllUsers->isChecked());
        Click(form, "cmdOK");
    }
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOff);
    EXPECT_EQ(group.ProgramGroup_AllUsers, kOff);
    DlgProgramGroup form(session, nullptr);
    ShowActive(form);
    Click(form, "oCurrentUser");
    Click(form, "cmdOK");
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOn);
}

TEST_F(DlgProgramGroupTest, LooksRight)
{
    group.ProgramGroup = "Firma\\Räkna";
    DlgProgramGroup form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tProgramGroupName->hasFocus());
    SavePicture(form, "DlgProgramGroup");
    SaveDarkPicture(form, "DlgProgramGroup");
}

} // namespace
} // namespace quillon::test
