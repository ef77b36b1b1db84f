// What the support needs to know of a machine, as a text file. Lines 6 and 8 are short, since the
// report to the support quotes them in its head.
#pragma once

#include "platform/host.h"
#include "platform/system_description.h"

namespace quillon {

/// What only the program that asks for the diagnosis knows; empty where it is not known.
struct CallerDescription {
    Text screen;
    Text qtVersion;
};

/// The lines, without their ends.
std::vector<Text> DiagnosisLines(const SystemDescription& system, const CallerDescription& caller,
                                 Host& host, const Text& toolFolder);

/// The command line of the program.
struct DiagnosisCommand {
    Text file; // where the text goes; empty for the usual place
    CallerDescription caller;
};

/// Words that are not known are ignored: an older program may be started by a newer tool.
DiagnosisCommand ReadDiagnosisCommand(const std::vector<Text>& arguments);

} // namespace quillon
