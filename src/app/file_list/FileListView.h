// The file list: rows in columns that the user can widen, sort by and hide through the settings.
#pragma once

#include "app/file_list/FileListModel.h"
#include "filelist/view/column_widths.h"
#include "project/records.h"
#include "shell/settings.h"

#include <QTreeView>
#include <functional>
#include <vector>

namespace quillon {

class FileListView : public QTreeView {
public:
    FileListView(const Project& project, quillon::Settings& settings);

    /// Shows the rows again with these selected.
    void ShowRows(const std::vector<std::size_t>& selectedRows);
    /// Row numbers, ascending.
    std::vector<std::size_t> SelectedRows() const;
    std::size_t SelectedRowCount() const;

    /// Grid lines and columns as the settings and the components want them.
    void ShowSettings();
    std::vector<Column> ShownColumns() const;

    /// Component numbers are shown while the project has components.
    void ShowComponentColumns();

    // Called for what the user does with the list; the page that holds the list sets them.
    std::function<void(const Text& header)> onColumnClick;
    std::function<void()> onSelection;
    std::function<void()> onDoubleClick;
    std::function<void()> onCopy;
    std::function<void()> onPaste;
    std::function<void(QPoint onScreen)> onPopup;

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& typed) override;
    void changeEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeHeader();
    void ArrangeColumns();
    int WidthOf(const ListColumn& column) const;
    int MinWidth(const ListColumn& column) const;
    int NameWidth(int minWidth) const;
    int DestinationWidth() const;
    void MeasureNames();
    int Pixels(int twips) const;
    bool IsShown(Column column) const;
    void NoteWidth(int section, int width);
    void ShowSortIndicator();
    void SelectRows(const std::vector<std::size_t>& rows);

    const Project& project_;
    quillon::Settings& settings_;
    FileListModel model_;
    // The width that the longest name needs.
    int widestName_ = 0;
    // Widths that change while this is set are not the user's.
    bool isArranging_ = false;
};

} // namespace quillon
