#include "ui/controls/cut_texts.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

const QString kLong = "En text som är mycket längre än det finns plats för i den lilla listan";

/// The tip over the middle of a cell, as the mouse brings it; empty where none is shown.
QString TipOver(QAbstractItemView& view, const QModelIndex& cell)
{
    // Qt takes its time to hide a tip.
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->inherits("QTipLabel"))
            window->hide();
    const QPoint place(10, view.visualRect(cell).center().y());
    const QPoint inCell(std::max(place.x(), view.visualRect(cell).left() + 2), place.y());
    QHelpEvent event(QEvent::ToolTip, inCell, view.viewport()->mapToGlobal(inCell));
    QApplication::sendEvent(view.viewport(), &event);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}

TEST(ElidedTexts, AreShownAsTipsInLists)
{
    QListWidget list;
    list.addItems({"kort", kLong, "<Dir> " + kLong});
    list.resize(150, 200);
    ShowActive(list);
    EXPECT_EQ(TipOver(list, list.model()->index(0, 0)), "");
    EXPECT_EQ(TipOver(list, list.model()->index(1, 0)), "<qt>" + kLong + "</qt>");
    EXPECT_EQ(TipOver(list, list.model()->index(2, 0)), "<qt>&lt;Dir&gt; " + kLong + "</qt>");
    list.item(0)->setToolTip("eget");
    EXPECT_EQ(TipOver(list, list.model()->index(0, 0)), "eget");
    list.resize(1000, 200);
    EXPECT_EQ(TipOver(list, list.model()->index(1, 0)), "") << "it can be read";
}

TEST(ElidedTexts, AreShownAsTipsInEachColumn)
{
    QTreeWidget tree;
    tree.setColumnCount(2);
    new QTreeWidgetItem(&tree, {"%DESTDIR", kLong});
    tree.setColumnWidth(0, 150);
    tree.resize(300, 200);
    ShowActive(tree);
    EXPECT_EQ(TipOver(tree, tree.model()->index(0, 0)), "");
    EXPECT_EQ(TipOver(tree, tree.model()->index(0, 1)), "<qt>" + kLong + "</qt>");
    tree.setColumnWidth(0, 30);
    EXPECT_EQ(TipOver(tree, tree.model()->index(0, 0)), "<qt>%DESTDIR</qt>");
}

} // namespace
} // namespace quillon::test
