#include "runtime/uninstall_program.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/files_in_use.h"
#include "runtime/removal_list.h"
#include "runtime/restart_moves.h"
#include "runtime/rollback.h"

namespace quillon {

// Nothing is found where there is no log that this program believes.
void UninstallProgram::FindProduct()
{
    const FileSystem& files = input_.host.files;
    const Text& log = input_.line.logPath;
    product_.reset();
    if (IsBelievable(files, input_.target, log, input_.program))
        product_ = ReadInstalledProduct(files, log);
    if (product_)
        texts_ = product_->texts;
}

void UninstallProgram::Prepare()
{
    FindProduct();
    // A run that is refused changes nothing.
    if (IsRefused())
        return;
    const Text& path = input_.line.switches.logFile;
    if (!path.empty())
        log_ = ActionLog(input_.host.files, input_.host.machine, path, Texts());
    // A setup that was killed is brought to its end first, so that the log says what is there.
    const Text folder = ExtractDirectory(input_.program);
    const EarlierRun earlier = FinishInterrupted({input_.host, input_.target, log_}, folder);
    if (earlier == EarlierRun::Incomplete)
        throw RunError(ErrorNumber::kPermissionDenied, folder);
    hasFinishedEarlier_ = earlier == EarlierRun::Finished;
    if (hasFinishedEarlier_)
        FindProduct();
}

Text UninstallProgram::Title() const
{
    return Texts()(Message::UninstallTitle, product_ ? product_->name : "");
}

UninstallProgram::Refusal UninstallProgram::WithoutProduct() const
{
    // A first installation that was killed has been taken back.
    if (hasFinishedEarlier_)
        return {ExitCode::Done, {}};
    const Text& log = input_.line.logPath;
    // Only what was in use is still there.
    if (IsRemovedAtRestart(input_.target, log) ||
        (!input_.host.files.FileExists(log) && IsRemovedAtRestart(input_.target, input_.program)))
        return {ExitCode::AlreadyUninstalled, Texts()[Message::UninstallGone]};
    const bool isThere = input_.host.files.FileExists(log);
    return {isThere ? ExitCode::Failed : ExitCode::NothingInstalled,
            Texts()(Message::UninstallNoLog, log)};
}

std::optional<UninstallProgram::Refusal> UninstallProgram::WhyRefused() const
{
    const Switches& switches = input_.line.switches;
    if (switches.badSwitch)
        return Refusal{ExitCode::BadSwitch, Texts()(Message::BadSwitch, *switches.badSwitch)};
    if (input_.otherSetupRuns)
        return Refusal{ExitCode::OtherSetupRuns, Texts()[Message::OtherSetup]};
    if (!product_ || IsRemovedAtRestart(input_.target, input_.line.logPath))
        return WithoutProduct();
    return std::nullopt;
}

ExitCode UninstallProgram::Run(Ask& ask, UninstallView& view, RunningProgram* running)
{
    if (const auto refusal = WhyRefused()) {
        if (!refusal->text.empty())
            ask.Critical(Title(), refusal->text);
        return refusal->code;
    }
    const Text& log = input_.line.logPath;
    const Removal removal = PlanRemoval(*product_, input_.host, input_.target, log);
    const ListPage question{Title(), Texts()(Message::UninstallQuestion, product_->name),
                            removal.Lines(), Texts()[Message::UninstallButton],
                            Texts()[Message::Cancel]};
    if (!view.ShowList(question))
        return ExitCode::Cancelled;
    const InUseInput inUse{ask, log_, texts_, input_.users, input_.line.switches, Title()};
    if (!FreeFiles(inUse, removal.files))
        return ExitCode::Cancelled;
    view.ShowProgress(true);
    const UninstallResult result =
        Uninstall({input_.host, input_.target, ask, log_, log, *product_, running});
    log_.Close();
    view.ShowProgress(false);
    TellTheEnd(result, ask, view);
    return result.code;
}

void UninstallProgram::TellTheEnd(const UninstallResult& result, Ask& ask,
                                  UninstallView& view) const
{
    if (result.left.empty()) {
        ask.Inform(Title(), Texts()(Message::UninstallDone, product_->name));
        return;
    }
    const Message text = result.code == ExitCode::Failed          ? Message::UninstallPartly
                         : result.code == ExitCode::RestartNeeded ? Message::UninstallRestart
                                                                  : Message::UninstallLeft;
    std::vector<Text> lines;
    for (const LeftBehind& left : result.left)
        lines.push_back(left.what + ": " + left.why);
    view.ShowList({Title(), Texts()(text, product_->name), lines, Texts()[Message::Ok], {}});
}

} // namespace quillon
