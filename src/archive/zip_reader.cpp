#include "archive/zip_reader.h"

#include "archive/zip_directory.h"
#include "archive/zip_encryption.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <utility>

namespace quillon {

using namespace zip;

namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

/// What comes out of an entry, on its way to the caller: never more than the entry's size.
class CheckedOutput {
public:
    CheckedOutput(const ZipEntry& entry, const ZipReader::Sink& sink, const Inflation& inflation)
        : entry_(entry), sink_(sink), inflation_(inflation)
    {
    }

    void Write(std::span<const std::byte> bytes)
    {
        Require(bytes.size() <= entry_.size - written_, "en post är längre än den anger");
        if (bytes.empty())
            return;
        crc_ = inflation_.crc(crc_, reinterpret_cast<const Bytef*>(bytes.data()),
                              static_cast<uInt>(bytes.size()));
        written_ += bytes.size();
        sink_(bytes);
    }

    void Finish() const
    {
        Require(written_ == entry_.size, "en post är kortare än den anger");
        Require(!entry_.hasCrc || crc_ == entry_.crc, "kontrollsumman (CRC) stämmer inte");
    }

private:
    const ZipEntry& entry_;
    const ZipReader::Sink& sink_;
    const Inflation& inflation_;
    std::uint64_t written_ = 0;
    uLong crc_ = 0; // of no bytes
};

class Inflater {
public:
    explicit Inflater(const Inflation& inflation) : inflation_(inflation), out_(kPieceSize)
    {
        if (inflation_.begin(&stream_) != Z_OK)
            throw std::bad_alloc();
    }
    ~Inflater() { inflation_.end(&stream_); }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    void Add(std::span<std::byte> packed, CheckedOutput& output)
    {
        stream_.next_in = reinterpret_cast<Bytef*>(packed.data());
        stream_.avail_in = static_cast<uInt>(packed.size());
        do {
            Require(!isDone_, "en post fortsätter efter sitt slut");
            Step(output);
        } while (stream_.avail_in > 0 || stream_.avail_out == 0);
    }
    bool IsDone() const { return isDone_; }

private:
    void Step(CheckedOutput& output)
    {
        stream_.next_out = reinterpret_cast<Bytef*>(out_.data());
        stream_.avail_out = static_cast<uInt>(out_.size());
        const int result = inflation_.go(&stream_, Z_NO_FLUSH);
        // zlib answers "no progress" when the last full buffer already held the rest of the output.
        Require(result == Z_OK || result == Z_STREAM_END || result == Z_BUF_ERROR,
                "packade data går ej att packa upp");
        isDone_ = result == Z_STREAM_END;
        output.Write(std::span<const std::byte>(out_).first(out_.size() - stream_.avail_out));
        if (isDone_)
            stream_.avail_out = 1; // no output is left in the stream
    }

