#include "app/commands/row_clipboard.h"

#include "app/MainForm.h"
#include "app/file_list/FileListView.h"
#include "app/pages/FilesPage.h"
#include "filelist/adding/paste_rows.h"
#include "filelist/row_copy.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

void CopyRows(MainForm& form)
{
    const FileList& files = form.GetSession().project.Files;
    const std::vector<std::size_t> rows = form.SelectedRows();
    if (rows.empty())
        return;
    auto* copied = new QMimeData;
    copied->setText(ToQt(TabSeparatedRows(files, rows, form.Files().List().ShownColumns())));
    copied->setData(kRowsFormat, QByteArray::fromStdString(WholeRows(files, rows)));
    QApplication::clipboard()->setMimeData(copied);
}

void PasteRows(MainForm& form)
{
    const QMimeData* pasted = QApplication::clipboard()->mimeData();
    if (!pasted)
        return;
    if (pasted->hasUrls() && !pasted->hasFormat(kRowsFormat))
        return form.Files().TakeFiles(*pasted);
    Session& session = form.GetSession();
    const auto rows =
        RowsOfBytes(pasted->data(kRowsFormat).toStdString(), session.host.machine.DecimalSign());
    if (rows.empty())
        return;
    const auto added =
        PasteRows(ListWork{session.project, session.state, session.host, session.ask}, rows);
    // Where no rows were added, the selection stays.
    form.ShowFileList(added.empty() ? form.SelectedRows() : added);
}

} // namespace quillon
