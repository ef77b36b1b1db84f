// The command line of a self-extracting program: its own switches, and those that go on to the
// setup.
#pragma once

#include "helpers/text.h"

#include <optional>

namespace quillon {

struct SelfExtractCommand {
    bool wantsHelp = false;          // /?
    bool wantsVersion = false;       // /version
    std::optional<Text> extractTo;   // /extract:folder; empty where the folder is missing
    bool isElevatedInstance = false; // started by itself with the rights that the setup asks for
    bool isSilent = false;           // a switch of the setup's says so
    Text forSetup;                   // all but the switches above, as they were given
};

/// The switch of the elevated instance, which stands first.
inline constexpr const char* kElevatedInstanceSwitch = "/QNELEVATED";

/// `commandLine` is what follows the program's own name.
SelfExtractCommand ReadSelfExtractCommand(const Text& commandLine);

} // namespace quillon
