// The letters of the copy options, one by one, on a machine where the file is already there.
#include "runtime/support/setup_fixture.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/shared_files.h"

namespace quillon {

using test::BoxKind;
using test::MachineState;
using test::ScriptedAsk;
using testing::ElementsAre;
using testing::HasSubstr;

const Text kFile = "C:\\Program\\Exempel\\a.dll";
constexpr LocalTime kOlder{2003, 1, 1, 0, 0, 0};
constexpr LocalTime kNewer{2005, 1, 1, 0, 0, 0};

class LargeFilesTest : public test::SetupFixture {
protected:
    static std::string Bytes(std::size_t size)
    {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 131 + i / 4099);
        return bytes;
    }
};

TEST_F(LargeFilesTest, RecordsSizeAndDigestOfWhatIsOnTheDisk)
{
    const std::map<Text, std::size_t> sizes = {
        {"tom.dat", 0}, {"kort.dat", 5}, {"jamn.dat", 128 * 1024}, {"stor.dat", 3'000'001}};
    for (const auto& [name, size] : sizes)
        AddFile(name, "%DESTDIR", Bytes(size));
    EXPECT_EQ(Install(), ExitCode::Done);
    const auto records =
        ReadInstallJournal(ReadWholeFile(memory.files, "C:\\Program\\Exempel\\QNXUNIN.LOG"));
    ASSERT_TRUE(records);
    std::size_t found = 0;
    for (const JournalRecord& record : *records) {
        const auto* const content = std::get_if<record::Content>(&record);
        if (content == nullptr || !sizes.count(ExtractFilename(content->path)))
            continue;
        ++found;
        EXPECT_EQ(content->size, sizes.at(ExtractFilename(content->path)));
        EXPECT_EQ(content->digest, DigestText(DigestOfFile(memory.files, content->path)));
        EXPECT_TRUE(memory.files.Get(content->path) == Bytes(content->size)) << content->path;
    }
    EXPECT_EQ(found, sizes.size());
}

// The disk is full in the middle of a file that is written while the next piece is unpacked.
TEST_F(LargeFilesTest, AreTakenBackFromAFullDisk)
{
    AddFile("stor.dat", "%DESTDIR", Bytes(3'000'001));
    const MachineState before = State();
    int failures = 0;
    for (const int write : {3, 8, 20}) {
        memory.files.FailFromWrite(write, ErrorNumber::kDiskFull);
        failures += Install() == ExitCode::DiskFull ? 1 : 0;
        memory.files.FailFromWrite(1000000, 0);
        EXPECT_TRUE(State() == before) << write;
    }
    EXPECT_EQ(failures, 3);
    EXPECT_EQ(Install(), ExitCode::Done);
}

class CopyOptionsTest : public test::SetupFixture {
protected:
    ExitCode InstallOver(const Text& options, LocalTime existing)
    {
        memory.files.Put(kFile, "gammal", existing);
        AddFile("a.dll", "%DESTDIR", "ny", options);
        return Install();
    }
};

