// The command line of the setup and of the uninstaller. Names of switches ignore case; a value
// follows '=', and where it holds blanks it is in quotation marks, or the whole switch.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

/// What the tool starts the setup for: nothing is installed then.
enum class TestMode { Test, Preview };

/// What happens to programs that hold files which are replaced or removed.
enum class CloseApplications { Ask, Always, Never };

struct Switches {
    bool silent = false;              // /S and its likes, and /passive
    bool passive = false;             // /passive, /qb: progress alone
    bool noRestart = false;           // /norestart
    Text destination;                 // /D=, /DIR= or INSTALLDIR=
    std::optional<Text> components;   // /COMPONENTS=
    std::optional<Text> programGroup; // /GROUP=
    Text languageFile;                // /LANG=, as the name of a file
    Text logFile;                     // /LOG=
    std::optional<Text> password;     // /PASSWORD=
    Text packageFolder;               // /PACKAGE=, which the starter adds for the program proper
    CloseApplications closeApplications = CloseApplications::Ask; // /[NO]CLOSEAPPLICATIONS
    std::optional<TestMode> testMode;                             // /TEST or /PREVIEW
    std::optional<Text> badSwitch; // the first one that is none, as it was given
};

/// `commandLine` is what follows the program's own name.
Switches ReadSwitches(std::string_view commandLine);

struct UninstallerCommand {
    Text logPath; // empty where the line names none
    Switches switches;
};

/// The uninstaller's line begins with the product's log, if at all. It has no test mode.
UninstallerCommand ReadUninstallerCommand(std::string_view commandLine);

/// Drive and folder, or a network path: a folder that means the same wherever the setup is started.
bool IsAbsolutePath(std::string_view path);

} // namespace quillon
