// A screen in memory that Wine shows its windows on, for as long as the object lives. Without one
// the windows are there all the same, but nothing is painted.
#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quillon::test {

class VirtualDisplay {
public:
    /// One display of 1024 x 768, or a smaller one of 800 x 600 to the right of it as well; or a
    /// single one of 1920 x 1440, where there is room for windows of twice the size.
    enum class Displays { One, Two, Fine };
    /// Fails the test where the machine can't make them.
    explicit VirtualDisplay(Displays displays = Displays::One);
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    void Start(const std::vector<std::string>& words);

    std::vector<pid_t> processes_;
};

/// A bitmap of 32 bits, as Windows programs write it, as a PNG file.
void BitmapToPng(const std::filesystem::path& bitmap, const std::filesystem::path& png);

} // namespace quillon::test