TEST_F(CopyOptionsTest, DKeepsANewerFile)
{
    EXPECT_EQ(InstallOver("D", kNewer), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
    EXPECT_THAT(Log(), HasSubstr("Hoppar över " + kFile + ": den befintliga filen är nyare"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
}

TEST_F(CopyOptionsTest, DReplacesAnOlderFile)
{
    EXPECT_EQ(InstallOver("D", kOlder), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "ny");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kFile));
}

TEST_F(CopyOptionsTest, NNeverReplaces)
{
    EXPECT_EQ(InstallOver("N", kOlder), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
}

TEST_F(CopyOptionsTest, VWithoutVersionsReplaces)
{
    EXPECT_EQ(InstallOver("V", kNewer), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "ny");
}

TEST_F(CopyOptionsTest, OnlyWReplacesAProtectedFile)
{
    memory.files.Put(kFile, "gammal", kOlder);
    memory.files.SetReadOnly(kFile, true);
    AddFile("a.dll", "%DESTDIR", "ny", "D");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
    package.rows[0].copyOptions = "DW";
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "ny");
    EXPECT_FALSE(memory.files.Status(kFile).isReadOnly);
}

TEST_F(CopyOptionsTest, BBringsTheOldFileBackAtUninstallation)
{
    const MachineState before = [&] {
        memory.files.Put(kFile, "gammal", kOlder);
        return State();
    }();
    EXPECT_EQ(InstallOver("B", kOlder), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "ny");
    EXPECT_EQ(memory.files.Get(kFile + ".bak"), "gammal");
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(State(), before);
}

TEST_F(CopyOptionsTest, XKeepsTheFileWhereNobodyCanBeAsked)
{
    EXPECT_EQ(InstallOver("X", kOlder), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
    EXPECT_THAT(Log(), HasSubstr("filen finns redan och ingen kan tillfrågas"));
}

TEST_F(CopyOptionsTest, XDoesWhatTheUserAnswers)
{
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        ScriptedAsk script({{BoxKind::YesNo, "Exempel",
                             "Filen '" + kFile + "' finns redan. Vill du ersätta den?", answer}});
        ask = &script;
        memory.files.Put(kFile, "gammal", kOlder);
        if (package.rows.empty())
            AddFile("a.dll", "%DESTDIR", "ny", "X");
        EXPECT_EQ(Install(""), ExitCode::Done);
        EXPECT_EQ(memory.files.Get(kFile), answer == Answer::Yes ? "ny" : "gammal");
    }
}

TEST_F(CopyOptionsTest, ALetsAFileInUseBeReplacedAtTheNextStart)
{
    files.inUse.insert(kFile);
    EXPECT_EQ(InstallOver("RA", kOlder), ExitCode::RestartNeeded) << Log();
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
    // And then the folder goes that it waits in.
    ASSERT_EQ(target.movesAtRestart.size(), 2U);
    EXPECT_EQ(memory.files.Get(target.movesAtRestart[0].first), "ny");
    EXPECT_EQ(target.movesAtRestart[0].second, kFile);
    EXPECT_TRUE(target.registered.empty());
    EXPECT_EQ(target.TextAt({RegistryRoot::LocalMachine,
                             "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce"},
                            "QNXREG2 Exempel"),
              "\"C:\\Program\\Exempel\\QNXREG2.EXE\" \"" + kFile + "\"");
    EXPECT_EQ(memory.files.Get("C:\\Program\\Exempel\\QNXREG2.EXE"), "second helper");
    EXPECT_THAT(Log(), HasSubstr("ersätts när datorn startas om"));
}

TEST_F(CopyOptionsTest, EachFileInUseIsRegisteredByACommandOfItsOwn)
{
    const Text second = "C:\\Program\\Exempel\\b.dll";
    files.inUse = {kFile, second};
    memory.files.Put(second, "gammal", kOlder);
    AddFile("b.dll", "%DESTDIR", "ny", "RA");
    EXPECT_EQ(InstallOver("RA", kOlder), ExitCode::RestartNeeded) << Log();
    const RegistryKey key{RegistryRoot::LocalMachine,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce"};
    const Text helper = "\"C:\\Program\\Exempel\\QNXREG2.EXE\" ";
    EXPECT_EQ(target.TextAt(key, "QNXREG2 Exempel"), helper + "\"" + second + "\"");
    EXPECT_EQ(target.TextAt(key, "QNXREG2 Exempel 2"), helper + "\"" + kFile + "\"");
    files.inUse.clear();
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(target.TextAt(key, "QNXREG2 Exempel"), "<none>") << "before the next start";
}

// The former file has been moved aside by then, and is needed until the next start.
TEST_F(CopyOptionsTest, ALeavesTheFileInItsPlaceWhereTheNewOneIsRefusedThere)
{
    bool wasRefused = false;
    files.beforeChange = [&] {
        if (wasRefused || !memory.files.DirExists("C:\\Program\\Exempel") ||
            memory.files.FileExists(kFile))
            return;
        wasRefused = true;
        throw RunError(ErrorNumber::kPermissionDenied, kFile);
    };
    EXPECT_EQ(InstallOver("A", kOlder), ExitCode::RestartNeeded) << Log();
    EXPECT_TRUE(wasRefused);
    EXPECT_EQ(memory.files.Get(kFile), "gammal");
    ASSERT_FALSE(target.movesAtRestart.empty());
    EXPECT_EQ(memory.files.Get(target.movesAtRestart[0].first), "ny");
    EXPECT_EQ(target.movesAtRestart[0].second, kFile);
}

TEST_F(CopyOptionsTest, AEndsTheInstallationWhereNeitherFileCanTakeThePlace)
{
    memory.files.Put(kFile, "gammal", kOlder);
    const MachineState before = State();
    int refusals = 0;
    files.beforeChange = [&] {
        if (refusals == 2 || memory.files.FileExists(kFile))
            return;
        ++refusals;
        throw RunError(ErrorNumber::kPermissionDenied, kFile);
    };
    EXPECT_EQ(InstallOver("A", kOlder), ExitCode::Failed);
    EXPECT_EQ(refusals, 2);
    EXPECT_THAT(Log(), HasSubstr(kFile));
    EXPECT_TRUE(target.movesAtRestart.empty());
    EXPECT_EQ(State(), before) << "undone, and the file is back";
}

TEST_F(CopyOptionsTest, AFileInUseEndsTheInstallationWithoutA)
{
    memory.files.Put(kFile, "gammal", kOlder);
    const MachineState before = State();
    files.inUse.insert(kFile);
    EXPECT_EQ(InstallOver("D", kOlder), ExitCode::FileInUse);
    EXPECT_EQ(State(), before);
}

TEST_F(CopyOptionsTest, AsteriskLeavesTheFileForEver)
{
    AddFile("a.dll", "%DESTDIR", "ny", "DS*");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kFile), "ny");
    EXPECT_THAT(Log(), HasSubstr("C:\\Program\\Exempel: mappen är inte tom"));
}

