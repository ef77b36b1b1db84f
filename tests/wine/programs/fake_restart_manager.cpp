// In the place of the system's Restart Manager, for a Wine that has none: one that names as many
// programs as C:\rm.ini says, more of them after a call that had too little room, and closes them
// by waiting until the registered file is free, or refuses to. Each call appends a line to
// C:\rm.txt.
#include <windows.h>

#include <restartmanager.h>

namespace {

constexpr const wchar_t* kSettings = L"C:\\rm.ini";
constexpr int kMaxWait = 60'000; // milliseconds
constexpr int kLook = 10;
constexpr DWORD kFailShutdown = 351; // ERROR_FAIL_SHUTDOWN

wchar_t registered[MAX_PATH];
UINT added = 0;

void Append(const wchar_t* format, UINT first = 0, UINT second = 0)
{
    wchar_t line[256];
    char bytes[256];
    wsprintfW(line, format, first, second);
    wsprintfA(bytes, "%ls\n", line);
    const HANDLE file =
        CreateFileW(L"C:\\rm.txt", FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, bytes, static_cast<DWORD>(lstrlenA(bytes)), &written, nullptr);
    CloseHandle(file);
}

UINT Setting(const wchar_t* name)
{
    return GetPrivateProfileIntW(L"rm", name, 0, kSettings);
}

bool IsFree()
{
    const HANDLE file = CreateFileW(registered, GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    return file != INVALID_HANDLE_VALUE;
}

} // namespace

extern "C" {

__declspec(dllexport) DWORD WINAPI RmStartSession(DWORD* session, DWORD, wchar_t*)
{
    *session = 7;
    Append(L"start");
    return ERROR_SUCCESS;
}

__declspec(dllexport) DWORD WINAPI
    RmRegisterResources(DWORD, UINT files, LPCWSTR* names, UINT, RM_UNIQUE_PROCESS*, UINT, LPCWSTR*)
{
    lstrcpynW(registered, names[0], MAX_PATH);
    Append(L"register %u", files);
    return ERROR_SUCCESS;
}

__declspec(dllexport) DWORD WINAPI
    RmGetList(DWORD, UINT* needed, UINT* count, RM_PROCESS_INFO* programs, DWORD* reasons)
{
    *needed = Setting(L"programs") + added;
    *reasons = 0;
    Append(L"list %u of %u", *count < *needed ? 0 : *needed, *needed);
    if (*count < *needed) {
        // As if some had been started meanwhile.
        added += added < 40 ? 20 : 0;
        return ERROR_MORE_DATA;
    }
    *count = *needed;
    for (UINT i = 0; i < *count; ++i) {
        programs[i] = {};
        wsprintfW(programs[i].strAppName, L"Program %u", i + 1);
    }
    return ERROR_SUCCESS;
}

__declspec(dllexport) DWORD WINAPI RmShutdown(DWORD, ULONG, RM_WRITE_STATUS_CALLBACK)
{
    Append(L"shutdown");
    if (Setting(L"refuses") != 0)
        return kFailShutdown;
    for (int waited = 0; !IsFree() && waited < kMaxWait; waited += kLook)
        Sleep(kLook);
    return ERROR_SUCCESS;
}

__declspec(dllexport) DWORD WINAPI RmRestart(DWORD, DWORD, RM_WRITE_STATUS_CALLBACK)
{
    Append(L"restart");
    return ERROR_SUCCESS;
}

__declspec(dllexport) DWORD WINAPI
    RmAddFilter(DWORD, LPCWSTR, RM_UNIQUE_PROCESS*, LPCWSTR, RM_FILTER_ACTION action)
{
    Append(L"filter %u", static_cast<UINT>(action));
    return ERROR_SUCCESS;
}

__declspec(dllexport) DWORD WINAPI RmEndSession(DWORD)
{
    Append(L"end");
    return ERROR_SUCCESS;
}
}
