#include "runtime/uninstall.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/changes.h"
#include "runtime/file_installer.h"
#include "runtime/ini_changes.h"
#include "runtime/planned_shortcuts.h"

#include <algorithm>

namespace quillon {

namespace {

class Uninstallation {
public:
    explicit Uninstallation(const UninstallInput& input)
        : input_(input), files_(input.host.files), records_(input.product.records)
    {
    }

    ExitCode Run();

private:
    void TakeBack(std::size_t index);
    void TakeBack(const record::File& file) { RemoveFile(file.path); }
    void TakeBack(const record::Backup& backup) { RestoreBackup(backup.path, backup.kept); }
    void TakeBack(const record::Shared& shared) { ReleaseShared(shared.path); }
    void TakeBack(const record::Font& font);
    void TakeBack(const record::Registered& registered);
    void TakeBack(const record::Key& key) { RemoveKeyIfEmpty(key.key); }
    void TakeBack(const record::Value& value);
    void TakeBack(const record::UninstallKey& key) { RemoveKeyWithAllBelow(key.key); }
    void TakeBack(const record::UninstallValue& value) { RemoveValue(value.key, value.name); }
    void TakeBack(const record::IniFile& change) { TakeBackIniChange(files_, change); }
    void TakeBack(const record::IniOpenEnd& change) { TakeBackIniChange(files_, change); }
    void TakeBack(const record::IniSection& change) { TakeBackIniChange(files_, change); }
    void TakeBack(const record::IniValue& change) { TakeBackIniChange(files_, change); }
    // What tells of the product or belongs to the installation alone. All folders go last.
    template <class Record>
    void TakeBack(const Record&)
    {
    }
    void RemoveFile(const Text& path);
    void RemoveReplaced(std::size_t index);
    void RestoreBackup(const Text& path, const Text& backup);
    void ReleaseShared(const Text& path);
    void RemoveValue(const RegistryKey& key, const Text& name);
    void RemoveKeyIfEmpty(const RegistryKey& key);
    void RemoveKeyWithAllBelow(const RegistryKey& key);
    void RemoveUninstaller();
    void RemoveFolders();
    bool IsStillShared(const Text& path) const;
    bool IsKeptInWindows(std::size_t index) const;
    bool StaysBehind(const Text& path) const;
    template <class Work>
    void Attempt(const Text& what, Work work);

