// Commands whose window does not exist yet are shown disabled. This list may only get shorter.
#include "app/actions.h"
#include "shell/command_table.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace quillon::test {
namespace {

// clang-format off
const std::set<int> kLaterCommands = {
    105, 110,
    157,
};
// clang-format on

TEST(LaterCommands, AreTheOnlyOnesWithoutAnAction)
{
    std::set<int> withoutAction;
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry && !FindAction(row.command.id))
            withoutAction.insert(row.command.id);
    for (const Command& command : ToolbarOnlyCommands())
        if (!FindAction(command.id))
            withoutAction.insert(command.id);
    EXPECT_EQ(withoutAction, kLaterCommands);
}

TEST(LaterCommands, LeaveTitlesAndUnknownIdsWithoutAnAction)
{
    for (const int id : {0, 100, 106, 111, 159, 200, 204, 212, 213, 290, 295, 300, 303})
        EXPECT_EQ(FindAction(id), nullptr) << id;
}

} // namespace
} // namespace quillon::test
