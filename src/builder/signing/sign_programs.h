// Create's part in signing: what a run signs with, and the steps that sign its programs. Every
// program of the setup is signed before it is listed, packed or digested, so that the package knows
// signed bytes alone.
#pragma once

#include "builder/create_run.h"
#include "builder/signing/signing_key.h"

namespace quillon {

class CodeSigner;

/// Asks for a text that is not shown while it is typed. Nothing where the user cancels, or where
/// there is no user.
using PasswordQuestion = std::function<std::optional<Text>(const Text& title, const Text& prompt)>;

/// What a caller of Create hands in, so that its run can sign. It belongs to one run.
struct Signing {
    Signing(ProgramRunner* runner, SigningChoices made, PasswordQuestion ask);
    ~Signing();
    Signing(const Signing&) = delete;
    Signing& operator=(const Signing&) = delete;

    ProgramRunner* programs; // null where no program can be run
    SigningChoices choices;
    PasswordQuestion askPassword;

    // Made when the run begins.
    std::unique_ptr<CodeSigner> signer;
    std::unique_ptr<WorkFolder> folder;
};

/// Whether this run signs what it makes.
bool SignsPrograms(const CreateRun& run);

/// Checks the key and asks for its password, before anything is written.
Step PrepareSigning(CreateRun& run);

/// Puts a program into the package, signed where the run signs. `name` is what the status lines
/// call it. Throws `RunError` where it can't be copied.
Step CopyProgramSigned(CreateRun& run, const Text& source, const Text& target, const Text& name);

/// Signs a finished program in its place.
Step SignProgram(CreateRun& run, const Text& path, const Text& name);

} // namespace quillon
