// The setup as a whole: from the switches and a package folder to an exit code. What the programs
// for Windows add is a window, the machine's own registry, and the library that reads archives.
#pragma once

#include "platform/ask.h"
#include "runtime/command_line/switches.h"
#include "runtime/exit_codes.h"
#include "runtime/file_users.h"
#include "runtime/install/install_plan.h"
#include "runtime/log/action_log.h"
#include "runtime/package/container.h"
#include "runtime/package/loaded_package.h"
#include "runtime/pages/background_sound.h"
#include "runtime/pages/page.h"
#include "runtime/uninstall/start_uninstaller.h"

namespace quillon {

struct SetupInput {
    Host& host;
    Target& target;
    Ask& ask;
    OpenContainer openContainer;
    Switches switches;
    Text workFolder; // exists; the caller removes it
    // Shows the pages of the package; null where the user is not asked.
    PageView* pages = nullptr;
    // The sound of the screen behind the pages; null for none.
    BackgroundSound* sound = nullptr;
    bool otherSetupRuns = false; // another one on this machine
    // Starts a program or opens a document for the user; throws `RunError`.
    std::function<void(const Text& file, const Text& arguments)> startAsUser = {};
    FileUsers* users = nullptr;    // null: nothing is known of programs that hold files
    RunProgramToEnd runToEnd = {}; // for /UNINSTALL
    // Whether this user may restart the machine; null: yes.
    bool (*mayRestart)() = nullptr;
    // Opens a file that others can't change or replace until it is closed; null: as any file.
    std::unique_ptr<InputFile> (*openHeld)(const Text& path) = nullptr;
};

struct SetupEnd {
    ExitCode code = ExitCode::Done;
    // The last action of the caller. It does not follow from the code alone: a script, or the
    // uninstaller that was started, may end with any.
    bool startsMachineAnew = false;
    LogFiles logs = {}; // that were written, for `LogRefusedRestart`
    Text title = {};    // of the setup's boxes
};

/// Reports a failure that ends a setup before `RunSetup`: gives its exit code and its reason, and
/// writes both to the logs that the switches ask for, where these can be made.
SetupFailure FailBeforeSetup(const Host& host, const Switches& switches,
                             const std::exception& error, const LanguageTexts& texts);

/// Installs, and reports to the user and the log what went wrong.
SetupEnd RunSetup(const SetupInput& input, const LoadedPackage& package);

} // namespace quillon
