// The tab "Dialogrutor": which pages the setup shows, and the picture that they share.
#pragma once

#include "actions/dialog_chain.h"
#include "shell/session.h"
#include "ui/Page.h"

#include <array>
#include <iterator>

class QCheckBox;
class QGroupBox;
class QPushButton;

namespace quillon {

class PathLabel;
class PictureView;

class DialogsPage : public Page {
public:
    explicit DialogsPage(Session& session);

    void ShowSession() override;

private:
    QGroupBox* TicksFrame();
    QGroupBox* PictureFrame();
    QCheckBox* TickBox(std::size_t page);
    void ShowTicks();
    void ShowPicture();

    void Press(DialogSwitch page);
    void Tick(DialogSwitch page, bool ticked);
    void UsePicture(const std::optional<Text>& path);

    Session& session_;
    std::array<QCheckBox*, std::size(kDialogChain)> boxes_{};
    QPushButton* cmdSelectDlgBitmap = nullptr;
    QPushButton* cmdStdDlgBitmap = nullptr;
    PathLabel* sDlgBitmapFilename = nullptr;
    PictureView* PictureDlgBitmap = nullptr;
};

} // namespace quillon
