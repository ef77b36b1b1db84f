// What quillonc says of packages is what the rest of the world finds out about them: sha256sum
// reads the manifest, and a Create that is killed leaves the older package or one that is called
// half.
#include "support/killed_program.h"
#include "workshop.h"

namespace quillon::test {
namespace {

using testing::HasSubstr;

namespace fs = std::filesystem;

std::string Noise(std::size_t size, std::uint32_t state)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

class Manifest : public Workshop {
protected:
    Manifest()
    {
        disk.Put("src/Prog.exe", Noise(200'000, 1));
        disk.Put("src/Data/Läs mig.txt", "text");
        project = SaveProjectOf({"Prog.exe", "Data\\Läs mig.txt", "Tom\\"});
    }

    ProgramRun Sha256sum() const
    {
        return RunProgram({"/bin/sh", "-c", "cd '" + out + "' && sha256sum -c PACKAGE.SHA256"});
    }

    std::string project;
};

TEST_F(Manifest, IsCheckedBySha256sumOnEveryMedium)
{
    disk.Put("src/big.bin", Noise(3'000'000, 2));
    const std::string large = Save(MakeProject({"Prog.exe", "big.bin"}), "large.qnp");
    const std::vector<std::string> media[] = {
        {"--medium", "cd"},
        {"--medium", "cd", "--separate"},
        {"--medium", "floppy", "--continue"},
        {"--medium", "tree"},
    };
    for (const std::vector<std::string>& medium : media) {
        fs::remove_all(out);
        disk.PutFolder("out");
        const bool isFloppy = medium[1] == "floppy";
        ASSERT_EQ(Create(isFloppy ? large : project, medium).exitCode, 0) << medium[1];
        if (medium[1] == "tree") {
            EXPECT_THAT(Sha256sum().out, HasSubstr("Prog.exe: FAILED open or read"))
                << "laid out later";
            disk.Put("out/Prog.exe", disk.Get("src/Prog.exe"));
            disk.Put("out/data/Läs mig.txt", "text");
        }
        const ProgramRun sums = Sha256sum();
        EXPECT_EQ(sums.exitCode, 0) << sums.out << sums.err;
        EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0) << medium[1];
    }
}

TEST_F(Manifest, TellsAFlippedBitInAnyFileAsSha256sumDoes)
{
    ASSERT_EQ(Create(project, {"--separate"}).exitCode, 0);
    for (const auto& entry : fs::recursive_directory_iterator(out)) {
        if (!entry.is_regular_file())
            continue;
        const std::string name = "out/" + fs::relative(entry.path(), out).string();
        const std::string whole = disk.Get(name);
        std::string damaged = whole;
        damaged[damaged.size() / 2] = static_cast<char>(damaged[damaged.size() / 2] ^ 1);
        disk.Put(name, damaged);
        EXPECT_EQ(Quillonc({"verify", out}).exitCode, 1) << name;
        EXPECT_NE(Sha256sum().exitCode, 0) << name;
        disk.Put(name, whole);
    }
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
}

TEST_F(Manifest, IsSaidToBeMissing)
{
    ASSERT_EQ(Create(project).exitCode, 0);
    fs::remove(disk.Path("out/PACKAGE.SHA256"));
    const ProgramRun verify = Quillonc({"verify", out});
    EXPECT_EQ(verify.exitCode, 0);
    EXPECT_EQ(verify.out,
              "Installationen är hel: 3 rader.\n"
              "PACKAGE.SHA256 saknas: runtimefilerna är inte prövade, bara att de finns.\n");
    EXPECT_EQ(ObjectOf(Quillonc({"verify", out, "--json"}))["hasManifest"], false);
    ASSERT_EQ(Create(project).exitCode, 0);
    EXPECT_EQ(ObjectOf(Quillonc({"verify", out, "--json"}))["hasManifest"], true);
}

using Files = std::map<std::string, std::string>;

class KilledCreate : public Manifest {
protected:
    // Files that an unfinished run leaves beside a package are no part of it.
    Files PackageFiles() const
    {
        Files files;
        for (const auto& entry : fs::recursive_directory_iterator(out)) {
            const std::string name = fs::relative(entry.path(), out).string();
            const std::string file = entry.path().filename().string();
            const bool isLeftOver = name.starts_with("PACKAGE.NEW") || file.ends_with(".TMP");
            if (entry.is_regular_file() && !isLeftOver)
                files[name] = disk.Get("out/" + name);
        }
        return files;
    }
    void PutPackage(const Files& files) const
    {
        fs::remove_all(out);
        disk.PutFolder("out");
        for (const auto& [name, bytes] : files)
            disk.Put("out/" + name, bytes);
    }
    Files MakePackageOf(const std::string& file, const std::vector<std::string>& medium) const
    {
        PutPackage({});
        EXPECT_EQ(Create(file, medium).exitCode, 0);
        return PackageFiles();
    }
    KilledProgram KillCreate(const std::string& file, const std::vector<std::string>& medium,
                             int change) const
    {
        std::vector<std::string> words = {disk.Path("tool/quillonc"), "create", file, "--to", out};
        words.insert(words.end(), medium.begin(), medium.end());
        return RunAndKill(words, environment, change);
    }

