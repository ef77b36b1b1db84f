#include "filelist/view/status_text.h"

#include "filelist/list_builder.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {

TEST(StatusBarText, TellsRowsAndWholeKilobytes)
{
    ScriptedAsk ask;
    EXPECT_EQ(StatusBarText(FileList(), ',', ask), "0 objekt,   0,0 kb");

    FileList list = MakeList({MakeRow("a"), MakeRow("b")});
    list.rows[0][Size] = "10.5";
    list.rows[1][Size] = "20.0";
    EXPECT_EQ(StatusBarText(list, '.', ask), "2 objekt,   30.0 kb");
    list.rows[1][Size] = "12345.0";
    EXPECT_EQ(StatusBarText(list, '.', ask), "2 objekt,  12 356.0 kb");
}

TEST(SelectionText, CountsTheSelectedRows)
{
    EXPECT_EQ(SelectionText(2), "2 markerade objekt");
    EXPECT_EQ(SelectionText(32767), "32767 markerade objekt");
}

TEST(HasRowsForCommand, RefusesAnEmptyListInTheWordsOfTheCommandsNeed)
{
    ScriptedAsk ask({{BoxKind::Inform, "Info",
                      "Det finns inga filer i fillistan. Innan du kan använda detta kommando måste "
                      "du ha lagt in "
                      "filer i fillistan och markerat en fil."},
                     {BoxKind::Inform, "Info",
                      "Det finns inga filer i fillistan. Innan du kan använda detta kommando måste "
                      "du ha lagt in "
                      "filer i fillistan."}});
    EXPECT_FALSE(HasRowsForCommand(FileList(), CommandNeeds::SelectedRow, ask));
    EXPECT_FALSE(HasRowsForCommand(FileList(), CommandNeeds::Rows, ask));
    EXPECT_TRUE(HasRowsForCommand(MakeList({MakeRow("a")}), CommandNeeds::SelectedRow, ask));
    EXPECT_TRUE(HasRowsForCommand(MakeList({MakeRow("a")}), CommandNeeds::Rows, ask));
}

} // namespace quillon::test
