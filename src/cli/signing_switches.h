// What a call says about signing.
#pragma once

#include "builder/signing/sign_programs.h"
#include "builder/signing/signing_key.h"
#include "cli/call_context.h"

namespace quillon::cli {

/// Throws `UsageError` for switches that exclude each other, `CallFailure` for a password file that
/// can't be read.
SigningChoices ReadSigningSwitches(const CallContext& context);

} // namespace quillon::cli
