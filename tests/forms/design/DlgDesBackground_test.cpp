#include "design/forms/DlgDesBackground.h"

#include "forms/design/design_editors_test.h"
#include "ui/controls/ColourButton.h"

namespace quillon::test {
namespace {

class DlgDesBackgroundTest : public DesignEditorsTest {
protected:
    section::DesBackground& background = project.DesBackground;
};

TEST_F(DlgDesBackgroundTest, StoresTheSecondColourAndTheBlend)
{
    background = {.BackColor1 = 0x111111, .BackColor2 = 0x222222};
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    ask.colours = {0x654321};
    Click(form, "cmdBackColor2");
    EXPECT_EQ(ask.shownColours, std::vector<Long>{0x222222});
    form.ComboBlendDirection->setCurrentIndex(2);
    Type(form, "tBlendDepth", "45");
    Click(form, "cmdOK");
    EXPECT_EQ(background.BackColor1, 0x111111);
    EXPECT_EQ(background.BackColor2, 0x654321);
    EXPECT_EQ(background.BlendDirection, 2);
    EXPECT_EQ(background.BlendDepth, "45");
}

TEST_F(DlgDesBackgroundTest, StoresNothingOnCancel)
{
    background = {.BackColor2 = 0x222222, .BlendDirection = 3, .BlendDepth = "70"};
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    ask.colours = {0x654321};
    Click(form, "cmdBackColor2");
    form.ComboBlendDirection->setCurrentIndex(0);
    form.tBlendDepth->setText("1");
    Click(form, "cmdCancel");
    EXPECT_EQ(background.BackColor2, 0x222222);
    EXPECT_EQ(background.BlendDirection, 3);
    EXPECT_EQ(background.BlendDepth, "70");
}

TEST_F(DlgDesBackgroundTest, FillsTheDepthWhereTheDirectionThatIsShownIsChosenToo)
{
    background = {.BlendDirection = 4, .BlendDepth = ""};
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tBlendDepth"), "");
    const auto chooseShown = [&] {
        form.ComboBlendDirection->showPopup();
        QTest::keyClick(form.ComboBlendDirection->view(), Qt::Key_Return);
    };
    chooseShown();
    EXPECT_EQ(form.ComboBlendDirection->currentIndex(), 4);
    EXPECT_EQ(TextIn(form, "tBlendDepth"), "100");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    Type(form, "tBlendDepth", "30");
    chooseShown();
    EXPECT_EQ(TextIn(form, "tBlendDepth"), "30") << "one that is there stays";
    // A single colour has no depth.
    form.ComboBlendDirection->setCurrentIndex(0);
    form.tBlendDepth->clear();
    chooseShown();
    EXPECT_EQ(TextIn(form, "tBlendDepth"), "");
}

} // namespace
} // namespace quillon::test
