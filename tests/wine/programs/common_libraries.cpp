// Takes the way of a system that can't be told to look in its own folder only: loads beforehand
// what is asked for by name later, then asks for it. Ends with the number of libraries that came
// from elsewhere.
#include "runtime/win32/processes/program_start.h"

#include <windows.h>

#include <initializer_list>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    quillon::LoadCommonLibraries();
    wchar_t system[MAX_PATH] = {};
    const int length = static_cast<int>(GetSystemDirectoryW(system, MAX_PATH));
    int foreign = 0;
    for (const wchar_t* name : {L"version.dll", L"uxtheme.dll", L"comctl32.dll", L"shlwapi.dll",
                                L"propsys.dll", L"netapi32.dll", L"setupapi.dll"}) {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(LoadLibraryW(name), path, MAX_PATH);
        const int compared =
            CompareStringW(LOCALE_INVARIANT, NORM_IGNORECASE, path, length, system, length);
        foreign += compared == CSTR_EQUAL ? 0 : 1;
    }
    return foreign;
}
