// A failure of the machine, identified by the number that users see in "Fel #" and that callers
// compare.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"

#include <exception>
#include <optional>
#include <utility>

namespace quillon {

/// The numbers in use. A status line or a box names any of them; some have words of their own.
namespace ErrorNumber {
inline constexpr int kNone = 0;
inline constexpr int kCannotStart = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kBadFileName = 52;
inline constexpr int kFileNotFound = 53;
inline constexpr int kFileInUse = 55;
inline constexpr int kDeviceIo = 57;
inline constexpr int kDiskFull = 61;
inline constexpr int kPastEndOfFile = 62;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathFileAccess = 75;
inline constexpr int kPathNotFound = 76;
} // namespace ErrorNumber

class RunError : public std::exception {
public:
    /// `path` is the file concerned, empty where there is none.
    explicit RunError(int number, Text path = {})
        : number_(number), path_(std::move(path)),
          what_("Fel #" + NumberText(number) + (path_.empty() ? "" : ": " + path_))
    {
    }

    int Number() const { return number_; }
    const Text& Path() const { return path_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    int number_;
    Text path_;
    Text what_;
};

/// Runs a writer to its end; 0, or the number of the failure that ended it.
template <class Work>
int RunErrorNumber(Work work)
{
    try {
        work();
        return ErrorNumber::kNone;
    } catch (const RunError& error) {
        return error.Number();
    }
}

/// The same, and keeps the failure for a caller that names the file as well.
template <class Work>
int RunErrorNumber(Work work, std::optional<RunError>& failure)
{
    try {
        work();
        return ErrorNumber::kNone;
    } catch (const RunError& error) {
        failure = error;
        return error.Number();
    }
}

} // namespace quillon
