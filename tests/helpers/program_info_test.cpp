#include "helpers/program_info.h"

#include "support/linked_program.h"

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::optional<ProgramInfo> StatusOf(const std::string& bytes)
{
    const ReadFileAt read = [&](std::uint64_t position, std::span<std::byte> buffer) {
        if (position >= bytes.size())
            return std::size_t(0);
        const std::size_t count =
            std::min(buffer.size(), bytes.size() - static_cast<std::size_t>(position));
        std::memcpy(buffer.data(), bytes.data() + position, count);
        return count;
    };
    return ReadProgramInfo(read);
}

TEST(ProgramInfo, TellWhatAProgramIsLinkedTo)
{
    const auto status = StatusOf(MakeLinkedProgram(
        {.imports = {"KERNEL32.dll", "Qt6Core.dll"}, .delayedImports = {"WINMM.dll"}}));
    ASSERT_TRUE(status);
    EXPECT_EQ(status->machine, ProgramMachine::X86);
    EXPECT_FALSE(status->isLibrary);
    EXPECT_THAT(status->imports, ElementsAre("KERNEL32.dll", "Qt6Core.dll"));
    EXPECT_THAT(status->delayedImports, ElementsAre("WINMM.dll"));
    EXPECT_FALSE(status->isManaged);
}

TEST(ProgramInfo, KnowBothSizesOfAddressAndLibraries)
{
    const auto status =
        StatusOf(MakeLinkedProgram({.is64Bit = true, .isLibrary = true, .imports = {"a.dll"}}));
    ASSERT_TRUE(status);
    EXPECT_EQ(status->machine, ProgramMachine::X64);
    EXPECT_TRUE(status->isLibrary);
    EXPECT_THAT(status->imports, ElementsAre("a.dll"));
    EXPECT_EQ(StatusOf(MakeLinkedProgram({.is64Bit = true, .machine = 0xAA64}))->machine,
              ProgramMachine::Arm64);
    EXPECT_EQ(StatusOf(MakeLinkedProgram({.machine = 0x1F0}))->machine, ProgramMachine::Other);
}

TEST(ProgramInfo, TellALibraryOnce)
{
    const auto status = StatusOf(MakeLinkedProgram({.imports = {"a.dll", "A.DLL", "b.dll"}}));
    EXPECT_THAT(status->imports, ElementsAre("a.dll", "b.dll"));
}

TEST(ProgramInfo, ReadTheDelayTablesOfOldLinkers)
{
    const auto status =
        StatusOf(MakeLinkedProgram({.delayedImports = {"old.dll"}, .hasOldDelayTable = true}));
    EXPECT_THAT(status->delayedImports, ElementsAre("old.dll"));
}

TEST(ProgramInfo, TellTheRunTimeOfAManagedProgram)
{
    const auto status =
        StatusOf(MakeLinkedProgram({.imports = {"mscoree.dll"},
                                    .clrVersion = "v4.0.30319",
                                    .targetFramework = ".NETFramework,Version=v4.7.2"}));
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->isManaged);
    EXPECT_TRUE(status->isForAnyMachine);
    EXPECT_EQ(status->clrVersion, "v4.0.30319");
    EXPECT_EQ(status->targetFramework, ".NETFramework,Version=v4.7.2");
}

TEST(ProgramInfo, KnowAManagedProgramFor32BitAlone)
{
    EXPECT_FALSE(
        StatusOf(MakeLinkedProgram({.clrVersion = "v1.1.4322", .clrFlags = 3}))->isForAnyMachine);
    EXPECT_FALSE(StatusOf(MakeLinkedProgram({.is64Bit = true, .clrVersion = "v4.0.30319"}))
                     ->isForAnyMachine);
    EXPECT_EQ(StatusOf(MakeLinkedProgram({.clrVersion = "v1.1.4322"}))->targetFramework, "");
}

TEST(ProgramInfo, AreMissingWhereTheFileIsNoProgram)
{
    EXPECT_FALSE(StatusOf(""));
    EXPECT_FALSE(StatusOf("MZ"));
    EXPECT_FALSE(StatusOf(std::string(4096, 'M')));
}

// Whatever is cut off a program, the reading ends with what was there.
TEST(ProgramInfo, EndWhereTheFileIsCut)
{
    const std::string whole = MakeLinkedProgram(
        {.imports = {"a.dll", "b.dll"}, .delayedImports = {"c.dll"}, .clrVersion = "v4.0.30319"});
    for (std::size_t size = 0; size < whole.size(); ++size)
        if (const auto status = StatusOf(whole.substr(0, size)))
            EXPECT_LE(status->imports.size(), 2U) << size;
    EXPECT_THAT(StatusOf(whole.substr(0, 0x200))->imports, IsEmpty());
}

} // namespace
} // namespace quillon::test
