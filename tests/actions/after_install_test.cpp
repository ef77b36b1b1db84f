#include "actions/after_install.h"

#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

FileListRow Row(const Text& name, const Text& extension, const Text& options,
                const Text& destination = "%DESTDIR")
{
    FileListRow row;
    row[Filename] = name;
    row[Destination] = destination;
    row[CopyOptions] = options;
    row[Extension] = extension;
    row[Source] = "c:\\d\\" + name;
    return row;
}

const FileList kFiles{.rows = {
                          Row("a.ocx", "ocx", "VRA", "%SYSDIR"),
                          Row("a.b.dll", "b.dll", "DA"),
                          Row("C.DLL", "DLL", "DA", "%DESTDIR\\Bin"),
                          Row("d.dll", "dll", "VRAW"),
                          Row("Prog.exe", "exe", "V"),
                          Row("r.txt", "txt", "dvr"),
                      }};

TEST(LinesToGather, TakesTheRowsThatAreMarked)
{
    EXPECT_EQ(LinesToGather("", kFiles, RowsToRegister::Marked),
              "%SYSDIR\\a.ocx\r\n%DESTDIR\\d.dll\r\n");
}

TEST(LinesToGather, TakesTheLibrariesByTheirWholeExtension)
{
    EXPECT_EQ(LinesToGather("", kFiles, RowsToRegister::Libraries),
              "%DESTDIR\\Bin\\C.DLL\r\n%DESTDIR\\d.dll\r\n");
}

TEST(LinesToGather, EndsTheListBeforeIt)
{
    const FileList one{.rows = {Row("a.dll", "dll", "R")}};
    for (const RowsToRegister which : {RowsToRegister::Marked, RowsToRegister::Libraries}) {
        EXPECT_EQ(LinesToGather("x", one, which), "\r\n%DESTDIR\\a.dll\r\n");
        // Kept: a line break that is there already is not counted.
        EXPECT_EQ(LinesToGather("%DESTDIR\\a.dll\r\n", one, which), "\r\n%DESTDIR\\a.dll\r\n");
        EXPECT_EQ(LinesToGather("x", {}, which), "\r\n");
        EXPECT_EQ(LinesToGather("", {}, which), "");
    }
}

TEST(IsRtfDocument, LooksForTheExtensionAnywhere)
{
    for (const char* name : {"a.rtf", "%DESTDIR\\A.RTF", "a.Rtf.bak"})
        EXPECT_TRUE(IsRtfDocument(name)) << name;
    for (const char* name : {"", "readme.txt", "artf", "rtf"})
        EXPECT_FALSE(IsRtfDocument(name)) << name;
}

TEST(DocumentOfRow, IsWhereTheSetupPutsTheFile)
{
    ScriptedAsk ask;
    EXPECT_EQ(DocumentOfRow(Row("Läs.txt", "txt", "D", "%DESTDIR\\Doc"), ask),
              "%DESTDIR\\Doc\\Läs.txt");
    EXPECT_EQ(DocumentOfRow(Row("a.txt", "txt", "D", ""), ask), "a.txt");
    EXPECT_EQ(DocumentOfRow(Row("a.txt", "", "", "<Filen saknas>"), ask), "a.txt");
    FileListRow folder = Row("<Dir>", "", "");
    folder[Source].clear();
    EXPECT_EQ(DocumentOfRow(folder, ask), std::nullopt);
}

TEST(DocumentOfRow, IsNoneThatAProjectCouldNotHold)
{
    const Text folder = "%DESTDIR\\" + Text(180, 'x');
    ScriptedAsk ask;
    EXPECT_EQ(DocumentOfRow(Row("åäö.t.txt", "", "", folder), ask), folder + "\\åäö.t.txt")
        << "199 characters";
    ask.Expect({BoxKind::Inform, "Ogiltig fil",
                "Sökvägen '" + folder + "\\0åäö.t.txt' är längre än 199 tecken!"});
    EXPECT_EQ(DocumentOfRow(Row("0åäö.t.txt", "", "", folder), ask), std::nullopt);
}

} // namespace
} // namespace quillon::test
