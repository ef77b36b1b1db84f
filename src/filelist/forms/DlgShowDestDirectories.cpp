#include "filelist/forms/DlgShowDestDirectories.h"

#include "filelist/list_maintenance.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualFolderLength = 50;

} // namespace

DlgShowDestDirectories::DlgShowDestDirectories(QWidget* parent)
    : Form("DlgShowDestDirectories", "Destinationskataloger", parent)
{
    Named(NAMED(lbDirectories), new QListWidget);
    Named(NAMED(sNrDirs), new QLabel("0"), "Antal kataloger");
    lbDirectories->setUniformItemSizes(true);
    Arrange(VBox({
        Growing(Above("&Kataloger som filerna kopieras till:",
                      MinWidth(kUsualFolderLength, lbDirectories))),
        HBox({new QLabel("Antal kataloger:"), sNrDirs, Stretch()}),
        OkOnly(),
    }));
    lbDirectories->setFocus();
}

void DlgShowDestDirectories::FillListboxWithDirectories(const FileList& files)
{
    lbDirectories->clear();
    for (const Text& directory : DestinationsOf(files))
        lbDirectories->addItem(ToQt(directory));
    lbDirectories->setCurrentRow(0);
    sNrDirs->setText(QString::number(lbDirectories->count()));
}

} // namespace quillon