    const UninstallInput& input_;
    FileSystem& files_;
    const std::vector<JournalRecord>& records_;
    std::vector<Text> stillShared_;
    bool partly_ = false;
};

// One thing that can't be removed keeps nothing else from going.
template <class Work>
void Uninstallation::Attempt(const Text& what, Work work)
{
    try {
        work();
    } catch (const RunError& error) {
        partly_ = true;
        input_.log.CannotRemove(what, error);
    }
}

ExitCode Uninstallation::Run()
{
    input_.ask.AddStatusLine(input_.product.texts[Message::UninstallRunning]);
    for (std::size_t left = records_.size(); left > 0; --left) {
        Attempt(SubjectOf(records_[left - 1]), [&] { TakeBack(left - 1); });
        input_.ask.ShowProgress(records_.size() - left + 1, records_.size());
    }
    Attempt(input_.logPath, [&] { RemoveUninstaller(); });
    RemoveFolders();
    return partly_ ? ExitCode::Failed : ExitCode::Done;
}

void Uninstallation::TakeBack(std::size_t index)
{
    if (std::holds_alternative<record::Replaced>(records_[index]))
        RemoveReplaced(index);
    else
        std::visit([&](const auto& record) { TakeBack(record); }, records_[index]);
}

void Uninstallation::TakeBack(const record::Font& font)
{
    if (!StaysBehind(font.path))
        input_.target.AnnounceFont(font.path, false);
}

void Uninstallation::TakeBack(const record::Registered& registered)
{
    if (files_.FileExists(registered.path) && !StaysBehind(registered.path))
        input_.target.RegisterServer(registered.path, false);
}

bool Uninstallation::IsStillShared(const Text& path) const
{
    return std::any_of(stillShared_.begin(), stillShared_.end(),
                       [&](const Text& shared) { return EqualIgnoreCase(shared, path); });
}

void Uninstallation::RemoveFile(const Text& path)
{
    if (!files_.FileExists(path))
        return;
    if (IsStillShared(path)) {
        input_.log.Skipped(path, {Message::ReasonUsedByOthers});
        return;
    }
    try {
        RemoveEvenReadOnly(files_, path);
        input_.log.Line(Message::LogRemoves, path);
    } catch (const RunError&) {
        input_.target.MoveAtRestart(path, "");
        input_.log.Line(Message::LogRemovesAtRestart, path);
    }
}

// A file that was in the Windows folder before us, and of which there is no backup.
bool Uninstallation::IsKeptInWindows(std::size_t index) const
{
    const Text path = SubjectOf(records_[index]);
    const auto* const backup =
        index > 0 ? std::get_if<record::Backup>(&records_[index - 1]) : nullptr;
    const bool comesBack =
        backup && EqualIgnoreCase(backup->path, path) && files_.FileExists(backup->kept);
    const Text windows = LowerCase(input_.host.machine.GetWindowsDir()) + "\\";
    return !comesBack && LowerCase(path).compare(0, windows.size(), windows) == 0;
}

void Uninstallation::RemoveReplaced(std::size_t index)
{
    const Text path = SubjectOf(records_[index]);
    if (IsKeptInWindows(index))
        input_.log.Skipped(path, {Message::ReasonWasInWindows});
    else
        RemoveFile(path);
}

// Whether the file is still there after us, so that what the system knows of it has to stay.
bool Uninstallation::StaysBehind(const Text& path) const
{
    const std::uint32_t users = CountOfUsers(input_.target, path).value_or(0);
    bool goes = false;
    for (std::size_t i = 0; i < records_.size(); ++i) {
        const JournalRecord& record = records_[i];
        if (!EqualIgnoreCase(SubjectOf(record), path))
            continue;
        const bool isShared = std::holds_alternative<record::Shared>(record);
        if (isShared && users > 1)
            return true;
        goes = goes || std::holds_alternative<record::File>(record) || (isShared && users == 1) ||
               (std::holds_alternative<record::Replaced>(record) && !IsKeptInWindows(i));
    }
    return !goes;
}

void Uninstallation::RestoreBackup(const Text& path, const Text& backup)
{
    if (files_.FileExists(path) || !files_.FileExists(backup))
        return;
    files_.Rename(backup, path);
    input_.log.Line(Message::LogPutsBack, path);
}

// The product that goes last takes a shared file along. Where the count has been lost nobody knows
// who is last, and only a file of our own goes, by its own record.
void Uninstallation::ReleaseShared(const Text& path)
{
    const auto count = CountOfUsers(input_.target, path);
    if (!count)
        return;
    if (*count > 1) {
        input_.target.WriteValue(SharedFilesKey(), path, NumberData(*count - 1));
        stillShared_.push_back(path);
        return;
    }
    RemoveValue(SharedFilesKey(), path);
    RemoveFile(path);
}

void Uninstallation::TakeBack(const record::Value& value)
{
    const auto present = input_.target.ReadValue(value.key, value.name);
    if (!present)
        return;
    if (!value.former)
        RemoveValue(value.key, value.name);
    else if (*present == value.data)
        input_.target.WriteValue(value.key, value.name, *value.former);
    else
        input_.log.Skipped(KeyText(value.key) + " :: " + value.name, {Message::ReasonValueChanged});
}

void Uninstallation::RemoveValue(const RegistryKey& key, const Text& name)
{
    if (!input_.target.ReadValue(key, name))
        return;
    input_.target.RemoveValue(key, name);
    input_.log.Line(Message::LogRemovesRegistry, KeyText(key) + " :: " + name);
}

void Uninstallation::RemoveKeyIfEmpty(const RegistryKey& key)
{
    if (!input_.target.KeyExists(key))
        return;
    if (!input_.target.SubKeys(key).empty() || !input_.target.ValueNames(key).empty()) {
        input_.log.Skipped(KeyText(key), {Message::ReasonKeyNotEmpty});
        return;
    }
    input_.target.RemoveKey(key);
    input_.log.Line(Message::LogRemovesRegistry, KeyText(key));
}

void Uninstallation::RemoveKeyWithAllBelow(const RegistryKey& key)
{
    if (!input_.target.KeyExists(key))
        return;
    for (const Text& name : input_.target.SubKeys(key))
        RemoveKeyWithAllBelow({key.root, key.subKey + "\\" + name});
    input_.target.RemoveKey(key);
    input_.log.Line(Message::LogRemovesRegistry, KeyText(key));
}

void Uninstallation::RemoveUninstaller()
{
    const Text uninstaller = UninstallerPath(ExtractDirectory(input_.logPath));
    if (GoesWithProduct(files_, input_.logPath, uninstaller))
        RemoveFile(uninstaller);
    RemoveFile(input_.logPath);
}

void Uninstallation::RemoveFolders()
{
    for (auto record = records_.rbegin(); record != records_.rend(); ++record) {
        if (!std::holds_alternative<record::Folder>(*record))
            continue;
        const Text& folder = std::get<record::Folder>(*record).path;
        Attempt(folder, [&] {
            if (!files_.DirExists(folder))
                return;
            if (!files_.List(folder).empty()) {
                input_.log.Skipped(folder, {Message::ReasonFolderNotEmpty});
                return;
            }
            files_.RemoveFolder(folder);
            input_.log.Line(Message::LogRemovesFolder, folder);
        });
    }
}

} // namespace

std::optional<InstalledProduct> ReadInstalledProduct(const FileSystem& files, const Text& logPath)
{
    if (!files.FileExists(logPath))
        return std::nullopt;
    auto records = ReadInstallLog(ReadWholeFile(files, logPath));
    if (!records)
        return std::nullopt;
    InstalledProduct product;
    for (const JournalRecord& record : *records) {
        if (const auto* const named = std::get_if<record::Product>(&record))
            product.name = named->name;
        const auto* const message = std::get_if<record::Message>(&record);
        for (int i = 0; message && i < int(Message::Count); ++i)
            if (IsOfUninstaller(Message(i)) && message->key == KeyOf(Message(i)).key)
                product.texts.Set(Message(i), message->text);
    }
    product.records = std::move(*records);
    return product;
}

ExitCode Uninstall(const UninstallInput& input)
{
    return Uninstallation(input).Run();
}

bool GoesWithProduct(const FileSystem& files, const Text& logPath, const Text& uninstaller)
{
    const Text folder = ExtractDirectory(logPath);
    const Text own = files.ShortPath(UninstallerPath(folder));
    if (!EqualIgnoreCase(files.ShortPath(uninstaller), own))
        return false;
    const std::vector<Text> logs = InstallLogsIn(files, folder);
    return std::all_of(logs.begin(), logs.end(),
                       [&](const Text& log) { return EqualIgnoreCase(log, logPath); });
}

} // namespace quillon
