// The load configuration of each program, which Windows reads before the program starts. It says
// that libraries come from the system's folder alone, also those that Windows itself loads before
// the program can ask for that. The linker can't write its entry; cmake/load_configuration.py finds
// it by its mark and does.
#include "runtime/win32/processes/library_search.h"

#include <windows.h>

#include <cstddef>

namespace {

constexpr DWORD kMark = 0x464C4E51;             // cleared when it is announced
constexpr DWORD kNoSecurityCookie = 0x00000800; // IMAGE_GUARD_SECURITY_COOKIE_UNUSED

// The layout of Windows 8.1; the compiler's headers end before these fields. On a 32-bit machine
// the two fields of the process are in the other order, and both are zero.
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

// Not read by the program itself.
extern "C" __attribute__((used)) const LoadConfiguration kLoadConfiguration = {
    .size = offsetof(LoadConfiguration, guardFlags) + sizeof(DWORD),
    .timeStamp = kMark,
    .dependentLoadFlags = quillon::kSystemFolderOnly,
    .guardFlags = kNoSecurityCookie,
};
