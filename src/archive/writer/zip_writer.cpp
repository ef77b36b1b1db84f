#include "archive/writer/zip_writer.h"

#include "archive/writer/archive_output.h"
#include "archive/writer/equal_files.h"
#include "archive/writer/ordered_workers.h"
#include "archive/writer/source_block.h"
#include "archive/writer/source_status.h"
#include "archive/writer/zip_headers.h"
#include "platform/run_error.h"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace quillon {

namespace {

constexpr std::uint64_t kMiB = 1024 * 1024;

// A source up to this size is packed as one piece; a larger one is cut. Larger blocks would lose
// less at their borders, but these lose a hundredth of a per cent only.
constexpr std::uint64_t kBlockSize = 4 * kMiB;
// Bytes of the sources that may be in flight at any time; this, and the buffers of the threads,
// is what keeps the whole below 256 MiB.
constexpr std::uint64_t kMaxInFlight = 96 * kMiB;
// What even the smallest block costs in memory.
constexpr std::uint64_t kBlockOverhead = 16 * 1024;
// Each thread holds a block beside the ones in flight. More threads than this don't pack faster
// than disks deliver.
constexpr unsigned kMaxThreads = 16;

// How a source of several blocks is asked whether it shrinks at all.
constexpr std::size_t kSampleSize = 64 * 1024;
constexpr std::uint64_t kMinSavedPart = 256;

class ZipWriting {
public:
    ZipWriting(const FileSystem& files, std::span<const ZipSource> sources, OutputFile& target,
               const ZipOptions& options, const ZipWatch& watch);

    void Run();

private:
    /// A block that was submitted, and the entry that it belongs to.
    struct Pending {
        std::size_t source;
        SourceBlock block;
    };
    /// An entry of several blocks under a password.
    struct EncryptionState {
        zip::Bytes contentDigest;
        std::uint32_t crc = 0; // of the content that the digest was made from
        std::unique_ptr<zip::EntryCipher> cipher;
    };

    void ProcessEvents() const
    {
        if (watch_.processEvents)
            watch_.processEvents();
    }
    void StatSources();
    void FindLargeEqualSources();
    bool JoinsEarlier(std::size_t source);
    bool RepeatsWritten(const Pending& pending, const PackedBlock& packed);
    bool Share(std::size_t first, std::size_t repeat);
    void SubmitSource(std::size_t source);
    void Submit(std::size_t source, const SourceBlock& block);
    bool ShrinksInParts(const Text& path, std::uint64_t size);
    EncryptionState DigestContent(const Text& path, std::uint64_t size) const;

    void WriteOldest();
    void BeginEntry(const Pending& pending, const PackedBlock& packed);
    void WriteBlock(const Pending& pending, PackedBlock& packed);
    void BeginEncryption(const Pending& pending, const PackedBlock& packed);
    void EndEncryption(const Pending& pending);
    void EndEntry(const Pending& pending);

    const FileSystem& files_;
    const std::span<const ZipSource> sources_;
    const ZipOptions& options_;
    const ZipWatch& watch_;
    ArchiveOutput output_;
    const std::optional<SaltMaker> salts_;
    BlockDeflater sampler_;

    std::vector<FileStatus> status_;
    std::uint64_t total_ = 0;
    std::uint64_t done_ = 0;
    std::uint64_t inFlight_ = 0;
    std::deque<Pending> pending_;
    // Of sources that are cut, in their order.
    std::deque<EncryptionState> encryptions_;
    EntryRecord entry_; // the one that is being written
    DirectoryWriter directory_;

