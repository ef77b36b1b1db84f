#include "archive/solid/solid_reader.h"

#include "archive/solid/signature_fields.h"
#include "archive/solid/solid_error.h"
#include "archive/solid/solid_unpack.h"
#include "platform/run_error.h"
#include "support/golden.h"
#include "support/linked_program.h"
#include "support/memory_host.h"
#include "support/solid_maker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace quillon {

using test::BytesInput;
using test::CollectingSink;
using test::MakeSolid;
using test::SolidInput;

namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr std::size_t kMiB = 1024 * 1024;

SolidReader Open(const std::string& bytes)
{
    return SolidReader(std::make_unique<BytesInput>(bytes));
}

/// Why the file is refused; nothing where it is read to its end.
std::optional<SolidError::Kind> Refusal(const std::string& bytes, CollectingSink* out = nullptr)
{
    CollectingSink sink;
    try {
        Open(bytes).Extract(out != nullptr ? *out : sink);
        return std::nullopt;
    } catch (const SolidError& error) {
        return error.Reason();
    }
}

std::string Program()
{
    return test::MakeLinkedProgram({.imports = {"kernel32.dll"}});
}

const std::vector<SolidInput>& SomeFiles()
{
    static const std::vector<SolidInput> kFiles = {
        {"SETUP.EXE", "\xE8\x01\x02\x03" + std::string(1000, '\0') + "\xE9\xFF\xFF\xFF\xFF!",
         SolidFilter::X86, LocalTime{2004, 2, 29, 12, 30, 58},
         SolidAttribute::kReadOnly | SolidAttribute::kArchive},
        {"tom.txt", ""},
        {"Mapp/Å ä.dat", std::string(100'000, 'x') + "slut", SolidFilter::None, std::nullopt,
         SolidAttribute::kHidden}};
    return kFiles;
}

std::string Signed(std::string bytes, std::size_t tableSize = 64)
{
    const auto fields = FindSignatureFields(std::as_bytes(std::span(bytes)));
    const std::size_t begin = bytes.size();
    const auto set = [&](std::uint64_t at, std::uint64_t number) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes[static_cast<std::size_t>(at) + i] = static_cast<char>(number >> (8 * i));
    };
    set(fields->checksum, 0x12345678);
    set(fields->entry, begin);
    set(fields->entry + 4, tableSize);
    return bytes + std::string(tableSize, 'S');
}

