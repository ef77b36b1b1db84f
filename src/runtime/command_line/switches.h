// The command line of the setup and of the uninstaller. Names of switches ignore case; a value
// follows '=' or ':', and where it holds blanks it is in quotation marks, or the whole switch.
#pragma once

#include "helpers/text.h"
#include "runtime/exit_codes.h"
#include "runtime/install_scope.h"

#include <optional>
#include <utility>
#include <vector>

namespace quillon {

/// What the tool starts the setup for: nothing is installed then.
enum class TestMode { Test, Preview };

/// What happens to programs that hold files which are replaced or removed.
enum class CloseApplications { Ask, Always, Never };

/// What is asked for in the place of an installation.
enum class SetupTask { Install, Help, Version, Uninstall, Extract, Plan };

struct Switches {
    bool silent = false;                            // /S and its likes, and /passive
    bool passive = false;                           // /passive, /qb: progress alone
    bool noRestart = false;                         // /norestart
    bool suppressBoxes = false;                     // /SUPPRESSMSGBOXES
    bool canCancel = true;                          // but for /NOCANCEL
    Text destination;                               // /D=, /DIR= or INSTALLDIR=
    std::optional<Text> components;                 // /COMPONENTS=
    std::optional<Text> programGroup;               // /GROUP=
    InstallScope scope = InstallScope::Project;     // /ALLUSERS, /CURRENTUSER
    Text languageFile;                              // /LANG=, as the name of a file
    bool hasLog = false;                            // /LOG, with or without a file
    Text logFile;                                   // /LOG=
    Text jsonLogFile;                               // /LOGJSON=
    Text resultFile;                                // /RESULT=
    std::optional<Text> password;                   // /PASSWORD=
    Text loadAnswers;                               // /LOADINF=
    Text saveAnswers;                               // /SAVEINF=
    ExitCode restartCode = ExitCode::RestartNeeded; // /RESTARTEXITCODE=
    SetupTask task = SetupTask::Install;
    Text planFile;      // /PLAN=
    Text extractFolder; // /EXTRACT:
    Text packageFolder; // /PACKAGE=, which the starter adds for the program proper
    CloseApplications closeApplications = CloseApplications::Ask; // /[NO]CLOSEAPPLICATIONS
    std::optional<TestMode> testMode;                             // /TEST or /PREVIEW
    // The first one that is unknown or invalid, in a form that may be shown and logged.
    std::optional<Text> badSwitch;
    // Names of the registration page by their keys in a file of answers.
    std::vector<std::pair<Text, Text>> user;
    std::vector<std::pair<int, Text>> componentFolders; // by their numbers, from the same
};

/// False where no box is shown: under /S, /passive and /SUPPRESSMSGBOXES.
inline bool MayAsk(const Switches& switches)
{
    return !switches.silent && !switches.suppressBoxes;
}

/// `commandLine` is what follows the program's own name.
Switches ReadSwitches(std::string_view commandLine);

/// Sets the field of a switch with a value; false where no switch has that name, or its value is
/// invalid.
bool SetSwitch(Switches& switches, std::string_view name, const Text& value);

/// The code that the program ends with in the place of this one.
ExitCode CodeToEndWith(ExitCode code, const Switches& switches);

struct UninstallerCommand {
    Text journalPath; // empty where the line names none
    Switches switches;
};

/// The uninstaller's line begins with the product's journal, if at all. It has no test mode, no
/// plan and nothing to unpack.
UninstallerCommand ReadUninstallerCommand(std::string_view commandLine);

} // namespace quillon
