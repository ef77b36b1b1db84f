// What a call of the compression interface answers; 0 and below is success. Results are numbers,
// because the status list shows them by number.
#pragma once

#include "helpers/number_text.h"
#include "platform/run_error.h"

#include <exception>

namespace quillon {

namespace CompressionResult {
inline constexpr Integer kDone = 0;
inline constexpr Integer kSourceMissing = 4;
inline constexpr Integer kSourceChanged = 5; // it shrank or grew while it was read
inline constexpr Integer kSourceDamaged = 6; // its disk failed while it was read
inline constexpr Integer kNothingToDo = 12;  // the list held no file
inline constexpr Integer kCancelled = 14;    // no further disk came
inline constexpr Integer kDiskFull = 15;
inline constexpr Integer kCannotWrite = 16;
inline constexpr Integer kNoReadAccess = 18;
} // namespace CompressionResult

/// An archive that can't be finished.
class CompressionFailure : public std::exception {
public:
    /// `path` is the source, or what could not be written; empty where the failure concerns no
    /// file.
    CompressionFailure(Integer result, Text path);

    Integer Result() const { return result_; }
    const Text& Path() const { return path_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    Integer result_;
    Text path_;
    Text what_;
};

/// The result that a failure of the machine ends in, by the file concerned.
Integer ResultOfReading(const RunError& error);
Integer ResultOfWriting(const RunError& error);

} // namespace quillon
