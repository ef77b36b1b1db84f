// The records that write text, by the letters of the system.
#include "helpers/ansi_text.h"
#include "pictures/metafile_player.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace quillon {

namespace {

enum TextAlign { kUpdatePosition = 1, kRight = 2, kCentre = 6, kBottom = 8, kBaseline = 24 };
enum TextOptions { kOpaqueRect = 2, kClippedRect = 4 };

constexpr std::size_t kMaxTextLength = 1024;
constexpr int kMinLetterSize = 2;
constexpr int kMaxHalfPoints = 1500;
// Letters are drawn in one piece.
constexpr std::int64_t kMaxMask = 8'000'000;
constexpr int kWorkOfMaskPixel = 8;

} // namespace

Text MetafilePlayer::TextOf(PictureBytes bytes, std::size_t length) const
{
    Text text = AnsiText::FromBytes(bytes.View().substr(0, std::min(length, kMaxTextLength)));
    for (char& letter : text)
        if (static_cast<unsigned char>(letter) < ' ')
            letter = ' ';
    return text;
}

ScreenFont MetafilePlayer::FontInPixels()
{
    const MetafileFont& font = state_.font;
    const int height = font.height == 0 ? 12 : font.height;
    ScreenFont screen{.name = font.name,
                      .size = VBox(std::abs(height)) / kFine,
                      .isBold = font.isBold,
                      .isItalic = font.isItalic,
                      .isStrikeOut = font.isStrikeOut,
                      .isUnderlined = font.isUnderlined};
    if (screen.size < kMinLetterSize || screen.size > kMaxHalfPoints) {
        screen.size = 0;
        return screen;
    }
    // The height of a line is more than that of its letters.
    if (height > 0) {
        const int line = letters_.Height(screen).Line();
        screen.size = std::max(screen.size * screen.size / std::max(line, 1), 1);
    }
    return screen;
}

void MetafilePlayer::PaintText(Line line)
{
    const ScreenFont font = FontInPixels();
    const bool isNothing = font.size == 0 || line.text.empty() || raster_.Work().IsExhausted();
    if (isNothing)
        return;
    if (line.advances.empty()) {
        line.advances = letters_.Advances(font, line.text);
        for (int& advance : line.advances)
            advance += state_.charExtra < 0 ? -HBox(state_.charExtra) / kFine
                                            : HBox(state_.charExtra) / kFine;
    }
    const auto width = std::accumulate(line.advances.begin(), line.advances.end(), std::int64_t{0});
    const FontHeight height = letters_.Height(font);
    if (std::abs(width) * height.Line() > kMaxMask)
        return;
    raster_.Work().Use((std::abs(width) + 1) * height.Line() * kWorkOfMaskPixel);

    int left = line.place.x / kFine;
    if ((state_.textAlign & kCentre) == kCentre)
        left -= static_cast<int>(width / 2);
    else if ((state_.textAlign & kRight) != 0)
        left -= static_cast<int>(width);
    const int top = line.place.y / kFine;
    const int baseline = (state_.textAlign & kBaseline) == kBaseline ? top
                         : (state_.textAlign & kBottom) != 0         ? top - height.descent
                                                                     : top + height.ascent;
    if (state_.isBkOpaque)
        raster_.FillPixels({left, baseline - height.ascent, left + static_cast<int>(width),
                            baseline + height.descent},
                           {.colour = quillon::PixelOf(state_.bkColour)}, state_.clip);
    PaintMask(letters_.Draw(font, line.text, line.advances), left, baseline);
}

void MetafilePlayer::PaintMask(const LetterMask& mask, int left, int baseline)
{
    const Pixel colour = quillon::PixelOf(state_.textColour);
    const PixelRect rect =
        quillon::RectAt(left + mask.left, baseline + mask.top, mask.width, mask.height);
    const PixelRect part = Intersect(rect, state_.clip.bounds);
    for (int y = part.top; y < part.bottom; ++y)
        for (int x = part.left; x < part.right; ++x) {
            const auto at =
                static_cast<std::size_t>(y - rect.top) * static_cast<std::size_t>(mask.width) +
                static_cast<std::size_t>(x - rect.left);
            const Pixel coverage = mask.coverage[at];
            if (coverage > 0 && Contains(state_.clip, x, y))
                raster_.Cover(x, y, colour, coverage);
        }
}

void MetafilePlayer::WriteText(const Record& record)
{
    namespace at = metafile::text_out;
    const std::size_t length = record.Count();
    const std::size_t place = at::kTextAtByte + (length + 1) / 2 * 2;
    if (!record.given.Has(place, at::kPlaceBytes))
        return;
    const bool isAtPosition = (state_.textAlign & kUpdatePosition) != 0;
    const int x = isAtPosition ? state_.x : record.given.Short(place + at::kXAfterText);
    const int y = isAtPosition ? state_.y : record.given.Short(place + at::kYAfterText);
    PaintText({.text = TextOf(record.given.Part(at::kTextAtByte), length), .place = Place(x, y)});
}

void MetafilePlayer::WriteExtendedText(const Record& record)
{
    namespace at = metafile::ext_text_out;
    const std::size_t length = static_cast<std::uint16_t>(record[at::kCount]);
    const int options = record[at::kOptions];
    const bool hasRect = (options & (kOpaqueRect | kClippedRect)) != 0;
    const std::size_t begin = hasRect ? at::kTextAfterRectAtByte : at::kTextAtByte;
    if (!record.given.Has(begin, length))
        return;
    const RasterClip clip = state_.clip;
    if (hasRect) {
        const PixelRect rect = PixelsOf(
            Rect(record[at::kLeft], record[at::kTop], record[at::kRight], record[at::kBottom]));
        if ((options & kOpaqueRect) != 0)
            raster_.FillPixels(rect, {.colour = quillon::PixelOf(state_.bkColour)}, state_.clip);
        if ((options & kClippedRect) != 0)
            state_.clip.bounds = Intersect(clip.bounds, rect);
    }
    const bool isAtPosition = (state_.textAlign & kUpdatePosition) != 0;
    Line line{.text = TextOf(record.given.Part(begin), length),
              .place = Place(isAtPosition ? state_.x : record[at::kX],
                             isAtPosition ? state_.y : record[at::kY])};
    const std::size_t advances = begin + (length + 1) / 2 * 2;
    const std::size_t letters = std::min(length, kMaxTextLength);
    if (letters > 0 && record.given.Has(advances, std::uint64_t{letters} * 2))
        for (std::size_t i = 0; i < letters; ++i)
            line.advances.push_back(HBox(record.given.Short(advances + i * 2)) / kFine);
    PaintText(std::move(line));
    state_.clip = clip;
}

} // namespace quillon
