// The command line of the setup and of the uninstaller. Names of switches ignore case; a value
// follows behind '=' and may stand in quotation marks, which a value with blanks needs.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

/// What the tool starts the setup for: nothing is installed then.
enum class TestMode { Test, Preview };

struct Switches {
    bool silent = false;              // /S
    Text destination;                 // /D= or /DIR=
    Text logFile;                     // /LOG=
    std::optional<Text> password;     // /PASSWORD=
    Text packageFolder;               // /PACKAGE=, which the starter adds for the program proper
    std::optional<TestMode> testMode; // /TEST or /PREVIEW
    std::optional<Text> badSwitch;    // the first one that is none, as it was given
};

/// `commandLine` is what stands behind the program's own name.
Switches ReadSwitches(std::string_view commandLine);

/// The same for the uninstaller, which has no test mode: one that was asked for a test must not
/// remove anything.
Switches ReadUninstallerSwitches(std::string_view commandLine);

/// Drive and folder, or a network path: a folder that means the same wherever the setup is started.
bool IsWholePath(std::string_view path);

} // namespace quillon
