// A text to read, on the window's own background: it wraps in its room, within words where it must,
// and scrolls where it has more lines than fit, so that none of it is ever cut off.
#pragma once

#include "helpers/text.h"

#include <QTextEdit>

namespace quillon {

class RunningText : public QTextEdit {
public:
    /// `accessibleName` is said where the text is so long that it takes the focus, to be scrolled.
    RunningText(const Text& text, const Text& accessibleName);

    /// From now on as high as its lines at this width, up to `maxHeight`.
    void FitHeight(int width, int maxHeight);

    /// From now on in a box of the background that fields have.
    void LieOnPaper();

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
};

} // namespace quillon
