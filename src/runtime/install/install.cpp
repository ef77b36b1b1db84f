#include "runtime/install/install.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/ini_files/ini_changes.h"
#include "runtime/ini_files/startup_files.h"
#include "runtime/install/file_installer.h"
#include "runtime/install/old_files.h"
#include "runtime/install/old_shortcuts.h"
#include "runtime/install/planned_shortcuts.h"
#include "runtime/install/uninstall_entry.h"
#include "runtime/install/uninstaller_files.h"
#include "runtime/journal/started_setups.h"
#include "runtime/registry/registry_changes.h"
#include "runtime/script/script_run.h"
#include "runtime/texts/failure_reason.h"

namespace quillon {

namespace {

class Installation {
public:
    Installation(const InstallInput& input)
        : input_(input), transaction_(input.host, input.target, journal_, input.log),
          files_(input, transaction_, journal_)
    {
    }

    InstallResult Run()
    {
        const auto hold = input_.target.HoldShutdown(input_.texts[Message::Copying]);
        try {
            DoEverything();
        } catch (const std::exception& error) {
            input_.log.Line(Message::LogUndoes);
            input_.ask.AddStatusLine(input_.texts[Message::Undoing]);
            if (!transaction_.Undo())
                throw SetupFailure(
                    ExitCode::Failed,
                    input_.texts(Message::NotUndone, FailureReason(error, input_.texts)));
            ForgetStartedSetups(input_.target, Product());
            throw;
        }
        transaction_.CleanUp();
        ForgetStartedSetups(input_.target, Product());
        return {transaction_.NeedsRestart()};
    }

private:
    const Text& Product() const { return input_.setup.project.ProjectName.ProjectName; }
    void DoEverything();
    void BeginJournal();
    void RecordTexts();
    void SaveJournal();
    void ShareMainFolder();
    void DeleteOldProgramGroup();
    void WriteRegistry();
    void RegisterFiles();
    void RegisterOne(const Text& path);
    void SkipRegistration(const Text& path, Message why);
    void RegisterAtRestart();
    void RegisterFonts();
    void MakeShortcut(const PlannedShortcut& planned);
    void PutHelper(const char* helper, const Text& path);
    void PutUninstaller();

