#include "filelist/adding/add_target.h"

#include "filelist/components.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/components.h"

namespace quillon {

namespace {

// The paths as one text; several files of a folder follow it by their names.
Text SelectionText(const std::vector<Text>& paths)
{
    if (paths.size() == 1)
        return paths.front();
    Text selection = ExtractDirectory(paths.front());
    for (const Text& path : paths)
        selection += '\0' + ExtractFilename(path);
    return selection;
}

// Not every machine has such a folder, and an empty text would begin every path. After the folder
// comes a backslash, or the mark before the names of several files.
bool LiesInSystemFolder(const Text& selection, const Machine& machine)
{
    const Text folder = machine.GetSystemDir();
    const bool beginsSo = !folder.empty() && UpperCase(selection).starts_with(UpperCase(folder));
    return beginsSo && selection.size() > folder.size() &&
           (selection[folder.size()] == '\\' || selection[folder.size()] == '\0');
}

} // namespace

std::optional<AddTarget> ChooseComponentTarget(const ListWork& work)
{
    if (!IsAnyComponentInUse(work.project))
        return AddTarget{"%DESTDIR", ""};
    const auto entry = work.ask.ChooseComponent(ComponentListEntries(work.project));
    if (!entry)
        return std::nullopt;
    return AddTarget{GetCompDirFromListEntry(*entry), GetCompNrFromListEntry(*entry)};
}

DestinationQuestion PresetDestination(const std::vector<Text>& paths, const Text& componentFolder,
                                      const Machine& machine)
{
    using Place = DestinationQuestion::Place;
    const Text selection = SelectionText(paths);
    DestinationQuestion question{Place::User, componentFolder};
    if (ContainsText(selection, ".TTF") || ContainsText(selection, ".ttf"))
        question.folder = "%FONTDIR";
    // Kept: a name in capitals, or in mixed case, counts for fonts alone or not at all.
    if (ContainsText(selection, ".dll") || ContainsText(selection, ".ocx") ||
        LiesInSystemFolder(selection, machine))
        question = {Place::System, ""};
    return question;
}

std::optional<AddTarget> ChooseAddTarget(const ListWork& work, const std::vector<Text>& paths)
{
    std::optional<AddTarget> target = ChooseComponentTarget(work);
    if (!target)
        return std::nullopt;
    const auto destination = work.ask.ChooseDestination(
        PresetDestination(paths, target->Destination, work.host.machine));
    if (!destination)
        return std::nullopt;
    target->Destination = *destination;
    return target;
}

bool IsInRoot(const Text& path)
{
    return CharacterCount(RemoveLastBackslash(ExtractDirectory(path))) <= 2;
}

void RefuseFilesInRoot(Ask& ask)
{
    ask.Critical("Kan ej addera",
                 "Filer kan endast adderas från underkataloger på hårddisken till fillistan, ej "
                 "från rotkataloger. Vill du addera en fil som befinner sig i en rotkatalog kan du "
                 "kopiera den till en underkatalog och sedan addera den på nytt.");
}

bool RunAdding(const ListWork& work, const std::function<void()>& add)
{
    try {
        add();
        return true;
    } catch (const RunError&) {
        work.ask.Critical("Fel", "Ett fel inträffade när filerna adderades till fillistan!");
        return false;
    }
}

void NoteAddedRows(const ListWork& work, std::size_t rowsBefore)
{
    if (work.project.Files.rows.size() > rowsBefore)
        work.state.ProjectIsDirty = kOn;
}

} // namespace quillon
