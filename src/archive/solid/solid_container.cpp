#include "archive/solid/solid_container.h"

#include "archive/solid/container_index.h"
#include "archive/solid/filtered_run.h"
#include "archive/solid/frame_reader.h"
#include "archive/zip_directory.h"

#include <algorithm>
#include <optional>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 256 * 1024;
constexpr std::size_t kHashedPiece = 64 * 1024;
// A file that serves several rows is kept up to this size, and unpacked again above it.
constexpr std::uint64_t kMaxKeptSize = 4 * 1024 * 1024;

bool ServesSeveralRows(const ZipEntry& entry)
{
    return entry.comment.find(' ') != Text::npos;
}

[[noreturn]] void RefuseVersion()
{
    throw ZipError(ZipError::Kind::Unsupported, "filen är gjord av en nyare version");
}

} // namespace

bool IsSolidContainer(InputFile& file)
{
    if (file.Size() < kContainerTrailerSize)
        return false;
    std::byte mark[sizeof(ContainerTrailer::kMark)];
    zip::ReadExactly(file, file.Size() - kContainerTrailerSize, mark);
    return zip::ReadNumber<std::uint64_t>(mark) == ContainerTrailer::kMark;
}

struct SolidContainer::State {
    State(std::unique_ptr<InputFile> input, const FrameDecoding& decoding)
        : file(std::move(input)),
          frames(*file, decoding, kMaxContainerWindowLog, zip::RefuseArchive), buffer(kPieceSize),
          hashed(kHashedPiece)
    {
    }

    ContainerTrailer ReadTrailer();
    void CheckDigest(std::uint64_t begin, std::uint64_t size, const Sha256Digest& recorded);
    void ReadIndex();
    void OpenFrame(std::size_t number);
    void MoveTo(std::uint64_t target);
    void Read(std::span<std::byte> bytes);
    std::uint64_t EndOf(std::size_t frame) const;

    std::unique_ptr<InputFile> file;
    FrameReader frames;
    zip::Bytes buffer;
    zip::Bytes hashed; // while `buffer` holds a part of a file
    ContainerIndex index;
    std::vector<std::uint64_t> positions; // of the frames in the file

    std::optional<std::size_t> open; // the frame that is being unpacked
    std::uint64_t position = 0;      // of the next byte among all files' bytes

    std::optional<std::uint64_t> keptPosition; // of a file that serves several rows
    zip::Bytes kept;
};

ContainerTrailer SolidContainer::State::ReadTrailer()
{
    ContainerTrailer trailer;
    const std::uint64_t size = file->Size();
    zip::Bytes bytes(kContainerTrailerSize);
    if (size < bytes.size())
        zip::RefuseArchive("filen slutar för tidigt");
    const std::uint64_t begin = size - bytes.size();
    zip::ReadExactly(*file, begin, bytes);
    zip::ReadFields(bytes, trailer);
    if (trailer.mark != ContainerTrailer::kMark)
        zip::RefuseArchive("filens slut saknas");
    if (trailer.version != ContainerTrailer::kVersion || trailer.flags != 0)
        RefuseVersion();
    if (trailer.indexPosition > begin || trailer.packedIndexSize != begin - trailer.indexPosition ||
        trailer.indexSize > kMaxContainerIndexSize)
        zip::RefuseArchive("förteckningens läge stämmer inte");
    Sha256Digest recorded;
    std::ranges::copy(std::span(bytes).subspan(kContainerTrailerFields), recorded.begin());
    CheckDigest(trailer.indexPosition, trailer.packedIndexSize + kContainerTrailerFields, recorded);
    return trailer;
}

void SolidContainer::State::CheckDigest(std::uint64_t begin, std::uint64_t size,
                                        const Sha256Digest& recorded)
{
    Sha256 digest;
    for (std::uint64_t done = 0; done < size;) {
        const auto count =
            static_cast<std::size_t>(std::min<std::uint64_t>(size - done, hashed.size()));
        const auto piece = std::span(hashed).first(count);
        zip::ReadExactly(*file, begin + done, piece);
        digest.Add(piece);
        done += count;
    }
    if (digest.Finish() != recorded)
        zip::RefuseArchive("kontrollsumman (SHA-256) stämmer inte");
}

