// The whole file against files written by hand, byte by byte.
#include "project_file_fixture.h"
#include "support/golden.h"

#include <algorithm>

namespace quillon {

using test::GoldenBytes;
using test::ProjectOnDisk;
using test::SameBytes;

TEST(GoldenProjectFile, TheEmptyProjectIsWrittenToTheByte)
{
    ProjectOnDisk disk;
    EXPECT_TRUE(SameBytes(disk.Save(), GoldenBytes("empty/empty.qnp")));
}

TEST(GoldenProjectFile, TheEmptyProjectComesBackAsItWas)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(GoldenBytes("empty/empty.qnp")), ReadEnd::Whole);
    EXPECT_TRUE(SameBytes(disk.Save(), GoldenBytes("empty/empty.qnp")));
}

TEST(GoldenProjectFile, AFullProjectSurvivesLoadingAndSaving)
{
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(GoldenBytes("full/full.qnp")), ReadEnd::Whole);
    EXPECT_TRUE(SameBytes(disk.Save(), GoldenBytes("full/full.qnp")));
    EXPECT_EQ(disk.Load(GoldenBytes("full/full.qnp")), ReadEnd::Whole);
    EXPECT_TRUE(SameBytes(disk.Save(), GoldenBytes("full/full.qnp")));
}

TEST(GoldenProjectFile, AFullProjectLeavesNothingInANewOneButWhatNewKeeps)
{
    ProjectOnDisk disk;
    disk.Load(GoldenBytes("full/full.qnp"));
    ASSERT_EQ(disk.Load(GoldenBytes("empty/empty.qnp")), ReadEnd::Whole);
    std::string leaked = GoldenBytes("empty/empty.qnp");
    leaked = test::With(leaked, "AutoexecBatUse = 0\r\nConfigSysUse = 0",
                        "AutoexecBatUse = 1\r\nConfigSysUse = 1");
    leaked = test::With(leaked, "[AutoexecBat]\r\n", "[AutoexecBat]\r\nSET RAKNARE=%DESTDIR");
    leaked = test::With(leaked, "[ConfigSys]\r\n", "[ConfigSys]\r\nFILES=40");
    EXPECT_TRUE(SameBytes(disk.Save(), leaked));
}

} // namespace quillon
