#include "runtime/uninstall.h"

#include "helpers/number_text.h"
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
    void RemoveFile(const Text& path);
    void RemoveReplaced(std::size_t index);
    void RestoreBackup(const Text& path, const Text& backup);
    void ReleaseShared(const Text& path);
    void TakeBackValue(const std::vector<Text>& fields);
    void RemoveValue(const RegistryKey& key, const Text& name);
    void RemoveKeyIfEmpty(const RegistryKey& key);
    void RemoveKeyWithAllBelow(const RegistryKey& key);
    void RemoveUninstaller();
    void RemoveFolders();
    bool IsStillShared(const Text& path) const;
    bool IsKeptInWindows(std::size_t index) const;
    bool StaysBehind(const Text& path) const;
    RegistryKey KeyOfRecord(const std::vector<Text>& fields) const
    {
        return {RootNamed(fields[0]).value_or(RegistryRoot::CurrentUser), fields[1]};
    }
    template <class Work>
    void Attempt(const Text& what, Work work);

    const UninstallInput& input_;
    FileSystem& files_;
    const std::vector<LogRecord>& records_;
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
        input_.log.Line("Kan inte ta bort " + what + ": " + error.what());
    }
}

ExitCode Uninstallation::Run()
{
    input_.ask.AddStatusLine(input_.product.texts[Message::UninstallRunning]);
    for (std::size_t left = records_.size(); left > 0; --left) {
        const LogRecord& record = records_[left - 1];
        Attempt(record.fields[0], [&] { TakeBack(left - 1); });
        input_.ask.ShowProgress(records_.size() - left + 1, records_.size());
    }
    Attempt(input_.logPath, [&] { RemoveUninstaller(); });
    RemoveFolders();
    return partly_ ? ExitCode::Failed : ExitCode::Done;
}

void Uninstallation::TakeBack(std::size_t index)
{
    const std::vector<Text>& fields = records_[index].fields;
    switch (records_[index].kind) {
    case RecordKind::File:
        return RemoveFile(fields[0]);
    case RecordKind::Replaced:
        return RemoveReplaced(index);
    case RecordKind::Backup:
        return RestoreBackup(fields[0], fields[1]);
    case RecordKind::Shared:
        return ReleaseShared(fields[0]);
    case RecordKind::Font:
        if (!StaysBehind(fields[0]))
            input_.target.AnnounceFont(fields[0], false);
        return;
    case RecordKind::Registered:
        if (files_.FileExists(fields[0]) && !StaysBehind(fields[0]))
            input_.target.RegisterServer(fields[0], false);
        return;
    case RecordKind::Key:
        return RemoveKeyIfEmpty(KeyOfRecord(fields));
    case RecordKind::Value:
        return TakeBackValue(fields);
    case RecordKind::UninstallKey:
        return RemoveKeyWithAllBelow(KeyOfRecord(fields));
    case RecordKind::UninstallValue:
        return RemoveValue(KeyOfRecord(fields), fields[2]);
    case RecordKind::IniFile:
    case RecordKind::IniSection:
    case RecordKind::IniValue:
        return TakeBackIniChange(files_, records_[index]);
    case RecordKind::Product:
    case RecordKind::Message:
    case RecordKind::Folder: // all folders go last
    case RecordKind::Count:
        return;
    }
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
        input_.log.Skipped(path, "filen används av andra program");
        return;
    }
    try {
        RemoveEvenReadOnly(files_, path);
        input_.log.Line("Tar bort " + path);
    } catch (const RunError&) {
        input_.target.MoveAtRestart(path, "");
        input_.log.Line("Filen " + path + " används och tas bort när datorn startas om");
    }
}

// A file that was in the Windows folder before us, and of which there is no backup.
bool Uninstallation::IsKeptInWindows(std::size_t index) const
{
    const Text& path = records_[index].fields[0];
    const bool comesBack = index > 0 && records_[index - 1].kind == RecordKind::Backup &&
                           EqualIgnoreCase(records_[index - 1].fields[0], path) &&
                           files_.FileExists(records_[index - 1].fields[1]);
    const Text windows = LowerCase(input_.host.machine.GetWindowsDir()) + "\\";
    return !comesBack && LowerCase(path).compare(0, windows.size(), windows) == 0;
}

