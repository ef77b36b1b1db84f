// The Windows programs as files: of the right machine, and small enough together for one floppy
// disk beside a product's own first piece.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace {

namespace fs = std::filesystem;

const fs::path kRelease32 = fs::path(QUILLON_TOOL_FOLDER) / "Release";
const fs::path kRelease64 =
    fs::path(QUILLON_TOOL_FOLDER).parent_path() / "runtime-x86_64" / "Release";
constexpr const char* kPrograms[] = {"SETUP32.EXE",  "Small32/QNS32X.EXE", "Full32/QNS32X.EXE",
                                     "DUNZIP32.DLL", "Solid/DUNZIP32.DLL", "QNREG32.EXE",
                                     "QNXREG2.EXE",  "QNXUNIN.EXE",        "QNSELFX.EXE"};

constexpr std::uintmax_t kRoomForAll = 1024 * 1024;
constexpr unsigned kMachine386 = 0x014C;
constexpr unsigned kMachineAmd64 = 0x8664;
constexpr unsigned kPe32 = 0x010B;
constexpr unsigned kPe32Plus = 0x020B;

struct Headers {
    unsigned machine = 0;
    unsigned timeStamp = 0;
    unsigned kind = 0;
    unsigned subsystem = 0;
};

unsigned NumberAt(const std::string& bytes, std::size_t position, int size)
{
    unsigned number = 0;
    for (int i = size; i-- > 0;)
        number = number << 8U | static_cast<unsigned char>(bytes.at(position + std::size_t(i)));
    return number;
}

std::string BytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Headers ReadHeaders(const fs::path& path)
{
    const std::string bytes = BytesOf(path);
    if (bytes.size() < 0x40 || !bytes.starts_with("MZ"))
        return {};
    const std::size_t start = NumberAt(bytes, 0x3C, 4);
    if (bytes.substr(start, 4) != std::string("PE\0\0", 4))
        return {};
    return {.machine = NumberAt(bytes, start + 4, 2),
            .timeStamp = NumberAt(bytes, start + 8, 4),
            .kind = NumberAt(bytes, start + 24, 2),
            .subsystem = NumberAt(bytes, start + 24 + 68, 2)};
}

void ExpectAll(const fs::path& folder, unsigned machine, unsigned kind)
{
    for (const char* name : kPrograms) {
        const Headers headers = ReadHeaders(folder / name);
        EXPECT_EQ(headers.machine, machine) << folder / name;
        EXPECT_EQ(headers.kind, kind) << folder / name;
        // The same sources give the same bytes, whenever they are built.
        EXPECT_EQ(headers.timeStamp, 0U) << folder / name;
        constexpr unsigned kWindows = 2; // a console program would open a black window
        if (fs::path(name).extension() == ".EXE")
            EXPECT_EQ(headers.subsystem, kWindows) << folder / name;
    }
}

TEST(SetupRuntime, IsMadeFor32BitMachines)
{
    ExpectAll(kRelease32, kMachine386, kPe32);
}

TEST(SetupRuntime, HasATwinFor64BitWine)
{
    ExpectAll(kRelease64, kMachineAmd64, kPe32Plus);
}

struct Section {
    unsigned address = 0;
    unsigned position = 0;
    unsigned size = 0;
};

// Where an address of the loaded program is in its file.
std::size_t PositionOf(const std::string& bytes, unsigned address)
{
    const std::size_t start = NumberAt(bytes, 0x3C, 4);
    const unsigned count = NumberAt(bytes, start + 6, 2);
    const std::size_t first = start + 24 + NumberAt(bytes, start + 20, 2);
    for (unsigned i = 0; i < count; ++i) {
        const std::size_t at = first + 40 * i;
        const Section section{NumberAt(bytes, at + 12, 4), NumberAt(bytes, at + 20, 4),
                              NumberAt(bytes, at + 16, 4)};
        if (address >= section.address && address < section.address + section.size)
            return section.position + (address - section.address);
    }
    return 0;
}

