#include "runtime/win32/registration/register_server.h"

#include "runtime/win32/processes/wait_for_program.h"

#include <objbase.h>

#include <cwchar>

namespace quillon {

namespace {

constexpr int kMaxPathLength = 1024;

bool IsProgram(const wchar_t* path)
{
    const wchar_t* const dot = wcsrchr(path, L'.');
    return dot != nullptr && lstrcmpiW(dot, L".EXE") == 0;
}

int RegisterProgram(const wchar_t* path, bool on)
{
    wchar_t line[kMaxPathLength + 32];
    if (wcslen(path) > kMaxPathLength)
        return kRegistrationFailed;
    lstrcpyW(line, L"\"");
    lstrcatW(line, path);
    lstrcatW(line, on ? L"\" /regserver" : L"\" /unregserver");
    return RunHiddenAndWait(path, line) == 0 ? kRegistrationDone : kRegistrationFailed;
}

} // namespace

int RunHiddenAndWait(const wchar_t* program, wchar_t* commandLine)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    // Hidden, since no user may be there to close what the program shows.
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_HIDE;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program, commandLine, nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                        nullptr, &startup, &process))
        return -1;
    const DWORD code = WaitForProgram(process.hProcess);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

int RegisterServerFile(const wchar_t* path, bool on)
{
    if (IsProgram(path))
        return RegisterProgram(path, on);
    const HMODULE library = LoadLibraryExW(path, nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr)
        return kRegistrationFailed;
    using EntryPoint = HRESULT(STDAPICALLTYPE*)();
    const auto entry = reinterpret_cast<EntryPoint>(reinterpret_cast<void*>(
        GetProcAddress(library, on ? "DllRegisterServer" : "DllUnregisterServer")));
    int result = kNotSelfRegistering;
    if (entry != nullptr)
        result = SUCCEEDED(entry()) ? kRegistrationDone : kRegistrationFailed;
    FreeLibrary(library);
    return result;
}

} // namespace quillon
