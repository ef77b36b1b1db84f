#include "formats/package_files.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon {

TEST(MarkedName, LooksRunnableUnderNoName)
{
    EXPECT_EQ(MarkedName("Setup.exe"), "Setup.exe_");
    EXPECT_EQ(MarkedName("LÄS"), "LÄS_");
}

TEST(FolderInTree, HasPlainNamesForVariables)
{
    const std::pair<const char*, const char*> cases[] = {
        {"%DESTDIR", "C:\\Ut\\DESTDIR"},
        {"%DESTDIR\\", "C:\\Ut\\DESTDIR"},
        {"%DESTDIR\\Doc\\", "C:\\Ut\\DESTDIR\\Doc"},
        {"Data\\%x", "C:\\Ut\\Data\\%x"},
    };
    for (const auto& [destination, folder] : cases)
        EXPECT_EQ(FolderInTree("C:\\Ut", destination), folder) << destination;
}

} // namespace quillon
