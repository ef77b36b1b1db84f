// A library that somebody has laid where a program might look for one: it leaves a file of its own
// name in C:\planted when it is loaded. It has none of the functions that its name promises.
#include <windows.h>

#include <cwchar>

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason != DLL_PROCESS_ATTACH)
        return TRUE;
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(instance, path, MAX_PATH);
    const wchar_t* const last = wcsrchr(path, L'\\');
    wchar_t note[2 * MAX_PATH] = L"C:\\planted";
    CreateDirectoryW(note, nullptr);
    lstrcatW(note, last == nullptr ? L"\\?" : last);
    CloseHandle(CreateFileW(note, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    return TRUE;
}
