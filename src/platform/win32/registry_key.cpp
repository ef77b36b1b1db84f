#include "platform/win32/registry_key.h"

#include "platform/win32/wide_text.h"

namespace quillon {

namespace {

std::wstring Expanded(const std::wstring& text)
{
    const DWORD length = ExpandEnvironmentStringsW(text.c_str(), nullptr, 0);
    std::wstring expanded(length, L'\0');
    ExpandEnvironmentStringsW(text.c_str(), expanded.data(), length);
    return expanded.c_str();
}

} // namespace

HKEY RootHandle(RegistryRoot root)
{
    switch (root) {
    case RegistryRoot::ClassesRoot:
        return HKEY_CLASSES_ROOT;
    case RegistryRoot::CurrentUser:
        return HKEY_CURRENT_USER;
    case RegistryRoot::LocalMachine:
        return HKEY_LOCAL_MACHINE;
    case RegistryRoot::Users:
        return HKEY_USERS;
    case RegistryRoot::CurrentConfig:
        return HKEY_CURRENT_CONFIG;
    case RegistryRoot::DynData:
        return HKEY_DYN_DATA;
    }
    return nullptr;
}

OpenKey::OpenKey(RegistryRoot root, const Text& subKey, REGSAM access)
    : status_(RegOpenKeyExW(RootHandle(root), Wide(subKey).c_str(), 0, access, &key_))
{
    if (status_ != ERROR_SUCCESS)
        key_ = nullptr;
}

OpenKey::~OpenKey()
{
    if (key_ != nullptr)
        RegCloseKey(key_);
}

std::optional<Text> OpenKey::ReadText(const Text& name) const
{
    const std::wstring wideName = Wide(name);
    DWORD type = 0;
    DWORD bytes = 0;
    if (!IsOpen() ||
        RegQueryValueExW(key_, wideName.c_str(), nullptr, &type, nullptr, &bytes) !=
            ERROR_SUCCESS ||
        (type != REG_SZ && type != REG_EXPAND_SZ))
        return std::nullopt;
    // What is stored need not end in a NUL; the room after it does.
    std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
    if (RegQueryValueExW(key_, wideName.c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(text.data()), &bytes) != ERROR_SUCCESS)
        return std::nullopt;
    text = text.c_str();
    return Narrow(type == REG_EXPAND_SZ ? Expanded(text) : text);
}

} // namespace quillon
