#include "formats/package_contents_check.h"

#include "formats/package_contents.h"
#include "formats/row_safety.h"
#include "helpers/windows_path.h"

#include <set>

namespace quillon {

namespace {

// Faults of the INF files and the container were reported when they were read.
bool IsToldAlready(const Text& name)
{
    return EqualIgnoreCase(name, kSetupInformationName) || EqualIgnoreCase(name, kFileListName) ||
           EqualIgnoreCase(ExtractFilename(name), kFileContainerName);
}

/// Every file that the package must hold, the bytes of its rows included.
std::vector<Text> AllFilesOf(const Package& package)
{
    std::vector<Text> names = FixedFilesOf(package.setup, package.rows);
    const std::vector<Text> pieces = ContainerPieces(package.setup, package.rows);
    names.insert(names.end(), pieces.begin(), pieces.end());
    for (std::size_t i = 0; i < package.rows.size(); ++i)
        if (!package.bytes[i].path.empty() && package.bytes[i].place != RowBytes::Place::None)
            names.push_back(LooseFileName(package.setup, package.rows[i]));
    return names;
}

void CheckMissing(const FileSystem& files, const Package& package, std::vector<Text>& faults)
{
    for (const Text& name : FixedFilesOf(package.setup, package.rows))
        if (FaultOfName(name) != PathFault::None)
            faults.push_back(NameFaultText(name));
        else if (!IsToldAlready(name) && !files.FileExists(JoinPath(package.folder, name)))
            faults.push_back(name + " saknas.");
}

// A manifest that lost its last lines must not hide that the files in them are missing.
void CheckUnlisted(const Package& package, const std::vector<Text>& needed,
                   std::vector<Text>& faults)
{
    for (const Text& name : needed)
        if (!package.manifest.Names(name))
            faults.push_back("'" + name + "' står inte i " + kManifestName + ".");
}

void CheckDigests(const FileSystem& files, const Package& package, const std::vector<Text>& needed,
                  std::vector<Text>& faults)
{
    std::set<Text> reportedWhenMissing;
    for (const Text& name : needed)
        reportedWhenMissing.insert(LowerCase(name));
    for (const ManifestLine& line : package.manifest.lines) {
        switch (CompareFile(files, package.folder, line)) {
        case FileFault::None:
            break;
        case FileFault::Missing:
            if (reportedWhenMissing.count(LowerCase(line.name)) == 0)
                faults.push_back("'" + line.name + "' saknas men står i " + kManifestName + ".");
            break;
        case FileFault::Unreadable:
            faults.push_back("'" + line.name + "' kan ej läsas.");
            break;
        case FileFault::Different:
            faults.push_back("'" + line.name + "' är inte längre som när paketet skapades (" +
                             kManifestName + ").");
            break;
        }
    }
}

} // namespace

void CheckContents(const FileSystem& files, const Package& package, std::vector<Text>& faults)
{
    CheckMissing(files, package, faults);
    switch (package.manifest.state) {
    case PackageManifest::State::Missing:
        return;
    case PackageManifest::State::Unfinished:
        faults.push_back(Text(kManifestName) + " är tom: paketet blev inte färdigt.");
        return;
    case PackageManifest::State::Damaged:
        faults.push_back(Text(kManifestName) + " är skadad.");
        return;
    case PackageManifest::State::Whole:
        break;
    }
    const std::vector<Text> needed = AllFilesOf(package);
    CheckUnlisted(package, needed, faults);
    CheckDigests(files, package, needed, faults);
}

} // namespace quillon
