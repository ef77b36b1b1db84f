// The signature at the end of a Windows program: read and checked, the program never run.
#pragma once

#include "platform/file_system.h"
#include "platform/signature_data.h"

namespace quillon {

struct ProgramSignature : SignatureInfo {
    enum class State { NoProgram, Unsigned, Signed };
    State state = State::NoProgram;
};

/// Throws `RunError` where the file can't be read.
ProgramSignature ReadProgramSignature(InputFile& program, const Text& trustedRoots = {});

} // namespace quillon
