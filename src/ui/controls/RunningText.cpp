#include "ui/controls/RunningText.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

RunningText::RunningText(const Text& text, const Text& accessibleName)
{
    setAcceptRichText(false);
    setPlainText(LinesToQt(text));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setAccessibleName(ToQt(accessibleName));
    setFrameShape(NoFrame);
    document()->setDocumentMargin(0);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::NoFocus);
}

void RunningText::FitHeight(int width, int maxHeight)
{
    // The document itself follows the editor's present size, so a copy is asked.
    const std::unique_ptr<QTextDocument> copy(document()->clone());
    copy->setDefaultFont(font());
    copy->setDocumentMargin(0);
    copy->setTextWidth(width);
    setFixedHeight(std::min(static_cast<int>(std::ceil(copy->size().height())), maxHeight));
}

void RunningText::LieOnPaper()
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    viewport()->setAutoFillBackground(true);
    document()->setDocumentMargin(fontMetrics().height() / 2.0);
}

QSize RunningText::minimumSizeHint() const
{
    return {8 * fontMetrics().averageCharWidth(), fontMetrics().lineSpacing()};
}

void RunningText::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    const bool isLonger = verticalScrollBar()->maximum() > 0;
    setFocusPolicy(isLonger ? Qt::StrongFocus : Qt::NoFocus);
}

} // namespace quillon
