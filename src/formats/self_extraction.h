// What the tool and the self-extracting program agree on: the numbers of the attributes that
// describe such a program, and of the resource with its texts.
#pragma once

#include <cstdint>

namespace quillon {

namespace SelfExtractAttribute {
inline constexpr std::uint32_t kProjectDefault = 0;
inline constexpr std::uint32_t kArchive = 100;
inline constexpr std::uint32_t kResult = 101;
inline constexpr std::uint32_t kIcon = 103; // the file, ';' and the icon's index
inline constexpr std::uint32_t kUnpackPlace = 200;
inline constexpr std::uint32_t kUnpackFolder = 202;
inline constexpr std::uint32_t kSign = 700;
inline constexpr std::uint32_t kSignDescription = 701;
inline constexpr std::uint32_t kSignUrl = 702;
inline constexpr std::uint32_t kSignCertificate = 703;
inline constexpr std::uint32_t kSignKey = 704;
inline constexpr std::uint32_t kSignTimeStamp = 705;
inline constexpr std::uint32_t kProgram = 8500; // a number, ';' and what to start
inline constexpr std::uint32_t kShowsMessage = 72500;
inline constexpr std::uint32_t kMessageTitle = 72501;
inline constexpr std::uint32_t kMessageText = 72502;
// Of our own: what the program is called, and whether what it starts asks for elevation.
inline constexpr std::uint32_t kCompanyName = 9001;
inline constexpr std::uint32_t kProductName = 9002;
inline constexpr std::uint32_t kProductVersion = 9003;
inline constexpr std::uint32_t kDescription = 9004;
inline constexpr std::uint32_t kTexts = 9005;
inline constexpr std::uint32_t kElevates = 9006;
} // namespace SelfExtractAttribute

/// The values of `kUnpackPlace`.
namespace UnpackPlace {
inline constexpr int kBesideProgram = 1;
inline constexpr int kNamedFolder = 4;
} // namespace UnpackPlace

/// Of the program's texts, among the raw data (RT_RCDATA).
inline constexpr std::uint16_t kSelfExtractTexts = 1;

/// The folder of `kUnpackFolder` below the one for temporary files.
inline constexpr const char* kUnpackFolderName = "QNEXPAND";

} // namespace quillon
