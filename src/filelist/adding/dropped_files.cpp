#include "filelist/adding/dropped_files.h"

#include "filelist/adding/add_target.h"
#include "filelist/adding/tree_walk.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

class Drop {
public:
    Drop(const ListWork& work, const std::vector<Text>& paths, const AddTarget& target)
        : work_(work), paths_(paths), target_(target), listHadRows_(HasRows()),
          adding_(work.project.Files, work.host, work.ask)
    {
    }

    /// False, with a box that names the entry, where one ended it; the rows made so far stay.
    bool Run()
    {
        for (const Text& path : paths_)
            if (!Added(path))
                return false;
        return true;
    }

    NewPlaces Finish() { return adding_.Finish(); }

private:
    bool HasRows() const { return !work_.project.Files.rows.empty(); }
    bool IsAlone() const { return paths_.size() == 1; }
    // Files and folders from different places may have the same name, also where the list was
    // empty.
    bool Searches() const { return !IsAlone() || listHadRows_; }

    bool Added(const Text& path)
    {
        const bool isFolder = work_.host.files.DirExists(path);
        try {
            isFolder ? AddFolder(path) : AddFile(path);
            return true;
        } catch (const RunError& failure) {
            work_.ask.Critical("Fel", "Ett fel inträffade när filerna adderades till fillistan! " +
                                          WalkFailureText(failure, {.StartDirectory = path}));
            return false;
        }
    }

    void AddFolder(const Text& path)
    {
        // A drive has no name that could be below the destination.
        const Text name = IsAlone() ? Text() : ExtractFilename(RemoveLastBackslash(path));
        const bool keepsName = !name.empty() && !name.ends_with(':');
        AddTree(adding_, work_.host.files,
                {.StartDirectory = path,
                 .BaseDestination =
                     keepsName ? JoinPath(target_.Destination, name) : target_.Destination,
                 .ComponentNr = target_.ComponentNr,
                 .CheckDuplicates = Searches()});
    }

    void AddFile(const Text& path)
    {
        adding_.AddFileToFileList({.FileName = ExtractFilename(path),
                                   .SourcePath = path,
                                   .Destination = target_.Destination,
                                   .ComponentNr = target_.ComponentNr,
                                   .CheckDuplicates = true,
                                   .ShowDuplicateMessage = IsAlone(),
                                   .UseVersionRules = true});
    }

    const ListWork& work_;
    const std::vector<Text>& paths_;
    const AddTarget& target_;
    const bool listHadRows_;
    FileAdding adding_;
};

/// Takes the files out that lie in a drive's root; true if there are any.
bool TakeOutFilesInRoot(std::vector<Text>& paths, const FileSystem& files)
{
    return std::erase_if(paths, [&](const Text& path) {
               return IsInRoot(path) && !files.DirExists(path);
           }) > 0;
}

} // namespace

std::optional<NewPlaces> AddDroppedPaths(const ListWork& work, const std::vector<Text>& paths)
{
    std::vector<Text> taken = paths;
    if (TakeOutFilesInRoot(taken, work.host.files))
        RefuseFilesInRoot(work.ask);
    if (taken.empty())
        return std::nullopt;
    const auto target = ChooseAddTarget(work, taken);
    if (!target)
        return std::nullopt;

    const std::size_t rowsBefore = work.project.Files.rows.size();
    work.ask.ShowBusyPointer(true);
    work.ask.ShowStatusText("Adderar filer...");
    Drop drop(work, taken, *target);
    if (drop.Run())
        work.state.ProjectIsDirty = kOn;
    NoteAddedRows(work, rowsBefore);
    const NewPlaces places = drop.Finish();
    work.ask.ShowStatusText("");
    work.ask.ShowBusyPointer(false);
    return places;
}

void RefuseDropped(Ask& ask, const std::vector<Text>& names)
{
    if (names.empty())
        return;
    const Text others =
        names.size() == 1
            ? Text()
            : " och " + NumberText(static_cast<std::int64_t>(names.size()) - 1) + " till";
    ask.Critical("Kan ej addera",
                 "'" + names.front() + "'" + others +
                     " kan ej adderas till fillistan. Bara filer och kataloger på den här datorn "
                     "kan adderas, och ingen del av sökvägen får innehålla ett omvänt snedstreck. "
                     "Kopiera till en annan katalog, eller byt namn, och försök på nytt.");
}

} // namespace quillon
