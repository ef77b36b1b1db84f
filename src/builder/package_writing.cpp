#include "builder/package_writing.h"

#include "builder/progress_display.h"
#include "builder/remove_quietly.h"
#include "builder/source_address.h"
#include "filelist/adding/system_files.h"
#include "formats/package.h"
#include "helpers/windows_path.h"

#include <algorithm>
#include <set>

namespace quillon {

namespace {

constexpr const char* kStagingName = "PACKAGE.NEW";
// What a package takes beside the bytes of its rows: the runtime, the lists, pictures.
constexpr std::uint64_t kRoomBesideRows = 16 * 1024 * 1024;

Text StagingFolder(const CreateRun& run)
{
    return JoinPath(run.DestDir, kStagingName);
}

bool HoldsManifest(const FileSystem& files, const Text& folder)
{
    return files.FileExists(JoinPath(folder, kManifestName));
}

void RemoveTree(FileSystem& files, const Text& folder)
{
    for (const FolderEntry& entry : files.List(folder)) {
        const Text path = JoinPath(folder, entry.name);
        if (entry.status.isFolder)
            RemoveTree(files, path);
        else
            files.RemoveFile(path);
    }
    files.RemoveFolder(folder);
}

// Only what a run of Create has made: its first file in there is an empty manifest.
void RemoveStaging(FileSystem& files, const Text& folder)
{
    if (files.DirExists(folder) && (HoldsManifest(files, folder) || files.List(folder).empty()))
        RemoveTree(files, folder);
}

bool IsPacked(const CreateRun& run, const FileListRow& row)
{
    return row.HasSource() && !IsRowSkipped(row, run.project);
}

std::uint64_t RoomForAnother(const CreateRun& run)
{
    std::uint64_t room = kRoomBesideRows;
    if (run.form.TargetMedia == Medium::CompressedCd)
        for (const FileListRow& row : run.project.Files.rows)
            RunErrorNumber([&] {
                if (IsPacked(run, row))
                    room += run.host.files.Status(row[Source]).size;
            });
    return room;
}

bool StandsBesideAnOlderOne(const CreateRun& run)
{
    const FileSystem& files = run.host.files;
    const bool fitsTwice =
        run.form.TargetMedia == Medium::CompressedCd || run.form.TargetMedia == Medium::CdTree;
    return fitsTwice && HoldsManifest(files, run.DestDir) &&
           files.Status(JoinPath(run.DestDir, kManifestName)).size > 0 &&
           files.FreeSpace(run.DestDir) >= RoomForAnother(run);
}

struct FileToDigest {
    Text name;
    Text path;
};

// The user lays the files of a tree out later; their digests are known now.
void AddTree(const CreateRun& run, std::vector<FileToDigest>& found)
{
    for (const FileListRow& row : run.project.Files.rows) {
        if (!IsPacked(run, row))
            continue;
        const Text source = ConvertLongFilenameToShortFilename(run.host.files, row[Source]);
        found.push_back({TreeFileName(SourceFolderOnMedium(source), row[Filename]), source});
    }
}

std::vector<FileToDigest> FilesToDigest(const CreateRun& run)
{
    std::vector<FileToDigest> found;
    for (const Text& name : run.packageFiles)
        found.push_back({name, run.InDestination(name)});
    if (run.form.TargetMedia == Medium::CdTree)
        AddTree(run, found);
    // Several rows may share a file.
    std::set<Text> names;
    std::erase_if(found, [&](const FileToDigest& file) {
        return !names.insert(LowerCase(file.name)).second;
    });
    return found;
}

std::vector<ManifestLine> LinesOf(CreateRun& run, const std::vector<FileToDigest>& found)
{
    const FileSystem& files = run.host.files;
    std::uint64_t total = 0;
    for (const FileToDigest& file : found)
        total += files.Status(file.path).size;
    ProgressDisplay progress(run.ask);
    std::uint64_t done = 0;
    std::vector<ManifestLine> lines = run.piecesOnDisks;
    for (const FileToDigest& file : found)
        lines.push_back({file.name, DigestOfFile(files, file.path, [&](std::size_t count) {
                             done += count;
                             progress.Show(done, total);
                         })});
    return lines;
}

void MoveIntoPlace(CreateRun& run)
{
    FileSystem& files = run.host.files;
    for (const Text& name : run.packageFiles) {
        const Text target = JoinPath(run.DestDir, name);
        if (!files.DirExists(ExtractDirectory(target)) &&
            !files.DirCreate(ExtractDirectory(target)))
            throw RunError(ErrorNumber::kPathFileAccess, target);
        files.Rename(run.InDestination(name), target);
    }
    // The older package may have had pictures, and this one has none.
    if (std::ranges::find(run.packageFiles, kDesignContainerName) == run.packageFiles.end())
        RemoveQuietly(files, JoinPath(run.DestDir, kDesignContainerName));
}

} // namespace

Step BeginPackage(CreateRun& run)
{
    FileSystem& files = run.host.files;
    // Everything in that medium's folder goes into one program, and its manifest with it.
    if (run.form.TargetMedia == Medium::Internet)
        return Step::GoOn;
    RunErrorNumber([&] { RemoveStaging(files, StagingFolder(run)); });
    const bool isStaged = StandsBesideAnOlderOne(run) && !files.DirExists(StagingFolder(run)) &&
                          files.DirCreate(StagingFolder(run));
    if (isStaged)
        run.stagingFolder = StagingFolder(run);
    // Where it can't be written, the next step fails too and reports it.
    RunErrorNumber([&] { WriteUnfinishedManifest(files, run.BuildFolder()); });
    return Step::GoOn;
}

Step FinishPackage(CreateRun& run)
{
    if (run.CreateFailed || run.isIncomplete)
        return Step::GoOn;
    FileSystem& files = run.host.files;
    std::vector<ManifestLine> lines;
    const auto digest = [&] { lines = LinesOf(run, FilesToDigest(run)); };
    if (RunErrorNumber(digest, run.failure) != ErrorNumber::kNone) {
        run.CreateFailed = true;
        return Step::GoOn;
    }
    if (!run.stagingFolder.empty()) {
        WriteUnfinishedManifest(files, run.DestDir);
        MoveIntoPlace(run);
    }
    WritePackageManifest(files, run.DestDir, std::move(lines));
    return Step::GoOn;
}

void LeavePackage(CreateRun& run)
{
    if (!run.stagingFolder.empty())
        RunErrorNumber([&] { RemoveTree(run.host.files, run.stagingFolder); });
    run.stagingFolder.clear();
}

} // namespace quillon
