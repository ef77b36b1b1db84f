#include "archive/solid/writer/solid_container_writer.h"

#include "archive/solid/filtered_run.h"
#include "archive/solid/signature_fields.h"
#include "archive/solid/writer/frame_packer.h"
#include "archive/solid/writer/x86_program.h"
#include "archive/writer/equal_files.h"
#include "archive/writer/ordered_workers.h"
#include "archive/writer/source_block.h"
#include "archive/writer/source_status.h"

#include <libdeflate.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 1024 * 1024;
// Each takes about 120 MiB with the largest frames, match finder and result included.
constexpr unsigned kMaxThreads = 6;

class ContainerWriting {
public:
    ContainerWriting(const FileSystem& files, std::span<const ZipSource> sources,
                     OutputFile& target, const SolidContainerOptions& options,
                     const ZipWatch& watch)
        : files_(files), sources_(sources), target_(target), watch_(watch),
          threads_(ThreadCount(options.threads, kMaxThreads)), buffer_(kPieceSize),
          entryOf_(sources.size()), workers_(threads_, [] { return FramePacker(); })
    {
        index_.frameSize = options.frameSize;
    }

    void Run()
    {
        status_ = StatusOfSources(files_, sources_, watch_.processEvents);
        for (const FileStatus& status : status_)
            total_ += status.size;
        FindEqualSources();
        for (std::size_t source = 0; source < sources_.size(); ++source)
            if (!JoinsEarlier(source))
                PackSource(source);
        if (!frame_.empty())
            SubmitFrame();
        while (waiting_ > 0)
            WriteOldest();
        WriteIndex();
        Report();
    }

private:
    void ProcessEvents() const
    {
        if (watch_.processEvents)
            watch_.processEvents();
    }

    void FindEqualSources()
    {
        std::vector<Text> paths;
        for (const ZipSource& source : sources_)
            paths.push_back(source.path);
        if (watch_.onEqual)
            contents_ = FindEqualFiles(files_, paths, [this] { ProcessEvents(); });
        else
            for (std::size_t source = 0; source < sources_.size(); ++source)
                contents_.push_back({.original = source, .crc = {}, .modified = {}});
    }

    bool JoinsEarlier(std::size_t source)
    {
        const std::size_t first = contents_[source].original;
        if (first == source)
            return false;
        auto comment =
            watch_.onEqual(first, source, status_[first].modified, status_[source].modified);
        if (comment) {
            index_.entries[entryOf_[first]].comment = std::move(*comment);
            Advance(status_[source].size);
            return true;
        }
        // Later equal sources may share the entry of this one.
        for (std::size_t next = source; next < contents_.size(); ++next)
            if (contents_[next].original == first)
                contents_[next].original = source;
        return false;
    }

    void Advance(std::uint64_t bytes)
    {
        done_ += bytes;
        if (watch_.onProgress)
            watch_.onProgress(done_, total_);
        ProcessEvents();
    }

    void PackSource(std::size_t source)
    {
        const Text& path = sources_[source].path;
        const std::uint64_t size = status_[source].size;
        std::unique_ptr<InputFile> input;
        ReadingSource(path, [&] { input = OpenSource(files_, path, size); });
        const SolidFilter filter = FilterOf(*input, path, size);
        AddEntry(source, filter);
        std::uint32_t crc = 0;
        PassThroughFilter(
            {size, filter}, X86Filter::Direction::Encode, buffer_,
            [&](std::span<std::byte> bytes) {
                ReadingSource(path, [&] { ReadSource(*input, path, bytes); });
                if (contents_[source].crc)
                    crc = libdeflate_crc32(crc, bytes.data(), bytes.size());
                Advance(bytes.size());
            },
            [&](std::span<const std::byte> bytes) { AddToFrame(bytes); });
        // The file has changed since it was compared with others.
        const auto& compared = contents_[source].crc;
        if ((compared && *compared != crc) || HasMore(*input, path))
            throw CompressionFailure(CompressionResult::kSourceChanged, path);
    }

