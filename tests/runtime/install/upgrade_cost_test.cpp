// The calls that an upgrade makes to the disk, counted, so that the result does not depend on the
// machine's speed: their number grows with the number of files and no faster, and is never much
// larger than for a fresh installation.
#include "runtime/support/setup_fixture.h"

namespace quillon {

class UpgradeCost : public test::SetupFixture {
protected:
    struct Cost {
        int fresh = 0;
        int upgrade = 0;
    };

    Cost Measure(int filesInProduct)
    {
        memory.files.nodes.erase("c:\\program\\exempel\\qnxunin.log");
        for (int i = int(package.rows.size()); i < filesInProduct; ++i)
            AddFile(NumberText(i) + ".txt", "%DESTDIR", "text", "");
        const Text folder = NumberText(filesInProduct);
        return {Installation(folder), Installation(folder)};
    }

    int Installation(const Text& folder)
    {
        int changes = 0;
        files.questions = 0;
        files.beforeChange = [&] { ++changes; };
        EXPECT_EQ(Install("/S /D=C:\\Program\\" + folder), ExitCode::Done);
        files.beforeChange = [] {};
        return files.questions + changes;
    }
};

TEST_F(UpgradeCost, GrowsWithTheFilesAndNoFaster)
{
    const Cost small = Measure(250);
    const Cost large = Measure(500);
    EXPECT_GT(small.fresh, 1000);
    EXPECT_LE(large.fresh, 2.05 * small.fresh);
    EXPECT_LE(large.upgrade, 2.05 * small.upgrade);
    EXPECT_LE(small.upgrade, 1.5 * small.fresh);
    EXPECT_LE(large.upgrade, 1.5 * large.fresh);
}

// Where a name is looked up by reading its folder, the temporary names must not be many in one.
TEST_F(UpgradeCost, KeepsTheTemporaryFoldersSmall)
{
    Measure(250);
    std::size_t most = 0;
    files.beforeChange = [&] {
        std::map<Text, std::size_t> inFolder;
        for (const auto& [path, node] : memory.files.nodes)
            if (const std::size_t end = path.rfind("\\"); path.find("\\~qn") < end)
                most = std::max(most, ++inFolder[path.substr(0, end)]);
    };
    EXPECT_EQ(Install("/S /D=C:\\Program\\250"), ExitCode::Done);
    files.beforeChange = [] {};
    EXPECT_GT(most, 50U);
    EXPECT_LE(most, 100U);
}

} // namespace quillon