TEST(SolidReader, GivesBackWhatWasWritten)
{
    const std::vector<SolidProperty> properties = {{200, "4"}, {72502, "Vänta..."}, {8500, ""}};
    const std::string bytes = MakeSolid(SomeFiles(), properties, Program());
    EXPECT_EQ(bytes.size() % kSolidAlignment, 0U);
    EXPECT_LT(bytes.size(), Program().size() + 600);
    const SolidReader reader = Open(bytes);
    EXPECT_EQ(reader.Table().properties, properties);
    EXPECT_EQ(reader.Table().Property(72502), "Vänta...");
    EXPECT_EQ(reader.Table().Property(1), "");
    EXPECT_EQ(reader.Table().TotalSize(), 1010U + 100'004U);
    ASSERT_EQ(reader.Table().files.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(reader.Table().files[i], test::SourceOf(SomeFiles()[i]).file);
    // Any number of times.
    for (int i = 0; i < 2; ++i) {
        CollectingSink sink;
        reader.Extract(sink);
        EXPECT_THAT(sink.files,
                    ElementsAre(Pair("SETUP.EXE", SomeFiles()[0].bytes), Pair("tom.txt", ""),
                                Pair("Mapp/Å ä.dat", SomeFiles()[2].bytes)));
        EXPECT_EQ(sink.ended, 3U);
    }
}

TEST(SolidReader, ReadsAPayloadThatAnotherProgramHasMade)
{
    CollectingSink sink;
    const std::string bytes = test::GoldenFile("archive/payload.solid");
    Open(bytes).Extract(sink);
    EXPECT_THAT(sink.files,
                ElementsAre(Pair("a.txt", "Hej!\r\n"),
                            Pair("m/call.bin", std::string("\x90\xE8\x10\0\0\0\x90", 7))));
    EXPECT_EQ(Open(bytes).Table().Property(8500), "0;<Exe>\\SETUP.EXE");
}

TEST(SolidReader, HasTheSameBytesForAnyNumberOfThreads)
{
    std::mt19937 random(7);
    std::string block(kMiB, '\0');
    for (char& byte : block)
        byte = static_cast<char>(random());
    std::string large;
    for (int i = 0; i < 18; ++i) {
        block[random() % kMiB] = static_cast<char>(i);
        large += block;
    }
    const std::vector<SolidInput> inputs = {{"a.bin", large}, {"b.exe", large, SolidFilter::X86}};
    const std::string one = MakeSolid(inputs, {}, {}, 1);
    EXPECT_LT(one.size(), 4 * kMiB);
    EXPECT_TRUE(one == MakeSolid(inputs, {}, {}, 2));
    EXPECT_TRUE(one == MakeSolid(inputs, {}, {}, 5));
    EXPECT_TRUE(one == MakeSolid(inputs));
    CollectingSink sink;
    Open(one).Extract(sink);
    EXPECT_TRUE(sink.files[0].second == large && sink.files[1].second == large);
}

TEST(SolidReader, RefusesEveryCut)
{
    const std::string bytes = MakeSolid(SomeFiles(), {{8500, "0;SETUP.EXE"}}, Program());
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        CollectingSink sink;
        EXPECT_TRUE(Refusal(bytes.substr(0, length), &sink)) << length;
        EXPECT_TRUE(sink.files.empty()) << length;
    }
    const std::string isSigned = Signed(bytes);
    for (std::size_t length = bytes.size() - 100; length < isSigned.size(); ++length)
        EXPECT_TRUE(Refusal(isSigned.substr(0, length))) << length;
}

TEST(SolidReader, RefusesAThousandDamagesOfOneBit)
{
    const std::string bytes = MakeSolid(SomeFiles(), {{8500, "0;SETUP.EXE"}}, Program());
    const auto fields = FindSignatureFields(std::as_bytes(std::span(bytes)));
    std::mt19937 random(1000);
    for (int i = 0; i < 1000; ++i) {
        const std::size_t place = random() % bytes.size();
        // The checksum is not read, and signing changes it.
        if (place - fields->checksum < SignatureFields::kChecksumSize)
            continue;
        std::string damaged = bytes;
        damaged[place] = static_cast<char>(damaged[place] ^ (1 << random() % 8));
        CollectingSink sink;
        EXPECT_TRUE(Refusal(damaged, &sink)) << place;
        EXPECT_TRUE(sink.files.empty()) << place;
    }
}

TEST(SolidReader, ReadsASignedProgram)
{
    const std::string bytes = Signed(MakeSolid(SomeFiles(), {}, Program()));
    EXPECT_FALSE(Refusal(bytes));
    BytesInput input(bytes);
    EXPECT_TRUE(HasSolidPayload(input));
    // A table of certificates with something after it is none.
    EXPECT_EQ(Refusal(bytes + "x"), SolidError::Kind::Damaged);
    std::string changed = bytes;
    changed[changed.size() - 80] ^= 1;
    EXPECT_TRUE(Refusal(changed));
}

TEST(SolidReader, TellsWhatIsNoPayload)
{
    for (const std::string& bytes :
         {std::string(), std::string("MZ"), std::string(500, 'x'), Program()}) {
        EXPECT_EQ(Refusal(bytes), SolidError::Kind::NoPayload) << bytes.size();
        BytesInput input(bytes);
        EXPECT_FALSE(HasSolidPayload(input));
    }
}

TEST(SolidReader, TellsANewerVersion)
{
    std::string bytes = MakeSolid(SomeFiles());
    bytes[bytes.size() - kSolidTrailerSize + 8] = 2;
    EXPECT_EQ(Refusal(bytes), SolidError::Kind::Unsupported);
    bytes[bytes.size() - kSolidTrailerSize + 8] = 1;
    bytes[bytes.size() - kSolidTrailerSize + 12] = 1;
    EXPECT_EQ(Refusal(bytes), SolidError::Kind::Unsupported);
}

TEST(SolidReader, RefusesNamesThatLeaveTheFolderOrThatWindowsCannotHold)
{
    for (const char* name : {"", "..", "../a", "a/../b", "/a", "a/", "a//b", "C:", "C:/a", "a:s",
                             "a\\b", "CON", "nul.txt", "m/COM1", "a.", "a ", "a?", "a\nb"})
        EXPECT_EQ(Refusal(MakeSolid({{name, "x"}})), SolidError::Kind::Damaged) << name;
    EXPECT_EQ(Refusal(MakeSolid({{std::string(300, 'x'), "x"}})), SolidError::Kind::Damaged);
    EXPECT_EQ(Refusal(MakeSolid({{"\xFF", "x"}})), SolidError::Kind::Damaged);
}

TEST(SolidReader, RefusesNamesThatMeetAnother)
{
    EXPECT_EQ(Refusal(MakeSolid({{"a.txt", "1"}, {"A.TXT", "2"}})), SolidError::Kind::Damaged);
    EXPECT_EQ(Refusal(MakeSolid({{"a", "1"}, {"A/b", "2"}})), SolidError::Kind::Damaged);
    EXPECT_EQ(Refusal(MakeSolid({{"a/b", "1"}, {"A", "2"}})), SolidError::Kind::Damaged);
    EXPECT_FALSE(Refusal(MakeSolid({{"a/b", "1"}, {"A/c", "2"}})));
}

TEST(SolidReader, RefusesUnknownAttributes)
{
    EXPECT_EQ(Refusal(MakeSolid({{"a", "1", SolidFilter::None, std::nullopt, 0x10}})),
              SolidError::Kind::Damaged);
}

TEST(ReadSolidTable, RefusesPartsThatDoNotMakeUpTheirFile)
{
    const auto refused = [](const SolidFile& file) {
        try {
            ReadSolidTable(SolidTableBytes({.properties = {}, .files = {file}}));
            return false;
        } catch (const SolidError&) {
            return true;
        }
    };
    EXPECT_FALSE(refused({.name = "a", .size = 3, .runs = {{1}, {2}}}));
    EXPECT_TRUE(refused({.name = "a", .size = 3, .runs = {{1}}}));
    EXPECT_TRUE(refused({.name = "a", .size = 3, .runs = {{1}, {3}}}));
    EXPECT_TRUE(refused({.name = "a", .size = 3, .runs = {{3}, {0}}}));
    EXPECT_TRUE(refused({.name = "a", .size = 0, .runs = {{0}}}));
    EXPECT_TRUE(refused({.name = "a", .size = 1, .runs = {{1, SolidFilter(2)}}}));
}

TEST(ReadSolidTable, RefusesEveryCutAndWhatIsBehind)
{
    const SolidTable table{.properties = {{1, "text"}}, .files = {{.name = "a", .size = 0}}};
    zip::Bytes bytes = SolidTableBytes(table);
    EXPECT_EQ(ReadSolidTable(bytes), table);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_THROW(ReadSolidTable(std::span(bytes).first(length)), SolidError) << length;
    bytes.push_back(std::byte{0});
    EXPECT_THROW(ReadSolidTable(bytes), SolidError);
}

TEST(WriteSolid, TellsASourceThatChanged)
{
    for (const std::uint64_t told : {2U, 4U}) {
        const SolidInput input{"a.txt", "123"};
        SolidSource source = test::SourceOf(input);
        source.file.size = told;
        source.file.runs = {{told}};
        std::string bytes;
        test::BytesOutput output(bytes);
        try {
            WriteSolid({}, {source}, output);
            ADD_FAILURE() << told;
        } catch (const RunError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::kPastEndOfFile);
            EXPECT_EQ(error.Path(), "a.txt");
        }
        // What was written by then is no payload.
        EXPECT_TRUE(Refusal(bytes));
    }
}