    SolidFilter FilterOf(InputFile& input, const Text& path, std::uint64_t size)
    {
        const auto headers = std::span(buffer_).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(size, kProgramHeadersSize)));
        ReadingSource(path, [&] {
            ReadSource(input, path, headers);
            input.Seek(0);
        });
        return IsX86Program(headers) ? SolidFilter::X86 : SolidFilter::None;
    }

    static bool HasMore(InputFile& input, const Text& path)
    {
        std::byte surplus{};
        std::size_t count = 0;
        ReadingSource(path, [&] { count = input.Read({&surplus, 1}); });
        return count > 0;
    }

    void AddEntry(std::size_t source, SolidFilter filter)
    {
        entryOf_[source] = index_.entries.size();
        ZipEntry entry;
        entry.name = sources_[source].name;
        entry.comment = sources_[source].comment;
        entry.size = status_[source].size;
        entry.modified = status_[source].modified;
        entry.method = static_cast<std::uint16_t>(filter);
        index_.entries.push_back(std::move(entry));
    }

    void AddToFrame(std::span<const std::byte> bytes)
    {
        while (!bytes.empty()) {
            frame_.reserve(index_.frameSize);
            const std::size_t count = std::min(bytes.size(), index_.frameSize - frame_.size());
            frame_.insert(frame_.end(), bytes.begin(),
                          bytes.begin() + static_cast<std::ptrdiff_t>(count));
            bytes = bytes.subspan(count);
            if (frame_.size() == index_.frameSize)
                SubmitFrame();
        }
    }

    // One frame waits for a thread, so that none of them waits for a disk.
    void SubmitFrame()
    {
        while (waiting_ > threads_)
            WriteOldest();
        workers_.Submit(std::move(frame_));
        frame_ = {};
        ++waiting_;
    }

    void WriteOldest()
    {
        const PackedFrame packed = workers_.Next(watch_.processEvents);
        --waiting_;
        index_.frames.push_back({static_cast<std::uint32_t>(packed.bytes.size()), packed.digest});
        target_.Write(packed.bytes);
        written_ += packed.bytes.size();
    }

    void WriteIndex()
    {
        const zip::Bytes bytes = ContainerIndexBytes(index_);
        const PackedFrame packed = FramePacker()(bytes);
        zip::Bytes trailer;
        zip::AppendFields(trailer, ContainerTrailer{.indexPosition = written_,
                                                    .packedIndexSize = packed.bytes.size(),
                                                    .indexSize = bytes.size()});
        Sha256 digest;
        digest.Add(packed.bytes);
        digest.Add(trailer);
        target_.Write(packed.bytes);
        target_.Write(trailer);
        target_.Write(digest.Finish());
    }

    void Report() const
    {
        if (!watch_.onEntry)
            return;
        for (std::size_t source = 0; source < sources_.size(); ++source)
            if (contents_[source].original == source)
                watch_.onEntry({sources_[source].path, status_[source].size, 0});
    }

    const FileSystem& files_;
    const std::span<const ZipSource> sources_;
    OutputFile& target_;
    const ZipWatch& watch_;
    const unsigned threads_;

    std::vector<FileStatus> status_;
    std::vector<FileContent> contents_;
    std::uint64_t total_ = 0;
    std::uint64_t done_ = 0;
    std::uint64_t written_ = 0;
    unsigned waiting_ = 0; // frames that were submitted
    zip::Bytes buffer_;
    zip::Bytes frame_; // the one that is being filled
    ContainerIndex index_;
    std::vector<std::size_t> entryOf_; // by source
    // Last, so that the threads end before what they use.
    OrderedWorkers<zip::Bytes, PackedFrame> workers_;
};

} // namespace

void WriteSolidContainer(const FileSystem& files, std::span<const ZipSource> sources,
                         OutputFile& target, const SolidContainerOptions& options,
                         const ZipWatch& watch)
{
    ContainerWriting(files, sources, target, options, watch).Run();
}

} // namespace quillon
