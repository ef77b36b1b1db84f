// Where the rows' bytes are, derived from the INF files alone, without opening the package.
#include "formats/package.h"
#include "formats/served_rows.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

bool KeepsFilesOneByOne(const SetupInformation& setup)
{
    return MediumOf(setup) == Medium::CompressedCd &&
           setup.project.Compression.KeepCompressedFilesOneAndOne != 0;
}

} // namespace

bool UsesContainer(const SetupInformation& setup)
{
    return MediumOf(setup) != Medium::CdTree && !KeepsFilesOneByOne(setup);
}

std::vector<int> RowNumbers(std::string_view comment)
{
    std::vector<int> numbers;
    for (const ServedRow& row : ServedRows(comment))
        numbers.push_back(row.number);
    return numbers;
}

Text TreeFileName(const Text& sourceFolder, const Text& name)
{
    // What is left of a network path begins with a backslash.
    const std::size_t start = std::min(sourceFolder.find_first_not_of("\\/"), sourceFolder.size());
    return JoinPath(sourceFolder.substr(start), name);
}

Text LooseFileName(const SetupInformation& setup, const InstallRow& row)
{
    if (MediumOf(setup) == Medium::CdTree)
        return TreeFileName(row.sourceFolder, row.name);

    const bool hasOwnFolder = setup.PlaceCompressedFilesInFolderSetupFiles != kOff;
    const Text base = hasOwnFolder ? kSetupFilesFolder : "";
    if (setup.CreateFolderStructureInFolderSetupFiles == kOff)
        return JoinPath(base, MarkedName(row.name));
    return JoinPath(FolderInTree(base, row.destination), row.name);
}

Text LooseFilePath(const Text& packageFolder, const SetupInformation& setup, const InstallRow& row)
{
    return JoinPath(packageFolder, LooseFileName(setup, row));
}

bool MayLackSource(const InstallRow& row)
{
    return row.size == 0 && row.sourceFolder.empty();
}

Text PieceName(int disk)
{
    return JoinPath(DiskFolder("", disk), kFileContainerName);
}

Text DiskFolder(const Text& packageFolder, int disk)
{
    return disk == 1 ? packageFolder : JoinPath(packageFolder, "disk" + NumberText(disk));
}

} // namespace quillon
