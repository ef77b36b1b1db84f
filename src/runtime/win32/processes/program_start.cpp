#include "runtime/win32/processes/program_start.h"

#include "runtime/win32/processes/library_search.h"

#include <windows.h>

#include <delayimp.h>

namespace quillon {

namespace {

// Libraries that the system's own libraries load while a program runs: for windows and their
// themes, for the rights of files, for COM objects and shortcuts, and for starting other programs.
constexpr const char* kCommonLibraries[] = {
    "version.dll", "uxtheme.dll",     "comctl32.dll", "shlwapi.dll", "imm32.dll",
    "msctf.dll",   "usp10.dll",       "lpk.dll",      "dwmapi.dll",  "ntmarta.dll",
    "secur32.dll", "cryptbase.dll",   "rsaenh.dll",   "cryptsp.dll", "clbcatq.dll",
    "comres.dll",  "rpcrtremote.dll", "setupapi.dll", "propsys.dll", "linkinfo.dll",
    "ntshrui.dll", "netapi32.dll",    "srvcli.dll",   "profapi.dll", "apphelp.dll",
    "mpr.dll",     "winmm.dll",       "oleacc.dll",
};

constexpr UINT kMaxNameLength = 64;

template <class Function>
Function OfKernel(const char* name)
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32.dll"), name)));
}

// A program whose manifest asks for the newer controls gets them from the system's store of side by
// side libraries, by the bare name alone; Windows looks nowhere else for it then.
bool IsInSideBySideStore(const char* name)
{
    using Function = BOOL(WINAPI*)(DWORD, const GUID*, ULONG, LPCSTR, void*);
    const auto find = OfKernel<Function>("FindActCtxSectionStringA");
    constexpr ULONG kLibraries = 2; // ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION
    ACTCTX_SECTION_KEYED_DATA found{};
    found.cbSize = sizeof found;
    return find != nullptr && find(0, nullptr, kLibraries, name, &found) != FALSE;
}

FARPROC WINAPI OnDelayedLoad(unsigned event, PDelayLoadInfo info)
{
    if (event != dliNotePreLoadLibrary)
        return nullptr;
    const HMODULE loaded = IsInSideBySideStore(info->szDll) ? LoadLibraryA(info->szDll)
                                                            : LoadFromSystemFolder(info->szDll);
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(loaded));
}

// The error mode suppresses the box, but not a debugger that is set up for crashes: it would wait
// for a user, and hold the files that the program had loaded.
LONG WINAPI EndAtOnce(EXCEPTION_POINTERS* crash)
{
    TerminateProcess(GetCurrentProcess(), crash->ExceptionRecord->ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

// With an absolute path Windows looks for what the library needs beside it, not beside the program.
HMODULE LoadFromSystemFolder(const char* name)
{
    char path[MAX_PATH + kMaxNameLength];
    const UINT length = GetSystemDirectoryA(path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH || lstrlenA(name) >= int(kMaxNameLength) - 1)
        return nullptr;
    lstrcatA(path, "\\");
    lstrcatA(path, name);
    return LoadLibraryExA(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

void LoadCommonLibraries()
{
    for (const char* name : kCommonLibraries)
        LoadFromSystemFolder(name);
}

void StartProgram()
{
    SetUnhandledExceptionFilter(EndAtOnce);
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX | SEM_NOGPFAULTERRORBOX);
    __pfnDliNotifyHook2 = OnDelayedLoad;
    const auto setDefault = OfKernel<BOOL(WINAPI*)(DWORD)>("SetDefaultDllDirectories");
    if (setDefault != nullptr && setDefault(kSystemFolderOnly))
        return;
    // Before Windows 8: at least not from the current folder.
    const auto setFolder = OfKernel<BOOL(WINAPI*)(const wchar_t*)>("SetDllDirectoryW");
    if (setFolder != nullptr)
        setFolder(L"");
    LoadCommonLibraries();
}

} // namespace quillon
