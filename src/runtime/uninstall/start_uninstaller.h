// /UNINSTALL: the setup starts the uninstaller of the product that it would install.
#pragma once

#include "runtime/command_line/switches.h"
#include "runtime/install_scope.h"
#include "runtime/log/action_log.h"
#include "runtime/target.h"

#include <functional>

namespace quillon {

/// Starts the program, waits for its end and gives its code; throws `RunError`.
using RunProgramToEnd = std::function<int(const Text& program, const Text& arguments)>;

struct UninstallerStart {
    const FileSystem& files;
    const Target& target;
    const LanguageTexts& texts;
    Text product;
    const Switches& switches;
    const RunProgramToEnd& run;
};

/// The uninstaller's own code. Throws `SetupFailure` of 1605 where the product is not in the list
/// of programs, of 1614 where its uninstaller is not where it should be.
ExitCode StartUninstaller(const UninstallerStart& start);

} // namespace quillon
