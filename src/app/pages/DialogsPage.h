// The tab "Dialogrutor": which pages the setup shows, the way to their editors, and the picture
// that they share.
#pragma once

#include "actions/dialog_chain.h"
#include "shell/session.h"
#include "ui/kit/Page.h"

#include <array>
#include <iterator>

class QCheckBox;
class QGroupBox;

namespace quillon {

class PictureChoice;

class DialogsPage : public Page {
public:
    explicit DialogsPage(Session& session);

    void ShowSession() override;

private:
    QGroupBox* TicksFrame();
    QCheckBox* TickBox(std::size_t page);
    void ShowTicks();

    void Press(DialogSwitch page);
    void Tick(DialogSwitch page, bool ticked);

    Session& session_;
    std::array<QCheckBox*, std::size(kDialogChain)> boxes_{};
    PictureChoice* picture_ = nullptr;
};

} // namespace quillon
