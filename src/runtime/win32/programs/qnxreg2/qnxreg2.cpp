// QNXREG2: registers, after the machine was started again, the files that were in use when they
// were installed. Its exit code is the number of files that could not be registered.
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/registration/register_server.h"

#include <objbase.h>
#include <shellapi.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR, int)
{
    quillon::StartProgram();
    int count = 0;
    LPWSTR* const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr)
        return 1;
    OleInitialize(nullptr);
    int failed = 0;
    for (int i = 1; i < count; ++i)
        if (quillon::RegisterServerFile(arguments[i], true) != quillon::kRegistrationDone)
            ++failed;
    OleUninitialize();
    return failed;
}
