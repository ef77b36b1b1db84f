#include "runtime/extraction.h"

#include "formats/variable_names.h"
#include "helpers/number_text.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/planned_shortcuts.h"

#include <algorithm>

namespace quillon {

namespace {

// Each part of a destination as a name that leads nowhere else.
Text FolderBelow(const Text& destination)
{
    const Text mainFolder = Text(NameOf(VariableMeaning::MainFolder));
    Text folder;
    const Text whole = ReplaceAll(destination, "/", "\\");
    for (std::size_t at = 0; at <= whole.size();) {
        const std::size_t end = std::min(whole.find('\\', at), whole.size());
        const Text part = whole.substr(at, end - at);
        at = end + 1;
        if (part.empty() || part == mainFolder)
            continue;
        const Text name = AsFileName(ReplaceAll(ReplaceAll(part, "%", ""), ":", ""));
        if (FaultOfName(name) == PathFault::None)
            folder = folder.empty() ? name : JoinPath(folder, name);
    }
    return folder;
}

Text FreePath(const FileSystem& files, const Text& path, const InstallRow& row)
{
    return files.FileExists(path) || files.DirExists(path) ? path + "." + NumberText(row.number)
                                                           : path;
}

void MakeFolder(FileSystem& files, const Text& folder)
{
    if (!files.DirCreate(folder))
        throw RunError(ErrorNumber::kPathNotFound, folder);
}

} // namespace

Text ExtractedPath(const InstallRow& row)
{
    const Text folder = FolderBelow(row.destination);
    const Text name = IsEmptyFolderRow(row) ? Text() : row.name;
    return folder.empty() ? name : name.empty() ? folder : JoinPath(folder, name);
}

void ExtractPackage(const ExtractInput& input)
{
    FileSystem& files = input.files;
    if (files.FileExists(input.folder) ||
        (files.DirExists(input.folder) && !files.List(input.folder).empty()))
        throw SetupFailure(ExitCode::Failed,
                           input.texts(Message::ExtractFolderInUse, input.folder));
    MakeFolder(files, input.folder);
    std::uint64_t total = 0;
    std::uint64_t done = 0;
    for (const InstallRow& row : input.rows)
        total += row.size;
    for (const InstallRow& row : input.rows) {
        const Text path = JoinPath(input.folder, ExtractedPath(row));
        if (IsEmptyFolderRow(row)) {
            MakeFolder(files, path);
            continue;
        }
        if (!input.package.HasBytes(row)) {
            input.log.Skipped(path, {Message::SkipNoSource});
            continue;
        }
        MakeFolder(files, ExtractDirectory(path));
        const Text free = FreePath(files, path, row);
        const auto output = files.OpenOutput(free);
        input.package.Extract(row, [&](std::span<const std::byte> bytes) {
            output->Write(bytes);
            done += bytes.size();
            input.ask.ShowProgress(done, total);
            input.ask.ProcessEvents();
        });
        output->Close();
        files.SetModified(free, input.package.Modified(row));
        input.log.Line(Message::LogCopies, free);
    }
}

} // namespace quillon
