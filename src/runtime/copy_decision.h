// Whether a file is copied over one that is already there: what the letters of its copy options
// say, and nothing else. The reason of a refusal goes to the log.
#pragma once

#include "helpers/date_text.h"
#include "runtime/messages.h"

#include <optional>

namespace quillon {

/// The letters of a row's copy options.
namespace CopyOption {
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
inline constexpr char kNotIfEqualVersion = 'E';
inline constexpr char kNeverUninstall = '*';
inline constexpr char kFont = 'F';
} // namespace CopyOption

inline bool HasOption(std::string_view options, char letter)
{
    return options.find(letter) != std::string_view::npos;
}

struct ComparedFile {
    LocalTime modified;
    Text version; // "1, 2, 3, 4" or "1.2.3.4"; empty where the file has none
    bool isReadOnly = false;
};

enum class CopyVerdict { Copy, Keep, Ask };

struct CopyDecision {
    CopyVerdict verdict = CopyVerdict::Copy;
    std::optional<Reason> reason; // why the existing file is kept
};

CopyDecision DecideCopy(std::string_view options, const ComparedFile& existing,
                        const ComparedFile& ours);

/// Negative, zero or positive; parts that are missing count as 0.
int CompareVersions(std::string_view left, std::string_view right);

} // namespace quillon
