#include "platform/win32/program_path.h"

#include "helpers/windows_path.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

namespace quillon {

Text ProgramPath()
{
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return Narrow(path);
}

Text ProgramFolder()
{
    return ExtractDirectory(ProgramPath());
}

} // namespace quillon
