// Files that a project names by their paths: whether the project file can hold such a path.
#pragma once

#include "platform/ask.h"

namespace quillon {

/// What is chosen, with its article, and what to do when its path is too long.
struct PathKind {
    const char* thing;  // "Bilden"
    const char* advice; // "Lägg bilden i en katalog närmare roten."
};

/// Whether the project file gives the path back as it is, in `longest` bytes; where not, a box says
/// why.
bool CanKeepPath(const Text& path, int longest, const PathKind& kind, Ask& ask);

} // namespace quillon
