// runner FILE: runs the command line that is in the file, in UTF-8, and writes the program's
// exit code in decimal to FILE.code. A code of Windows has 32 bits, of which only eight get out of
// Wine, and Wine changes the quotation marks of the command that it runs.
#include <windows.h>

#include <cstdio>
#include <shellapi.h>
#include <string>

namespace {

std::wstring ReadCommand(const std::wstring& path)
{
    char bytes[8192] = {};
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    DWORD size = 0;
    ReadFile(file, bytes, sizeof bytes, &size, nullptr);
    CloseHandle(file);
    std::wstring command(size, L'\0');
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes, static_cast<int>(size),
                                           command.data(), static_cast<int>(size));
    command.resize(static_cast<std::size_t>(length));
    return command;
}

void WriteCode(const std::wstring& path, DWORD code)
{
    char text[16] = {};
    const int length = std::sprintf(text, "%lu", code);
    const HANDLE file =
        CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, text, static_cast<DWORD>(length), &written, nullptr);
    CloseHandle(file);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 2)
        return 1;
    const std::wstring path = arguments[1];
    std::wstring command = ReadCommand(path);

    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &process))
        return 2;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    WriteCode(path + L".code", code);
    return 0;
}
