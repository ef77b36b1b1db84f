// The calls of the program, each in a file of its own.
#pragma once

#include "cli/call_context.h"

#include <span>

namespace quillon::cli {

Exit CreatePackage(const CallContext& context);
Exit ResaveProject(const CallContext& context);
Exit ShowProject(const CallContext& context);
Exit ListPackage(const CallContext& context);
Exit VerifyPackageFolder(const CallContext& context);

/// In the order in which the help shows them.
std::span<const Call> AllCalls();

} // namespace quillon::cli
