// Writes ZIP archives on all cores within a bounded amount of memory. The bytes of an archive
// depend on its sources, level and password, and on nothing else: not on the threads, the clock or
// chance.
#pragma once

#include "archive/writer/compression_result.h"
#include "helpers/text.h"
#include "platform/file_system.h"

#include <cstdint>
#include <functional>
#include <span>

namespace quillon {

struct ZipSource {
    Text path;
    Text name; // of the entry
    Text comment;
};

struct ZipOptions {
    bool deflate = true;
    Text password;        // encrypts all entries where it isn't empty
    unsigned threads = 0; // 0 takes as many as the machine has
};

struct ZipEntryReport {
    Text path;
    std::uint64_t size = 0;
    std::uint64_t packedSize = 0;
};

/// What the writer tells while it works, always from the calling thread. Each may be empty.
struct ZipWatch {
    std::function<void(const ZipEntryReport&)> onEntry;
    /// Bytes of the sources that are packed, and of all of them.
    std::function<void(std::uint64_t done, std::uint64_t total)> onProgress;
    /// Called often, also while a thread is waited for, so that a window stays alive.
    std::function<void()> onYield;
};

/// Writes an archive of the sources in their order. Throws `CompressionFailure` where a source
/// can't be read as it stands, `RunError` where the target can't be written; what was written so
/// far is then of no use.
void WriteZip(const FileSystem& files, std::span<const ZipSource> sources, OutputFile& target,
              const ZipOptions& options, const ZipWatch& watch = {});

} // namespace quillon
