// Picture files of any content: what comes out is a whole picture or a reason, of the size that was
// asked for, with colours that are multiplied by their alpha.
#include "pictures/picture_file.h"
#include "require.h"
#include "support/block_letters.h"

#include <cstdint>

using namespace quillon;

namespace {

constexpr std::int64_t kMaxScaled = 50'000;

void RequirePixels(const Picture& picture, int width, int height)
{
    Require(picture.width == width && picture.height == height);
    Require(picture.pixels.size() ==
            static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (const Pixel pixel : picture.pixels)
        for (const int shift : {0, 8, 16})
            Require((pixel >> shift & 0xFF) <= pixel >> 24);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const PictureResult result =
        DecodePicture(std::string(reinterpret_cast<const char*>(bytes), size));
    Require((result.fault == PictureFault::None) == !result.picture.IsEmpty());
    if (result.picture.IsEmpty())
        return 0;
    Require(result.picture.Width() <= kMaxPictureSide);
    Require(result.picture.Height() <= kMaxPictureSide);
    // Scaling many pixels takes the sanitizers seconds, and is the same as scaling few.
    const bool isDrawn =
        PictureFormatOf({reinterpret_cast<const char*>(bytes), size}) == PictureFormat::Metafile;
    if (!isDrawn && std::int64_t{result.picture.Width()} * result.picture.Height() > kMaxScaled)
        return 0;
    test::BlockLetters letters;
    RequirePixels(result.picture.InSize(48, 32, letters), 48, 32);
    RequirePixels(result.picture.InSize(7, 90, letters), 7, 90);
    return 0;
}
