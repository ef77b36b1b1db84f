#include "wine/virtual_display.h"

#include "wine/package.h"

#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <png.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

std::uint32_t NumberAt(const std::string& bytes, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes.at(at + i));
    return number;
}

} // namespace

// The server tells its number through a pipe once it is ready to be used.
VirtualDisplay::VirtualDisplay(Displays displays)
{
    int ends[2] = {};
    if (pipe(ends) != 0)
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], 5);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", 1, 0);
    std::vector<const char*> words{"Xvfb", "-displayfd",  "5",         "-screen",
                                   "0",    "1024x768x24", "-nolisten", "tcp"};
    if (displays == Displays::Two)
        words.insert(words.end(),
                     {"-screen", "1", "800x600x24", "+xinerama", "-extension", "RANDR"});
    words.push_back(nullptr);
    const int failure = posix_spawnp(&process_, "Xvfb", &actions, nullptr,
                                     const_cast<char* const*>(words.data()), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::string number;
    char digit = 0;
    while (failure == 0 && read(ends[0], &digit, 1) == 1 && digit != '\n')
        number += digit;
    close(ends[0]);
    EXPECT_FALSE(number.empty()) << "Xvfb does not run";
    setenv("QUILLON_WINE_DISPLAY", (":" + number).c_str(), 1);
}

VirtualDisplay::~VirtualDisplay()
{
    unsetenv("QUILLON_WINE_DISPLAY");
    if (process_ > 0) {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
}

void BitmapToPng(const fs::path& bitmap, const fs::path& png)
{
    constexpr std::size_t kHead = 14 + 40;
    const std::string bytes = ReadBytes(bitmap);
    ASSERT_GT(bytes.size(), kHead) << bitmap;
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = NumberAt(bytes, 18);
    image.height = NumberAt(bytes, 22);
    image.format = PNG_FORMAT_BGR;
    // From the last row to the first, and without the bytes that have no meaning.
    std::string rows;
    for (std::size_t y = image.height; y-- > 0;)
        for (std::size_t x = 0; x < image.width; ++x)
            rows += bytes.substr(kHead + 4 * (y * image.width + x), 3);
    fs::create_directories(png.parent_path());
    EXPECT_TRUE(png_image_write_to_file(&image, png.c_str(), 0, rows.data(), 0, nullptr))
        << image.message;
}

} // namespace quillon::test
