#include "ui/controls/rtf_document.h"

#include "ui/qt_colour.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>

namespace quillon {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr qsizetype kMaxLettersOfBlock = 8000;
constexpr int kMaxRunsOfBlock = 400;

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
            for (qsizetype at = 0; at < text.size(); at += kMaxLettersOfBlock) {
                const QString piece = text.mid(at, kMaxLettersOfBlock);
                KeepBlockShort(paragraph, piece);
                cursor_.insertText(piece, look);
            }
        }
    }

    /// Qt's time for a block grows with the square of its length, so longer paragraphs than any
    /// writer makes are cut into several.
    void KeepBlockShort(const RtfParagraph& paragraph, const QString& piece)
    {
        lettersOfBlock_ += piece.size();
        if (lettersOfBlock_ > kMaxLettersOfBlock || ++runsOfBlock_ > kMaxRunsOfBlock) {
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
        SetLineHeight(shape, paragraph);
        return shape;
    }

    void SetLineHeight(QTextBlockFormat& shape, const RtfParagraph& paragraph) const
    {
        const int spacing = paragraph.lineSpacing;
        if (paragraph.isLineSpacingMultiple && spacing > 0)
            shape.setLineHeight(spacing * 100.0 / kRtfLine, QTextBlockFormat::ProportionalHeight);
        else if (spacing != 0)
            shape.setLineHeight(Points(std::abs(spacing)), spacing < 0
                                                               ? QTextBlockFormat::FixedHeight
                                                               : QTextBlockFormat::MinimumHeight);
    }

    /// Qt counts from where the first line begins. Where that one hangs out, the left indent is a
    /// tab too: after the sign of a list.
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
        if (style.height == RtfStyle::Height::Superscript)
            look.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        if (style.height == RtfStyle::Height::Subscript)
            look.setVerticalAlignment(QTextCharFormat::AlignSubScript);
        if (style.capitals != RtfStyle::Capitals::AsWritten)
            look.setFontCapitalization(
                style.capitals == RtfStyle::Capitals::All ? QFont::AllUppercase : QFont::SmallCaps);
        if (style.letterSpacing != 0) {
            look.setFontLetterSpacingType(QFont::AbsoluteSpacing);
            look.setFontLetterSpacing(Points(style.letterSpacing));
        }
        look.setForeground(style.foreground == kNoColour ? kDefaultForeground
                                                         : ToQtColour(style.foreground));
        if (style.background != kNoColour)
            look.setBackground(ToQtColour(style.background));
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

/// Reads a document back as paragraphs and runs.
class RtfExtractor {
public:
    explicit RtfExtractor(int pointsPerInch) : twipsPerPoint_(kTwipsPerInch / pointsPerInch) {}

    RtfText Take(const QTextDocument& document)
    {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
            TakeParagraph(block);
        return std::move(text_);
    }

private:
    int Twips(double points) const
    {
        return static_cast<int>(std::lround(points * twipsPerPoint_));
    }

    void TakeParagraph(const QTextBlock& block)
    {
        const QTextBlockFormat shape = block.blockFormat();
        RtfParagraph paragraph;
        paragraph.alignment = AlignmentOf(shape.alignment());
        paragraph.leftIndent = Twips(shape.leftMargin());
        paragraph.rightIndent = Twips(shape.rightMargin());
        paragraph.firstLineIndent = Twips(shape.textIndent());
        paragraph.spaceBefore = Twips(shape.topMargin());
        paragraph.spaceAfter = Twips(shape.bottomMargin());
        TakeLineHeight(paragraph, shape);
        const int begin = paragraph.leftIndent + paragraph.firstLineIndent;
        for (const QTextOption::Tab& tab : shape.tabPositions())
            paragraph.tabs.push_back(begin + Twips(tab.position));
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (const QTextFragment fragment = part.fragment(); fragment.isValid())
                paragraph.runs.push_back({TextOf(fragment), StyleOf(fragment.charFormat())});
        text_.paragraphs.push_back(std::move(paragraph));
    }

    void TakeLineHeight(RtfParagraph& paragraph, const QTextBlockFormat& shape) const
    {
        switch (shape.lineHeightType()) {
        case QTextBlockFormat::ProportionalHeight:
            paragraph.isLineSpacingMultiple = true;
            paragraph.lineSpacing =
                static_cast<int>(std::lround(shape.lineHeight() * kRtfLine / 100));
            break;
        case QTextBlockFormat::MinimumHeight:
            paragraph.lineSpacing = Twips(shape.lineHeight());
            break;
        case QTextBlockFormat::FixedHeight:
            paragraph.lineSpacing = -Twips(shape.lineHeight());
            break;
        default:
            break;
        }
    }

    static RtfParagraph::Alignment AlignmentOf(Qt::Alignment alignment)
    {
        using Alignment = RtfParagraph::Alignment;
        return alignment.testFlag(Qt::AlignRight)     ? Alignment::Right
               : alignment.testFlag(Qt::AlignHCenter) ? Alignment::Centre
               : alignment.testFlag(Qt::AlignJustify) ? Alignment::Justified
                                                      : Alignment::Left;
    }

    // A picture that was pasted is one character of its own, which no file can hold.
    static Text TextOf(const QTextFragment& fragment)
    {
        QString text = fragment.text();
        text.replace(QChar::LineSeparator, '\n').remove(QChar::ObjectReplacementCharacter);
        return FromQt(text);
    }

    RtfStyle StyleOf(const QTextCharFormat& look)
    {
        const QFont font = look.font();
        RtfStyle style;
        style.font = FontNumber(look);
        const double points = font.pointSizeF() > 0 ? font.pointSizeF() : 12;
        style.halfPoints = static_cast<int>(std::lround(2 * points));
        style.isBold = font.bold();
        style.isItalic = font.italic();
        style.isUnderlined = font.underline();
        style.isStruckOut = font.strikeOut();
        if (look.verticalAlignment() == QTextCharFormat::AlignSuperScript)
            style.height = RtfStyle::Height::Superscript;
        if (look.verticalAlignment() == QTextCharFormat::AlignSubScript)
            style.height = RtfStyle::Height::Subscript;
        if (look.fontCapitalization() == QFont::AllUppercase)
            style.capitals = RtfStyle::Capitals::All;
        if (look.fontCapitalization() == QFont::SmallCaps)
            style.capitals = RtfStyle::Capitals::Small;
        if (look.fontLetterSpacingType() == QFont::AbsoluteSpacing)
            style.letterSpacing = Twips(look.fontLetterSpacing());
        if (look.hasProperty(QTextFormat::ForegroundBrush) &&
            look.foreground().color() != kDefaultForeground)
            style.foreground = FromQtColour(look.foreground().color());
        if (look.hasProperty(QTextFormat::BackgroundBrush) &&
            look.background().style() != Qt::NoBrush)
            style.background = FromQtColour(look.background().color());
        return style;
    }

    int FontNumber(const QTextCharFormat& look)
    {
        const QStringList families = look.fontFamilies().toStringList();
        if (families.isEmpty())
            return -1;
        const Text name = FromQt(families.first());
        const auto known = std::ranges::find(text_.fonts, name, &RtfFont::name);
        if (known != text_.fonts.end())
            return static_cast<int>(known - text_.fonts.begin());
        text_.fonts.push_back({name, FamilyOf(look)});
        return static_cast<int>(text_.fonts.size()) - 1;
    }

    static RtfFont::Family FamilyOf(const QTextCharFormat& look)
    {
        switch (look.fontStyleHint()) {
        case QFont::Serif:
            return RtfFont::Family::Roman;
        case QFont::SansSerif:
            return RtfFont::Family::Swiss;
        case QFont::TypeWriter:
            return RtfFont::Family::Modern;
        default:
            return RtfFont::Family::Unknown;
        }
    }

    double twipsPerPoint_;
    RtfText text_;
};

} // namespace

void InsertRtf(const RtfText& text, QTextDocument& document, int pointsPerInch)
{
    RtfWriter(text, document, pointsPerInch).Write();
}

RtfText ExtractRtf(const QTextDocument& document, int pointsPerInch)
{
    return RtfExtractor(pointsPerInch).Take(document);
}

} // namespace quillon
