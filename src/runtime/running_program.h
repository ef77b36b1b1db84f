// The file of a running program, such as the uninstaller itself.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// Such a file can't be removed like any other.
class RunningProgram {
public:
    virtual ~RunningProgram() = default;
    /// Moves the file out of its folder; it is removed as soon as the program has ended. Nothing
    /// happens where `path` is not the file's path, or where it can't be moved.
    virtual void MoveAway(const Text& path) = 0;
};

} // namespace quillon
