#include "platform/posix/posix_error.h"

#include <cerrno>

namespace quillon {

namespace {

int NumberOf(int errorCode, Doing doing, bool folderExists)
{
    switch (errorCode) {
    case ENOENT:
        return folderExists ? ErrorNumber::kFileNotFound : ErrorNumber::kPathNotFound;
    case ENOTDIR:
        return doing == Doing::Writing ? ErrorNumber::kPathFileAccess : ErrorNumber::kPathNotFound;
    case ELOOP:
        return ErrorNumber::kPathNotFound;
    case EISDIR:
    case EROFS:
    case EEXIST:
    case ENXIO:
    case ENOTEMPTY:
        return ErrorNumber::kPathFileAccess;
    case EACCES:
    case EPERM:
    case EBUSY:
    case ETXTBSY:
        return ErrorNumber::kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
        return ErrorNumber::kDiskFull;
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
        return ErrorNumber::kBadFileName;
    default:
        return ErrorNumber::kDeviceIo;
    }
}

} // namespace

RunError PosixFailure(int errorCode, const Text& path, Doing doing, bool folderExists)
{
    return RunError(NumberOf(errorCode, doing, folderExists), path);
}

} // namespace quillon
