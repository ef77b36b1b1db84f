// Writes a solid payload: all files as one stream of Zstandard, which finds again what was up to
// 128 MiB before.
//
// The constraints that shaped it:
//
// - Same bytes for any number of threads: the library cuts the stream into jobs of one fixed size,
//   each of which sees the same bytes before its own, and joins the results in their order. It does
//   so from one worker on, and works otherwise without any, so there is always at least one.
// - Far repetitions are found by one thread for all jobs (long distance matching); within a job the
//   match finder looks back over its own bytes and `kOverlap` before them.
// - Memory: the window, and for each worker its job, its result and its match finder. Workers are
//   few enough that all of it stays below 1 GiB.
#pragma once

#include "archive/solid/solid_table.h"
#include "platform/file_system.h"

#include <functional>
#include <memory>

namespace quillon {

struct SolidSource {
    SolidFile file;
    /// Called once, when the file's turn has come. It has to give exactly as many bytes as the file
    /// is long.
    std::function<std::unique_ptr<InputFile>()> open;
};

struct SolidOptions {
    std::span<const std::byte> program = {}; // stands before the payload
    unsigned threads = 0;                    // 0 takes as many as the machine has
    /// Bytes of the sources that are packed, and all of them; called often.
    std::function<void(std::uint64_t done, std::uint64_t total)> onProgress = {};
};

/// Throws `RunError`: 62 (past the end of the file) for a source that is shorter or longer than it
/// was, and whatever the source or the target throw.
void WriteSolid(const std::vector<SolidProperty>& properties,
                const std::vector<SolidSource>& sources, OutputFile& target,
                const SolidOptions& options = {});

} // namespace quillon
