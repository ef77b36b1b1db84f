// What a call of the program works with, and what it may say.
#pragma once

#include "cli/arguments.h"
#include "helpers/number_text.h"
#include "platform/host.h"
#include "platform/program_runner.h"
#include "shell/failure_text.h"

#include <functional>
#include <iosfwd>
#include <nlohmann/json_fwd.hpp>

namespace quillon::cli {

// Keys are in the order in which they were set.
using Json = nlohmann::ordered_json;

inline Text CountText(std::size_t count)
{
    return NumberText(static_cast<std::int64_t>(count));
}

/// Why a call ends before it has done its work.
struct CallFailure {
    Text text;
    Exit exit;
};

struct CallContext {
    const Arguments& arguments;
    Host& host;
    Text toolFolder;
    Text ownFolder; // where the tool writes
    // A path of this machine as a Windows path; nothing where it can't be one.
    std::function<std::optional<Text>(const std::string& hostPath)> toWindows;
    std::ostream& out;
    std::ostream& err;
    // Null where no program of others can be run.
    ProgramRunner* programs = nullptr;

    /// An operand as a Windows path, which it may be already. Throws `UsageError`.
    Text PathOperand(std::size_t number) const { return Path(arguments.operands.at(number)); }
    Text Path(const std::string& argument) const;
    /// An option that the call can't do without. Throws `UsageError`.
    std::string RequireValue(const char* option) const;
    bool WantsJson() const { return arguments.Has("--json"); }

    /// Prints the one object of a call that was asked for JSON; its exit code goes in with it.
    Exit PrintJson(Json object, Exit exit) const;
    /// Tells a failure: a line on the error output, and under "error" where JSON was asked for.
    Exit Fail(const Text& text, Exit exit) const;
};

} // namespace quillon::cli
