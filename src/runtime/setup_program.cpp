#include "runtime/setup_program.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/command_line/answer_file.h"
#include "runtime/files_in_use.h"
#include "runtime/install/after_install.h"
#include "runtime/install/before_install.h"
#include "runtime/install/copy_decision.h"
#include "runtime/install/data_access.h"
#include "runtime/install/first_program.h"
#include "runtime/install/install.h"
#include "runtime/install/net_framework.h"
#include "runtime/install/plan_report.h"
#include "runtime/install/setup_checks.h"
#include "runtime/install/trusted_folders.h"
#include "runtime/install/uninstall_entry.h"
#include "runtime/journal/earlier_runs.h"
#include "runtime/package/extraction.h"
#include "runtime/pages/component_switch.h"
#include "runtime/pages/earlier_version.h"
#include "runtime/pages/page_chain.h"
#include "runtime/passive_ask.h"
#include "runtime/restart.h"
#include "runtime/texts/failure_reason.h"
#include "runtime/texts/setup_help.h"
#include "runtime/uninstall/start_uninstaller.h"

namespace quillon {

namespace {

class SetupProgram {
public:
    SetupProgram(const SetupInput& input, const LoadedPackage& package)
        : input_(input), package_(package), texts_(package.texts), setup_(package.setup),
          withoutBoxes_(input.ask), ask_(input.switches.suppressBoxes ? withoutBoxes_ : input.ask),
          scope_(input.switches.scope)
    {
    }

    SetupEnd Run();

private:
    ExitCode Work();
    ExitCode Fail(ExitCode code, const Text& text);
    void OpenLog();
    SetupCheck Checked();
    void TakeSwitches();
    void ChooseScope();
    void FreeFilesInUse(const InstallPlan& plan);
    void RunProgramBefore();
    void FindDestination();
    void LeadThroughPages();
    void KeepAnswers();
    SetupVariables Variables() const;
    InstallPlan PlanForTrustedFolders(const SetupVariables& variables);
    PackageReader Reader();
    InstallResult InstallPackage();
    void LogSound();
    ExitCode TellTheEnd(const InstallResult& result);
    bool MayRestart() const;
    Text Title() const { return texts_(Message::Title, setup_.project.ProjectName.ProjectName); }
    ExitCode Tell(const std::vector<Text>& lines);
    ExitCode Uninstall();
    ExitCode Extract();
    ExitCode WritePlan();
    bool IsTask(SetupTask task) const { return input_.switches.task == task; }

