#include "runtime/journal/earlier_runs.h"

#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "runtime/exit_codes.h"
#include "runtime/journal/rollback.h"
#include "runtime/journal/started_setups.h"
#include "runtime/uninstall_entry_key.h"

#include <set>

namespace quillon {

void FinishEarlierRuns(const EarlierRunsInput& input)
{
    const Text& product = input.setup.project.ProjectName.ProjectName;
    const std::string_view mainFolder = NameOf(VariableMeaning::MainFolder);
    const SetupVariables usual = MakeSetupVariables(
        {input.setup, input.host, input.target, input.packageFolder, {}, input.scope});
    std::set<Text> folders{input.variables.Value(mainFolder), usual.Value(mainFolder)};
    for (const InstallScope scope : {InstallScope::AllUsers, InstallScope::CurrentUser}) {
        const auto installed =
            input.target.ReadValue(UninstallEntryKey(product, scope), kInstallLocation);
        // The value may hold any text, since others can write it.
        if (const auto folder = installed ? TextOf(*installed) : std::nullopt;
            folder && IsAbsolutePath(*folder))
            folders.insert(*folder);
    }
    for (const Text& folder : FoldersOfStartedSetups(input.host.files, input.target, product))
        folders.insert(folder);
    for (const Text& folder : folders)
        if (FinishInterrupted({input.host, input.target, input.log}, folder) ==
            EarlierRun::Incomplete)
            throw SetupFailure(ExitCode::Failed, input.texts(Message::EarlierNotUndone, folder));
    ForgetStartedSetups(input.target, product);
}

} // namespace quillon
