#include "platform/win32/win_failure.h"

#include <windows.h>

namespace quillon {

namespace {

int NumberOf(unsigned long errorCode)
{
    switch (errorCode) {
    case ERROR_FILE_NOT_FOUND:
        return ErrorNumber::kFileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
        return ErrorNumber::kPathNotFound;
    case ERROR_ACCESS_DENIED:
        return ErrorNumber::kPermissionDenied;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
        return ErrorNumber::kFileInUse;
    case ERROR_WRITE_PROTECT:
    case ERROR_DIR_NOT_EMPTY:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return ErrorNumber::kPathFileAccess;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return ErrorNumber::kDiskFull;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return ErrorNumber::kBadFileName;
    default:
        return ErrorNumber::kDeviceIo;
    }
}

} // namespace

RunError WindowsFailure(unsigned long errorCode, const Text& path)
{
    return RunError(NumberOf(errorCode), path);
}

void FailAsWindowsSays(const Text& path)
{
    throw WindowsFailure(GetLastError(), path);
}

} // namespace quillon
