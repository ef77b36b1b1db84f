// The load configuration of each program: what Windows reads of a program before its first line. It
// says that libraries come from the system's folder alone, for those that Windows loads by itself
// before the program can say so. The linker has no way to announce it; cmake/load_configuration.py
// finds it by its mark and does.
#include "runtime/win32/library_search.h"

#include <windows.h>

#include <cstddef>

namespace {

constexpr DWORD kMark = 0x464C4E51;             // cleared when it is announced
constexpr DWORD kNoSecurityCookie = 0x00000800; // IMAGE_GUARD_SECURITY_COOKIE_UNUSED

// As Windows 8.1 knows it; the headers of the compiler stop at the handlers. On a 32-bit machine
// the two fields of the process stand the other way round, and both are zero.
struct LoadConfiguration {
    DWORD size;
    DWORD timeStamp;
    WORD version[2];
    DWORD globalFlagsClear;
    DWORD globalFlagsSet;
    DWORD criticalSectionTimeout;
    ULONG_PTR memoryLimits[5];
    ULONG_PTR processAffinity;
    DWORD processHeapFlags;
    WORD servicePack;
    WORD dependentLoadFlags;
    ULONG_PTR editList;
    ULONG_PTR securityCookie;
    ULONG_PTR exceptionHandlers[2];
    ULONG_PTR controlFlowGuard[4];
    DWORD guardFlags;
};

} // namespace

// Read by nobody in the program.
extern "C" __attribute__((used)) const LoadConfiguration kLoadConfiguration = {
    .size = offsetof(LoadConfiguration, guardFlags) + sizeof(DWORD),
    .timeStamp = kMark,
    .dependentLoadFlags = quillon::kSystemFolderOnly,
    .guardFlags = kNoSecurityCookie,
};
