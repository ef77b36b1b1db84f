#include "runtime/switches.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(ReadSwitches, TakesAnEmptyCommandLine)
{
    const Switches switches = ReadSwitches("  ");
    EXPECT_FALSE(switches.silent);
    EXPECT_EQ(switches.destination, "");
    EXPECT_EQ(switches.password, std::nullopt);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

TEST(ReadSwitches, IgnoresTheCaseOfNames)
{
    const Switches switches =
        ReadSwitches(R"(/s /dir="C:\Ny mapp" /log="C:\temp\en logg.txt" /Password=Hemligt)");
    EXPECT_TRUE(switches.silent);
    EXPECT_EQ(switches.destination, R"(C:\Ny mapp)");
    EXPECT_EQ(switches.logFile, R"(C:\temp\en logg.txt)");
    EXPECT_EQ(switches.password, "Hemligt");
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

struct FolderCase {
    const char* line;
    const char* folder;
    bool silent;
};

class FolderSwitch : public testing::TestWithParam<FolderCase> {};

TEST_P(FolderSwitch, IsRead)
{
    const Switches switches = ReadSwitches(GetParam().line);
    EXPECT_EQ(switches.destination, GetParam().folder);
    EXPECT_EQ(switches.silent, GetParam().silent);
    EXPECT_EQ(switches.badSwitch, std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    , FolderSwitch,
    testing::Values(FolderCase{R"(/D=C:\App)", R"(C:\App)", false},
                    FolderCase{R"(/D=C:\Program Files\App /S)", R"(C:\Program Files\App)", true},
                    FolderCase{R"(/S /D=C:\Program Files\App)", R"(C:\Program Files\App)", true},
                    FolderCase{R"(/D="C:\App" /S)", R"(C:\App)", true},
                    FolderCase{R"(/DIR="C:\App\" /S)", R"(C:\App)", true},
                    FolderCase{R"(/D=C:\)", R"(C:\)", false},
                    FolderCase{R"(/D=C:\Bort\..\App/Ett\\Två\. /S)", R"(C:\App\Ett\Två)", true},
                    FolderCase{R"(/DIR=\\server\del\App)", R"(\\server\del\App)", false},
                    FolderCase{R"(/D=C:\A /D=C:\B)", R"(C:\B)", false}));

class BadSwitch : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(BadSwitch, IsNamedAsItWasGiven)
{
    EXPECT_EQ(ReadSwitches(GetParam().first).badSwitch, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    , BadSwitch,
    testing::Values(std::pair{"/S /X", "/X"}, std::pair{"/SILENT", "/SILENT"},
                    std::pair{"/S=1", "/S=1"}, std::pair{"setup", "setup"}, std::pair{"-S", "-S"},
                    std::pair{"/D", "/D"}, std::pair{"/D=", "/D="}, std::pair{"/D=App", "/D=App"},
                    std::pair{"/DIR=\"C:App\"", "/DIR=\"C:App\""}, std::pair{"/LOG=", "/LOG="},
                    std::pair{"/LOG=\"\"", "/LOG=\"\""}, std::pair{"/PASSWORD", "/PASSWORD"},
                    std::pair{"/A /B", "/A"}, std::pair{"/TEST=1", "/TEST=1"},
                    std::pair{"/PREVIEWS", "/PREVIEWS"}));

TEST(ReadSwitches, TakesAnEmptyPasswordAsOne)
{
    EXPECT_EQ(ReadSwitches("/PASSWORD=").password, "");
}

TEST(ReadSwitches, KnowsTheTwoTestModes)
{
    EXPECT_EQ(ReadSwitches("/S").testMode, std::nullopt);
    EXPECT_EQ(ReadSwitches(" /TEST").testMode, TestMode::Test);
    EXPECT_EQ(ReadSwitches("/test /S /TEST").testMode, TestMode::Test);
    const Switches preview = ReadSwitches("/LOG=a /Preview");
    EXPECT_EQ(preview.testMode, TestMode::Preview);
    EXPECT_EQ(preview.badSwitch, std::nullopt);
    const Switches both = ReadSwitches("/PREVIEW /TEST");
    EXPECT_EQ(both.testMode, TestMode::Preview);
    EXPECT_EQ(both.badSwitch, "/TEST");
}

TEST(ReadUninstallerSwitches, KnowNoTestMode)
{
    EXPECT_EQ(ReadUninstallerSwitches("/S /TEST").badSwitch, "/TEST");
    EXPECT_EQ(ReadUninstallerSwitches("/preview").badSwitch, "/PREVIEW");
    EXPECT_EQ(ReadUninstallerSwitches("/X /TEST").badSwitch, "/X");
    EXPECT_EQ(ReadUninstallerSwitches("/S").badSwitch, std::nullopt);
}

TEST(IsWholePath, WantsADriveOrAServer)
{
    EXPECT_TRUE(IsWholePath(R"(C:\)"));
    EXPECT_TRUE(IsWholePath(R"(\\server\del)"));
    EXPECT_FALSE(IsWholePath(""));
    EXPECT_FALSE(IsWholePath("C:"));
    EXPECT_FALSE(IsWholePath(R"(\App)"));
    EXPECT_FALSE(IsWholePath(R"(%FEL\App)"));
    EXPECT_FALSE(IsWholePath(R"(\\)"));
}

} // namespace quillon
