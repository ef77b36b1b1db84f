#include "runtime/win32/machine/win_target.h"

#include "platform/win32/copied_rights.h"
#include "platform/win32/locked_folder.h"
#include "platform/win32/open_file.h"
#include "platform/win32/owner_of.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "runtime/win32/machine/shutdown_hold.h"
#include "runtime/win32/processes/run_program.h"
#include "runtime/win32/registration/register_process.h"
#include "runtime/win32/registration/register_server.h"

#include <shlobj.h>

#include <algorithm>

namespace quillon {

namespace {

constexpr DWORD kMaxNameLength = 16384; // of a registry value, in characters

// Windows NT 4.0 gives its service pack as a text such as "Service Pack 6".
int ServicePack(const OSVERSIONINFOW& version)
{
    const Text text = Narrow(version.szCSDVersion);
    const std::size_t digit = text.find_first_of("0123456789");
    return digit == Text::npos ? 0 : text[digit] - '0';
}

SystemKind OldSystem(const OSVERSIONINFOW& version)
{
    constexpr DWORD kOsr2Build = 1111;
    if (version.dwMinorVersion >= 90)
        return SystemKind::WinME;
    if (version.dwMinorVersion >= 10)
        return SystemKind::Win98;
    return LOWORD(version.dwBuildNumber) >= kOsr2Build ? SystemKind::Win95OSR2 : SystemKind::Win95;
}

int FolderNumber(TargetFolder folder)
{
    switch (folder) {
    case TargetFolder::CommonFiles:
        return CSIDL_PROGRAM_FILES_COMMON;
    case TargetFolder::Fonts:
        return CSIDL_FONTS;
    case TargetFolder::Desktop:
        return CSIDL_DESKTOPDIRECTORY;
    case TargetFolder::StartMenu:
        return CSIDL_STARTMENU;
    case TargetFolder::Programs:
        return CSIDL_PROGRAMS;
    case TargetFolder::CommonDesktop:
        return CSIDL_COMMON_DESKTOPDIRECTORY;
    case TargetFolder::CommonStartMenu:
        return CSIDL_COMMON_STARTMENU;
    case TargetFolder::CommonPrograms:
        break;
    }
    return CSIDL_COMMON_PROGRAMS;
}

void Check(LONG status, const RegistryKey& key)
{
    if (status != ERROR_SUCCESS)
        throw WindowsFailure(static_cast<unsigned long>(status), KeyText(key));
}

} // namespace

SystemKind WinTarget::System() const
{
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExW(&version);
    if (version.dwPlatformId != VER_PLATFORM_WIN32_NT)
        return OldSystem(version);
    if (version.dwMajorVersion < 5)
        return ServicePack(version) >= 3 ? SystemKind::WinNT4SP3 : SystemKind::WinNT4;
    const bool is2000 = version.dwMajorVersion == 5 && version.dwMinorVersion == 0;
    return is2000 ? SystemKind::Win2000 : SystemKind::WinXP;
}

Text WinTarget::Folder(TargetFolder folder) const
{
    wchar_t path[MAX_PATH] = {};
    // Not created by this call: a folder that is missing is created, and recorded, when something
    // is put into it.
    if (FAILED(SHGetFolderPathW(nullptr, FolderNumber(folder) | CSIDL_FLAG_DONT_VERIFY, nullptr, 0,
                                path)))
        return {};
    return Narrow(path);
}

bool WinTarget::KeyExists(const RegistryKey& key) const
{
    return OpenKey(key.root, key.subKey).IsOpen();
}

std::vector<Text> WinTarget::SubKeys(const RegistryKey& key) const
{
    const OpenKey open(key.root, key.subKey);
    std::vector<Text> names;
    wchar_t name[256];
    for (DWORD i = 0; open.IsOpen(); ++i) {
        DWORD length = 256;
        if (RegEnumKeyExW(open.Get(), i, name, &length, nullptr, nullptr, nullptr, nullptr) !=
            ERROR_SUCCESS)
            break;
        names.push_back(Narrow(std::wstring_view(name, length)));
    }
    return names;
}

std::vector<Text> WinTarget::ValueNames(const RegistryKey& key) const
{
    const OpenKey open(key.root, key.subKey);
    std::vector<Text> names;
    std::wstring name(kMaxNameLength, L'\0');
    for (DWORD i = 0; open.IsOpen(); ++i) {
        DWORD length = kMaxNameLength;
        if (RegEnumValueW(open.Get(), i, name.data(), &length, nullptr, nullptr, nullptr,
                          nullptr) != ERROR_SUCCESS)
            break;
        names.push_back(Narrow(std::wstring_view(name.data(), length)));
    }
    return names;
}

std::optional<RegistryData> WinTarget::ReadValue(const RegistryKey& key, const Text& name) const
{
    const OpenKey open(key.root, key.subKey);
    const std::wstring wideName = Wide(name);
    DWORD type = 0;
    DWORD size = 0;
    if (!open.IsOpen() || RegQueryValueExW(open.Get(), wideName.c_str(), nullptr, &type, nullptr,
                                           &size) != ERROR_SUCCESS)
        return std::nullopt;
    RegistryData data{0, std::string(size, '\0')};
    Check(RegQueryValueExW(open.Get(), wideName.c_str(), nullptr, &type,
                           reinterpret_cast<BYTE*>(data.bytes.data()), &size),
          key);
    data.type = type;
    data.bytes.resize(size);
    return data;
}

void WinTarget::MakeKey(const RegistryKey& key)
{
    HKEY made = nullptr;
    Check(RegCreateKeyExW(RootHandle(key.root), Wide(key.subKey).c_str(), 0, nullptr, 0, KEY_WRITE,
                          nullptr, &made, nullptr),
          key);
    RegCloseKey(made);
}

void WinTarget::WriteValue(const RegistryKey& key, const Text& name, const RegistryData& data)
{
    const OpenKey open(key.root, key.subKey, KEY_SET_VALUE);
    Check(open.Status(), key);
    Check(RegSetValueExW(open.Get(), Wide(name).c_str(), 0, data.type,
                         reinterpret_cast<const BYTE*>(data.bytes.data()),
                         static_cast<DWORD>(data.bytes.size())),
          key);
}

void WinTarget::RemoveValue(const RegistryKey& key, const Text& name)
{
    const OpenKey open(key.root, key.subKey, KEY_SET_VALUE);
    Check(open.Status(), key);
    Check(RegDeleteValueW(open.Get(), Wide(name).c_str()), key);
}

void WinTarget::RemoveKey(const RegistryKey& key)
{
    Check(RegDeleteKeyW(RootHandle(key.root), Wide(key.subKey).c_str()), key);
}

Registration WinTarget::RegisterServer(const Text& path, bool on)
{
    const std::wstring helper = Wide(registryHelper_);
    int result = kRegistrationFailed;
    if (helper.empty() || GetFileAttributesW(helper.c_str()) == INVALID_FILE_ATTRIBUTES) {
        result = RegisterInOwnProcess(path, on);
    } else {
        std::wstring line = L"\"" + helper + (on ? L"\" \"" : L"\" /U \"") + Wide(path) + L"\"";
        result = RunHiddenAndWait(helper.c_str(), line.data());
    }
    if (result == kNotSelfRegistering)
        return Registration::NotSelfRegistering;
    return result == kRegistrationDone ? Registration::Done : Registration::Failed;
}

void WinTarget::AnnounceFont(const Text& path, bool on)
{
    if (on)
        AddFontResourceW(Wide(path).c_str());
    else
        RemoveFontResourceW(Wide(path).c_str());
    SendNotifyMessageW(HWND_BROADCAST, WM_FONTCHANGE, 0, 0);
}

void WinTarget::MoveAtRestart(const Text& from, const Text& to)
{
    const std::wstring target = to.empty() ? std::wstring() : WidePath(to);
    if (!MoveFileExW(WidePath(from).c_str(), to.empty() ? nullptr : target.c_str(),
                     MOVEFILE_DELAY_UNTIL_REBOOT | MOVEFILE_REPLACE_EXISTING))
        FailAsWindowsSays(from);
}

int WinTarget::RunProgram(const ProgramRun& run)
{
    return RunProgramAndWait(run);
}

void WinTarget::CloseToOthers(const Text& path)
{
    LockFileToOthers(WidePath(path).c_str());
}

void WinTarget::CopyRights(const Text& from, const Text& to)
{
    const DWORD status = quillon::CopyRights(WidePath(from).c_str(), WidePath(to).c_str());
    if (status != ERROR_SUCCESS)
        throw WindowsFailure(status, from);
}

bool WinTarget::HaveSameOwner(const Text& path, const Text& own) const
{
    return quillon::HaveSameOwner(WidePath(path).c_str(), WidePath(own).c_str());
}

bool WinTarget::IsOfTrustedUser(const Text& path) const
{
    return quillon::IsOfTrustedUser(WidePath(path).c_str());
}

// By the handle, since a path could lead through a new link a moment later.
std::unique_ptr<InputFile> WinTarget::OpenOfTrustedUser(const Text& path) const
{
    FileHandle file(CreateFileW(WidePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.IsOpen())
        FailAsWindowsSays(path);
    if (!IsOpenFileOfTrustedUser(file.Get()))
        return nullptr;
    return std::make_unique<WinInputFile>(std::move(file), path);
}

bool WinTarget::IsLink(const Text& folder) const
{
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(WidePath(folder).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return false;
    // Other kinds of reparse points say where the contents are stored, and lead to no other name.
    return found.dwReserved0 == 0 || IsReparseTagNameSurrogate(found.dwReserved0);
}

bool WinTarget::IsSameFile(const Text& path, const Text& other) const
{
    const auto informationOf = [](const Text& file) -> std::optional<BY_HANDLE_FILE_INFORMATION> {
        const FileHandle handle(CreateFileW(WidePath(file).c_str(), 0, kShareAll, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        BY_HANDLE_FILE_INFORMATION information{};
        if (!handle.IsOpen() || !GetFileInformationByHandle(handle.Get(), &information))
            return std::nullopt;
        return information;
    };
    const auto one = informationOf(path);
    const auto two = informationOf(other);
    return one && two && one->dwVolumeSerialNumber == two->dwVolumeSerialNumber &&
           one->nFileIndexHigh == two->nFileIndexHigh && one->nFileIndexLow == two->nFileIndexLow;
}

std::shared_ptr<void> WinTarget::HoldShutdown(const Text& reason)
{
    return std::make_shared<ShutdownHold>(reason);
}

} // namespace quillon
