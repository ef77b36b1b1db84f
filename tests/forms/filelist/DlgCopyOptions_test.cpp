#include "filelist/forms/DlgCopyOptions.h"

#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

class DlgCopyOptionsTest : public WindowTest {
protected:
    CopyOptionTicks Ticks(const Text& letters)
    {
        CopyOptionTicks ticks{};
        for (std::size_t box = 0; box < ticks.size(); ++box)
            ticks[box] = ContainsText(letters, Text(1, kCopyOptions[box].letter));
        return ticks;
    }
    std::vector<Text> TickedIn(DlgCopyOptions& form)
    {
        std::vector<Text> ticked;
        for (std::size_t box = 0; box < kCopyOptionBoxes; ++box) {
            const Text name(kCopyOptions[box].control);
            if (Find<QCheckBox>(form, name.c_str()).isChecked())
                ticked.push_back(name);
        }
        return ticked;
    }
};

TEST_F(DlgCopyOptionsTest, HasABoxForEachLetter)
{
    for (std::size_t box = 0; box < kCopyOptionBoxes; ++box) {
        CopyOptionTicks ticks{};
        ticks[box] = true;
        DlgCopyOptions form(ticks, nullptr);
        EXPECT_THAT(TickedIn(form), ElementsAre(Text(kCopyOptions[box].control)));
        EXPECT_EQ(FromQt(Find<QCheckBox>(form, Text(kCopyOptions[box].control).c_str()).text()),
                  kCopyOptions[box].caption);
    }
}

TEST_F(DlgCopyOptionsTest, GivesTheLettersInTheirOrder)
{
    DlgCopyOptions form(Ticks("W"), nullptr);
    ShowActive(form);
    for (const char* name : {"cNoUninstall", "cVersionNoCopyIfEqual", "cVersionCheck"})
        Click(form, name);
    Click(form, "cmdOK");
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(form.Letters, "VWE*");
}

TEST_F(DlgCopyOptionsTest, WritesEqualVersionsOnlyWithTheComparison)
{
    DlgCopyOptions form(Ticks("VE"), nullptr);
    ShowActive(form);
    Click(form, "cVersionCheck");
    EXPECT_THAT(TickedIn(form), ElementsAre("cVersionNoCopyIfEqual"));
    Click(form, "cmdOK");
    EXPECT_EQ(form.Letters, "");
}

TEST_F(DlgCopyOptionsTest, LetsOneOfThreeBoxesExcludeTheOthers)
{
    const char* const boxes[] = {"cDateTimeCheck", "cVersionCheck", "cNeverReplace"};
    DlgCopyOptions form(Ticks("A"), nullptr);
    ShowActive(form);
    for (const char* before : boxes)
        for (const char* ticked : boxes) {
            Find<QCheckBox>(form, before).setChecked(true);
            if (before != ticked)
                Click(form, ticked);
            EXPECT_THAT(TickedIn(form), ElementsAre(ticked, "cActiveFile")) << before;
            Click(form, ticked);
            EXPECT_THAT(TickedIn(form), ElementsAre("cActiveFile")) << "unticking leaves them";
        }
}

TEST_F(DlgCopyOptionsTest, KeepsLettersThatExcludeEachOtherUntilOneIsTicked)
{
    DlgCopyOptions form(Ticks("DN"), nullptr);
    EXPECT_THAT(TickedIn(form), ElementsAre("cDateTimeCheck", "cNeverReplace"));
}

TEST_F(DlgCopyOptionsTest, GivesNothingOnEsc)
{
    DlgCopyOptions form(Ticks("DA"), nullptr);
    ShowActive(form);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.OK);
    EXPECT_EQ(form.Letters, "");
}

TEST_F(DlgCopyOptionsTest, LooksRight)
{
    DlgCopyOptions form(Ticks("VRAWE"), nullptr);
    ShowActive(form);
    EXPECT_TRUE(Find<QCheckBox>(form, "cDateTimeCheck").hasFocus());
    SavePicture(form, "DlgCopyOptions");
    SaveDarkPicture(form, "DlgCopyOptions");
}

} // namespace
} // namespace quillon::test
