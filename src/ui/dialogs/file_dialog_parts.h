// What the file dialog is put together from, beside Qt's own: our pictures, the drives in its list
// of places, and sizes and dates in Swedish.
#pragma once

#include "ui/dialogs/host_paths.h"

#include <QAbstractFileIconProvider>
#include <QIdentityProxyModel>

class QFileDialog;

namespace quillon {

class FilePictures : public QAbstractFileIconProvider {
public:
    QIcon icon(IconType type) const override;
    QIcon icon(const QFileInfo& file) const override;
    QString type(const QFileInfo& file) const override;
};

/// Qt writes sizes and dates in the system's language, which need not be the program's.
class SwedishColumns : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex& index, int role) const override;
};

/// Our pictures on the buttons above the list of files.
void DrawButtons(QFileDialog& dialog);

/// The size of the dialog and of its columns.
void LayOut(QFileDialog& dialog);

/// The list of places for as long as it lives: home and the mapped drives. Qt keeps one such list
/// for all programs, which is put back at the end.
class Places {
public:
    Places(QFileDialog& dialog, const HostPaths& paths);
    ~Places();
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;

private:
    QFileDialog& dialog_;
    QList<QUrl> before_;
};

} // namespace quillon
