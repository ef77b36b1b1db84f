#include "builder/selfextract/files_aside.h"

#include "builder/remove_quietly.h"
#include "builder/selfextract/self_extract_project.h"
#include "formats/package_files.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

// A folder, since the files of folders are not packed.
constexpr const char* kAsideFolder = "PROGRAM.OLD";
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

bool HasTemporaryNamesAside(const CreateRun& run)
{
    return std::ranges::any_of(kTemporaryNames, [&](const char* name) {
        return run.host.files.FileExists(PathAside(run, name));
    });
}

// Both are of an earlier run where its description is there, or where a killed one has already
// moved aside what had these names before it.
bool AreTemporaryFilesOurs(const CreateRun& run)
{
    return HasTemporaryNamesAside(run) ||
           IsSelfExtractProject(run.host.files, JoinPath(run.DestDir, kSelfExtractProject));
}

void RemoveTemporaryFiles(CreateRun& run)
{
    for (const char* name : kTemporaryNames)
        RemoveQuietly(run.host.files, JoinPath(run.DestDir, name));
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

// Our own make room: a failed run would leave them, but the user's files have these names.
void RestoreTemporaryNames(CreateRun& run)
{
    if (!HasTemporaryNamesAside(run))
        return;
    RemoveTemporaryFiles(run);
    for (const char* name : kTemporaryNames)
        if (run.host.files.FileExists(PathAside(run, name)))
            run.host.files.Rename(PathAside(run, name), JoinPath(run.DestDir, name));
}

} // namespace

void MoveFilesAside(CreateRun& run)
{
    if (!IsSelfExtracting(run))
        return;
    if (AreTemporaryFilesOurs(run))
        RemoveTemporaryFiles(run);
    else
        for (const char* name : kTemporaryNames)
            MoveAside(run, name);
    if (const Text name = ProgramName(run); !name.empty())
        MoveAside(run, name);
}

void RestoreFilesAside(CreateRun& run)
{
    if (!IsSelfExtracting(run))
        return;
    RunErrorNumber([&] { RestoreProgram(run); });
    RunErrorNumber([&] { RestoreTemporaryNames(run); });
    const Text folder = JoinPath(run.DestDir, kAsideFolder);
    RunErrorNumber([&] {
        if (run.host.files.DirExists(folder) && run.host.files.List(folder).empty())
            run.host.files.RemoveFolder(folder);
    });
}

} // namespace quillon
