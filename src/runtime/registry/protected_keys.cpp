#include "runtime/registry/protected_keys.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace quillon {

namespace {

using Parts = std::vector<Text>;

enum class Covers {
    Key,        // the key alone
    KeyAndNext, // and the keys directly below it
    Tree,       // and everything below it
};

struct Rule {
    const char* key; // "*" is any one name
    Covers covers;
};

// The keys below HKEY_LOCAL_MACHINE.
constexpr Rule kMachine[] = {
    {"BCD00000000", Covers::Tree}, {"COMPONENTS", Covers::Tree}, {"HARDWARE", Covers::Tree},
    {"SAM", Covers::Tree},         {"SECURITY", Covers::Tree},   {"SYSTEM", Covers::Tree},
};

// Below SOFTWARE, of the machine and of a user.
constexpr Rule kSoftware[] = {
    {"", Covers::Key},
    {"Clients", Covers::KeyAndNext},
    {"Microsoft", Covers::KeyAndNext},
    {"Microsoft\\Active Setup\\Installed Components", Covers::Key},
    {"Microsoft\\Cryptography", Covers::Tree},
    {"Microsoft\\Internet Explorer\\*", Covers::Key},
    {"Microsoft\\Office\\*", Covers::KeyAndNext},
    {"Microsoft\\SystemCertificates", Covers::Tree},
    {"Microsoft\\Windows\\*", Covers::KeyAndNext},
    {"Microsoft\\Windows\\CurrentVersion\\Explorer\\*", Covers::Key},
    {"Microsoft\\Windows\\CurrentVersion\\Group Policy", Covers::Tree},
    {"Microsoft\\Windows\\CurrentVersion\\Installer", Covers::Tree},
    {"Microsoft\\Windows\\CurrentVersion\\Policies", Covers::Tree},
    {"Microsoft\\Windows\\CurrentVersion\\Shell Extensions\\Approved", Covers::Tree},
    {"Microsoft\\Windows NT\\*", Covers::KeyAndNext},
    {"Microsoft\\Windows NT\\CurrentVersion\\ProfileList", Covers::Tree},
    {"Microsoft\\Windows NT\\CurrentVersion\\Winlogon\\Notify", Covers::Key},
    {"ODBC", Covers::KeyAndNext},
    {"ODBC\\ODBC.INI\\ODBC Data Sources", Covers::Key},
    {"ODBC\\ODBCINST.INI\\ODBC Drivers", Covers::Key},
    {"Policies", Covers::Tree},
    {"RegisteredApplications", Covers::Key},
};

constexpr const char* kServices = "SYSTEM\\CurrentControlSet\\Services";

// Where a product has keys of its own below a tree that is protected.
constexpr const char* kOwnPlaces[] = {
    kServices,
    "SYSTEM\\CurrentControlSet\\Control\\Print\\Monitors",
    "SYSTEM\\CurrentControlSet\\Control\\MediaResources\\*",
};

// The services that the system itself can't do without.
constexpr Rule kSystemServices[] = {
    {"ACPI", Covers::Tree},           {"AFD", Covers::Tree},
    {"Disk", Covers::Tree},           {"DcomLaunch", Covers::Tree},
    {"EventLog", Covers::KeyAndNext}, {"FltMgr", Covers::Tree},
    {"LanmanServer", Covers::Tree},   {"LanmanWorkstation", Covers::Tree},
    {"Ntfs", Covers::Tree},           {"PlugPlay", Covers::Tree},
    {"RpcSs", Covers::Tree},          {"Tcpip", Covers::Tree},
    {"Winmgmt", Covers::Tree},        {"WinSock", Covers::Tree},
    {"WinSock2", Covers::Tree},
};

// Below SOFTWARE\Classes, which is HKEY_CLASSES_ROOT.
constexpr Rule kClasses[] = {
    {"", Covers::Key},
    {"AppID", Covers::Key},
    {"Applications", Covers::Key},
    {"CLSID", Covers::Key},
    {"Component Categories", Covers::Key},
    {"Installer", Covers::Tree},
    {"Interface", Covers::Key},
    {"Local Settings", Covers::Tree},
    {"MIME", Covers::Tree},
    {"Network", Covers::KeyAndNext},
    {"PROTOCOLS", Covers::KeyAndNext},
    {"SystemFileAssociations", Covers::KeyAndNext},
    {"TypeLib", Covers::Key},
    {"Unknown", Covers::KeyAndNext},
    {"batfile", Covers::KeyAndNext},
    {"batfile\\shell\\open", Covers::Tree},
    {"cmdfile", Covers::KeyAndNext},
    {"cmdfile\\shell\\open", Covers::Tree},
    {"comfile", Covers::KeyAndNext},
    {"comfile\\shell\\open", Covers::Tree},
    {"dllfile", Covers::KeyAndNext},
    {"exefile", Covers::KeyAndNext},
    {"exefile\\shell\\open", Covers::Tree},
    {"http", Covers::KeyAndNext},
    {"https", Covers::KeyAndNext},
    {"lnkfile", Covers::KeyAndNext},
    {"lnkfile\\shell\\open", Covers::Tree},
    {"regfile", Covers::KeyAndNext},
    {"regfile\\shell\\open", Covers::Tree},
    {"scrfile", Covers::KeyAndNext},
    {"scrfile\\shell\\open", Covers::Tree},
    {"txtfile", Covers::KeyAndNext},
    {".bat", Covers::Tree},
    {".cmd", Covers::Tree},
    {".com", Covers::Tree},
    {".dll", Covers::Tree},
    {".exe", Covers::Tree},
    {".htm", Covers::Key},
    {".html", Covers::Key},
    {".lnk", Covers::Tree},
    {".reg", Covers::Tree},
    {".scr", Covers::Tree},
    {".txt", Covers::Key},
};

// The classes of many files at once, whose own commands and extensions are below them.
constexpr const char* kClassesOfMany[] = {"*", "AllFilesystemObjects", "Directory", "Drive",
                                          "Folder"};
constexpr Rule kClassOfMany[] = {
    {"", Covers::KeyAndNext},
    {"shellex\\*", Covers::Key},
    {"Background", Covers::KeyAndNext},
    {"Background\\shellex\\*", Covers::Key},
};

// Below HKEY_CURRENT_USER and below each user of HKEY_USERS.
constexpr Rule kUser[] = {
    {"", Covers::Key},
    {"AppEvents", Covers::KeyAndNext},
    {"AppEvents\\Schemes\\Apps", Covers::Key},
    {"Console", Covers::Key},
    {"Control Panel", Covers::Tree},
    {"Environment", Covers::Tree},
    {"Identities", Covers::Tree},
    {"Keyboard Layout", Covers::Tree},
    {"Network", Covers::Tree},
    {"Printers", Covers::Tree},
    {"System", Covers::Tree},
    {"Volatile Environment", Covers::Tree},
};

// A slash is a letter of a key's name.
Parts PartsOf(std::string_view key)
{
    return PathParts(key, "\\");
}

bool BeginsWith(const Parts& key, const Parts& pattern)
{
    return key.size() >= pattern.size() && std::equal(pattern.begin(), pattern.end(), key.begin(),
                                                      [](const Text& wanted, const Text& name) {
                                                          return wanted == "*" ||
                                                                 EqualIgnoreCase(wanted, name);
                                                      });
}

bool IsCovered(const Parts& key, const Rule& rule)
{
    const Parts pattern = PartsOf(rule.key);
    if (!BeginsWith(key, pattern))
        return false;
    const std::size_t below = key.size() - pattern.size();
    return rule.covers == Covers::Tree || below <= (rule.covers == Covers::KeyAndNext ? 1U : 0U);
}

bool IsCoveredByAny(const Parts& key, std::span<const Rule> rules)
{
    return std::any_of(rules.begin(), rules.end(),
                       [&](const Rule& rule) { return IsCovered(key, rule); });
}

void Drop(Parts& key, std::size_t count)
{
    key.erase(key.begin(), key.begin() + static_cast<std::ptrdiff_t>(count));
}

bool TakesFirst(Parts& key, std::string_view name)
{
    if (key.empty() || !EqualIgnoreCase(key[0], name))
        return false;
    Drop(key, 1);
    return true;
}

// The part for 32-bit programs has the same keys once more below this name.
void ForgetWow64(Parts& key)
{
    if (!key.empty() && EqualIgnoreCase(key[0], "Wow6432Node"))
        Drop(key, 1);
}

bool IsProtectedClass(Parts key)
{
    ForgetWow64(key);
    for (const char* name : kClassesOfMany)
        if (TakesFirst(key, name))
            return IsCoveredByAny(key, kClassOfMany);
    return IsCoveredByAny(key, kClasses);
}

bool IsProtectedSoftware(Parts key)
{
    ForgetWow64(key);
    if (TakesFirst(key, "Classes"))
        return IsProtectedClass(std::move(key));
    return IsCoveredByAny(key, kSoftware);
}

bool IsProtectedUserKey(Parts key)
{
    if (TakesFirst(key, "Software"))
        return IsProtectedSoftware(std::move(key));
    return IsCoveredByAny(key, kUser);
}

// "ControlSet001" and its like are what "CurrentControlSet" stands for.
void UseCurrentControlSet(Parts& key)
{
    const Text name = key.size() > 1 ? UpperCase(key[1]) : Text();
    constexpr std::string_view kSet = "CONTROLSET";
    if (name.starts_with(kSet) && IsDigits(std::string_view(name).substr(kSet.size())))
        key[1] = "CurrentControlSet";
}

bool IsInOwnPlace(const Parts& key)
{
    const Parts services = PartsOf(kServices);
    if (BeginsWith(key, services)) {
        Parts service = key;
        Drop(service, services.size());
        if (IsCoveredByAny(service, kSystemServices))
            return false;
    }
    return std::any_of(std::begin(kOwnPlaces), std::end(kOwnPlaces), [&](const char* place) {
        const Parts parts = PartsOf(place);
        return key.size() > parts.size() && BeginsWith(key, parts);
    });
}

bool IsProtectedMachineKey(Parts key)
{
    if (TakesFirst(key, "SOFTWARE"))
        return IsProtectedSoftware(std::move(key));
    UseCurrentControlSet(key);
    return key.empty() || (IsCoveredByAny(key, kMachine) && !IsInOwnPlace(key));
}

} // namespace

bool IsProtectedKey(const RegistryKey& key)
{
    Parts parts = PartsOf(key.subKey);
    switch (key.root) {
    case RegistryRoot::ClassesRoot:
        return IsProtectedClass(std::move(parts));
    case RegistryRoot::CurrentUser:
        return IsProtectedUserKey(std::move(parts));
    case RegistryRoot::LocalMachine:
        return IsProtectedMachineKey(std::move(parts));
    case RegistryRoot::Users:
        if (parts.empty())
            return true;
        if (UpperCase(parts[0]).ends_with("_CLASSES")) {
            Drop(parts, 1);
            return IsProtectedClass(std::move(parts));
        }
        Drop(parts, 1);
        return IsProtectedUserKey(std::move(parts));
    case RegistryRoot::CurrentConfig:
    case RegistryRoot::DynData:
        break;
    }
    return true; // what the hardware is
}

} // namespace quillon
