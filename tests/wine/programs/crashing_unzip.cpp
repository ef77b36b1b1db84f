// Looks like the library that reads a package's archives, and brings down the setup that opens one.
#define EXPORTED extern "C" __declspec(dllexport)

EXPORTED int QnUnzipOpen(const char*, void**, void*)
{
    volatile int* volatile nowhere = nullptr;
    *nowhere = 1;
    return 0;
}
EXPORTED void QnUnzipEntryCount() {}
EXPORTED void QnUnzipEntryInfo() {}
EXPORTED void QnUnzipExtract() {}
EXPORTED void QnUnzipClose() {}
