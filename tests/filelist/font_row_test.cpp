#include "filelist/options/font_row.h"

#include "list_builder.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

FileListRow FontRow(const Text& options, const Text& description = {})
{
    FileListRow row = MakeRow("a.ttf", "%FONTDIR", "c:\\d\\a.ttf");
    row[Extension] = "ttf";
    row[CopyOptions] = options;
    row[IconDesc] = description;
    return row;
}

TEST(IsFontToRegister, TakesFontsOfOneKindAlone)
{
    for (const char* extension : {"ttf", "TTF", "Ttf"}) {
        FileListRow row = FontRow("D");
        row[Extension] = extension;
        ScriptedAsk ask;
        EXPECT_TRUE(IsFontToRegister(row, ask)) << extension;
    }
    for (const char* extension : {"", "fon", "otf", "ttf.bak", "b.ttf"}) {
        FileListRow row = FontRow("D");
        row[Extension] = extension;
        ScriptedAsk ask{{{BoxKind::Inform, "Info",
                          "Filen är inte en TrueType-font! Quillon kan bara installera "
                          "TrueType-fonter med namntillägget '.ttf'!"}}};
        EXPECT_FALSE(IsFontToRegister(row, ask)) << extension;
    }
}

TEST(FontOf, IsRegisteredByTheLetter)
{
    EXPECT_EQ(FontOf(FontRow("DWF", "Blad")),
              (RowFont{.isRegistered = kOn, .description = "Blad"}));
    EXPECT_EQ(FontOf(FontRow("DWFN", "")), (RowFont{.isRegistered = kOn}));
    EXPECT_EQ(FontOf(FontRow("DW", "Blad")), RowFont()) << "what stands there is no font's name";
    EXPECT_EQ(FontOf(FontRow("")), RowFont());
}

TEST(SetFont, WritesLettersAndName)
{
    for (const char* before : {"", "D", "VRAW*", "DWF", "DWFN"}) {
        FileListRow row = FontRow(before, "Gammal");
        SetFont(row, {.isRegistered = kOn, .description = "Blad"}, false);
        EXPECT_EQ(row, FontRow("DWF", "Blad"));
        SetFont(row, {.isRegistered = kOn, .description = "Blad"}, true);
        EXPECT_EQ(row, FontRow("DWFN", "Blad"));
        // Kept: a font that is not registered loses its other options as well.
        row = FontRow(before, "Gammal");
        SetFont(row, {.description = "Blad"}, true);
        EXPECT_EQ(row, FontRow("D"));
    }
}

} // namespace
} // namespace quillon::test
