// What the other tests depend on.
#include "wine/wine.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(Wine, RunsAProgramAndTellsItsWholeExitCode)
{
    const WinePrefix prefix;
    const std::string canary = OnZ(WorkFolder() / "canary.exe");
    EXPECT_EQ(prefix.Run(canary, R"("C:\en sång.txt" 1639)"), 1639U);
    EXPECT_TRUE(std::filesystem::exists(prefix.OnHost("c:\\EN SÅNG.TXT")));
}

TEST(Wine, KeepsPrefixesApart)
{
    const WinePrefix first;
    const WinePrefix second;
    const std::string canary = OnZ(WorkFolder() / "canary.exe");
    EXPECT_EQ(first.Run(canary, "C:\\windows\\win.ini 0"), 0U);
    EXPECT_EQ(std::filesystem::file_size(first.OnHost("C:\\windows\\win.ini")), 5U);
    EXPECT_NE(std::filesystem::file_size(second.OnHost("C:\\windows\\win.ini")), 5U);
}

} // namespace
} // namespace quillon::test
