// The form of the Create command: medium, target system, folder, and what a run of it reports. What
// its controls hold is a `CreateForm`, and the rules between them are that one's functions.
#pragma once

#include "builder/create.h"
#include "ui/dialogs/host_paths.h"
#include "ui/kit/Form.h"

#include <array>

class QGroupBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QRadioButton;

namespace quillon {

class FolderDisks;
class MainWindow;
class MediumPicture;

class DlgCreate : public Form {
public:
    /// `showOptions` opens the dialog of the tool's own options; `paths` says where a typed path
    /// of this machine lies.
    DlgCreate(Session& session, QWidget* parent,
              std::function<void(QWidget* parent)> showOptions = {}, HostPaths paths = {});

    /// What runs of Create have done to the file list while the form was open.
    bool HasRun() const { return hasRun_; }
    bool IsListSorted() const { return isListSorted_; }

    // Any way out of the form; it stores the choices, and there is none while Create runs.
    void done(int result) override;

    QGroupBox* FrameType = nullptr;
    QRadioButton* oFloppy = nullptr;
    QRadioButton* oCD_Compress = nullptr;
    QRadioButton* oCD_NoCompress = nullptr;
    QRadioButton* oInternet = nullptr;
    MediumPicture* PictureFloppy = nullptr;
    MediumPicture* PictureCD = nullptr;
    MediumPicture* PictureCD2 = nullptr;
    MediumPicture* PictureInternet = nullptr;
    QLineEdit* tDestinationDir = nullptr;
    QPushButton* CmdSelectDirectory = nullptr;
    QComboBox* cbOS = nullptr;
    QPushButton* cmdCompressOptions = nullptr;
    QPushButton* CmdOptions = nullptr;
    QPushButton* cmdCreate = nullptr;
    QPushButton* cmdClose = nullptr;
    QListWidget* lbStatus = nullptr;
    QProgressBar* pbProgress = nullptr;
    QLabel* lblProgress = nullptr;
    QPushButton* cmdOpenFolder = nullptr; // a link to the finished package
    QLabel* lblSummary = nullptr;         // its size, and the time that it took

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Piece MakeMedia();
    Piece MakeMedium(Medium medium);
    Piece MakeSettings();
    Piece MakeStatus();
    Piece MakeButtons();
    void WatchMouse();

    void ShowState();
    void Highlight(const MediumPicture* shown);
    void ChooseMedium(Medium medium);
    void ChangeDestination(const QString& folder);
    void SelectDirectory();
    /// A typed path of this machine becomes the Windows path that it is, if there is room for that.
    void TakeHostPath();
    bool HasRoomFor(const Text& folder) const;
    void TellNoRoomFor(const Text& folder);
    void ShowCompressOptions();

    void StartCreate();
    CreateResult RunOnce(Ask& ask);
    void TellResult(const CreateRun& run, CreateResult result, Ask& ask);
    void SetRunning(bool running);
    void OfferNextStep(CreateResult result);
    void AddLines(const std::vector<Text>& lines);
    void ShowProgress(std::uint64_t done, std::uint64_t total);
    void ShowLink();
    void OpenFolder();

    Session& session_;
    std::function<void(QWidget* parent)> showOptions_;
    HostPaths paths_;
    CreateForm form_;
    std::array<QRadioButton*, 4> buttons_{};
    std::array<MediumPicture*, 4> pictures_{};
    Text finishedFolder_;
    bool isShowingState_ = false;
    bool isRunning_ = false;
    bool hasRun_ = false;
    bool isListSorted_ = false;
};

/// The Create command.
void ShowCreate(Session& session, MainWindow& window, QWidget* parent,
                std::function<void(QWidget* parent)> showOptions, HostPaths paths);

} // namespace quillon
