// A driver for sound that never comes to an end of being loaded.
#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        Sleep(INFINITE);
    return TRUE;
}
