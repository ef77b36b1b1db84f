// Runs a project's scripts within an installation: what they change is taken back with everything
// else if the installation fails, and what they make is removed by the uninstaller. A command that
// can't be done ends the installation.
//
// A script reaches no further than the setup itself: a path has to be whole and plain, and to lead
// through no link but those above the folders that the setup uses anyway. A user who may write to a
// folder on the way could otherwise lead an administrator's setup elsewhere by a link.
#pragma once

#include "runtime/install/install.h"
#include "runtime/script/script_lines.h"

namespace quillon {

/// Names in the setup's private folder of what a script starts from the package.
inline constexpr std::string_view kScriptProgramStem = "QNSCRIPT";
inline constexpr const char* kScriptPrograms[] = {"QNSCRIPT.EXE", "QNSCRIPT.COM", "QNSCRIPT.BAT",
                                                  "QNSCRIPT.CMD"};

struct ScriptWork {
    const InstallInput& input;
    InstallTransaction& transaction;
    InstallJournal& journal;
};

/// `part` names the script for the log and for failures. Throws `SetupFailure`, with the code of
/// an EXIT, or where a command fails.
void RunScript(const ScriptWork& work, const Script& script, Message part);

/// The first fault of the package's scripts.
std::optional<Reason> FaultOfScripts(const SetupInformation& setup, const LanguageTexts& texts);

} // namespace quillon
