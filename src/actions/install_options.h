// The options of the setup as a whole: what their dialog offers, and which choices bring others
// along.
#pragma once

#include "formats/runtime_programs.h"
#include "platform/ask.h"
#include "project/records.h"

#include <array>
#include <optional>
#include <string_view>

namespace quillon {

/// The names that the starter on the medium may have.
inline constexpr std::array<const char*, 4> kSetupNames{
    "SETUP.EXE", "INSTALL.EXE", RuntimePrograms::kStarter.name, "START.EXE"};
/// The row of a name; nothing for a name that is not offered.
std::optional<int> SetupNameRow(std::string_view name);

inline constexpr std::array<const char*, 3> kRestartOptions{
    "Starta om vid behov (rekommenderas)", "Starta alltid om datorn", "Starta aldrig om datorn"};
int RestartRow(const section::InstallOptions& options);
void SetRestartRow(section::InstallOptions& options, int row);

/// By `SignTimeStampSystem`.
inline constexpr std::array<const char*, 2> kTimeStampSystems{"Ingen",
                                                              "VeriSign TimeStamp Service"};

struct TargetSystem {
    const char* control;
    const char* caption;
    Flag section::TargetOS::*isOn;
};

// clang-format off
inline constexpr std::array<TargetSystem, 8> kTargetSystems{{
    {"cWin95",     "Windows 95",                          &section::TargetOS::TargetOS_Win95},
    {"cWin95OSR2", "Windows 95 OSR2  (och senare)",       &section::TargetOS::TargetOS_Win95OSR2},
    {"cWin98",     "Windows 98",                          &section::TargetOS::TargetOS_Win98},
    {"cWinME",     "Windows ME",                          &section::TargetOS::TargetOS_WinME},
    {"cWinNT4",    "Windows NT 4.0",                      &section::TargetOS::TargetOS_WinNT4},
    {"cWinNT4SP3", "Windows NT 4.0 SP3  (och senare)",    &section::TargetOS::TargetOS_WinNT4SP3},
    {"cWin2000",   "Windows 2000",                        &section::TargetOS::TargetOS_Win2000},
    {"cWinXP",     "Windows XP",                          &section::TargetOS::TargetOS_WinXP},
}};
// clang-format on

// Clicks on a box, after which it is ticked or not.

/// A system that is ticked takes newer ones of its family along.
void ClickTargetSystem(section::TargetOS& systems, Flag section::TargetOS::*system, bool isTicked);
/// There is no uninstall icon without uninstall support.
void ClickUninstallSupport(section::InstallOptions& options, bool isTicked);
void ClickCreateUninstallIcon(section::InstallOptions& options, bool isTicked);

/// Whether the name of the self-extracting file can be one; it may be empty.
bool IsSelfExtractFilename(std::string_view name);
/// The same, with a box where it can't.
bool CheckSelfExtractFilename(std::string_view name, Ask& ask);

/// A text that holds a boolean takes it; one that holds it already keeps its own words for it.
void SetTrueText(Text& value, bool isTrue);

/// A setup that unpacks itself: where it does so, and the program that it runs.
struct InternetAdvanced {
    Flag ExpandEXEInWinTempMap = kOff;
    section::RunAppSelfX program;
};
/// Whether the project file would leave out what is there of the program, since there is none.
bool HasValuesWithoutProgram(const section::RunAppSelfX& program);
InternetAdvanced InternetAdvancedOf(const Project& project);
void SetInternetAdvanced(Project& project, const InternetAdvanced& advanced);

} // namespace quillon
