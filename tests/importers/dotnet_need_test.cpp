#include "importers/dotnet_need.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using Kind = DotNetNeed::Kind;

TEST(NeedOfRuntimeConfig, TellsTheFrameworkOfThePublishedProgram)
{
    const DotNetNeed one = NeedOfRuntimeConfig(
        R"({"runtimeOptions": {"tfm": "net8.0",
            "framework": {"name": "Microsoft.NETCore.App", "version": "8.0.0"}}})");
    EXPECT_EQ(one, (DotNetNeed{Kind::Core, "Microsoft.NETCore.App", "8.0.0", ""}));
    EXPECT_EQ(DotNetNeedText(one), "Programmet behöver Microsoft.NETCore.App 8.0.0.");
    const DotNetNeed several = NeedOfRuntimeConfig(
        R"({"runtimeOptions": {"frameworks": [
            {"name": "Microsoft.NETCore.App", "version": "6.0.0"},
            {"name": "Microsoft.WindowsDesktop.App", "version": "6.0.1"}]}})");
    EXPECT_EQ(several, (DotNetNeed{Kind::Core, "Microsoft.WindowsDesktop.App", "6.0.1", ""}));
}

TEST(NeedOfRuntimeConfig, KnowsAProgramThatBringsItsRunTime)
{
    EXPECT_EQ(NeedOfRuntimeConfig(R"({"runtimeOptions": {"includedFrameworks": []}})").kind,
              Kind::Contained);
    EXPECT_EQ(NeedOfRuntimeConfig(R"({"runtimeOptions": {}})").kind, Kind::Contained);
    EXPECT_EQ(DotNetNeedText({.kind = Kind::Contained}),
              "Programmet har sin .NET-version med sig.");
}

TEST(NeedOfRuntimeConfig, TellsADamagedFile)
{
    for (const char* const json :
         {"", "{", "[]", "1", R"({"runtimeOptions": 3})", R"({"other": {}})", "\xFF\xFE"}) {
        const DotNetNeed need = NeedOfRuntimeConfig(json);
        EXPECT_EQ(need.kind, Kind::Core) << json;
        EXPECT_EQ(DotNetNeedText(need),
                  "Programmet behöver .NET (filen .runtimeconfig.json är ingen sådan).");
    }
    EXPECT_EQ(NeedOfRuntimeConfig(R"({"runtimeOptions": {"framework": {"name": 1}}})").name, "");
    EXPECT_EQ(NeedOfRuntimeConfig(R"({"runtimeOptions": {"frameworks": [1, 2]}})").kind,
              Kind::Core);
}

TEST(NeedOfRuntimeConfig, EndsOnDeepNesting)
{
    std::string deep;
    deep.assign(500000, '[');
    EXPECT_NE(NeedOfRuntimeConfig(deep).damage, "");
}

TEST(NeedOfProgram, ReadsTheNoteOfTheCompiler)
{
    ProgramInfo info{.isManaged = true,
                     .clrVersion = "v4.0.30319",
                     .targetFramework = ".NETFramework,Version=v4.7.2"};
    EXPECT_EQ(NeedOfProgram(info), (DotNetNeed{Kind::Framework, ".NET Framework", "4.7.2", ""}));
    info.targetFramework = ".NETCoreApp,Version=v8.0";
    EXPECT_EQ(NeedOfProgram(info), (DotNetNeed{Kind::Core, ".NET", "8.0", ""}));
}

TEST(NeedOfProgram, TellsOlderProgramsByTheirClr)
{
    const std::pair<const char*, const char*> kCases[] = {{"v1.0.3705", "1.0"},
                                                          {"v1.1.4322", "1.1"},
                                                          {"v2.0.50727", "2.0"},
                                                          {"v4.0.30319", "4.0"},
                                                          {"v9", ""}};
    for (const auto& [clr, version] : kCases)
        EXPECT_EQ(NeedOfProgram({.isManaged = true, .clrVersion = clr}).version, version) << clr;
    EXPECT_EQ(NeedOfProgram({}).kind, Kind::None);
    EXPECT_EQ(DotNetNeedText({}), "");
    EXPECT_EQ(DotNetNeedText({.kind = Kind::Framework, .name = ".NET Framework"}),
              "Programmet behöver .NET Framework.");
}

} // namespace
} // namespace quillon::test
