// Picture files as Windows reads them: bitmaps and metafiles give the very pixels that they give
// here, and JPEG pictures, which the system decodes, nearly the same ones.
#include "pictures/picture_file.h"
#include "wine/wine.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

// Two decoders round differently.
constexpr int kJpegTolerance = 4;

struct NoLetters : Letters {
    FontHeight Height(const ScreenFont&) override { return {}; }
    std::vector<int> Advances(const ScreenFont&, const Text&) override { return {}; }
    LetterMask Draw(const ScreenFont&, const Text&, const std::vector<int>&) override { return {}; }
};

std::string ReadAll(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

struct Read {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t fault = 99;
    std::string pixels;
};

Read ReadInWine(const WinePrefix& prefix, const fs::path& program, const fs::path& file, int width,
                int height)
{
    const auto output = WorkFolder() / "pixels";
    fs::remove(output);
    EXPECT_EQ(prefix.Run(OnZ(program), OnZ(file) + " " + std::to_string(width) + " " +
                                           std::to_string(height) + " " + OnZ(output)),
              0U);
    const std::string bytes = ReadAll(output);
    Read read;
    if (bytes.size() >= 12) {
        std::memcpy(&read.width, bytes.data(), 4);
        std::memcpy(&read.height, bytes.data() + 4, 4);
        std::memcpy(&read.fault, bytes.data() + 8, 4);
        read.pixels = bytes.substr(12);
    }
    return read;
}

TEST(WindowsPictures, HaveThePixelsThatTheToolShows)
{
    const WinePrefix prefix;
    const auto program = WorkFolder() / "read_picture.exe";
    fs::copy_file(TestProgramFolder() / "read_picture.exe", program);
    int count = 0;
    for (const auto& entry :
         fs::directory_iterator(fs::path(QUILLON_SOURCE_FOLDER) / "fuzz/corpus/picture_file")) {
        // Files found by fuzzing have no extension. Among them are damaged JPEG files, which each
        // decoder repairs differently.
        if (!entry.path().has_extension())
            continue;
        const auto file = WorkFolder() / entry.path().filename();
        fs::copy_file(entry.path(), file);
        const PictureResult here = DecodePicture(ReadAll(file));
        for (const auto& [width, height] : {std::pair{0, 0}, {50, 30}}) {
            const Read there = ReadInWine(prefix, program, file, width, height);
            EXPECT_EQ(there.fault, static_cast<std::uint32_t>(here.fault)) << file;
            NoLetters letters;
            const Picture& picture =
                here.picture.InSize(width == 0 ? here.picture.Width() : width,
                                    width == 0 ? here.picture.Height() : height, letters);
            EXPECT_EQ(there.width, static_cast<std::uint32_t>(picture.width)) << file;
            ASSERT_EQ(there.pixels.size(), picture.pixels.size() * sizeof(Pixel)) << file;
            const auto* pixels = reinterpret_cast<const unsigned char*>(picture.pixels.data());
            int worst = 0;
            for (std::size_t i = 0; i < there.pixels.size(); ++i)
                worst = std::max(worst,
                                 std::abs(pixels[i] - static_cast<unsigned char>(there.pixels[i])));
            EXPECT_LE(worst, file.extension() == ".jpg" ? kJpegTolerance : 0) << file;
        }
        ++count;
    }
    EXPECT_GE(count, 15);
}

} // namespace
} // namespace quillon::test
