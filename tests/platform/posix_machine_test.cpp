#include "platform/posix/posix_host.h"

#include "platform/missing_program.h"

#include "platform/posix/start_program.h"
#include "platform/posix/text_editor.h"
#include "platform/run_error.h"
#include "support/temp_folder.h"

#include <cstdlib>
#ifdef QUILLON_SANITIZED
#include <sanitizer/lsan_interface.h>
#endif
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quillon {
namespace {

class PosixMachineTest : public testing::Test {
protected:
    test::TempFolder disk;

    MachineSettings Settings() const
    {
        MachineSettings settings;
        settings.drives = {{'Z', "/"}, {'C', disk.Path("c")}, {'S', disk.Path()}};
        settings.tempFolder = disk.Path("tmp");
        settings.user = "ulla";
        settings.fullName = "Ulla Ek";
        return settings;
    }
};

TEST_F(PosixMachineTest, MakesTheFoldersOfDriveCOnFirstUse)
{
    PosixHost host(Settings());
    for (const char* folder :
         {"c/Windows", "c/Windows/System32", "c/Windows/Fonts", "c/Mina dokument"})
        EXPECT_TRUE(disk.Has(folder)) << folder;
    EXPECT_EQ(host.machine.GetWindowsDir(), "C:\\Windows");
    EXPECT_EQ(host.machine.GetSystemDir(), "C:\\Windows\\System32");
    EXPECT_EQ(host.machine.GetMyDocumentsDir(), "C:\\Mina dokument");
    EXPECT_EQ(host.machine.GetTempDir(), "S:\\tmp");
}

TEST_F(PosixMachineTest, SaysThatDriveCCannotBeMade)
{
    MachineSettings settings = Settings();
    EXPECT_TRUE(PosixHost(settings).complaints.empty());
    disk.Put("file", "no folder");
    settings.drives[1].folder = disk.Path("file") + "/c";
    const PosixHost host(settings);
    ASSERT_EQ(host.complaints.size(), 1U);
    EXPECT_EQ(host.complaints[0], "Enheten C: kan ej skapas i '" + disk.Path("file") +
                                      "/c'; ange en annan katalog med QUILLON_DRIVE_C.");
    EXPECT_EQ(host.machine.GetSystemDir(), "");
}

TEST_F(PosixMachineTest, HasNoFoldersThatAreNotThere)
{
    PosixHost host(Settings());
    EXPECT_EQ(host.machine.GetProgramFilesDir(), "");
    EXPECT_EQ(host.machine.GetSysAppDataDirectory(), "");
    EXPECT_EQ(host.machine.GetSysLocalAppDataDirectory(), "");
    EXPECT_EQ(host.machine.GetSysTemplatesDirectory(), "");
}

TEST_F(PosixMachineTest, TakesDriveCFromAnotherSystemAsItIs)
{
    disk.PutFolder("c/windows/system32");
    disk.PutFolder("c/users/ulla/Documents");
    disk.PutFolder("c/users/ulla/AppData/Roaming/Microsoft/Windows/Templates");
    disk.PutFolder("c/users/ulla/AppData/Local");
    disk.PutFolder("c/Program Files");
    PosixHost host(Settings());
    EXPECT_FALSE(disk.Has("c/Windows"));
    EXPECT_FALSE(disk.Has("c/Mina dokument"));
    EXPECT_EQ(host.machine.GetMyDocumentsDir(), "C:\\Users\\ulla\\Documents");
    EXPECT_EQ(host.machine.GetProgramFilesDir(), "C:\\Program Files");
    EXPECT_EQ(host.machine.GetSysAppDataDirectory(), "C:\\Users\\ulla\\AppData\\Roaming");
    EXPECT_EQ(host.machine.GetSysLocalAppDataDirectory(), "C:\\Users\\ulla\\AppData\\Local");
    EXPECT_EQ(host.machine.GetSysTemplatesDirectory(),
              "C:\\Users\\ulla\\AppData\\Roaming\\Microsoft\\Windows\\Templates");
}

TEST_F(PosixMachineTest, KeepsSettingsWhereTheUserHasThem)
{
    MachineSettings settings = Settings();
    settings.settingsFolder = disk.Path("config/quillon");
    PosixHost host(settings);
    EXPECT_EQ(host.machine.GetSettingsDir(), "S:\\config\\quillon");
    EXPECT_FALSE(disk.Has("config")) << "the first one to write makes it";
    EXPECT_EQ(PosixHost(Settings()).machine.GetSettingsDir(), "");
}

TEST_F(PosixMachineTest, GoesOnWhereDriveCCannotBeMade)
{
    disk.Put("c", "a file stands in its way");
    PosixHost host(Settings());
    EXPECT_EQ(host.machine.GetWindowsDir(), "");
    EXPECT_TRUE(host.files.FileExists("S:\\c"));
}

TEST_F(PosixMachineTest, ReadsTheRegistryAndTellsOfFilesThatItCannotRead)
{
    disk.Put("a.reg", "REGEDIT4\n[HKEY_LOCAL_MACHINE\\k]\n\"v\"=\"" + Text(2000, 'x') + "\"\n");
    disk.Put("b.reg", "no export");
    MachineSettings settings = Settings();
    settings.registryFiles = {disk.Path("a.reg"), disk.Path("b.reg"), disk.Path("c.reg")};
    PosixHost host(settings);
    EXPECT_EQ(host.machine.GetRegKeyStr(RegistryRoot::LocalMachine, "K", "V"), Text(1024, 'x'));
    EXPECT_EQ(host.machine.GetRegKeyStr(RegistryRoot::LocalMachine, "K", "W"), "");
    ASSERT_EQ(host.complaints.size(), 2U);
    EXPECT_EQ(host.complaints[0],
              "QUILLON_REGISTRY: '" + disk.Path("b.reg") +
                  "' är ingen registerexport; första raden ska vara REGEDIT4 eller Windows "
                  "Registry Editor Version 5.00.");
    EXPECT_EQ(host.complaints[1],
              "QUILLON_REGISTRY: '" + disk.Path("c.reg") + "' kan ej läsas (Fel #53).");
}

TEST_F(PosixMachineTest, KnowsTheOwnerFromTheRegistryElseFromTheSystem)
{
    EXPECT_EQ(PosixHost(Settings()).machine.GetWindowsRegisteredOwner().owner, "Ulla Ek");
    disk.Put("a.reg",
             "REGEDIT4\n[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion]\n"
             "\"RegisteredOwner\"=\"Bo\"\n\"RegisteredOrganization\"=\"Firma AB\"\n");
    MachineSettings settings = Settings();
    settings.registryFiles = {disk.Path("a.reg")};
    const RegisteredOwner owner = PosixHost(settings).machine.GetWindowsRegisteredOwner();
    EXPECT_EQ(owner.owner, "Bo");
    EXPECT_EQ(owner.organization, "Firma AB");
}

TEST_F(PosixMachineTest, CutsOwnerAndOrganizationAt256Characters)
{
    disk.Put("a.reg",
             "REGEDIT4\n[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion]\n"
             "\"RegisteredOwner\"=\"" +
                 std::string(300, 'o') + "\"\n\"RegisteredOrganization\"=\"" +
                 std::string(300, 'f') + "\"\n");
    MachineSettings settings = Settings();
    settings.registryFiles = {disk.Path("a.reg")};
    const RegisteredOwner owner = PosixHost(settings).machine.GetWindowsRegisteredOwner();
    EXPECT_EQ(owner.owner, Text(256, 'o'));
    EXPECT_EQ(owner.organization, Text(256, 'f'));
    settings.registryFiles.clear();
    settings.fullName = Text(300, 'n');
    EXPECT_EQ(PosixHost(settings).machine.GetWindowsRegisteredOwner().owner, Text(256, 'n'));
}

TEST_F(PosixMachineTest, DrawsEveryNumberBelowTheLimitAndNoOther)
{
    PosixHost host(Settings());
    std::map<std::uint32_t, int> drawn;
    for (int i = 0; i < 2000; ++i)
        ++drawn[host.machine.Random(7)];
    EXPECT_EQ(drawn.size(), 7U);
    EXPECT_EQ(drawn.rbegin()->first, 6U);
    EXPECT_EQ(host.machine.Random(1), 0U);
    EXPECT_EQ(host.machine.Random(0), 0U);
}

TEST_F(PosixMachineTest, TakesTheDecimalSignFromTheUsersLocaleAndLeavesTheProcessAlone)
{
    PosixHost host(Settings());
    setenv("LC_ALL", "C", 1);
    EXPECT_EQ(host.machine.DecimalSign(), '.');
    setenv("LC_ALL", "no_such_locale", 1);
    EXPECT_EQ(host.machine.DecimalSign(), '.');
    unsetenv("LC_ALL");
    EXPECT_EQ(std::to_string(0.5), "0.500000");
}

TEST_F(PosixMachineTest, KnowsADecimalComma)
{
    // A locale with a decimal comma and no other property, in the form that the C library compiles
    // one to: header, where each of its six fields begins, the fields. The machine need not have
    // one installed.
    constexpr std::string_view kNumbersWithComma(
        "\x14\x11\x03\x20\x06\0\0\0"
        "\x20\0\0\0\x22\0\0\0\x23\0\0\0\x24\0\0\0\x28\0\0\0\x2C\0\0\0"
        ",\0\0\0,\0\0\0\0\0\0\0ANSI_X3.4-1968\0",
        59);
    disk.Put("locales/comma/LC_NUMERIC", std::string(kNumbersWithComma));
#ifdef QUILLON_SANITIZED
    // The C library never frees its own copy of LOCPATH.
    const __lsan::ScopedDisabler leaksOfTheLibrary;
#endif
    PosixHost host(Settings());
    setenv("LOCPATH", disk.Path("locales").c_str(), 1);
    setenv("LC_ALL", "comma", 1);
    EXPECT_EQ(host.machine.DecimalSign(), ',');
    unsetenv("LC_ALL");
    unsetenv("LOCPATH");
    EXPECT_EQ(host.machine.DecimalSign(), '.');
}

/// Waits, as long as it takes, for what a program of the test writes into a pipe.
std::string ReadPipe(const std::string& path)
{
    const int pipe = open(path.c_str(), O_RDONLY);
    std::string text;
    char character = 0;
    while (read(pipe, &character, 1) == 1)
        text += character;
    close(pipe);
    return text;
}

TEST_F(PosixMachineTest, StartsAProgramWithItsArguments)
{
    disk.Put("Prog.sh", "#!/bin/sh\nprintf '%s|' \"$@\" > " + disk.Path("pipe") + "\n");
    chmod(disk.Path("Prog.sh").c_str(), 0700);
    ASSERT_EQ(mkfifo(disk.Path("pipe").c_str(), 0600), 0);
    PosixHost host(Settings());
    host.machine.StartProgram("S:\\PROG.SH", "one \"two three\" /x:\\\"q\\\"");
    EXPECT_EQ(ReadPipe(disk.Path("pipe")), "one|two three|/x:\"q\"|");
}

class PathVariable {
public:
    explicit PathVariable(const std::string& path) : before_(std::getenv("PATH"))
    {
        setenv("PATH", path.c_str(), 1);
    }
    ~PathVariable() { setenv("PATH", before_.c_str(), 1); }

private:
    std::string before_;
};

TEST_F(PosixMachineTest, StartsAWindowsProgramByWineAndADocumentByTheDesktop)
{
    for (const char* starter : {"bin/wine", "bin/xdg-open"}) {
        disk.Put(starter, "#!/bin/sh\necho \"$0 $*\" > " + disk.Path("pipe") + "\n");
        chmod(disk.Path(starter).c_str(), 0700);
    }
    disk.Put("Setup.Exe", "MZ");
    disk.Put("Help.txt", "");
    ASSERT_EQ(mkfifo(disk.Path("pipe").c_str(), 0600), 0);
    PosixHost host(Settings());
    const PathVariable path(disk.Path("bin"));
    host.machine.StartProgram("S:\\setup.exe", "/TEST");
    EXPECT_EQ(ReadPipe(disk.Path("pipe")),
              disk.Path("bin/wine") + " " + disk.Path("Setup.Exe") + " /TEST\n");
    host.machine.OpenDocument("S:\\help.TXT");
    EXPECT_EQ(ReadPipe(disk.Path("pipe")),
              disk.Path("bin/xdg-open") + " " + disk.Path("Help.txt") + "\n");
    host.machine.OpenDocument("https://example.org/a b");
    EXPECT_EQ(ReadPipe(disk.Path("pipe")),
              disk.Path("bin/xdg-open") + " https://example.org/a b\n");
    disk.Put("support.url", "[InternetShortcut]\r\nURL=mailto:a@example.org\r\n");
    host.machine.OpenDocument("S:\\Support.URL");
    EXPECT_EQ(ReadPipe(disk.Path("pipe")), disk.Path("bin/xdg-open") + " mailto:a@example.org\n");
    disk.Put("support.url", "[InternetShortcut]\r\nURL=--help\r\n");
    host.machine.OpenDocument("S:\\support.url");
    EXPECT_EQ(ReadPipe(disk.Path("pipe")),
              disk.Path("bin/xdg-open") + " " + disk.Path("support.url") + "\n");
}

class EditedTexts : public PosixMachineTest {
protected:
    EditedTexts()
    {
        for (const char* program : {"xdg-open", "pen", "x-terminal-emulator"})
            PutProgram(program, "for word; do printf '%s|' \"$word\"; done > " + disk.Path("pipe"));
        disk.Put("NORSK.LNG", "; Tekster\n[Setup]\nTitle=Installasjon av %1\n");
        mkfifo(disk.Path("pipe").c_str(), 0600);
        setenv("XDG_DATA_HOME", disk.Path("home").c_str(), 1);
        setenv("XDG_DATA_DIRS", disk.Path("share").c_str(), 1);
    }
    ~EditedTexts() override
    {
        unsetenv("XDG_DATA_HOME");
        unsetenv("XDG_DATA_DIRS");
    }
    /// A program that writes its own name first, then what the lines print.
    void PutProgram(const std::string& name, const std::string& lines)
    {
        const std::string own = "set -- " + name + " \"$@\"\n";
        disk.Put("bin/" + name, "#!/bin/sh\n" + own + lines + "\n");
        chmod(disk.Path("bin/" + name).c_str(), 0700);
    }
    /// Has the desktop answer so when it is asked for the editor of plain texts.
    void ChooseEditor(const std::string& entry)
    {
        PutProgram("xdg-mime", "[ \"$2 $3 $4\" = 'query default text/plain' ] && echo " + entry);
    }
    std::string Edit()
    {
        PosixHost host(Settings());
        const PathVariable path(disk.Path("bin"));
        host.machine.EditTextFile("S:\\norsk.lng");
        return ReadPipe(disk.Path("pipe"));
    }

    const std::string file = disk.Path("NORSK.LNG");
};

TEST_F(EditedTexts, OpenInTheEditorThatTheUserHasForTexts)
{
    ChooseEditor("a-pen.desktop");
    disk.Put("share/applications/a/pen.desktop", "[Desktop Entry]\nExec=pen --new %F\n");
    EXPECT_EQ(Edit(), "pen|--new|" + file + "|");
    disk.Put("home/applications/a-pen.desktop", "[Desktop Entry]\nExec=pen\nTerminal=true\n");
    EXPECT_EQ(Edit(), "x-terminal-emulator|-e|pen|" + file + "|") << "the user's own comes first";
}

TEST_F(EditedTexts, OpenAsDocumentsWhereNoEditorIsChosenOrItCannotBeStarted)
{
    const std::string asDocument = "xdg-open|" + file + "|";
    EXPECT_EQ(Edit(), asDocument) << "there is nobody to ask";
    ChooseEditor("");
    EXPECT_EQ(Edit(), asDocument) << "none is chosen";
    ChooseEditor("pen.desktop");
    EXPECT_EQ(Edit(), asDocument) << "it is not installed";
    for (const char* entry :
         {"", "[Desktop Entry]\nName=Pen\n", "[Desktop Entry]\nExec=quill %f\n",
          "[Desktop Entry]\nExec=/no/such/quill %f\n", "[Other]\nExec=pen %f\n"}) {
        disk.Put("share/applications/pen.desktop", entry);
        EXPECT_EQ(Edit(), asDocument) << entry;
    }
}

TEST_F(EditedTexts, TellWhyTheyCannotBeOpened)
{
    PosixHost host(Settings());
    const PathVariable path(disk.Path("nowhere"));
    const auto failure = [&](const Text& text) {
        return RunErrorNumber([&] { host.machine.EditTextFile(text); });
    };
    EXPECT_EQ(failure("S:\\NORSK.LNG"), 5);
    EXPECT_EQ(failure("S:\\DANSK.LNG"), 53);
    EXPECT_EQ(failure("S:\\Language\\DANSK.LNG"), 76);
}

TEST(CommandOfDesktopEntry, PutsTheFileWhereTheEntryWantsIt)
{
    using Words = std::vector<std::string>;
    const std::pair<const char*, Words> cases[] = {
        {"Exec=ed %f", {"ed", "/a b"}},
        {"Exec=ed %U --wait", {"ed", "/a b", "--wait"}},
        {"Exec = ed %u \r", {"ed", "/a b"}},
        {"Exec=\"/opt/my ed/ed\" %F", {"/opt/my ed/ed", "/a b"}},
        {"Exec=ed --caption %c %i %k", {"ed", "--caption", "/a b"}},
        {"Exec=ed\nTerminal=false", {"ed", "/a b"}},
        {"Exec=vi %f\nTerminal=true", {"x-terminal-emulator", "-e", "vi", "/a b"}},
        {"Exec=ed %f\n[Desktop Action new]\nExec=ed --new", {"ed", "/a b"}},
        {"TryExec=vi\nExec[sv]=si\nExec=ed", {"ed", "/a b"}},
        {"Exec=", {}},
        {"Name=ed", {}},
    };
    for (const auto& [keys, command] : cases)
        EXPECT_EQ(CommandOfDesktopEntry(std::string("[Desktop Entry]\n") + keys, "/a b"), command)
            << keys;
    EXPECT_EQ(CommandOfDesktopEntry("", "/a b"), Words{});
}

TEST_F(PosixMachineTest, TellsWhyAProgramCannotBeStarted)
{
    disk.Put("setup.exe", "MZ");
    disk.Put("plain.txt", "no program");
    PosixHost host(Settings());
    const PathVariable path(disk.Path("nowhere"));
    const auto failure = [&](const Text& program) {
        return RunErrorNumber([&] { host.machine.StartProgram(program, ""); });
    };
    EXPECT_EQ(failure("S:\\missing.exe"), 53);
    EXPECT_EQ(failure("S:\\missing\\a.exe"), 76);
    EXPECT_EQ(failure("S:\\setup.exe"), 5);
    try {
        host.machine.StartProgram("S:\\setup.exe", "");
        ADD_FAILURE() << "there is no Wine";
    } catch (const MissingProgram& missing) {
        EXPECT_EQ(missing.Name(), "Wine");
        EXPECT_EQ(missing.Path(), "S:\\setup.exe");
    }
    EXPECT_EQ(failure("S:\\plain.txt"), 5);
    EXPECT_EQ(RunErrorNumber([&] { host.machine.OpenDocument("S:\\plain.txt"); }), 5);
    EXPECT_EQ(RunErrorNumber([&] { host.machine.OpenDocument("S:\\missing.txt"); }), 53);
}

TEST(SplitArguments, CutsALineAsAWindowsProgramDoes)
{
    using Words = std::vector<std::string>;
    EXPECT_EQ(SplitArguments(""), Words{});
    EXPECT_EQ(SplitArguments("  a \t b "), (Words{"a", "b"}));
    EXPECT_EQ(SplitArguments("\"a b\"c \"\""), (Words{"a bc", ""}));
    EXPECT_EQ(SplitArguments("C:\\dir\\a.txt"), (Words{"C:\\dir\\a.txt"}));
}

TEST(AddDrives, TakesLettersAndTellsOfWhatIsNone)
{
    MachineSettings settings;
    AddDrives("S=/srv/src;;a=/mnt/floppy;C=/c;1=/x;Q;T=", settings);
    ASSERT_EQ(settings.drives.size(), 2U);
    EXPECT_EQ(settings.drives[0].letter, 'S');
    EXPECT_EQ(settings.drives[0].folder, "/srv/src");
    EXPECT_EQ(settings.drives[1].letter, 'a');
    EXPECT_EQ(settings.complaints,
              (std::vector<Text>{
                  "QUILLON_DRIVES: 'C=/c' går ej: C: anges med QUILLON_DRIVE_C, Z: är /.",
                  "QUILLON_DRIVES: '1=/x' är ingen enhet; skriv en bokstav, '=' och en katalog.",
                  "QUILLON_DRIVES: 'Q' är ingen enhet; skriv en bokstav, '=' och en katalog.",
                  "QUILLON_DRIVES: 'T=' är ingen enhet; skriv en bokstav, '=' och en katalog."}));
}

TEST(ReadMachineSettings, FindsDriveCUnderTheUsersDataUnlessItIsNamed)
{
    unsetenv("QUILLON_DRIVE_C");
    setenv("XDG_DATA_HOME", "/data/of/user", 1);
    EXPECT_EQ(ReadMachineSettings().drives[1].folder, "/data/of/user/quillon/drive_c");
    unsetenv("XDG_DATA_HOME");
    const std::string home = std::getenv("HOME");
    EXPECT_EQ(ReadMachineSettings().drives[1].folder, home + "/.local/share/quillon/drive_c");
    setenv("QUILLON_DRIVE_C", "/mnt/c", 1);
    setenv("QUILLON_REGISTRY", "/a.reg;/b.reg", 1);
    EXPECT_EQ(ReadMachineSettings().drives[1].folder, "/mnt/c");
    EXPECT_EQ(ReadMachineSettings().registryFiles.size(), 2U);
    unsetenv("QUILLON_DRIVE_C");
    unsetenv("QUILLON_REGISTRY");
}

/// A home, by the environment, that goes when the test ends.
class HomeOfUser : public testing::Test {
protected:
    HomeOfUser()
    {
        for (const char* name : kNames)
            before_.emplace_back(std::getenv(name) ? std::optional<std::string>(std::getenv(name))
                                                   : std::nullopt);
        setenv("HOME", home.Path().c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
        unsetenv("XDG_DATA_HOME");
        unsetenv("QUILLON_DRIVE_C");
    }
    ~HomeOfUser() override
    {
        for (std::size_t i = 0; i < before_.size(); ++i)
            before_[i] ? setenv(kNames[i], before_[i]->c_str(), 1) : unsetenv(kNames[i]);
    }

    /// Where a path of drive C: lies below the home.
    std::string At(const Text& windowsPath) const
    {
        const MachineSettings settings = ReadMachineSettings();
        const std::string host = *DriveMap(settings.drives, settings.folders).ToHost(windowsPath);
        EXPECT_TRUE(host.starts_with(home.Path() + "/")) << host;
        return host.substr(std::min(host.size(), home.Path().size() + 1));
    }

    test::TempFolder home;
    const Text user = "C:\\Users\\" + ReadMachineSettings().user;

private:
    static constexpr const char* kNames[] = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                             "QUILLON_DRIVE_C"};
    std::vector<std::optional<std::string>> before_;
};

TEST_F(HomeOfUser, LendsItsFoldersToDriveC)
{
    EXPECT_EQ(At("C:\\Mina dokument\\Quillon"), "Documents/Quillon");
    EXPECT_EQ(At(user + "\\Desktop"), "Desktop");
    EXPECT_EQ(At(user + "\\AppData\\Roaming\\Microsoft\\Windows\\Templates"), "Templates");
    EXPECT_EQ(At(user + "\\AppData\\Roaming\\x"), ".config/x");
    EXPECT_EQ(At(user + "\\AppData\\Local"), ".local/share");
    EXPECT_EQ(At("C:\\Windows"), ".local/share/quillon/drive_c/Windows");
    home.Put(".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Dokument\"\n"
                                       "XDG_DESKTOP_DIR=\"$HOME/Skrivbord\"\n"
                                       "XDG_TEMPLATES_DIR=\"$HOME/\"\n");
    EXPECT_EQ(At("C:\\Mina dokument\\Quillon"), "Dokument/Quillon");
    EXPECT_EQ(At(user + "\\Desktop"), "Skrivbord");
    EXPECT_EQ(At(user + "\\AppData\\Roaming\\Microsoft\\Windows\\Templates"),
              ".config/Microsoft/Windows/Templates")
        << "the user wants no such folder";
}

TEST_F(HomeOfUser, IsWhereMyDocumentsLies)
{
    PosixHost host;
    EXPECT_EQ(host.machine.GetMyDocumentsDir(), "C:\\Mina dokument");
    EXPECT_FALSE(home.Has("Documents")) << "looking makes nothing";
    EXPECT_EQ(host.machine.GetSysAppDataDirectory(), user + "\\AppData\\Roaming");
    EXPECT_TRUE(host.files.DirCreate("C:\\Mina dokument\\Quillon\\Mina projekt"));
    EXPECT_TRUE(home.Has("Documents/Quillon/Mina projekt"));
    EXPECT_EQ(host.drives.ToWindows(home.Path("Documents/a.qnp")), "C:\\Mina dokument\\a.qnp");
    const auto root = host.files.List("C:\\");
    EXPECT_TRUE(std::any_of(root.begin(), root.end(), [](const FolderEntry& entry) {
        return entry.name == "Mina dokument";
    })) << "whoever looks through the drive finds it";
}

TEST_F(HomeOfUser, LeavesDocumentsInSightThatLieInDriveCAlready)
{
    home.Put(".local/share/quillon/drive_c/Mina dokument/Quillon/Mina projekt/a.qnp", "x");
    EXPECT_EQ(At("C:\\Mina dokument"), ".local/share/quillon/drive_c/Mina dokument");
    EXPECT_EQ(At(user + "\\Desktop"), "Desktop");
}

TEST_F(HomeOfUser, LendsNothingToADriveThatTheUserHasNamed)
{
    setenv("QUILLON_DRIVE_C", home.Path("c").c_str(), 1);
    EXPECT_EQ(At("C:\\Mina dokument"), "c/Mina dokument");
    PosixHost host;
    EXPECT_TRUE(home.Has("c/Mina dokument"));
}

/// Takes an administrator's rights away for as long as it lives.
class WithoutRights {
public:
    WithoutRights() : user_(geteuid())
    {
        constexpr uid_t kNobody = 65534;
        if (user_ == 0)
            EXPECT_EQ(seteuid(kNobody), 0);
    }
    ~WithoutRights() { EXPECT_EQ(seteuid(user_), 0); }
    WithoutRights(const WithoutRights&) = delete;
    WithoutRights& operator=(const WithoutRights&) = delete;

private:
    uid_t user_;
};

TEST_F(HomeOfUser, HoldsWhatAToolWritesThatCannotWriteBesideItself)
{
    home.PutFolder("fast");
    home.PutFolder("öppen");
    chmod(home.Path("fast").c_str(), 0555);
    chmod(home.Path("öppen").c_str(), 0777);
    chmod(home.Path().c_str(), 0755);
    const PosixHost host;
    const Text inHome = *host.drives.ToWindows(home.Path(".local/share/quillon"));
    const WithoutRights nobody;
    EXPECT_EQ(host.OwnFolder(*host.drives.ToWindows(home.Path("fast"))), inHome);
    const Text open = *host.drives.ToWindows(home.Path("öppen"));
    EXPECT_EQ(host.OwnFolder(open), open);
    EXPECT_EQ(host.OwnFolder(open + "\\finns inte"), inHome);
}

TEST(ReadMachineSettings, FindsTheFolderForSettingsByTheDesktopsConvention)
{
    const std::string home = std::getenv("HOME");
    setenv("XDG_CONFIG_HOME", "/config/of/user", 1);
    EXPECT_EQ(ReadMachineSettings().settingsFolder, "/config/of/user/quillon");
    // The convention takes absolute paths alone.
    setenv("XDG_CONFIG_HOME", "config", 1);
    EXPECT_EQ(ReadMachineSettings().settingsFolder, home + "/.config/quillon");
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(ReadMachineSettings().settingsFolder, home + "/.config/quillon");
    unsetenv("HOME");
    EXPECT_EQ(ReadMachineSettings().settingsFolder, "");
    setenv("HOME", home.c_str(), 1);
}

} // namespace
} // namespace quillon
