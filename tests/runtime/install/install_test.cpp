#include "runtime/support/full_product.h"

#include "platform/run_error.h"
#include "runtime/shared_files.h"

namespace quillon {

using test::MachineState;
using testing::HasSubstr;
using testing::Not;

using test::kMain;

class InstallTest : public test::FullProduct {};

TEST_F(InstallTest, PutsEverythingInItsPlace)
{
    FillMachine();
    FillPackage();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();

    EXPECT_EQ(memory.files.Get(kMain + "\\prog.exe"), "program");
    EXPECT_EQ(memory.files.Status(kMain + "\\prog.exe").modified, (LocalTime{2004, 1, 2, 3, 4, 6}));
    EXPECT_EQ(memory.files.Get(kMain + "\\Data\\Djup\\läs mig.txt"), "text");
    EXPECT_EQ(memory.files.Get("C:\\WINDOWS\\SYSTEM32\\prog.dll"), "library");
    EXPECT_EQ(memory.files.Get("C:\\WINDOWS\\SYSTEM32\\delad.dll"), "shared");
    EXPECT_TRUE(memory.files.Status(kMain + "\\skydd.txt").isReadOnly);
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Tom"));
    EXPECT_EQ(memory.files.Get(kMain + "\\QNXUNIN.EXE"), "uninstaller");

    const RegistryKey user{RegistryRoot::CurrentUser, "SOFTWARE\\Firma"};
    EXPECT_EQ(target.TextAt({RegistryRoot::LocalMachine, "SOFTWARE\\Firma"}, "Version"), "1.0");
    EXPECT_TRUE(target.KeyExists({RegistryRoot::LocalMachine, "SOFTWARE\\Firma\\Ny\\Nyckel"}));
    EXPECT_EQ(target.ReadValue(user, "Antal"), NumberData(7));
    EXPECT_EQ(target.ReadValue(user, "Data"), BytesData("\xA2\xFF"));
    EXPECT_EQ(target.TextAt(user, ""), kMain);
    EXPECT_EQ(memory.files.Get("C:\\WINDOWS\\APP.INI"),
              "; head\r\n[Old]\r\nx=2\r\ny=C:\\Program\\Exempel\r\n[New]\r\nz=3\r\n");
    EXPECT_EQ(memory.files.Get(kMain + "\\NY.INI"), "[A]\r\nb=\xE5\r\n");

    EXPECT_EQ(target.registered, std::set<Text>{"C:\\WINDOWS\\SYSTEM32\\prog.dll"});
    EXPECT_EQ(target.fonts, std::set<Text>{"C:\\WINDOWS\\Fonts\\font.ttf"});
    EXPECT_EQ(target.TextAt({RegistryRoot::LocalMachine,
                             "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"},
                            "Min font (TrueType)"),
              "font.ttf");
    EXPECT_EQ(target.ReadValue(SharedFilesKey(), "C:\\WINDOWS\\SYSTEM32\\delad.dll"),
              NumberData(2));

    const Text shortcut = kMain + "\\prog.exe||" + kMain + "||Programmet";
    const Text group = "C:\\Ulla\\Start-meny\\Program\\Exempelgrupp\\";
    EXPECT_EQ(memory.files.Get(group + "Programmet.lnk"), shortcut);
    EXPECT_EQ(memory.files.Get("C:\\Ulla\\Skrivbord\\Programmet.lnk"), shortcut);
    EXPECT_EQ(memory.files.Get(group + "Avinstallera Exempel.lnk"),
              kMain + "\\QNXUNIN.EXE|\"" + kMain + "\\QNXUNIN.LOG\"|" + kMain +
                  "||Avinstallera Exempel");
}

TEST_F(InstallTest, RemovesNoSystemKeyThatAnEmptyVariableLeavesOver)
{
    FillMachine();
    const RegistryKey firma{RegistryRoot::LocalMachine, "SOFTWARE\\Firma"};
    project.Version.CompanyName = "";
    project.Lists.Registry = "DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\%COMPANY";
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(target.TextAt(firma, "Version"), "0.9");
    EXPECT_THAT(Log(), HasSubstr("nyckeln hör till systemet och får inte tas bort"));

    project.Version.CompanyName = "Firma";
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(target.KeyExists(firma)) << "the same line, its variable filled";
}

TEST_F(InstallTest, LeavesNoTemporaryFiles)
{
    FillMachine();
    FillPackage();
    ASSERT_EQ(Install(), ExitCode::Done);
    for (const auto& [key, node] : memory.files.nodes)
        EXPECT_THAT(key, Not(HasSubstr("~qn")));
}

TEST_F(InstallTest, GoesAwayWithoutATrace)
{
    FillMachine();
    FillPackage();
    // In the Windows folder an old file that was replaced stays ours, so the test starts without.
    memory.files.RemoveFile("C:\\WINDOWS\\SYSTEM32\\delad.dll");
    const MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_NE(State(), before);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_EQ(State().files, before.files) << Log();
    EXPECT_EQ(State().registry, before.registry);
    EXPECT_EQ(State(), before);
}

TEST_F(InstallTest, LeavesTheMachineAsItWasWhereverItFails)
{
    FillMachine();
    FillPackage();
    const MachineState before = State();
    int changes = 0;
    int failAt = 0;
    const auto count = [&] {
        if (++changes == failAt)
            throw RunError(ErrorNumber::kDeviceIo, "fel");
    };
    ExitCode code = ExitCode::Failed;
    for (failAt = 1; code != ExitCode::Done; ++failAt) {
        changes = 0;
        files.beforeChange = target.beforeChange = count;
        code = Install();
        files.beforeChange = target.beforeChange = [] {};
        if (code == ExitCode::Done)
            break;
        ASSERT_EQ(code, ExitCode::Failed);
        ASSERT_EQ(State().files, before.files) << failAt << "\n" << Log();
        ASSERT_EQ(State().registry, before.registry) << failAt << "\n" << Log();
        ASSERT_EQ(State(), before) << failAt << "\n" << Log();
    }
    // The loop has reached every change that the installation makes.
    EXPECT_GT(failAt, 100);
}

TEST_F(InstallTest, SaysWhereItCouldNotTakeEverythingBack)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    // The new program is started by someone before the installation fails.
    target.beforeChange = [&] {
        if (!memory.files.FileExists(kMain + "\\prog.exe"))
            return;
        files.inUse.insert(kMain + "\\prog.exe");
        throw RunError(ErrorNumber::kDiskFull, "disken");
    };
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_THAT(Log(), HasSubstr("Kan inte ångra en ändring: filen '" + kMain +
                                 "\\prog.exe' används av ett program"));
    EXPECT_THAT(Log(),
                HasSubstr("Avslutar med kod 1603: Installationen avbröts, men alla ändringar "
                          "kunde inte ångras (disken är full: 'disken')."));
}

TEST_F(InstallTest, TellsAFullDiskByItsOwnCode)
{
    FillMachine();
    FillPackage();
    const MachineState before = State();
    // From here on no write succeeds, and the rollback must not need one.
    for (int n = 2; n < 30; ++n) {
        memory.files.FailFromWrite(n, ErrorNumber::kDiskFull);
        ASSERT_EQ(Install(), ExitCode::DiskFull) << n;
        memory.files.FailFromWrite(1000000, 0);
        ASSERT_EQ(State(), before) << n;
    }
}

} // namespace quillon
