#include "builder/selfextract/older_program.h"

#include "builder/remove_quietly.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

// A folder, since the files of folders are not packed.
constexpr const char* kOlderProgramFolder = "PROGRAM.OLD";

struct OlderProgram {
    Text path;
    Text folder;
    Text aside;
};

/// Nothing where the name is none of a file in the folder.
std::optional<OlderProgram> OlderProgramOf(const CreateRun& run)
{
    const Text& name = run.project.InstallOptionsInternet.SelfExtractFilename;
    if (run.form.TargetMedia != Medium::Internet || name.empty() || ExtractFilename(name) != name)
        return std::nullopt;
    const Text folder = JoinPath(run.DestDir, kOlderProgramFolder);
    return OlderProgram{JoinPath(run.DestDir, name), folder, JoinPath(folder, name)};
}

} // namespace

void MoveOlderProgramAside(CreateRun& run)
{
    FileSystem& files = run.host.files;
    const auto older = OlderProgramOf(run);
    if (!older || !files.FileExists(older->path))
        return;
    RunErrorNumber([&] {
        if (files.FileExists(older->aside))
            files.RemoveFile(older->aside);
        if (files.DirExists(older->folder) || files.DirCreate(older->folder))
            files.Rename(older->path, older->aside);
    });
    RemoveQuietly(files, older->path);
}

void RemoveOrRestoreOlderProgram(CreateRun& run)
{
    FileSystem& files = run.host.files;
    const auto older = OlderProgramOf(run);
    if (!older || !files.FileExists(older->aside))
        return;
    RunErrorNumber([&] {
        if (files.FileExists(older->path))
            files.RemoveFile(older->aside);
        else
            files.Rename(older->aside, older->path);
        files.RemoveFolder(older->folder);
    });
}

} // namespace quillon
