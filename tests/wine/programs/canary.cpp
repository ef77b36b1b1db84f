// The least program that can show whether a Wine runs this kind of program at all: it writes a file
// and ends with a code, both given on the command line. A Wine that can't run it often ends with 0
// and has done nothing.
#include <windows.h>

#include <cwchar>
#include <shellapi.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 3)
        return 1;
    const HANDLE file =
        CreateFileW(arguments[1], GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    const bool isWritten = file != INVALID_HANDLE_VALUE &&
                           WriteFile(file, "sings", 5, &written, nullptr) && written == 5;
    CloseHandle(file);
    return isWritten ? static_cast<int>(std::wcstol(arguments[2], nullptr, 10)) : 2;
}
