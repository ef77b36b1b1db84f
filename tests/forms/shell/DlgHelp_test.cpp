#include "shell/forms/DlgHelp.h"

#include "support/window_test.h"

#include <QTextBrowser>
#include <QTreeWidget>

namespace quillon::test {
namespace {

std::vector<HelpPage> Pages()
{
    return ReadHelpPages("# Arkiv\n## Nytt projekt {cmd101}\nBörjar om.\n"
                         "## Öppna projekt {cmd102}\nÖppnar en fil, se [nytt](cmd101).\n"
                         "# Lista\n## Ikon {cmd116}\nEn genväg.\n");
}

class DlgHelpTest : public WindowTest {
protected:
    DlgHelp help{Pages(), nullptr};
    QTreeWidget* tree = help.TreeOfPages;

    QTreeWidgetItem* Page(int chapter, int page)
    {
        return tree->topLevelItem(chapter)->child(page);
    }
    QString Shown() { return help.tPage->toPlainText(); }
};

TEST_F(DlgHelpTest, ListsItsPagesByChapterAndShowsTheFirst)
{
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(tree->topLevelItem(0)->text(0), "Arkiv");
    EXPECT_EQ(tree->topLevelItem(0)->childCount(), 2);
    EXPECT_EQ(Page(1, 0)->text(0), "Ikon");
    EXPECT_EQ(tree->currentItem(), Page(0, 0));
    EXPECT_EQ(Shown(), "Nytt projekt\nBörjar om.");
}

TEST_F(DlgHelpTest, OpensAtTheCommandThatIsAskedFor)
{
    help.Show({CommandId::Icon});
    EXPECT_EQ(tree->currentItem(), Page(1, 0));
    EXPECT_EQ(Shown(), "Ikon\nEn genväg.");
    help.Show({CommandId::OpenProject, true});
    EXPECT_EQ(Shown().section('\n', 0, 0), "Öppna projekt");
    EXPECT_EQ(help.focusWidget(), help.tSearch);
}

TEST_F(DlgHelpTest, KeysAndLinksLeadFromPageToPage)
{
    help.show();
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_Down);
    EXPECT_EQ(tree->currentItem(), Page(0, 1));
    emit help.tPage->anchorClicked(QUrl("cmd101"));
    EXPECT_EQ(tree->currentItem(), Page(0, 0));
}

TEST_F(DlgHelpTest, WordsFilterThePages)
{
    TypeKeys(*help.tSearch, "FIL öppnar");
    EXPECT_TRUE(Page(0, 0)->isHidden());
    EXPECT_FALSE(Page(0, 1)->isHidden());
    EXPECT_TRUE(tree->topLevelItem(1)->isHidden());
    EXPECT_EQ(tree->currentItem(), Page(0, 1));
    EXPECT_EQ(Shown().section('\n', 0, 0), "Öppna projekt");

    TypeKeys(*help.tSearch, "x");
    EXPECT_TRUE(tree->topLevelItem(0)->isHidden());
    EXPECT_EQ(Shown(), "Ingen sida innehåller alla orden.");

    help.tSearch->clear();
    EXPECT_FALSE(Page(0, 0)->isHidden());
    EXPECT_FALSE(tree->topLevelItem(1)->isHidden());
    EXPECT_EQ(Shown().section('\n', 0, 0), "Öppna projekt");
}

TEST_F(DlgHelpTest, EnterAfterTheWordsLeadsToThePages)
{
    ShowActive(help);
    help.Show({.searches = true});
    TypeKeys(*help.tSearch, "ikon");
    QTest::keyClick(help.tSearch, Qt::Key_Return);
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.focusWidget(), tree);
    QTest::keyClick(tree, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST_F(DlgHelpTest, IsOneWindowForEachOwner)
{
    QWidget owner;
    const HelpWindow show = HelpWindowOf(owner);
    show(Pages(), {CommandId::NewProject});
    show(Pages(), {CommandId::Icon});
    const auto windows = owner.findChildren<QDialog*>("DlgHelp");
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows[0]->isVisible());
    EXPECT_FALSE(windows[0]->isModal());
    EXPECT_EQ(windows[0]->findChild<QTextBrowser*>("tPage")->toPlainText(), "Ikon\nEn genväg.");
    QTest::mouseClick(windows[0]->findChild<QPushButton*>("cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(windows[0]->isVisible());

    QDialog dialog(&owner);
    dialog.setModal(true);
    dialog.show();
    show(Pages(), {CommandId::Icon});
    EXPECT_EQ(dialog.findChildren<QDialog*>("DlgHelp").size(), 1);
}

} // namespace
} // namespace quillon::test
