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
    std::map<std::string_view, std::string_view> owners;
    for (const Command& command : AllCommands())
        if (!command.keys.empty())
            EXPECT_TRUE(owners.emplace(command.keys, command.caption).second)
                << command.keys << " of " << command.caption << " and " << owners[command.keys];
}

TEST(CommandTable, HasKeysForWhatIsDoneOften)
{
    const std::pair<CommandId, const char*> keys[] = {{CommandId::NewProject, "Ctrl+N"},
                                                      {CommandId::OpenProject, "Ctrl+O"},
                                                      {CommandId::SaveProject, "Ctrl+S"},
                                                      {CommandId::SaveProjectAs, "Ctrl+Shift+S"},
                                                      {CommandId::Create, "F7"},
                                                      {CommandId::Test, "Ctrl+T"},
                                                      {CommandId::Print, "Ctrl+P"},
                                                      {CommandId::Exit, "Ctrl+Q"},
                                                      {CommandId::AddFiles, "Ctrl+Shift+A"},
                                                      {CommandId::AddTree, "Ctrl+Shift+T"},
                                                      {CommandId::AddEmptyFolder, "Ctrl+Shift+K"},
                                                      {CommandId::UpdateFileList, "F5"},
                                                      {CommandId::DeleteRows, "Del"},
                                                      {CommandId::FileInfo, "Alt+Return"},
                                                      {CommandId::Undo, "Ctrl+Z"},
                                                      {CommandId::Redo, "Ctrl+Y"},
                                                      {CommandId::Copy, "Ctrl+C"},
                                                      {CommandId::Paste, "Ctrl+V"},
                                                      {CommandId::FilesTab, "Ctrl+1"},
                                                      {CommandId::ComponentsTab, "Ctrl+6"},
                                                      {CommandId::HelpContents, "F1"}};
    for (const auto& [id, expected] : keys)
        EXPECT_EQ(FindCommand(id)->keys, expected) << expected;
}

} // namespace
} // namespace quillon::test
