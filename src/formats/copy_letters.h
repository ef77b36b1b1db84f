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

inline bool HasOption(std::string_view letters, char letter)
{
    return letters.find(letter) != std::string_view::npos;
}

} // namespace quillon
