#include "importers/forms/DlgNotAddedFiles.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kCharactersInRow = 70;
constexpr int kRowsInView = 10;

} // namespace

DlgNotAddedFiles::DlgNotAddedFiles(const std::vector<NotAddedFile>& files, QWidget* parent)
    : Form("DlgNotAddedFiles", "Filer som ej är adderade", parent)
{
    Named(NAMED(ListOfFiles), new QTreeWidget);
    ListOfFiles->setHeaderLabels({"Fil", "Orsak"});
    ListOfFiles->setRootIsDecorated(false);
    ListOfFiles->setUniformRowHeights(true);
    ListOfFiles->setAllColumnsShowFocus(true);
    ListOfFiles->setMinimumHeight(kRowsInView * ListOfFiles->fontMetrics().lineSpacing());
    for (const NotAddedFile& file : files)
        ListOfFiles->addTopLevelItem(new QTreeWidgetItem({ToQt(file.file), ToQt(file.Reason())}));
    ListOfFiles->resizeColumnToContents(0);
    Arrange(VBox({
        Growing(Above("&Filer som importen stötte på men ej adderade till fillistan:",
                      MinWidth(kCharactersInRow, ListOfFiles))),
        OkOnly(),
    }));
    ListOfFiles->setCurrentItem(ListOfFiles->topLevelItem(0));
    ListOfFiles->setFocus();
}

void ShowNotAddedFiles(const ImportResult& result, QWidget* parent)
{
    if (result.end == ImportEnd::Cancelled)
        return;
    std::vector<NotAddedFile> files;
    std::ranges::copy_if(result.notAdded, std::back_inserter(files),
                         [](const NotAddedFile& file) { return !IsNeverNeeded(file.why); });
    if (!files.empty())
        DlgNotAddedFiles(files, parent).ShowModal();
}

} // namespace quillon
