#include "filelist/adding/refused_file.h"

#include "support/memory_host.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(RefusalOfLowerCase, IsForAnotherFileOrNone)
{
    const FileStatus upper{.identity = 7};
    const FileStatus lower{.identity = 8};
    const Text start =
        "Filen 'S:\\A.TXT' kan ej adderas till fillistan! Källsökvägen lagras med små "
        "bokstäver, och 's:\\a.txt' leder till ";
    const auto other = RefusalOfLowerCase("S:\\A.TXT", upper, lower);
    ASSERT_TRUE(other);
    EXPECT_EQ(other->title, "Kan ej addera");
    EXPECT_EQ(other->text, start + "en annan fil. Byt namn på filen eller katalogen.");
    const auto none = RefusalOfLowerCase("S:\\A.TXT", upper, std::nullopt);
    ASSERT_TRUE(none);
    EXPECT_EQ(none->text, start + "ingen fil alls. Byt namn på filen eller katalogen.");

    EXPECT_FALSE(RefusalOfLowerCase("S:\\A.TXT", upper, upper));
    EXPECT_FALSE(RefusalOfLowerCase("S:\\A.TXT", std::nullopt, lower)) << "a missing file";
    EXPECT_FALSE(RefusalOfLowerCase("S:\\A.TXT", FileStatus(), FileStatus()))
        << "a system that knows one spelling";
}

TEST(RefusalToRead, IsForTheFirstByteOfAFile)
{
    MemoryFiles files;
    files.Put("C:\\D\\empty.txt", "");
    EXPECT_FALSE(RefusalToRead(files, "C:\\D\\empty.txt"));
    files.At("C:\\D\\empty.txt").unreadable = true;
    EXPECT_TRUE(RefusalToRead(files, "C:\\D\\empty.txt"));
    EXPECT_FALSE(RefusalToRead(files, "C:\\D"));
    EXPECT_FALSE(RefusalToRead(files, "C:\\D\\gone.txt"));
    EXPECT_FALSE(RefusalToRead(files, "C:\\Gone\\a.txt"));
}

} // namespace quillon::test
