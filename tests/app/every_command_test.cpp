// Every command of the menus and toolbars has an effect.
#include "app/MainForm.h"
#include "app/commands/actions.h"
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

TEST_F(WindowTest, ShowsTheHelpOfTheTabAndOfTheEntryInAnOpenMenu)
{
    machine.files.Put("C:\\Quillon\\QN.HLP", "# Arkiv\n## Sida {cmd101}\nText.\n");
    std::vector<HelpRequest> shown;
    session.helpWindow = [&](const auto&, const HelpRequest& request) { shown.push_back(request); };
    MainForm form(session);
    form.show();
    form.SelectTab(Tab::Registry);
    form.RunCommand(CommandId::Help);
    form.RunCommand(CommandId::HelpSearch);
    form.RunCommand(CommandId::HelpOnHelp);
    auto* menu = form.menuBar()->actions()[1]->menu();
    menu->popup({0, 0});
    menu->setActiveAction(
        form.findChild<QAction*>(QString("cmd%1").arg(static_cast<int>(CommandId::SortList))));
    QTest::keyClick(menu, Qt::Key_F1);
    EXPECT_FALSE(menu->isVisible());
    ASSERT_EQ(shown.size(), 4U);
    EXPECT_EQ(shown[0].command, CommandId::RegistryTab);
    EXPECT_TRUE(shown[1].searches);
    EXPECT_EQ(shown[2].command, CommandId::HelpOnHelp);
    EXPECT_EQ(shown[3].command, CommandId::SortList);
}

TEST(EveryCommand, IsNoTitleAndNoUnknownId)
{
    for (const int id : {0, 100, 106, 111, 159, 200, 204, 212, 213, 290, 295, 300, 303})
        EXPECT_EQ(FindAction(CommandId(id)), nullptr) << id;
}

} // namespace
} // namespace quillon::test
