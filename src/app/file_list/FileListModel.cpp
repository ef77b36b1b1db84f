#include "app/file_list/FileListModel.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

void FileListModel::ShowRows()
{
    beginResetModel();
    rowCount_ = files_.rows.size();
    endResetModel();
}

int FileListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rowCount_);
}

int FileListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kColumnCount);
}

QVariant FileListModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    if (!index.isValid() || row >= files_.rows.size())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return ToQt(files_.rows[row].columns[column]);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (column == Size ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return ToQt(kListColumns[static_cast<std::size_t>(section)].header);
    if (role == Qt::TextAlignmentRole)
        return data(index(0, section), role);
    return {};
}

Qt::ItemFlags FileListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
}

} // namespace quillon
