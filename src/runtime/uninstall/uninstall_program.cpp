#include "runtime/uninstall/uninstall_program.h"

#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/files_in_use.h"
#include "runtime/journal/restart_moves.h"
#include "runtime/journal/rollback.h"
#include "runtime/journal/started_setups.h"
#include "runtime/passive_ask.h"
#include "runtime/texts/failure_reason.h"
#include "runtime/texts/setup_help.h"
#include "runtime/uninstall/removal_list.h"
#include "runtime/uninstall_entry_key.h"

namespace quillon {

// Nothing is found where there is no trusted journal.
void UninstallProgram::FindProduct()
{
    const FileSystem& files = input_.host.files;
    const Text& journal = input_.line.journalPath;
    product_.reset();
    if (IsTrusted(files, input_.target, journal, input_.program))
        product_ = ReadInstalledProduct(files, journal);
    if (product_)
        texts_ = product_->texts;
}

void UninstallProgram::Prepare()
{
    FindProduct();
    FileSystem& files = input_.host.files;
    const Machine& machine = input_.host.machine;
    OpenLogs(log_, files, machine,
             LogFilesOf(GivenSwitches(), files, machine, RuntimePrograms::kUninstallerLogName),
             Texts());
    // A run that is refused, or only informs, changes nothing.
    if (GivenSwitches().badSwitch || input_.otherSetupRuns || OnlyShowsInformation())
        return;
    // A setup that was killed is finished first, so that the log says what is there.
    FinishEarlierSetup(ExtractDirectory(input_.program));
    if (product_) {
        const Text name = product_->name;
        for (const Text& folder : FoldersOfStartedSetups(files, input_.target, name))
            FinishEarlierSetup(folder);
        ForgetStartedSetups(input_.target, name);
    }
    if (hasFinishedEarlier_)
        FindProduct();
}

void UninstallProgram::FinishEarlierSetup(const Text& mainFolder)
{
    const EarlierRun earlier =
        FinishInterrupted({input_.host, input_.target, log_, input_.running}, mainFolder);
    if (earlier == EarlierRun::Incomplete)
        throw RunError(ErrorNumber::kPermissionDenied, mainFolder);
    hasFinishedEarlier_ = hasFinishedEarlier_ || earlier == EarlierRun::Finished;
}

bool UninstallProgram::OnlyShowsInformation() const
{
    const SetupTask task = GivenSwitches().task;
    return task == SetupTask::Help || task == SetupTask::Version;
}

Text UninstallProgram::Title() const
{
    return Texts()(Message::UninstallTitle, product_ ? product_->name : "");
}

UninstallProgram::Refusal UninstallProgram::WithoutProduct() const
{
    // A first installation that was killed has been taken back.
    if (hasFinishedEarlier_)
        return {IsRemovedAtRestart(input_.target, ExtractDirectory(input_.program))
                    ? ExitCode::RestartNeeded
                    : ExitCode::Done,
                {}};
    const Text& journal = input_.line.journalPath;
    const bool isThere = input_.host.files.FileExists(journal);
    // Only what was in use is still there.
    if (IsRemovedAtRestart(input_.target, journal) ||
        (!isThere && IsRemovedAtRestart(input_.target, input_.program)))
        return {ExitCode::AlreadyUninstalled, Texts()[Message::UninstallGone]};
    return {isThere ? ExitCode::Failed : ExitCode::NothingInstalled,
            Texts()(Message::UninstallNoJournal, journal)};
}

std::optional<UninstallProgram::Refusal> UninstallProgram::WhyRefused() const
{
    if (const auto& badSwitch = GivenSwitches().badSwitch)
        return Refusal{ExitCode::BadSwitch, Texts()(Message::BadSwitch, *badSwitch)};
    if (GivenSwitches().task == SetupTask::Help)
        return std::nullopt;
    if (input_.otherSetupRuns && !OnlyShowsInformation())
        return Refusal{ExitCode::OtherSetupRuns, Texts()[Message::OtherSetup]};
    if (!product_ || IsRemovedAtRestart(input_.target, input_.line.journalPath))
        return WithoutProduct();
    return std::nullopt;
}

namespace {

RunEnd EndOf(ExitCode code)
{
    if (code == ExitCode::Done)
        return RunEnd::Done;
    return code == ExitCode::RestartNeeded ? RunEnd::RestartDue : RunEnd::Stopped;
}

} // namespace

// The last line of every log, whatever the end is.
ExitCode UninstallProgram::End(ExitCode code, const Text& error)
{
    const ExitCode given = CodeToEndWith(code, GivenSwitches());
    if (!error.empty())
        log_.Line(Message::LogEndsBecause, NumberText(static_cast<int>(given)), error);
    log_.End(given, EndOf(code), error);
    log_.Close();
    return given;
}

Text UninstallProgram::Fail(const std::exception& error)
{
    const Text text = Texts()(Message::UninstallFailed, FailureReason(error, Texts()));
    End(ExitCode::Failed, text);
    return text;
}

Text UninstallProgram::InstalledVersion() const
{
    const auto data = input_.target.ReadValue(
        RecordedUninstallEntry(product_->name, product_->records), kDisplayVersion);
    return data ? TextOf(*data).value_or("") : Text();
}

// The answer to /? and the like is shown also where boxes are suppressed, but never under /S.
ExitCode UninstallProgram::Tell(Ask& ask)
{
    const std::vector<Text> lines =
        GivenSwitches().task == SetupTask::Help
            ? HelpLines(Texts(), HelpOf::Uninstaller)
            : std::vector<Text>{VersionLine(product_->name, InstalledVersion(), Texts())};
    Text whole;
    for (const Text& line : lines) {
        log_.Line(Message::LogNote, line);
        whole += (whole.empty() ? Text() : Text(kLineBreak)) + line;
    }
    ask.Inform(Title(), whole);
    return End(ExitCode::Done);
}

ExitCode UninstallProgram::Run(Ask& ask, UninstallView& view)
{
    PassiveAsk withoutBoxes(ask);
    Ask& boxes = GivenSwitches().suppressBoxes ? withoutBoxes : ask;
    if (const auto refusal = WhyRefused()) {
        if (!refusal->text.empty())
            boxes.Critical(Title(), refusal->text);
        return End(refusal->code, refusal->text);
    }
    if (OnlyShowsInformation())
        return Tell(ask);
    const Text& journal = input_.line.journalPath;
    const Removal removal = PlanRemoval(*product_, input_.host, input_.target, journal);
    const ListPage question{Title(), Texts()(Message::UninstallQuestion, product_->name),
                            removal.Lines(), Texts()[Message::UninstallButton],
                            Texts()[Message::Cancel]};
    const InUseInput inUse{boxes, log_, texts_, input_.users, GivenSwitches(), Title()};
    if (!view.ShowList(question) || !FreeFiles(inUse, removal.files))
        return End(ExitCode::Cancelled);
    view.ShowProgress(true);
    const UninstallResult result =
        Uninstall({input_.host, input_.target, boxes, log_, journal, *product_, input_.running});
    const ExitCode code = End(result.code);
    view.ShowProgress(false);
    TellTheEnd(result, boxes, view);
    return code;
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
