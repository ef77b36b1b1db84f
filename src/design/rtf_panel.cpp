#include "design/rtf_panel.h"

#include "helpers/number_text.h"
#include "helpers/twips.h"
#include "helpers/utf8.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr double kPixelsPerHalfPoint = 96.0 / 144;
constexpr int kMarginPixels = 4;
constexpr int kTabPixels = 48; // half an inch
// Super- and subscript: the size of the letters, and how far their baseline moves.
constexpr int kScriptNumerator = 2;
constexpr int kScriptDenominator = 3;
// Small capitals in the size of the letters.
constexpr int kSmallNumerator = 4;
constexpr int kSmallDenominator = 5;

// A piece of a line in one style, ready to be painted.
struct Piece {
    TextLine line;
    int left = 0;
    int rise = 0;
    int width = 0;
    FontHeight height;
    Colour foreground = 0;
    Colour background = kNoColour;
};

// Letters of a word that are painted in one size.
struct LetterRun {
    Text text;
    bool isSmall = false;
};

/// Small capitals: what is written in small letters is painted in smaller capitals.
std::vector<LetterRun> InCapitals(const Text& word, RtfStyle::Capitals capitals)
{
    if (capitals == RtfStyle::Capitals::AsWritten)
        return {{word}};
    if (capitals == RtfStyle::Capitals::All)
        return {{UpperCase(word)}};
    std::vector<LetterRun> runs;
    for (std::size_t at = 0; at < word.size();) {
        const std::size_t begin = at;
        NextCodePoint(word, at);
        const Text written = word.substr(begin, at - begin);
        const Text capital = UpperCase(written);
        const bool isSmall = capital != written;
        if (runs.empty() || runs.back().isSmall != isSmall)
            runs.push_back({.isSmall = isSmall});
        runs.back().text += capital;
    }
    return runs;
}

// A part of a run that a line does not break: a word with the blanks after it, or a tab.
struct Word {
    Text text;
    const RtfStyle* style = nullptr;
};

class PanelPainter {
public:
    PanelPainter(const Canvas& canvas, Letters& letters, const RtfPanel& panel, const RtfText& text)
        : canvas_(canvas), letters_(letters), panel_(panel), text_(text),
          margin_(Pixels(kMarginPixels)), top_(panel.box.top + margin_)
    {
    }

    void Paint()
    {
        for (const RtfParagraph& paragraph : text_.paragraphs) {
            if (top_ >= panel_.box.bottom)
                return;
            PaintParagraph(paragraph);
        }
    }

private:
    int Pixels(double pixels) const { return static_cast<int>(RoundToEven(pixels * panel_.scale)); }
    int TwipPixels(int twips) const { return Pixels(double(twips) / kTwipsPerPixel); }

    ScreenFont FontOf(const RtfStyle& style) const
    {
        const bool isKnown =
            style.font >= 0 && static_cast<std::size_t>(style.font) < text_.fonts.size();
        int size = Pixels(style.halfPoints * kPixelsPerHalfPoint);
        if (style.height != RtfStyle::Height::Normal)
            size = size * kScriptNumerator / kScriptDenominator;
        return {.name = isKnown ? text_.fonts[static_cast<std::size_t>(style.font)].name : "",
                .size = std::max(size, 1),
                .isBold = style.isBold,
                .isItalic = style.isItalic,
                .isStrikeOut = style.isStruckOut,
                .isUnderlined = style.isUnderlined};
    }

    static void AddWords(const RtfRun& run, std::vector<Word>& words)
    {
        std::size_t begin = 0;
        const auto add = [&](std::size_t end) {
            if (end > begin)
                words.push_back({run.text.substr(begin, end - begin), &run.style});
            begin = end;
        };
        for (std::size_t i = 0; i < run.text.size(); ++i) {
            const char c = run.text[i];
            if (c == '\t' || c == '\n') {
                add(i);
                add(i + 1);
            } else if (c == ' ' && (i + 1 == run.text.size() || run.text[i + 1] != ' ')) {
                add(i + 1);
            }
        }
        add(run.text.size());
    }

    void PaintParagraph(const RtfParagraph& paragraph)
    {
        top_ += TwipPixels(paragraph.spaceBefore);
        std::vector<Word> words;
        for (const RtfRun& run : paragraph.runs)
            AddWords(run, words);
        left_ = TwipPixels(paragraph.leftIndent + paragraph.firstLineIndent);
        width_ = panel_.box.Width() - 2 * margin_ - TwipPixels(paragraph.rightIndent);
        for (const Word& word : words) {
            AddWord(word, paragraph);
            if (top_ >= panel_.box.bottom)
                return;
        }
        EndLine(paragraph);
        top_ += TwipPixels(paragraph.spaceAfter);
    }

