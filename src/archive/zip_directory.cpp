#include "archive/zip_directory.h"

#include "archive/zip_encryption.h"
#include "helpers/ansi_text.h"
#include "helpers/utf8.h"

#include <algorithm>
#include <utility>

namespace quillon::zip {

namespace {

constexpr std::uint64_t kMaxCommentLength = 0xFFFF;
// Deflate spends at least two bits on 258 bytes. A larger size is false, and could make a reader
// reserve too much memory.
constexpr std::uint64_t kMaxExpansion = 1032;

/// Where the directory is, and how many entries and bytes it must have.
struct Place {
    std::uint64_t position = 0;
    std::uint64_t size = 0;
    std::uint64_t entries = 0;
    std::uint64_t endRecord = 0; // the record that must follow the directory at once
};

Text AsText(std::span<const std::byte> bytes)
{
    return Text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

/// Walks over the directory with a buffer that holds at least one record.
class DirectoryCursor {
public:
    DirectoryCursor(InputFile& archive, std::uint64_t position, std::uint64_t size)
        : archive_(archive), next_(position), left_(size)
    {
    }

    /// The next `count` bytes, good until the next call.
    std::span<const std::byte> Take(std::size_t count)
    {
        if (buffer_.size() - used_ < count)
            Refill(count);
        const auto taken = std::span<const std::byte>(buffer_).subspan(used_, count);
        used_ += count;
        return taken;
    }
    bool IsAtEnd() const { return left_ == 0 && used_ == buffer_.size(); }

private:
    static constexpr std::size_t kPiece = 64 * 1024;

    void Refill(std::size_t count)
    {
        buffer_.erase(buffer_.begin(), buffer_.begin() + static_cast<std::ptrdiff_t>(used_));
        used_ = 0;
        const std::size_t kept = buffer_.size();
        const auto added = static_cast<std::size_t>(
            std::min<std::uint64_t>(left_, std::max(kPiece, count - kept)));
        Require(kept + added >= count, "förteckningen slutar mitt i en post");
        buffer_.resize(kept + added);
        ReadExactly(archive_, next_, std::span(buffer_).subspan(kept));
        next_ += added;
        left_ -= added;
    }

    InputFile& archive_;
    std::uint64_t next_;
    std::uint64_t left_;
    Bytes buffer_;
    std::size_t used_ = 0;
};

template <class Record>
std::optional<Record> RecordAt(InputFile& archive, std::uint64_t position)
{
    Bytes bytes(kRecordSize<Record>);
    ReadExactly(archive, position, bytes);
    return ReadRecord<Record>(bytes);
}

[[noreturn]] void RefuseWithoutEnd(InputFile& archive)
{
    if (archive.Size() >= kRecordSize<LocalHeader> && RecordAt<LocalHeader>(archive, 0))
        RefuseArchive("arkivet är avkortat, dess slutpost saknas");
    throw ZipError(ZipError::Kind::NotAnArchive, "filen är inget ZIP-arkiv");
}

// The end record is the one whose comment reaches exactly to the end of the file. An archive whose
// comment holds a second such record is ambiguous.
std::uint64_t FindEndRecord(InputFile& archive)
{
    const std::uint64_t size = archive.Size();
    const std::uint64_t tailSize = std::min(size, kRecordSize<EndRecord> + kMaxCommentLength);
    const std::uint64_t begin = size - tailSize;
    Bytes tail(static_cast<std::size_t>(tailSize));
    ReadExactly(archive, begin, tail);
    std::optional<std::size_t> found;
    for (std::size_t at = 0; at + kRecordSize<EndRecord> <= tail.size(); ++at) {
        const auto rest = std::span<const std::byte>(tail).subspan(at);
        const auto record = ReadRecord<EndRecord>(rest);
        if (!record || kRecordSize<EndRecord> + record->commentLength != rest.size())
            continue;
        Require(!found, "det finns två slutposter");
        found = at;
    }
    if (!found)
        RefuseWithoutEnd(archive);
    return begin + *found;
}

bool Agree(std::uint64_t small, std::uint64_t full, std::uint64_t large)
{
    return small == full || small == large;
}

Place PlaceFromZip64(InputFile& archive, const EndRecord& end, const Zip64Locator& locator,
                     std::uint64_t locatorPosition)
{
    const std::uint64_t position = locator.endRecordPosition;
    Require(locator.disk == 0 && locator.disks <= 1, "delar ligger på andra diskar");
    Require(position <= locatorPosition &&
                locatorPosition - position >= kRecordSize<Zip64EndRecord>,
            "ZIP64-slutposten ligger utanför arkivet");
    const auto large = RecordAt<Zip64EndRecord>(archive, position);
    Require(large.has_value(), "ZIP64-slutposten saknas");
    Require(large->recordSize == locatorPosition - position - Zip64EndRecord::kLeadSize,
            "ZIP64-slutposten har fel storlek");
    Require(large->disk == 0 && large->directoryDisk == 0 && large->entriesOnDisk == large->entries,
            "delar ligger på andra diskar");
    Require(Agree(end.entries, kFull16, large->entries) &&
                Agree(end.directorySize, kFull32, large->directorySize) &&
                Agree(end.directoryPosition, kFull32, large->directoryPosition),
            "de två slutposterna säger olika");
    return {large->directoryPosition, large->directorySize, large->entries, position};
}

Place FindDirectory(InputFile& archive)
{
    const std::uint64_t endPosition = FindEndRecord(archive);
    const EndRecord end = *RecordAt<EndRecord>(archive, endPosition);
    Require(end.disk == 0 && end.directoryDisk == 0 && end.entriesOnDisk == end.entries,
            "delar ligger på andra diskar");
    if (endPosition >= kRecordSize<Zip64Locator>) {
        const std::uint64_t locatorPosition = endPosition - kRecordSize<Zip64Locator>;
        if (const auto locator = RecordAt<Zip64Locator>(archive, locatorPosition))
            return PlaceFromZip64(archive, end, *locator, locatorPosition);
    }
    return {end.directoryPosition, end.directorySize, end.entries, endPosition};
}

void RequireSoundPlace(const Place& place)
{
    Require(place.position <= place.endRecord && place.size == place.endRecord - place.position,
            "förteckningen ligger inte före slutposten");
    Require(place.entries <= place.size / kRecordSize<CentralHeader>,
            "förteckningen är för liten för sina poster");
}

void RequireSupported(const CentralHeader& header, const Extras& extras)
{
    const auto refuse = [](const char* what) { throw ZipError(ZipError::Kind::Unsupported, what); };
    if ((header.flags & (Flag::kPatchData | Flag::kStrongEncryption | Flag::kMaskedHeader)) != 0)
        refuse("en post är av okänt slag");
    const bool isEncrypted = (header.flags & Flag::kEncrypted) != 0;
    if (isEncrypted != (header.method == Method::kAes))
        refuse("en post har en annan kryptering än AES");
    if (isEncrypted) {
        Require(extras.aes.has_value(), "krypteringens art saknas");
        const AesExtra& aes = *extras.aes;
        const bool isKnownVersion = aes.version == AesExtra::kAe1 || aes.version == AesExtra::kAe2;
        if (!isKnownVersion || aes.vendor != AesExtra::kVendor || aes.strength != AesExtra::kAes256)
            refuse("en post har en annan kryptering än AES-256");
    }
    const std::uint16_t method = isEncrypted ? extras.aes->method : header.method;
    if (method != Method::kStored && method != Method::kDeflated)
        refuse("en post har en annan packning än deflate");
}

void RequireSoundSizes(const ZipEntry& entry, const Place& place)
{
    Require(entry.packedSize <= place.position, "en post är större än arkivet");
    const std::uint64_t around = entry.isEncrypted ? kEncryptionSize : 0;
    Require(entry.packedSize >= around, "en krypterad post saknar plats för sina nycklar");
    const std::uint64_t packed = entry.packedSize - around;
    if (entry.isStored)
        Require(entry.size == packed, "en lagrad post anger två storlekar");
    else
        Require(entry.size <= packed * kMaxExpansion, "en post anger en orimlig storlek");
}

ZipEntry EntryFrom(const CentralHeader& header, const Extras& extras)
{
    ZipEntry entry;
    entry.size = extras.zip64.size.value_or(header.size);
    entry.packedSize = extras.zip64.packedSize.value_or(header.packedSize);
    entry.headerPosition = extras.zip64.headerPosition.value_or(header.headerPosition);
    entry.crc = header.crc;
    entry.modified = FromDosTime(header.date, header.time);
    entry.isEncrypted = header.method == Method::kAes;
    entry.method = entry.isEncrypted ? extras.aes->method : header.method;
    entry.isStored = entry.method == Method::kStored;
    entry.hasCrc = !entry.isEncrypted || extras.aes->version == AesExtra::kAe1;
    return entry;
}

std::optional<std::uint64_t> ComesFromZip64(std::uint32_t field)
{
    return field == kFull32 ? std::optional<std::uint64_t>(field) : std::nullopt;
}

ZipEntry ReadEntry(DirectoryCursor& cursor, const Place& place, Directory::Extent& extent)
{
    const auto header = ReadRecord<CentralHeader>(cursor.Take(kRecordSize<CentralHeader>));
    Require(header.has_value(), "en post saknas i förteckningen");
    Require(header->disk == 0, "en post ligger på en annan disk");
    const Text name = DecodeText(cursor.Take(header->nameLength), header->flags);
    Require(!name.empty() && name.find('\0') == Text::npos, "en post saknar ett användbart namn");
    Extras extras;
    extras.zip64 = {ComesFromZip64(header->size), ComesFromZip64(header->packedSize),
                    ComesFromZip64(header->headerPosition)};
    ReadExtras(cursor.Take(header->extraLength), extras);
    RequireSupported(*header, extras);
    ZipEntry entry = EntryFrom(*header, extras);
    entry.name = name;
    entry.comment = DecodeText(cursor.Take(header->commentLength), header->flags);
    RequireSoundSizes(entry, place);
    const std::uint64_t minSize = kRecordSize<LocalHeader> + header->nameLength + entry.packedSize;
    Require(entry.headerPosition <= place.position &&
                minSize <= place.position - entry.headerPosition,
            "en post ligger utanför arkivet");
    extent = {entry.headerPosition, entry.headerPosition + minSize};
    return entry;
}

// A small file can pretend to be enormous by entries that share bytes.
void SetExtentEnds(std::vector<Directory::Extent>& extents, const Place& place)
{
    std::ranges::sort(extents, {}, &Directory::Extent::begin);
    for (std::size_t i = 0; i < extents.size(); ++i) {
        const std::uint64_t next = i + 1 < extents.size() ? extents[i + 1].begin : place.position;
        Require(extents[i].end <= next, "poster överlappar varandra");
        extents[i].end = next;
    }
}

} // namespace

void RefuseArchive(const char* what)
{
    throw ZipError(ZipError::Kind::Damaged, what);
}

void ReadExactly(InputFile& archive, std::uint64_t position, std::span<std::byte> bytes)
{
    archive.Seek(position);
    while (!bytes.empty()) {
        const std::size_t got = archive.Read(bytes);
        Require(got > 0, "arkivet är kortare än det anger");
        bytes = bytes.subspan(got);
    }
}

// Programs that do not write UTF-8 write the code page of their time; a name in plain ASCII is the
// same in all of them.
Text DecodeText(std::span<const std::byte> bytes, std::uint16_t flags)
{
    Text text = AsText(bytes);
    if (IsUtf8(text))
        return text;
    Require((flags & Flag::kUtf8) == 0, "en text är ej UTF-8");
    return AnsiText::FromBytes(text);
}

void ReadExtras(std::span<const std::byte> bytes, Extras& extras)
{
    bool hasZip64 = false;
    while (!bytes.empty()) {
        ExtraHeader header;
        Require(ReadFields(bytes, header), "ett extra fält är avkortat");
        bytes = bytes.subspan(FieldsSize(header));
        Require(header.length <= bytes.size(), "ett extra fält är avkortat");
        const auto field = bytes.first(header.length);
        bytes = bytes.subspan(header.length);
        if (header.id == Zip64Extra::kId) {
            Require(!std::exchange(hasZip64, true), "en post har två ZIP64-fält");
            Require(ReadFields(field, extras.zip64), "ett ZIP64-fält är avkortat");
        } else if (header.id == AesExtra::kId) {
            Require(!extras.aes, "en post har två AES-fält");
            Require(ReadFields(field, extras.aes.emplace()), "ett AES-fält är avkortat");
        }
    }
}

Directory ReadDirectory(InputFile& archive)
{
    const Place place = FindDirectory(archive);
    RequireSoundPlace(place);
    Directory directory;
    directory.entries.reserve(static_cast<std::size_t>(place.entries));
    directory.extents.reserve(static_cast<std::size_t>(place.entries));
    DirectoryCursor cursor(archive, place.position, place.size);
    for (std::uint64_t i = 0; i < place.entries; ++i)
        directory.entries.push_back(ReadEntry(cursor, place, directory.extents.emplace_back()));
    Require(cursor.IsAtEnd(), "förteckningen rymmer mer än sina poster");
    SetExtentEnds(directory.extents, place);
    return directory;
}

} // namespace quillon::zip
