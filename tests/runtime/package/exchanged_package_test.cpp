// A package whose files are replaced after they were compared with its manifest.
#include "runtime/support/setup_fixture.h"

#include "formats/package_contents.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;

class ExchangedPackage : public SetupFixture {
protected:
    ExchangedPackage()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        memory.files.RemoveFile("D:\\Paket\\QNXREG2.BIN"); // such a package needs none
    }
    /// Every file of the package is listed as it is now, and made where it is missing.
    void MakeManifest(std::vector<Text> names)
    {
        for (const Text& name : FixedFilesOf(package.setup, package.rows))
            names.push_back(name);
        for (const Text& name : names) {
            const Text path = "D:\\Paket\\" + name;
            if (!memory.files.FileExists(path))
                memory.files.Put(path, name);
            package.manifest.lines.push_back({name, DigestOfFile(memory.files, path)});
            package.manifest.names.insert(LowerCase(name));
        }
        package.manifest.state = PackageManifest::State::Whole;
    }
    /// A CD tree, in which the file lies by itself.
    void MakeTree()
    {
        sources.clear();
        project.Media.TargetMedia = 3;
        memory.files.Put(program, "program");
        MakeManifest({"src\\prog.exe"});
    }
    /// At the first change that the setup makes, which is after the check of its files.
    void ExchangeBehindTheCheck(const Text& path, const std::string& bytes)
    {
        files.beforeChange = [this, path, bytes] {
            memory.files.Put(path, bytes);
            files.beforeChange = [] {};
        };
    }

    const Text program = "D:\\Paket\\src\\prog.exe";
};

TEST_F(ExchangedPackage, IsReadFromTheArchiveThatWasChecked)
{
    MakeManifest({"FILEDATA.DAT"});
    ExchangeBehindTheCheck("D:\\Paket\\FILEDATA.DAT", "another one");
    EXPECT_EQ(Install("/S /SAVEINF=L:\\svar.inf"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("D:\\Paket\\FILEDATA.DAT"), "another one");
    EXPECT_EQ(openedContainer, "the archive");
}

TEST_F(ExchangedPackage, IsRefusedWhereItsArchiveIsNoLongerTheListedOne)
{
    MakeManifest({"FILEDATA.DAT"});
    memory.files.Put("D:\\Paket\\FILEDATA.DAT", "another one");
    EXPECT_EQ(Install(), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("FILEDATA.DAT är skadad"));
}

// What could be changed while it is read is not read.
TEST_F(ExchangedPackage, IsRefusedWhereItsArchiveCanNotBeHeld)
{
    MakeManifest({"FILEDATA.DAT"});
    openHeld = [](const Text& path) -> std::unique_ptr<InputFile> {
        throw RunError(ErrorNumber::kFileInUse, path);
    };
    const MachineState before = State();
    EXPECT_EQ(Install(), ExitCode::DamagedPackage);
    EXPECT_EQ(State(), before);
    EXPECT_THAT(Log(), HasSubstr("FILEDATA.DAT saknas eller kan inte läsas"));
}

TEST_F(ExchangedPackage, IsUndoneWhereAFileThatLiesByItselfIsAnotherOne)
{
    MakeTree();
    const MachineState before = State();
    ExchangeBehindTheCheck(program, "virus!!");
    EXPECT_EQ(Install("/S /SAVEINF=L:\\svar.inf"), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("prog.exe är skadad"));
    memory.files.Put(program, "program");
    EXPECT_EQ(State(), before);
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("C:\\Program\\Exempel\\prog.exe"), "program");
}

TEST_F(ExchangedPackage, IsNotExtractedWhereAFileThatLiesByItselfIsAnotherOne)
{
    MakeTree();
    ExchangeBehindTheCheck(program, "virus!!");
    EXPECT_EQ(Install("/S /EXTRACT:E:\\Ut"), ExitCode::DamagedPackage);
    EXPECT_FALSE(memory.files.FileExists("E:\\Ut\\prog.exe"));
    memory.files.Put(program, "program");
    EXPECT_EQ(Install("/S /EXTRACT:E:\\Ut"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\Ut\\prog.exe"), "program");
}

// Libraries may lie beside it there, too.
TEST_F(ExchangedPackage, LendsItsProgramsToScriptsAsCopiesInThePrivateFolder)
{
    const Text tool = "D:\\Paket\\verktyg.exe";
    const Text copy = "W:\\Arbete\\QNSCRIPT.EXE";
    project.Lists.RunScriptAfter = "RUN %SRCDIR\\verktyg.exe /x\r\nLOG %EXITCODE";
    MakeManifest({"FILEDATA.DAT", "verktyg.exe"});
    target.onProgram = [&](const ProgramRun& run) {
        EXPECT_EQ(run.program, copy);
        EXPECT_EQ(memory.files.Get(run.program), "verktyg.exe");
        // A change to the package's folder has no effect by then.
        memory.files.Put(tool, "exchanged");
    };
    target.programCodes[copy] = 7;
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(target.programsRun, (std::vector<Text>{copy + " /x (hidden)"}));
    EXPECT_THAT(Log(), HasSubstr(tool + " slutade med kod 7"));
    EXPECT_FALSE(memory.files.FileExists(copy));
}

TEST_F(ExchangedPackage, LendsNoProgramToAScriptThatWasExchangedSinceItsCheck)
{
    project.Lists.RunScriptAfter = "RUN %SRCDIR\\verktyg.exe";
    MakeManifest({"FILEDATA.DAT", "verktyg.exe"});
    ExchangeBehindTheCheck("D:\\Paket\\verktyg.exe", "another one");
    const MachineState before = State();
    EXPECT_EQ(Install(), ExitCode::DamagedPackage) << Log();
    EXPECT_THAT(Log(), HasSubstr("verktyg.exe är skadad"));
    EXPECT_TRUE(target.programsRun.empty());
    EXPECT_EQ(State().registry, before.registry);
    EXPECT_FALSE(memory.files.DirExists(kMain));
}

// A batch file is started by its name's ending.
TEST_F(ExchangedPackage, KeepsTheEndingOfAProgramThatItLendsToAScript)
{
    project.Lists.RunScriptAfter = "RUN %SRCDIR\\gor.CMD";
    MakeManifest({"FILEDATA.DAT", "gor.CMD"});
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_EQ(target.programsRun, (std::vector<Text>{"W:\\Arbete\\QNSCRIPT.CMD (hidden)"}));
}

} // namespace
} // namespace quillon::test
