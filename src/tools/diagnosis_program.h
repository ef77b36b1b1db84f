// The program that describes the machine for the support. It runs beside the tool, so that it can
// describe a machine on which the tool itself does not work.
#pragma once

#include "platform/host.h"

namespace quillon {

/// Starts it from the tool's folder, in a window of its own, without waiting. It writes
/// `DiagnosisFile(ownFolder)`. `more` holds further arguments, each after a blank. Throws as
/// `Machine::StartProgram`.
void StartDiagnosis(Host& host, const Text& toolFolder, const Text& ownFolder, const Text& more);

} // namespace quillon
