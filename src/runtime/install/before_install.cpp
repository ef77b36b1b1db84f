#include "runtime/install/before_install.h"

#include "formats/copy_letters.h"
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/install/plan_report.h"
#include "runtime/package/package_copy.h"
#include "runtime/texts/failure_reason.h"

#include <algorithm>
#include <map>

namespace quillon {

Flag IsMeantFor(const section::TargetOS& systems, SystemKind system)
{
    switch (system) {
    case SystemKind::Win95:
        return systems.TargetOS_Win95;
    case SystemKind::Win95OSR2:
        return systems.TargetOS_Win95OSR2;
    case SystemKind::Win98:
        return systems.TargetOS_Win98;
    case SystemKind::WinME:
        return systems.TargetOS_WinME;
    case SystemKind::WinNT4:
        return systems.TargetOS_WinNT4;
    case SystemKind::WinNT4SP3:
        return systems.TargetOS_WinNT4SP3;
    case SystemKind::Win2000:
        return systems.TargetOS_Win2000;
    case SystemKind::WinXP:
        break;
    }
    return systems.TargetOS_WinXP;
}

// Files that are replaced are counted in full: the old ones stay until everything is in its place.
void CheckFreeSpace(const FileSystem& files, const InstallPlan& plan)
{
    std::map<Text, std::uint64_t> needed;
    for (const PlannedFile& file : plan.files)
        if (file.path[1] == ':')
            needed[UpperCase(file.path.substr(0, 3))] += file.row->size;
    for (const auto& [root, bytes] : needed)
        if (files.FreeSpace(root) < bytes)
            throw RunError(ErrorNumber::kDiskFull, root);
}

// The package may lie on a disk that is changed while its files are read.
void KeepHelpers(const HelperCopies& input)
{
    for (const char* helper :
         {RuntimePrograms::kRegistryHelper.inPackage,
          RuntimePrograms::kSecondRegistryHelper.inPackage, RuntimePrograms::kUninstaller.inPackage,
          RuntimePrograms::kSetup.inPackage})
        if (input.files.FileExists(JoinPath(input.packageFolder, helper)))
            CopyFromPackage(input.files, input.packageFolder, helper,
                            JoinPath(input.workFolder, helper), input.manifest, input.texts);
}

// The files that are needed last must be there before the first file is written.
void CheckHelpers(const FileSystem& files, const Text& workFolder, const InstallPlan& plan,
                  const LanguageTexts& texts)
{
    const auto check = [&](bool isNeeded, const char* helper) {
        const Text path = JoinPath(workFolder, helper);
        if (isNeeded && (!files.FileExists(path) || files.Status(path).size == 0))
            throw DamagedPackage(texts, {Message::PackageFileMissing, helper});
    };
    check(plan.hasUninstaller, RuntimePrograms::kUninstaller.inPackage);
    check(plan.hasUninstaller, RuntimePrograms::kSetup.inPackage);
    const bool mayRegisterLate =
        std::any_of(plan.files.begin(), plan.files.end(), [](const PlannedFile& file) {
            return HasOption(file.row->copyOptions, CopyLetter::kRegister) &&
                   HasOption(file.row->copyOptions, CopyLetter::kActiveFile);
        });
    check(mayRegisterLate, RuntimePrograms::kSecondRegistryHelper.inPackage);
}

void CheckScope(const InstallPlan& plan, const LanguageTexts& texts, const Target& target,
                const Machine& machine)
{
    // A system that knows one user only has no folders for all of them, and none for one alone.
    if (plan.scope == InstallScope::AllUsers && target.Folder(TargetFolder::CommonPrograms).empty())
        throw SetupFailure(ExitCode::Forbidden, texts[Message::NotForAllUsers]);
    if (plan.scope != InstallScope::CurrentUser)
        return;
    const Text part = machine.GetSysLocalAppDataDirectory().empty()
                          ? plan.mainFolder
                          : PartForAllUsers(plan, machine);
    if (!part.empty())
        throw SetupFailure(ExitCode::Forbidden, texts(Message::NotForCurrentUser, part));
}

} // namespace quillon
