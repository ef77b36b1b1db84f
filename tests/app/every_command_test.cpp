// Every command of the menus and toolbars does something.
#include "app/MainForm.h"
#include "app/actions.h"
#include "shell/command_table.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

TEST(EveryCommand, HasAnAction)
{
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry)
            EXPECT_TRUE(FindAction(row.command.id)) << row.command.caption;
    for (const Command& command : ToolbarOnlyCommands())
        EXPECT_TRUE(FindAction(command.id)) << command.tooltip;
}

TEST_F(WindowTest, HasAPictureAndATipForEachCommand)
{
    MainForm form(session);
    const auto look = [&](CommandId command) {
        const int id = static_cast<int>(command);
        const auto* action = form.findChild<QAction*>(QString("cmd%1").arg(id));
        ASSERT_NE(action, nullptr) << id;
        EXPECT_FALSE(action->icon().isNull()) << id;
        EXPECT_FALSE(action->toolTip().isEmpty()) << id;
    };
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry)
            look(row.command.id);
    for (const Command& command : ToolbarOnlyCommands())
        look(command.id);
}

TEST(EveryCommand, IsNoTitleAndNoUnknownId)
{
    for (const int id : {0, 100, 106, 111, 159, 200, 204, 212, 213, 290, 295, 300, 303})
        EXPECT_EQ(FindAction(CommandId(id)), nullptr) << id;
}

} // namespace
} // namespace quillon::test
