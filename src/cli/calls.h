// The calls of the program, each in a file of its own.
#pragma once

#include "cli/call_context.h"

#include <span>

namespace quillon::cli {

Exit CreatePackage(const CallContext& context);
Exit TestProject(const CallContext& context);
Exit ResaveProject(const CallContext& context);
Exit ShowProject(const CallContext& context);
Exit PaintProjectScreen(const CallContext& context);
Exit PrintProject(const CallContext& context);
Exit ListPackage(const CallContext& context);
Exit VerifyPackageFolder(const CallContext& context);
Exit ExtractPackage(const CallContext& context);

// Calls that change a project.
Exit NewProject(const CallContext& context);
Exit SetFields(const CallContext& context);
Exit AddFiles(const CallContext& context);
Exit AddTreeOfFiles(const CallContext& context);
Exit AddEmptyFolder(const CallContext& context);
Exit AddByDepFile(const CallContext& context);
Exit ImportVb5(const CallContext& context);
Exit ImportVb6(const CallContext& context);
Exit ImportVbNet(const CallContext& context);
Exit ImportFolder(const CallContext& context);
Exit RemoveRows(const CallContext& context);
Exit RefreshRows(const CallContext& context);
Exit SortFileList(const CallContext& context);
Exit ReplaceTexts(const CallContext& context);
Exit SetCopyOptions(const CallContext& context);

Exit CompareLstFile(const CallContext& context);

/// In the order in which the help shows them.
std::span<const Call> AllCalls();

} // namespace quillon::cli
