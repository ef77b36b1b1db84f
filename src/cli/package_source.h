// What `list`, `verify` and `extract` are given: a package's folder, or a finished self-extracting
// program, which is unpacked into a folder of its own and never run.
#pragma once

#include "builder/signing/program_signature.h"
#include "cli/call_context.h"
#include "formats/package.h"
#include "platform/program_runner.h"

namespace quillon::cli {

struct PackageSource {
    Text path; // as the call names it
    Package package;
    bool isProgram = false;
    ProgramSignature signature; // of a program

    // What was unpacked, for as long as it is needed.
    std::unique_ptr<WorkFolder> unpacked;
};

/// Throws `CallFailure` for what is neither, and for a program that is damaged.
PackageSource OpenPackageSource(const CallContext& context, const Text& path);

/// The signature of a program, for scripts.
Json SignatureJson(const ProgramSignature& signature);
/// The same in a line.
Text SignatureLine(const ProgramSignature& signature);
/// A fault where the signature is broken; empty for one that is whole, and for none.
Text SignatureFault(const ProgramSignature& signature);

} // namespace quillon::cli