void Uninstallation::RemoveReplaced(std::size_t index)
{
    const Text& path = records_[index].fields[0];
    if (IsKeptInWindows(index))
        input_.log.Skipped(path, "filen fanns i Windows redan före installationen");
    else
        RemoveFile(path);
}

// Whether the file is still there after us, so that what the system knows of it has to stay.
bool Uninstallation::StaysBehind(const Text& path) const
{
    const std::uint32_t users = CountOfUsers(input_.target, path).value_or(0);
    bool goes = false;
    for (std::size_t i = 0; i < records_.size(); ++i) {
        const LogRecord& record = records_[i];
        if (!EqualIgnoreCase(record.fields[0], path))
            continue;
        const bool isShared = record.kind == RecordKind::Shared;
        if (isShared && users > 1)
            return true;
        goes = goes || record.kind == RecordKind::File || (isShared && users == 1) ||
               (record.kind == RecordKind::Replaced && !IsKeptInWindows(i));
    }
    return !goes;
}

void Uninstallation::RestoreBackup(const Text& path, const Text& backup)
{
    if (files_.FileExists(path) || !files_.FileExists(backup))
        return;
    files_.Rename(backup, path);
    input_.log.Line("Lägger tillbaka " + path);
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

void Uninstallation::TakeBackValue(const std::vector<Text>& fields)
{
    const RegistryKey key = KeyOfRecord(fields);
    const Text& name = fields[2];
    const auto present = input_.target.ReadValue(key, name);
    if (!present)
        return;
    const bool hadFormer = !fields[5].empty();
    const RegistryData ours{std::uint32_t(LeadingNumber(fields[3])),
                            BytesOfHex(fields[4]).value_or("")};
    if (!hadFormer)
        RemoveValue(key, name);
    else if (*present == ours)
        input_.target.WriteValue(
            key, name,
            {std::uint32_t(LeadingNumber(fields[5])), BytesOfHex(fields[6]).value_or("")});
    else
        input_.log.Skipped(KeyText(key) + " :: " + name, "värdet har ändrats efter installationen");
}

void Uninstallation::RemoveValue(const RegistryKey& key, const Text& name)
{
    if (!input_.target.ReadValue(key, name))
        return;
    input_.target.RemoveValue(key, name);
    input_.log.Line("Tar bort ur registret: " + KeyText(key) + " :: " + name);
}

void Uninstallation::RemoveKeyIfEmpty(const RegistryKey& key)
{
    if (!input_.target.KeyExists(key))
        return;
    if (!input_.target.SubKeys(key).empty() || !input_.target.ValueNames(key).empty()) {
        input_.log.Skipped(KeyText(key), "nyckeln är inte tom");
        return;
    }
    input_.target.RemoveKey(key);
    input_.log.Line("Tar bort ur registret: " + KeyText(key));
}

void Uninstallation::RemoveKeyWithAllBelow(const RegistryKey& key)
{
    if (!input_.target.KeyExists(key))
        return;
    for (const Text& name : input_.target.SubKeys(key))
        RemoveKeyWithAllBelow({key.root, key.subKey + "\\" + name});
    input_.target.RemoveKey(key);
    input_.log.Line("Tar bort ur registret: " + KeyText(key));
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
        if (record->kind != RecordKind::Folder)
            continue;
        const Text& folder = record->fields[0];
        Attempt(folder, [&] {
            if (!files_.DirExists(folder))
                return;
            if (!files_.List(folder).empty()) {
                input_.log.Skipped(folder, "mappen är inte tom");
                return;
            }
            files_.RemoveFolder(folder);
            input_.log.Line("Tar bort mappen " + folder);
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
    for (const LogRecord& record : *records) {
        if (record.kind == RecordKind::Product)
            product.name = record.fields[0];
        if (record.kind != RecordKind::Message)
            continue;
        for (int i = int(Message::UninstallTitle); i < int(Message::Count); ++i)
            if (record.fields[0] == KeyOf(Message(i)).key)
                product.texts.Set(Message(i), record.fields[1]);
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
