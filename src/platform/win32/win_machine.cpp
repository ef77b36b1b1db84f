#include "platform/win32/win_machine.h"

#include "helpers/windows_path.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "platform/win32/win_time.h"

#include <algorithm>
#include <shellapi.h>
#include <shlobj.h>
#include <wincrypt.h>

namespace quillon {

namespace {

constexpr std::size_t kMaxOwnerLength = 256;
constexpr int kSmallFontsDpi = 96;

Text ShellFolder(int id)
{
    wchar_t path[MAX_PATH] = {};
    if (SHGetFolderPathW(nullptr, id, nullptr, SHGFP_TYPE_CURRENT, path) != S_OK)
        return {};
    return RemoveLastBackslash(Narrow(path));
}

template <class Ask>
Text FolderFrom(Ask ask)
{
    wchar_t path[MAX_PATH + 1] = {};
    return ask(path, static_cast<DWORD>(MAX_PATH)) > 0 ? RemoveLastBackslash(Narrow(path)) : Text();
}

// The shell answers with a number instead of setting the last error; above 32 it is a success.
void OpenByShell(const Text& path, const Text& arguments)
{
    const HINSTANCE answer = ShellExecuteW(nullptr, L"open", Wide(path).c_str(),
                                           arguments.empty() ? nullptr : Wide(arguments).c_str(),
                                           nullptr, SW_SHOWNORMAL);
    const auto code = reinterpret_cast<INT_PTR>(answer);
    if (code > 32)
        return;
    if (code == SE_ERR_FNF || code == SE_ERR_PNF)
        throw WindowsFailure(static_cast<DWORD>(code), path);
    throw RunError(ErrorNumber::kCannotStart, path);
}

} // namespace

Text WinMachine::GetWindowsDir() const
{
    // The system's own folder, also where a terminal server gives each user another one.
    return FolderFrom(
        [](wchar_t* path, DWORD size) { return GetSystemWindowsDirectoryW(path, size); });
}

Text WinMachine::GetSystemDir() const
{
    return FolderFrom([](wchar_t* path, DWORD size) { return GetSystemDirectoryW(path, size); });
}

Text WinMachine::GetProgramFilesDir() const
{
    return ShellFolder(CSIDL_PROGRAM_FILES);
}

Text WinMachine::GetMyDocumentsDir() const
{
    return ShellFolder(CSIDL_PERSONAL);
}

Text WinMachine::GetSysAppDataDirectory() const
{
    return ShellFolder(CSIDL_APPDATA);
}

Text WinMachine::GetSysLocalAppDataDirectory() const
{
    return ShellFolder(CSIDL_LOCAL_APPDATA);
}

Text WinMachine::GetSysTemplatesDirectory() const
{
    return ShellFolder(CSIDL_TEMPLATES);
}

Text WinMachine::GetTempDir() const
{
    return FolderFrom([](wchar_t* path, DWORD size) { return GetTempPathW(size, path); });
}

Text WinMachine::GetSettingsDir() const
{
    const Text data = GetSysAppDataDirectory();
    return data.empty() ? Text() : JoinPath(data, "Quillon");
}

std::optional<Text> WinMachine::ReadRegistryValue(RegistryRoot root, const Text& subKey,
                                                  const Text& valueName) const
{
    return OpenKey(root, subKey).ReadText(valueName);
}

RegisteredOwner WinMachine::GetWindowsRegisteredOwner() const
{
    // The systems of the NT family keep it in the first key, the others in the second.
    for (const char* name : {"Software\\Microsoft\\Windows NT\\CurrentVersion",
                             "Software\\Microsoft\\Windows\\CurrentVersion"}) {
        const OpenKey key(RegistryRoot::LocalMachine, name);
        if (const auto owner = key.ReadText("RegisteredOwner"))
            return {FirstCharacters(*owner, kMaxOwnerLength),
                    FirstCharacters(key.ReadText("RegisteredOrganization").value_or(""),
                                    kMaxOwnerLength)};
    }
    return {};
}

bool WinMachine::IsWindowsXP() const
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    return GetVersionExW(&version) && version.dwMajorVersion == 5 && version.dwMinorVersion == 1;
}

bool WinMachine::GetDisplayCharSize() const
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi > kSmallFontsDpi;
}

char WinMachine::DecimalSign() const
{
    wchar_t sign[5] = {};
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sign, 5);
    return sign[0] == L',' ? ',' : '.';
}

LocalTime WinMachine::Now() const
{
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return LocalTimeOf(now);
}

std::uint32_t WinMachine::Random(std::uint32_t below)
{
    if (below == 0)
        return 0;
    HCRYPTPROV source = 0;
    if (!CryptAcquireContextW(&source, nullptr, nullptr, PROV_RSA_FULL, CRYPT_VERIFYCONTEXT))
        throw RunError(ErrorNumber::kDeviceIo);
    // Numbers beyond the last whole multiple would favour the small ones, so they are drawn again.
    const std::uint64_t range = std::uint64_t(1) << 32U;
    const std::uint64_t fair = range - range % below;
    std::uint32_t drawn = 0;
    do {
        CryptGenRandom(source, sizeof drawn, reinterpret_cast<BYTE*>(&drawn));
    } while (drawn >= fair);
    CryptReleaseContext(source, 0);
    return drawn % below;
}

void WinMachine::StartProgram(const Text& program, const Text& arguments)
{
    OpenByShell(program, arguments);
}

void WinMachine::OpenDocument(const Text& path)
{
    OpenByShell(path, {});
}

void WinMachine::EditTextFile(const Text& path)
{
    OpenByShell("NOTEPAD.EXE", path);
}

} // namespace quillon
