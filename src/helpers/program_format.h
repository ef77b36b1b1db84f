// Where the numbers of a Windows program's headers are. The layout is described in Microsoft's "PE
// Format" page.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quillon::program_format {

inline constexpr std::uint16_t kDosMark = 0x5A4D;  // "MZ", at the beginning
inline constexpr std::uint32_t kFileMark = 0x4550; // "PE" and two zeros, before the file header

inline constexpr std::size_t kDosHeaderSize = 64;
inline constexpr std::size_t kHeaderPosition = 60; // holds where the file header is
inline constexpr std::size_t kFileHeaderSize = 24; // with the mark before it
inline constexpr std::size_t kSectionHeaderSize = 40;
inline constexpr std::size_t kTableEntrySize = 8;

// From the file header on.
inline constexpr std::size_t kMachine = 4;
inline constexpr std::size_t kSectionCount = 6;
inline constexpr std::size_t kOptionalSize = 20;
inline constexpr std::size_t kCharacteristics = 22;

// From the optional header on.
inline constexpr std::size_t kChecksum = 64;

inline constexpr std::uint16_t kMagic32 = 0x10B;
inline constexpr std::uint16_t kMagic64 = 0x20B;

inline constexpr std::uint16_t kMachineX86 = 0x14C;
inline constexpr std::uint16_t kMachineX64 = 0x8664;
inline constexpr std::uint16_t kMachineArm64 = 0xAA64;

/// A table of the optional header, by its number there.
enum class DataDirectory : std::size_t {
    Imports = 1,
    Resources = 2,
    Certificates = 4,
    DelayedImports = 13,
    ClrHeader = 14
};

/// Where the tables are in the optional header; their count precedes them.
constexpr std::size_t FirstTable(std::uint16_t magic)
{
    return magic == kMagic64 ? 112 : 96;
}

} // namespace quillon::program_format
