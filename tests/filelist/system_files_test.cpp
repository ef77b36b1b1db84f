#include "filelist/adding/system_files.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(IsProtectedOnWindowsXP, KnowsFiveNamesInAnyCase)
{
    for (const char* const name : {"OLEPRO32.DLL", "OLEAUT32.DLL", "COMCAT.DLL", "ASYCFILT.DLL",
                                   "STDOLE2.TLB", "oleaut32.dll", "Stdole2.Tlb"})
        EXPECT_TRUE(IsProtectedOnWindowsXP(name)) << name;
    for (const char* const name : {"MSVCRT.DLL", "MFC42.DLL", "OLEPRO32.DLL.bak", "OLEPRO32", ""})
        EXPECT_FALSE(IsProtectedOnWindowsXP(name)) << name;
}

TEST(IsFileSkippedForTargetOS, KnowsSevenNamesInAnyCaseForNewWindowsOnly)
{
    for (const char* const name : {"OLEAUT32.DLL", "OLEPRO32.DLL", "ASYCFILT.DLL", "COMCAT.DLL",
                                   "MSVCRT.DLL", "MFC42.DLL", "STDOLE2.TLB", "mfc42.dll"}) {
        EXPECT_TRUE(IsFileSkippedForTargetOS(name, 1)) << name;
        EXPECT_FALSE(IsFileSkippedForTargetOS(name, 0)) << name;
        EXPECT_FALSE(IsFileSkippedForTargetOS(name, 2)) << name;
        EXPECT_FALSE(IsFileSkippedForTargetOS(name, -1)) << name;
    }
    for (const char* const name : {"MFC40.DLL", "MSVCRT40.DLL", "<Dir>", ""})
        EXPECT_FALSE(IsFileSkippedForTargetOS(name, 1)) << name;
}

} // namespace quillon::test
