#include "shell/command_table.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

std::vector<Command> AllCommands()
{
    std::vector<Command> commands;
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry)
            commands.push_back(row.command);
    return commands;
}

TEST(CommandTable, GivesEachKeyToOneCommand)
{
    std::map<std::string_view, int> owners;
    for (const Command& command : AllCommands())
        if (!command.keys.empty())
            EXPECT_TRUE(owners.emplace(command.keys, command.id).second)
                << command.keys << " of " << command.id << " and " << owners[command.keys];
}

TEST(CommandTable, HasKeysForWhatIsDoneOften)
{
    const std::pair<int, const char*> keys[] = {
        {101, "Ctrl+N"},       {102, "Ctrl+O"},       {103, "Ctrl+S"},
        {104, "Ctrl+Shift+S"}, {108, "F7"},           {109, "Ctrl+T"},
        {110, "Ctrl+P"},       {112, "Ctrl+Q"},       {205, "Ctrl+Shift+A"},
        {206, "Ctrl+Shift+T"}, {207, "Ctrl+Shift+K"}, {124, "F5"},
        {114, "Del"},          {119, "Alt+Return"},   {215, "Ctrl+Z"},
        {216, "Ctrl+Y"},       {136, "Ctrl+C"},       {137, "Ctrl+V"},
        {147, "Ctrl+1"},       {152, "Ctrl+6"},       {153, "F1"}};
    for (const auto& [id, expected] : keys)
        EXPECT_EQ(FindCommand(id)->keys, expected) << id;
}

} // namespace
} // namespace quillon::test