    void AddWord(const Word& word, const RtfParagraph& paragraph)
    {
        if (word.text == "\n") {
            EndLine(paragraph);
            return;
        }
        if (word.text == "\t") {
            left_ = NextTab(paragraph);
            return;
        }
        std::vector<Piece> pieces;
        int width = 0;
        for (const LetterRun& run : InCapitals(word.text, word.style->capitals)) {
            pieces.push_back(MakePiece(run, *word.style));
            width += pieces.back().width;
        }
        if (left_ + width > width_ && !line_.empty())
            EndLine(paragraph);
        for (Piece& piece : pieces) {
            piece.left = left_;
            left_ += piece.width;
            line_.push_back(std::move(piece));
        }
    }

    Piece MakePiece(const LetterRun& run, const RtfStyle& style)
    {
        ScreenFont font = FontOf(style);
        if (run.isSmall)
            font.size = std::max(font.size * kSmallNumerator / kSmallDenominator, 1);
        const int spacing = TwipPixels(style.letterSpacing);
        Piece piece{.line = MakeLine(letters_, font, run.text, spacing),
                    .height = letters_.Height(font),
                    .foreground = style.foreground == kNoColour ? 0 : style.foreground,
                    .background = style.background};
        // The space after the last letter belongs to it too.
        piece.width = std::max(piece.line.width + spacing, 0);
        if (style.height == RtfStyle::Height::Superscript)
            piece.rise = font.size / 2;
        else if (style.height == RtfStyle::Height::Subscript)
            piece.rise = -font.size / 4;
        return piece;
    }

    int NextTab(const RtfParagraph& paragraph) const
    {
        for (const int tab : paragraph.tabs)
            if (TwipPixels(tab) > left_)
                return TwipPixels(tab);
        const int step = std::max(Pixels(kTabPixels), 1);
        return (std::max(left_, 0) / step + 1) * step;
    }

    // Paints the line and begins the next one of the same paragraph.
    void EndLine(const RtfParagraph& paragraph)
    {
        FontHeight height =
            line_.empty() ? letters_.Height(FontOf(EmptyStyle(paragraph))) : FontHeight{};
        for (const Piece& piece : line_) {
            height.ascent = std::max(height.ascent, piece.height.ascent + piece.rise);
            height.descent = std::max(height.descent, piece.height.descent - piece.rise);
        }
        const int shift = ShiftOf(paragraph);
        for (const Piece& piece : line_)
            PaintPiece(piece, panel_.box.left + margin_ + shift, height);
        line_.clear();
        top_ += LineHeight(paragraph, height.Line());
        left_ = TwipPixels(paragraph.leftIndent);
    }

    int LineHeight(const RtfParagraph& paragraph, int letters) const
    {
        const int spacing = paragraph.lineSpacing;
        if (paragraph.isLineSpacingMultiple && spacing > 0)
            return static_cast<int>(RoundToEven(double(letters) * spacing / kRtfLine));
        if (spacing < 0)
            return std::max(TwipPixels(-spacing), 1);
        return std::max(TwipPixels(spacing), letters);
    }

    static const RtfStyle& EmptyStyle(const RtfParagraph& paragraph)
    {
        static const RtfStyle usual;
        return paragraph.runs.empty() ? usual : paragraph.runs.back().style;
    }

    int ShiftOf(const RtfParagraph& paragraph) const
    {
        const int rest = std::max(width_ - left_, 0);
        if (paragraph.alignment == RtfParagraph::Alignment::Right)
            return rest;
        return paragraph.alignment == RtfParagraph::Alignment::Centre ? rest / 2 : 0;
    }

    void PaintPiece(const Piece& piece, int origin, const FontHeight& height)
    {
        if (piece.background != kNoColour)
            FillRect(canvas_, RectAt(origin + piece.left, top_, piece.width, height.Line()),
                     PixelOf(piece.background));
        PaintLine(canvas_, piece.line, origin + piece.left, top_ + height.ascent - piece.rise,
                  piece.foreground);
    }

    const Canvas& canvas_;
    Letters& letters_;
    const RtfPanel& panel_;
    const RtfText& text_;
    int margin_;
    int top_;
    int left_ = 0; // of the next word, from the margin
    int width_ = 0;
    std::vector<Piece> line_;
};

} // namespace

void PaintRtfPanel(const Canvas& canvas, Letters& letters, const RtfPanel& panel,
                   const RtfText& text)
{
    Canvas inside = canvas;
    inside.clip = Intersect(canvas.clip, panel.box);
    if (inside.clip.IsEmpty())
        return;
    FillRect(inside, panel.box, PixelOf(panel.backColor));
    PanelPainter(inside, letters, panel, text).Paint();
}

} // namespace quillon
