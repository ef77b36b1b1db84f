// What the tests of picture files share: files written byte by byte, and pixels to compare with.
#pragma once

#include "pictures/picture_file.h"
#include "support/block_letters.h"

#include <cstdlib>
#include <functional>
#include <string>

namespace quillon::test {

inline std::string Little(std::uint64_t value, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
    return text;
}

inline std::string Word(int value)
{
    return Little(static_cast<std::uint64_t>(value), 2);
}

inline std::string Long(std::int64_t value)
{
    return Little(static_cast<std::uint64_t>(value), 4);
}

/// In its own size.
inline Picture PixelsOf(const PictureResult& result)
{
    BlockLetters letters;
    return result.picture.InSize(result.picture.Width(), result.picture.Height(), letters);
}

inline Picture Decoded(const std::string& bytes)
{
    const PictureResult result = DecodePicture(bytes);
    EXPECT_EQ(result.fault, PictureFault::None);
    return result.picture.IsEmpty() ? Picture{} : PixelsOf(result);
}

/// The largest difference of any channel, as it shows on white; 256 where the sizes differ.
inline int Difference(const Picture& a, const Picture& b)
{
    if (a.width != b.width || a.height != b.height || a.pixels.size() != b.pixels.size())
        return 256;
    int most = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        for (int shift = 0; shift < 24; shift += 8) {
            const int one = static_cast<int>(Over(a.pixels[i], 0xFFFFFFFF) >> shift & 0xFF);
            const int other = static_cast<int>(Over(b.pixels[i], 0xFFFFFFFF) >> shift & 0xFF);
            most = std::max(most, std::abs(one - other));
        }
    return most;
}

/// What an independent program makes of the file.
Picture ByImageMagick(const std::string& bytes, const std::string& ending);

struct Usage {
    bool isOver = false; // ended by itself
    PictureFault fault = PictureFault::None;
    long peakKilobytes = 0;
};

/// Makes a file's bytes and decodes them in a process of its own, also in another size where
/// `width` is not 0.
Usage DecodeInChild(const std::function<std::string()>& make, int width = 0, int height = 0);

// The sanitizers take memory themselves and a multiple of the time. With them, half the side of a
// huge picture shows the same faults; what it takes is measured without them, in its whole size.
#ifdef QUILLON_SANITIZED
inline constexpr bool kIsMemoryMeasured = false;
inline constexpr int kShareOfHugeSide = 2;
#else
inline constexpr bool kIsMemoryMeasured = true;
inline constexpr int kShareOfHugeSide = 1;
#endif
inline constexpr int kHugeSide = 20'000 / kShareOfHugeSide;
inline constexpr long kMaxKilobytes = 256 * 1024;

} // namespace quillon::test