TEST_F(CopyOptionsTest, PProtectsTheFileAndUninstallRemovesIt)
{
    AddFile("a.dll", "%DESTDIR", "ny", "P");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_TRUE(memory.files.Status(kFile).isReadOnly);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kFile));
}

struct SharedCase {
    bool exists;
    int countBefore; // 0: there is no count
    std::uint32_t countDuring;
    bool staysAfterwards;
};
class SharedFile : public CopyOptionsTest, public testing::WithParamInterface<SharedCase> {};

TEST_P(SharedFile, StaysUntilItsLastUserGoes)
{
    if (GetParam().exists)
        memory.files.Put(kFile, "gammal", kOlder);
    if (GetParam().countBefore > 0) {
        target.MakeKey(SharedFilesKey());
        target.WriteValue(SharedFilesKey(), kFile,
                          NumberData(std::uint32_t(GetParam().countBefore)));
    }
    AddFile("a.dll", "%DESTDIR", "ny", "SR");
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.ReadValue(SharedFilesKey(), kFile), NumberData(GetParam().countDuring));
    EXPECT_EQ(target.registered.count(kFile), 1U);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.FileExists(kFile), GetParam().staysAfterwards);
    EXPECT_EQ(target.registered.count(kFile), GetParam().staysAfterwards ? 1U : 0U);
    const auto after = target.ReadValue(SharedFilesKey(), kFile);
    EXPECT_EQ(after.has_value(), GetParam().staysAfterwards);
}

INSTANTIATE_TEST_SUITE_P(, SharedFile,
                         testing::Values(SharedCase{false, 0, 1, false},
                                         SharedCase{true, 0, 2, true}, SharedCase{true, 3, 4, true},
                                         SharedCase{false, 1, 2, true}));

TEST_F(CopyOptionsTest, RegistrationsThatFailAreToldAndDoNotEndTheInstallation)
{
    AddFile("a.dll", "%DESTDIR", "ny", "R");
    AddFile("b.dll", "%DESTDIR", "ny", "R");
    project.Lists.RegisterFileList = "%DESTDIR\\c.dll\r\n\r\n%DESTDIR\\a.dll";
    target.registrationAnswers[kFile] = Registration::Failed;
    target.registrationAnswers["C:\\Program\\Exempel\\b.dll"] = Registration::NotSelfRegistering;
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("a.dll: filen kunde inte registreras"));
    EXPECT_THAT(Log(), HasSubstr("b.dll: filen kan inte registrera sig själv"));
    EXPECT_THAT(Log(), HasSubstr("c.dll: filen finns inte"));
}

} // namespace quillon
