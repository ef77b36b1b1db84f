// The compression interface as Create sees it: a list of paths, then one call that makes an archive
// of them. Results are numbers, because the status list tells them by number.
#pragma once

#include "archive/writer/compression_result.h"
#include "helpers/number_text.h"
#include "helpers/sha256.h"
#include "helpers/text.h"
#include "platform/ask.h"
#include "platform/host.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

/// Where the pieces of a spanned archive go.
class DiskSource {
public:
    virtual ~DiskSource() = default;

    /// The folder of disk `number` (2 and up), ready to be written; nothing when none comes. It is
    /// asked again for a disk that turns out to be the one before.
    virtual std::optional<Text> NextDisk(int number) = 0;
    /// Behind the last disk: whether the first one, with the package's own files, is at hand again.
    virtual bool FirstDiskAgain() { return true; }
    /// Bytes of the first disk to leave for what is written behind the pieces of an archive of this
    /// size.
    virtual std::uint64_t RoomToLeave(std::uint64_t) const { return 0; }
    /// Bytes that the disk in this folder can still take.
    virtual std::uint64_t Capacity(const Text& folder) const = 0;
};

/// One list at a time, in the order: init, reset, add each path, create, (disk count), free.
class CompressionInterface {
public:
    CompressionInterface(Host& host, Ask& ask, DiskSource& disks);
    ~CompressionInterface();
    CompressionInterface(const CompressionInterface&) = delete;
    CompressionInterface& operator=(const CompressionInterface&) = delete;

    /// `workPath` is the folder for unfinished archives, empty for the system's; `logFlag` 1 logs
    /// to DYNAZIP.LOG in the Windows folder; `level` is 0 (stored) or 5 (deflate).
    void IfcInitDynaZipStruct(const Text& workPath, Integer logFlag, Integer level);
    void IfcResetFileList();
    /// `row` is the key of the FILELIST.INF row that the file serves ("F7"), empty for none. A path
    /// that comes again is stored once, and serves both rows. 0 is failure.
    Integer IfcAddFileListItem(const Text& path, const Text& row = {});
    Integer IfcCreateZipFile(const Text& target, Integer floppySpanning, const Text& password);
    /// Entries carry the file names alone.
    Integer IfcCreateDesignZipFile(const Text& target);
    Integer IfcGetNrFloppiesUsed() const;
    /// Of the pieces that the last spanning call wrote, in the order of the disks.
    const std::vector<Sha256Digest>& PieceDigests() const;
    void IfcFreeFileList();

    /// Why the last archive could not be made, with the file concerned; nothing where it was made.
    const std::optional<CompressionFailure>& LastFailure() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon
