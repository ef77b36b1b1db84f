#include "design/forms/DlgDesOverview.h"

#include "design/overview.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kLettersOfTheList = 70;
constexpr int kSizeColumn = 2;

} // namespace

DlgDesOverview::DlgDesOverview(Session& session, QWidget* parent)
    : EditorForm("DlgDesOverview", "Översikt", session, parent)
{
    Named(NAMED(ListViewOverview), new QTreeWidget, "Filer som designen använder");
    ListViewOverview->setHeaderLabels({"Objekt", "Fil", "Storlek (byte)"});
    ListViewOverview->setRootIsDecorated(false);
    ListViewOverview->setAllColumnsShowFocus(true);
    const RTFboxFolders texts(session.options.ToolFolder, session.options.OwnFolder);
    for (const OverviewRow& row : DesOverview(session.project, session.host.files, texts)) {
        auto* item = new QTreeWidgetItem(ListViewOverview,
                                         {ToQt(row.label), ToQt(row.file), ToQt(row.size)});
        item->setTextAlignment(kSizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        item->setToolTip(1, ToQt(row.file));
    }
    ListViewOverview->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    Arrange(VBox({Growing(MinWidth(kLettersOfTheList, ListViewOverview)), OkOnly()}));
}

} // namespace quillon
