// The folder picker "Välj katalog": drives, their folders as a tree, and a field that follows the
// tree and may be typed in.
#pragma once

#include "platform/ask.h"
#include "platform/file_system.h"
#include "ui/dialogs/host_paths.h"
#include "ui/kit/Form.h"

class QLabel;
class QStandardItem;
class QStandardItemModel;
class QTreeView;

namespace quillon {

class SelectDir : public Form {
public:
    /// Opens at `folder`, or at the nearest folder above it that exists. `text` says what the
    /// folder is for. `paths` says where a typed path of this machine is.
    SelectDir(FileSystem& files, Ask& ask, const Text& text, const Text& folder, QWidget* parent,
              HostPaths paths = {});

    /// The chosen folder, once the form was left with OK; else empty.
    Text Folder;

    QLabel* sDialogText = nullptr;
    QComboBox* DriveListX = nullptr;
    QTreeView* DirTreeX = nullptr;
    QLineEdit* sDirectory = nullptr;
    QPushButton* cmdNewDirectory = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void MakeControls(const Text& text);
    void FillDrives();
    void ChooseDrive();
    /// Selects the folder in the tree, which opens on the way to it.
    void ShowFolder(const Text& folder);
    void FollowTree();
    void FollowTyping();
    void MakeNewDirectory();

    /// The tree holds a folder's folders from the moment it is opened.
    void FillItem(QStandardItem* item);
    void ShowDrive(const Text& root);
    /// The folder itself or the nearest above it that exists.
    Text NearestFolder(Text folder) const;
    QStandardItem* ItemBelow(QStandardItem* item, const Text& name);
    Text TypedFolder() const;
    bool Refuse(const Text& title, const Text& reason);

    FileSystem& files_;
    Ask& ask_;
    HostPaths paths_;
    QStandardItemModel* tree_ = nullptr;
    // Typing moves the tree, and must not be written over by it.
    bool isTyping_ = false;
};

} // namespace quillon
