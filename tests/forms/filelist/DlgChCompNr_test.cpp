#include "filelist/forms/DlgChCompNr.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgChCompNrTest : public WindowTest {
protected:
    DlgChCompNrTest() { session.project.FileComponents[1].Comp = 1; }
};

TEST_F(DlgChCompNrTest, OpensWithTheNumberOfTheRow)
{
    DlgChCompNr form("2", session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Komponentnummer");
    EXPECT_EQ(TextIn(form, "tInputData"), "2");
    EXPECT_TRUE(form.tInputData->hasFocus());
    EXPECT_EQ(form.tInputData->accessibleName(), "Komponentnummer");
    SavePicture(form, "DlgChCompNr");
    SaveDarkPicture(form, "DlgChCompNr");
}

TEST_F(DlgChCompNrTest, EmptiesTheFieldOnLeavingUnlessItNamesAComponentInUse)
{
    const std::pair<Text, Text> cases[] = {{"2", "2"}, {"5", ""},   {"0", ""}, {"10", ""},
                                           {"-2", ""}, {"två", ""}, {"", ""}};
    for (const auto& [typed, left] : cases) {
        DlgChCompNr form("", session, nullptr);
        ShowActive(form);
        Type(form, "tInputData", typed);
        EXPECT_EQ(TextIn(form, "tInputData"), typed) << "nothing happens while it is typed";
        form.cmdCancel->setFocus();
        EXPECT_EQ(TextIn(form, "tInputData"), left) << typed;
    }
}

TEST_F(DlgChCompNrTest, GivesTheNumberOrNone)
{
    const std::pair<Text, Text> cases[] = {{"2", "2"}, {"5", ""}, {"0", ""}, {"", ""}};
    for (const auto& [typed, number] : cases)
        for (const bool byKey : {false, true}) {
            session.state.ProjectIsDirty = kOff;
            DlgChCompNr form("2", session, nullptr);
            ShowActive(form);
            Type(form, "tInputData", typed);
            if (byKey)
                QTest::keyClick(form.tInputData, Qt::Key_Return);
            else
                Click(form, "cmdOK");
            EXPECT_TRUE(form.Accepted());
            EXPECT_EQ(form.Number, number) << typed;
            EXPECT_EQ(session.state.ProjectIsDirty, kOn);
        }
}

TEST_F(DlgChCompNrTest, EmptiesANoughtThatWasNeverLeft)
{
    DlgChCompNr form("0", session, nullptr);
    form.cmdOK->click();
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(form.Number, "");
}

TEST_F(DlgChCompNrTest, CancelsByButtonAndEsc)
{
    for (const bool byKey : {false, true}) {
        DlgChCompNr form("", session, nullptr);
        ShowActive(form);
        Type(form, "tInputData", "2");
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Accepted());
        EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    }
}

} // namespace
} // namespace quillon::test