    const Inflation& inflation_;
    z_stream stream_{};
    Bytes out_;
    bool isDone_ = false;
};

/// Where the data of an entry lie.
struct Data {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

void RequireSameSizes(const LocalHeader& header, const Extras& extras, const ZipEntry& entry)
{
    if ((header.flags & Flag::kSizesFollowData) != 0)
        return;
    Require(extras.zip64.size.value_or(header.size) == entry.size &&
                extras.zip64.packedSize.value_or(header.packedSize) == entry.packedSize &&
                header.crc == entry.crc,
            "en posts två huvuden säger olika");
}

// The local header repeats what the directory says. A program that reads from the front goes by
// it, so the two must say the same.
Data FindData(InputFile& archive, const ZipEntry& entry, const Directory::Extent& extent)
{
    Bytes bytes(kRecordSize<LocalHeader>);
    ReadExactly(archive, extent.begin, bytes);
    const auto header = ReadRecord<LocalHeader>(bytes);
    Require(header.has_value(), "en posts huvud saknas");
    const std::uint64_t behind = std::uint64_t(header->nameLength) + header->extraLength;
    const std::uint64_t left = extent.end - extent.begin - bytes.size();
    Require(behind <= left && entry.packedSize <= left - behind, "en posts huvud är för långt");

    const std::uint64_t behindHeader = extent.begin + bytes.size();
    bytes.resize(static_cast<std::size_t>(behind));
    ReadExactly(archive, behindHeader, bytes);
    const std::span<const std::byte> all(bytes);
    Extras extras;
    if (header->size == kFull32)
        extras.zip64.size = header->size;
    if (header->packedSize == kFull32)
        extras.zip64.packedSize = header->packedSize;
    ReadExtras(all.subspan(header->nameLength), extras);
    const bool isEncrypted = (header->flags & Flag::kEncrypted) != 0;
    const std::uint16_t method = extras.aes && isEncrypted ? extras.aes->method : header->method;
    Require(DecodeText(all.first(header->nameLength), header->flags) == entry.name &&
                isEncrypted == entry.isEncrypted && method == entry.method,
            "en posts två huvuden säger olika");
    RequireSameSizes(*header, extras, entry);
    return {behindHeader + behind, behindHeader + behind + entry.packedSize};
}

/// The encryption of an entry, by the salt before its data; `data` is left as what is encrypted.
std::unique_ptr<EntryCipher> OpenCipher(InputFile& archive, Data& data, const Text& password)
{
    Salt salt{};
    ReadExactly(archive, data.begin, salt);
    Verifier verifier{};
    ReadExactly(archive, data.begin + kSaltSize, verifier);
    data.begin += kSaltSize + kVerifierSize;
    data.end -= kAuthenticationSize;
    auto cipher = std::make_unique<EntryCipher>(password, salt);
    if (cipher->PasswordVerifier() != verifier)
        throw ZipError(ZipError::Kind::WrongPassword, "lösenordet stämmer inte");
    return cipher;
}

void CheckAuthentication(InputFile& archive, const Data& data, EntryCipher& cipher)
{
    Authentication onFile{};
    ReadExactly(archive, data.end, onFile);
    Require(onFile == cipher.Finish(), "en krypterad post är ändrad");
}

} // namespace

struct ZipReader::State {
    Inflation inflation;
    std::unique_ptr<InputFile> archive;
    Directory directory;

    const Directory::Extent& ExtentOf(const ZipEntry& entry) const
    {
        const auto extent = std::ranges::lower_bound(directory.extents, entry.headerPosition, {},
                                                     &Directory::Extent::begin);
        Require(extent != directory.extents.end() && extent->begin == entry.headerPosition,
                "posten finns inte");
        return *extent;
    }
};

ZipReader::ZipReader(std::unique_ptr<InputFile> archive, const Inflation& inflation)
    : state_(std::make_unique<State>())
{
    state_->inflation = inflation;
    state_->archive = std::move(archive);
    state_->directory = ReadDirectory(*state_->archive);
}

ZipReader::~ZipReader() = default;
ZipReader::ZipReader(ZipReader&&) noexcept = default;
ZipReader& ZipReader::operator=(ZipReader&&) noexcept = default;

const std::vector<ZipEntry>& ZipReader::Entries() const
{
    return state_->directory.entries;
}

void ZipReader::Extract(const ZipEntry& entry, const Text& password, const Sink& sink)
{
    InputFile& archive = *state_->archive;
    Data data = FindData(archive, entry, state_->ExtentOf(entry));
    const auto cipher = entry.isEncrypted ? OpenCipher(archive, data, password) : nullptr;
    CheckedOutput output(entry, sink, state_->inflation);
    std::optional<Inflater> inflater;
    if (!entry.isStored)
        inflater.emplace(state_->inflation);

    Bytes buffer(kPieceSize);
    for (std::uint64_t at = data.begin; at < data.end;) {
        const auto piece = std::span(buffer).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(data.end - at, buffer.size())));
        ReadExactly(archive, at, piece);
        at += piece.size();
        if (cipher)
            cipher->Decrypt(piece);
        if (inflater)
            inflater->Add(piece, output);
        else
            output.Write(piece);
    }
    if (cipher)
        CheckAuthentication(archive, data, *cipher);
    Require(!inflater || inflater->IsDone(), "en post slutar för tidigt");
    output.Finish();
}

} // namespace quillon
