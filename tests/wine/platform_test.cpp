// The Windows side of src/platform, tried by a program that runs there.
#include "wine/wine.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace quillon::test {
namespace {

TEST(WindowsPlatform, KeepsItsPromises)
{
    const WinePrefix prefix;
    std::filesystem::create_directory(prefix.DriveC() / "try");
    const auto copy = WorkFolder() / "platform_check.exe";
    std::filesystem::copy_file(TestProgramFolder() / "platform_check.exe", copy);

    EXPECT_EQ(prefix.Run(OnZ(copy), R"(C:\try C:\log.txt)"), 0U);
    std::ifstream file(prefix.DriveC() / "log.txt");
    const std::string log{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(log, "94 checks\n");
}

} // namespace
} // namespace quillon::test