void SolidContainer::State::ReadIndex()
{
    const ContainerTrailer trailer = ReadTrailer();
    frames.Open(trailer.indexPosition, trailer.packedIndexSize);
    // It grows as bytes come in: the size in the trailer is a claim, and may be far too large.
    zip::Bytes bytes;
    while (bytes.size() < trailer.indexSize) {
        const std::size_t before = bytes.size();
        bytes.resize(before + static_cast<std::size_t>(
                                  std::min<std::uint64_t>(trailer.indexSize - before, kPieceSize)));
        frames.Read(std::span(bytes).subspan(before));
    }
    frames.Finish();
    index = ReadContainerIndex(bytes);
    std::uint64_t end = 0;
    for (const ContainerFrame& frame : index.frames) {
        positions.push_back(end);
        end += frame.packedSize;
    }
    if (end != trailer.indexPosition)
        zip::RefuseArchive("ramarnas läge stämmer inte");
}

std::uint64_t SolidContainer::State::EndOf(std::size_t frame) const
{
    return std::min((std::uint64_t(frame) + 1) * index.frameSize, index.totalSize);
}

void SolidContainer::State::OpenFrame(std::size_t number)
{
    const ContainerFrame& frame = index.frames[number];
    CheckDigest(positions[number], frame.packedSize, frame.digest);
    frames.Open(positions[number], frame.packedSize);
    position = std::uint64_t(number) * index.frameSize;
    open = number;
}

// Fills all of `bytes`, over the borders of frames.
void SolidContainer::State::Read(std::span<std::byte> bytes)
{
    while (!bytes.empty()) {
        const auto frame = static_cast<std::size_t>(position / index.frameSize);
        if (open != frame)
            OpenFrame(frame);
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>(bytes.size(), EndOf(frame) - position));
        // A frame that turns out to be damaged is not read any further.
        open.reset();
        frames.Read(bytes.first(count));
        position += count;
        if (position == EndOf(frame))
            frames.Finish();
        else
            open = frame;
        bytes = bytes.subspan(count);
    }
}

void SolidContainer::State::MoveTo(std::uint64_t target)
{
    const auto frame = static_cast<std::size_t>(target / index.frameSize);
    if (open != frame || position > target) {
        open.reset();
        position = std::uint64_t(frame) * index.frameSize;
    }
    while (position < target)
        Read(std::span(buffer).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(target - position, buffer.size()))));
}

SolidContainer::SolidContainer(std::unique_ptr<InputFile> file, const FrameDecoding& decoding)
{
    if (decoding.begin == nullptr)
        RefuseVersion();
    state_ = std::make_unique<State>(std::move(file), decoding);
    state_->ReadIndex();
}

SolidContainer::~SolidContainer() = default;

const std::vector<ZipEntry>& SolidContainer::Entries() const
{
    return state_->index.entries;
}

void SolidContainer::Extract(const ZipEntry& entry, const Text&, const ZipReader::Sink& sink)
{
    State& state = *state_;
    if (entry.size == 0)
        return;
    if (state.keptPosition == entry.headerPosition)
        return sink(state.kept);
    const bool keeps = ServesSeveralRows(entry) && entry.size <= kMaxKeptSize;
    zip::Bytes kept;
    state.MoveTo(entry.headerPosition);
    PassThroughFilter(
        {entry.size, static_cast<SolidFilter>(entry.method)}, X86Filter::Direction::Decode,
        state.buffer, [&](std::span<std::byte> bytes) { state.Read(bytes); },
        [&](std::span<const std::byte> bytes) {
            sink(bytes);
            if (keeps)
                kept.insert(kept.end(), bytes.begin(), bytes.end());
        });
    if (!keeps)
        return;
    state.keptPosition = entry.headerPosition;
    state.kept = std::move(kept);
}

} // namespace quillon
