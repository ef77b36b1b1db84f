#include "archive/writer/spanned_archive.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace quillon {

namespace {

constexpr std::size_t kPieceOfWork = 64 * 1024;

struct NoDisk {
    Integer result;
    Text path = {};
};

class DiskCutter {
public:
    DiskCutter(FileSystem& files, const Text& archive, const Text& target, DiskSource& disks,
               const std::function<void(std::uint64_t, std::uint64_t)>& progress)
        : files_(files), disks_(disks), progress_(progress), input_(files.OpenInput(archive)),
          left_(input_->Size()), name_(ExtractFilename(target)), folder_(ExtractDirectory(target))
    {
    }

    void Run(Integer& disksUsed, std::vector<Sha256Digest>& digests)
    {
        WritePiece(disksUsed, digests, disks_.ReservedBytes(left_));
        while (left_ > 0) {
            if (disksUsed == std::numeric_limits<Integer>::max())
                throw NoDisk{CompressionResult::kDiskFull, PiecePath()};
            TakeNextDisk(disksUsed + 1);
            WritePiece(disksUsed, digests, 0);
        }
    }

private:
    Text PiecePath() const { return JoinPath(folder_, name_); }

    void TakeNextDisk(int number)
    {
        const Text pieceBefore = PiecePath();
        do {
            const std::optional<Text> folder = disks_.NextDisk(number);
            if (!folder)
                throw NoDisk{CompressionResult::kCancelled};
            folder_ = *folder;
        } while (EqualIgnoreCase(PiecePath(), pieceBefore) && IsPreviousDisk());
    }

    // Where the disk was not changed, writing would replace the piece that was just written to it.
    bool IsPreviousDisk() const
    {
        if (!files_.FileExists(PiecePath()))
            return false;
        std::vector<std::byte> begin(pieceBegin_.size());
        return files_.Status(PiecePath()).size == pieceSize_ &&
               files_.OpenInput(PiecePath())->Read(begin) == begin.size() && begin == pieceBegin_;
    }

    // An older piece of that name is replaced, so its size counts as free.
    std::uint64_t FreeSpace() const
    {
        const Text path = PiecePath();
        const std::uint64_t older = files_.FileExists(path) ? files_.Status(path).size : 0;
        return disks_.Capacity(folder_) + older;
    }

    void WritePiece(Integer& disksUsed, std::vector<Sha256Digest>& digests,
                    std::uint64_t roomToLeave)
    {
        pieceSize_ = std::min(FreeSpace() - std::min(FreeSpace(), roomToLeave), left_);
        if (pieceSize_ == 0)
            throw NoDisk{CompressionResult::kDiskFull, PiecePath()};
        pieceBegin_.clear();
        const auto output = files_.OpenOutput(PiecePath());
        ++disksUsed;
        Sha256 hash;
        std::vector<std::byte> buffer;
        for (std::uint64_t rest = pieceSize_; rest > 0; rest -= buffer.size()) {
            buffer.resize(static_cast<std::size_t>(std::min<std::uint64_t>(rest, kPieceOfWork)));
            if (input_->Read(buffer) != buffer.size())
                throw RunError(ErrorNumber::kDeviceIo, PiecePath());
            output->Write(buffer);
            hash.Add(buffer);
            if (pieceBegin_.empty())
                pieceBegin_ = buffer;
            left_ -= buffer.size();
            progress_(input_->Size() - left_, input_->Size());
        }
        output->Close();
        digests.push_back(hash.Finish());
    }

    FileSystem& files_;
    DiskSource& disks_;
    const std::function<void(std::uint64_t, std::uint64_t)>& progress_;
    std::unique_ptr<InputFile> input_;
    std::uint64_t left_;
    Text name_;
    Text folder_;
    std::uint64_t pieceSize_ = 0;
    std::vector<std::byte> pieceBegin_;
};

} // namespace

Spanning CutOntoDisks(FileSystem& files, const Text& archive, const Text& target, DiskSource& disks,
                      const std::function<void(std::uint64_t done, std::uint64_t total)>& progress)
{
    Spanning spanning;
    try {
        DiskCutter(files, archive, target, disks, progress)
            .Run(spanning.disksUsed, spanning.digests);
    } catch (const NoDisk& reason) {
        spanning.result = reason.result;
        spanning.path = reason.path;
    } catch (const RunError& error) {
        spanning.result = ResultOfWriting(error);
        spanning.path = error.Path();
    }
    return spanning;
}

} // namespace quillon
