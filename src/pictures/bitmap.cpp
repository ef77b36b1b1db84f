#include "pictures/bitmap.h"

#include "pictures/run_lengths.h"

#include <algorithm>
#include <bit>

namespace quillon {

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kOs2Header = 12;
constexpr std::size_t kInfoHeader = 40;
constexpr std::size_t kOs2LongHeader = 64;
constexpr std::size_t kMasksHeader = 52;
constexpr std::size_t kAlphaMaskHeader = 56;
constexpr std::size_t kMaxHeaderSize = 124;

// Where the fields of BITMAPCOREHEADER and BITMAPINFOHEADER begin, and BITMAPFILEHEADER's offset of
// the pixels; in bytes.
namespace core_header {
constexpr std::size_t kWidth = 4, kHeight = 6, kBits = 10;
}
namespace info_header {
constexpr std::size_t kWidth = 4, kHeight = 8, kBits = 14, kCompression = 16, kColoursUsed = 32;
}
constexpr std::size_t kPixelsOffset = 10;

// More than a byte can name, since some writers store that many.
constexpr std::uint32_t kMaxColours = 65536;

enum Compression : std::uint32_t {
    kPlain = 0,
    kRunLengths8 = 1,
    kRunLengths4 = 2,
    kBitFields = 3,
    kAlphaBitFields = 6
};

bool IsKnownHeader(std::size_t size)
{
    // OS/2 lets a long header end after any field.
    return size == kOs2Header || (size >= 16 && size <= kOs2LongHeader && size % 2 == 0) ||
           size == 108 || size == kMaxHeaderSize;
}

bool AreContiguous(std::uint32_t mask)
{
    return mask == 0 || std::has_single_bit((mask >> std::countr_zero(mask)) + std::uint64_t{1});
}

bool SetMasks(PictureBytes dib, BitmapHeader& header)
{
    const bool isBitFields =
        header.compression == kBitFields || header.compression == kAlphaBitFields;
    if (!isBitFields) {
        static constexpr std::uint32_t kMasks16[] = {0x7C00, 0x03E0, 0x001F, 0};
        static constexpr std::uint32_t kMasks32[] = {0xFF0000, 0x00FF00, 0x0000FF, 0};
        std::ranges::copy(header.bits == 16 ? kMasks16 : kMasks32, header.masks);
        return true;
    }
    if (header.bits != 16 && header.bits != 32)
        return false;
    const int behind = header.headerSize >= kMasksHeader       ? 0
                       : header.compression == kAlphaBitFields ? 4
                                                               : 3;
    header.masksSize = static_cast<std::size_t>(behind) * 4;
    const int count = header.headerSize >= kAlphaMaskHeader || behind == 4 ? 4 : 3;
    for (int i = 0; i < count; ++i)
        header.masks[i] = dib.Long(kInfoHeader + static_cast<std::size_t>(i) * 4);
    return std::ranges::all_of(header.masks, AreContiguous);
}

void ReadOs2Header(PictureBytes dib, BitmapHeader& header)
{
    header.isOs2 = true;
    header.width = dib.Word(core_header::kWidth);
    header.height = dib.Word(core_header::kHeight);
    header.bits = dib.Word(core_header::kBits);
}

void ReadInfoHeader(PictureBytes dib, BitmapHeader& header)
{
    header.width = dib.SignedLong(info_header::kWidth);
    header.height = dib.SignedLong(info_header::kHeight);
    header.isTopDown = header.height < 0;
    header.height = header.isTopDown ? -header.height : header.height;
    header.bits = dib.Word(info_header::kBits);
    // A header that ends earlier has zeros there.
    header.compression = header.headerSize >= info_header::kCompression + 4
                             ? dib.Long(info_header::kCompression)
                             : 0;
    header.colours = header.headerSize >= info_header::kColoursUsed + 4
                         ? std::min(dib.Long(info_header::kColoursUsed), kMaxColours)
                         : 0;
}

bool IsCompressionOf(const BitmapHeader& header)
{
    switch (header.compression) {
    case kPlain:
        return true;
    case kRunLengths8:
        return header.bits == 8 && !header.isTopDown;
    case kRunLengths4:
        return header.bits == 4 && !header.isTopDown;
    case kBitFields:
    case kAlphaBitFields:
        // In the header of OS/2 the same number means another form.
        return header.headerSize != kOs2LongHeader;
    default:
        return false;
    }
}

/// Stretches the bits below a mask to 0 to 255.
class Channel {
public:
    explicit Channel(std::uint32_t mask)
        : mask_(mask), shift_(mask == 0 ? 0 : std::countr_zero(mask)), maxValue_(mask >> shift_)
    {
    }

