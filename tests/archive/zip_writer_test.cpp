#include "archive/writer/zip_writer.h"

#include "archive/joined_input.h"
#include "archive/writer/zip_headers.h"
#include "builder/archive_tools.h"
#include "builder/tricky_files.h"
#include "formats/container_names.h"
#include "support/counting_output.h"

#include <gtest/gtest.h>

#include <atomic>
#include <random>

namespace quillon {

using test::CountingOutput;
using test::ExpectOtherProgramsTest;
using test::FillWithText;
using test::FillWithZeros;
using test::MadeUpInput;
using test::OpenArchive;
using test::TrickyFiles;
using test::UnpackAll;
using test::UnpackBy7z;

namespace {

constexpr std::size_t kMiB = 1024 * 1024;

/// Bytes that no packer can make smaller.
std::string Noise(std::size_t size)
{
    std::mt19937_64 random(20040301);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

/// Bytes that can be packed, and of which no two places are alike.
std::string Prose(std::size_t size)
{
    constexpr std::string_view kLetters = "etaoinshrdlu.,\r\n";
    std::mt19937_64 random(4711);
    std::string text(size, ' ');
    for (char& letter : text)
        letter = kLetters[random() % kLetters.size()];
    return text;
}

class ZipWriter : public testing::Test {
protected:
    void Put(const Text& path, std::string bytes)
    {
        files.Put(path, std::move(bytes));
        Text row = "F";
        row.append(std::to_string(sources.size() + 1));
        sources.push_back({path, ContainerEntryName(path), row});
    }

    std::string Write(const ZipOptions& options = {})
    {
        const auto output = files.OpenOutput("C:\\out.zip");
        WriteZip(files, sources, *output, options);
        output->Close();
        return files.Get("C:\\out.zip");
    }

    void PutTricky(const Text& path, std::uint64_t size, TrickyFiles::Open open)
    {
        files.PutTricky(path, size, std::move(open));
        sources.push_back({path, ContainerEntryName(path), ""});
    }

    /// The number that the writer gives up with, and the file that it blames.
    std::pair<int, Text> Failure(const ZipOptions& options = {})
    {
        try {
            Write(options);
        } catch (const CompressionFailure& failure) {
            return {failure.Result(), failure.Path()};
        }
        ADD_FAILURE() << "the archive was written";
        return {};
    }

    void ExpectRoundTrip(const ZipOptions& options = {})
    {
        const std::string archive = Write(options);
        ExpectOtherProgramsTest(archive, options.password);
        std::map<std::string, std::string> expected;
        for (const ZipSource& source : sources)
            expected[source.name] = files.Get(source.path);
        EXPECT_TRUE(UnpackAll(archive, options.password) == expected);
        EXPECT_TRUE(UnpackBy7z(archive, options.password) == expected);
    }

    TrickyFiles files;
    std::vector<ZipSource> sources;
};

} // namespace

TEST_F(ZipWriter, WritesWhatTheReaderAndOtherProgramsReadBack)
{
    Put("C:\\Data\\empty.txt", "");
    Put("C:\\Data\\one.txt", "x");
    Put("C:\\Data\\Åäö €.txt", Prose(5000));
    Put("C:\\Data\\prose.txt", Prose(3 * kMiB));
    Put("C:\\Data\\noise.bin", Noise(100000));
    ExpectRoundTrip();
    ExpectRoundTrip({.deflate = false});
    ExpectRoundTrip({.password = "hemligt"});
    ExpectRoundTrip({.deflate = false, .password = "hemligt"});
}

TEST_F(ZipWriter, CutsLargeSourcesIntoBlocksAndJoinsThem)
{
    const std::size_t block = 4 * kMiB;
    Put("C:\\prose.txt", Prose(2 * block + 12345));
    Put("C:\\exact.txt", Prose(2 * block));
    Put("C:\\one more.txt", Prose(block + 1));
    Put("C:\\zeros.bin", std::string(2 * block, '\0'));
    Put("C:\\noise.bin", Noise(block + kMiB));
    Put("C:\\mixed.bin", Noise(block) + Prose(block));
    ExpectRoundTrip();
    ExpectRoundTrip({.deflate = false});
    ExpectRoundTrip({.password = "hemligt"});
}

TEST_F(ZipWriter, GivesTheSameBytesWhateverTheNumberOfThreads)
{
    for (int i = 0; i < 40; ++i)
        Put("C:\\Small\\" + std::to_string(i) + ".txt", Prose(1000 * static_cast<std::size_t>(i)));
    Put("C:\\large.txt", Prose(9 * kMiB));
    Put("C:\\noise.bin", Noise(5 * kMiB));
    for (const Text password : {"", "hemligt"}) {
        const std::string byOne = Write({.password = password, .threads = 1});
        EXPECT_TRUE(Write({.password = password, .threads = 2}) == byOne);
        EXPECT_TRUE(Write({.password = password, .threads = 7}) == byOne);
        EXPECT_TRUE(Write({.password = password}) == byOne);
    }
}

TEST_F(ZipWriter, TellsNameCommentDateAndSizesOfAnEntry)
{
    Put("C:\\Data\\Övrigt\\Prog.TXT", Prose(1000));
    const std::string archive = Write();
    const ZipEntry entry = OpenArchive(archive).Entries().at(0);
    EXPECT_EQ(entry.name, "data/övrigt/prog.txt");
    EXPECT_EQ(entry.comment, "F1");
    EXPECT_EQ(entry.modified, (LocalTime{2004, 2, 29, 12, 30, 0}));
    EXPECT_EQ(entry.size, 1000U);
    EXPECT_LT(entry.packedSize, 1000U);
    EXPECT_EQ(static_cast<unsigned char>(archive[7]), 0x08) << "the flag for UTF-8";
}

TEST_F(ZipWriter, KeepsDatesWithinWhatAnEntryCanHold)
{
    files.Put("C:\\old", "x", {1970, 1, 1, 10, 20, 30});
    files.Put("C:\\late", "x", {2200, 5, 6, 10, 20, 31});
    sources = {{"C:\\old", "old", ""}, {"C:\\late", "late", ""}};
    const ZipReader reader = OpenArchive(Write());
    EXPECT_EQ(reader.Entries()[0].modified, (LocalTime{1980, 1, 1, 0, 0, 0}));
    EXPECT_EQ(reader.Entries()[1].modified, (LocalTime{2107, 5, 6, 10, 20, 30}));
}

TEST_F(ZipWriter, StoresWhatDoesNotShrink)
{
    Put("C:\\small noise", Noise(1000));
    Put("C:\\large noise", Noise(9 * kMiB));
    Put("C:\\small prose", Prose(1000));
    Put("C:\\large prose", Prose(9 * kMiB));
    Put("C:\\late prose", Noise(8 * kMiB) + Prose(4 * kMiB));
    Put("C:\\one", "x");
    const ZipReader reader = OpenArchive(Write());
    std::vector<bool> stored;
    for (const ZipEntry& entry : reader.Entries()) {
        stored.push_back(entry.isStored);
        EXPECT_LE(entry.packedSize, entry.size);
    }
    EXPECT_EQ(stored, (std::vector<bool>{true, true, false, false, false, true}));
    const ZipReader atLevel0 = OpenArchive(Write({.deflate = false}));
    for (const ZipEntry& entry : atLevel0.Entries())
        EXPECT_TRUE(entry.isStored) << entry.name;
}

TEST_F(ZipWriter, GivesEachEncryptedEntryASaltOfItsOwn)
{
    Put("C:\\a.txt", "innehåll");
    Put("C:\\b.txt", "innehåll");
    const auto saltsOf = [](const std::string& archive) {
        std::vector<std::string> salts;
        const ZipReader reader = OpenArchive(archive);
        for (const ZipEntry& entry : reader.Entries()) {
            EXPECT_TRUE(entry.isEncrypted);
            EXPECT_EQ(entry.crc, 0U) << "a CRC would tell about the content";
            salts.push_back(archive.substr(
                static_cast<std::size_t>(entry.headerPosition) + 30 + entry.name.size() + 11, 16));
        }
        return salts;
    };
    const auto first = saltsOf(Write({.password = "hemligt"}));
    EXPECT_NE(first[0], first[1]) << "another name";
    EXPECT_EQ(saltsOf(Write({.password = "hemligt"})), first);
    EXPECT_NE(saltsOf(Write({.password = "annat"}))[0], first[0]);
    files.Put("C:\\a.txt", "innehålL");
    EXPECT_NE(saltsOf(Write({.password = "hemligt"}))[0], first[0]) << "another content";
}

TEST_F(ZipWriter, HidesContentsFromAWrongPassword)
{
    Put("C:\\a.txt", Prose(1000));
    const std::string archive = Write({.password = "hemligt"});
    EXPECT_THROW(UnpackAll(archive, "fel"), ZipError);
    EXPECT_THROW(UnpackAll(archive), ZipError);
    EXPECT_EQ(archive.find(files.Get("C:\\a.txt").substr(0, 20)), std::string::npos);
}

TEST_F(ZipWriter, WritesAnEmptyArchive)
{
    const std::string archive = Write();
    EXPECT_EQ(archive.size(), 22U);
    EXPECT_TRUE(OpenArchive(archive).Entries().empty());
}

// Events have to be handled in all phases: the look at the sources, the samples of a large one, the
// reading of it for a password, and the packing.
TEST_F(ZipWriter, YieldsOftenAlsoInsideALargeSource)
{
    Put("C:\\b.txt", Prose(9 * kMiB));
    for (const auto& [password, least] : {std::pair{"", 6}, std::pair{"hemligt", 15}}) {
        int yields = 0;
        CountingOutput output;
        WriteZip(files, sources, output, {.password = password},
                 {.processEvents = [&] { ++yields; }});
        EXPECT_GE(yields, least) << password;
    }
}

TEST_F(ZipWriter, TellsProgressInBytesOfTheSources)
{
    Put("C:\\a.txt", Prose(1000));
    Put("C:\\b.txt", Prose(9 * kMiB));
    std::uint64_t last = 0;
    std::vector<Text> entries;
    CountingOutput output;
    WriteZip(files, sources, output, {},
             {.onEntry = [&](const ZipEntryReport& entry) { entries.push_back(entry.path); },
              .onProgress =
                  [&](std::uint64_t done, std::uint64_t total) {
                      EXPECT_EQ(total, 1000 + 9 * kMiB);
                      EXPECT_GE(done, last);
                      last = done;
                  }});
    EXPECT_EQ(last, 1000 + 9 * kMiB);
    EXPECT_EQ(entries, (std::vector<Text>{"C:\\a.txt", "C:\\b.txt"}));
}

TEST_F(ZipWriter, NamesTheSourceThatCannotBeRead)
{
    using namespace CompressionResult;
    Put("C:\\a.txt", "a");
    Put("C:\\b.txt", "b");
    files.At("C:\\b.txt").unreadable = true;
    EXPECT_EQ(Failure(), std::pair(int{kNoReadAccess}, Text("C:\\b.txt")));
    files.RemoveFile("C:\\b.txt");
    EXPECT_EQ(Failure(), std::pair(int{kSourceMissing}, Text("C:\\b.txt")));
    sources[1].path = "C:\\nowhere\\b.txt";
    EXPECT_EQ(Failure(), std::pair(int{kSourceMissing}, Text("C:\\nowhere\\b.txt")));
    files.PutFolder("C:\\b.txt");
    sources[1].path = "C:\\b.txt";
    EXPECT_EQ(Failure(), std::pair(int{kNoReadAccess}, Text("C:\\b.txt")));
}

TEST_F(ZipWriter, NoticesSourcesThatChangeWhileTheyAreRead)
{
    using namespace CompressionResult;
    const auto input = [](std::uint64_t size, std::uint64_t claimed) {
        return [=] { return std::make_unique<MadeUpInput>(size, claimed, FillWithText); };
    };
    for (const std::uint64_t size : {std::uint64_t(1000), std::uint64_t(9 * kMiB)})
        for (const Text password : {"", "hemligt"})
            for (const bool deflate : {false, true}) {
                sources.clear();
                PutTricky("C:\\shrinks", size, input(size - 1, size));
                EXPECT_EQ(Failure({.deflate = deflate, .password = password}).first,
                          kSourceChanged);
                sources.clear();
                PutTricky("C:\\grows", size, input(size + 1, size));
                EXPECT_EQ(Failure({.deflate = deflate, .password = password}).first,
                          kSourceChanged);
                sources.clear();
                PutTricky("C:\\other", size, input(size + 1, size + 1));
                EXPECT_EQ(Failure({.deflate = deflate, .password = password}).first,
                          kSourceChanged);
            }
}

TEST_F(ZipWriter, NoticesThatALargeSourceGoesAwayHalfWay)
{
    using namespace CompressionResult;
    const std::uint64_t size = 30 * kMiB;
    std::atomic<int> opened = 0;
    PutTricky("C:\\large", size, [&]() -> std::unique_ptr<InputFile> {
        if (++opened > 4)
            throw RunError(ErrorNumber::kFileNotFound, "C:\\large");
        return std::make_unique<MadeUpInput>(size, size, FillWithText);
    });
    EXPECT_EQ(Failure(), std::pair(int{kSourceMissing}, Text("C:\\large")));
    sources.clear();
    PutTricky("C:\\bad disk", size, [&]() -> std::unique_ptr<InputFile> {
        return std::make_unique<MadeUpInput>(
            size, size, [](std::uint64_t position, std::span<std::byte> bytes) {
                if (position > 20 * kMiB)
                    throw RunError(ErrorNumber::kDeviceIo, "C:\\bad disk");
                FillWithText(position, bytes);
            });
    });
    EXPECT_EQ(Failure(), std::pair(int{kSourceDamaged}, Text("C:\\bad disk")));
}

// The salt comes from a first reading; another content under it would share its key stream.
TEST_F(ZipWriter, NoticesThatASecretChangedBetweenItsTwoReadings)
{
    const std::uint64_t size = 9 * kMiB;
    std::atomic<int> opened = 0;
    PutTricky("C:\\secret", size, [&] {
        const int time = ++opened;
        return std::make_unique<MadeUpInput>(
            size, size, [time](std::uint64_t position, std::span<std::byte> bytes) {
                FillWithText(position + (time == 1 ? 1 : 0), bytes);
            });
    });
    EXPECT_EQ(Failure({.password = "hemligt"}).first, CompressionResult::kSourceChanged);
}

TEST_F(ZipWriter, TellsAFullAndAnUnwritableTarget)
{
    Put("C:\\a.txt", Noise(9 * kMiB));
    for (int write = 1; write <= 3; ++write) {
        for (const int number : {ErrorNumber::kDiskFull, ErrorNumber::kDeviceIo}) {
            files.FailFromWrite(write, number);
            EXPECT_EQ(RunErrorNumber([&] { Write({}); }), number);
        }
        files.FailFromWrite(std::numeric_limits<int>::max(), 0);
    }
}

TEST_F(ZipWriter, HoldsMoreThan65535Entries)
{
    for (int i = 0; i < 66000; ++i)
        Put("C:\\" + std::to_string(i / 1000) + "\\" + std::to_string(i), std::to_string(i));
    const std::string archive = Write();
    ExpectOtherProgramsTest(archive);
    ZipReader reader = OpenArchive(archive);
    ASSERT_EQ(reader.Entries().size(), 66000U);
    EXPECT_EQ(reader.Entries()[65999].name, "65/65999");
    EXPECT_EQ(reader.Entries()[65999].comment, "F66000");
}

TEST_F(ZipWriter, HoldsAnEntryOfMoreThanFourGigabytes)
{
    const std::uint64_t size = (std::uint64_t(4) << 30U) + 5;
    PutTricky("C:\\giant", size,
              [&] { return std::make_unique<MadeUpInput>(size, size, FillWithZeros); });
    Put("C:\\behind", "x");
    const test::TemporaryFolder folder;
    const std::string path = folder.Path() + "/a.zip";
    {
        test::SparseOutput output(path);
        WriteZip(files, sources, output, {.deflate = false});
        output.Close();
    }
    const test::Outcome by7z = test::RunCommand("7z t " + path);
    EXPECT_EQ(by7z.exitCode, 0) << by7z.output;
    ZipReader reader(std::make_unique<test::RealInput>(path));
    EXPECT_EQ(reader.Entries()[0].size, size);
    EXPECT_GT(reader.Entries()[1].headerPosition, size);
    std::string behind;
    reader.Extract(reader.Entries()[1], {}, [&](std::span<const std::byte> bytes) {
        behind.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    });
    EXPECT_EQ(behind, "x");
}

TEST(DirectoryWriter, HoldsPositionsBeyondFourGigabytes)
{
    const std::uint64_t before = std::uint64_t(5) << 30U;
    EntryRecord entry{.name = "a.txt",
                      .size = 3,
                      .packedSize = 3,
                      .headerPosition = before,
                      .crc = 0x352441C2}; // of "abc"
    zip::Bytes rest = LocalHeaderBytes(entry);
    for (const char letter : std::string_view("abc"))
        rest.push_back(static_cast<std::byte>(letter));
    DirectoryWriter directory;
    directory.Add(entry);
    const zip::Bytes end = directory.Finish(before + rest.size());
    rest.insert(rest.end(), end.begin(), end.end());

    std::vector<std::unique_ptr<InputFile>> pieces;
    pieces.push_back(std::make_unique<MadeUpInput>(before, before, FillWithZeros));
    pieces.push_back(std::make_unique<MadeUpInput>(
        rest.size(), rest.size(), [&](std::uint64_t position, std::span<std::byte> bytes) {
            std::copy_n(rest.begin() + static_cast<std::ptrdiff_t>(position), bytes.size(),
                        bytes.begin());
        }));
    ZipReader reader(std::make_unique<JoinedInput>(std::move(pieces)));
    ASSERT_EQ(reader.Entries().size(), 1U);
    EXPECT_EQ(reader.Entries()[0].headerPosition, before);
    std::size_t unpacked = 0;
    reader.Extract(reader.Entries()[0], {},
                   [&](std::span<const std::byte> bytes) { unpacked += bytes.size(); });
    EXPECT_EQ(unpacked, 3U);
}

} // namespace quillon
