// A project that is dropped on the main window, to be opened.
#pragma once

#include "ui/dialogs/host_paths.h"

class QMimeData;

namespace quillon {

/// The path of the project where nothing but one project file is dropped. Among others it is a file
/// like them.
std::optional<Text> DroppedProject(const QMimeData& dropped, const HostPaths& paths);

} // namespace quillon
