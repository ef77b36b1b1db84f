#include "formats/new_windows_files.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(NewWindowsFiles, AreTheSevenThatWindowsBrings)
{
    for (const char* name : {"OLEAUT32.DLL", "oleaut32.dll", "OlePro32.dll", "ASYCFILT.DLL",
                             "COMCAT.DLL", "MSVCRT.DLL", "MFC42.DLL", "STDOLE2.TLB"})
        EXPECT_TRUE(IsPartOfNewWindows(name)) << name;
    for (const char* name : {"", "MFC40.DLL", "MSVCRT40.DLL", "SHDOCVW.DLL", "OLEAUT32.DLL.bak"})
        EXPECT_FALSE(IsPartOfNewWindows(name)) << name;
}

} // namespace quillon
