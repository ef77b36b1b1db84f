// The frame of all previews: the side picture, the bold title, room for the contents of the page, a
// line, and the buttons that every page has. Each button just closes the preview.
#pragma once

#include "actions/dialog_chain.h"
#include "ui/kit/Form.h"

class QVBoxLayout;

namespace quillon {

class RunningText;
class SidePicture;

class InstDlg : public Form {
public:
    RunningText* sTitle = nullptr;
    SidePicture* PictureDlg = nullptr;
    QPushButton* cmdBack = nullptr;
    QPushButton* cmdNext = nullptr;
    // An agreement is accepted or declined in place of Next and Cancel.
    QPushButton* CmdYes = nullptr;
    QPushButton* CmdNo = nullptr;
    // After the installation there is nothing to go back to and nothing to cancel.
    QPushButton* cmdFinish = nullptr;

protected:
    enum class Buttons { NextCancel, YesNo, Finish };

    /// The title names the window, too. `bitmap` is the page's own picture, or empty.
    InstDlg(const char* name, DialogSwitch page, const Text& title, const Text& bitmap,
            Session& session, QWidget* parent);

    /// Lays the page out; `pieces` are below the title.
    void ArrangePage(Piece pieces, Buttons buttons = Buttons::NextCancel);

    /// Text on the page's background, as wide as the page and as high as its lines, up to
    /// `maxHeight` dialog units.
    RunningText* Paragraph(RunningText*& member, const char* name, const Text& text,
                           const Text& accessibleName, int maxHeight);

    /// The text as the end user will see it.
    Text Shown(const Text& text) const;

    /// Dialog units across and down, in points of the screen.
    int UnitsAcross(double units) const;
    int UnitsDown(double units) const;
    int ContentWidth() const;

    Session& session_;

private:
    void MakeTitle(const Text& title);
    void MakePicture(const Text& bitmap);
    Piece ButtonRow(Buttons buttons);
    Piece FinishRow();
    QPushButton* PageButton(QPushButton*& member, const char* name, const Text& caption);

    DialogSwitch page_;
};

} // namespace quillon