    const InstallInput& input_;
    InstallJournal journal_;
    InstallTransaction transaction_;
    FileInstaller files_;
    // Of an earlier installation of the product.
    std::size_t earlierRecords_ = 0;
    KnownContents contents_;
};

void Installation::DoEverything()
{
    for (const SkippedPart& part : input_.plan.skipped)
        input_.log.Skipped(part.what, part.reason);
    input_.ask.AddStatusLine(input_.texts[Message::Copying]);
    NoteStartedSetup(input_.target, Product(), input_.plan.scope, input_.plan.mainFolder);
    transaction_.Begin(input_.plan.mainFolder, Product());
    transaction_.MakeFolder(input_.plan.mainFolder);
    BeginJournal();
    const ScriptWork scripts{input_, transaction_, journal_};
    RunScript(scripts, input_.plan.scriptBefore, Message::PartScriptBefore);
    DeleteOldProgramGroup();
    for (const Text& folder : input_.plan.folders)
        transaction_.MakeFolder(folder);
    files_.InstallAll();
    input_.ask.ProcessEvents();
    input_.ask.AddStatusLine(input_.texts[Message::Settings]);
    WriteRegistry();
    WriteIniFiles({input_.host.files, transaction_, journal_, input_.log}, input_.plan.ini);
    WriteStartupFiles({input_.host.files, input_.target, transaction_, journal_, input_.log,
                       input_.texts, input_.variables},
                      input_.setup.project.Lists);
    RegisterFiles();
    RegisterFonts();
    PutUninstaller();
    for (const PlannedShortcut& planned : input_.plan.shortcuts)
        MakeShortcut(planned);
    RunScript(scripts, input_.plan.scriptAfter, Message::PartScriptAfter);
    RegisterAtRestart();
    RemoveOldFiles({input_.host, input_.target, transaction_, journal_, input_.log, input_.plan},
                   earlierRecords_, contents_);
    // The user can cancel here for the last time.
    input_.ask.ProcessEvents();
    SaveJournal();
    transaction_.Commit();
}

// Continues the journal of an earlier installation of the same product, so that the uninstaller
// removes what that one made too. A journal of a user with fewer rights is not continued, since the
// uninstaller trusts whatever is in ours.
void Installation::BeginJournal()
{
    if (!input_.plan.hasUninstaller)
        return;
    const Text& path = input_.plan.installJournal;
    EarlierJournal earlier = ReadEarlierJournal(input_.host.files, input_.target, path);
    earlierRecords_ = earlier.records.size();
    contents_ = std::move(earlier.contents);
    journal_.TakeOver(std::move(earlier.records));
    ShareMainFolder();
    journal_.Add(record::Product{Product()});
    RecordTexts();
}

void Installation::SaveJournal()
{
    if (!input_.plan.hasUninstaller)
        return;
    const Text& path = input_.plan.installJournal;
    FileSystem& files = input_.host.files;
    const Text staged = transaction_.StagingPath(path);
    journal_.Save(files, staged);
    // The uninstaller trusts this file, so others must not be able to change it.
    input_.target.CloseToOthers(staged);
    transaction_.PutFile({staged, path, files.FileExists(path), InstallTransaction::Recorded::No});
    input_.log.Line(Message::LogWritesOwnFile, path);
}

void Installation::RecordTexts()
{
    for (int i = 0; i < int(Message::Count); ++i)
        if (IsOfUninstaller(Message(i)))
            journal_.Add(record::Message{KeyOf(Message(i)).key, input_.texts[Message(i)]});
}

// Where products share a main folder, the last one that is removed also removes the folder that the
// first one made.
void Installation::ShareMainFolder()
{
    const Text inside = LowerCase(input_.plan.mainFolder) + "\\";
    for (const Text& path : InstallJournalsIn(input_.host.files, input_.plan.mainFolder)) {
        if (!input_.target.IsOfTrustedUser(path))
            continue;
        const auto records = ReadInstallJournal(ReadWholeFile(input_.host.files, path));
        for (const JournalRecord& record : records.value_or(std::vector<JournalRecord>{}))
            if (const auto* const folder = std::get_if<record::Folder>(&record);
                folder && inside.starts_with(LowerCase(folder->path) + "\\"))
                journal_.Add(*folder);
    }
}

// Only the product's own shortcuts go, and the group stays where anything else is in it.
void Installation::DeleteOldProgramGroup()
{
    if (input_.setup.project.InstallOptions.DeleteProgGroup == kOff)
        return;
    for (const Text& path : OldShortcuts(input_.host.files, input_.target, journal_, input_.plan)) {
        transaction_.RemoveFile(path);
        input_.log.Line(Message::LogRemovesShortcut, path);
    }
}

void Installation::WriteRegistry()
{
    for (const RegistryLine& line : input_.plan.registry)
        ApplyRegistryLine({transaction_, journal_, input_.log}, line);
}

void Installation::RegisterFiles()
{
    for (const Text& path : files_.FilesToRegister())
        RegisterOne(path);
    for (const Text& path : input_.plan.registerFiles)
        if (input_.host.files.FileExists(path))
            RegisterOne(path);
        else
            SkipRegistration(path, Message::SkipNoFile);
}

void Installation::RegisterOne(const Text& path)
{
    input_.ask.ProcessEvents();
    switch (transaction_.RegisterServer(path)) {
    case Registration::Done:
        input_.log.Line(Message::LogRegisters, path);
        break;
    case Registration::NotSelfRegistering:
        SkipRegistration(path, Message::SkipNotSelfRegistering);
        break;
    case Registration::Failed:
        SkipRegistration(path, Message::SkipRegistrationFailed);
        break;
    }
}

void Installation::SkipRegistration(const Text& path, Message why)
{
    input_.log.Skipped(input_.texts(Message::PartRegistration, path), {why});
}

// Files that are in use take their place when the machine starts; a helper registers them then. One
// command for each, since the system passes over a command of more than 260 characters.
void Installation::RegisterAtRestart()
{
    const std::vector<Text>& paths = files_.FilesToRegisterAtRestart();
    if (paths.empty())
        return;
    const Text helper =
        JoinPath(input_.plan.mainFolder, RuntimePrograms::kSecondRegistryHelper.name);
    PutHelper(RuntimePrograms::kSecondRegistryHelper.inPackage, helper);
    const RegistryKey key{RegistryRoot::LocalMachine,
                          "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\RunOnce"};
    const Text name = Text(RuntimePrograms::kRunOnceName) + " " + Product();
    for (std::size_t i = 0; i < paths.size(); ++i) {
        journal_.Add(record::Registered{paths[i]});
        transaction_.WriteValue(key, name + (i == 0 ? "" : " " + NumberText(std::int64_t(i) + 1)),
                                TextData("\"" + helper + "\" \"" + paths[i] + "\""));
    }
}

void Installation::RegisterFonts()
{
    const RegistryKey key{RegistryRoot::LocalMachine,
                          input_.target.System() >= SystemKind::WinNT4
                              ? "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Fonts"
                              : "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Fonts"};
    const Text fontFolder = input_.target.Folder(TargetFolder::Fonts);
    for (const PlannedFile& font : files_.Fonts()) {
        const Text description = input_.variables.Expand(font.row->iconTitle);
        const bool marked = description.find("(TrueType)") != Text::npos;
        const bool inFontFolder = EqualIgnoreCase(ExtractDirectory(font.path), fontFolder);
        transaction_.WriteValue(key, description + (marked ? "" : " (TrueType)"),
                                TextData(inFontFolder ? font.row->name : font.path));
        transaction_.AnnounceFont(font.path);
        input_.log.Line(Message::LogRegistersFont, font.path);
    }
}

// With its content, so that an update sees whether it was changed.
void Installation::MakeShortcut(const PlannedShortcut& planned)
{
    const FileSystem& files = input_.host.files;
    transaction_.MakeShortcut(planned.path, planned.shortcut);
    if (input_.plan.hasUninstaller)
        journal_.Add(record::Content{planned.path, files.Status(planned.path).size,
                                     DigestText(DigestOfFile(files, planned.path))});
}

void Installation::PutHelper(const char* helper, const Text& path)
{
    const Text staged = transaction_.StagingPath(path);
    input_.host.files.CopyContent(JoinPath(input_.helpersFolder, helper), staged);
    transaction_.PutFile({staged, path, input_.host.files.FileExists(path)});
    input_.log.Line(Message::LogWritesOwnFile, path);
}

void Installation::PutUninstaller()
{
    if (!input_.plan.hasUninstaller)
        return;
    const Text& folder = input_.plan.mainFolder;
    PutUninstallerFiles(input_.host.files, input_.helpersFolder, folder, transaction_);
    for (const Text& path : FilesOfUninstaller(folder))
        input_.log.Line(Message::LogWritesOwnFile, path);
    input_.log.Line(Message::LogWritesOwnFile, UninstallerPath(folder));
    WriteUninstallEntry({input_, files_.InstalledBytes()}, transaction_);
}

} // namespace

InstallResult Install(const InstallInput& input)
{
    return Installation(input).Run();
}

} // namespace quillon
