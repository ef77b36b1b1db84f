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

// The server writes its number to a pipe once it is ready to be used.
constexpr int kNumberPipe = 5;

} // namespace

VirtualDisplay::VirtualDisplay(Displays displays)
{
    const std::string number = std::to_string(kNumberPipe);
    if (displays != Displays::Two) {
        const char* const size = displays == Displays::Fine ? "1920x1440x24" : "1024x768x24";
        Start({"Xvfb", "-noreset", "-displayfd", number, "-screen", "0", size, "-nolisten", "tcp"});
        return;
    }
    // One server has one display; a second one in its window has as many as its arguments say.
    Start({"Xvfb", "-noreset", "-displayfd", number, "-screen", "0", "1900x800x24", "-nolisten",
           "tcp"});
    Start({"Xephyr", "-noreset", "-displayfd", number, "-screen", "1024x768", "-origin", "1024,0",
           "-screen", "800x600", "+xinerama", "-extension", "RANDR", "-nolisten", "tcp"});
}

void VirtualDisplay::Start(const std::vector<std::string>& words)
{
    int ends[2] = {};
    if (pipe(ends) != 0)
        return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], kNumberPipe);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", 1, 0);
    std::vector<const char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(word.c_str());
    arguments.push_back(nullptr);
    pid_t process = -1;
    const int failure = posix_spawnp(&process, arguments[0], &actions, nullptr,
                                     const_cast<char* const*>(arguments.data()), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    std::string number;
    char digit = 0;
    while (failure == 0 && read(ends[0], &digit, 1) == 1 && digit != '\n')
        number += digit;
    close(ends[0]);
    EXPECT_FALSE(number.empty()) << words[0] << " does not run";
    if (failure == 0)
        processes_.push_back(process);
    // For Wine, and for a server that is shown on this one.
    setenv("QUILLON_WINE_DISPLAY", (":" + number).c_str(), 1);
    setenv("DISPLAY", (":" + number).c_str(), 1);
}

VirtualDisplay::~VirtualDisplay()
{
    unsetenv("QUILLON_WINE_DISPLAY");
    unsetenv("DISPLAY");
    for (auto process = processes_.rbegin(); process != processes_.rend(); ++process) {
        kill(*process, SIGTERM);
        waitpid(*process, nullptr, 0);
    }
}

void BitmapToPng(const fs::path& bitmap, const fs::path& png)
{
    constexpr std::size_t kHeaderSize = 14 + 40;
    const std::string bytes = ReadBytes(bitmap);
    ASSERT_GT(bytes.size(), kHeaderSize) << bitmap;
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = NumberAt(bytes, 18);
    image.height = NumberAt(bytes, 22);
    image.format = PNG_FORMAT_BGR;
    // From the last row to the first, and without the bytes that have no meaning.
    std::string rows;
    for (std::size_t y = image.height; y-- > 0;)
        for (std::size_t x = 0; x < image.width; ++x)
            rows += bytes.substr(kHeaderSize + 4 * (y * image.width + x), 3);
    fs::create_directories(png.parent_path());
    EXPECT_TRUE(png_image_write_to_file(&image, png.c_str(), 0, rows.data(), 0, nullptr))
        << image.message;
}

} // namespace quillon::test
