#include "runtime/package/extraction.h"

#include "formats/variable_names.h"
#include "helpers/number_text.h"
#include "helpers/sha256.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>
#include <unordered_set>

namespace quillon {

namespace {

// Each part of a destination as a valid name, so that none leads out of the folder.
Text FolderBelow(const Text& destination)
{
    const Text mainFolder = Text(NameOf(VariableMeaning::MainFolder));
    Text folder;
    for (const Text& part : PathParts(destination)) {
        if (part == mainFolder)
            continue;
        const Text name = AsFileName(ReplaceAll(ReplaceAll(part, "%", ""), ":", ""));
        if (FaultOfName(name) == PathFault::None)
            folder = folder.empty() ? name : JoinPath(folder, name);
    }
    return folder;
}

void MakeFolder(FileSystem& files, const Text& folder)
{
    if (!files.DirCreate(folder))
        throw RunError(ErrorNumber::kPathNotFound, folder);
}

struct ExtractedFile {
    const InstallRow* row;
    Text path;
};

// Makes the folders, and gives the files their names, in the order of the rows.
std::vector<ExtractedFile> LayOut(const ExtractInput& input)
{
    std::vector<ExtractedFile> files;
    std::unordered_set<Text> taken; // in lower case
    for (const InstallRow& row : input.rows) {
        const Text path = JoinPath(input.folder, ExtractedPath(row));
        if (IsEmptyFolderRow(row)) {
            MakeFolder(input.files, path);
            continue;
        }
        if (!input.package.HasBytes(row)) {
            input.log.Skipped(path, {Message::SkipNoSource});
            continue;
        }
        MakeFolder(input.files, ExtractDirectory(path));
        const bool isFree = !input.files.DirExists(path) && taken.insert(LowerCase(path)).second;
        files.push_back({&row, isFree ? path : path + "." + NumberText(row.number)});
    }
    return files;
}

// A solid container is unpacked from its beginning to its end; going back costs a frame each time.
void PutInOrder(std::vector<ExtractedFile>& files, const PackageReader& package)
{
    std::stable_sort(files.begin(), files.end(), [&](const auto& a, const auto& b) {
        return package.Position(*a.row) < package.Position(*b.row);
    });
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
    std::vector<ExtractedFile> extracted = LayOut(input);
    PutInOrder(extracted, input.package);
    for (const auto& [row, path] : extracted) {
        const auto output = files.OpenOutput(path);
        Sha256 digest;
        input.package.Extract(*row, [&](std::span<const std::byte> bytes) {
            output->Write(bytes);
            digest.Add(bytes);
            done += bytes.size();
            input.ask.ShowProgress(done, total);
            input.ask.ProcessEvents();
        });
        output->Close();
        try {
            input.package.CheckDigest(*row, digest.Finish());
        } catch (const SetupFailure&) {
            files.RemoveFile(path);
            throw;
        }
        files.SetModified(path, input.package.Modified(*row));
        input.log.Line(Message::LogCopies, path);
    }
}

} // namespace quillon
