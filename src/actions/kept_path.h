// Files that a project names by their paths: how they are chosen, so that the project file can hold
// the path.
#pragma once

#include "platform/ask.h"

#include <optional>

namespace quillon {

/// What is chosen, with its article, and what to do when its path is too long.
struct PathKind {
    const char* thing;  // "Bilden"
    const char* advice; // "Lägg bilden i en katalog närmare roten."
};

/// Asks for a file; `folder` is where the dialog opens, and afterwards where the user went. Nothing
/// where the user cancelled, or chose a file whose path the project file would not give back from
/// `maxLength` bytes, which a box says.
std::optional<Text> ChooseKeptPath(FileQuestion question, Text& folder, int maxLength,
                                   const PathKind& kind, Ask& ask);

} // namespace quillon
