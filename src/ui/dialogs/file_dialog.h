// The desktop's file dialogs, asked and answered in Windows paths.
#pragma once

#include "platform/ask.h"
#include "ui/dialogs/host_paths.h"

class QWidget;

namespace quillon {

std::optional<Text> ChooseFileToOpen(const FileQuestion& question, const HostPaths& paths,
                                     QWidget* parent);
std::vector<Text> ChooseFilesToOpen(const FileQuestion& question, const HostPaths& paths,
                                    QWidget* parent);
std::optional<Text> ChooseFileToSave(const FileQuestion& question, const HostPaths& paths,
                                     QWidget* parent);

} // namespace quillon
