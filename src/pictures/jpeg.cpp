#include "pictures/jpeg.h"

#include "pictures/jpeg_decoder.h"
#include "pictures/picture_bytes.h"

#include <utility>

namespace quillon {

namespace {

constexpr int kMaxSideSize = 65500;

enum Marker : std::uint8_t {
    kBaseline = 0xC0,
    kExtended = 0xC1,
    kProgressive = 0xC2,
    kStartOfImage = 0xD8,
    kEndOfImage = 0xD9,
    kStartOfScan = 0xDA,
    kExif = 0xE1
};

std::uint16_t BigWord(const PictureBytes& bytes, std::size_t place)
{
    return static_cast<std::uint16_t>(bytes.Byte(place) << 8 | bytes.Byte(place + 1));
}

// The frame header after its length (ITU T.81, B.2.2), in bytes: three of each component.
namespace frame_header {
constexpr std::size_t kPrecision = 0, kHeight = 1, kWidth = 3, kComponents = 5, kSampling = 7,
                      kComponentSize = 3;
}

// A directory of TIFF and its entries, in bytes.
namespace tiff {
constexpr std::size_t kDirectory = 4, kEntries = 2, kEntrySize = 12, kValue = 8;
}

bool ReadFrame(const PictureBytes& frame, JpegHeader& header)
{
    namespace at = frame_header;
    header.height = BigWord(frame, at::kHeight);
    header.width = BigWord(frame, at::kWidth);
    const int components = frame.Byte(at::kComponents);
    int maxBlocks = 1;
    header.samples16 = 0;
    for (int i = 0; i < components && i < 4; ++i) {
        const int sampling =
            frame.Byte(at::kSampling + static_cast<std::size_t>(i) * at::kComponentSize);
        const int blocks = (sampling >> 4) * (sampling & 0xF);
        maxBlocks = std::max(maxBlocks, blocks);
        header.samples16 += blocks;
    }
    header.samples16 = (header.samples16 * 16 + maxBlocks - 1) / maxBlocks;
    return frame.Byte(at::kPrecision) == 8 &&
           (components == 1 || components == 3 || components == 4) && header.width >= 1 &&
           header.height >= 1 && header.width <= kMaxSideSize && header.height <= kMaxSideSize;
}

/// Numbers in the order that the note's own header names.
class Exif {
public:
    explicit Exif(PictureBytes note) : tiff_(note.Part(6)), isBig_(note.Byte(6) == 'M')
    {
        isExif_ = note.View().substr(0, 4) == "Exif";
    }

    int Orientation() const
    {
        constexpr std::uint16_t kOrientation = 0x0112;
        if (!isExif_)
            return 1;
        const std::size_t list = Long(tiff::kDirectory);
        const int count = tiff_.Has(list, 2) ? Word(list) : 0;
        for (int i = 0; i < count; ++i) {
            const std::size_t entry =
                list + tiff::kEntries + static_cast<std::size_t>(i) * tiff::kEntrySize;
            if (!tiff_.Has(entry, tiff::kEntrySize))
                return 1;
            if (Word(entry) != kOrientation)
                continue;
            const int value = Word(entry + tiff::kValue);
            return value >= 1 && value <= 8 ? value : 1;
        }
        return 1;
    }

private:
    std::uint16_t Word(std::size_t place) const
    {
        return isBig_ ? BigWord(tiff_, place) : tiff_.Word(place);
    }
    std::uint32_t Long(std::size_t place) const
    {
        return isBig_ ? static_cast<std::uint32_t>(Word(place)) << 16 | Word(place + 2)
                      : tiff_.Long(place);
    }

