#include "formats/container_names.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(ContainerEntryName, IsTheLowerCasePathWithoutItsDrive)
{
    EXPECT_EQ(ContainerEntryName("C:\\Data\\App\\Prog.EXE"), "data/app/prog.exe");
    EXPECT_EQ(ContainerEntryName("c:\\a.txt"), "a.txt");
    EXPECT_EQ(ContainerEntryName("C:\\Ärende\\ÖVRIGT.txt"), "ärende/övrigt.txt");
    EXPECT_EQ(ContainerEntryName("\\\\Server\\Share\\a.txt"), "server/share/a.txt");
}

TEST(ContainerEntryName, NeverLeadsOutOfTheArchive)
{
    EXPECT_EQ(ContainerEntryName("C:\\data\\..\\a.txt"), "a.txt");
    EXPECT_EQ(ContainerEntryName("C:\\..\\..\\a.txt"), "a.txt");
    EXPECT_EQ(ContainerEntryName("C:\\data\\.\\\\a.txt"), "data/a.txt");
    EXPECT_EQ(ContainerEntryName("C:\\"), "");
    EXPECT_EQ(ContainerEntryName(""), "");
}

} // namespace quillon
