#include "formats/package_contents.h"

#include "formats/copy_letters.h"
#include "formats/runtime_programs.h"

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

// Create copies the helpers by the same conditions, asked of the project.
bool NeedsRegistryHelper(const SetupInformation& setup, const std::vector<InstallRow>& rows)
{
    return std::ranges::any_of(rows,
                               [](const InstallRow& row) {
                                   return HasOption(row.copyOptions, CopyLetter::kRegister);
                               }) ||
           !setup.project.Lists.RunScriptBefore.empty() ||
           !setup.project.Lists.RunScriptAfter.empty();
}

bool NeedsSecondRegistryHelper(const std::vector<InstallRow>& rows)
{
    return std::ranges::any_of(rows, [](const InstallRow& row) {
        return HasOption(row.copyOptions, CopyLetter::kRegister) &&
               HasOption(row.copyOptions, CopyLetter::kActiveFile);
    });
}

std::vector<Text> HelpersOf(const SetupInformation& setup, const std::vector<InstallRow>& rows)
{
    std::vector<Text> names;
    if (NeedsRegistryHelper(setup, rows))
        names.push_back(RuntimePrograms::kRegistryHelper.inPackage);
    if (NeedsSecondRegistryHelper(rows))
        names.push_back(RuntimePrograms::kSecondRegistryHelper.inPackage);
    if (setup.project.InstallOptions.UninstallSupport != kOff)
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
    const std::vector<Text> helpers = HelpersOf(setup, rows);
    names.insert(names.end(), helpers.begin(), helpers.end());
    std::erase(names, "");
    return names;
}

std::vector<Text> ContainerPieces(const SetupInformation& setup,
                                  const std::vector<InstallRow>& rows)
{
    if (!UsesContainer(setup) || std::ranges::none_of(rows, HasSource))
        return {};
    const bool isSpanned = Medium(setup.project.Media.TargetMedia) == Medium::Floppy;
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
