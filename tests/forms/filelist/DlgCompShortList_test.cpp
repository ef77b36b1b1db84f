#include "filelist/forms/DlgCompShortList.h"

#include "filelist/components.h"
#include "filelist/forms/list_commands.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgCompShortListTest : public WindowTest {
protected:
    DlgCompShortListTest()
    {
        session.project.FileComponents[1] = {.Comp = kOn, .CompName = "Hjälp & mallar"};
        session.project.FileComponents[4] = {.Comp = kOn, .CompName = "Bilder"};
        entries = ComponentListEntries(session.project);
    }

    std::vector<Text> entries;
};

TEST_F(DlgCompShortListTest, OffersTheEntriesWithTheFirstChosen)
{
    DlgCompShortList form(entries, nullptr);
    EXPECT_EQ(form.windowTitle(), "Välj komponent");
    ASSERT_EQ(form.lbCompList->count(), 3);
    EXPECT_EQ(form.lbCompList->item(0)->text(), "Ingen komponent");
    EXPECT_EQ(form.lbCompList->item(1)->text(), "Komponent nr 2 - 'Hjälp & mallar'");
    EXPECT_EQ(form.lbCompList->item(2)->text(), "Komponent nr 5 - 'Bilder'");
    EXPECT_EQ(form.lbCompList->currentRow(), 0);
    ShowActive(form);
    EXPECT_EQ(form.focusWidget(), form.lbCompList);
    SavePicture(form, "DlgCompShortList");
    SaveDarkPicture(form, "DlgCompShortList");
}

TEST_F(DlgCompShortListTest, TakesTheChosenEntryByKeysAndEnter)
{
    DlgCompShortList form(entries, nullptr);
    ShowActive(form);
    QTest::keyClick(form.lbCompList, Qt::Key_Down);
    QTest::keyClick(form.lbCompList, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(form.Entry, entries[1]);
}

TEST_F(DlgCompShortListTest, TakesADoubleClickForOk)
{
    DlgCompShortList form(entries, nullptr);
    ShowActive(form);
    const QPoint place = form.lbCompList->visualItemRect(form.lbCompList->item(2)).center();
    QTest::mouseClick(form.lbCompList->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(form.lbCompList->viewport(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Entry, entries[2]);
}

TEST_F(DlgCompShortListTest, AnswersTheQuestionOfACommand)
{
    OnNextDialog([](QDialog& form) { Click(form, "cmdOK"); });
    EXPECT_EQ(ChooseComponent(entries, nullptr), "Ingen komponent");
    OnNextDialog([](QDialog& form) { Click(form, "cmdCancel"); });
    EXPECT_FALSE(ChooseComponent(entries, nullptr));
    OnNextDialog([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_FALSE(ChooseComponent(entries, nullptr));
}

} // namespace
} // namespace quillon::test
