// The letters of a row's copy options: how the setup copies the file, and what it does with it
// then.
#pragma once

#include <string_view>

namespace quillon {

namespace CopyLetter {
inline constexpr char kDateCheck = 'D';
inline constexpr char kVersionCheck = 'V';
inline constexpr char kNeverReplace = 'N';
inline constexpr char kWarnIfExists = 'X';
inline constexpr char kRegister = 'R';
inline constexpr char kActiveFile = 'A';
inline constexpr char kShared = 'S';
inline constexpr char kWriteProtected = 'W';
inline constexpr char kSetWriteProtection = 'P';
inline constexpr char kBackup = 'B';
inline constexpr char kNotIfEqualVersion = 'E'; // only together with kVersionCheck
inline constexpr char kNeverUninstall = '*';
inline constexpr char kFont = 'F';
} // namespace CopyLetter

// What the rows of some kinds of file begin with.
namespace StartingLetters {
using namespace CopyLetter;

template <char... kLetters>
inline constexpr char kRow[] = {kLetters..., '\0'};

inline constexpr auto& kAnyFile = kRow<kDateCheck>;
inline constexpr auto& kProgramWithVersion = kRow<kVersionCheck>;
inline constexpr auto& kLibrary = kRow<kDateCheck, kActiveFile>;
inline constexpr auto& kLibraryWithVersion = kRow<kVersionCheck, kActiveFile>;
inline constexpr auto& kControl = kRow<kVersionCheck, kRegister, kActiveFile>;
// Run-time files, which other products use too.
inline constexpr auto& kRuntimeServer =
    kRow<kVersionCheck, kRegister, kActiveFile, kWriteProtected>;
inline constexpr auto& kRuntimeLibrary =
    kRow<kVersionCheck, kActiveFile, kWriteProtected, kNotIfEqualVersion>;
inline constexpr auto& kTypeLibrary = kRow<kVersionCheck, kActiveFile, kWriteProtected>;
inline constexpr auto& kTypeLibraryByDate = kRow<kDateCheck, kActiveFile, kWriteProtected>;
inline constexpr auto& kSharedServer = kRow<kVersionCheck, kRegister, kShared>;
inline constexpr auto& kSharedFile = kRow<kDateCheck, kShared>;
inline constexpr auto& kFontFile = kRow<kDateCheck, kWriteProtected, kFont>;
inline constexpr auto& kKeptFontFile = kRow<kDateCheck, kWriteProtected, kFont, kNeverReplace>;
} // namespace StartingLetters

inline bool HasOption(std::string_view letters, char letter)
{
    return letters.find(letter) != std::string_view::npos;
}

} // namespace quillon
