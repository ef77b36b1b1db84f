#include "builder/one_by_one.h"

#include "builder/compression_setup.h"
#include "builder/file_container.h"
#include "builder/progress_display.h"
#include "builder/responsive_copy.h"
#include "builder/source_address.h"
#include "filelist/adding/system_files.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

// Where the routine is, for the line that reports its failure.
struct Layout {
    Text base;
    Text folder;
};

// A folder as the user will find it, also while the package is made beside an older one.
Text Shown(const CreateRun& run, const Text& folder)
{
    return run.DestDir + folder.substr(run.BuildFolder().size());
}

void ListFile(CreateRun& run, const Text& path)
{
    run.packageFiles.push_back(path.substr(run.BuildFolder().size() + 1));
}

void MakeFolder(CreateRun& run, const Text& folder)
{
    if (!run.host.files.DirCreate(folder))
        throw RunError(ErrorNumber::kPathFileAccess, folder);
}

void MakeBaseFolder(CreateRun& run, const Text& folder)
{
    const Text shown = Shown(run, folder);
    run.ask.AddStatusLine(run.host.files.DirExists(shown)
                              ? "Katalogen '" + shown + "' existerar redan. Behöver ej skapa."
                              : "Skapar '" + shown + "'");
    if (!run.host.files.DirExists(folder))
        MakeFolder(run, folder);
}

void CopyPlain(CreateRun& run, Layout& layout, const FileListRow& row)
{
    const bool keepsTree = run.options.CreateFolderStructureInFolderSetupFiles != kOff;
    layout.folder = keepsTree ? FolderInTree(layout.base, row[Destination]) : layout.base;
    if (keepsTree && !run.host.files.DirExists(layout.folder))
        MakeFolder(run, layout.folder);
    const Text target = OneByOnePath(run.options, layout.base, row);
    CopyResponsively(run.host.files, run.ask,
                     ConvertLongFilenameToShortFilename(run.host.files, row[Source]), target);
    ListFile(run, target);
    run.ask.AddStatusLine("Kopierar '" + row[Filename] + "'");
}

void CopyCompressed(CreateRun& run, const Layout& layout, const FileListRow& row)
{
    run.compression.IfcInitDynaZipStruct("", 0, CompressionLevel(run.form));
    run.compression.IfcResetFileList();
    const Text source = ConvertLongFilenameToShortFilename(run.host.files, row[Source]);
    const Text target = JoinPath(layout.base, MarkedName(row[Filename]));
    Integer result = CompressionResult::kSourceMissing;
    if (run.compression.IfcAddFileListItem(source) != 0)
        result = run.compression.IfcCreateZipFile(target, 0, "");
    run.compression.IfcFreeFileList();
    if (result > CompressionResult::kDone) {
        ReportCompressionError(run.ask, "'" + row[Filename] + "'", result,
                               "Saknar läsrättigheter till fil!");
        run.CreateFailed = true;
        run.compressionFailure.emplace(result, source);
        return;
    }
    ListFile(run, target);
    run.ask.AddStatusLine("Kopierar och komprimerar '" + row[Filename] + "'");
}

bool IsLeftOut(const CreateRun& run, const FileListRow& row)
{
    return !row.HasSource() || IsRowSkipped(row, run.project);
}

// A source that has gone is reported when its turn comes.
std::uint64_t SourceSize(const CreateRun& run, const FileListRow& row)
{
    std::uint64_t size = 0;
    RunErrorNumber([&] { size = run.host.files.Status(row[Source]).size; });
    return size;
}

void CopyAllFiles(CreateRun& run, Layout& layout)
{
    if (run.options.PlaceCompressedFilesInFolderSetupFiles != kOff)
        MakeBaseFolder(run, layout.base);
    std::uint64_t total = 0;
    for (const FileListRow& row : run.project.Files.rows)
        total += IsLeftOut(run, row) ? 0 : SourceSize(run, row);
    ProgressDisplay progress(run.ask);
    std::uint64_t done = 0;
    for (const FileListRow& row : run.project.Files.rows) {
        if (IsLeftOut(run, row))
            continue;
        if (CompressionLevel(run.form) == kStoredLevel)
            CopyPlain(run, layout, row);
        else
            CopyCompressed(run, layout, row);
        done += SourceSize(run, row);
        progress.Show(done, total);
    }
}

} // namespace

Text OneByOnePath(const CreateOptions& options, const Text& base, const FileListRow& row)
{
    if (options.CreateFolderStructureInFolderSetupFiles == kOff)
        return JoinPath(base, MarkedName(row[Filename]));
    return JoinPath(FolderInTree(base, row[Destination]), row[Filename]);
}

void CopyFilesOneByOne(CreateRun& run)
{
    const bool inSubfolder = run.options.PlaceCompressedFilesInFolderSetupFiles != kOff;
    const Text base = inSubfolder ? run.InDestination(kSetupFilesFolder) : run.BuildFolder();
    Layout layout{base, base};
    const auto copyAll = [&] { CopyAllFiles(run, layout); };
    if (RunErrorNumber(copyAll, run.failure) == ErrorNumber::kNone)
        return;
    // Kept: said also of a file that can't be copied.
    run.ask.AddStatusLine("Kan ej skapa katalogen '" + Shown(run, layout.folder) + "'!");
    run.isIncomplete = true;
}

} // namespace quillon
