#include "ui/rtf_view.h"

#include "platform/failure_text.h"
#include "platform/whole_file.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>

namespace quillon {

namespace {

// Larger files are pictures with some words between them.
constexpr std::uint64_t kMostBytes = 32U << 20U;
constexpr double kTwipsPerInch = 1440;
constexpr double kTabsPerInch = 2; // where a paragraph has none of its own
constexpr qsizetype kMostLettersOfBlock = 8000;
constexpr int kMostRunsOfBlock = 400;
const QColor kPaper = Qt::white;
const QColor kInk = Qt::black;
const QColor kNoteInk(0x80, 0x30, 0x00);

QColor ToQtColour(Colour colour)
{
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

/// Puts the paragraphs of a text into a document, for a screen of so many points per inch.
class RtfWriter {
public:
    RtfWriter(const RtfText& text, QTextDocument& document, int pointsPerInch)
        : text_(text), cursor_(&document), pointsPerTwip_(pointsPerInch / kTwipsPerInch)
    {
    }

    void Write()
    {
        cursor_.movePosition(QTextCursor::End);
        cursor_.beginEditBlock();
        bool isFirst = cursor_.document()->isEmpty();
        for (const RtfParagraph& paragraph : text_.paragraphs) {
            if (isFirst)
                cursor_.setBlockFormat(ShapeOf(paragraph));
            else
                cursor_.insertBlock(ShapeOf(paragraph));
            isFirst = false;
            WriteRuns(paragraph);
        }
        cursor_.endEditBlock();
    }

private:
    double Points(int twips) const { return twips * pointsPerTwip_; }

    void WriteRuns(const RtfParagraph& paragraph)
    {
        lettersOfBlock_ = runsOfBlock_ = 0;
        for (const RtfRun& run : paragraph.runs) {
            const QTextCharFormat look = LookOf(run.style);
            const QString text = ToQt(run.text).replace('\n', QChar::LineSeparator);
            for (qsizetype at = 0; at < text.size(); at += kMostLettersOfBlock) {
                const QString piece = text.mid(at, kMostLettersOfBlock);
                KeepBlockShort(paragraph, piece);
                cursor_.insertText(piece, look);
            }
        }
    }

    /// The time that Qt takes for a block grows with its square. What nobody writes as one
    /// paragraph goes on in another.
    void KeepBlockShort(const RtfParagraph& paragraph, const QString& piece)
    {
        lettersOfBlock_ += piece.size();
        if (lettersOfBlock_ > kMostLettersOfBlock || ++runsOfBlock_ > kMostRunsOfBlock) {
            lettersOfBlock_ = piece.size();
            runsOfBlock_ = 1;
            cursor_.insertBlock(ShapeOf(paragraph));
        }
    }

    QTextBlockFormat ShapeOf(const RtfParagraph& paragraph) const
    {
        using Alignment = RtfParagraph::Alignment;
        QTextBlockFormat shape;
        shape.setAlignment(paragraph.alignment == Alignment::Right       ? Qt::AlignRight
                           : paragraph.alignment == Alignment::Centre    ? Qt::AlignHCenter
                           : paragraph.alignment == Alignment::Justified ? Qt::AlignJustify
                                                                         : Qt::AlignLeft);
        shape.setLeftMargin(Points(paragraph.leftIndent));
        shape.setRightMargin(Points(paragraph.rightIndent));
        shape.setTextIndent(Points(paragraph.firstLineIndent));
        shape.setTopMargin(Points(paragraph.spaceBefore));
        shape.setBottomMargin(Points(paragraph.spaceAfter));
        shape.setTabPositions(TabsOf(paragraph));
        return shape;
    }

    /// Qt counts from where the first line begins. Where that one hangs out, the left indent is a
    /// tab too: behind the sign of a list.
    QList<QTextOption::Tab> TabsOf(const RtfParagraph& paragraph) const
    {
        std::vector<int> places = paragraph.tabs;
        if (paragraph.firstLineIndent < 0)
            places.push_back(paragraph.leftIndent);
        std::ranges::sort(places);
        QList<QTextOption::Tab> tabs;
        const int begin = paragraph.leftIndent + paragraph.firstLineIndent;
        for (const int place : places)
            if (place > begin)
                tabs << QTextOption::Tab(Points(place - begin), QTextOption::LeftTab);
        return tabs;
    }

    QTextCharFormat LookOf(const RtfStyle& style) const
    {
        QTextCharFormat look;
        if (style.font >= 0)
            SetFont(look, text_.fonts[static_cast<std::size_t>(style.font)]);
        look.setFontPointSize(style.halfPoints / 2.0);
        look.setFontWeight(style.isBold ? QFont::Bold : QFont::Normal);
        look.setFontItalic(style.isItalic);
        look.setFontUnderline(style.isUnderlined);
        look.setFontStrikeOut(style.isStruckOut);
        if (style.height == RtfStyle::Height::Raised)
            look.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        if (style.height == RtfStyle::Height::Lowered)
            look.setVerticalAlignment(QTextCharFormat::AlignSubScript);
        look.setForeground(style.ink == kNoColour ? kInk : ToQtColour(style.ink));
        if (style.ground != kNoColour)
            look.setBackground(ToQtColour(style.ground));
        return look;
    }

    static void SetFont(QTextCharFormat& look, const RtfFont& font)
    {
        if (!font.name.empty())
            look.setFontFamilies({ToQt(font.name)});
        look.setFontStyleHint(font.family == RtfFont::Family::Roman    ? QFont::Serif
                              : font.family == RtfFont::Family::Modern ? QFont::TypeWriter
                              : font.family == RtfFont::Family::Swiss  ? QFont::SansSerif
                                                                       : QFont::AnyStyle);
    }

    const RtfText& text_;
    QTextCursor cursor_;
    double pointsPerTwip_;
    qsizetype lettersOfBlock_ = 0;
    int runsOfBlock_ = 0;
};

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

RtfView::RtfView(const Text& spokenName)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setAccessibleName(ToQt(spokenName));
    QPalette paper = palette();
    paper.setColor(QPalette::Base, kPaper);
    paper.setColor(QPalette::Text, kInk);
    viewport()->setPalette(paper);
    document()->setDocumentMargin(fontMetrics().height() / 2.0);
}

void RtfView::ShowFile(const FileSystem& files, const Text& path)
{
    if (path.empty())
        return ShowNote("Ingen RTF-fil är vald.");
    try {
        if (files.Facts(path).size > kMostBytes)
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
    RtfWriter(text, *document(), logicalDpiX()).Write();
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
    look.setForeground(kNoteInk);
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
