#include "filelist/adding/file_name_case.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(FormatFileNameCase, SoftensOnlyWhatStandsInCapitals)
{
    struct {
        const char* name;
        const char* shown;
    } const names[] = {
        {"", ""},
        {"MSVCRT.DLL", "Msvcrt.dll"},
        {"ÅÄÖ.DLL", "Åäö.dll"},
        {"Msvcrt.DLL", "Msvcrt.DLL"},
        {"ÅäÖ.DLL", "ÅäÖ.DLL"},
        {"123.456", "123.456"},
        {"C:\\WINDOWS\\A.DLL", "c:\\windows\\a.dll"},
        {"C:\\wINDOWS\\aB.DLL", "c:\\windows\\ab.dll"},
        {"C:\\Windows\\A.DLL", "C:\\Windows\\A.DLL"},
        {"c:\\WINDOWS", "c:\\WINDOWS"},
        {"C:A.DLL", "c:a.dll"},
        {"É", "É"},
    };
    for (const auto& name : names)
        EXPECT_EQ(FormatFileNameCase(name.name), name.shown) << name.name;
}

} // namespace quillon::test
