// A library that registers itself without a failure and crashes its process when it has to take
// that back.
#include <windows.h>

extern "C" __declspec(dllexport) HRESULT WINAPI DllRegisterServer()
{
    return S_OK;
}

extern "C" __declspec(dllexport) HRESULT WINAPI DllUnregisterServer()
{
    volatile int* volatile nowhere = nullptr;
    *nowhere = 1;
    return S_OK;
}
