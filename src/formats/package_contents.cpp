#include "formats/package_contents.h"

#include "formats/needed_helpers.h"
#include "formats/package.h"
#include "formats/package_files.h"
#include "project/file_list.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

bool HasSource(const InstallRow& row)
{
    return row.name != kEmptyFolderName && !MayLackSource(row);
}

std::vector<Text> HelpersOf(const Project& project, const std::vector<InstallRow>& rows)
{
    const auto options = std::views::transform(rows, &InstallRow::copyOptions);
    std::vector<Text> names;
    if (NeedsRegistryHelper(project, options))
        names.push_back(RuntimePrograms::kRegistryHelper.inPackage);
    if (NeedsSecondRegistryHelper(options))
        names.push_back(RuntimePrograms::kSecondRegistryHelper.inPackage);
    if (NeedsUninstaller(project))
        names.push_back(RuntimePrograms::kUninstaller.inPackage);
    return names;
}

} // namespace

std::vector<Text> FixedFilesOf(const SetupInformation& setup, const std::vector<InstallRow>& rows)
{
    std::vector<Text> names = {setup.project.InstallOptions.SetupName,
                               RuntimePrograms::kSetup.inPackage,
                               RuntimePrograms::kUnzipLibrary.inPackage,
                               kSetupInformationName,
                               kFileListName,
                               setup.project.Language.LanguageFile};
    const std::vector<Text> helpers = HelpersOf(setup.project, rows);
    names.insert(names.end(), helpers.begin(), helpers.end());
    std::erase(names, "");
    return names;
}

std::vector<Text> ContainerPieces(const SetupInformation& setup,
                                  const std::vector<InstallRow>& rows)
{
    if (!UsesContainer(setup) || std::ranges::none_of(rows, HasSource))
        return {};
    const bool isSpanned = MediumOf(setup) == Medium::Floppy;
    // As many as Create can count.
    constexpr int kMaxDisks = std::numeric_limits<Integer>::max();
    const int disks = isSpanned ? std::clamp(setup.Floppies, 1, kMaxDisks) : 1;
    std::vector<Text> pieces;
    for (int disk = 1; disk <= disks; ++disk)
        pieces.push_back(PieceName(disk));
    return pieces;
}

bool OnlyStartsTheSetup(const SetupInformation& setup, const Text& name)
{
    return EqualIgnoreCase(name, setup.project.InstallOptions.SetupName) ||
           EqualIgnoreCase(name, kAutorunName);
}

} // namespace quillon
