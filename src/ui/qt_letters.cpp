#include "ui/qt_letters.h"

#include "ui/qt_text.h"

#include <QtWidgets>
#include <algorithm>

namespace quillon {

namespace {

// No line on a screen is longer; a larger mask would only be a mistake in a record.
constexpr int kMaxMaskWidth = 1 << 15;

QFont FontOf(const ScreenFont& font)
{
    QFont qtFont(ToQt(font.name));
    qtFont.setPixelSize(std::max(font.size, 1));
    qtFont.setBold(font.isBold);
    qtFont.setItalic(font.isItalic);
    qtFont.setUnderline(font.isUnderlined);
    qtFont.setStrikeOut(font.isStrikeOut);
    qtFont.setKerning(false);
    return qtFont;
}

QList<QString> CodePoints(const Text& line)
{
    QList<QString> letters;
    for (const char32_t codePoint : ToQt(line).toStdU32String())
        letters << QString::fromUcs4(&codePoint, 1);
    return letters;
}

// Letters lean and hang over their advances; this much room is left on both sides.
int Overhang(const ScreenFont& font)
{
    return font.size / 2 + 1;
}

} // namespace

FontHeight QtLetters::Height(const ScreenFont& font)
{
    const QFontMetrics metrics(FontOf(font));
    return {metrics.ascent(), metrics.descent()};
}

std::vector<int> QtLetters::Advances(const ScreenFont& font, const Text& line)
{
    const QFontMetrics metrics(FontOf(font));
    std::vector<int> advances;
    for (const QString& letter : CodePoints(line))
        advances.push_back(metrics.horizontalAdvance(letter));
    return advances;
}

LetterMask QtLetters::Draw(const ScreenFont& font, const Text& line,
                           const std::vector<int>& advances)
{
    const FontHeight height = Height(font);
    const int overhang = Overhang(font);
    int width = 2 * overhang;
    int left = overhang;
    for (const int advance : advances)
        width += std::max(advance, 0);
    width = std::min(width, kMaxMaskWidth);
    QImage image(width, height.Line() + 2, QImage::Format_Grayscale8);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(FontOf(font));
    painter.setPen(Qt::white);
    const QList<QString> letters = CodePoints(line);
    for (std::size_t i = 0; i < advances.size() && left < width; ++i) {
        painter.drawText(left, height.ascent + 1, letters[static_cast<qsizetype>(i)]);
        left += advances[i];
    }
    painter.end();
    LetterMask mask{
        .left = -overhang, .top = -height.ascent - 1, .width = width, .height = image.height()};
    for (int y = 0; y < mask.height; ++y)
        mask.coverage.insert(mask.coverage.end(), image.constScanLine(y),
                             image.constScanLine(y) + width);
    return mask;
}

} // namespace quillon
