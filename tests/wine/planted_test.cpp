// Libraries that were put beside the programs under the names of the system's own: none of the
// programs loads them.
#include "runtime/pages/page.h"
#include "wine/driven_setup.h"
#include "wine/package.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

// What the programs and the system's libraries below them import or load by name on some Windows or
// on Wine. Missing are kernel32 and what it rests on, and the C library: Windows takes those from
// its own folder always.
// clang-format off
constexpr const char* kNames[] = {
    "actxprxy", "advapi32", "apphelp", "atl", "audioses", "avrt", "bcrypt", "bcryptprimitives",
    "browcli", "cabinet", "cfgmgr32", "clbcatq", "combase", "comctl32", "comdlg32", "comres",
    "coremessaging", "coreuicomponents", "crypt32", "cryptbase", "cryptsp", "cscapi", "d2d1",
    "davhlpr", "dbgcore", "dbghelp", "devenum", "devobj", "dhcpcsvc", "dnsapi", "drprov", "dsound",
    "dui70", "duser", "dwmapi", "dwrite", "edputil", "explorerframe", "fltlib", "gdi32", "gdiplus",
    "gpapi", "hid", "iertutil", "imm32", "iphlpapi", "kernel.appcore", "ksuser", "linkinfo", "lpk",
    "mciqtz32", "mciseq", "mciwave", "mlang", "mmdevapi", "mpr", "msacm32", "msacm32.drv", "mscms", "mscoree",
    "mscoreei", "msctf", "msdmo", "msftedit", "msimg32", "msls31", "mssprxy", "msxml3", "ncrypt",
    "netapi32", "nsi", "ntasn1", "ntdsapi", "ntlanman", "ntmarta", "ntshrui", "ole32", "oleacc",
    "oleaccrc", "oleaut32", "powrprof", "profapi", "propsys", "psapi", "quartz", "riched20",
    "riched32", "rpcrt4", "rpcrtremote", "rsaenh", "rstrtmgr", "samcli", "sechost", "secur32",
    "setupapi", "sfc", "sfc_os", "shcore", "shell32", "shfolder", "shlwapi", "slc", "srvcli",
    "sspicli", "sxs", "textinputframework", "textshaping", "thumbcache", "twinapi",
    "twinapi.appcore", "umpdc", "urlmon", "user32", "userenv", "usp10", "uxtheme", "version",
    "win32u", "winbrand", "windows.storage", "wdmaud.drv", "windowscodecs", "wininet", "winmm", "winmmbase",
    "winnsi", "winspool.drv", "winsta", "wintrust", "wkscli", "wlanapi", "wldp", "ws2_32", "wsock32",
    "wtsapi32", "xmllite",
};
// clang-format on

void PlantIn(const fs::path& folder)
{
    for (const std::string name : kNames)
        fs::copy_file(TestProgramFolder() / "planted.dll",
                      folder / (name.ends_with(".drv") ? name : name + ".dll"),
                      fs::copy_options::skip_existing);
}

// The names that were loaded, one after the other.
std::string Loaded(const WinePrefix& prefix)
{
    std::string names;
    const fs::path notes = prefix.OnHost("C:\\planted");
    if (fs::exists(notes))
        for (const auto& entry : fs::directory_iterator(notes))
            names += entry.path().filename().string() + " ";
    return names;
}

TEST(PlantedLibraries, TellWhenTheyAreLoaded)
{
    const WinePrefix prefix;
    const fs::path folder = WorkFolder() / "planterat";
    fs::create_directory(folder);
    PlantIn(folder);
    fs::copy_file(TestProgramFolder() / "canary.exe", folder / "canary.exe");
    prefix.Run(OnZ(folder / "canary.exe"), R"(C:\a.txt 5)");
    EXPECT_NE(Loaded(prefix), "") << "a program that does not say where to look takes them";
}

