#include "design/forms/DlgUnderline.h"

#include "forms/design/design_editors_test.h"
#include "ui/controls/UpDownArrows.h"

namespace quillon::test {
namespace {

class DlgUnderlineTest : public DesignEditorsTest {
protected:
    section::DesTitleUnderline& underline = project.DesTitleUnderline;
};

TEST_F(DlgUnderlineTest, StoresTheKindThatIsChosen)
{
    const std::pair<const char*, Integer> kinds[] = {{"oSimpleUnderline", 1},
                                                     {"oMistyUnderline", 2},
                                                     {"oBlendUnderline", 3},
                                                     {"oNoUnderline", 0}};
    for (const auto& [option, number] : kinds) {
        DlgUnderline form(session, nullptr);
        ShowActive(form);
        Click(form, option);
        EXPECT_EQ(form.GetUnderlineTypeNr(), number) << option;
        Click(form, "OKButton");
        EXPECT_EQ(underline.UnderlineType, number) << option;
        EXPECT_EQ(underline.UnderlineHeight, number == 1 ? 3 : number == 2 ? 10 : 4) << option;
    }
}

TEST_F(DlgUnderlineTest, KeepsTheHeightWhereTheKindThatIsShownIsChosenAgain)
{
    const std::pair<const char*, Integer> kinds[] = {
        {"oSimpleUnderline", 1}, {"oMistyUnderline", 2}, {"oBlendUnderline", 3}};
    for (const auto& [option, number] : kinds) {
        underline = {.UnderlineType = number, .UnderlineHeight = 20};
        DlgUnderline form(session, nullptr);
        ShowActive(form);
        Click(form, option);
        EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "20") << option;
        Type(form, "tUnderlineHeight", "31");
        Click(form, option);
        form.SetUnderlineTypeNr(number);
        EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "31") << option;
        Click(form, "OKButton");
        EXPECT_EQ(underline.UnderlineHeight, 31) << option;
    }
}

TEST_F(DlgUnderlineTest, SetsTheHeightOnceWhereAKindIsChosen)
{
    underline = {.UnderlineType = 3, .UnderlineHeight = 20};
    DlgUnderline form(session, nullptr);
    ShowActive(form);
    QStringList heights;
    QObject::connect(form.tUnderlineHeight, &QLineEdit::textChanged, &form,
                     [&](const QString& height) { heights << height; });
    Click(form, "oMistyUnderline");
    form.SetUnderlineTypeNr(1);
    // By the arrow keys, as options are chosen without a mouse.
    form.oSimpleUnderline->setFocus();
    QTest::keyClick(form.oSimpleUnderline, Qt::Key_Down);
    EXPECT_EQ(form.GetUnderlineTypeNr(), 2);
    EXPECT_EQ(heights, QStringList({"10", "3", "10"}));
    EXPECT_TRUE(form.CmdColor2->isEnabled());
}

TEST_F(DlgUnderlineTest, HasArrowsUpToFiftyPixels)
{
    underline = {.UnderlineType = 1, .UnderlineHeight = 49};
    DlgUnderline form(session, nullptr);
    ShowActive(form);
    for (const char* option : {"oSimpleUnderline", "oMistyUnderline", "oBlendUnderline"}) {
        Click(form, option);
        Type(form, "tUnderlineHeight", "49");
        for (int i = 0; i < 3; ++i) {
            QTest::mouseClick(&Find<QToolButton>(*form.UpDownArr, "Up"), Qt::LeftButton);
            EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "50") << option;
        }
    }
}

TEST_F(DlgUnderlineTest, LeavesALowHeightOfTheRecordAloneOnCancel)
{
    underline = {.UnderlineType = 1, .UnderlineHeight = 1};
    DlgUnderline form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "3");
    Click(form, "oMistyUnderline");
    Click(form, "cUnderlineTextOnly");
    Click(form, "cmdCancel");
    EXPECT_EQ(underline.UnderlineHeight, 1);
    EXPECT_EQ(underline.UnderlineType, 1);
    EXPECT_EQ(underline.UnderlineTextOnly, 1);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
