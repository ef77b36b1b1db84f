// What is not lost when calls run side by side, are killed, or find a project that is damaged.
#include "edit_workshop.h"
#include "helpers/text.h"
#include "support/killed_program.h"
#include "support/small_disk.h"

#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace quillon::test {
namespace {

class Saving : public EditWorkshop {
protected:
    Saving() { SaveProjectOf({"a.txt", "b.txt"}); }

    /// Writes these bytes as the project of the workshop.
    void PutProject(const std::string& bytes) { disk.Put("p.qnp", bytes); }
    std::string WithFiles(const std::string& number) const
    {
        return ReplaceAll(disk.Get("p.qnp"), "Files = 2\r\n", "Files = " + number + "\r\n");
    }
    std::vector<std::string> Beside() const
    {
        std::vector<std::string> names;
        for (const std::string& name : Names(""))
            if (name.starts_with("p.qnp"))
                names.push_back(name);
        return names;
    }
};

using Listed = std::vector<std::string>;

TEST_F(Saving, LosesNoChangeOfTwoLoopsOfCallsAtOnce)
{
    constexpr int kCalls = 150;
    std::vector<std::string> failures[2];
    const auto loop = [&](std::vector<std::string>& failed, const std::string& name) {
        for (int i = 0; i < kCalls; ++i) {
            const ProgramRun run = Edit({"add-folder", "%DESTDIR\\" + name + std::to_string(i)});
            if (run.exitCode != 0)
                failed.push_back(run.err);
        }
    };
    std::thread other([&] { loop(failures[1], "b"); });
    loop(failures[0], "a");
    other.join();
    EXPECT_THAT(failures[0], testing::IsEmpty());
    EXPECT_THAT(failures[1], testing::IsEmpty());
    EXPECT_EQ(Show()["FileList"].size(), 2U + 2 * kCalls);
    EXPECT_EQ(Beside(), Listed{"p.qnp"});
}

TEST_F(Saving, RefusesAProjectWhoseNumberOfRowsIsNotThatOfItsRows)
{
    const std::string whole = disk.Get("p.qnp");
    for (const char* number : {"1", "0", "", "tre"}) {
        PutProject(ReplaceAll(whole, "Files = 2\r\n", std::string("Files = ") + number + "\r\n"));
        ExpectRefused({"set", "Version.Comments=x"}, 3, "är skadat eller avkortat");
        const ProgramRun create = Create(project);
        EXPECT_EQ(create.exitCode, 3) << number;
        EXPECT_THAT(create.err, testing::HasSubstr("är skadat eller avkortat"));
        const ProgramRun show = Quillonc({"show", project, "--json"});
        EXPECT_EQ(show.exitCode, 0) << number;
        EXPECT_THAT(show.err, testing::HasSubstr("är skadat eller avkortat"));
        EXPECT_EQ(ObjectOf(show)["isWhole"], false);
    }
}

TEST_F(Saving, KeepsTheFileOverWhichAPartIsSaved)
{
    PutProject(WithFiles("1"));
    const std::string part = disk.Get("p.qnp");
    const ProgramRun over = Quillonc({"resave", project, project});
    EXPECT_EQ(over.exitCode, 0);
    EXPECT_THAT(over.err, testing::HasSubstr("är skadat eller avkortat"));
    EXPECT_THAT(over.err, testing::HasSubstr("finns kvar som"));
    EXPECT_THAT(over.err, testing::HasSubstr("p.qnp.bak'."));
    EXPECT_EQ(disk.Get("p.qnp.bak"), part);

    disk.Put("target.qnp", "something else");
    PutProject(part);
    const ProgramRun other = Quillonc({"resave", project, disk.Path("target.qnp")});
    EXPECT_EQ(other.exitCode, 0);
    EXPECT_THAT(other.err, testing::HasSubstr("target.qnp.bak'."));
    EXPECT_EQ(disk.Get("target.qnp.bak"), "something else");

    const ProgramRun fresh = Quillonc({"resave", project, disk.Path("new.qnp")});
    EXPECT_EQ(fresh.exitCode, 0);
    EXPECT_THAT(fresh.err, testing::Not(testing::HasSubstr("finns kvar som")));
    EXPECT_FALSE(disk.Has("new.qnp.bak"));
}

TEST_F(Saving, TooManyPicturesLeaveTheTarget)
{
    PutProject(ReplaceAll(disk.Get("p.qnp"), "NrAnimPictures = 0", "NrAnimPictures = 20000"));
    disk.Put("target.qnp", "something else");
    const ProgramRun run = Quillonc({"resave", project, disk.Path("target.qnp")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("Fel #9: '"));
    EXPECT_THAT(run.err, testing::HasSubstr("target.qnp'."));
    EXPECT_EQ(disk.Get("target.qnp"), "something else");
}

TEST_F(Saving, ReadsAProjectOnADiskThatTakesNoFile)
{
    const ProgramRun same = Edit({"set", "ProjectName.ProjectName=Prov"}, RunAs::Nobody);
    EXPECT_EQ(same.exitCode, 0) << same.err;
    EXPECT_THAT(same.out, testing::HasSubstr("Projektet är oförändrat."));
}

TEST_F(Saving, LeavesTheProjectOnAFullDisk)
{
    const SmallDisk full("16k");
    if (!full.IsMounted())
        GTEST_SKIP() << "only an administrator can mount a small disk";
    const std::string before = disk.Get("p.qnp");
    full.Folder().Put("p.qnp", before);
    project = full.Folder().Path("p.qnp");
    full.Folder().Put("filler", "");
    // Fills all room that is left.
    const int filler = open(full.Folder().Path("filler").c_str(), O_WRONLY);
    const std::string page(4096, 'x');
    while (write(filler, page.data(), page.size()) > 0) {
    }
    close(filler);
    for (const std::vector<std::string>& call :
         {std::vector<std::string>{"set", project, "Version.Comments=x"},
          {"resave", project, project}}) {
        const ProgramRun run = Quillonc(call);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_THAT(run.err, testing::HasSubstr("Disken är full: '"));
        EXPECT_THAT(run.err, testing::HasSubstr("p.qnp'."));
        EXPECT_EQ(full.Folder().Get("p.qnp"), before);
    }
}

TEST_F(Saving, ClearsWhatAKilledCallHasLeft)
{
    disk.Put("p.qnp.tmp1", "[Origin]\r\nInfo = half a proj");
    disk.Put("p.qnp.lock", "");
    Done({"set", "Version.Comments=x"});
    EXPECT_EQ(Beside(), Listed{"p.qnp"});
}

TEST_F(Saving, AProjectIsWholeWheneverACallIsKilled)
{
    const std::string before = disk.Get("p.qnp");
    Done({"set", "Version.Comments=x"});
    const std::string after = disk.Get("p.qnp");
    const std::vector<std::string> call = {disk.Path("tool/quillonc"), "set", project,
                                           "Version.Comments=x"};
    int killedBefore = 0;
    int killedBehind = 0;
    PutProject(before);
    // A kill between two changes can leave nothing else.
    for (int change = 1;; ++change) {
        const KilledProgram run = RunAndKill(call, environment, change);
        ASSERT_TRUE(run.canTrace);
        if (!run.wasKilled)
            break;
        const std::string now = disk.Get("p.qnp");
        ASSERT_TRUE(now == before || now == after) << "killed before change " << change;
        ++(now == before ? killedBefore : killedBehind);
        PutProject(before);
        ASSERT_EQ(Edit({"set", "Version.Comments=y"}).exitCode, 0);
        ASSERT_EQ(Beside(), Listed{"p.qnp"}) << "killed before change " << change;
        PutProject(before);
    }
    EXPECT_EQ(disk.Get("p.qnp"), after) << "where nothing killed it";
    EXPECT_GT(killedBefore, 10);
    EXPECT_GT(killedBehind, 0);
}

/// The call in a shell that allows files of no more than `blocks` blocks.
TEST_F(Saving, TellsThatAFileMayNotBecomeSoLarge)
{
    const std::string before = disk.Get("p.qnp");
    const std::string command =
        "ulimit -f 1; exec '" QUILLONC "' set '" + project + "' Version.Comments=x";
    const ProgramRun run = RunProgram({"/bin/bash", "-c", command}, environment);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, testing::HasSubstr("Fel #57: '"));
    EXPECT_THAT(run.err, testing::HasSubstr("p.qnp'."));
    EXPECT_THAT(run.err, testing::HasSubstr("eller så är filen för stor"));
    EXPECT_EQ(disk.Get("p.qnp"), before);
    EXPECT_EQ(Beside(), Listed{"p.qnp"});
}

TEST_F(Saving, TellsWhatEndedItFromOutside)
{
    // It waits for the lock, which the shell has, until it gets the signal to end.
    const std::string command = "exec 9> '" + project + ".lock'; flock 9; '" QUILLONC "' set '" +
                                project + "' Version.Comments=x 9>&- 2> '" + disk.Path("err") +
                                "' & call=$!; until grep -q 'väntar' '" + disk.Path("err") +
                                "'; do :; done; kill -TERM $call; wait $call; cat '" +
                                disk.Path("err") + "'";
    const ProgramRun run = RunProgram({"/bin/bash", "-c", command}, environment);
    EXPECT_THAT(run.out, testing::HasSubstr("p.qnp' ändras av ett annat program; väntar.\n"));
    EXPECT_THAT(run.out, testing::HasSubstr("Avbrutet av ett annat program (SIGTERM).\n"));
}

} // namespace
} // namespace quillon::test
