#include "archive/solid/solid_container.h"

#include "archive/solid/package_container.h"
#include "platform/run_error.h"
#include "support/complete_container.h"
#include "support/golden.h"
#include "support/linked_program.h"
#include "support/solid_container_maker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace quillon::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kSmallFrame = 1000;

/// Counts what is read, by its place in the file.
class WatchedInput : public BytesInput {
public:
    WatchedInput(const std::string& bytes, std::vector<std::uint64_t>& reads)
        : BytesInput(bytes), reads_(reads)
    {
    }
    std::size_t Read(std::span<std::byte> buffer) override
    {
        reads_.push_back(position_);
        const std::size_t count = BytesInput::Read(buffer);
        position_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override
    {
        position_ = position;
        BytesInput::Seek(position);
    }

private:
    std::vector<std::uint64_t>& reads_;
    std::uint64_t position_ = 0;
};

struct Held {
    std::string held;
};
/// Bytes that live as long as their reader.
class HeldInput : private Held, public BytesInput {
public:
    explicit HeldInput(std::string bytes) : Held{std::move(bytes)}, BytesInput(held) {}
};

std::unique_ptr<Container> Open(std::string bytes)
{
    return OpenAnyContainer(std::make_unique<HeldInput>(std::move(bytes)));
}

std::string BytesOf(Container& container, const ZipEntry& entry)
{
    std::string bytes;
    container.Extract(entry, {}, [&](std::span<const std::byte> piece) {
        bytes.append(reinterpret_cast<const char*>(piece.data()), piece.size());
    });
    return bytes;
}

std::vector<std::string> Contents(Container& container)
{
    std::vector<std::string> contents;
    for (const ZipEntry& entry : container.Entries())
        contents.push_back(BytesOf(container, entry));
    return contents;
}

/// Why the container is refused; nothing where every file comes out as it went in.
std::optional<ZipError::Kind> Refusal(const std::string& bytes,
                                      const std::vector<ContainedFile>& expected = {})
{
    try {
        const auto container = Open(bytes);
        const std::vector<std::string> contents = Contents(*container);
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_EQ(contents.at(i), expected[i].bytes);
        return std::nullopt;
    } catch (const ZipError& error) {
        return error.Reason();
    }
}

Text WordsOf(const std::string& bytes)
{
    try {
        Contents(*Open(bytes));
        return {};
    } catch (const ZipError& error) {
        return error.what();
    }
}

std::string Noise(std::size_t size, unsigned seed)
{
    std::mt19937 random(seed);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

std::string Program()
{
    return MakeLinkedProgram({.imports = {"kernel32.dll"}}) + "\xE8\x01\x02\x03" +
           std::string(5000, '\0') + "\xE9\xFF\xFF\xFF\xFF!";
}

const std::vector<ContainedFile>& SomeFiles()
{
    static const std::vector<ContainedFile> kFiles = {{"mapp/prog.exe", Program(), "F1"},
                                                      {"tom.dat", "", "F2"},
                                                      {"mapp/å ä.dat", Noise(2500, 1), "F3 F7"},
                                                      {"sist.txt", "slut", "F4"},
                                                      {"tom2.dat", "", "F5"}};
    return kFiles;
}

TEST(SolidContainer, GivesBackWhatWasWritten)
{
    for (const std::uint32_t frameSize : {1U, 7U, kSmallFrame, kMaxContainerFrameSize}) {
        const std::string bytes = MakeSolidContainer(SomeFiles(), {.frameSize = frameSize});
        BytesInput input(bytes);
        EXPECT_TRUE(IsSolidContainer(input));
        const auto container = Open(bytes);
        ASSERT_EQ(container->Entries().size(), SomeFiles().size());
        for (std::size_t i = 0; i < SomeFiles().size(); ++i) {
            const ZipEntry& entry = container->Entries()[i];
            EXPECT_EQ(entry.name, SomeFiles()[i].name);
            EXPECT_EQ(entry.comment, SomeFiles()[i].rows);
            EXPECT_EQ(entry.size, SomeFiles()[i].bytes.size());
            EXPECT_EQ(entry.modified, (LocalTime{2004, 2, 29, 12, 30, 0}));
            EXPECT_TRUE(entry.isSolid);
            EXPECT_FALSE(entry.hasCrc || entry.isEncrypted || entry.isStored);
        }
        // Any number of times.
        for (int i = 0; i < 2; ++i)
            for (std::size_t j = 0; j < SomeFiles().size(); ++j)
                EXPECT_TRUE(BytesOf(*container, container->Entries()[j]) == SomeFiles()[j].bytes)
                    << j;
    }
}

TEST(SolidContainer, GivesFilesInAnyOrder)
{
    std::vector<ContainedFile> files;
    for (unsigned i = 0; i < 30; ++i)
        files.push_back({"f" + std::to_string(i), Noise(i * 37, i), i % 3 == 0 ? "F1 F2" : "F1"});
    const auto container = Open(MakeSolidContainer(files, {.frameSize = kSmallFrame}));
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        const std::size_t at = random() % files.size();
        EXPECT_TRUE(BytesOf(*container, container->Entries()[at]) == files[at].bytes) << at;
    }
}

TEST(SolidContainer, ReadsOnlyTheFramesThatAreWanted)
{
    const std::vector<ContainedFile> files = {
        {"a", Noise(5000, 1)}, {"b", Noise(5000, 2)}, {"c", Noise(5000, 3)}};
    const std::string bytes = MakeSolidContainer(files, {.frameSize = kSmallFrame});
    std::vector<std::uint64_t> reads;
    const auto container = OpenAnyContainer(std::make_unique<WatchedInput>(bytes, reads));
    reads.clear();
    BytesOf(*container, container->Entries()[2]);
    // Noise takes as much as it is long.
    ASSERT_FALSE(reads.empty());
    EXPECT_GE(*std::ranges::min_element(reads), 10'000U);
}

TEST(SolidContainer, ReadsOnlyOnceWhatIsAskedForInItsOrder)
{
    std::vector<ContainedFile> files;
    for (unsigned i = 0; i < 100; ++i)
        files.push_back({"f" + std::to_string(i), Noise(300, i), "F1 F2"});
    const std::string bytes = MakeSolidContainer(files, {.frameSize = 10'000});
    std::vector<std::uint64_t> reads;
    const auto container = OpenAnyContainer(std::make_unique<WatchedInput>(bytes, reads));
    reads.clear();
    for (const ZipEntry& entry : container->Entries())
        for (int row = 0; row < 2; ++row)
            BytesOf(*container, entry);
    // Each frame is hashed, then unpacked.
    EXPECT_EQ(reads.size(), 3U * 2);
}

TEST(SolidContainer, HasTheSameBytesForAnyNumberOfThreads)
{
    std::vector<ContainedFile> files;
    std::string text;
    for (unsigned i = 0; i < 40; ++i) {
        text += Noise(2000, i % 7) + std::string(3000, 'x');
        files.push_back({"f" + std::to_string(i), text.substr(text.size() / 3)});
    }
    files.push_back({"p.exe", Program()});
    const std::string one = MakeSolidContainer(files, {.threads = 1, .frameSize = 100'000});
    for (const unsigned threads : {0U, 2U, 3U, 9U})
        EXPECT_TRUE(one == MakeSolidContainer(files, {.threads = threads, .frameSize = 100'000}))
            << threads;
    EXPECT_EQ(Refusal(one, files), std::nullopt);
}

TEST(SolidContainer, PutsProgramsThroughTheBranchFilter)
{
    const auto container = Open(MakeSolidContainer(SomeFiles()));
    EXPECT_EQ(container->Entries()[0].method, std::uint16_t(SolidFilter::X86));
    EXPECT_EQ(container->Entries()[2].method, std::uint16_t(SolidFilter::None));
}

TEST(SolidContainer, StoresEqualFilesOnce)
{
    const std::string large = Noise(50'000, 1);
    const std::vector<ContainedFile> files = {
        {"a", large, "F1"}, {"b", "x", "F2"}, {"c", large, "F3"}, {"d", large, "F4"}};
    const auto share = [](std::size_t first, std::size_t repeat, const LocalTime&,
                          const LocalTime&) -> std::optional<Text> {
        if (repeat == 3)
            return std::nullopt;
        return "F" + std::to_string(first + 1) + " F" + std::to_string(repeat + 1);
    };
    std::vector<Text> reported;
    std::vector<std::uint64_t> done;
    const std::string bytes = MakeSolidContainer(
        files, {},
        {.onEqual = share,
         .onEntry = [&](const ZipEntryReport& entry) { reported.push_back(entry.path); },
         .onProgress =
             [&](std::uint64_t now, std::uint64_t all) {
                 EXPECT_EQ(all, 150'001U);
                 done.push_back(now);
             },
         .processEvents = {}});
    // A file that is not shared is packed again, and found again in the window.
    EXPECT_LT(bytes.size(), 52'000U);
    const auto container = Open(bytes);
    ASSERT_EQ(container->Entries().size(), 3U);
    EXPECT_EQ(container->Entries()[0].comment, "F1 F3");
    EXPECT_EQ(container->Entries()[2].comment, "F4");
    EXPECT_TRUE(BytesOf(*container, container->Entries()[2]) == large);
    EXPECT_THAT(reported, ElementsAre("C:\\a", "C:\\b", "C:\\d"));
    EXPECT_TRUE(std::ranges::is_sorted(done));
    EXPECT_EQ(done.back(), 150'001U);
}

TEST(SolidContainer, HoldsNothingAtAll)
{
    const auto container = Open(MakeSolidContainer({}));
    EXPECT_THAT(container->Entries(), IsEmpty());
}

TEST(SolidContainer, ReadsOneThatAnotherProgramHasMade)
{
    const auto container = Open(GoldenFile("archive/container.solid"));
    ASSERT_EQ(container->Entries().size(), 2U);
    EXPECT_EQ(container->Entries()[0].name, "a.txt");
    EXPECT_EQ(container->Entries()[0].comment, "F1 F2@20050102030406");
    EXPECT_EQ(container->Entries()[0].modified, (LocalTime{2004, 2, 29, 12, 30, 0}));
    EXPECT_THAT(Contents(*container),
                ElementsAre("Hej!\r\n", std::string("\x90\xE8\x10\0\0\0\x90", 7)));
}

TEST(SolidContainer, RefusesEveryCut)
{
    const std::string bytes = MakeSolidContainer(SomeFiles(), {.frameSize = kSmallFrame});
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_TRUE(Refusal(bytes.substr(0, length))) << length;
}

TEST(SolidContainer, RefusesEveryBitThatHasTurned)
{
    const std::string bytes =
        MakeSolidContainer({{"a.txt", Noise(300, 1)}, {"b.txt", "text"}}, {.frameSize = 200});
    for (std::size_t i = 0; i < bytes.size(); ++i)
        for (unsigned bit = 0; bit < 8; ++bit) {
            std::string damaged = bytes;
            damaged[i] = static_cast<char>(static_cast<unsigned char>(damaged[i]) ^ 1U << bit);
            EXPECT_TRUE(Refusal(damaged)) << i << " " << bit;
        }
}

TEST(SolidContainer, WritesNothingOfAFrameThatIsDamaged)
{
    std::string bytes =
        MakeSolidContainer({{"a", Noise(500, 1)}, {"b", Noise(500, 2)}}, {.frameSize = 500});
    bytes[900] = static_cast<char>(bytes[900] ^ 1);
    const auto container = Open(bytes);
    EXPECT_TRUE(BytesOf(*container, container->Entries()[0]) == Noise(500, 1));
    std::size_t written = 0;
    const auto count = [&](std::span<const std::byte> piece) { written += piece.size(); };
    // Not the second time either.
    for (int i = 0; i < 2; ++i)
        EXPECT_THROW(container->Extract(container->Entries()[1], {}, count), ZipError);
    EXPECT_EQ(written, 0U);
}

TEST(SolidContainer, GoesOnAfterWhoeverTookTheBytesGaveUp)
{
    const auto container = Open(MakeSolidContainer(SomeFiles(), {.frameSize = kSmallFrame}));
    const ZipEntry& entry = container->Entries()[2];
    EXPECT_THROW(container->Extract(entry, {},
                                    [](std::span<const std::byte>) {
                                        throw RunError(ErrorNumber::kDiskFull, "C:\\");
                                    }),
                 RunError);
    EXPECT_TRUE(BytesOf(*container, entry) == SomeFiles()[2].bytes);
}

TEST(SolidContainer, IsUnsupportedWithoutTheFunctionsOrOfANewerVersion)
{
    const std::string bytes = MakeSolidContainer(SomeFiles());
    try {
        OpenAnyContainer(std::make_unique<BytesInput>(bytes), LinkedInflation(), {});
        FAIL();
    } catch (const ZipError& error) {
        EXPECT_EQ(error.Reason(), ZipError::Kind::Unsupported);
    }
    for (const ContainerTrailer& trailer :
         {ContainerTrailer{.version = 2}, ContainerTrailer{.flags = 1}})
        EXPECT_EQ(Refusal(ContainerEnd(PackFrame(""), trailer)), ZipError::Kind::Unsupported);
}

struct Lie {
    const char* words;
    void (*tell)(ContainerIndex& index, std::string& frames);
};

const Lie kLies[] = {
    {"ramarnas storlek är orimlig",
     [](ContainerIndex& index, std::string&) { index.frameSize = 0; }},
    {"ramarnas storlek är orimlig",
     [](ContainerIndex& index, std::string&) { index.frameSize = kMaxContainerFrameSize + 1; }},
    {"ramarnas läge stämmer inte",
     [](ContainerIndex& index, std::string&) { index.frames[0].packedSize += 1; }},
    {"ramarnas läge stämmer inte", [](ContainerIndex&, std::string& frames) { frames += "mer"; }},
    {"filernas storlekar stämmer inte",
     [](ContainerIndex& index, std::string&) { index.entries[0].size += 100; }},
    {"innehållet slutar för tidigt",
     [](ContainerIndex& index, std::string&) { index.entries[0].size += 1; }},
    {"innehållet är längre än det anger",
     [](ContainerIndex& index, std::string&) { index.entries[0].size -= 1; }},
    {"filerna är för stora",
     [](ContainerIndex& index, std::string&) {
         index.entries[0].size = ~std::uint64_t(0);
         index.entries[1].size = 2;
     }},
    {"en fil har ett okänt filter",
     [](ContainerIndex& index, std::string&) { index.entries[0].method = 2; }},
    {"en fil saknar namn",
     [](ContainerIndex& index, std::string&) { index.entries[0].name.clear(); }},
    {"en text i förteckningen är inte UTF-8",
     [](ContainerIndex& index, std::string&) { index.entries[0].comment = "F1\xFF"; }},
    {"innehållet kan ej packas upp",
     [](ContainerIndex& index, std::string& frames) {
         frames = "inget som är packat";
         index.frames[0].packedSize = static_cast<std::uint32_t>(frames.size());
     }},
    {"något ligger bakom innehållet",
     [](ContainerIndex& index, std::string& frames) {
         frames += "mer";
         index.frames[0].packedSize += 3;
     }},
};

TEST(SolidContainer, RefusesLiesWhoseDigestsFit)
{
    for (const Lie& lie : kLies) {
        ContainerIndex index{.frameSize = 50, .frames = {}, .entries = {}, .totalSize = 0};
        for (const char* name : {"a", "b"}) {
            ZipEntry entry;
            entry.name = name;
            entry.size = 10;
            index.entries.push_back(entry);
        }
        std::string frames = PackFrame("0123456789abcdefghij");
        index.frames.push_back({static_cast<std::uint32_t>(frames.size()), {}});
        EXPECT_EQ(WordsOf(CompleteContainer(index, frames)), "");
        lie.tell(index, frames);
        EXPECT_EQ(WordsOf(CompleteContainer(index, frames)), lie.words);
    }
}

TEST(SolidContainer, RefusesAnIndexThatIsNoneWhoseDigestFits)
{
    const std::string index(12, '\0');
    const auto words = [](const std::string& packed, ContainerTrailer trailer) {
        return WordsOf(ContainerEnd(packed, trailer));
    };
    EXPECT_EQ(words(PackFrame(index), {.indexSize = 12}), "ramarnas storlek är orimlig");
    EXPECT_EQ(words(PackFrame(index), {.indexSize = 13}), "innehållet slutar för tidigt");
    EXPECT_EQ(words(PackFrame(index), {.indexSize = 11}), "innehållet är längre än det anger");
    EXPECT_EQ(words(PackFrame(index) + "x", {.indexSize = 12}), "något ligger bakom innehållet");
    EXPECT_EQ(words(PackFrame(index), {.indexPosition = 1, .indexSize = 12}),
              "förteckningens läge stämmer inte");
    EXPECT_EQ(words(PackFrame(index), {.indexSize = kMaxContainerIndexSize + 1}),
              "förteckningens läge stämmer inte");
    EXPECT_EQ(words(PackFrame("kort"), {.indexSize = 4}), "förteckningen är kortare än den anger");
    std::string longer("\1\0\0\0\0\0\0\0\0\0\0\0mer", 15);
    EXPECT_EQ(words(PackFrame(longer), {.indexSize = 15}), "förteckningen är längre än den anger");
}

// A frame that wants more memory than the format allows.
TEST(SolidContainer, RefusesALargerWindow)
{
    ZSTD_CCtx* const encoder = ZSTD_createCCtx();
    ZSTD_CCtx_setParameter(encoder, ZSTD_c_windowLog, kMaxContainerWindowLog + 1);
    ZSTD_CCtx_setParameter(encoder, ZSTD_c_contentSizeFlag, 0);
    std::string packed(200, '\0');
    const std::string content = "0123456789";
    ZSTD_inBuffer input{content.data(), content.size(), 0};
    ZSTD_outBuffer output{packed.data(), packed.size(), 0};
    ASSERT_EQ(ZSTD_compressStream2(encoder, &output, &input, ZSTD_e_flush), 0U);
    ASSERT_EQ(ZSTD_compressStream2(encoder, &output, &input, ZSTD_e_end), 0U);
    ZSTD_freeCCtx(encoder);
    packed.resize(output.pos);
    ContainerIndex index{.frameSize = 50, .frames = {}, .entries = {}, .totalSize = 0};
    ZipEntry entry;
    entry.name = "a";
    entry.size = content.size();
    index.entries.push_back(entry);
    index.frames.push_back({static_cast<std::uint32_t>(packed.size()), {}});
    EXPECT_EQ(WordsOf(CompleteContainer(index, packed)), "innehållet kan ej packas upp");
}

Integer ResultOfPacking(MemoryFiles& files, const std::vector<Text>& paths)
{
    std::vector<ZipSource> sources;
    for (const Text& path : paths)
        sources.push_back({path, path.substr(3), ""});
    std::string bytes;
    BytesOutput output(bytes);
    try {
        WriteSolidContainer(files, sources, output);
        return CompressionResult::kDone;
    } catch (const CompressionFailure& failure) {
        EXPECT_EQ(failure.Path(), paths.back());
        return failure.Result();
    }
}

TEST(SolidContainerWriter, TellsWhichSourceFailed)
{
    MemoryFiles files;
    files.Put("C:\\a.txt", "a");
    files.Put("C:\\låst.txt", "x");
    files.At("C:\\låst.txt").unreadable = true;
    files.PutFolder("C:\\mapp");
    EXPECT_EQ(ResultOfPacking(files, {"C:\\a.txt"}), CompressionResult::kDone);
    EXPECT_EQ(ResultOfPacking(files, {"C:\\a.txt", "C:\\borta.txt"}),
              CompressionResult::kSourceMissing);
    EXPECT_EQ(ResultOfPacking(files, {"C:\\a.txt", "C:\\låst.txt"}),
              CompressionResult::kNoReadAccess);
    EXPECT_EQ(ResultOfPacking(files, {"C:\\a.txt", "C:\\mapp"}), CompressionResult::kNoReadAccess);
}

/// A file that has another size when it is read than when it was looked at.
class ChangingFiles : public MemoryFiles {
public:
    FileStatus Status(const Text& path) const override
    {
        FileStatus status = MemoryFiles::Status(path);
        if (path.ends_with("växer.txt"))
            --status.size;
        return status;
    }
};

TEST(SolidContainerWriter, TellsASourceThatChanged)
{
    ChangingFiles files;
    files.Put("C:\\växer.txt", "0123456789");
    EXPECT_EQ(ResultOfPacking(files, {"C:\\växer.txt"}), CompressionResult::kSourceChanged);
}

// Only the sizes are given: nothing of 5 GiB is made.
TEST(ContainerIndex, CountsBeyondFourGiB)
{
    ContainerIndex index;
    constexpr std::uint64_t kLarge = 5ULL << 30U;
    for (const std::uint64_t size : {std::uint64_t(7), kLarge, kLarge}) {
        ZipEntry entry;
        entry.name = "a";
        entry.size = size;
        index.entries.push_back(entry);
    }
    index.frames.resize(static_cast<std::size_t>((2 * kLarge + 7) / kMaxContainerFrameSize + 1));
    const ContainerIndex read = ReadContainerIndex(ContainerIndexBytes(index));
    EXPECT_EQ(read.totalSize, 2 * kLarge + 7);
    EXPECT_EQ(read.entries[2].headerPosition, kLarge + 7);
    EXPECT_EQ(read.entries[2].size, kLarge);
}

} // namespace
} // namespace quillon::test
