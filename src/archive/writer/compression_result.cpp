#include "archive/writer/compression_result.h"

#include <utility>

namespace quillon {

CompressionFailure::CompressionFailure(Integer result, Text path)
    : result_(result), path_(std::move(path)),
      what_("compression result " + NumberText(result) + (path_.empty() ? "" : ": " + path_))
{
}

Integer ResultOfReading(const RunError& error)
{
    switch (error.Number()) {
    case ErrorNumber::kFileNotFound:
    case ErrorNumber::kPathNotFound:
    case ErrorNumber::kBadFileName:
        return CompressionResult::kSourceMissing;
    case ErrorNumber::kPermissionDenied:
    case ErrorNumber::kPathFileAccess:
        return CompressionResult::kNoReadAccess;
    default:
        return CompressionResult::kSourceDamaged;
    }
}

Integer ResultOfWriting(const RunError& error)
{
    return error.Number() == ErrorNumber::kDiskFull ? CompressionResult::kDiskFull
                                                    : CompressionResult::kCannotWrite;
}

} // namespace quillon
