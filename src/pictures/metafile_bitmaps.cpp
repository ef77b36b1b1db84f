// The records that bring bitmaps, or paint a rectangle with a brush.
#include "pictures/bitmap.h"
#include "pictures/metafile_player.h"

#include <algorithm>

namespace quillon {

namespace {

// Decoded it takes 48 MB for a moment.
constexpr std::int64_t kMaxDibPixels = 12'000'000;
constexpr int kWorkOfDibPixel = 4;
constexpr int kWorkOfBlitPixel = 8;
constexpr std::uint8_t kSourceCopy = 0xCC;

std::uint8_t TableAt(const MetafileRecord& record)
{
    return record.given.Byte(metafile::kOperationTableAtByte);
}

bool IsTopDown(PictureBytes dib)
{
    BitmapHeader header;
    return ReadBitmapHeader(dib, header) == PictureFault::None && header.isTopDown;
}

/// Where a place of the target is in the source.
class Sampling {
public:
    Sampling(std::int32_t from, std::int32_t to, int first, int length)
        : from_(from), size_(to == from ? 1 : to - from), first_(first), length_(length)
    {
    }

    int operator()(int pixel) const
    {
        const std::int64_t middle = std::int64_t{pixel} * kFine + kFine / 2 - from_;
        const std::int64_t place = middle * length_ / size_;
        // Rounded down also where it is negative, on a bitmap that is mirrored.
        const bool isBelow =
            (middle * length_ % size_ != 0) && ((middle * length_ < 0) != (size_ < 0));
        return first_ + static_cast<int>(isBelow ? place - 1 : place);
    }

private:
    std::int64_t from_;
    std::int64_t size_;
    int first_;
    int length_;
};

} // namespace

std::shared_ptr<const Picture> MetafilePlayer::DecodeDib(PictureBytes dib, std::int64_t mostPixels)
{
    BitmapHeader header;
    if (ReadBitmapHeader(dib, header) != PictureFault::None ||
        header.width * header.height > mostPixels)
        return nullptr;
    raster_.Work().Use(header.width * header.height * kWorkOfDibPixel);
    DecodedPixels decoded = DecodeBitmap(dib, header);
    if (decoded.fault != PictureFault::None)
        return nullptr;
    return std::make_shared<const Picture>(std::move(decoded.picture));
}

void MetafilePlayer::PlayBlit(const Blit& blit, PictureBytes dib)
{
    if (raster_.Work().IsExhausted())
        return;
    const auto source = DecodeDib(dib, kMaxDibPixels);
    if (!source)
        return;
    Blit placed = blit;
    // Some records count the rows of a bitmap as it is in the file.
    if (blit.countsFromBottom && !IsTopDown(dib))
        placed.top = source->height - blit.top - blit.height;
    PaintBlit(placed, *source);
}

void MetafilePlayer::PaintBlit(const Blit& blit, const Picture& source)
{
    const PixelRect part = Intersect(PixelsOf(blit.target), state_.clip.bounds);
    const Sampling across(blit.target.first.x, blit.target.last.x, blit.left, blit.width);
    const Sampling down(blit.target.first.y, blit.target.last.y, blit.top, blit.height);
    const Pixel pattern = quillon::PixelOf(state_.brush.colour);
    for (int y = part.top; y < part.bottom && !raster_.Work().IsExhausted(); ++y) {
        const int row = down(y);
        raster_.Work().Use(std::int64_t{kWorkOfBlitPixel} * std::max(part.Width(), 1));
        if (row < 0 || row >= source.height)
            continue;
        const Pixel* pixels = source.pixels.data() + std::ptrdiff_t{row} * source.width;
        for (int x = part.left; x < part.right; ++x) {
            const int column = across(x);
            if (column < 0 || column >= source.width || !Contains(state_.clip, x, y))
                continue;
            if (blit.table == kSourceCopy)
                raster_.Target().Row(y)[x] = pixels[column] | 0xFF000000;
            else
                raster_.Combine(x, y, pattern, pixels[column], blit.table);
        }
    }
}

void MetafilePlayer::PatBlt(const Record& record)
{
    namespace at = metafile::pat_blt;
    const int left = record[at::kLeft];
    const int top = record[at::kTop];
    const std::uint8_t table = TableAt(record);
    Paint paint = BrushPaint();
    // The brush alone, without a source.
    paint.combination = static_cast<Combination>((table & 3) | (table >> 2 & 0xC));
    if (HasBrush() || paint.combination == 0 || paint.combination == 0xF || paint.combination == 5)
        raster_.FillPixels(
            PixelsOf(Rect(left, top, left + record[at::kWidth], top + record[at::kHeight])), paint,
            state_.clip);
}

void MetafilePlayer::PlayBitmap(const Record& record, const metafile::BitmapLayout& at)
{
    const int left = record[at.left];
    const int top = record[at.top];
    PlayBlit({.target = Rect(left, top, left + record[at.width], top + record[at.height]),
              .left = record[at.sourceLeft],
              .top = record[at.sourceTop],
              .width = record[at.sourceWidth],
              .height = record[at.sourceHeight],
              .table = at.hasOperation ? TableAt(record) : kSourceCopy,
              .countsFromBottom = at.countsFromBottom},
             record.given.Part(at.bitmapAtByte));
}

void MetafilePlayer::DIBBitBlt(const Record& record)
{
    // Without a bitmap there is a word between, and the brush alone is used.
    constexpr std::size_t kBitmap = metafile::kDIBBitBltLayout.bitmapAtByte;
    const bool hasBitmap = record.given.Has(0, kBitmap + 4) && record.given.Long(kBitmap) >= 12;
    if (hasBitmap)
        PlayBitmap(record, metafile::kDIBBitBltLayout);
}

void MetafilePlayer::DIBStretchBlt(const Record& record)
{
    PlayBitmap(record, metafile::kDIBStretchBltLayout);
}

void MetafilePlayer::StretchDIBits(const Record& record)
{
    PlayBitmap(record, metafile::kStretchDIBitsLayout);
}

void MetafilePlayer::SetDIBitsToDevice(const Record& record)
{
    PlayBitmap(record, metafile::kSetDIBitsToDeviceLayout);
}

} // namespace quillon
