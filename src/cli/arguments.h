// The command line as data: which calls there are, what each takes and what each option may hold.
// Reading the arguments and printing the help walk the same table.
#pragma once

#include "helpers/text.h"

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::cli {

struct CallContext;

// The exit codes that scripts rely on.
enum class Exit {
    Done = 0,
    Stopped = 1, // by a check, a question or a failure
    Usage = 2,
    Unreadable = 3, // a file that can't be read, or is none of ours
};

enum class Need { Optional, Required };

struct Option {
    const char* name;  // with its dashes
    const char* value; // what follows it; null for a switch
    const char* help;
    // The words that the value may be, between bars; null where it is free.
    const char* words = nullptr;
    Need need = Need::Optional;
};

struct Call {
    const char* name;
    // All of them have to be there; a last one that ends in "..." may come many times.
    std::vector<const char*> operands;
    std::vector<Option> options;
    const char* help;
    Exit (*run)(const CallContext& context);
};

struct Arguments {
    const Call* call = nullptr;
    std::vector<std::string> operands;
    std::map<std::string, std::string> options; // a switch has an empty value

    /// Whether the row of the call has this option.
    bool Declares(std::string_view option) const;
    // A call asks for options of its own row only; any other one throws `std::logic_error`.
    bool Has(const std::string& option) const;
    std::optional<std::string> Value(const std::string& option) const;
    /// The value of a required option.
    const std::string& Required(const std::string& option) const;
};

/// What the user got wrong, in a line.
struct UsageError {
    Text text;
};

/// Throws `UsageError`. After "--" nothing is an option.
Arguments ReadArguments(const std::vector<std::string>& args, std::span<const Call> calls);

/// The whole help; every line fits on a screen of 100 columns.
Text HelpText(std::span<const Call> calls);

} // namespace quillon::cli