TEST(FolderSink, WritesTheFilesWithTimesAndMarks)
{
    test::MemoryHost machine;
    machine.files.PutFolder("C:\\Ut");
    std::uint64_t told = 0;
    FolderSink sink(machine.files, "C:\\Ut", [&](std::uint64_t done) { told = done; });
    Open(MakeSolid(SomeFiles())).Extract(sink);
    EXPECT_EQ(machine.files.Get("C:\\Ut\\SETUP.EXE"), SomeFiles()[0].bytes);
    EXPECT_EQ(machine.files.Get("C:\\Ut\\tom.txt"), "");
    EXPECT_EQ(machine.files.Get("C:\\Ut\\Mapp\\Å ä.dat"), SomeFiles()[2].bytes);
    const FileStatus status = machine.files.Status("C:\\Ut\\SETUP.EXE");
    EXPECT_EQ(status.modified, (LocalTime{2004, 2, 29, 12, 30, 58}));
    EXPECT_TRUE(status.isReadOnly);
    EXPECT_EQ(told, 101'014U);
}

std::vector<Text> PathsOn(const test::MemoryHost& machine)
{
    std::vector<Text> paths;
    for (const auto& [key, node] : machine.files.nodes)
        paths.push_back(key);
    return paths;
}

TEST(FolderSink, TakesWhatItHasMadeAlongAndNothingElse)
{
    test::MemoryHost machine;
    machine.files.Put("C:\\Ut\\Djup\\Mapp\\min.txt", "mine");
    machine.files.Put("C:\\Ut\\Djup\\Mapp\\Å ä.dat", "in the way");
    const std::vector<Text> before = PathsOn(machine);
    {
        FolderSink sink(machine.files, "C:\\Ut\\Djup");
        sink.MakeFolder();
        EXPECT_EQ(RunErrorNumber([&] { Open(MakeSolid(SomeFiles())).Extract(sink); }),
                  ErrorNumber::kPathFileAccess);
        EXPECT_TRUE(machine.files.FileExists("C:\\Ut\\Djup\\SETUP.EXE"));
    }
    EXPECT_EQ(PathsOn(machine), before);
    {
        FolderSink sink(machine.files, "C:\\Ny");
        sink.MakeFolder();
        Open(MakeSolid(SomeFiles())).Extract(sink);
        EXPECT_TRUE(machine.files.FileExists("C:\\Ny\\Mapp\\Å ä.dat"));
    }
    EXPECT_EQ(PathsOn(machine), before);
}

TEST(FolderSink, LeavesWhatIsKept)
{
    test::MemoryHost machine;
    {
        FolderSink sink(machine.files, "C:\\Ut");
        sink.MakeFolder();
        Open(MakeSolid(SomeFiles())).Extract(sink);
        sink.Keep();
    }
    EXPECT_EQ(machine.files.Get("C:\\Ut\\SETUP.EXE"), SomeFiles()[0].bytes);
    EXPECT_EQ(machine.files.Get("C:\\Ut\\Mapp\\Å ä.dat"), SomeFiles()[2].bytes);
}

TEST(FolderSink, OverwritesNothing)
{
    test::MemoryHost machine;
    machine.files.Put("C:\\Ut\\tom.txt", "mine");
    FolderSink sink(machine.files, "C:\\Ut");
    EXPECT_EQ(RunErrorNumber([&] { Open(MakeSolid(SomeFiles())).Extract(sink); }),
              ErrorNumber::kPathFileAccess);
    EXPECT_EQ(machine.files.Get("C:\\Ut\\tom.txt"), "mine");
}

} // namespace
} // namespace quillon
