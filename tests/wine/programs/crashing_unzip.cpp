// Looks like the library that unpacks a package's files, and crashes the setup that calls it.
#define EXPORTED extern "C" __declspec(dllexport)

namespace {

int Crash()
{
    volatile int* volatile nowhere = nullptr;
    *nowhere = 1;
    return 0;
}

} // namespace

EXPORTED int QnUnzipBegin(void*)
{
    return Crash();
}
EXPORTED void QnUnzipGo() {}
EXPORTED void QnUnzipEnd() {}
EXPORTED int QnUnzipCrc()
{
    return Crash();
}
