#include "runtime/command_line/self_extract_command.h"
#include "runtime/package/unpack_folder.h"

#include "platform/run_error.h"
#include "support/memory_host.h"

#include <gtest/gtest.h>

#include <set>

namespace quillon {
namespace {

TEST(SelfExtractCommand, HandsOnWhatIsNotItsOwn)
{
    const SelfExtractCommand command =
        ReadSelfExtractCommand("/S /D=C:\\My Folder /LOG=\"C:\\a b.txt\" \"/GROUP=x y\"");
    EXPECT_EQ(command.forSetup, "/S /D=C:\\My Folder /LOG=\"C:\\a b.txt\" \"/GROUP=x y\"");
    EXPECT_TRUE(command.isSilent);
    EXPECT_FALSE(command.wantsHelp || command.wantsVersion || command.isElevatedInstance);
    EXPECT_FALSE(command.extractTo);
    EXPECT_FALSE(ReadSelfExtractCommand("").isSilent);
}

TEST(SelfExtractCommand, TakesItsOwnSwitchesOut)
{
    EXPECT_TRUE(ReadSelfExtractCommand("/?").wantsHelp);
    EXPECT_TRUE(ReadSelfExtractCommand("-?").wantsHelp);
    EXPECT_TRUE(ReadSelfExtractCommand("/S /Version").wantsVersion);
    const SelfExtractCommand twin = ReadSelfExtractCommand("/QNELEVATED /S /extract:C:\\Ut /X");
    EXPECT_TRUE(twin.isElevatedInstance);
    EXPECT_EQ(twin.extractTo, "C:\\Ut");
    EXPECT_EQ(twin.forSetup, "/S /X");
}

TEST(SelfExtractCommand, TakesTheFolderInEveryForm)
{
    for (const char* line : {"/extract:\"C:\\Min mapp\"", "\"/extract:C:\\Min mapp\"",
                             "/EXTRACT=\"C:\\Min mapp\"", "-extract:\"C:\\Min mapp\""})
        EXPECT_EQ(ReadSelfExtractCommand(line).extractTo, "C:\\Min mapp") << line;
    EXPECT_EQ(ReadSelfExtractCommand("/extract").extractTo, "");
    EXPECT_EQ(ReadSelfExtractCommand("/extract:").extractTo, "");
    const SelfExtractCommand other = ReadSelfExtractCommand("/extractor:x extract:y");
    EXPECT_FALSE(other.extractTo);
    EXPECT_EQ(other.forSetup, "/extractor:x extract:y");
}

class ScriptedGuard : public FolderGuard {
public:
    explicit ScriptedGuard(test::MemoryFiles& files) : files_(files) {}

    bool MakeClosed(const Text& path) override
    {
        return !files_.DirExists(path) && !files_.FileExists(path) && files_.DirCreate(path);
    }
    bool IsLink(const Text& path) const override { return links.count(path) > 0; }
    bool HaveSameOwner(const Text& path, const Text&) const override
    {
        return foreign.count(path) == 0;
    }
    unsigned Number() override { return next++; }

    std::set<Text> links;
    std::set<Text> foreign;
    unsigned next = 7;

private:
    test::MemoryFiles& files_;
};

class UnpackFolderTest : public testing::Test {
protected:
    UnpackFolderTest() { machine.files.PutFolder("C:\\Temp"); }

    test::MemoryHost machine;
    ScriptedGuard guard{machine.files};
};

TEST_F(UnpackFolderTest, GoesWithAllThatIsInIt)
{
    {
        const UnpackFolder folder(machine.files, guard, "C:\\Temp\\QNEXPAND");
        EXPECT_EQ(folder.Path(), "C:\\Temp\\QNEXPAND\\QN7.TMP");
        machine.files.Put(folder.Path() + "\\SETUP.EXE", "x");
        machine.files.Put(folder.Path() + "\\m\\djup\\a.txt", "x");
        machine.files.SetReadOnly(folder.Path() + "\\SETUP.EXE", true);
    }
    EXPECT_TRUE(machine.files.List("C:\\Temp").empty());
}

TEST_F(UnpackFolderTest, LeavesWhatItHasNotMade)
{
    machine.files.Put("C:\\Temp\\QNEXPAND\\annat.txt", "mine");
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN5.BAK\\b.txt", "mine");
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN.TMP\\b.txt", "mine");
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN6.TMP\\c.txt", "another user's");
    guard.foreign.insert("C:\\Temp\\QNEXPAND\\QN6.TMP");
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN5.TMP\\c.txt", "elsewhere");
    guard.links.insert("C:\\Temp\\QNEXPAND\\QN5.TMP");
    {
        const UnpackFolder folder(machine.files, guard, "C:\\Temp\\QNEXPAND");
    }
    EXPECT_EQ(machine.files.List("C:\\Temp\\QNEXPAND").size(), 5U);
    EXPECT_EQ(machine.files.Get("C:\\Temp\\QNEXPAND\\QN5.TMP\\c.txt"), "elsewhere");
    EXPECT_EQ(machine.files.Get("C:\\Temp\\QNEXPAND\\QN6.TMP\\c.txt"), "another user's");
}

TEST_F(UnpackFolderTest, ClearsUpAfterAKilledRunAndNotAfterALivingOne)
{
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN1.TMP\\SETUP.EXE", "left");
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN2.TMP\\SETUP.EXE", "alive");
    const auto alive = machine.files.Lock("C:\\Temp\\QNEXPAND\\QN2.TMP\\LOCK", LockWait::None);
    const UnpackFolder folder(machine.files, guard, "C:\\Temp\\QNEXPAND");
    EXPECT_FALSE(machine.files.DirExists("C:\\Temp\\QNEXPAND\\QN1.TMP"));
    EXPECT_EQ(machine.files.Get("C:\\Temp\\QNEXPAND\\QN2.TMP\\SETUP.EXE"), "alive");
}

TEST_F(UnpackFolderTest, TrustsNoFolderThatIsThere)
{
    machine.files.Put("C:\\Temp\\QNEXPAND\\QN7.TMP\\version.dll", "planted");
    machine.files.locked.insert("c:\\temp\\qnexpand\\qn7.tmp\\lock");
    const UnpackFolder folder(machine.files, guard, "C:\\Temp\\QNEXPAND");
    EXPECT_EQ(folder.Path(), "C:\\Temp\\QNEXPAND\\QN8.TMP");
    machine.files.locked.clear();
}

TEST_F(UnpackFolderTest, GoesBesideALinkOrAFile)
{
    machine.files.PutFolder("C:\\Temp\\QNEXPAND");
    guard.links.insert("C:\\Temp\\QNEXPAND");
    machine.files.Put("C:\\Temp\\QNEXPAND.1", "a file");
    const UnpackFolder folder(machine.files, guard, "C:\\Temp\\QNEXPAND");
    EXPECT_EQ(folder.Path(), "C:\\Temp\\QNEXPAND.2\\QN7.TMP");
}

TEST_F(UnpackFolderTest, TellsWhereNoFolderCanBeMade)
{
    machine.files.refuseFolders = true;
    EXPECT_EQ(RunErrorNumber(
                  [&] { const UnpackFolder folder(machine.files, guard, "C:\\Temp\\QNEXPAND"); }),
              ErrorNumber::kPathFileAccess);
}

} // namespace
} // namespace quillon
