// What the editors of the design's objects store of each choice, and how far their arrows go.
#include "design/forms/DlgDesLogotype.h"
#include "design/forms/DlgDesPercentGauge.h"
#include "design/forms/DlgDesPictures.h"
#include "design/forms/DlgDesPicturesAnim.h"
#include "design/forms/DlgDesRTFbox.h"
#include "design/forms/DlgDesTextbox.h"
#include "design/forms/DlgDesTitle.h"
#include "forms/design/design_editors_test.h"
#include "ui/controls/UpDownArrows.h"

namespace quillon::test {
namespace {

using StoredDesignChoices = DesignEditorsTest;

TEST_F(StoredDesignChoices, TheTextBoxHasItsColour)
{
    section::DesTextBox& box = project.DesTextBox;
    box.BoxBackColor = 0x111111;
    DlgDesTextbox cancelled(session, nullptr);
    ShowActive(cancelled);
    ask.colours = {0x222222};
    Click(cancelled, "cmdSetBackColor");
    EXPECT_EQ(ask.shownColours, std::vector<Long>{0x111111});
    Click(cancelled, "cmdCancel");
    EXPECT_EQ(box.BoxBackColor, 0x111111);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    DlgDesTextbox form(session, nullptr);
    ShowActive(form);
    ask.colours = {0x333333, std::nullopt};
    Click(form, "cmdSetBackColor");
    Click(form, "cmdSetBackColor"); // and the chooser is cancelled
    EXPECT_EQ(ask.shownColours.back(), 0x333333);
    Click(form, "cmdOK");
    EXPECT_EQ(box.BoxBackColor, 0x333333);
}

TEST_F(StoredDesignChoices, TheTitleHasItsAlignment)
{
    const std::pair<const char*, Integer> sides[] = {
        {"oTitleCenter", 2}, {"oTitleRight", 3}, {"oTitleLeft", 1}};
    for (const auto& [option, number] : sides) {
        DlgDesTitle form(session, nullptr);
        ShowActive(form);
        Click(form, option);
        Click(form, "cmdOK");
        EXPECT_EQ(project.DesTitle.TitleAlignment, number) << option;
    }
    project.DesTitle.TitleAlignment = 2;
    DlgDesTitle again(session, nullptr);
    EXPECT_TRUE(again.oTitleCenter->isChecked());
}

TEST_F(StoredDesignChoices, TheArrowsOfTheTitlesSpacingStopAtItsLimits)
{
    DlgDesTitle form(session, nullptr);
    ShowActive(form);
    const auto press = [&](const char* arrow) {
        QTest::mouseClick(&Find<QToolButton>(*form.UpDownArr, arrow), Qt::LeftButton);
        return TextIn(form, "tTitleCharInterSpace");
    };
    Type(form, "tTitleCharInterSpace", "99");
    EXPECT_EQ(press("Up"), "100");
    EXPECT_EQ(press("Up"), "100");
    Type(form, "tTitleCharInterSpace", "-9");
    EXPECT_EQ(press("Down"), "-10");
    EXPECT_EQ(press("Down"), "-10");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesTitle.TitleCharInterSpace, "-10");
}

TEST_F(StoredDesignChoices, TicksOfPicturesAndLogotypeAreMinusOne)
{
    section::DesPicture& picture = project.DesPictures.Pictures[2];
    for (const char* box : {"cTransparentBkg", "cStretchPicture"}) {
        picture = {};
        DlgDesPictures form(2, session, nullptr);
        ShowActive(form);
        Click(form, box);
        Click(form, "cmdOK");
        EXPECT_EQ(picture.UseTransparentBkg, box == Text("cTransparentBkg") ? -1 : 0);
        EXPECT_EQ(picture.StretchPicture, box == Text("cStretchPicture") ? -1 : 0);
    }
    for (const Flag expected : std::initializer_list<Flag>{-1, 0}) {
        DlgDesLogotype logotype(session, nullptr);
        ShowActive(logotype);
        Click(logotype, "cTransparentBkg");
        Click(logotype, "cmdOK");
        EXPECT_EQ(project.DesLogotype.UseTransparentBkg, expected);
        DlgDesPicturesAnim changing(session, nullptr);
        ShowActive(changing);
        Click(changing, "cStretchPicture");
        Click(changing, "cmdOK");
        EXPECT_EQ(project.DesPicturesAnim.StretchPicture, expected);
    }
}

TEST_F(StoredDesignChoices, TheGaugeHasThreePlacesInEachDirection)
{
    section::DesPercentGauge& gauge = project.DesPercentGauge;
    struct {
        const char* across;
        const char* down;
        Integer number;
    } const places[] = {
        {"oRight", "oBottom", 3}, {"oHCenter", "oVCenter", 2}, {"oLeft", "oTop", 1}};
    for (const auto& place : places) {
        DlgDesPercentGauge form(session, nullptr);
        ShowActive(form);
        Click(form, place.across);
        Click(form, place.down);
        Click(form, "cmdOK");
        EXPECT_EQ(gauge.GaugeAlignmentH, place.number);
        EXPECT_EQ(gauge.GaugeAlignmentV, place.number);
        DlgDesPercentGauge again(session, nullptr);
        EXPECT_TRUE(Find<QRadioButton>(again, place.across).isChecked());
        EXPECT_TRUE(Find<QRadioButton>(again, place.down).isChecked());
    }
}

TEST_F(StoredDesignChoices, TheRtfBoxHasTheKeyboardBehindItsFontChooser)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.RTFbox, "ab");
    form.RTFbox->selectAll();
    ask.fonts = {FontChoice{.name = "Arial", .size = 18}, std::nullopt};
    for (const char* chooser : {"chosen", "cancelled"}) {
        form.cmdRTFfont->setFocus();
        EXPECT_FALSE(form.RTFbox->hasFocus());
        Click(form, "cmdRTFfont");
        EXPECT_TRUE(form.RTFbox->hasFocus()) << chooser;
    }
    EXPECT_EQ(ask.shownFonts.front().maxNameLength, 0) << "its file holds all letters";
}

} // namespace
} // namespace quillon::test
