// What the pages of a setup will say, worked out on this machine: the tool shows them before there
// is a setup.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "project/records.h"

namespace quillon {

/// The text of a page with its variables expanded, if the project wants that in dialogs. A variable
/// that only the end user's machine knows is left as it is.
Text PreviewText(const Project& project, const Host& host, std::string_view text);

/// The main folder as the setup will propose it.
Text PreviewMainFolder(const Project& project, const Host& host);

/// The picture that a page will show: its own, or the one that all pages share. The standard
/// picture is the tool's own, wherever the tool lay when it was chosen. Empty: there is none.
Text PreviewBitmap(const Project& project, const FileSystem& files, const Text& toolFolder,
                   const Text& bitmap);

/// What the files of the project take on the target machine.
Text NeededSpaceText(const Project& project, const Host& host, Ask& ask);
/// What is free on the disk of a folder, which need not be there yet.
Text FreeSpaceText(const Host& host, const Text& folder);

} // namespace quillon
