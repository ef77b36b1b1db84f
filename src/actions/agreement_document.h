// The RTF document that a setup shows as its agreement: how it is chosen and opened.
#pragma once

#include "platform/ask.h"
#include "platform/machine.h"

#include <optional>

namespace quillon {

/// Asks for an RTF file; `folder` is where the dialog opens, and afterwards where the user went.
/// Nothing where the user cancelled, or chose a file whose name a project can't hold.
std::optional<Text> ChooseRtfFile(Text& folder, Ask& ask);

/// Opens the document in the program that the system assigns to it; a failure is shown in a message
/// box.
void OpenRtfFile(const Text& path, Machine& machine, Ask& ask);

} // namespace quillon
