#include "builder/responsive_copy.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

constexpr std::size_t kSizes[] = {0, 1000, 5 * 1024 * 1024};

TEST(CopyResponsively, CopiesFilesOfAnySize)
{
    test::ScriptedAsk ask;
    test::MemoryFiles files;
    files.PutFolder("D:\\");
    for (const std::size_t size : kSizes) {
        files.Put("C:\\a.bin", std::string(size, 'x'));
        CopyResponsively(files, ask, "C:\\a.bin", "D:\\b.bin");
        EXPECT_EQ(files.Get("D:\\b.bin"), std::string(size, 'x'));
    }
}

TEST(CopyResponsively, FailsAsAPlainCopyDoes)
{
    test::ScriptedAsk ask;
    test::MemoryFiles files;
    files.PutFolder("D:\\");
    files.RefuseOutput("D:\\b.bin", ErrorNumber::kDiskFull);
    for (const std::size_t size : kSizes) {
        files.Put("C:\\a.bin", std::string(size, 'x'));
        EXPECT_EQ(RunErrorNumber([&] { CopyResponsively(files, ask, "C:\\a.bin", "D:\\b.bin"); }),
                  ErrorNumber::kDiskFull);
    }
    EXPECT_EQ(RunErrorNumber([&] { CopyResponsively(files, ask, "C:\\missing", "D:\\b.bin"); }),
              ErrorNumber::kFileNotFound);
}

} // namespace
} // namespace quillon
