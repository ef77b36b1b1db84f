// Writes ZIP archives on all cores within a bounded amount of memory. The bytes of an archive
// depend on its sources, level and password, and on nothing else: not on the threads, the clock or
// chance.
//
// The constraints that shaped it:
//
// - An entry's header comes before its data and holds method, sizes and CRC. A source of up to one
//   block (4 MiB) is packed before its header is written. Of a larger one the method is decided
//   beforehand, by a sample of 64 KiB from each block, since the header's length must not change;
//   sizes and CRC are written into the header when its last block is done.
// - A file of any size is packed by all threads: its blocks are deflated independently and joined
//   (`deflate_block.h`, `deflate_walk.h`). The borders cost a hundredth of a per cent of the size.
// - Same bytes for any number of threads: `OrderedWorkers` hands the blocks back in their order,
// and
//   CRCs of blocks are combined. The salt of an encrypted entry comes from its content and the
//   password, not from chance, so a large encrypted source is read twice.
// - Memory: at most 96 MiB of sources are in flight, each thread has its own deflater and a block,
//   and 16 threads are the most; all of it stays below 256 MiB for any tree.
// - Equal sources cost nothing where there are none: the CRC of a source of one block is known once
//   it is packed, and only where size and CRC have come before are the two files read again and
//   compared. What is found equal is thrown away. A larger source is on its way into the archive by
//   then, so those are compared beforehand (`equal_files.h`); there are few of one size.
// - The thread that called does the writing and calls `ZipWatch` between blocks, so that a window
//   stays alive without locks of its own.
//
// Rejected: a thread for each file (one large file would leave the other cores idle); temporary
// files for the packed blocks (twice the disk); a data descriptor after the entry instead of the
// second writing of its header (the setup's reader demands that both headers agree).
#pragma once

#include "archive/writer/compression_result.h"
#include "helpers/text.h"
#include "platform/file_system.h"

#include <cstdint>
#include <functional>
#include <optional>
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
    std::uint64_t packedSize = 0; // 0 where it was packed together with others
};

/// What the writer reports while it works, always from the calling thread. Each may be empty.
struct ZipWatch {
    /// Called where a source has the same bytes as an earlier one; both are given by their
    /// places among the sources. The comment of the entry that serves both comes back; nothing
    /// where each shall have its own. Without it equal sources are stored each.
    std::function<std::optional<Text>(std::size_t first, std::size_t repeat,
                                      const LocalTime& firstDate, const LocalTime& repeatDate)>
        onEqual;
    std::function<void(const ZipEntryReport&)> onEntry;
    /// Bytes of the sources that are packed, and of all of them.
    std::function<void(std::uint64_t done, std::uint64_t total)> onProgress;
    /// Called often, also while a thread is waited for, so that a window stays alive.
    std::function<void()> processEvents;
};

/// Writes an archive of the sources in their order. Throws `CompressionFailure` where a source
/// can't be read, `RunError` where the target can't be written; what was written so
/// far is then of no use.
void WriteZip(const FileSystem& files, std::span<const ZipSource> sources, OutputFile& target,
              const ZipOptions& options, const ZipWatch& watch = {});

} // namespace quillon
