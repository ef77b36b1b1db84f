// Every command of the menus and toolbars does something.
#include "app/actions.h"
#include "shell/command_table.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(EveryCommand, HasAnAction)
{
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry)
            EXPECT_TRUE(FindAction(row.command.id)) << row.command.id;
    for (const Command& command : ToolbarOnlyCommands())
        EXPECT_TRUE(FindAction(command.id)) << command.id;
}

TEST(EveryCommand, IsNoTitleAndNoUnknownId)
{
    for (const int id : {0, 100, 106, 111, 159, 200, 204, 212, 213, 290, 295, 300, 303})
        EXPECT_EQ(FindAction(id), nullptr) << id;
}

} // namespace
} // namespace quillon::test
