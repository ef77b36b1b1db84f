#include "ini/profile_writer.h"

#include "platform/run_error.h"
#include "support/memory_host.h"

namespace quillon {

namespace {

using test::MemoryFiles;

std::string Written(const std::string& before, const Text& section, const Text& key,
                    const Text& value)
{
    MemoryFiles files;
    files.Put("C:\\a.ini", before);
    WriteProfileValue(files, "C:\\a.ini", section, key, value);
    return files.Get("C:\\a.ini");
}

} // namespace

TEST(WriteProfileValue, ReplacesAValueInPlaceWithoutBlanks)
{
    EXPECT_EQ(Written("[Media]\r\nTargetMedia = 1\r\nFloppies = xxxx\r\n\r\n[B]\r\nA = 1\r\n",
                      "Media", "Floppies", "3"),
              "[Media]\r\nTargetMedia = 1\r\nFloppies=3\r\n\r\n[B]\r\nA = 1\r\n");
}

TEST(WriteProfileValue, FindsSectionAndKeyWithoutRegardToCaseAndLeavesTheirSpelling)
{
    EXPECT_EQ(Written("[MEDIA]\r\nFLOPPIES = 1\r\nFloppies = 2\r\n", "media", "floppies", "3"),
              "[MEDIA]\r\nFLOPPIES=3\r\nFloppies = 2\r\n");
}

TEST(WriteProfileValue, AddsAMissingKeyBehindTheLastLineOfItsSection)
{
    EXPECT_EQ(Written("[A]\r\nX=1\r\n\r\n[B]\r\nY=2\r\n", "A", "Z", "3"),
              "[A]\r\nX=1\r\nZ=3\r\n\r\n[B]\r\nY=2\r\n");
    EXPECT_EQ(Written("[A]\r\n[B]\r\n", "A", "Z", "3"), "[A]\r\nZ=3\r\n[B]\r\n");
    EXPECT_EQ(Written("[A]\r\nX=1", "A", "Z", "3"), "[A]\r\nX=1\r\nZ=3\r\n");
    EXPECT_EQ(Written("[A]", "A", "Z", "3"), "[A]\r\nZ=3\r\n");
}

TEST(WriteProfileValue, AddsAMissingSectionAtTheEnd)
{
    EXPECT_EQ(Written("[A]\r\nX=1\r\n", "B", "Z", "3"), "[A]\r\nX=1\r\n[B]\r\nZ=3\r\n");
    EXPECT_EQ(Written("[A]\r\nX=1", "B", "Z", "3"), "[A]\r\nX=1\r\n[B]\r\nZ=3\r\n");
    EXPECT_EQ(Written("", "B", "Z", "3"), "[B]\r\nZ=3\r\n");
}

TEST(WriteProfileValue, ReplacesALastLineWithoutLineEnd)
{
    EXPECT_EQ(Written("[A]\r\nX = 1", "A", "X", "2"), "[A]\r\nX=2\r\n");
}

TEST(WriteProfileValue, LeavesAllOtherBytesAlone)
{
    const std::string odd = "junk\r\n[A]\nX = \"1\"\n;\xE5 = \x9D\x9E\r\n";
    EXPECT_EQ(Written(odd + "Y = 1\r\n", "A", "Y", "å"), odd + "Y=\xE5\r\n");
}

TEST(WriteProfileValue, MakesAMissingFile)
{
    MemoryFiles files;
    WriteProfileValue(files, "C:\\new.ini", "A", "X", "1");
    EXPECT_EQ(files.Get("C:\\new.ini"), "[A]\r\nX=1\r\n");
}

TEST(WriteProfileValue, FailsWhereTheFileCantBeWritten)
{
    MemoryFiles files;
    files.Put("C:\\a.ini", "[A]\r\nX=1\r\n");
    files.SetReadOnly("C:\\a.ini", true);
    const auto write = [&] { WriteProfileValue(files, "C:\\a.ini", "A", "X", "2"); };
    EXPECT_EQ(RunErrorNumber(write), 75);
    EXPECT_EQ(files.Get("C:\\a.ini"), "[A]\r\nX=1\r\n");
}

} // namespace quillon
