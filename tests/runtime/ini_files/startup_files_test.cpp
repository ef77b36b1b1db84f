#include "platform/run_error.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

constexpr const char* kAutoexec = "C:\\AUTOEXEC.BAT";
constexpr const char* kConfig = "C:\\CONFIG.SYS";

class StartupFilesTest : public SetupFixture {
protected:
    StartupFilesTest()
    {
        target.system = SystemKind::Win98;
        AddFile("prog.exe", "%DESTDIR", "program");
        project.Lists.AutoexecBat = "SET MAPP=%DESTDIR\r\n\r\nPATH %PATH%;%DESTDIR";
        project.Lists.ConfigSys = "FILES=40";
    }
    static Text Added()
    {
        return "SET MAPP=C:\\Program\\Exempel\r\nPATH %PATH%;C:\\Program\\Exempel\r\n";
    }
};

TEST_F(StartupFilesTest, GetTheLinesAtTheirEndAndLoseThemAgain)
{
    memory.files.Put(kAutoexec, "@ECHO OFF\r\nPROMPT $P$G\r\n");
    memory.files.Put(kConfig, "DEVICE=A"); // without a line break after it
    const MachineState before = State();
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kAutoexec), "@ECHO OFF\r\nPROMPT $P$G\r\n" + Added());
    EXPECT_EQ(memory.files.Get(kConfig), "DEVICE=A\r\nFILES=40\r\n");
    EXPECT_THAT(Log(), HasSubstr("Lägger till i C:\\CONFIG.SYS: FILES=40"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kAutoexec), "@ECHO OFF\r\nPROMPT $P$G\r\n");
    EXPECT_EQ(memory.files.Get(kConfig), "DEVICE=A");
    EXPECT_EQ(State().registry, before.registry);
}

TEST_F(StartupFilesTest, AreMadeAndGoAgainWhereThereAreNone)
{
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kAutoexec), Added());
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kAutoexec));
    EXPECT_FALSE(memory.files.FileExists(kConfig));
}

TEST_F(StartupFilesTest, KeepLinesThatWereThereBefore)
{
    memory.files.Put(kConfig, "files=40\r\nDEVICE=A\r\n");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kConfig), "files=40\r\nDEVICE=A\r\n");
    EXPECT_THAT(Log(), HasSubstr("C:\\CONFIG.SYS: FILES=40: raden finns redan"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kConfig), "files=40\r\nDEVICE=A\r\n");
}

TEST_F(StartupFilesTest, GetNoLineTwiceWhenInstalledTwice)
{
    memory.files.Put(kAutoexec, "@ECHO OFF\r\n");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kAutoexec), "@ECHO OFF\r\n" + Added());
    // What somebody has added after ours stays.
    memory.files.Put(kAutoexec, "@ECHO OFF\r\n" + Added() + "REM mitt\r\n");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kAutoexec), "@ECHO OFF\r\nREM mitt\r\n");
}

TEST_F(StartupFilesTest, HoldTheCharactersOfTheSystemBeforeWindows)
{
    project.Lists.AutoexecBat = "SET ORT=ÅÄÖåäöé§€";
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kAutoexec), "SET ORT=\x8F\x8E\x99\x86\x84\x94\x82\xF5?\r\n");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kAutoexec));
}

TEST_F(StartupFilesTest, LieOnTheDiskThatWindowsStartsFrom)
{
    const RegistryKey key{RegistryRoot::LocalMachine,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Setup"};
    target.MakeKey(key);
    target.WriteValue(key, "BootDir", TextData("E:\\"));
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\CONFIG.SYS"), "FILES=40\r\n");
    // Anything may stand in such a value.
    target.WriteValue(key, "BootDir", TextData("..\\x"));
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kConfig), "FILES=40\r\n");
}

TEST_F(StartupFilesTest, StayAsTheyAreWhereNobodyReadsThem)
{
    memory.files.Put(kConfig, "DEVICE=A\r\n");
    for (const SystemKind system : {SystemKind::WinNT4, SystemKind::Win2000, SystemKind::WinXP}) {
        target.system = system;
        EXPECT_EQ(Install(), ExitCode::Done);
        EXPECT_EQ(memory.files.Get(kConfig), "DEVICE=A\r\n");
        EXPECT_FALSE(memory.files.FileExists(kAutoexec));
        EXPECT_THAT(Log(), HasSubstr("raderna till AUTOEXEC.BAT: den här versionen av Windows "
                                     "läser inte filen"));
        EXPECT_THAT(Log(), HasSubstr("raderna till CONFIG.SYS: den här versionen"));
    }
    for (const SystemKind system : {SystemKind::Win95, SystemKind::WinME}) {
        target.system = system;
        EXPECT_EQ(Install(), ExitCode::Done);
        EXPECT_TRUE(memory.files.FileExists(kAutoexec));
    }
}

TEST_F(StartupFilesTest, ComeBackWhereTheInstallationFails)
{
    memory.files.Put(kAutoexec, "@ECHO OFF\r\n");
    const MachineState before = State();
    project.Lists.RunScriptAfter = "EXIT 5";
    EXPECT_EQ(Install(), ExitCode(5));
    EXPECT_EQ(State(), before);
}

} // namespace
} // namespace quillon::test