    const SetupInput& input_;
    const LoadedPackage& package_;
    const LanguageTexts& texts_;
    SetupInformation setup_; // with what the user has chosen
    PassiveAsk withoutBoxes_;
    Ask& ask_;            // under /SUPPRESSMSGBOXES only the pages may ask
    UserChoices choices_; // of the pages that were left by Next
    InstallScope scope_;
    Text destination_; // empty: the project's own
    bool isUpdate_ = false;
    std::unique_ptr<InputFile> archive_; // as it was checked, until the reader takes it
    std::unique_ptr<PageChain> chain_;
    bool startsMachineAnew_ = false;
    LogFiles logs_;
    ActionLog log_;
};

ExitCode SetupProgram::Fail(ExitCode code, const Text& text)
{
    log_.Line(text.empty() ? Message::LogEnds : Message::LogEndsBecause, NumberText(int(code)),
              text);
    log_.End(code, RunEnd::Stopped, text);
    log_.Close();
    if (!text.empty() && !input_.switches.silent)
        ask_.Critical(Title(), text);
    return code;
}

// Everything above is finished before the first change to the machine.
ExitCode SetupProgram::Work()
{
    OpenLog();
    CheckSwitches(Checked());
    if (IsTask(SetupTask::Help))
        return Tell(HelpLines(texts_, HelpOf::Setup));
    if (IsTask(SetupTask::Version))
        return Tell(
            {VersionLine(setup_.project.ProjectName.ProjectName, VersionOf(setup_), texts_)});
    if (IsTask(SetupTask::Uninstall))
        return Uninstall();
    CheckPackage(package_);
    TakeSwitches();
    archive_ = CheckFiles(Checked());
    CheckPassword(input_, package_);
    if (IsTask(SetupTask::Extract))
        return Extract();
    CheckSystem(Checked());
    CheckNetFramework(
        {setup_.project.NET, input_.target, ask_, log_, texts_, Title(), MayWarn(input_.switches)});
    CheckInstalledVersion(Checked());
    if (IsTask(SetupTask::Install))
        RunProgramBefore();
    FindDestination();
    LeadThroughPages();
    KeepAnswers();
    if (IsTask(SetupTask::Plan))
        return WritePlan();
    return TellTheEnd(InstallPackage());
}

SetupEnd SetupProgram::Run()
{
    try {
        const ExitCode done = Work();
        const ExitCode code = CodeToEndWith(done, input_.switches);
        log_.Line(Message::LogDone);
        log_.End(code, done == ExitCode::Done ? RunEnd::Done : RunEnd::RestartDue);
        log_.Close();
        return {code, startsMachineAnew_, logs_, Title()};
    } catch (const std::exception& error) {
        const SetupFailure failure = FailureOfSetup(error, texts_);
        return {Fail(failure.Code(), failure.what())};
    }
}

void SetupProgram::OpenLog()
{
    FileSystem& files = input_.host.files;
    const Machine& machine = input_.host.machine;
    logs_ = LogFilesOf(input_.switches, files, machine, "QNSETUP");
    OpenLogs(log_, files, machine, logs_, texts_);
    log_.Line(Message::LogBegins, package_.setup.project.ProjectName.ProjectName,
              input_.switches.packageFolder);
}

SetupCheck SetupProgram::Checked()
{
    return {input_, package_, ask_, log_, scope_};
}

// What only the package can give a meaning to.
void SetupProgram::TakeSwitches()
{
    choices_.programGroup = input_.switches.programGroup;
    if (input_.switches.components)
        if (const auto unknown = TakeComponents(*input_.switches.components, setup_, choices_))
            RefuseSwitch(texts_, "/COMPONENTS=" + *unknown);
    TakeAnswers(input_.switches, setup_, input_.host.machine, choices_);
    ApplyChoices(choices_, setup_);
    ChooseScope();
}

// An update is installed for the same users as the earlier version, so that the product is
// installed once.
void SetupProgram::ChooseScope()
{
    if (const auto earlier = FindEarlierVersion(setup_, input_.host, input_.target, scope_))
        scope_ = earlier->scope;
    if (scope_ != InstallScope::Project)
        setup_.project.ProgramGroup.ProgramGroup_AllUsers =
            scope_ == InstallScope::AllUsers ? kOn : kOff;
}

void SetupProgram::FreeFilesInUse(const InstallPlan& plan)
{
    std::vector<Text> paths;
    for (const PlannedFile& file : plan.files)
        if (!HasOption(file.row->copyOptions, CopyLetter::kNeverReplace))
            paths.push_back(file.path);
    if (!FreeFiles({ask_, log_, texts_, input_.users, input_.switches, Title()}, paths))
        throw SetupFailure(ExitCode::Cancelled, {});
}

void SetupProgram::RunProgramBefore()
{
    const SetupVariables variables = Variables();
    const auto folder = RunFirstProgram(
        {input_.host, input_.target, ask_, log_, texts_, setup_, variables, package_.manifest,
         input_.switches.packageFolder, input_.workFolder, input_.switches.silent});
    destination_ = folder.value_or("");
}

// A folder from the command line has precedence over one that a program has given.
void SetupProgram::FindDestination()
{
    if (!input_.switches.destination.empty())
        destination_ = input_.switches.destination;
    if (!destination_.empty())
        return;
    // The first program may have changed which version is installed; the scope is already decided.
    const auto earlier = FindEarlierVersion(setup_, input_.host, input_.target, scope_);
    isUpdate_ = earlier && earlier->scope == scope_;
    if (isUpdate_)
        destination_ = earlier->folder;
}

void SetupProgram::LeadThroughPages()
{
    if (input_.sound != nullptr)
        input_.sound->Start();
    if (input_.pages == nullptr || IsTask(SetupTask::Plan))
        return;
    chain_ = std::make_unique<PageChain>(
        PageInput{input_.host, input_.target, input_.ask, texts_, setup_, package_.rows,
                  input_.switches.packageFolder, destination_, isUpdate_,
                  HasPassword(input_.switches, setup_), scope_, input_.switches.canCancel});
    if (chain_->ShowPages(*input_.pages) == PageChain::End::Cancelled)
        throw SetupFailure(ExitCode::Cancelled, {});
    AddChoices(chain_->Choices(), choices_);
    if (!choices_.destination.empty())
        destination_ = choices_.destination;
}

void SetupProgram::KeepAnswers()
{
    const Text& path = input_.switches.saveAnswers;
    if (path.empty())
        return;
    const SetupVariables variables = Variables();
    SaveAnswers(input_.host.files, path,
                {setup_, choices_, variables, input_.switches.languageFile, input_.switches.scope});
    log_.Line(Message::SavesAnswers, path);
}

SetupVariables SetupProgram::Variables() const
{
    return MakeSetupVariables(
        {setup_, input_.host, input_.target, input_.switches.packageFolder, destination_, scope_});
}

InstallPlan SetupProgram::PlanForTrustedFolders(const SetupVariables& variables)
{
    CheckFolder(Checked(), variables.Value(NameOf(VariableMeaning::MainFolder)));
    InstallPlan plan =
        MakeInstallPlan({setup_, package_.rows, variables, texts_, input_.host, input_.target});
    plan.scope = scope_;
    CheckScope(plan, texts_, input_.target, input_.host.machine);
    CheckFoldersOfParts(Checked(), plan);
    return plan;
}

PackageReader SetupProgram::Reader()
{
    return PackageReader({input_.host, ask_, log_, texts_, setup_, package_.rows,
                          input_.openContainer, input_.switches.packageFolder, input_.workFolder,
                          setup_.project.DialogBoxData.CorrectPassword, !MayAsk(input_.switches),
                          &package_.manifest},
                         std::move(archive_));
}

InstallResult SetupProgram::InstallPackage()
{
    const SetupVariables variables = Variables();
    const InstallPlan plan = PlanForTrustedFolders(variables);
    FinishEarlierRuns({input_.host, input_.target, log_, texts_, package_.setup, variables,
                       input_.switches.packageFolder, scope_});
    FileSystem& files = input_.host.files;
    KeepHelpers(
        {files, input_.switches.packageFolder, input_.workFolder, package_.manifest, texts_});
    CheckHelpers(files, input_.workFolder, plan, texts_);
    PackageReader reader = Reader();
    reader.CheckEverything();
    CheckFreeSpace(files, plan);
    FreeFilesInUse(plan);
    InstallResult result =
        Install({input_.host, input_.target, ask_, log_, texts_, setup_, variables, plan, reader,
                 input_.workFolder, input_.switches.silent, package_.manifest});
    if (InstallDataAccess({input_.host, input_.target, ask_, log_, texts_, setup_, plan,
                           input_.workFolder, input_.switches.silent}))
        result.needsRestart = true;
    return result;
}

void SetupProgram::LogSound()
{
    if (setup_.project.DesSound.BackSoundFilename.empty())
        return;
    if (input_.sound == nullptr)
        log_.Skipped(texts_[Message::PartSound], {Message::SkipSilent});
    else if (input_.sound->HasFailed())
        log_.Skipped(texts_[Message::PartSound], {Message::SkipNoSound});
}

// The product is installed: a failure from here on undoes nothing.
ExitCode SetupProgram::TellTheEnd(const InstallResult& result)
{
    if (result.needsRestart)
        log_.Line(Message::RestartNeeded);
    LogSound();
    if (chain_)
        chain_->ShowClosingPage(*input_.pages);
    const SetupVariables variables = Variables();
    const AfterInstallInput after{input_.host,
                                  input_.startAsUser,
                                  log_,
                                  texts_,
                                  setup_,
                                  variables,
                                  input_.switches.silent,
                                  !chain_ || chain_->ShowsDocument()};
    StartProgramsAfter(after);
    ShowDocumentAfter(after, [&](const std::string& rtf) {
        if (chain_)
            chain_->ShowDocument(*input_.pages, setup_.project.ShowDocAfter.InternalRTFBoxDlgTitle,
                                 rtf);
    });
    const ExitCode code = DecideRestart(
        {setup_.project.InstallOptions, ask_, texts_, Title(), result.needsRestart, MayRestart()});
    startsMachineAnew_ = code == ExitCode::RestartStarted;
    return code;
}

// The machine is never restarted without a notice, and no restart is announced that the user has no
// right to.
bool SetupProgram::MayRestart() const
{
    return MayAsk(input_.switches) && !input_.switches.noRestart &&
           (input_.mayRestart == nullptr || input_.mayRestart());
}

// The answer to /? and the like is shown also where boxes are suppressed, but never under /S.
ExitCode SetupProgram::Tell(const std::vector<Text>& lines)
{
    Text whole;
    for (const Text& line : lines) {
        log_.Line(Message::LogNote, line);
        whole += (whole.empty() ? Text() : Text(kLineBreak)) + line;
    }
    if (!input_.switches.silent)
        input_.ask.Inform(texts_(Message::Title, setup_.project.ProjectName.ProjectName), whole);
    return ExitCode::Done;
}

// From here on the uninstaller writes the logs again.
ExitCode SetupProgram::Uninstall()
{
    const RunProgramToEnd run = [this](const Text& program, const Text& arguments) {
        log_.Close();
        log_ = ActionLog();
        return input_.runToEnd(program, arguments);
    };
    return StartUninstaller({input_.host.files, input_.target, texts_,
                             setup_.project.ProjectName.ProjectName, input_.switches, run});
}

ExitCode SetupProgram::Extract()
{
    const Text& folder = input_.switches.extractFolder;
    PackageReader reader = Reader();
    reader.CheckEverything();
    ExtractPackage({input_.host.files, ask_, log_, texts_, package_.rows, reader, folder});
    return Tell({texts_(Message::Extracted, folder)});
}

ExitCode SetupProgram::WritePlan()
{
    const SetupVariables variables = Variables();
    const InstallPlan plan = PlanForTrustedFolders(variables);
    FileSystem& files = input_.host.files;
    CheckHelpers(files, input_.switches.packageFolder, plan, texts_);
    Reader().CheckEverything();
    CheckFreeSpace(files, plan);
    const Text& wanted = input_.switches.planFile;
    const Text path =
        wanted.empty() ? NewFileInTemp(files, input_.host.machine, "QNSETUP", ".JSON") : wanted;
    WriteWholeFile(files, path,
                   PlanReport({setup_, texts_, files, input_.target, variables, plan,
                               input_.switches.silent}));
    return Tell({texts_(Message::PlanWritten, path)});
}

} // namespace

SetupFailure FailBeforeSetup(const Host& host, const Switches& switches,
                             const std::exception& error, const LanguageTexts& texts)
{
    const SetupFailure failure = FailureOfSetup(error, texts);
    ActionLog log;
    RunErrorNumber([&] {
        OpenLogs(log, host.files, host.machine,
                 LogFilesOf(switches, host.files, host.machine, "QNSETUP"), texts);
    });
    log.Line(Message::LogEndsBecause, NumberText(int(failure.Code())), failure.what());
    log.End(failure.Code(), RunEnd::Stopped, failure.what());
    log.Close();
    return failure;
}

SetupEnd RunSetup(const SetupInput& input, const LoadedPackage& package)
{
    return SetupProgram(input, package).Run();
}

} // namespace quillon
