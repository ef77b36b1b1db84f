// What is known of the project's file since it was last read or saved: whether all that it holds is
// in the project, and whether another program has changed it since.
#pragma once

#include "helpers/sha256.h"
#include "platform/file_system.h"

#include <optional>

namespace quillon {

struct KnownFile {
    Text path; // empty as long as no file was read or saved
    // The digest of all of its bytes; nothing where no file was there, or where it could not be
    // read.
    std::optional<Sha256Digest> content;
    // False where the file was refused or read in part only: saving over it would lose the rest.
    bool isInProject = true;
};

/// The file as it is now.
KnownFile LookAtFile(const FileSystem& files, const Text& path);

bool IsSameFile(const FileSystem& files, const Text& left, const Text& right);

/// Whether the file at the path is the known one with another content; a file that no longer exists
/// can be written again without a loss.
bool HasChangedSince(const FileSystem& files, const KnownFile& known, const Text& path);

} // namespace quillon