TEST(PlantedLibraries, AreNotTakenBySetupAndUninstaller)
{
    SampleProduct product;
    // A registered file brings the helper, too.
    product.Add("Data", "server.dll", ReadBytes(TestProgramFolder() / "crashing_server.dll"), "R");
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    PlantIn(package);
    const WinePrefix prefix;
    const fs::path temp = prefix.OnHost("C:\\windows\\temp");
    PlantIn(temp);
    for (const auto& user : fs::directory_iterator(prefix.OnHost("C:\\users")))
        for (const char* below : {"Temp", "AppData/Local/Temp"})
            if (fs::is_directory(user.path() / below))
                PlantIn(user.path() / below);
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    EXPECT_EQ(Loaded(prefix), "");

    const fs::path mainFolder = prefix.OnHost("C:\\Program Files\\Provpaket Åäö");
    PlantIn(mainFolder);
    const auto uninstall = RegistryText(prefix).Value(
        "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Provpaket Åäö",
        "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());
    EXPECT_EQ(prefix.RunCommandLine(*uninstall), 0U);
    prefix.WaitForAll();
    EXPECT_FALSE(fs::exists(mainFolder / "QNXUNIN.EXE"));
    EXPECT_EQ(Loaded(prefix), "");
}

TEST(PlantedLibraries, AreNotTakenByASelfExtractingProgram)
{
    if (WineBits() == 64)
        GTEST_SKIP() << "the program is made for 32-bit Windows alone";
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "internet"}));
    PlantIn(package);
    const WinePrefix prefix;
    PlantIn(prefix.OnHost("C:\\windows\\temp"));
    EXPECT_EQ(prefix.Run(OnZ(package / "self.exe"), "/S"), 0U);
    EXPECT_EQ(Loaded(prefix), "");
}

// A tone of one second: 8 bits, 8000 times in it.
std::string ToneFile()
{
    const auto bytes = [](unsigned number, int size) {
        std::string text;
        for (int i = 0; i < size; ++i)
            text += static_cast<char>(number >> (8 * i) & 0xFFU);
        return text;
    };
    constexpr unsigned kRate = 8000;
    std::string samples;
    for (unsigned i = 0; i < kRate; ++i)
        samples += static_cast<char>(i / 10 % 2 == 0 ? 0x70 : 0x90);
    return "RIFF" + bytes(36 + kRate, 4) + "WAVEfmt " + bytes(16, 4) + bytes(1, 2) + bytes(1, 2) +
           bytes(kRate, 4) + bytes(kRate, 4) + bytes(1, 2) + bytes(8, 2) + "data" +
           bytes(kRate, 4) + samples;
}

// The pages bring the common controls, the rich text control and the system's dialogs, the screen
// the decoders of pictures and the players of sounds.
TEST(PlantedLibraries, AreNotTakenByThePagesAndTheScreen)
{
    SampleProduct product;
    product.project.DialogBoxes.LicenseInfoRtfDlg = 1;
    product.project.DialogBoxData.LicenseFilenameRtf = "S:\\avtal.rtf";
    WriteBytes(product.Drive() / "fanfar.wav", ToneFile());
    product.project.DesSound.BackSoundFilename = "s:\\fanfar.wav";
    WriteBytes(product.Drive() / "avtal.rtf", "{\\rtf1\\ansi Vi \\b lovar\\b0  inget.}");
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    PlantIn(package);
    const WinePrefix prefix;
    UseNoScreen(prefix);
    PlantIn(prefix.OnHost("C:\\windows\\temp"));
    const fs::path driver = WorkFolder() / "drive_setup.exe";
    fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver, fs::copy_options::skip_existing);
    WriteBytes(prefix.DriveC() / "script.txt",
               "run \"" + OnZ(package / "SETUP.EXE") + "\"\npage Välkommen\npress 1\n" +
                   "page Licensinformation\nread " +
                   std::to_string(100 + static_cast<int>(PageField::Agreement)) +
                   "\npress 2\nbox 6\nend\n");
    EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
    const std::string driven = ReadBytes(prefix.DriveC() / "driven.txt");
    EXPECT_NE(driven.find("Vi lovar inget."), std::string::npos) << driven;
    EXPECT_NE(driven.find("code 1602"), std::string::npos) << driven;
    EXPECT_EQ(Loaded(prefix), "");
}

