#include "app/history/edit_name.h"

#include "shell/command_table.h"

#include <algorithm>

namespace quillon {

namespace {

// They open, save or close the project, go from one state of it to another, or only look at it.
// Saving may fill a field in, which belongs to what was done before.
constexpr CommandId kNoSteps[] = {CommandId::NewProject,     CommandId::OpenProject,
                                  CommandId::SaveProject,    CommandId::SaveProjectAs,
                                  CommandId::ProjectManager, CommandId::Exit,
                                  CommandId::Undo,           CommandId::Redo,
                                  CommandId::Copy,           CommandId::FindInList};

bool MakesNoStep(CommandId id)
{
    return std::ranges::find(kRecentFiles, id) != kRecentFiles.end() ||
           std::ranges::find(kNoSteps, id) != std::end(kNoSteps);
}

} // namespace

Text EditName(CommandId id)
{
    const Command* command = FindCommand(id);
    if (!command || MakesNoStep(id))
        return {};
    // The package that was made stays; what goes back is the choice of medium and folder.
    if (id == CommandId::Create)
        return "Val av målmedium";
    return EditName(command->caption.empty() ? command->tooltip : command->caption);
}

Text EditName(std::string_view caption)
{
    if (caption.ends_with("..."))
        caption.remove_suffix(3);
    Text name;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && ++i == caption.size())
            break;
        name += caption[i];
    }
    return name;
}

Text EditName(Tab tab)
{
    switch (tab) {
    case Tab::Files:
        return "Ändra projektnamn och huvudkatalog";
    case Tab::Design:
        return "Ändra design";
    case Tab::Dialogs:
        return "Ändra dialogrutor";
    case Tab::Registry:
        return "Ändra Registry";
    case Tab::IniFiles:
        return "Ändra INI-filer";
    case Tab::Components:
        return "Ändra komponenter";
    }
    return {};
}

} // namespace quillon
