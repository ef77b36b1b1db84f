// A driver for sound that hangs while it is loaded.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        Sleep(INFINITE);
    return TRUE;
}