// The Restart Manager is asked about a file that is held, the system's dialog for a folder is
// opened, a .NET Framework is looked for; and names lie in the private folder and in the product's,
// too.
TEST(PlantedLibraries, AreNotTakenWithTheRestartManagerAndTheDialogs)
{
    SampleProduct product;
    product.Add("Data", "hållen.txt", "is held");
    product.project.DialogBoxes.DestinationDlg = 1;
    product.project.NET.NET_TestIfInstalled = kOn;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    const WinePrefix prefix;
    UseNoScreen(prefix);
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    fs::create_directory(prefix.DriveC() / "names");
    for (const fs::path& folder :
         {package, prefix.OnHost("C:\\windows\\temp"), prefix.DriveC() / "names",
          prefix.OnHost("C:\\Program Files\\Provpaket Åäö")})
        PlantIn(folder);
    const fs::path driver = WorkFolder() / "drive_setup.exe";
    fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver, fs::copy_options::skip_existing);
    WriteBytes(prefix.DriveC() / "script.txt",
               "hold C:\\Program Files\\Provpaket Åäö\\Data\\hållen.txt\nrun \"" +
                   OnZ(package / "SETUP.EXE") +
                   "\"\nbox 6\npage Välkommen\nplant C:\\names\npress 1\npage Destinationsmapp\n"
                   "press 112\nbox 2\npage Destinationsmapp\npress 1\npage Komponenter\npress 1\n"
                   "box 7\nbox 2\nend\n");
    EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
    const std::string driven = ReadBytes(prefix.DriveC() / "driven.txt");
    EXPECT_NE(driven.find("De här filerna används av ett program"), std::string::npos) << driven;
    EXPECT_NE(driven.find("hållen.txt' används av ett program och kan inte skrivas"),
              std::string::npos)
        << driven;
    EXPECT_NE(driven.find("code 20003"), std::string::npos) << driven;
    EXPECT_EQ(Loaded(prefix), "");
}

TEST(PlantedLibraries, AreNotTakenByTheWindowsOfTheUninstaller)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    const WinePrefix prefix;
    UseNoScreen(prefix);
    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const fs::path mainFolder = prefix.OnHost("C:\\Program Files\\Provpaket Åäö");
    PlantIn(mainFolder);
    PlantIn(prefix.OnHost("C:\\windows\\temp"));
    const fs::path driver = WorkFolder() / "drive_setup.exe";
    fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver, fs::copy_options::skip_existing);
    WriteBytes(
        prefix.DriveC() / "script.txt",
        "run \"C:\\Program Files\\Provpaket Åäö\\QNXUNIN.EXE\"\n"
        "list Vill du ta bort Provpaket Åäö från datorn? Det här tas bort:\npress 1\n"
        "list Provpaket Åäö har tagits bort från datorn. Det här finns kvar:\npress 1\nend\n");
    EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
    EXPECT_EQ(ReadBytes(prefix.DriveC() / "driven.txt"), "code 0\n");
    prefix.WaitForAll();
    EXPECT_FALSE(fs::exists(mainFolder / "QNXUNIN.EXE"));
    EXPECT_EQ(Loaded(prefix), "");
}

TEST(PlantedLibraries, AreNotTakenByTheHelpersAndByATest)
{
    const WinePrefix prefix;
    const fs::path folder = WorkFolder() / "hjälpare";
    fs::create_directory(folder);
    PlantIn(folder);
    for (const char* program : {"QNREG32.EXE", "QNXREG2.EXE", "Small32/QNS32X.EXE"})
        fs::copy_file(RuntimeFolder() / program, folder / fs::path(program).filename());
    fs::copy_file(TestProgramFolder() / "crashing_server.dll", folder / "server.dll");
    const std::string server = " \"" + OnZ(folder / "server.dll") + '"';
    EXPECT_EQ(prefix.Run(OnZ(folder / "QNREG32.EXE"), server), 0U);
    EXPECT_EQ(prefix.Run(OnZ(folder / "QNXREG2.EXE"), server + " C:\\none.dll"), 1U);
    EXPECT_EQ(prefix.Run(OnZ(folder / "QNS32X.EXE"), "/TEST /S"), 1603U);
    EXPECT_EQ(Loaded(prefix), "");
}

TEST(PlantedLibraries, AreNotTakenWhereTheSystemCanNotBeToldWhereToLook)
{
    const WinePrefix prefix;
    const fs::path folder = WorkFolder() / "äldre system";
    fs::create_directory(folder);
    PlantIn(folder);
    fs::copy_file(TestProgramFolder() / "common_libraries.exe", folder / "common_libraries.exe");
    EXPECT_EQ(prefix.Run(OnZ(folder / "common_libraries.exe")), 0U);
    EXPECT_EQ(Loaded(prefix), "");
}

} // namespace
} // namespace quillon::test
