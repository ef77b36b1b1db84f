#include "actions/install_options.h"

#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using section::InstallOptions;
using section::TargetOS;

TEST(SetupNameRow, KnowsTheNamesThatAreOffered)
{
    EXPECT_EQ(SetupNameRow("SETUP.EXE"), 0);
    EXPECT_EQ(SetupNameRow("INSTALL.EXE"), 1);
    EXPECT_EQ(SetupNameRow("SETUP32.EXE"), 2);
    EXPECT_EQ(SetupNameRow("START.EXE"), 3);
    for (const char* name : {"", "setup.exe", "SETUP", "MITT.EXE"})
        EXPECT_EQ(SetupNameRow(name), std::nullopt) << name;
}

TEST(RestartRow, HoldsTwoFlagsInOneChoice)
{
    struct Row {
        int row;
        Flag always;
        Flag never;
    };
    for (const auto& [row, always, never] :
         {Row{0, kOff, kOff}, Row{1, kOn, kOff}, Row{2, kOff, kOn}}) {
        InstallOptions options{.RestartWindows = kOn, .NeverRestartWindows = kOn};
        SetRestartRow(options, row);
        EXPECT_EQ(options.RestartWindows, always);
        EXPECT_EQ(options.NeverRestartWindows, never);
        EXPECT_EQ(RestartRow(options), row);
    }
}

/// The systems that are on, as a word of eight letters in the order of the table.
Text WordOf(const TargetOS& systems)
{
    Text word(kTargetSystems.size(), '.');
    for (std::size_t i = 0; i < word.size(); ++i)
        if (systems.*kTargetSystems[i].isOn != kOff)
            word[i] = 'x';
    return word;
}

TargetOS SystemsOf(std::string_view word)
{
    TargetOS systems;
    for (std::size_t i = 0; i < kTargetSystems.size(); ++i)
        systems.*kTargetSystems[i].isOn = word[i] == 'x' ? kOn : kOff;
    return systems;
}

TEST(ClickTargetSystem, TakesTheNewerSystemsOfTheFamilyAlong)
{
    // 95, 95 OSR2, 98, ME, NT4, NT4 SP3, 2000, XP
    const char* const ticked[] = {"xxx.....", ".xx.....", "..x.....", "...x....",
                                  "....xx..", ".....x..", "......x.", ".......x"};
    const char* const unticked[] = {".xxxxxxx", "x.xxxxxx", "xx.xxxxx", "xxx.xxxx",
                                    "xxxx.xxx", "xxxxx.xx", "xxxxxx.x", "xxxxxxx."};
    for (std::size_t i = 0; i < kTargetSystems.size(); ++i) {
        SCOPED_TRACE(kTargetSystems[i].control);
        TargetOS systems = SystemsOf("........");
        ClickTargetSystem(systems, kTargetSystems[i].isOn, true);
        EXPECT_EQ(WordOf(systems), ticked[i]);
        systems = SystemsOf("xxxxxxxx");
        ClickTargetSystem(systems, kTargetSystems[i].isOn, false);
        EXPECT_EQ(WordOf(systems), unticked[i]);
    }
}

TEST(ClickUninstall, KeepsTheIconTogetherWithTheSupport)
{
    for (const Flag support : {kOff, kOn})
        for (const Flag icon : {kOff, kOn}) {
            const InstallOptions before{.UninstallSupport = support, .CreateUninstallIcon = icon};
            InstallOptions options = before;
            ClickUninstallSupport(options, false);
            EXPECT_EQ(options.UninstallSupport, kOff);
            EXPECT_EQ(options.CreateUninstallIcon, kOff);
            options = before;
            ClickUninstallSupport(options, true);
            EXPECT_EQ(options.UninstallSupport, kOn);
            EXPECT_EQ(options.CreateUninstallIcon, icon);
            options = before;
            ClickCreateUninstallIcon(options, true);
            EXPECT_EQ(options.UninstallSupport, kOn);
            EXPECT_EQ(options.CreateUninstallIcon, kOn);
            options = before;
            ClickCreateUninstallIcon(options, false);
            EXPECT_EQ(options.UninstallSupport, support);
            EXPECT_EQ(options.CreateUninstallIcon, kOff);
        }
}

TEST(CheckSelfExtractFilename, LooksForTheExtensionAnywhere)
{
    ScriptedAsk ask;
    for (const char* name : {"", "self.exe", "SELF.EXE", "a.Exe.bak", "a.exempel", ".exe"})
        EXPECT_TRUE(CheckSelfExtractFilename(name, ask)) << name;
    for (const char* name : {"self", "self.zip", "selfexe", " ", "."}) {
        ask.Expect({BoxKind::Critical, "Fel namntillägg",
                    "Filnamnet på en självuppackande EXE-fil måste alltid ha namntillägget .EXE på "
                    "slutet! Andra namntillägg, eller inget namntillägg alls, är inte tillåtet."});
        EXPECT_FALSE(CheckSelfExtractFilename(name, ask)) << name;
    }
}

TEST(SetTrueText, KeepsTheWordsThatSayTheSame)
{
    struct Row {
        const char* before;
        bool isTrue;
        const char* after;
    };
    for (const auto& [before, isTrue, after] :
         {Row{"True", true, "True"}, Row{"True", false, "0"}, Row{"-1", true, "-1"},
          Row{"-1", false, "0"}, Row{"0", true, "-1"}, Row{"0", false, "0"}, Row{"", true, "-1"},
          Row{"", false, ""}, Row{"False", true, "-1"}}) {
        Text value = before;
        SetTrueText(value, isTrue);
        EXPECT_EQ(value, after);
    }
}

TEST(HasValuesWithoutProgram, LooksAtAllThatTheProjectFileWouldLeaveOut)
{
    using section::RunAppSelfX;
    EXPECT_FALSE(HasValuesWithoutProgram({}));
    EXPECT_FALSE(HasValuesWithoutProgram({.DD_iHKEYIndex = "2"}));
    for (Text RunAppSelfX::*field :
         {&RunAppSelfX::Param, &RunAppSelfX::ReturnValueExit, &RunAppSelfX::ReturnValueBack,
          &RunAppSelfX::ReturnValueDD, &RunAppSelfX::DD_sSubKey, &RunAppSelfX::DD_sValueName}) {
        RunAppSelfX program;
        program.*field = Text("1");
        EXPECT_TRUE(HasValuesWithoutProgram(program));
        program.ProgramFilename = Text("C:\\a.exe");
        EXPECT_FALSE(HasValuesWithoutProgram(program));
    }
}

TEST(InternetAdvanced, GoesToTheProjectAndBack)
{
    Project project;
    EXPECT_EQ(InternetAdvancedOf(project).ExpandEXEInWinTempMap, kOn);
    const InternetAdvanced advanced{
        .ExpandEXEInWinTempMap = kOff,
        .program = {.ProgramFilename = "c:\\a.exe", .DD_iHKEYIndex = "3"}};
    SetInternetAdvanced(project, advanced);
    EXPECT_EQ(project.InstallOptionsInternet.ExpandEXEInWinTempMap, kOff);
    EXPECT_EQ(project.RunAppSelfX.ProgramFilename, "c:\\a.exe");
    EXPECT_EQ(InternetAdvancedOf(project).program.DD_iHKEYIndex, "3");
}

} // namespace
} // namespace quillon::test