    PictureBytes tiff_;
    bool isBig_;
    bool isExif_ = false;
};

/// The pixel that comes to a place when the picture is turned as it was held.
Picture Rotated(Picture picture, int orientation)
{
    if (orientation == 1)
        return picture;
    const bool swaps = orientation >= 5;
    const bool fromRight =
        orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
    const bool fromBottom =
        orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
    Picture turned{
        swaps ? picture.height : picture.width, swaps ? picture.width : picture.height, {}};
    turned.pixels.reserve(picture.pixels.size());
    for (int y = 0; y < turned.height; ++y)
        for (int x = 0; x < turned.width; ++x) {
            const int across = swaps ? y : x;
            const int down = swaps ? x : y;
            const std::ptrdiff_t column = fromRight ? picture.width - 1 - across : across;
            const std::ptrdiff_t row = fromBottom ? picture.height - 1 - down : down;
            turned.pixels.push_back(
                picture.pixels[static_cast<std::size_t>(row * picture.width + column)]);
        }
    return turned;
}

int Reduced(int side, int reduction)
{
    return (side + reduction - 1) / reduction;
}

} // namespace

bool ReadJpegHeader(std::string_view bytes, JpegHeader& header)
{
    const PictureBytes file(bytes);
    std::size_t at = 2;
    while (file.Has(at, 4)) {
        if (file.Byte(at) != 0xFF)
            return false;
        const std::uint8_t marker = file.Byte(at + 1);
        if (marker == 0xFF || marker == 0x01 || (marker >= 0xD0 && marker < kEndOfImage)) {
            at += marker == 0xFF ? 1 : 2; // padding, and markers that nothing follows
            continue;
        }
        if (marker == kEndOfImage || marker == kStartOfScan)
            return false;
        const std::size_t length = BigWord(file, at + 2);
        const PictureBytes part = file.Part(at + 4, length < 2 ? 0 : length - 2);
        if (marker == kExif && header.orientation == 1)
            header.orientation = Exif(part).Orientation();
        if (marker == kBaseline || marker == kExtended || marker == kProgressive) {
            header.isProgressive = marker == kProgressive;
            return ReadFrame(part, header);
        }
        at += 2 + length;
    }
    return false;
}

int JpegReduction(const JpegHeader& header, std::size_t fileSize, std::int64_t memory)
{
    const std::int64_t pixels = std::int64_t{header.width} * header.height;
    // Two bytes for each sample; also a plain file may come in several scans.
    const std::int64_t scans = header.isProgressive ? pixels * header.samples16 / 16 * 2 : 0;
    for (const int reduction : {1, 2, 4, 8}) {
        const std::int64_t kept =
            std::int64_t{Reduced(header.width, reduction)} * Reduced(header.height, reduction);
        // While a picture is turned, its pixels are in memory twice.
        const std::int64_t copies = header.orientation == 1 ? 1 : 2;
        if (kept <= kMaxPicturePixels &&
            static_cast<std::int64_t>(fileSize) + scans +
                    kept * copies * static_cast<std::int64_t>(sizeof(Pixel)) <=
                memory)
            return reduction;
    }
    return 0;
}

PictureResult DecodeJpeg(std::string_view bytes, std::int64_t memory)
{
    JpegHeader header;
    if (!ReadJpegHeader(bytes, header))
        return {{}, PictureFault::Damaged};
    const int reduction = JpegReduction(header, bytes.size(), memory);
    if (reduction == 0)
        return {{}, PictureFault::TooLarge};
    const std::uint64_t kept = std::uint64_t{sizeof(Pixel)} *
                               static_cast<std::uint64_t>(Reduced(header.width, reduction)) *
                               static_cast<std::uint64_t>(Reduced(header.height, reduction));
    const auto rest = static_cast<std::uint64_t>(memory) - bytes.size() - kept;
    Picture pixels = DecodeJpegPixels(
        bytes,
        {.width = header.width, .height = header.height, .reduction = reduction, .memory = rest});
    if (pixels.IsEmpty())
        return {{}, PictureFault::Damaged};
    pixels = Rotated(std::move(pixels), header.orientation);
    const bool swaps = header.orientation >= 5;
    return {ScalablePicture(swaps ? header.height : header.width,
                            swaps ? header.width : header.height, std::move(pixels)),
            PictureFault::None};
}

} // namespace quillon
