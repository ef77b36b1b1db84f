#include "filelist/options/copy_options.h"

#include "filelist/list_builder.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

CopyOptionTicks TicksOf(const Text& letters)
{
    FileList files = MakeList({MakeRow("a.txt")});
    files.rows[0][CopyOptions] = letters;
    const std::size_t row[] = {0};
    return StartingTicks(files, row);
}

TEST(CopyOptions, AreTickedByTheirLetterWhereverItStands)
{
    for (std::size_t box = 0; box < kCopyOptionBoxes; ++box) {
        CopyOptionTicks expected{};
        expected[box] = true;
        EXPECT_EQ(TicksOf(Text(1, kCopyOptions[box].letter)), expected) << kCopyOptions[box].letter;
    }
    EXPECT_EQ(TicksOf("EV"), TicksOf("VE"));
    EXPECT_EQ(TicksOf("DWFN"), TicksOf("DNW")) << "the letter of fonts has no box";
    EXPECT_EQ(TicksOf(""), CopyOptionTicks{});
}

TEST(CopyOptions, StartBlankForSeveralRows)
{
    FileList files = MakeList({MakeRow("a"), MakeRow("b")});
    files.rows[0][CopyOptions] = files.rows[1][CopyOptions] = "DA";
    const std::size_t both[] = {0, 1};
    EXPECT_EQ(StartingTicks(files, both), CopyOptionTicks{});
    EXPECT_EQ(StartingTicks(files, {}), CopyOptionTicks{});
}

TEST(CopyOptions, AreWrittenInTheirOrder)
{
    struct Case {
        const char* ticked;
        const char* written;
    };
    for (const Case& given :
         {Case{"*BPWSARXD", "DXRASWPB*"}, Case{"WAV", "VAW"}, Case{"EWAV", "VAWE"}, Case{"E", ""},
          Case{"DE", "D"}, Case{"NE", "N"}, Case{"EV", "VE"}, Case{"", ""}, Case{"*", "*"},
          Case{"*EBPWSARXNVD", "DVNXRASWPBE*"}})
        EXPECT_EQ(CopyOptionLetters(TicksOf(given.ticked)), given.written) << given.ticked;
}

TEST(CopyOptions, NeedARowWithAFile)
{
    const FileList files = MakeList({MakeRow("<Dir>"), MakeRow("a", "%DESTDIR", "c:\\a")});
    const auto canHave = [&](std::vector<std::size_t> rows) {
        return CanHaveCopyOptions(files, rows);
    };
    EXPECT_FALSE(canHave({}));
    EXPECT_FALSE(canHave({0}));
    EXPECT_TRUE(canHave({1}));
    EXPECT_TRUE(canHave({0, 1}));
}

TEST(CopyOptions, ReplaceTheLettersOfAllSelectedRows)
{
    FileList files = MakeList(
        {MakeRow("<Dir>"), MakeRow("a.ttf", "%FONTDIR", "c:\\a.ttf"), MakeRow("b", "x", "c:\\b")});
    files.rows[1][CopyOptions] = "DWF";
    files.rows[2][CopyOptions] = "VA";
    files.rows[2][IconMarker] = "Ikon";
    FileList expected = files;
    const std::size_t rows[] = {0, 1};
    SetCopyOptions(files, rows, "DW");
    expected.rows[0][CopyOptions] = "DW";
    expected.rows[1][CopyOptions] = "DW"; // not registered as a font any more
    EXPECT_EQ(files.rows, expected.rows);
}

} // namespace
} // namespace quillon::test
