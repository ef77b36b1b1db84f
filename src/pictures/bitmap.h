// Device-independent bitmaps, in a file of their own or inside a metafile: 1, 4, 8, 16, 24 and 32
// bits a pixel, run lengths, bit fields, from the top or from the bottom, with the header of
// Windows or OS/2.
#pragma once

#include "design/picture.h"
#include "pictures/picture_bytes.h"
#include "pictures/picture_file.h"

namespace quillon {

struct DecodedPixels {
    Picture picture;
    PictureFault fault = PictureFault::None;
};

/// A whole file. Too large is one whose bytes and pixels take more than `memory`, in bytes.
DecodedPixels DecodeBitmapFile(std::string_view bytes, std::int64_t memory);

/// What a bitmap says of itself, so that it can be judged before it is decoded.
struct BitmapHeader {
    std::size_t headerSize = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool isTopDown = false;
    bool isOs2 = false; // three bytes a colour
    int bits = 0;
    std::uint32_t compression = 0;
    std::uint32_t colours = 0;   // of the palette
    std::uint32_t masks[4] = {}; // red, green, blue, alpha
    std::size_t masksSize = 0;   // after the header
    std::size_t PixelsOffset() const
    {
        return headerSize + masksSize + std::size_t{colours} * (isOs2 ? 3 : 4);
    }
};

/// From the header on. A fault where nothing can be decoded.
PictureFault ReadBitmapHeader(PictureBytes dib, BitmapHeader& header);

/// The pixels lie at `pixels`; 0 is right after the colours.
DecodedPixels DecodeBitmap(PictureBytes dib, const BitmapHeader& header, std::size_t pixels = 0);

} // namespace quillon
