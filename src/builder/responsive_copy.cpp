#include "builder/responsive_copy.h"

#include <chrono>
#include <future>

namespace quillon {

namespace {

// A smaller file is copied without a noticeable delay.
constexpr std::uint64_t kLarge = 4 * 1024 * 1024;
constexpr std::chrono::milliseconds kBetweenEvents{30};

} // namespace

void CopyResponsively(FileSystem& files, Ask& ask, const Text& from, const Text& to)
{
    if (files.Status(from).size < kLarge) {
        files.CopyContent(from, to);
        return;
    }
    std::future<void> copy = std::async(std::launch::async, [&] { files.CopyContent(from, to); });
    while (copy.wait_for(kBetweenEvents) != std::future_status::ready)
        ask.ProcessEvents();
    copy.get();
}

} // namespace quillon
