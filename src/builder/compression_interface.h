// The compression interface as Create sees it: a list of paths, then one call that makes an archive
// of them. Results are numbers, because the status list shows them by number.
#pragma once

#include "archive/writer/compression_result.h"
#include "archive/writer/disk_source.h"
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
    /// Puts the list into this order.
    void Sort(bool (*isBefore)(const Text& left, const Text& right));
    Integer IfcCreateZipFile(const Text& target, Integer floppySpanning, const Text& password);
    /// Entries carry the file names alone.
    Integer IfcCreateDesignZipFile(const Text& target);
    /// A solid container: smaller, slower to make, and for the setup alone.
    Integer IfcCreateSolidFile(const Text& target);
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
