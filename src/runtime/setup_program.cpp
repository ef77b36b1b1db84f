#include "runtime/setup_program.h"

#include "formats/package.h"
#include "formats/runtime_programs.h"
#include "formats/setup_names.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/after_install.h"
#include "runtime/copy_decision.h"
#include "runtime/data_access.h"
#include "runtime/failure_reason.h"
#include "runtime/files_in_use.h"
#include "runtime/first_program.h"
#include "runtime/install.h"
#include "runtime/net_framework.h"
#include "runtime/package_check.h"
#include "runtime/pages/component_switch.h"
#include "runtime/pages/earlier_version.h"
#include "runtime/pages/page_chain.h"
#include "runtime/restart.h"
#include "runtime/rollback.h"
#include "runtime/script/script_run.h"
#include "runtime/uninstall_entry.h"

#include <algorithm>
#include <map>
#include <set>

namespace quillon {

namespace {

class SetupProgram {
public:
    SetupProgram(const SetupInput& input, const LoadedPackage& package)
        : input_(input), package_(package), texts_(package.texts), setup_(package.setup)
    {
    }

    ExitCode Run();

private:
    ExitCode Fail(ExitCode code, const Text& text);
    void OpenLog();
    void CheckSwitches() const;
    [[noreturn]] void Refuse(const Text& badSwitch) const;
    void TakeSwitches();
    void CheckPackage() const;
    void CheckFiles();
    bool HasPassword() const;
    void CheckPassword() const;
    void CheckSystem();
    void CheckFreeSpace(const InstallPlan& plan) const;
    void CheckFolder(const Text& folder) const;
    void FreeFilesInUse(const InstallPlan& plan);
    void KeepHelpers() const;
    void CheckHelpers(const InstallPlan& plan) const;
    void RunProgramBefore();
    void FindDestination();
    void LeadThroughPages();
    void FinishEarlier(const SetupVariables& variables);
    SetupVariables Variables() const;
    InstallResult InstallPackage();
    void LogSound();
    ExitCode TellTheEnd(const InstallResult& result);
    Text Title() const { return texts_(Message::Title, setup_.project.ProjectName.ProjectName); }

