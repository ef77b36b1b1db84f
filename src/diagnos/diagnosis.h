// What the support needs to know of a machine, as a text file. Lines 6 and 8 are short, since the
// report to the support quotes them at its top.
#pragma once

#include "platform/host.h"
#include "platform/system_description.h"

#include <functional>
#include <optional>

namespace quillon {

/// What only the program that asks for the diagnosis knows; empty where it is not known.
struct CallerDescription {
    Text screen;
    Text qtVersion;
};

/// Bytes of the disk with this root; nothing where it can't be asked.
using DiskSize = std::function<std::optional<std::uint64_t>(const Text& root)>;

/// The lines, without their ends.
std::vector<Text> DiagnosisLines(const SystemDescription& system, const CallerDescription& caller,
                                 Host& host, const DiskSize& diskSize, const Text& toolFolder);

/// The command line of the program.
struct DiagnosisCommand {
    Text file; // where the text goes; empty for the usual place
    CallerDescription caller;
};

/// Words that are not known are ignored: an older program may be started by a newer tool.
DiagnosisCommand ReadDiagnosisCommand(const std::vector<Text>& arguments);

} // namespace quillon
