#include "ui/controls/rtf_view.h"

#include "platform/failure_text.h"
#include "platform/whole_file.h"
#include "ui/controls/rtf_document.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// Larger files are pictures with some words between them.
constexpr std::uint64_t kMaxBytes = 32U << 20U;
constexpr double kTabsPerInch = 2; // where a paragraph has none of its own
const QColor kPaper = Qt::white;
const QColor kNoteForeground(0x80, 0x30, 0x00);

Text NoteOf(RtfText::Fault fault)
{
    switch (fault) {
    case RtfText::Fault::Cut:
        return "Filen är inte hel. Här visas det som finns av texten.";
    case RtfText::Fault::TooLong:
        return "Texten är för lång för att visas i sin helhet. Här visas dess början.";
    case RtfText::Fault::None:
        break;
    }
    return {};
}

} // namespace

RtfView::RtfView(const Text& accessibleName)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setAccessibleName(ToQt(accessibleName));
    QPalette paper = palette();
    paper.setColor(QPalette::Base, kPaper);
    paper.setColor(QPalette::Text, kDefaultForeground);
    viewport()->setPalette(paper);
    document()->setDocumentMargin(fontMetrics().height() / 2.0);
}

void RtfView::ShowFile(const FileSystem& files, const Text& path)
{
    if (path.empty())
        return ShowNote("Ingen RTF-fil är vald.");
    try {
        if (files.Status(path).size > kMaxBytes)
            return ShowNote("Filen '" + path + "' är för stor för att visas.");
        const auto text = ReadRtf(ReadWholeFile(files, path));
        if (!text)
            return ShowNote("Filen '" + path + "' är ingen RTF-fil.");
        ShowText(*text);
    } catch (const RunError& error) {
        ShowNote(FailureText(error, path));
    }
}

void RtfView::ShowText(const RtfText& text)
{
    ShowNote(NoteOf(text.fault));
    setTabStopDistance(logicalDpiX() / kTabsPerInch);
    InsertRtf(text, *document(), logicalDpiX());
    moveCursor(QTextCursor::Start);
}

void RtfView::ShowNote(const Text& note)
{
    note_ = ToQt(note);
    clear();
    if (note.empty())
        return;
    QTextCharFormat look;
    look.setFontItalic(true);
    look.setForeground(kNoteForeground);
    QTextCursor(document()).insertText(note_, look);
}

QSize RtfView::sizeHint() const
{
    return {60 * fontMetrics().averageCharWidth(), 16 * fontMetrics().lineSpacing()};
}

QSize RtfView::minimumSizeHint() const
{
    return {16 * fontMetrics().averageCharWidth(), 4 * fontMetrics().lineSpacing()};
}

} // namespace quillon
