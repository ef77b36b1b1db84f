#include "runtime/uninstall/removal_list.h"

#include "helpers/windows_path.h"
#include "runtime/install/planned_shortcuts.h"
#include "runtime/install/uninstaller_files.h"
#include "runtime/journal/recorded_paths.h"
#include "runtime/uninstall_entry_key.h"

#include <algorithm>
#include <set>

namespace quillon {

namespace {

class RemovalList {
public:
    RemovalList(const InstalledProduct& product, const Host& host, const Target& target,
                const Text& journalPath)
        : product_(product), files_(host.files), target_(target),
          paths_(product.records, host, target, ExtractDirectory(journalPath)),
          entry_(RecordedUninstallEntry(product.name, product.records))
    {
        for (const JournalRecord& record : product.records)
            AddFileOf(record);
        const Text uninstaller = UninstallerPath(ExtractDirectory(journalPath));
        if (IsUninstallerRemovedWith(files_, journalPath, uninstaller)) {
            AddFile(uninstaller, removal.own);
            for (const Text& path : FilesOfUninstaller(ExtractDirectory(journalPath)))
                AddFile(path, removal.own);
        }
        AddFile(journalPath, removal.own);
        AddFolders();
        for (const JournalRecord& record : product.records)
            AddSettingOf(record);
    }

    Removal removal;

private:
    void AddFileOf(const JournalRecord& record);
    void AddFile(const Text& path, std::vector<Text>& to);
    void AddFolders();
    bool GoesEmpty(const Text& folder) const;
    void AddSettingOf(const JournalRecord& record);

    const InstalledProduct& product_;
    const FileSystem& files_;
    const Target& target_;
    const RecordedPaths paths_;
    const RegistryKey entry_;
    std::set<Text> removed_; // in lower case
};

void RemovalList::AddFileOf(const JournalRecord& record)
{
    const bool isFile = std::holds_alternative<record::File>(record) ||
                        std::holds_alternative<record::Replaced>(record) ||
                        std::holds_alternative<record::Shared>(record);
    const Text path = SubjectOf(record);
    if (isFile && !paths_.Stays(path) && !paths_.WhyOutOfReach(path))
        AddFile(path, removal.files);
}

void RemovalList::AddFile(const Text& path, std::vector<Text>& to)
{
    if (files_.FileExists(path) && removed_.insert(LowerCase(path)).second)
        to.push_back(path);
}

// From the inner ones outwards; they are listed in the order of the journal.
void RemovalList::AddFolders()
{
    std::vector<Text> found;
    for (auto record = product_.records.rbegin(); record != product_.records.rend(); ++record)
        if (const auto* const folder = std::get_if<record::Folder>(&*record);
            folder && GoesEmpty(folder->path) && removed_.insert(LowerCase(folder->path)).second)
            found.push_back(folder->path);
    removal.folders.assign(found.rbegin(), found.rend());
}

bool RemovalList::GoesEmpty(const Text& folder) const
{
    if (!files_.DirExists(folder) || paths_.IsBehindLink(folder))
        return false;
    const std::vector<FolderEntry> entries = files_.List(folder);
    return std::all_of(entries.begin(), entries.end(), [&](const FolderEntry& entry) {
        return removed_.count(LowerCase(JoinPath(folder, entry.name))) > 0;
    });
}

void RemovalList::AddSettingOf(const JournalRecord& record)
{
    const auto addValue = [&](const RegistryKey& key, const Text& name) {
        if (target_.ReadValue(key, name) && !EqualIgnoreCase(key.subKey, entry_.subKey))
            removal.settings.push_back(ValueText(key, name));
    };
    if (const auto* const value = std::get_if<record::Value>(&record); value && !value->former)
        addValue(value->key, value->name);
    if (const auto* const value = std::get_if<record::UninstallValue>(&record))
        addValue(value->key, value->name);
    if (const auto* const key = std::get_if<record::UninstallKey>(&record);
        key && target_.KeyExists(key->key))
        removal.settings.push_back(KeyText(key->key));
    if (const auto* const value = std::get_if<record::IniValue>(&record);
        value && !value->formerLine && !paths_.WhyOutOfReach(value->path))
        removal.settings.push_back(value->path + " [" + value->section + "] " + value->name);
}

} // namespace

std::vector<Text> Removal::Lines() const
{
    std::vector<Text> lines;
    for (const std::vector<Text>* part : {&files, &own, &folders, &settings})
        lines.insert(lines.end(), part->begin(), part->end());
    return lines;
}

Removal PlanRemoval(const InstalledProduct& product, const Host& host, const Target& target,
                    const Text& journalPath)
{
    return RemovalList(product, host, target, journalPath).removal;
}

} // namespace quillon
