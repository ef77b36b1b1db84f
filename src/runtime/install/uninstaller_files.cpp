#include "runtime/install/uninstaller_files.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/whole_file.h"
#include "runtime/install/planned_shortcuts.h"
#include "runtime/journal/install_transaction.h"

namespace quillon {

namespace {

class UninstallerFiles {
public:
    UninstallerFiles(FileSystem& files, const Text& mainFolder, InstallTransaction& transaction)
        : files_(files), mainFolder_(mainFolder), transaction_(transaction)
    {
    }

    Text Stage(const RuntimeProgram& program, const Text& helpersFolder)
    {
        const Text staged = transaction_.StagingPath(JoinPath(mainFolder_, program.inPackage));
        files_.CopyContent(JoinPath(helpersFolder, program.inPackage), staged);
        return staged;
    }
    Text StageManifest(const Text& program)
    {
        const Text staged = transaction_.StagingPath(Place(RuntimePrograms::kUninstallerManifest));
        WriteWholeFile(files_, staged,
                       DigestText(DigestOfFile(files_, program)) + "  " +
                           RuntimePrograms::kSetup.inPackage + "\n");
        return staged;
    }
    void Put(const Text& staged, const char* name)
    {
        const Text path = Place(name);
        transaction_.PutFile(
            {staged, path, files_.FileExists(path), InstallTransaction::Recorded::No});
    }
    Text Place(const char* name) const { return JoinPath(mainFolder_, name); }

private:
    FileSystem& files_;
    const Text& mainFolder_;
    InstallTransaction& transaction_;
};

} // namespace

std::array<Text, 2> FilesOfUninstaller(const Text& mainFolder)
{
    return {JoinPath(mainFolder, RuntimePrograms::kSetup.inPackage),
            JoinPath(mainFolder, RuntimePrograms::kUninstallerManifest)};
}

// The program that the user starts is removed first and put back last: at every moment at which the
// setup may be killed, it exists only if what it starts exists too and fits the digest, so that it
// can repair the rest.
void PutUninstallerFiles(FileSystem& files, const Text& helpersFolder, const Text& mainFolder,
                         InstallTransaction& transaction)
{
    UninstallerFiles put(files, mainFolder, transaction);
    const Text setup = put.Stage(RuntimePrograms::kSetup, helpersFolder);
    const Text manifest = put.StageManifest(setup);
    const Text uninstaller = put.Stage(RuntimePrograms::kUninstaller, helpersFolder);
    if (const Text former = UninstallerPath(mainFolder); files.FileExists(former))
        transaction.RemoveFile(former);
    put.Put(setup, RuntimePrograms::kSetup.inPackage);
    put.Put(manifest, RuntimePrograms::kUninstallerManifest);
    put.Put(uninstaller, RuntimePrograms::kUninstaller.name);
}

} // namespace quillon
