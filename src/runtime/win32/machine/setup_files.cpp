#include "runtime/win32/machine/setup_files.h"

#include <windows.h>

namespace quillon {

SetupFiles::SetupFiles() : holds_([](int milliseconds) { Sleep(static_cast<DWORD>(milliseconds)); })
{
}

void SetupFiles::RemoveFile(const Text& path)
{
    holds_.Outlast(BriefHolds::OfFile, [&] { WinFiles::RemoveFile(path); });
}

void SetupFiles::RemoveFolder(const Text& path)
{
    holds_.Outlast(BriefHolds::OfFolder, [&] { WinFiles::RemoveFolder(path); });
}

void SetupFiles::Rename(const Text& from, const Text& to)
{
    holds_.Outlast(BriefHolds::OfFile, [&] { WinFiles::Rename(from, to); });
}

void SetupFiles::Replace(const Text& from, const Text& to)
{
    holds_.Outlast(BriefHolds::OfFile, [&] { WinFiles::Replace(from, to); });
}

} // namespace quillon