    // Of equal sources. By size and CRC, those of one block that have an entry.
    std::map<std::pair<std::uint64_t, std::uint32_t>, std::vector<std::size_t>> written_;
    std::vector<std::size_t> originals_;                    // of each source, the first like it
    std::vector<std::optional<std::uint32_t>> comparedCrc_; // of large ones that are shared
    std::map<std::size_t, Text> sharedComments_;            // by the source that has the entry
    std::vector<std::optional<std::size_t>> entryOf_;       // by source
    // Last, so that the threads end before what they use.
    OrderedWorkers<SourceBlock, PackedBlock> workers_;
};

ZipWriting::ZipWriting(const FileSystem& files, std::span<const ZipSource> sources,
                       OutputFile& target, const ZipOptions& options, const ZipWatch& watch)
    : files_(files), sources_(sources), options_(options), watch_(watch), output_(target),
      salts_(options.password.empty() ? std::nullopt : std::optional<SaltMaker>(options.password)),
      workers_(ThreadCount(options.threads, kMaxThreads), [this] {
          return BlockPacker(files_, salts_ ? &*salts_ : nullptr, options_.password);
      })
{
}

void ZipWriting::Run()
{
    StatSources();
    FindLargeEqualSources();
    for (std::size_t source = 0; source < sources_.size(); ++source)
        if (!JoinsEarlier(source))
            SubmitSource(source);
    while (!pending_.empty())
        WriteOldest();
    output_.Write(directory_.Finish(output_.Position()));
    output_.Flush();
}

void ZipWriting::StatSources()
{
    status_ = StatusOfSources(files_, sources_, watch_.processEvents);
    for (const FileStatus& status : status_)
        total_ += status.size;
}

// Sources of several blocks, whose headers are written before their bytes are known.
void ZipWriting::FindLargeEqualSources()
{
    entryOf_.resize(sources_.size());
    comparedCrc_.resize(sources_.size());
    originals_.resize(sources_.size());
    std::vector<std::size_t> large;
    std::vector<Text> paths;
    for (std::size_t source = 0; source < sources_.size(); ++source) {
        originals_[source] = source;
        if (watch_.onEqual && status_[source].size > kBlockSize) {
            large.push_back(source);
            paths.push_back(sources_[source].path);
        }
    }
    const auto contents = FindEqualFiles(files_, paths, [this] { ProcessEvents(); });
    for (std::size_t i = 0; i < large.size(); ++i) {
        originals_[large[i]] = large[contents[i].original];
        if (contents[i].original != i)
            comparedCrc_[large[contents[i].original]] = contents[i].crc;
    }
}

bool ZipWriting::JoinsEarlier(std::size_t source)
{
    const std::size_t first = originals_[source];
    if (first == source)
        return false;
    if (Share(first, source)) {
        done_ += status_[source].size;
        return true;
    }
    // The next ones like it may join this one.
    comparedCrc_[source] = comparedCrc_[first];
    for (std::size_t next = source; next < originals_.size(); ++next)
        if (originals_[next] == first)
            originals_[next] = source;
    return false;
}

bool ZipWriting::Share(std::size_t first, std::size_t repeat)
{
    auto comment = watch_.onEqual(first, repeat, status_[first].modified, status_[repeat].modified);
    if (!comment)
        return false;
    // Of an entry that is not written yet the comment waits for its end.
    sharedComments_[first] = *comment;
    if (entryOf_[first])
        directory_.ChangeComment(*entryOf_[first], std::move(*comment));
    return true;
}

// The CRC shows which files to compare; only equal bytes decide.
bool ZipWriting::RepeatsWritten(const Pending& pending, const PackedBlock& packed)
{
    if (!watch_.onEqual || !pending.block.IsWhole())
        return false;
    std::vector<std::size_t>& alike = written_[{pending.block.fileSize, packed.crc}];
    for (const std::size_t first : alike)
        if ((pending.block.fileSize == 0 ||
             AreEqualFiles(files_, sources_[first].path, *pending.block.path)) &&
            Share(first, pending.source))
            return true;
    alike.push_back(pending.source);
    return false;
}

void ZipWriting::SubmitSource(std::size_t source)
{
    const Text& path = sources_[source].path;
    const std::uint64_t size = status_[source].size;
    SourceBlock block{.path = &path, .name = &sources_[source].name, .fileSize = size};
    const bool isCut = size > kBlockSize;
    if (isCut && salts_)
        encryptions_.push_back(DigestContent(path, size));
    if (options_.deflate && !isCut)
        block.packing = Packing::DeflatedIfSmaller;
    else if (options_.deflate && ShrinksInParts(path, size))
        block.packing = Packing::DeflatedInParts;
    do {
        block.length = static_cast<std::size_t>(std::min(kBlockSize, size - block.begin));
        Submit(source, block);
        block.begin += block.length;
    } while (block.begin < size);
}

void ZipWriting::Submit(std::size_t source, const SourceBlock& block)
{
    const std::uint64_t cost = block.length + kBlockOverhead;
    while (!pending_.empty() && inFlight_ + cost > kMaxInFlight)
        WriteOldest();
    inFlight_ += cost;
    pending_.push_back({source, block});
    workers_.Submit(block);
}

// The method precedes the data, so it must be known before a source that is cut has been
// packed. A sample from each block decides; even where it errs, an entry gets hardly larger.
bool ZipWriting::ShrinksInParts(const Text& path, std::uint64_t size)
{
    std::uint64_t saved = 0;
    const std::uint64_t enough = (size / kBlockSize + 1) * kSampleSize / kMinSavedPart;
    zip::Bytes sample;
    ReadingSource(path, [&] {
        const auto file = OpenSource(files_, path, size);
        for (std::uint64_t begin = 0; begin < size && saved < enough; begin += kBlockSize) {
            sample.resize(
                static_cast<std::size_t>(std::min<std::uint64_t>(kSampleSize, size - begin)));
            ProcessEvents();
            file->Seek(begin);
            ReadSource(*file, path, sample);
            const std::size_t packed = sampler_.DeflateIfSmaller(sample).size();
            saved += packed > 0 ? sample.size() - packed : 0;
        }
    });
    return saved >= enough;
}

ZipWriting::EncryptionState ZipWriting::DigestContent(const Text& path, std::uint64_t size) const
{
    EncryptionState encryption;
    HmacSha1 hmac = salts_->StartContentDigest();
    zip::Bytes piece;
    ReadingSource(path, [&] {
        const auto file = OpenSource(files_, path, size);
        for (std::uint64_t begin = 0; begin < size; begin += piece.size()) {
            piece.resize(static_cast<std::size_t>(std::min(kMiB, size - begin)));
            ProcessEvents();
            ReadSource(*file, path, piece);
            hmac.Add(piece);
            encryption.crc = libdeflate_crc32(encryption.crc, piece.data(), piece.size());
        }
    });
    const auto digest = hmac.Finish();
    encryption.contentDigest.assign(digest.begin(), digest.end());
    return encryption;
}

void ZipWriting::WriteOldest()
{
    const Pending pending = pending_.front();
    pending_.pop_front();
    inFlight_ -= pending.block.length + kBlockOverhead;
    ProcessEvents();
    PackedBlock packed = workers_.Next(watch_.processEvents);
    if (!RepeatsWritten(pending, packed)) {
        if (pending.block.IsFirst())
            BeginEntry(pending, packed);
        WriteBlock(pending, packed);
        if (pending.block.IsLast())
            EndEntry(pending);
    }
    done_ += pending.block.length;
    if (watch_.onProgress)
        watch_.onProgress(done_, total_);
}

void ZipWriting::BeginEntry(const Pending& pending, const PackedBlock& packed)
{
    const ZipSource& source = sources_[pending.source];
    entry_ = {.name = source.name,
              .comment = source.comment,
              .modified = status_[pending.source].modified,
              .size = pending.block.fileSize,
              .headerPosition = output_.Position(),
              .method = packed.method,
              .isEncrypted = salts_.has_value(),
              .reservesZip64 = MayNeedZip64(pending.block.fileSize)};
    if (pending.block.IsWhole()) {
        entry_.crc = packed.crc;
        entry_.packedSize = packed.bytes.size();
    }
    output_.Write(LocalHeaderBytes(entry_));
    if (salts_ && !pending.block.IsWhole())
        BeginEncryption(pending, packed);
}

void ZipWriting::WriteBlock(const Pending& pending, PackedBlock& packed)
{
    if (!pending.block.IsWhole()) {
        if (salts_)
            encryptions_.front().cipher->Encrypt(packed.bytes);
        entry_.crc = static_cast<std::uint32_t>(
            crc32_combine(entry_.crc, packed.crc, static_cast<z_off_t>(pending.block.length)));
        entry_.packedSize += packed.bytes.size();
    }
    output_.Write(packed.bytes);
}

void ZipWriting::BeginEncryption(const Pending& pending, const PackedBlock& packed)
{
    EncryptionState& encryption = encryptions_.front();
    const zip::Salt salt = salts_->Make({entry_.name, pending.block.fileSize, packed.method},
                                        packed.bytes, encryption.contentDigest);
    encryption.cipher = std::make_unique<zip::EntryCipher>(options_.password, salt);
    output_.Write(salt);
    output_.Write(encryption.cipher->PasswordVerifier());
    entry_.packedSize = zip::kEncryptionSize;
}

void ZipWriting::EndEncryption(const Pending& pending)
{
    EncryptionState& encryption = encryptions_.front();
    // The file has changed since its first reading, which the salt was made from.
    if (encryption.crc != entry_.crc)
        throw CompressionFailure(CompressionResult::kSourceChanged, *pending.block.path);
    output_.Write(encryption.cipher->Finish());
    encryptions_.pop_front();
}

void ZipWriting::EndEntry(const Pending& pending)
{
    if (!pending.block.IsWhole()) {
        if (salts_)
            EndEncryption(pending);
        output_.WriteAt(entry_.headerPosition, LocalHeaderBytes(entry_));
    }
    if (const auto& crc = comparedCrc_[pending.source]; crc && *crc != entry_.crc)
        throw CompressionFailure(CompressionResult::kSourceChanged, *pending.block.path);
    entryOf_[pending.source] = directory_.Add(entry_);
    if (const auto shared = sharedComments_.find(pending.source); shared != sharedComments_.end())
        directory_.ChangeComment(*entryOf_[pending.source], shared->second);
    if (watch_.onEntry)
        watch_.onEntry({*pending.block.path, entry_.size, entry_.packedSize});
}

} // namespace

void WriteZip(const FileSystem& files, std::span<const ZipSource> sources, OutputFile& target,
              const ZipOptions& options, const ZipWatch& watch)
{
    ZipWriting(files, sources, target, options, watch).Run();
}

} // namespace quillon
