#include "archive/solid/solid_reader.h"

#include "archive/solid/filtered_run.h"
#include "archive/solid/frame_reader.h"
#include "archive/solid/solid_digest.h"
#include "archive/solid/solid_error.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 256 * 1024;

std::size_t ReadUpTo(InputFile& file, std::uint64_t position, std::span<std::byte> bytes)
{
    file.Seek(position);
    std::size_t done = 0;
    while (done < bytes.size()) {
        const std::size_t got = file.Read(bytes.subspan(done));
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

std::optional<SignatureFields> FieldsOf(InputFile& file)
{
    zip::Bytes headers(kProgramHeadersSize);
    headers.resize(ReadUpTo(file, 0, headers));
    return FindSignatureFields(headers);
}

// A payload ends where the file does, or where the certificates of a signed program begin.
std::uint64_t EndOfPayload(const InputFile& file, const std::optional<SignatureFields>& fields)
{
    if (!fields || (fields->tableBegin == 0 && fields->tableSize == 0))
        return file.Size();
    if (std::uint64_t(fields->tableBegin) + fields->tableSize != file.Size())
        RefuseSolid("signaturen ligger inte sist i filen");
    return fields->tableBegin;
}

} // namespace

SolidReader::SolidReader(std::unique_ptr<InputFile> file, const Progress& onProgress)
    : file_(std::move(file))
{
    const std::uint64_t end = EndOfPayload(*file_, FieldsOf(*file_));
    CheckDigest(FindTrailer(end), onProgress);
    ReadTable();
}

std::uint64_t SolidReader::FindTrailer(std::uint64_t end)
{
    constexpr auto kNoPayload = SolidError::Kind::NoPayload;
    zip::Bytes bytes(kSolidTrailerFields);
    if (end < kSolidTrailerSize)
        throw SolidError(kNoPayload, "filen har inget innehåll att packa upp");
    const std::uint64_t position = end - kSolidTrailerSize;
    if (ReadUpTo(*file_, position, bytes) != bytes.size() || !zip::ReadFields(bytes, trailer_) ||
        trailer_.mark != SolidTrailer::kMark)
        throw SolidError(kNoPayload, "filen har inget innehåll att packa upp");
    if (trailer_.version != SolidTrailer::kVersion || trailer_.flags != 0)
        throw SolidError(SolidError::Kind::Unsupported, "filen är gjord av en nyare version");
    if (trailer_.streamBegin > position || trailer_.streamSize > position - trailer_.streamBegin ||
        position - trailer_.streamBegin - trailer_.streamSize >= kSolidAlignment ||
        trailer_.tableSize > kMaxSolidTableSize)
        RefuseSolid("innehållets läge stämmer inte");
    return position;
}

void SolidReader::CheckDigest(std::uint64_t trailerPosition, const Progress& onProgress)
{
    SolidDigest digest(trailer_.streamBegin > 0 ? FieldsOf(*file_) : std::nullopt);
    const std::uint64_t end = trailerPosition + kSolidTrailerFields;
    zip::Bytes piece(kPieceSize);
    for (std::uint64_t done = 0; done < end;) {
        const auto wanted =
            static_cast<std::size_t>(std::min<std::uint64_t>(end - done, piece.size()));
        const auto bytes = std::span(piece).first(wanted);
        if (ReadUpTo(*file_, done, bytes) != wanted)
            RefuseSolid("filen slutar för tidigt");
        digest.Add(bytes);
        done += wanted;
        if (onProgress)
            onProgress(done, end);
    }
    Sha256Digest recorded;
    if (ReadUpTo(*file_, end, recorded) != recorded.size() || recorded != digest.Finish())
        RefuseSolid("kontrollsumman (SHA-256) stämmer inte");
}

void SolidReader::ReadTable()
{
    FrameReader stream(*file_, LinkedFrameDecoding(), kMaxSolidWindowLog, RefuseSolid);
    stream.Open(trailer_.streamBegin, trailer_.streamSize);
    // It grows as bytes come in: the size in the trailer is a claim, and may be far too large.
    zip::Bytes bytes;
    while (bytes.size() < trailer_.tableSize) {
        const std::size_t before = bytes.size();
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>(trailer_.tableSize - before, kPieceSize));
        bytes.resize(before + count);
        stream.Read(std::span(bytes).subspan(before));
    }
    table_ = ReadSolidTable(bytes);
}

void SolidReader::Extract(SolidSink& sink) const
{
    FrameReader stream(*file_, LinkedFrameDecoding(), kMaxSolidWindowLog, RefuseSolid);
    stream.Open(trailer_.streamBegin, trailer_.streamSize);
    zip::Bytes buffer(kPieceSize);
    for (std::uint64_t left = trailer_.tableSize; left > 0;) {
        const auto count = static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size()));
        stream.Read(std::span(buffer).first(count));
        left -= count;
    }
    for (const SolidFile& file : table_.files) {
        sink.Begin(file);
        for (const SolidRun& run : file.runs)
            PassThroughFilter(
                run, X86Filter::Direction::Decode, buffer,
                [&](std::span<std::byte> bytes) { stream.Read(bytes); },
                [&](std::span<const std::byte> bytes) { sink.Write(bytes); });
        sink.End();
    }
    stream.Finish();
}

bool HasSolidPayload(InputFile& file)
{
    const auto fields = FieldsOf(file);
    std::uint64_t end = file.Size();
    if (fields && fields->tableSize > 0 && fields->tableBegin < end)
        end = fields->tableBegin;
    if (end < kSolidTrailerSize)
        return false;
    std::byte mark[sizeof(SolidTrailer::kMark)];
    return ReadUpTo(file, end - kSolidTrailerSize, mark) == sizeof mark &&
           zip::ReadNumber<std::uint64_t>(mark) == SolidTrailer::kMark;
}

} // namespace quillon
