#include "runtime/command_line/uninstaller_line.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(LineOfTheStarter, HoldsTheStarterAndItsSwitches)
{
    const auto line =
        ReadStarterLine(R"(/UNINSTALLER="C:\Ett program\QNXUNIN.EXE" "C:\A\QNXUNIN.LOG" /S )");
    ASSERT_TRUE(line);
    EXPECT_EQ(line->program, R"(C:\Ett program\QNXUNIN.EXE)");
    EXPECT_EQ(line->given, R"("C:\A\QNXUNIN.LOG" /S)");
    EXPECT_EQ(ReadStarterLine(R"(/UNINSTALLER="C:\A\X.EXE" )").value().given, "");
}

TEST(LineOfTheStarter, IsNoneOnTheLineOfASetup)
{
    for (const char* line :
         {"", "/S", R"(/PACKAGE="D:\" /UNINSTALLER="C:\A\X.EXE" /S)", "/UNINSTALLER=C:\\A\\X.EXE",
          "/UNINSTALLER=\"C:\\A\\X.EXE", "/UNINSTALLER=", "/uninstaller=\"C:\\A\\X.EXE\""})
        EXPECT_FALSE(ReadStarterLine(line)) << line;
}

} // namespace
} // namespace quillon