    Pixel operator()(std::uint32_t pixel) const
    {
        if (maxValue_ == 255)
            return pixel >> shift_ & 0xFF;
        if (maxValue_ == 0)
            return 0;
        const std::uint64_t value = (pixel & mask_) >> shift_;
        return static_cast<Pixel>((value * 510 + maxValue_) / (2 * std::uint64_t{maxValue_}));
    }

private:
    std::uint32_t mask_;
    int shift_;
    std::uint32_t maxValue_;
};

class PlainPixels {
public:
    PlainPixels(const BitmapHeader& header, const std::vector<Pixel>& palette)
        : bits_(header.bits), palette_(palette), red_(header.masks[0]), green_(header.masks[1]),
          blue_(header.masks[2]), alpha_(header.masks[3]), hasAlpha_(header.masks[3] != 0)
    {
    }

    void Row(PictureBytes row, int width, Pixel* out) const
    {
        for (int x = 0; x < width; ++x)
            out[x] = At(row, static_cast<std::size_t>(x));
    }

private:
    Pixel At(PictureBytes row, std::size_t x) const
    {
        switch (bits_) {
        case 1:
            return palette_[row.Byte(x / 8) >> (7 - x % 8) & 1U];
        case 4:
            return palette_[row.Byte(x / 2) >> (x % 2 == 0 ? 4 : 0) & 0xFU];
        case 8:
            return palette_[row.Byte(x)];
        case 16:
            return Fields(row.Word(x * 2));
        case 24:
            return kOpaquePixel | Pixel{row.Byte(x * 3 + 2)} << 16 |
                   Pixel{row.Byte(x * 3 + 1)} << 8 | row.Byte(x * 3);
        default:
            return Fields(row.Long(x * 4));
        }
    }

    Pixel Fields(std::uint32_t pixel) const
    {
        const Pixel colour = red_(pixel) << 16 | green_(pixel) << 8 | blue_(pixel);
        return (hasAlpha_ ? alpha_(pixel) << 24 : kOpaquePixel) | colour;
    }

    int bits_;
    const std::vector<Pixel>& palette_;
    Channel red_;
    Channel green_;
    Channel blue_;
    Channel alpha_;
    bool hasAlpha_;
};

/// Colours multiplied by their alpha. Many writers leave an alpha of 0 everywhere and mean opaque.
void ApplyAlpha(Picture& picture)
{
    const bool isUnused =
        std::ranges::none_of(picture.pixels, [](Pixel pixel) { return pixel >> 24 != 0; });
    for (Pixel& pixel : picture.pixels)
        pixel = isUnused ? pixel | kOpaquePixel : Covering(pixel | kOpaquePixel, pixel >> 24);
}

/// As many entries as the bits can name; those that the file lacks are black.
std::vector<Pixel> ReadPalette(PictureBytes dib, const BitmapHeader& header)
{
    std::vector<Pixel> palette(header.bits <= 8 ? std::size_t{1} << header.bits : 0, kOpaquePixel);
    const std::size_t entry = header.isOs2 ? 3 : 4;
    std::size_t at = header.headerSize + header.masksSize;
    const std::size_t count = std::min<std::size_t>(palette.size(), header.colours);
    for (std::size_t i = 0; i < count; ++i, at += entry)
        palette[i] = kOpaquePixel | Pixel{dib.Byte(at + 2)} << 16 | Pixel{dib.Byte(at + 1)} << 8 |
                     dib.Byte(at);
    return palette;
}

bool DecodePlain(PictureBytes pixels, const BitmapHeader& header, const std::vector<Pixel>& palette,
                 Picture& picture)
{
    const auto bits =
        static_cast<std::uint64_t>(header.width) * static_cast<std::uint64_t>(header.bits);
    // Rows are filled up to whole words of 32 bits; of the last one that may be missing.
    const std::uint64_t rowBytes = (bits + 31) / 32 * 4;
    if (!pixels.Has(0, rowBytes * static_cast<std::uint64_t>(picture.height - 1) + (bits + 7) / 8))
        return false;
    const PlainPixels plain(header, palette);
    for (int y = 0; y < picture.height; ++y) {
        const int row = header.isTopDown ? y : picture.height - 1 - y;
        plain.Row(pixels.Part(static_cast<std::size_t>(rowBytes) * static_cast<std::size_t>(y)),
                  picture.width, picture.pixels.data() + std::ptrdiff_t{row} * picture.width);
    }
    if (header.masks[3] != 0)
        ApplyAlpha(picture);
    return true;
}

} // namespace

