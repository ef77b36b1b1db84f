// The scripts of a project: what the setup does before and after it copies files, a command a line.
// The reader is strict, so that a mistake is found before anything is changed: it takes a script
// whole or not at all.
#pragma once

#include "runtime/registry/registry_lines.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

enum class ScriptWord {
    Message,
    Log,
    Copy,
    Delete,
    Rename,
    MakeFolder,
    RemoveFolder,
    Ini,
    Registry,
    Run,
    RunHidden,
    Set,
    Exit,
    If,
    Else,
    End,
};

/// The code that the last program ended with, as a variable of scripts.
inline constexpr std::string_view kScriptExitCode = "%EXITCODE";

enum class ScriptTest { File, Folder, Registry, Yes, Equal, Different };

struct ScriptCommand {
    ScriptWord word = ScriptWord::End;
    int line = 0; // of the script, from 1
    // As they stand, with their variables; what a variable stands for is never taken apart.
    std::vector<Text> arguments;

    // Of an If: what it asks for.
    ScriptTest test = ScriptTest::File;
    bool isNegated = false;
    // Of an If whose condition does not hold, and of an Else that is come to: the command that the
    // script goes on with. Always a later one, so that every script ends.
    std::size_t next = 0;
};

struct ScriptFault {
    int line = 0;
    Reason reason;

    bool operator==(const ScriptFault&) const = default;
};

struct Script {
    std::vector<ScriptCommand> commands; // none where there is a fault
    std::optional<ScriptFault> fault;    // the first one
};

Script ReadScript(std::string_view text);

/// A key of the registry, or with " :: " and a name after it a value.
RegistryLine ReadRegistryPlace(std::string_view place);

} // namespace quillon
