#include "runtime/journal/recorded_paths.h"

#include "helpers/windows_path.h"
#include "runtime/shared_files.h"

#include <algorithm>

namespace quillon {

namespace {

// Folders of the system that products put files into; what is below them counts as inside.
std::vector<Text> SystemFolders(const Machine& machine, const Target& target)
{
    std::vector<Text> folders{machine.GetWindowsDir(), machine.GetSystemDir(),
                              machine.GetSysAppDataDirectory(),
                              machine.GetSysLocalAppDataDirectory()};
    for (const TargetFolder folder :
         {TargetFolder::CommonFiles, TargetFolder::Fonts, TargetFolder::Desktop,
          TargetFolder::StartMenu, TargetFolder::Programs, TargetFolder::CommonDesktop,
          TargetFolder::CommonStartMenu, TargetFolder::CommonPrograms})
        folders.push_back(target.Folder(folder));
    for (Text& folder : folders)
        folder = LowerCase(folder);
    std::erase(folders, Text());
    return folders;
}

bool IsAtOrBelow(const Text& path, const Text& folder)
{
    return path == folder || path.starts_with(folder + "\\");
}

} // namespace

RecordedPaths::RecordedPaths(const std::vector<JournalRecord>& records, const Host& host,
                             const Target& target, const Text& mainFolder)
    : records_(records), host_(host), target_(target),
      wholeTrees_(SystemFolders(host.machine, target))
{
    wholeTrees_.push_back(LowerCase(mainFolder));
    for (std::size_t i = 0; i < records_.size(); ++i)
        Note(i, records_[i]);
    FindWhatGoes();
}

void RecordedPaths::Note(std::size_t index, const JournalRecord& record)
{
    const Text path = LowerCase(SubjectOf(record));
    if (std::holds_alternative<record::Folder>(record))
        made_.insert(path);
    else if (std::holds_alternative<record::Place>(record))
        places_.insert(path);
    else if (const auto* const backup = std::get_if<record::Backup>(&record))
        backups_.try_emplace(path, FirstBackup{index, host_.files.FileExists(backup->kept)});
    else if (const auto* const move = std::get_if<record::AtRestart>(&record))
        NotePending(index, *move);
    else if (std::holds_alternative<record::Shared>(record)) {
        counted_.insert(path);
        if (CountOfUsers(target_, SubjectOf(record)).value_or(0) > 1)
            toRelease_.insert(path);
    }
}

// The record before this one says that the file was replaced, but the replacement still waits for
// the restart.
void RecordedPaths::NotePending(std::size_t index, const record::AtRestart& move)
{
    if (move.to.empty() || !host_.files.FileExists(move.from))
        return;
    pending_.push_back(move);
    for (; index > 0 && records_[index - 1] == JournalRecord(record::Replaced{move.to}); --index)
        waiting_.insert(index - 1);
}

void RecordedPaths::FindWhatGoes()
{
    for (std::size_t i = 0; i < records_.size(); ++i) {
        const Text path = SubjectOf(records_[i]);
        const bool goes =
            std::holds_alternative<record::File>(records_[i]) ||
            (std::holds_alternative<record::Shared>(records_[i]) &&
             CountOfUsers(target_, path).value_or(0) == 1) ||
            (std::holds_alternative<record::Replaced>(records_[i]) && !KeepsReplaced(i));
        if (goes && !IsShared(path))
            removed_.insert(LowerCase(path));
    }
}

// A file that others have counted and this product has not is shared too.
bool RecordedPaths::IsShared(const Text& path) const
{
    const Text key = LowerCase(path);
    if (counted_.count(key) > 0)
        return toRelease_.count(key) > 0;
    return CountOfUsers(target_, path).value_or(0) > 0;
}

bool RecordedPaths::KeepsReplaced(std::size_t index) const
{
    const auto backup = backups_.find(LowerCase(SubjectOf(records_[index])));
    const bool cameBack =
        backup != backups_.end() && backup->second.index < index && !backup->second.exists;
    return cameBack || waiting_.count(index) > 0 || WasInWindows(index);
}

bool RecordedPaths::WasInWindows(std::size_t index) const
{
    const Text path = LowerCase(SubjectOf(records_[index]));
    const auto* const backup =
        index > 0 ? std::get_if<record::Backup>(&records_[index - 1]) : nullptr;
    const bool comesBack = backup != nullptr && LowerCase(backup->path) == path &&
                           host_.files.FileExists(backup->kept);
    return !comesBack && path.starts_with(LowerCase(host_.machine.GetWindowsDir()) + "\\");
}

std::optional<Message> RecordedPaths::WhyOutOfReach(const Text& path) const
{
    // A path that is not plain could lead anywhere.
    const Text folder = LowerCase(ExtractDirectory(path));
    if (ResolvePath(path) != path || !IsRecordedFolder(folder))
        return Message::ReasonOutsideProduct;
    if (HasLinkInPath(folder))
        return Message::ReasonLinkInPath;
    return std::nullopt;
}

bool RecordedPaths::IsRecordedFolder(const Text& folder) const
{
    return places_.count(folder) > 0 || IsBelowMadeFolder(folder) ||
           std::any_of(wholeTrees_.begin(), wholeTrees_.end(),
                       [&](const Text& tree) { return IsAtOrBelow(folder, tree); });
}

bool RecordedPaths::IsBelowMadeFolder(const Text& folder) const
{
    for (Text at = folder; !at.empty();) {
        if (made_.count(at) > 0)
            return true;
        const Text above = ExtractDirectory(at);
        at = above == at ? Text() : above;
    }
    return false;
}

// Links above the folders that the product made are set up by the machine's owner. The product's
// own folders were no links when they were made.
bool RecordedPaths::HasLinkInPath(const Text& folder) const
{
    if (!IsBelowMadeFolder(folder))
        return false;
    const auto known = links_.find(folder);
    if (known != links_.end())
        return known->second;
    const Text above = ExtractDirectory(folder);
    const bool isLink = target_.IsLink(folder) || (above != folder && HasLinkInPath(above));
    links_[folder] = isLink;
    return isLink;
}

} // namespace quillon
