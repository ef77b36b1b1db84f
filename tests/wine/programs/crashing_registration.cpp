// A library that crashes its process when it has to register itself.
#include <windows.h>

extern "C" __declspec(dllexport) HRESULT WINAPI DllRegisterServer()
{
    volatile int* volatile nowhere = nullptr;
    *nowhere = 1;
    return S_OK;
}
