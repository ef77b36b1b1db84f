// The rows of the project as the file list shows them. They are read where they lie; code that
// changes them must call `ShowRows`.
#pragma once

#include "filelist/view/columns.h"

#include <QAbstractTableModel>

namespace quillon {

class FileListModel : public QAbstractTableModel {
public:
    explicit FileListModel(const FileList& files) : files_(files) {}

    /// Shows all rows again. Nothing is selected afterwards.
    void ShowRows();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    const FileList& files_;
    // What the view knows of. A command may be at work on the rows while the view paints.
    std::size_t rowCount_ = 0;
};

} // namespace quillon
