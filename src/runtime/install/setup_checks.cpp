#include "runtime/install/setup_checks.h"

#include "formats/package.h"
#include "formats/setup_names.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "runtime/install/before_install.h"
#include "runtime/install/copy_decision.h"
#include "runtime/install/uninstall_entry.h"
#include "runtime/package/package_check.h"
#include "runtime/script/script_run.h"
#include "runtime/texts/failure_reason.h"
#include "runtime/uninstall_entry_key.h"

namespace quillon {

namespace {

// The version in the list of programs; empty where the product's folder does not exist any more, so
// that no newer version can be there.
Text InstalledVersion(const SetupInput& input, const Text& product, InstallScope scope)
{
    const RegistryKey entry = UninstallEntryKey(product, scope);
    const auto textAt = [&](const char* name) {
        const auto data = input.target.ReadValue(entry, name);
        return data ? TextOf(*data).value_or("") : Text();
    };
    return input.host.files.DirExists(textAt(kInstallLocation)) ? textAt(kDisplayVersion) : Text();
}

// An archive that another program has open for writing is refused.
std::unique_ptr<InputFile> OpenArchive(const SetupInput& input, const LoadedPackage& package)
{
    const FileSystem& files = input.host.files;
    const bool isInPieces = package.setup.project.Media.TargetMedia == int(Medium::Floppy) &&
                            package.setup.Floppies > 1;
    const Text path = JoinPath(input.switches.packageFolder, kFileContainerName);
    if (!UsesContainer(package.setup) || isInPieces || !files.FileExists(path))
        return nullptr;
    std::unique_ptr<InputFile> archive;
    if (RunErrorNumber([&] {
            archive = input.openHeld ? input.openHeld(path) : files.OpenInput(path);
        }) != ErrorNumber::kNone)
        throw DamagedPackage(package.texts, {Message::PackageFileMissing, kFileContainerName});
    return archive;
}

} // namespace

void RefuseSwitch(const LanguageTexts& texts, const Text& badSwitch)
{
    throw SetupFailure(ExitCode::BadSwitch, texts(Message::BadSwitch, badSwitch));
}

void CheckSwitches(const SetupCheck& check)
{
    const Switches& switches = check.input.switches;
    const LanguageTexts& texts = check.package.texts;
    if (switches.badSwitch)
        RefuseSwitch(texts, *switches.badSwitch);
    const Text& language = switches.languageFile;
    if (!language.empty() &&
        !check.input.host.files.FileExists(JoinPath(switches.packageFolder, language)))
        RefuseSwitch(texts, "/LANG=" + language);
    if (check.input.otherSetupRuns && switches.task == SetupTask::Install)
        throw SetupFailure(ExitCode::OtherSetupRuns, texts[Message::OtherSetup]);
}

void CheckPackage(const LoadedPackage& package)
{
    const LanguageTexts& texts = package.texts;
    if (package.fault)
        throw DamagedPackage(texts, *package.fault);
    if (const auto fault = FaultOfScripts(package.setup, texts))
        throw DamagedPackage(texts, *fault);
    const Project& project = package.setup.project;
    const Text& starter = project.InstallOptions.SetupName;
    // The tool's own text for such a name would mean nothing to the end user.
    if (FaultOfName(starter) != PathFault::None ||
        IsNameOfPackageFile(starter, project.Language.LanguageFile))
        throw DamagedPackage(texts, {Message::PackageFileDamaged, kSetupInformationName});
}

std::unique_ptr<InputFile> CheckFiles(const SetupCheck& check)
{
    const auto& [input, package, ask, log, scope] = check;
    ask.AddStatusLine(package.texts[Message::Checking]);
    auto archive = OpenArchive(input, package);
    CheckAgainstManifest({input.host.files, ask, log, package.texts, package.setup, package.rows,
                          package.manifest, input.switches.packageFolder, archive.get()});
    if (archive)
        archive->Seek(0);
    return archive;
}

bool HasPassword(const Switches& switches, const SetupInformation& setup)
{
    const Text& correct = setup.project.DialogBoxData.CorrectPassword;
    return setup.project.DialogBoxes.PasswordDlg != 1 || correct.empty() ||
           switches.password == correct;
}

// Where there are pages, one of them asks for it.
void CheckPassword(const SetupInput& input, const LoadedPackage& package)
{
    if (HasPassword(input.switches, package.setup))
        return;
    if (input.switches.password)
        throw SetupFailure(ExitCode::Failed, package.texts[Message::WrongPassword]);
    if (input.pages == nullptr)
        throw SetupFailure(ExitCode::Failed, package.texts[Message::NeedsPassword]);
}

bool MayWarn(const Switches& switches)
{
    return MayAsk(switches) && switches.task != SetupTask::Plan;
}

void CheckSystem(const SetupCheck& check)
{
    const Project& project = check.package.setup.project;
    const LanguageTexts& texts = check.package.texts;
    if (IsMeantFor(project.TargetOS, check.input.target.System()) != kOff)
        return;
    if (project.TargetOS.TargetOS_StopIfWrong != kOff)
        throw SetupFailure(ExitCode::WrongSystem, texts[Message::WrongSystem]);
    if (project.TargetOS.TargetOS_WarnIfWrong == kOff)
        return;
    check.log.Line(Message::LogWrongSystem);
    if (MayWarn(check.input.switches) &&
        !check.ask.YesNo(texts(Message::Title, project.ProjectName.ProjectName),
                         texts[Message::WrongSystemQuestion], Ask::Stops::OnNo))
        throw SetupFailure(ExitCode::Cancelled, {});
}

void CheckInstalledVersion(const SetupCheck& check)
{
    const SetupInformation& setup = check.package.setup;
    const LanguageTexts& texts = check.package.texts;
    const Text& product = setup.project.ProjectName.ProjectName;
    const Text& own = VersionOf(setup);
    const Text installed = InstalledVersion(check.input, product, check.scope);
    if (own.empty() || installed.empty() || CompareVersions(installed, own) <= 0)
        return;
    const Switches& switches = check.input.switches;
    if (!MayAsk(switches))
        throw SetupFailure(ExitCode::NewerInstalled,
                           texts(Message::NewerInstalled, installed, own));
    check.log.Line(Message::LogNewerInstalled, installed, own);
    if (MayWarn(switches) &&
        !check.ask.YesNo(texts(Message::Title, product),
                         texts(Message::NewerInstalledQuestion, installed, own), Ask::Stops::OnNo))
        throw SetupFailure(ExitCode::Cancelled, {});
}

} // namespace quillon
