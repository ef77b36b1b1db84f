// How much memory an archive takes that is far larger. The sanitizers keep what is freed and would
// hide it, so this program is made without them alone.
#include "archive/writer/zip_writer.h"
#include "builder/tricky_files.h"
#include "support/counting_output.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {
namespace {

constexpr long kMiB = 1024; // in the system's unit for memory

/// The peak of the packing in a process of its own, since memory that other tests left would hide
/// it. -1 where the packing fails.
long PeakOfPacking(const FileSystem& files, const std::vector<ZipSource>& sources,
                   const ZipOptions& options)
{
    const pid_t child = fork();
    if (child == 0) {
        CountingOutput output;
        try {
            WriteZip(files, sources, output, options);
        } catch (const std::exception&) {
            _exit(1);
        }
        _exit(output.Position() > 0 ? 0 : 1);
    }
    int status = 0;
    rusage used{};
    EXPECT_EQ(wait4(child, &status, 0, &used), child);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? used.ru_maxrss : -1;
}

TEST(ZipMemory, IsBoundedForLargeFiles)
{
    TrickyFiles files;
    std::vector<ZipSource> sources;
    const auto put = [&](const std::string& name, std::uint64_t size) {
        files.PutTricky("C:\\" + name, size,
                        [=] { return std::make_unique<MadeUpInput>(size, size, FillWithText); });
        sources.push_back({"C:\\" + name, name, ""});
    };
    for (int i = 0; i < 2; ++i)
        put("text" + std::to_string(i), std::uint64_t{64} << 20U);
    for (int i = 0; i < 30; ++i)
        put("whole" + std::to_string(i), std::uint64_t{4} << 20U);
    const long peak = PeakOfPacking(files, sources, {.threads = 16});
    EXPECT_GT(peak, 64 * kMiB) << "nothing was measured";
    EXPECT_LT(peak, 256 * kMiB);
}

TEST(ZipMemory, IsBoundedForManySmallFiles)
{
    TrickyFiles files;
    std::string text;
    for (int i = 0; i < 3000; ++i)
        text.push_back(static_cast<char>('a' + i * i % 23));
    files.Put("C:\\small.txt", text);
    std::vector<ZipSource> sources;
    for (int i = 0; i < 100000; ++i)
        sources.push_back({"C:\\small.txt", "folder/" + std::to_string(i) + ".txt", "F1"});
    const long peak = PeakOfPacking(files, sources, {});
    EXPECT_GT(peak, 16 * kMiB) << "nothing was measured";
    EXPECT_LT(peak, 192 * kMiB);
}

} // namespace
} // namespace quillon::test
