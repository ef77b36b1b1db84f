#include "archive/zip_reader.h"

#include "archive/joined_input.h"
#include "platform/run_error.h"
#include "support/memory_host.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <fstream>
#include <functional>

namespace quillon {

namespace {

std::string TestArchive(const std::string& name)
{
    std::ifstream file(std::string(QUILLON_TEST_DATA "/data/zip/") + name, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Rows()
{
    std::string text;
    for (int i = 0; i < 300; ++i)
        text.append("rad ").append(std::to_string(i)).append("\r\n");
    return text;
}

std::unique_ptr<InputFile> InputOf(const std::string& bytes)
{
    test::MemoryFiles files;
    files.Put("C:\\a.zip", bytes);
    return files.OpenInput("C:\\a.zip");
}

ZipReader Open(const std::string& archive)
{
    return ZipReader(InputOf(archive));
}

std::string Extract(ZipReader& reader, std::size_t entry, const Text& password = {})
{
    std::string content;
    reader.Extract(reader.Entries().at(entry), password, [&](std::span<const std::byte> bytes) {
        content.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    });
    return content;
}

/// Opens the archive and unpacks everything, as a runtime would.
void ReadAll(const std::string& archive, const Text& password = {})
{
    ZipReader reader = Open(archive);
    for (std::size_t i = 0; i < reader.Entries().size(); ++i)
        Extract(reader, i, password);
}

void ExpectRefused(const std::string& archive, ZipError::Kind kind, const Text& password = {})
{
    try {
        ReadAll(archive, password);
        ADD_FAILURE() << "the archive was taken";
    } catch (const ZipError& error) {
        EXPECT_EQ(error.Reason(), kind) << error.what();
    }
}

// The records of an archive written by hand, so that each number in them can be wrong.
std::string Number(std::uint64_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text.push_back(static_cast<char>(number >> (8 * i)));
    return text;
}

struct Hand {
    std::string name = "a.txt";
    std::string localName = "a.txt";
    std::string data = "innehåll";
    std::string comment;
    std::string extra;
    std::string localExtra;
    std::uint64_t flags = 0;
    std::uint64_t method = 0;
    std::uint64_t crc = 0;
    std::uint64_t size = 0;
    std::uint64_t packed = 0;
    std::uint64_t position = 0;
    std::uint64_t disk = 0;

    explicit Hand(std::string content = "innehåll") : data(std::move(content))
    {
        crc = crc32(0, reinterpret_cast<const Bytef*>(data.data()), static_cast<uInt>(data.size()));
        size = packed = data.size();
    }

    std::string Common() const
    {
        return Number(flags, 2) + Number(method, 2) + Number(0x63C0, 2) + Number(0x305D, 2) +
               Number(crc, 4) + Number(packed, 4) + Number(size, 4);
    }
    std::string Local() const
    {
        return "PK\3\4" + Number(20, 2) + Common() + Number(localName.size(), 2) +
               Number(localExtra.size(), 2) + localName + localExtra + data;
    }
    std::string Central() const
    {
        return "PK\1\2" + Number(20, 2) + Number(20, 2) + Common() + Number(name.size(), 2) +
               Number(extra.size(), 2) + Number(comment.size(), 2) + Number(disk, 2) +
               Number(0, 2) + Number(0, 4) + Number(position, 4) + name + extra + comment;
    }
};

struct HandEnd {
    std::uint64_t disk = 0;
    std::uint64_t entriesOnDisk = 1;
    std::uint64_t entries = 1;
    std::uint64_t size = 0;
    std::uint64_t position = 0;
    std::string comment;

    std::string Bytes() const
    {
        return "PK\5\6" + Number(disk, 2) + Number(disk, 2) + Number(entriesOnDisk, 2) +
               Number(entries, 2) + Number(size, 4) + Number(position, 4) +
               Number(comment.size(), 2) + comment;
    }
};

using Lie = std::function<void(Hand&, HandEnd&)>;

std::string OneEntry(Hand entry, const Lie& lie = {})
{
    HandEnd end;
    if (lie)
        lie(entry, end);
    const std::string local = entry.Local();
    const std::string central = entry.Central();
    end.size += central.size();
    end.position += local.size();
    return local + central + end.Bytes();
}

} // namespace

TEST(ZipReader, ReadsWhatInfoZipWrites)
{
    ZipReader reader = Open(TestArchive("by_zip.zip"));
    ASSERT_EQ(reader.Entries().size(), 3U);
    const ZipEntry& readme = reader.Entries()[0];
    EXPECT_EQ(readme.name, "data/app/readme.txt");
    EXPECT_EQ(readme.size, 6U);
    EXPECT_TRUE(readme.isStored);
    EXPECT_FALSE(readme.isEncrypted);
    EXPECT_EQ(readme.modified, (LocalTime{2004, 2, 29, 12, 30, 0}));
    EXPECT_FALSE(reader.Entries()[1].isStored);
    EXPECT_EQ(Extract(reader, 0), "Hej!\r\n");
    EXPECT_EQ(Extract(reader, 1), Rows());
    EXPECT_EQ(Extract(reader, 2), "");
    EXPECT_EQ(Extract(reader, 0), "Hej!\r\n") << "entries come in any order and again";
}

TEST(ZipReader, ReadsWhat7zEncrypts)
{
    ZipReader reader = Open(TestArchive("aes_by_7z.zip"));
    ASSERT_EQ(reader.Entries().size(), 3U);
    for (std::size_t i = 0; i < 3; ++i) {
        const ZipEntry& entry = reader.Entries()[i];
        EXPECT_TRUE(entry.isEncrypted);
        const std::string expected = entry.name == "data/app/rows.txt"     ? Rows()
                                     : entry.name == "data/app/readme.txt" ? "Hej!\r\n"
                                                                           : "";
        EXPECT_EQ(Extract(reader, i, "hemligt"), expected) << entry.name;
    }
}

TEST(ZipReader, TellsAWrongPasswordFromDamage)
{
    ExpectRefused(TestArchive("aes_by_7z.zip"), ZipError::Kind::WrongPassword, "fel");
    ExpectRefused(TestArchive("aes_by_7z.zip"), ZipError::Kind::WrongPassword);
}

TEST(ZipReader, NoticesAnEncryptedByteThatWasChanged)
{
    std::string archive = TestArchive("aes_by_7z.zip");
    ZipReader reader = Open(archive);
    for (const ZipEntry& entry : reader.Entries()) {
        const std::size_t inside =
            static_cast<std::size_t>(entry.headerPosition) + 30 + entry.name.size() + 11 + 18;
        if (entry.size == 0)
            continue;
        archive[inside] = static_cast<char>(archive[inside] ^ 1);
        ExpectRefused(archive, ZipError::Kind::Damaged, "hemligt");
        archive[inside] = static_cast<char>(archive[inside] ^ 1);
    }
    EXPECT_NO_THROW(ReadAll(archive, "hemligt"));
}

TEST(ZipReader, ReadsZip64SizesThatFollowTheDataAndUtf8Names)
{
    ZipReader zip64 = Open(TestArchive("zip64.zip"));
    EXPECT_EQ(Extract(zip64, 0), Rows());
    ZipReader streamed = Open(TestArchive("streamed.zip"));
    EXPECT_EQ(Extract(streamed, 0), Rows());
    ZipReader utf8 = Open(TestArchive("utf8.zip"));
    EXPECT_EQ(utf8.Entries()[0].name, "data/åäö €.txt");
    EXPECT_EQ(utf8.Entries()[0].comment, "F1 F7");
    EXPECT_EQ(utf8.Entries()[0].modified, (LocalTime{2004, 2, 29, 12, 30, 58}));
}

TEST(ZipReader, RefusesWhatItDoesNotUnderstand)
{
    ExpectRefused(TestArchive("zipcrypto.zip"), ZipError::Kind::Unsupported, "hemligt");
    ExpectRefused(TestArchive("aes128.zip"), ZipError::Kind::Unsupported, "hemligt");
    ExpectRefused(TestArchive("lzma.zip"), ZipError::Kind::Unsupported);
    ExpectRefused("", ZipError::Kind::NotAnArchive);
    ExpectRefused("PK", ZipError::Kind::NotAnArchive);
    ExpectRefused(std::string(100000, 'x'), ZipError::Kind::NotAnArchive);
}

TEST(ZipReader, TakesAnArchiveWithoutEntries)
{
    HandEnd end;
    end.entries = end.entriesOnDisk = 0;
    EXPECT_TRUE(Open(end.Bytes()).Entries().empty());
}

TEST(ZipReader, RefusesAnArchiveThatIsCutAnywhere)
{
    for (const char* name : {"by_zip.zip", "aes_by_7z.zip", "zip64.zip", "utf8.zip"}) {
        const std::string archive = TestArchive(name);
        for (std::size_t size = 0; size < archive.size(); ++size)
            EXPECT_THROW(ReadAll(archive.substr(0, size), "hemligt"), ZipError) << name << size;
    }
}

// Any change must end in an error or leave the contents as they were; it must never crash or hang.
TEST(ZipReader, SurvivesEveryByteThatIsTurnedOver)
{
    for (const char* name : {"by_zip.zip", "aes_by_7z.zip", "zip64.zip", "utf8.zip"}) {
        std::string archive = TestArchive(name);
        for (char& byte : archive) {
            byte = static_cast<char>(~byte);
            try {
                ReadAll(archive, "hemligt");
            } catch (const ZipError&) {
            }
            byte = static_cast<char>(~byte);
        }
    }
}

TEST(ZipReader, TakesTheHandMadeArchiveThatTheLiesBelowAreToldAbout)
{
    ZipReader reader = Open(OneEntry(Hand()));
    EXPECT_EQ(Extract(reader, 0), "innehåll");
    ZipReader commented = Open(OneEntry(Hand(), [](Hand&, HandEnd& end) { end.comment = "ord"; }));
    EXPECT_EQ(Extract(commented, 0), "innehåll");
}

TEST(ZipReader, RefusesEveryLie)
{
    struct Case {
        const char* what;
        Lie lie;
        ZipError::Kind kind = ZipError::Kind::Damaged;
    };
    // clang-format off
    const Case kCases[] = {
        {"a CRC of other data", [](Hand& entry, HandEnd&) { entry.crc ^= 1; }},
        {"a stored entry of two sizes", [](Hand& entry, HandEnd&) { entry.size = 100; }},
        {"an entry larger than the file", [](Hand& entry, HandEnd&) { entry.size = entry.packed = 1000000; }},
        {"an entry of 4 GiB", [](Hand& entry, HandEnd&) { entry.size = entry.packed = 0xFFFFFFFE; }},
        {"a size no deflate reaches", [](Hand& entry, HandEnd&) { entry.method = 8; entry.size = 1U << 30U; }},
        {"data that are no deflate", [](Hand& entry, HandEnd&) { entry.method = 8; }},
        {"a header behind the directory", [](Hand& entry, HandEnd&) { entry.position = 100; }},
        {"a header at 4 GiB", [](Hand& entry, HandEnd&) { entry.position = 0xFFFFFFFE; }},
        {"a header that is none", [](Hand& entry, HandEnd&) { entry.position = 1; }},
        {"an entry on another disk", [](Hand& entry, HandEnd&) { entry.disk = 1; }},
        {"two names", [](Hand& entry, HandEnd&) { entry.localName = "b.txt"; }},
        {"a local name that covers the data", [](Hand& entry, HandEnd&) { entry.localName = "a.txtinne"; }},
        {"an empty name", [](Hand& entry, HandEnd&) { entry.name = entry.localName = ""; }},
        {"a name with a zero", [](Hand& entry, HandEnd&) { entry.name = entry.localName = std::string("a\0b", 3); }},
        {"a name that is no UTF-8", [](Hand& entry, HandEnd&) { entry.flags = 0x800; entry.name = entry.localName = "\xE5"; }},
        {"an extra field that is cut", [](Hand& entry, HandEnd&) { entry.extra = Number(1, 2) + Number(50, 2); }},
        {"half an extra field", [](Hand& entry, HandEnd&) { entry.extra = "abc"; }},
        {"a local extra field that is cut", [](Hand& entry, HandEnd&) { entry.localExtra = Number(1, 2) + Number(50, 2); }},
        {"two ZIP64 fields", [](Hand& entry, HandEnd&) { entry.extra = Number(1, 4) + Number(1, 4); }},
        {"a ZIP64 field too short", [](Hand& entry, HandEnd&) { entry.size = 0xFFFFFFFF; entry.extra = Number(1, 2) + Number(4, 2) + Number(8, 4); }},
        {"a ZIP64 size beyond all", [](Hand& entry, HandEnd&) { entry.size = entry.packed = 0xFFFFFFFF; entry.extra = Number(1, 2) + Number(16, 2) + Number(~0ULL, 8) + Number(~0ULL, 8); }},
        {"a ZIP64 position beyond all", [](Hand& entry, HandEnd&) { entry.position = 0xFFFFFFFF; entry.extra = Number(1, 2) + Number(8, 2) + Number(~0ULL - 10, 8); }},
        {"encrypted without keys", [](Hand& entry, HandEnd&) { entry.flags = 1; entry.method = 99; entry.extra = Number(0x9901, 2) + Number(7, 2) + Number(2, 2) + "AE" + Number(3, 1) + Number(0, 2); }},
        {"encrypted, nobody knows how", [](Hand& entry, HandEnd&) { entry.flags = 1; entry.method = 99; }},
        {"AES without its flag", [](Hand& entry, HandEnd&) { entry.method = 99; }, ZipError::Kind::Unsupported},
        {"a method of its own", [](Hand& entry, HandEnd&) { entry.method = 6; }, ZipError::Kind::Unsupported},
        {"masked headers", [](Hand& entry, HandEnd&) { entry.flags = 0x2000; }, ZipError::Kind::Unsupported},
        {"more entries than there are", [](Hand&, HandEnd& end) { end.entries = end.entriesOnDisk = 2; }},
        {"65,534 entries", [](Hand&, HandEnd& end) { end.entries = end.entriesOnDisk = 65534; }},
        {"fewer entries than there are", [](Hand&, HandEnd& end) { end.entries = end.entriesOnDisk = 0; }},
        {"entries on other disks", [](Hand&, HandEnd& end) { end.entriesOnDisk = 0; }},
        {"another disk", [](Hand&, HandEnd& end) { end.disk = 1; }},
        {"a directory too small", [](Hand&, HandEnd& end) { --end.size; }},
        {"a directory too large", [](Hand&, HandEnd& end) { ++end.size; }},
        {"a directory that begins late", [](Hand&, HandEnd& end) { ++end.position; }},
        {"a directory of 4 GiB", [](Hand&, HandEnd& end) { end.size = 0xFFFFFF00; }},
        {"a second end in the comment", [](Hand&, HandEnd& end) { end.comment = HandEnd().Bytes(); }},
    };
    // clang-format on
    for (const Case& test : kCases) {
        SCOPED_TRACE(test.what);
        ExpectRefused(OneEntry(Hand(), test.lie), test.kind);
    }
}

TEST(ZipReader, RefusesEntriesThatOverlap)
{
    Hand first(std::string(500, 'a'));
    Hand second(std::string(40, 'b'));
    second.name = second.localName = "b.txt";
    second.position = 100;
    first.data.replace(100 - 35, second.Local().size(), second.Local());
    first.crc = crc32(0, reinterpret_cast<const Bytef*>(first.data.data()), 500);
    const std::string local = first.Local();
    const std::string central = first.Central() + second.Central();
    HandEnd end;
    end.entries = end.entriesOnDisk = 2;
    end.position = local.size();
    end.size = central.size();
    ExpectRefused(local + central + end.Bytes(), ZipError::Kind::Damaged);

    const std::string twice = first.Central() + first.Central();
    end.size = twice.size();
    ExpectRefused(local + twice + end.Bytes(), ZipError::Kind::Damaged);
}

TEST(ZipReader, StopsADeflateBombAtTheSizeThatItDeclares)
{
    std::string zeros(1000000, '\0');
    std::string packed(compressBound(1000000), '\0');
    uLongf packedSize = packed.size();
    ASSERT_EQ(compress2(reinterpret_cast<Bytef*>(packed.data()), &packedSize,
                        reinterpret_cast<const Bytef*>(zeros.data()), 1000000, 9),
              Z_OK);
    Hand bomb(packed.substr(2, packedSize - 6)); // without zlib's own frame
    bomb.method = 8;
    bomb.size = 1000;
    ZipReader reader = Open(OneEntry(bomb));
    std::size_t unpacked = 0;
    EXPECT_THROW(
        reader.Extract(reader.Entries()[0], {},
                       [&](std::span<const std::byte> bytes) { unpacked += bytes.size(); }),
        ZipError);
    EXPECT_LE(unpacked, 1000U);

    bomb.size = 1000000;
    bomb.crc = crc32(0, reinterpret_cast<const Bytef*>(zeros.data()), 1000000);
    EXPECT_NO_THROW(ReadAll(OneEntry(bomb)));
    bomb.data += "x";
    bomb.packed = bomb.data.size();
    ExpectRefused(OneEntry(bomb), ZipError::Kind::Damaged);
}

TEST(ZipReader, RefusesZip64EndsThatDisagree)
{
    const Hand entry;
    const std::string local = entry.Local();
    const std::string central = entry.Central();
    const auto archive = [&](std::uint64_t entries, std::uint64_t size, std::uint64_t recordSize,
                             std::uint64_t recordPosition, std::uint64_t shortEntries) {
        HandEnd end;
        end.entries = end.entriesOnDisk = shortEntries;
        end.size = end.position = 0xFFFFFFFF;
        return local + central + "PK\6\6" + Number(recordSize, 8) + Number(45, 2) + Number(45, 2) +
               Number(0, 8) + Number(entries, 8) + Number(entries, 8) + Number(size, 8) +
               Number(local.size(), 8) + "PK\6\7" + Number(0, 4) + Number(recordPosition, 8) +
               Number(1, 4) + end.Bytes();
    };
    const std::uint64_t size = central.size();
    const std::uint64_t position = local.size() + central.size();
    EXPECT_NO_THROW(ReadAll(archive(1, size, 44, position, 1)));
    EXPECT_NO_THROW(ReadAll(archive(1, size, 44, position, 0xFFFF)));
    ExpectRefused(archive(1, size, 44, position, 2), ZipError::Kind::Damaged);
    ExpectRefused(archive(2, size, 44, position, 0xFFFF), ZipError::Kind::Damaged);
    ExpectRefused(archive(~0ULL, size, 44, position, 0xFFFF), ZipError::Kind::Damaged);
    ExpectRefused(archive(1, ~0ULL, 44, position, 0xFFFF), ZipError::Kind::Damaged);
    ExpectRefused(archive(1, size, 45, position, 0xFFFF), ZipError::Kind::Damaged);
    ExpectRefused(archive(1, size, ~0ULL, position, 0xFFFF), ZipError::Kind::Damaged);
    ExpectRefused(archive(1, size, 44, position + 1, 0xFFFF), ZipError::Kind::Damaged);
    ExpectRefused(archive(1, size, 44, ~0ULL, 0xFFFF), ZipError::Kind::Damaged);
}

TEST(ZipReader, LetsFailuresOfTheSinkThrough)
{
    ZipReader reader = Open(TestArchive("by_zip.zip"));
    EXPECT_THROW(reader.Extract(reader.Entries()[1], {},
                                [](std::span<const std::byte>) { throw RunError(61); }),
                 RunError);
}

TEST(JoinedInput, ReadsThePiecesAsOneFile)
{
    const std::string archive = TestArchive("by_zip.zip");
    std::vector<std::unique_ptr<InputFile>> pieces;
    for (std::size_t at = 0; at < archive.size(); at += 100)
        pieces.push_back(InputOf(archive.substr(at, 100)));
    pieces.push_back(InputOf(""));
    auto joined = std::make_unique<JoinedInput>(std::move(pieces));
    EXPECT_EQ(joined->Size(), archive.size());
    ZipReader reader(std::move(joined));
    EXPECT_EQ(Extract(reader, 1), Rows());
}

TEST(JoinedInput, EndsAtItsEnd)
{
    JoinedInput empty({});
    std::array<std::byte, 4> buffer{};
    EXPECT_EQ(empty.Size(), 0U);
    EXPECT_EQ(empty.Read(buffer), 0U);
    std::vector<std::unique_ptr<InputFile>> pieces;
    pieces.push_back(InputOf("abc"));
    pieces.push_back(InputOf("de"));
    JoinedInput joined(std::move(pieces));
    joined.Seek(2);
    EXPECT_EQ(joined.Read(buffer), 3U);
    EXPECT_EQ(joined.Read(buffer), 0U);
    joined.Seek(100);
    EXPECT_EQ(joined.Read(buffer), 0U);
}

} // namespace quillon