    const SetupInput& input_;
    const LoadedPackage& package_;
    const LanguageTexts& texts_;
    SetupInformation setup_; // with what the user has chosen
    Text destination_;       // empty: the project's own
    bool isUpdate_ = false;
    std::unique_ptr<PageChain> chain_;
    ActionLog log_;
};

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

ExitCode SetupProgram::Fail(ExitCode code, const Text& text)
{
    const Text& project = package_.setup.project.ProjectName.ProjectName;
    log_.Line(text.empty() ? Message::LogEnds : Message::LogEndsBecause, NumberText(int(code)),
              text);
    log_.Close();
    if (!text.empty() && !input_.switches.silent)
        input_.ask.Critical(texts_(Message::Title, project), text);
    return code;
}

ExitCode SetupProgram::Run()
{
    try {
        OpenLog();
        CheckSwitches();
        CheckPackage();
        TakeSwitches();
        CheckFiles();
        CheckPassword();
        CheckSystem();
        CheckNetFramework({setup_.project.NET, input_.target, input_.ask, log_, texts_, Title(),
                           input_.switches.silent});
        RunProgramBefore();
        FindDestination();
        LeadThroughPages();
        const ExitCode code = TellTheEnd(InstallPackage());
        log_.Line(Message::LogDone);
        log_.Close();
        return code;
    } catch (const SetupFailure& failure) {
        return Fail(failure.Code(), failure.what());
    } catch (const ZipError& error) {
        if (error.Reason() == ZipError::Kind::WrongPassword)
            return Fail(ExitCode::Failed, texts_[Message::WrongPassword]);
        return Fail(ExitCode::Failed, texts_(Message::Damaged, texts_(ReasonOf(error))));
    } catch (const RunError& error) {
        if (error.Number() == ErrorNumber::kDiskFull)
            return Fail(ExitCode::DiskFull, texts_(Message::DiskFull, error.Path()));
        if (error.Number() == ErrorNumber::kFileInUse)
            return Fail(ExitCode::FileInUse, texts_(Message::FileInUse, error.Path()));
        return Fail(ExitCode::Failed, texts_(Message::Failed, texts_(ReasonOf(error))));
    } catch (const std::exception& error) { // too little memory
        return Fail(ExitCode::Failed, texts_(Message::Failed, FailureReason(error, texts_)));
    }
}

void SetupProgram::OpenLog()
{
    if (input_.switches.logFile.empty())
        return;
    log_ = ActionLog(input_.host.files, input_.host.machine, input_.switches.logFile, texts_);
    log_.Line(Message::LogBegins, package_.setup.project.ProjectName.ProjectName,
              input_.switches.packageFolder);
}

void SetupProgram::Refuse(const Text& badSwitch) const
{
    throw SetupFailure(ExitCode::BadSwitch, texts_(Message::BadSwitch, badSwitch));
}

void SetupProgram::CheckSwitches() const
{
    const Switches& switches = input_.switches;
    if (switches.badSwitch)
        Refuse(*switches.badSwitch);
    const Text& language = switches.languageFile;
    if (!language.empty() &&
        !input_.host.files.FileExists(JoinPath(switches.packageFolder, language)))
        Refuse("/LANG=" + language);
    if (input_.otherSetupRuns)
        throw SetupFailure(ExitCode::OtherSetupRuns, texts_[Message::OtherSetup]);
}

// What only the package can tell the meaning of.
void SetupProgram::TakeSwitches()
{
    UserChoices choices;
    choices.programGroup = input_.switches.programGroup;
    if (input_.switches.components)
        if (const auto unknown = TakeComponents(*input_.switches.components, setup_, choices))
            Refuse("/COMPONENTS=" + *unknown);
    ApplyChoices(choices, setup_);
}

void SetupProgram::CheckPackage() const
{
    if (package_.fault)
        throw DamagedPackage(texts_, *package_.fault);
    if (const auto fault = FaultOfScripts(package_.setup, texts_))
        throw DamagedPackage(texts_, *fault);
    const Project& project = package_.setup.project;
    const Text& starter = project.InstallOptions.SetupName;
    // Not by the tool's words for it, which nobody would see here.
    if (FaultOfName(starter) != PathFault::None ||
        IsNameOfPackageFile(starter, project.Language.LanguageFile))
        throw DamagedPackage(texts_, {Message::PackageFileDamaged, kSetupInformationName});
}

void SetupProgram::CheckFiles()
{
    input_.ask.AddStatusLine(texts_[Message::Checking]);
    CheckAgainstManifest({input_.host.files, input_.ask, log_, texts_, package_.setup,
                          package_.rows, package_.manifest, input_.switches.packageFolder});
}

// True also for a package that asks for none.
bool SetupProgram::HasPassword() const
{
    const Project& project = setup_.project;
    const Text& correct = project.DialogBoxData.CorrectPassword;
    return project.DialogBoxes.PasswordDlg != 1 || correct.empty() ||
           input_.switches.password == correct;
}

// Where there are pages, one of them asks for it.
void SetupProgram::CheckPassword() const
{
    if (HasPassword())
        return;
    if (input_.switches.password)
        throw SetupFailure(ExitCode::Failed, texts_[Message::WrongPassword]);
    if (input_.pages == nullptr)
        throw SetupFailure(ExitCode::Failed, texts_[Message::NeedsPassword]);
}

void SetupProgram::CheckSystem()
{
    const section::TargetOS& systems = package_.setup.project.TargetOS;
    if (IsMeantFor(systems, input_.target.System()) != kOff)
        return;
    if (systems.TargetOS_StopIfWrong != kOff)
        throw SetupFailure(ExitCode::WrongSystem, texts_[Message::WrongSystem]);
    if (systems.TargetOS_WarnIfWrong == kOff)
        return;
    log_.Line(Message::LogWrongSystem);
    const Text title = texts_(Message::Title, package_.setup.project.ProjectName.ProjectName);
    if (!input_.switches.silent &&
        !input_.ask.YesNo(title, texts_[Message::WrongSystemQuestion], Ask::Stops::OnNo))
        throw SetupFailure(ExitCode::Cancelled, {});
}

// Files that are replaced are counted in full: the old ones stay until everything is in its place.
void SetupProgram::CheckFreeSpace(const InstallPlan& plan) const
{
    std::map<Text, std::uint64_t> needed;
    for (const PlannedFile& file : plan.files)
        if (file.path[1] == ':')
            needed[UpperCase(file.path.substr(0, 3))] += file.row->size;
    for (const auto& [root, bytes] : needed)
        if (input_.host.files.FreeSpace(root) < bytes)
            throw RunError(ErrorNumber::kDiskFull, root);
}

// Who has made a folder decides who may write to it, and so what the product's programs are. Other
// machines' users, on shares and disks that are carried about, say nothing here.
void SetupProgram::CheckFolder(const Text& folder) const
{
    if (folder[1] != ':' || input_.host.files.DriveType(folder.substr(0, 3)) != DriveKind::Fixed)
        return;
    Text at = folder;
    for (Text above = ExtractDirectory(at); above != at && !at.empty();
         at = above, above = ExtractDirectory(at))
        if (input_.host.files.DirExists(at) && !input_.target.IsOfTrustedUser(at))
            throw SetupFailure(ExitCode::Failed, texts_(Message::FolderOfOthers, at));
}

void SetupProgram::FreeFilesInUse(const InstallPlan& plan)
{
    std::vector<Text> paths;
    for (const PlannedFile& file : plan.files)
        if (!HasOption(file.row->copyOptions, CopyLetter::kNeverReplace))
            paths.push_back(file.path);
    const Text title = texts_(Message::Title, setup_.project.ProjectName.ProjectName);
    if (!FreeFiles({input_.ask, log_, texts_, input_.users, input_.switches, title}, paths))
        throw SetupFailure(ExitCode::Cancelled, {});
}

// The package may lie on a disk that is changed while its files are read.
void SetupProgram::KeepHelpers() const
{
    FileSystem& files = input_.host.files;
    for (const char* helper :
         {RuntimePrograms::kRegistryHelper.inPackage,
          RuntimePrograms::kSecondRegistryHelper.inPackage, RuntimePrograms::kUninstaller.inPackage,
          RuntimePrograms::kSetup.inPackage}) {
        const Text path = JoinPath(input_.switches.packageFolder, helper);
        if (files.FileExists(path))
            files.CopyContent(path, JoinPath(input_.workFolder, helper));
    }
}

// What is needed at the very end has to be there before the first file is written.
void SetupProgram::CheckHelpers(const InstallPlan& plan) const
{
    const auto check = [&](bool isNeeded, const char* helper) {
        const Text path = JoinPath(input_.workFolder, helper);
        FileSystem& files = input_.host.files;
        if (isNeeded && (!files.FileExists(path) || files.Status(path).size == 0))
            throw DamagedPackage(texts_, {Message::PackageFileMissing, helper});
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

// An installation of the product that was ended from outside, to this folder or to another one.
void SetupProgram::FinishEarlier(const SetupVariables& variables)
{
    const std::string_view mainFolder = NameOf(VariableMeaning::MainFolder);
    const SetupVariables usual = MakeSetupVariables(
        {package_.setup, input_.host, input_.target, input_.switches.packageFolder, {}});
    std::set<Text> folders{variables.Value(mainFolder), usual.Value(mainFolder)};
    const auto installed = input_.target.ReadValue(
        UninstallEntryKey(package_.setup.project.ProjectName.ProjectName), "InstallLocation");
    // Anything may stand in such a value.
    if (const auto folder = installed ? TextOf(*installed) : std::nullopt;
        folder && IsAbsolutePath(*folder))
        folders.insert(*folder);
    for (const Text& folder : folders)
        if (FinishInterrupted({input_.host, input_.target, log_}, folder) == EarlierRun::Incomplete)
            throw SetupFailure(ExitCode::Failed, texts_(Message::EarlierNotUndone, folder));
}

void SetupProgram::RunProgramBefore()
{
    const SetupVariables variables = Variables();
    const auto folder = RunFirstProgram(
        {input_.host, input_.target, input_.ask, log_, texts_, setup_, variables, package_.manifest,
         input_.switches.packageFolder, input_.workFolder, input_.switches.silent});
    destination_ = folder.value_or("");
}

// What somebody has typed goes before what programs say.
void SetupProgram::FindDestination()
{
    if (!input_.switches.destination.empty())
        destination_ = input_.switches.destination;
    if (!destination_.empty())
        return;
    const auto earlier = EarlierVersionFolder(setup_, input_.host, input_.target);
    destination_ = earlier.value_or("");
    isUpdate_ = earlier.has_value();
}

void SetupProgram::LeadThroughPages()
{
    if (input_.sound != nullptr)
        input_.sound->Start();
    if (input_.pages == nullptr)
        return;
    chain_ = std::make_unique<PageChain>(
        PageInput{input_.host, input_.target, input_.ask, texts_, setup_, package_.rows,
                  input_.switches.packageFolder, destination_, isUpdate_, HasPassword()});
    if (chain_->LeadThrough(*input_.pages) == PageChain::End::Cancelled)
        throw SetupFailure(ExitCode::Cancelled, {});
    const UserChoices& choices = chain_->Choices();
    if (!choices.destination.empty())
        destination_ = choices.destination;
}

SetupVariables SetupProgram::Variables() const
{
    return MakeSetupVariables(
        {setup_, input_.host, input_.target, input_.switches.packageFolder, destination_});
}

InstallResult SetupProgram::InstallPackage()
{
    const SetupVariables variables = Variables();
    CheckFolder(variables.Value(NameOf(VariableMeaning::MainFolder)));
    FinishEarlier(variables);
    const InstallPlan plan =
        MakeInstallPlan({setup_, package_.rows, variables, texts_, input_.host, input_.target});
    KeepHelpers();
    CheckHelpers(plan);
    PackageReader reader({input_.host, input_.ask, log_, texts_, setup_, package_.rows,
                          input_.openContainer, input_.switches.packageFolder, input_.workFolder,
                          setup_.project.DialogBoxData.CorrectPassword, input_.switches.silent,
                          &package_.manifest});
    reader.CheckEverything();
    CheckFreeSpace(plan);
    FreeFilesInUse(plan);
    InstallResult result =
        Install({input_.host, input_.target, input_.ask, log_, texts_, setup_, variables, plan,
                 reader, input_.workFolder, input_.switches.silent, package_.manifest});
    if (InstallDataAccess({input_.host, input_.target, input_.ask, log_, texts_, setup_, plan,
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

// The product is installed: whatever happens here takes nothing back.
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
    return DecideRestart({setup_.project.InstallOptions, input_.ask, texts_, Title(),
                          result.needsRestart,
                          !input_.switches.silent && !input_.switches.noRestart});
}

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

// Without it everything is said in Swedish.
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

ExitCode RunSetup(const SetupInput& input, const LoadedPackage& package)
{
    return SetupProgram(input, package).Run();
}

} // namespace quillon
