#include "helpers/version_resource.h"

#include "support/program_file.h"

#include <algorithm>
#include <cstring>

namespace quillon {
namespace {

using test::MakeProgramFile;
using test::ProgramFileParts;

/// A file in memory that counts what is read of it.
struct CountedFile {
    std::string bytes;
    std::size_t bytesRead = 0;

    std::size_t Read(std::uint64_t position, std::span<std::byte> buffer)
    {
        if (position >= bytes.size())
            return 0;
        const std::size_t left = bytes.size() - static_cast<std::size_t>(position);
        const std::size_t count = std::min(buffer.size(), left);
        std::memcpy(buffer.data(), bytes.data() + position, count);
        bytesRead += count;
        return count;
    }
};

FileVersionData VersionOf(std::string bytes)
{
    CountedFile file{std::move(bytes)};
    return GetFileVersionData([&](std::uint64_t position, std::span<std::byte> buffer) {
        return file.Read(position, buffer);
    });
}

const FileVersionData kFull = {.FileVersion = "1, 2, 3, 4",
                               .ProductName = "Räkna",
                               .CompanyName = "Firma AB",
                               .FileDescription = "Ett program",
                               .LegalCopyright = "© 2004 Firma AB",
                               .ProductVersion = "1.2"};

const ProgramFileParts kFullParts = {.languages = {{{"Comments", "none of ours"},
                                                    {"CompanyName", "Firma AB"},
                                                    {"FileDescription", "Ett program"},
                                                    {"FileVersion", "1, 2, 3, 4"},
                                                    {"LegalCopyright", "© 2004 Firma AB"},
                                                    {"ProductName", "Räkna"},
                                                    {"ProductVersion", "1.2"}}},
                                     .fileNumbers = {9, 9, 9, 9},
                                     .productNumbers = {8, 8, 8, 8}};

TEST(GetFileVersionData, ReadsTheSixTextsOfBothKindsOfPrograms)
{
    for (const bool is64Bit : {false, true}) {
        ProgramFileParts parts = kFullParts;
        parts.is64Bit = is64Bit;
        EXPECT_EQ(VersionOf(MakeProgramFile(parts)), kFull) << is64Bit;
    }
}

TEST(GetFileVersionData, ReadsTextsWhoseLengthIsCountedInBytes)
{
    ProgramFileParts parts = kFullParts;
    parts.countsBytes = true;
    EXPECT_EQ(VersionOf(MakeProgramFile(parts)), kFull);
}

TEST(GetFileVersionData, TakesEachTextFromTheFirstLanguageThatHasIt)
{
    for (const bool isEntryPerLanguage : {false, true}) {
        const ProgramFileParts parts = {
            .languages = {{{"FileVersion", "1.0"}, {"ProductName", ""}},
                          {{"FileVersion", "2.0"}, {"ProductName", "Name"}}},
            .isEntryPerLanguage = isEntryPerLanguage};
        const FileVersionData data = VersionOf(MakeProgramFile(parts));
        EXPECT_EQ(data.FileVersion, "1.0");
        EXPECT_EQ(data.ProductName, "Name");
        EXPECT_EQ(data.CompanyName, "");
    }
}

TEST(GetFileVersionData, TakesTheFixedNumbersWhereTheTextsAreMissing)
{
    const ProgramFileParts parts = {.languages = {{{"ProductName", "Name"}}},
                                    .fileNumbers = {6, 5, 0, 65535},
                                    .productNumbers = {6, 5, 6, 0}};
    const FileVersionData data = VersionOf(MakeProgramFile(parts));
    EXPECT_EQ(data.FileVersion, "6.5.0.65535");
    EXPECT_EQ(data.ProductVersion, "6.5.6.0");
    EXPECT_EQ(VersionOf(MakeProgramFile({.languages = {{}}})), FileVersionData{});
}

TEST(GetFileVersionData, CutsATextAtThreeHundredCharacters)
{
    std::string longName;
    for (int i = 0; i < 400; ++i)
        longName += "å";
    const auto data = VersionOf(MakeProgramFile({.languages = {{{"ProductName", longName}}}}));
    EXPECT_EQ(data.ProductName, longName.substr(0, 600));
}

TEST(GetFileVersionData, IsEmptyForWhatIsNoProgram)
{
    EXPECT_EQ(VersionOf(""), FileVersionData{});
    EXPECT_EQ(VersionOf("MZ"), FileVersionData{});
    EXPECT_EQ(VersionOf(std::string(5000, 'M')), FileVersionData{});
    EXPECT_EQ(VersionOf("MZ" + std::string(5000, '\0')), FileVersionData{});
    EXPECT_EQ(VersionOf("MZ" + std::string(5000, '\xFF')), FileVersionData{});
}

TEST(GetFileVersionData, IsEmptyForAProgramThatIsCutAnywhere)
{
    const std::string whole = MakeProgramFile(kFullParts);
    // The resource is padded to whole words, and its own bytes end before the padding.
    for (std::size_t length = 0; length + 4 < whole.size(); ++length)
        ASSERT_EQ(VersionOf(whole.substr(0, length)), FileVersionData{}) << length;
}

TEST(GetFileVersionData, SurvivesEveryDamagedByte)
{
    const std::string whole = MakeProgramFile(kFullParts);
    for (std::size_t i = 0; i < whole.size(); ++i)
        for (const char damage : {'\0', '\x01', '\x7F', '\xFF'}) {
            std::string damaged = whole;
            damaged[i] = damage;
            const FileVersionData data = VersionOf(damaged);
            ASSERT_LE(CharacterCount(data.ProductName), 300U) << i;
        }
}

TEST(GetFileVersionData, ReadsOnlyHeadersAndResource)
{
    ProgramFileParts parts = kFullParts;
    parts.bytesBehind = 10000000;
    CountedFile file{MakeProgramFile(parts)};
    const FileVersionData data =
        GetFileVersionData([&](std::uint64_t position, std::span<std::byte> buffer) {
            return file.Read(position, buffer);
        });
    EXPECT_EQ(data, kFull);
    EXPECT_LT(file.bytesRead, 4000U);
}

TEST(GetFileVersionData, PassesAFailureOfTheReaderOn)
{
    EXPECT_THROW(GetFileVersionData([](std::uint64_t, std::span<std::byte>) -> std::size_t {
                     throw std::string("broken disk");
                 }),
                 std::string);
}

} // namespace
} // namespace quillon
