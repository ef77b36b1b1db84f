#include "runtime/registry/protected_keys.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

RegistryKey KeyOf(const Text& path)
{
    const std::size_t end = std::min(path.find('\\'), path.size());
    const auto root = RootNamed(path.substr(0, end));
    EXPECT_TRUE(root) << path;
    return {root.value_or(RegistryRoot::CurrentUser),
            end < path.size() ? path.substr(end + 1) : Text()};
}

} // namespace

TEST(ProtectedKeys, AreThoseThatOthersLiveIn)
{
    for (const char* path : {
             "HKCR",
             "HKCU",
             "HKLM",
             "HKU",
             "HKCC",
             "HKDD",
             "HKCC\\System",
             "HKLM\\Software",
             "HKLM\\SOFTWARE\\Classes",
             "HKLM\\software\\microsoft",
             "HKLM\\SOFTWARE\\Microsoft\\Windows",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\SharedDLLs",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Policies\\System",
             "HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Winlogon",
             "HKLM\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\ProfileList\\S-1-5-18",
             "HKLM\\SOFTWARE\\Microsoft\\Cryptography\\Defaults\\Provider",
             "HKLM\\SOFTWARE\\Microsoft\\Vad som helst",
             "HKLM\\SOFTWARE\\Policies\\Microsoft\\Windows",
             "HKLM\\SOFTWARE\\Clients\\Mail",
             "HKLM\\SOFTWARE\\ODBC\\ODBC.INI",
             "HKLM\\SOFTWARE\\Wow6432Node",
             "HKLM\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run",
             "HKLM\\SOFTWARE\\Wow6432Node\\Classes\\CLSID",
             "HKLM\\SYSTEM",
             "HKLM\\SYSTEM\\Setup",
             "HKLM\\System\\CurrentControlSet\\Control\\Session Manager",
             "HKLM\\SYSTEM\\ControlSet001\\Services",
             "HKLM\\SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters",
             "HKLM\\SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application",
             "HKLM\\SYSTEM\\CurrentControlSet\\Enum\\ROOT",
             "HKLM\\HARDWARE\\DESCRIPTION",
             "HKLM\\SAM",
             "HKCR\\CLSID",
             "HKCR\\*",
             "HKCR\\*\\shellex",
             "HKCR\\*\\shellex\\ContextMenuHandlers",
             "HKCR\\Directory\\Background\\shell",
             "HKCR\\.exe",
             "HKCR\\exefile\\shell\\open\\command",
             "HKCU\\Software",
             "HKCU\\Software\\Classes",
             "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
             "HKCU\\Control Panel\\Desktop",
             "HKCU\\Environment",
             "HKU\\.DEFAULT",
             "HKU\\S-1-5-21-1\\Software\\Microsoft",
             "HKU\\S-1-5-21-1_Classes",
             "HKU\\S-1-5-21-1_Classes\\CLSID",
         })
        EXPECT_TRUE(IsProtectedKey(KeyOf(path))) << path;
}

TEST(ProtectedKeys, LeaveAProductItsOwn)
{
    for (const char* path : {
             "HKLM\\SOFTWARE\\Firma",
             "HKLM\\SOFTWARE\\Wow6432Node\\Firma",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\prog.exe",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Prog",
             "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Desktop\\Prog",
             "HKLM\\SOFTWARE\\Microsoft\\Office\\Word\\Addins\\Prog",
             "HKLM\\SOFTWARE\\Microsoft\\Internet Explorer\\Extensions\\{1}",
             "HKLM\\SOFTWARE\\Clients\\Mail\\Prog",
             "HKLM\\SOFTWARE\\ODBC\\ODBC.INI\\Prog",
             "HKLM\\SYSTEM\\CurrentControlSet\\Services\\Prog",
             "HKLM\\SYSTEM\\ControlSet002\\Services\\Prog\\Parameters",
             "HKLM\\SYSTEM\\CurrentControlSet\\Services\\EventLog\\Application\\Prog",
             "HKCR\\.prog",
             "HKCR\\Prog.Document",
             "HKCR\\CLSID\\{1}",
             "HKCR\\*\\shell\\Öppna med Prog",
             "HKCR\\Directory\\shellex\\ContextMenuHandlers\\Prog",
             "HKCR\\txtfile\\shell\\Prog",
             "HKCU\\Firma\\Prog",
             "HKCU\\Software\\Firma",
             "HKCU\\AppEvents\\Schemes\\Apps\\Prog",
             "HKU\\.DEFAULT\\Software\\Firma",
             "HKU\\S-1-5-21-1_Classes\\CLSID\\{1}",
         })
        EXPECT_FALSE(IsProtectedKey(KeyOf(path))) << path;
}

} // namespace quillon
