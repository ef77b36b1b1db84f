// Where the pieces of a spanned archive go: one folder after the other, each a disk of its own.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <optional>

namespace quillon {

class DiskSource {
public:
    virtual ~DiskSource() = default;

    /// The folder of disk `number` (2 and up), ready to be written; nothing when none comes. It is
    /// asked again for a disk that turns out to be the one before.
    virtual std::optional<Text> NextDisk(int number) = 0;
    /// After the last disk: whether the first one, with the package's own files, is at hand again.
    virtual bool FirstDiskAgain() { return true; }
    /// Bytes of the first disk to leave for what is written after the pieces of an archive of this
    /// size.
    virtual std::uint64_t ReservedBytes(std::uint64_t) const { return 0; }
    /// Bytes that the disk in this folder can still take.
    virtual std::uint64_t Capacity(const Text& folder) const = 0;
};

} // namespace quillon