PictureFault ReadBitmapHeader(PictureBytes dib, BitmapHeader& header)
{
    header.headerSize = dib.Long(0);
    if (!IsKnownHeader(header.headerSize) || !dib.Has(0, header.headerSize))
        return PictureFault::Damaged;
    if (header.headerSize == kOs2Header)
        ReadOs2Header(dib, header);
    else
        ReadInfoHeader(dib, header);
    static constexpr int kBits[] = {1, 4, 8, 16, 24, 32};
    if (header.width < 1 || header.height < 1 || !IsCompressionOf(header) ||
        std::ranges::find(kBits, header.bits) == std::end(kBits) || !SetMasks(dib, header))
        return PictureFault::Damaged;
    if (header.width > kMaxPictureSide || header.height > kMaxPictureSide ||
        header.width > kMaxPicturePixels / header.height)
        return PictureFault::TooLarge;
    const auto allColours = header.bits <= 8 ? std::uint32_t{1} << header.bits : 0U;
    if (header.bits <= 8 && header.colours == 0)
        header.colours = allColours;
    return PictureFault::None;
}

DecodedPixels DecodeBitmap(PictureBytes dib, const BitmapHeader& header, std::size_t pixels)
{
    if (!dib.Has(0, header.PixelsOffset()))
        return {{}, PictureFault::Damaged};
    const std::vector<Pixel> palette = ReadPalette(dib, header);
    const PictureBytes bits = dib.Part(pixels == 0 ? header.PixelsOffset() : pixels);
    // A file that can't hold its pixels is refused before there is room for them.
    if (header.compression != kRunLengths8 && header.compression != kRunLengths4 &&
        bits.Size() < static_cast<std::uint64_t>(header.width * header.height * header.bits) / 8)
        return {{}, PictureFault::Damaged};
    Picture picture{static_cast<int>(header.width), static_cast<int>(header.height), {}};
    picture.pixels.resize(static_cast<std::size_t>(header.width * header.height));
    const bool isWhole = header.compression == kRunLengths8 || header.compression == kRunLengths4
                             ? DecodeRunLengths(bits, header.bits, palette, picture)
                             : DecodePlain(bits, header, palette, picture);
    if (!isWhole)
        return {{}, PictureFault::Damaged};
    return {std::move(picture), PictureFault::None};
}

DecodedPixels DecodeBitmapFile(std::string_view bytes, std::int64_t memory)
{
    const PictureBytes file(bytes);
    const PictureBytes dib = file.Part(kFileHeader);
    BitmapHeader header;
    if (const PictureFault fault = ReadBitmapHeader(dib, header); fault != PictureFault::None)
        return {{}, fault};
    if (static_cast<std::int64_t>(bytes.size()) +
            header.width * header.height * std::int64_t{sizeof(Pixel)} >
        memory)
        return {{}, PictureFault::TooLarge};
    const std::size_t offset = file.Long(kPixelsOffset);
    // Some writers leave the place of the pixels out, or count it from elsewhere.
    const bool isKnown = offset >= kFileHeader + header.headerSize;
    if (isKnown && !file.Has(offset, 1))
        return {{}, PictureFault::Damaged};
    // A palette that the pixels begin in has fewer colours than it says.
    if (isKnown && offset - kFileHeader < header.PixelsOffset())
        header.colours = static_cast<std::uint32_t>(
            (offset - kFileHeader -
             std::min(offset - kFileHeader, header.headerSize + header.masksSize)) /
            (header.isOs2 ? 3 : 4));
    return DecodeBitmap(dib, header, isKnown ? offset - kFileHeader : 0);
}

} // namespace quillon
