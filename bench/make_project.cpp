// make_project FOLDER PROJECT.qnp: a project that installs everything in a folder of this machine,
// for measuring what Create takes. Each file gets its row the way the user's commands make rows.
#include "filelist/adding/add_file.h"
#include "helpers/windows_path.h"
#include "platform/posix/posix_host.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "support/one_file_host.h"

#include <cstdio>
#include <cstdlib>

namespace quillon::bench {
namespace {

void AddFolder(FileAdding& adding, const FileSystem& files, const Text& folder,
               const Text& destination)
{
    for (const FolderEntry& entry : files.List(folder)) {
        const Text path = JoinPath(folder, entry.name);
        if (entry.status.isFolder)
            AddFolder(adding, files, path, JoinPath(destination, entry.name));
        else
            adding.AddFileToFileList({.FileName = entry.name,
                                      .SourcePath = path,
                                      .Destination = destination,
                                      .CheckDuplicates = true,
                                      .UseVersionRules = true});
    }
}

int MakeProject(const char* folder, const char* projectFile)
{
    PosixHost posix;
    const auto windowsFolder = posix.drives.ToWindows(folder);
    const auto windowsProject = posix.drives.ToWindows(projectFile);
    if (!windowsFolder || !windowsProject) {
        std::fprintf(stderr, "make_project: give absolute paths without backslashes\n");
        return EXIT_FAILURE;
    }
    test::SilentUser user; // who counts the rows sees what was refused
    Project project;
    OpenProjectState state;
    ResetToNewProject(project, state, "C:\\Quillon");
    // The pictures of the setup's dialogs lie beside the tool, and this program is none.
    project.DialogBoxes.DlgBitmap.clear();
    for (Text section::DialogBoxData::*picture :
         {&section::DialogBoxData::WelcomeDlgBitmap, &section::DialogBoxData::GeneralDlgBitmap,
          &section::DialogBoxData::GeneralDlgBitmap2,
          &section::DialogBoxData::StartInstallDlgBitmap,
          &section::DialogBoxData::InstallCompleteDlgBitmap,
          &section::DialogBoxData::NameCompanyDlgBitmap})
        (project.DialogBoxData.*picture).clear();
    project.ProjectName.ProjectName = "Mätning";
    project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Matning";
    project.Files.sorted = false; // a tree keeps the order in which it was walked
    {
        FileAdding adding(project.Files, posix.host, user);
        AddFolder(adding, posix.files, *windowsFolder, "%DESTDIR");
    }
    WriteProjectFile(project, *windowsProject, posix.host, user);
    std::printf("%zu\n", project.Files.rows.size());
    return EXIT_SUCCESS;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: make_project FOLDER PROJECT.qnp\n");
        return 2;
    }
    try {
        return quillon::bench::MakeProject(argv[1], argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_project: %s\n", error.what());
        return EXIT_FAILURE;
    }
}
