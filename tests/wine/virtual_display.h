// A screen in memory that Wine shows its windows on, for as long as the object lives. Without one
// the windows are there all the same, but nothing is painted.
#pragma once

#include <filesystem>
#include <sys/types.h>

namespace quillon::test {

class VirtualDisplay {
public:
    /// Fails the test where the machine can't make one.
    VirtualDisplay();
    ~VirtualDisplay();
    VirtualDisplay(const VirtualDisplay&) = delete;
    VirtualDisplay& operator=(const VirtualDisplay&) = delete;

private:
    pid_t process_ = -1;
};

/// A bitmap of 32 bits, as Windows programs write it, as a PNG file.
void BitmapToPng(const std::filesystem::path& bitmap, const std::filesystem::path& png);

} // namespace quillon::test
