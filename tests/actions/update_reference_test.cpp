#include "actions/update_reference.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(UpdateReferenceName, StandsInCapitals)
{
    struct Case {
        const char* typed;
        const char* kept;
    };
    for (const Case& one :
         {Case{"", ""}, Case{"prog.exe", "PROG.EXE"}, Case{"PROG.EXE", "PROG.EXE"},
          Case{"räkna å ö.dll", "RÄKNA Å Ö.DLL"}, Case{" a ", " A "}, Case{"straße ÿ", "STRAßE Ÿ"},
          Case{"%destdir\\a.exe", "%DESTDIR\\A.EXE"}})
        EXPECT_EQ(UpdateReferenceName(one.typed), one.kept);
}

} // namespace
} // namespace quillon
