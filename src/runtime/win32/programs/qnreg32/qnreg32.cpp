// QNREG32: registers the file named on its command line, or with /U takes its registration back. It
// is a process of its own, so that a library that crashes does not end the setup.
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/registration/register_server.h"

#include <objbase.h>
#include <shellapi.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    quillon::StartProgram();
    int count = 0;
    LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    const bool off = count == 3 && lstrcmpiW(arguments[1], L"/U") == 0;
    if (arguments == nullptr || (count != 2 && !off))
        return quillon::kRegistrationFailed;
    OleInitialize(nullptr);
    const int result = quillon::RegisterServerFile(arguments[count - 1], !off);
    OleUninitialize();
    return result;
}
