#include "filelist/adding/add_files_command.h"

#include "filelist/adding/add_target.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kFilter =
    "Alla filer (*.*)|*.*|Exekverbara filer (*.exe;*.dll;*.ocx;*.vbx)|*.exe;*.dll;*.ocx;*.vbx|"
    "ActiveX (*.ocx)|*.ocx|Dynamic Link Libraries (*.dll)|*.dll|Hjälp-filer (*.hlp)|*.hlp|"
    "Word-dokument (*.doc)|*.doc|Textfiler (*.txt)|*.txt|Ikon-filer (*.ico)|*.ico";

FileToAdd FileFrom(const Text& path, const AddTarget& target)
{
    return {.FileName = ExtractFilename(path),
            .SourcePath = path,
            .Destination = target.Destination,
            .ComponentNr = target.ComponentNr,
            .UseVersionRules = true};
}

void AddSingleFile(FileAdding& adding, const Text& path, const AddTarget& target)
{
    FileToAdd file = FileFrom(path, target);
    file.CheckDuplicates = true;
    file.ShowDuplicateMessage = true;
    adding.AddFileToFileList(file);
}

bool LieInOneFolder(const std::vector<Text>& paths)
{
    const Text folder = ExtractDirectory(paths.front());
    return std::ranges::all_of(
        paths, [&](const Text& path) { return EqualIgnoreCase(ExtractDirectory(path), folder); });
}

// With several files a duplicate is left out silently. An empty list is not searched, since the
// files of a folder have names of their own; those of several folders may not.
void AddManyFiles(FileAdding& adding, const std::vector<Text>& paths, const AddTarget& target,
                  bool listHadRows)
{
    const bool searches = listHadRows || !LieInOneFolder(paths);
    for (const Text& path : paths) {
        FileToAdd file = FileFrom(path, target);
        if (FirstCharacters(file.FileName, 2).ends_with(':'))
            continue;
        file.CheckDuplicates = searches;
        adding.AddFileToFileList(file);
    }
}

} // namespace

std::optional<NewPlaces> AddFilesCommand(const ListWork& work, Text& lastAddFilesDirectory,
                                         FileQuestion::Look look)
{
    FileList& files = work.project.Files;
    const std::size_t rowsBefore = files.rows.size();
    const std::vector<Text> paths = work.ask.OpenFiles({.title = "Addera filer",
                                                        .folder = lastAddFilesDirectory,
                                                        .fileName = "*.*",
                                                        .filter = kFilter,
                                                        .look = look});
    if (paths.empty())
        return std::nullopt;
    const std::optional<AddTarget> target = ChooseAddTarget(work, paths);
    if (!target)
        return std::nullopt;
    if (std::ranges::any_of(paths, IsInRoot)) {
        RefuseFilesInRoot(work.ask);
        return std::nullopt;
    }

    FileAdding adding(files, work.host, work.ask);
    const bool done = RunAdding(work, [&] {
        if (paths.size() == 1)
            AddSingleFile(adding, paths.front(), *target);
        else
            AddManyFiles(adding, paths, *target, rowsBefore > 0);
    });
    if (done) {
        lastAddFilesDirectory = ExtractDirectory(paths.front());
        work.state.ProjectIsDirty = kOn;
    }
    NoteAddedRows(work, rowsBefore);
    return adding.Finish();
}

} // namespace quillon
