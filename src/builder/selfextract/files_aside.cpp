#include "builder/selfextract/files_aside.h"

#include "builder/remove_quietly.h"
#include "builder/selfextract/self_extract_project.h"
#include "formats/package_files.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

// A folder, since the files of folders are not packed.
constexpr const char* kAsideFolder = "PROGRAM.OLD";
// The description goes last, since it says of both whose they are.
constexpr const char* kTemporaryNames[] = {kSelfExtractArchive, kSelfExtractProject};

bool IsSelfExtracting(const CreateRun& run)
{
    return run.form.TargetMedia == Medium::Internet;
}

Text PathAside(const CreateRun& run, const Text& name)
{
    return JoinPath(JoinPath(run.DestDir, kAsideFolder), name);
}

/// Empty where the name is none of a file in the folder.
Text ProgramName(const CreateRun& run)
{
    const Text& name = run.project.InstallOptionsInternet.SelfExtractFilename;
    return ExtractFilename(name) == name ? name : Text();
}

void MoveAside(CreateRun& run, const Text& name)
{
    FileSystem& files = run.host.files;
    const Text path = JoinPath(run.DestDir, name);
    if (!files.FileExists(path))
        return;
    const Text aside = PathAside(run, name);
    if (files.FileExists(aside))
        files.RemoveFile(aside);
    if (!files.DirExists(ExtractDirectory(aside)) && !files.DirCreate(ExtractDirectory(aside)))
        throw RunError(ErrorNumber::kPathFileAccess, ExtractDirectory(aside));
    files.Rename(path, aside);
}

/// Whether the file of that name is one that a run of Create has made: the description of an
/// earlier run says so of both, and what a killed run has moved aside says it of what came in its
/// place.
bool IsTemporary(const CreateRun& run, const char* name)
{
    return run.host.files.FileExists(PathAside(run, name)) ||
           IsSelfExtractProject(run.host.files, JoinPath(run.DestDir, kSelfExtractProject));
}

void RestoreProgram(CreateRun& run)
{
    FileSystem& files = run.host.files;
    const Text name = ProgramName(run);
    const Text aside = PathAside(run, name);
    if (name.empty() || !files.FileExists(aside))
        return;
    const Text path = JoinPath(run.DestDir, name);
    if (files.FileExists(path))
        files.RemoveFile(aside);
    else
        files.Rename(aside, path);
}

// Beside a description of ours the next run would take the user's archive for one of Create's.
void RestoreTemporaryName(CreateRun& run, const char* name)
{
    FileSystem& files = run.host.files;
    const Text aside = PathAside(run, name);
    if (!files.FileExists(aside))
        return;
    const Text description = JoinPath(run.DestDir, kSelfExtractProject);
    if (IsSelfExtractProject(files, description))
        RemoveQuietly(files, description);
    const Text path = JoinPath(run.DestDir, name);
    RemoveQuietly(files, path);
    files.Rename(aside, path);
}

} // namespace

void MoveFilesAside(CreateRun& run)
{
    if (!IsSelfExtracting(run))
        return;
    for (const char* name : kTemporaryNames)
        if (IsTemporary(run, name))
            RemoveQuietly(run.host.files, JoinPath(run.DestDir, name));
        else
            MoveAside(run, name);
    if (const Text name = ProgramName(run); !name.empty())
        MoveAside(run, name);
}

void RestoreFilesAside(CreateRun& run)
{
    if (!IsSelfExtracting(run))
        return;
    RunErrorNumber([&] { RestoreProgram(run); });
    for (const char* name : kTemporaryNames)
        RunErrorNumber([&] { RestoreTemporaryName(run, name); });
    const Text folder = JoinPath(run.DestDir, kAsideFolder);
    RunErrorNumber([&] {
        if (run.host.files.DirExists(folder) && run.host.files.List(folder).empty())
            run.host.files.RemoveFolder(folder);
    });
}

} // namespace quillon
