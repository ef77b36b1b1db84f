#include "formats/extracted_names.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(ExtractedName, StaysBelowTheFolder)
{
    struct Case {
        const char* destination;
        const char* name;
        std::optional<Text> expected;
    };
    const Case cases[] = {
        {"%DESTDIR", "a.txt", "DESTDIR\\a.txt"},
        {"%DESTDIR\\Sub\\", "a.txt", "DESTDIR\\Sub\\a.txt"},
        {"C:\\Data", "a.txt", "C\\Data\\a.txt"},
        {"C:\\", "a.txt", "C\\a.txt"},
        {"%DESTDIR\\Tom", "<Dir>", "DESTDIR\\Tom"},
        {"%DESTDIR\\..", "a.txt", {}},
        {"%DESTDIR", "..", {}},
        {"%DESTDIR", "sub\\a.txt", {}},
        {"%DESTDIR", "a.txt:b", {}},
        {"%DESTDIR\\CON", "a.txt", {}},
        {"%DESTDIR", "NUL", {}},
        {"", "a.txt", {}},
        {"%DESTDIR", "", {}},
        {"Data", "a.txt", "Data\\a.txt"}, // below whatever the setup makes of it
    };
    for (const Case& each : cases) {
        InstallRow row;
        row.destination = each.destination;
        row.name = each.name;
        EXPECT_EQ(ExtractedName(row), each.expected) << each.destination << "|" << each.name;
    }
}

TEST(ExtractedScreenName, IsOneName)
{
    EXPECT_EQ(ExtractedScreenName("logo.bmp"), "DESOBJ\\logo.bmp");
    for (const char* name : {"../logo.bmp", "sub/logo.bmp", "..", "", "C:logo.bmp", "aux.bmp"})
        EXPECT_EQ(ExtractedScreenName(name), std::nullopt) << name;
}

} // namespace
} // namespace quillon
