#include "filelist/forms/DlgCompShortList.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgCompShortList::DlgCompShortList(const std::vector<Text>& entries, QWidget* parent)
    : Form("DlgCompShortList", "Välj komponent", parent)
{
    Named(NAMED(lbCompList), new QListWidget, "Komponenter");
    for (const Text& entry : entries)
        lbCompList->addItem(ToQt(entry));
    lbCompList->setCurrentRow(0);
    Arrange(VBox({
        Note("Välj vilken komponent som de valda filerna ska ingå i eller 'Ingen komponent' om "
             "filerna alltid ska kopieras till mottagarens hårddisk."),
        Growing(lbCompList),
        OkCancel(),
    }));
    lbCompList->setFocus();
    connect(lbCompList, &QListWidget::itemDoubleClicked, this, [this] { cmdOK->click(); });
}

bool DlgCompShortList::MayClose()
{
    if (!lbCompList->currentItem())
        return false;
    Entry = FromQt(lbCompList->currentItem()->text());
    return true;
}

} // namespace quillon
