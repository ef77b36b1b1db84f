// A finished archive cut into pieces that fit the disks at hand. Joined again, one after the
// other, the pieces are the archive.
#pragma once

#include "archive/writer/compression_result.h"
#include "archive/writer/disk_source.h"
#include "helpers/sha256.h"
#include "platform/file_system.h"

#include <cstdint>
#include <functional>

namespace quillon {

struct Spanning {
    Integer result = CompressionResult::kDone;
    Integer disksUsed = 0;                  // disks that a piece was begun on, also after a failure
    std::vector<Sha256Digest> digests = {}; // of the pieces that were written whole
    Text path = {}; // the piece that could not be written; empty where no disk came
};

/// The first piece is `target`, the later ones have its name in the folders that `disks` gives.
/// What is on the disks stays there after a failure.
Spanning CutOntoDisks(FileSystem& files, const Text& archive, const Text& target, DiskSource& disks,
                      const std::function<void(std::uint64_t done, std::uint64_t total)>& progress);

} // namespace quillon
