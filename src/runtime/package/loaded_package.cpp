#include "runtime/package/loaded_package.h"

#include "formats/package.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

template <class Take>
void ReadPart(const FileSystem& files, const Text& folder, const Text& name, LoadedPackage& package,
              Take take)
{
    const int failure = RunErrorNumber([&] { take(ReadWholeFile(files, JoinPath(folder, name))); });
    if (failure != ErrorNumber::kNone && !package.fault)
        package.fault = {Message::PackageFileMissing, name};
}

LoadedPackage ReadSetupInformationFile(const FileSystem& files, const Text& folder)
{
    LoadedPackage package;
    ReadPart(files, folder, kSetupInformationName, package,
             [&](const std::string& bytes) { package.setup = ReadSetupInformation(bytes); });
    return package;
}

void TellBrokenInformation(LoadedPackage& package)
{
    if (!package.fault && !package.setup.isWhole)
        package.fault = {Message::PackageFileIncomplete, kSetupInformationName};
}

void ReadLanguageFile(const FileSystem& files, const Text& path, LoadedPackage& package)
{
    RunErrorNumber([&] {
        if (files.FileExists(path) && files.Status(path).size <= kMaxLanguageFileSize)
            package.texts = LanguageTexts(ReadWholeFile(files, path));
    });
}

// Without the language file, all texts are in Swedish.
void ReadLanguage(const FileSystem& files, const Text& folder, LoadedPackage& package)
{
    const Text& name = package.setup.project.Language.LanguageFile;
    if (FaultOfName(name) != PathFault::None)
        return;
    ReadLanguageFile(files, JoinPath(folder, name), package);
}

} // namespace

LoadedPackage LoadPackage(const FileSystem& files, const Text& packageFolder,
                          const Text& languageFile)
{
    LoadedPackage package = ReadSetupInformationFile(files, packageFolder);
    package.manifest = ReadPackageManifest(files, packageFolder);
    ReadPart(files, packageFolder, kFileListName, package, [&](const std::string& bytes) {
        InstallFileList list = ReadInstallFileList(bytes);
        package.rows = std::move(list.rows);
        if (!list.isWhole)
            package.fault = {Message::PackageFileIncomplete, kFileListName};
    });
    TellBrokenInformation(package);
    if (!package.fault && package.setup.isPreview)
        package.fault = {Message::PackageForPreview, kSetupInformationName};
    if (!package.fault && package.setup.Files != Long(package.rows.size()))
        package.fault = {Message::PackageFilesDiffer, kSetupInformationName, kFileListName};
    ReadLanguage(files, packageFolder, package);
    if (!languageFile.empty())
        ReadLanguageFile(files, JoinPath(packageFolder, languageFile), package);
    return package;
}

LoadedPackage LoadSetupInformation(const FileSystem& files, const Text& packageFolder)
{
    LoadedPackage package = ReadSetupInformationFile(files, packageFolder);
    TellBrokenInformation(package);
    ReadLanguage(files, packageFolder, package);
    return package;
}

} // namespace quillon
