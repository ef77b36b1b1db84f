#include "shell/row_pool.h"

#include "filelist/list_builder.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

using test::MakeRow;

Text Packed(const FileListRow& row)
{
    Text packed = "left over";
    PackRow(row, packed);
    return packed;
}

TEST(PackedRow, ComesBackWhateverStandsInIt)
{
    FileListRow row = MakeRow("å;ä.txt", "%DESTDIR\\ö");
    row[Source] = Text("c:\\a\0b", 6);
    row[IconDesc].assign(127, 'd');
    row[IconPar].assign(128, 'p');
    row[IconWorkDir].assign(40000, 'w');
    EXPECT_EQ(UnpackRow(Packed(row)), row);
    EXPECT_EQ(UnpackRow(Packed({})), FileListRow());
}

TEST(PackedRow, IsAnotherOneWhereATextMovesToTheNextColumn)
{
    FileListRow row;
    row[Filename] = "ab";
    FileListRow other;
    other[Filename] = "a";
    other[Destination] = "b";
    EXPECT_NE(Packed(row), Packed(other));
}

TEST(RowPool, HoldsEachRowOnce)
{
    RowPool pool;
    const RowNumber a = pool.NumberOf(Packed(MakeRow("a")));
    const RowNumber b = pool.NumberOf(Packed(MakeRow("b")));
    EXPECT_NE(a, b);
    const std::size_t bytes = pool.Bytes();
    EXPECT_EQ(pool.NumberOf(Packed(MakeRow("a"))), a);
    EXPECT_EQ(pool.Bytes(), bytes);
    EXPECT_EQ(UnpackRow(pool.At(b)), MakeRow("b"));
}

TEST(RowPool, TakesTheNumbersOfForgottenRowsAgain)
{
    RowPool pool;
    const RowNumber a = pool.NumberOf(Packed(MakeRow("a")));
    const RowNumber b = pool.NumberOf(Packed(MakeRow("b")));
    const std::size_t bytes = pool.Bytes();
    std::vector<bool> used(pool.Size());
    used[b] = true;
    pool.KeepOnly(used);
    EXPECT_LT(pool.Bytes(), bytes);
    EXPECT_EQ(pool.NumberOf(Packed(MakeRow("b"))), b);
    EXPECT_EQ(pool.NumberOf(Packed(MakeRow("c"))), a);
    EXPECT_EQ(UnpackRow(pool.At(a)), MakeRow("c"));
    EXPECT_EQ(pool.Size(), 2U);
}

} // namespace
} // namespace quillon
