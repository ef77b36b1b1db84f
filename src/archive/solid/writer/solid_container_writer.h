// Writes solid containers: FILEDATA.DAT of a package that is to be as small as it can be.
//
// - Same bytes for any number of threads: the files' bytes are cut into frames of one size, each of
//   which is packed by one thread and sees nothing of the others.
// - Memory: a thread has a frame, its result and its match finder; the threads are few enough that
//   all of it, with the frames that wait, stays below 1 GiB.
// - Files with the same bytes are looked for beforehand, by size and beginning first, and stored
//   once.
#pragma once

#include "archive/solid/container_index.h"
#include "archive/writer/zip_writer.h"

namespace quillon {

/// Less than the format allows: a setup of more than ten thousand rows stays below 64 MiB that way.
inline constexpr std::uint32_t kContainerFrameSize = 24 * 1024 * 1024;

struct SolidContainerOptions {
    unsigned threads = 0; // 0 takes as many as the machine has
    std::uint32_t frameSize = kContainerFrameSize;
};

/// Packs the sources in their order. Throws as `WriteZip` does; what was written so far is then of
/// no use.
void WriteSolidContainer(const FileSystem& files, std::span<const ZipSource> sources,
                         OutputFile& target, const SolidContainerOptions& options = {},
                         const ZipWatch& watch = {});

} // namespace quillon
