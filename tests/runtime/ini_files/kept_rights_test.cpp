// Text files that setup and uninstaller write again: their rights and attributes are what they
// were.
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/ini_files/ini_changes.h"
#include "runtime/support/setup_fixture.h"

namespace quillon::test {
namespace {

const Text kIni = "C:\\WINDOWS\\APP.INI";
const Text kAutoexec = "C:\\AUTOEXEC.BAT";

class KeptRights : public SetupFixture {
protected:
    KeptRights()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        project.Lists.INIFiles = "-- APP.INI --\r\n[A]\r\nny=1";
        Protect(kIni, "[A]\r\nb=c\r\n");
    }
    void Protect(const Text& path, const std::string& bytes)
    {
        memory.files.Put(path, bytes);
        MemoryFiles::Node& node = memory.files.At(path);
        node.status.isReadOnly = node.status.isHidden = node.status.isSystem = true;
        node.rights = "for Ulla alone";
    }
    bool IsProtected(const Text& path)
    {
        const MemoryFiles::Node& node = memory.files.At(path);
        return node.status.isReadOnly && node.status.isHidden && node.status.isSystem &&
               node.rights == "for Ulla alone";
    }
};

TEST_F(KeptRights, OfAnIniFileStayAndAreThereBehindTheUninstallerToo)
{
    const MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kIni), "[A]\r\nb=c\r\nny=1\r\n");
    EXPECT_TRUE(IsProtected(kIni));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kIni), "[A]\r\nb=c\r\n");
    EXPECT_TRUE(IsProtected(kIni));
    EXPECT_EQ(State().registry, before.registry);
}

TEST_F(KeptRights, OfStartupFilesStay)
{
    target.system = SystemKind::Win98;
    project.Lists.AutoexecBat = "SET A=B";
    Protect(kAutoexec, "@ECHO OFF\r\n");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kAutoexec), "@ECHO OFF\r\nSET A=B\r\n");
    EXPECT_TRUE(IsProtected(kAutoexec));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kAutoexec), "@ECHO OFF\r\n");
    EXPECT_TRUE(IsProtected(kAutoexec));
}

TEST_F(KeptRights, OfANewFileAreThoseOfItsFolder)
{
    memory.files.nodes.erase(LowerCase(kIni));
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    const MemoryFiles::Node& node = memory.files.At(kIni);
    EXPECT_FALSE(node.status.isReadOnly);
    EXPECT_EQ(node.rights, "");
}

TEST_F(KeptRights, ThatCanNotBeCopiedEndTheInstallation)
{
    const MachineState before = State();
    target.copyRights = [](const Text& from, const Text&) {
        throw RunError(ErrorNumber::kPermissionDenied, from);
    };
    EXPECT_EQ(Install(), ExitCode::Failed);
    EXPECT_EQ(State(), before);
    EXPECT_TRUE(IsProtected(kIni));
}

// An uninstaller that is ended from outside is begun again.
TEST_F(KeptRights, AreNotLostWhereverTheUninstallerIsKilled)
{
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    const auto installed = memory.files.nodes;
    const record::IniValue record{kIni, "A", "ny", "1", std::nullopt};
    struct Killed {};
    int steps = 0;
    for (bool killed = true; killed;) {
        memory.files.nodes = installed;
        Protect(kIni, "[A]\r\nb=c\r\nny=1\r\n");
        int changes = 0;
        ++steps;
        files.beforeChange = target.beforeChange = [&] {
            if (++changes >= steps)
                throw Killed{};
        };
        killed = false;
        try {
            UndoIniChange({files, target}, record);
        } catch (const Killed&) {
            killed = true;
        }
        files.beforeChange = target.beforeChange = [] {};
        UndoIniChange({files, target}, record);
        EXPECT_EQ(memory.files.Get(kIni), "[A]\r\nb=c\r\n") << steps;
        EXPECT_TRUE(IsProtected(kIni)) << steps;
        EXPECT_FALSE(memory.files.FileExists("C:\\WINDOWS\\~qn-APP.INI.tmp")) << steps;
    }
    EXPECT_GT(steps, 6);
}

} // namespace
} // namespace quillon::test