    /// Kills Create over `older` at `kills` places spread over its whole run. Returns how often a
    /// package was found that is neither the older one nor the new one.
    int KillEverywhere(const Files& older, const std::string& file,
                       const std::vector<std::string>& medium, int kills) const
    {
        const Files newer = MakePackageOf(file, medium);
        PutPackage(older);
        const int changes = KillCreate(file, medium, 0).changes;
        EXPECT_GT(changes, 10);
        int halves = 0;
        for (int kill = 1; kill <= kills; ++kill) {
            PutPackage(older);
            const int change = 1 + (changes - 1) * (kill - 1) / (kills - 1);
            EXPECT_TRUE(KillCreate(file, medium, change).wasKilled) << change;
            const Files left = PackageFiles();
            const bool isWhole = left == older || left == newer;
            halves += isWhole ? 0 : 1;
            const ProgramRun verify = Quillonc({"verify", out});
            if (!isWhole)
                EXPECT_EQ(verify.exitCode, 1) << change << "\n" << verify.out;
            if (left == older && !older.empty())
                EXPECT_EQ(verify.exitCode, 0) << change << "\n" << verify.out;
        }
        EXPECT_EQ(Create(file, medium).exitCode, 0) << "over what the last kill left";
        EXPECT_EQ(PackageFiles(), newer);
        EXPECT_FALSE(disk.Has("out/PACKAGE.NEW"));
        return halves;
    }

    bool CanTrace() const { return KillCreate(project, {}, 0).canTrace; }
};

TEST_F(KilledCreate, NeverLeavesAHalfPackageThatIsCalledWhole)
{
    if (!CanTrace())
        GTEST_SKIP() << "this machine lets no program be traced";
    const std::string file = Save(MakeProject({"Data\\Läs mig.txt", "Prog.exe"}), "other.qnp");
    EXPECT_GT(KillEverywhere({}, file, {"--medium", "cd"}, 25), 0);
    EXPECT_GT(KillEverywhere({}, file, {"--medium", "floppy", "--continue"}, 25), 0);
}

// The new package is moved into its place at the very end: all but the last kills leave the older
// one untouched.
TEST_F(KilledCreate, LeavesTheOlderPackageUpToItsLastStep)
{
    if (!CanTrace())
        GTEST_SKIP() << "this machine lets no program be traced";
    const Files older = MakePackageOf(project, {"--medium", "cd", "--separate"});
    const std::string file = Save(MakeProject({"Data\\Läs mig.txt", "Prog.exe"}), "other.qnp");
    EXPECT_LT(KillEverywhere(older, file, {"--medium", "cd", "--separate"}, 25), 12);
    const Files olderFloppy = MakePackageOf(project, {"--medium", "floppy", "--continue"});
    EXPECT_GT(KillEverywhere(olderFloppy, file, {"--medium", "floppy", "--continue"}, 25), 0);
}

} // namespace
} // namespace quillon::test