// The libraries that Windows loads before the program's first line, in lower case.
std::set<std::string> ImportsOf(const fs::path& path)
{
    const std::string bytes = BytesOf(path);
    const std::size_t options = NumberAt(bytes, 0x3C, 4) + 24;
    const bool isWide = NumberAt(bytes, options, 2) == kPe32Plus;
    const std::size_t directory = options + (isWide ? 112 : 96) + 8;
    std::set<std::string> names;
    std::size_t at = PositionOf(bytes, NumberAt(bytes, directory, 4));
    for (unsigned name = 0; at != 0 && (name = NumberAt(bytes, at + 12, 4)) != 0; at += 20) {
        std::string text = bytes.c_str() + PositionOf(bytes, name);
        std::transform(text.begin(), text.end(), text.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        names.insert(text);
    }
    return names;
}

// Windows looks for all other libraries in the program's own folder first, to which others may have
// added one.
TEST(SetupRuntime, ImportsOnlyWhatWindowsTakesFromItsOwnFolder)
{
    const std::set<std::string> safe = {"kernel32.dll", "msvcrt.dll"};
    for (const fs::path& folder : {kRelease32, kRelease64})
        for (const char* name : kPrograms)
            EXPECT_EQ(ImportsOf(folder / name), safe) << folder / name;
}

unsigned DllCharacteristics(const std::string& bytes)
{
    return NumberAt(bytes, NumberAt(bytes, 0x3C, 4) + 24 + 70, 2);
}

struct Directory {
    unsigned address = 0;
    unsigned size = 0;
};

Directory DirectoryOf(const std::string& bytes, unsigned number)
{
    const std::size_t options = NumberAt(bytes, 0x3C, 4) + 24;
    const std::size_t first = options + (NumberAt(bytes, options, 2) == kPe32Plus ? 112 : 96);
    return {NumberAt(bytes, first + 8 * number, 4), NumberAt(bytes, first + 8 * number + 4, 4)};
}

template <class Check>
void ForEachProgram(Check check)
{
    for (const fs::path& folder : {kRelease32, kRelease64})
        for (const char* name : kPrograms) {
            SCOPED_TRACE(folder / name);
            const std::string bytes = BytesOf(folder / name);
            ASSERT_TRUE(bytes.starts_with("MZ"));
            const std::size_t options = NumberAt(bytes, 0x3C, 4) + 24;
            check(bytes, NumberAt(bytes, options, 2) == kPe32Plus);
        }
}

// Without its relocations a program that says so would be loaded at the same place each time.
TEST(SetupRuntime, IsLoadedWhereNobodyCanKnow)
{
    constexpr unsigned kDynamicBase = 0x0040;
    constexpr unsigned kHighEntropy = 0x0020;
    constexpr unsigned kRelocationsStripped = 0x0001;
    constexpr unsigned kRelocations = 5;
    ForEachProgram([&](const std::string& bytes, bool isWide) {
        const unsigned traits = DllCharacteristics(bytes);
        EXPECT_NE(traits & kDynamicBase, 0U);
        EXPECT_EQ((traits & kHighEntropy) != 0, isWide);
        EXPECT_EQ(NumberAt(bytes, NumberAt(bytes, 0x3C, 4) + 22, 2) & kRelocationsStripped, 0U);
        const Directory relocations = DirectoryOf(bytes, kRelocations);
        EXPECT_GT(relocations.size, 8U);
        EXPECT_NE(PositionOf(bytes, relocations.address), 0U);
    });
}

TEST(SetupRuntime, RunsNoDataAsCode)
{
    constexpr unsigned kNxCompatible = 0x0100;
    constexpr unsigned kExecutes = 0x20000000;
    constexpr unsigned kWrites = 0x80000000;
    ForEachProgram([&](const std::string& bytes, bool) {
        EXPECT_NE(DllCharacteristics(bytes) & kNxCompatible, 0U);
        const std::size_t start = NumberAt(bytes, 0x3C, 4);
        const std::size_t first = start + 24 + NumberAt(bytes, start + 20, 2);
        for (unsigned i = 0; i < NumberAt(bytes, start + 6, 2); ++i) {
            const unsigned traits = NumberAt(bytes, first + 40 * i + 36, 4);
            EXPECT_FALSE((traits & kExecutes) != 0 && (traits & kWrites) != 0) << "section " << i;
        }
    });
}

// A 32-bit program without this mark accepts any address on its stack as a handler.
TEST(SetupRuntime, TakesNoHandlerOfExceptionsFromItsStack)
{
    constexpr unsigned kNoHandlers = 0x0400;
    constexpr unsigned kHandlerTable = 3;
    ForEachProgram([&](const std::string& bytes, bool isWide) {
        if (isWide)
            EXPECT_GT(DirectoryOf(bytes, kHandlerTable).size, 0U);
        else
            EXPECT_NE(DllCharacteristics(bytes) & kNoHandlers, 0U);
    });
}

// What Windows loads for a program before its first line comes from the system's folder, too.
TEST(SetupRuntime, HasALoadConfiguration)
{
    constexpr unsigned kLoadConfiguration = 10;
    constexpr unsigned kSystemFolderOnly = 0x0800;
    constexpr unsigned kNoSecurityCookie = 0x0800;
    ForEachProgram([&](const std::string& bytes, bool isWide) {
        const Directory announced = DirectoryOf(bytes, kLoadConfiguration);
        const std::size_t at = PositionOf(bytes, announced.address);
        ASSERT_NE(at, 0U);
        // Windows XP expects this size in the directory of a 32-bit program, whatever follows.
        EXPECT_EQ(announced.size, isWide ? 148U : 64U);
        EXPECT_EQ(NumberAt(bytes, at, 4), isWide ? 148U : 92U);
        EXPECT_EQ(NumberAt(bytes, at + 4, 4), 0U);
        EXPECT_EQ(NumberAt(bytes, at + (isWide ? 78 : 54), 2), kSystemFolderOnly);
        EXPECT_EQ(NumberAt(bytes, at + (isWide ? 144 : 88), 4), kNoSecurityCookie);
    });
}

// Many a machine that is no Windows has a Wine for 64-bit programs alone.
TEST(SetupRuntime, HasItsTwinCopiedForTestRunsBesideIt)
{
    const std::string copy = BytesOf(kRelease32.parent_path() / "Test" / "Qns32x.exe");
    EXPECT_TRUE(copy == BytesOf(kRelease64 / "Small32" / "QNS32X.EXE"));
    EXPECT_TRUE(copy.starts_with("MZ"));
}

TEST(SetupRuntime, LeavesRoomOnTheFirstDisk)
{
    std::uintmax_t sum = 0;
    for (const char* name : kPrograms)
        sum += fs::file_size(kRelease32 / name);
    // On disks there is no self-extractor, and a package carries one of the two versions of a
    // program.
    sum -= fs::file_size(kRelease32 / "QNSELFX.EXE");
    sum -= std::min(fs::file_size(kRelease32 / "DUNZIP32.DLL"),
                    fs::file_size(kRelease32 / "Solid/DUNZIP32.DLL"));
    sum -= std::min(fs::file_size(kRelease32 / "Small32/QNS32X.EXE"),
                    fs::file_size(kRelease32 / "Full32/QNS32X.EXE"));
    EXPECT_GT(sum, 0U);
    EXPECT_LT(sum, kRoomForAll);
}

// They start the setup proper, and carry nothing of it themselves.
TEST(SetupRuntime, HasSmallStarters)
{
    for (const char* name : {"SETUP32.EXE", "QNXUNIN.EXE"})
        EXPECT_LE(fs::file_size(kRelease32 / name), 40U * 1024) << name;
}

TEST(SetupRuntime, HasASmallSelfExtractor)
{
    EXPECT_LE(fs::file_size(kRelease32 / "QNSELFX.EXE"), 150U * 1024);
}

} // namespace
