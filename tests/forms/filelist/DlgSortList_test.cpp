#include "filelist/forms/DlgSortList.h"

#include "filelist/view/sort_choice.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgSortListTest : public WindowTest {
protected:
    void UseComponents() { session.project.FileComponents[0].Comp = kOn; }
};

TEST_F(DlgSortListTest, StartsWithTheNameChosen)
{
    DlgSortList form(session.project, nullptr);
    EXPECT_EQ(form.windowTitle(), "Sortera fillista");
    for (const SortChoice& choice : kSortChoices)
        EXPECT_EQ(Find<QRadioButton>(form, choice.control).isChecked(), choice.key == Filename)
            << choice.control;
    ShowActive(form);
    SavePicture(form, "DlgSortList");
    SaveDarkPicture(form, "DlgSortList");
}

TEST_F(DlgSortListTest, OffersComponentsOnlyWhereOneIsInUse)
{
    DlgSortList without(session.project, nullptr);
    EXPECT_FALSE(Find<QRadioButton>(without, "oComponents").isEnabled());
    UseComponents();
    DlgSortList with(session.project, nullptr);
    EXPECT_TRUE(Find<QRadioButton>(with, "oComponents").isEnabled());
}

TEST_F(DlgSortListTest, GivesTheKeyOfEachChoice)
{
    UseComponents();
    const std::pair<const char*, int> keys[] = {{"oFilename", 0},   {"oDirectory", 1},
                                                {"oDate", 3},       {"oTime", 4},
                                                {"oComponents", 7}, {"oExtension", 8}};
    for (const auto& [control, key] : keys) {
        DlgSortList form(session.project, nullptr);
        ShowActive(form);
        Click(form, control);
        Click(form, "cmdOK");
        EXPECT_TRUE(form.Accepted());
        EXPECT_EQ(form.Key, static_cast<Column>(key)) << control;
    }
}

TEST_F(DlgSortListTest, CancelsByButtonAndEsc)
{
    for (const bool byKey : {false, true}) {
        DlgSortList form(session.project, nullptr);
        ShowActive(form);
        Click(form, "oDate");
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Accepted());
    }
}

} // namespace
} // namespace quillon::test
