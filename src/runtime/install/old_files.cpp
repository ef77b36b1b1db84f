#include "runtime/install/old_files.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/install/old_shortcuts.h"
#include "runtime/shared_files.h"
#include "runtime/texts/failure_reason.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace quillon {

namespace {

struct EarlierFiles {
    const FileSystem& files;
    const Target& target;
    const InstallJournal& journal;
    const KnownContents& contents;
    const Text& mainFolder;
};

// In the place of a folder that the product made; those above it are the machine owner's own.
bool LeadsThroughLink(const EarlierFiles& earlier, const Text& path)
{
    for (Text at = ExtractDirectory(path); earlier.journal.Has<record::Folder>(at);
         at = ExtractDirectory(at))
        if (earlier.target.IsLink(at))
            return true;
    return false;
}

bool IsAsInstalled(const FileSystem& files, const record::Content& content)
{
    bool isSame = false;
    RunErrorNumber([&] {
        isSame = files.Status(content.path).size == content.size &&
                 DigestText(DigestOfFile(files, content.path)) == content.digest;
    });
    return isSame;
}

// Older records do not hold what a shortcut was. One that still leads to the product is taken for
// unchanged.
bool IsOwnShortcut(const EarlierFiles& earlier, const Text& path)
{
    if (!IsShortcut(path))
        return false;
    const auto shortcut = earlier.target.ReadShortcut(path);
    return shortcut && LeadsInto(earlier.mainFolder, *shortcut);
}

std::optional<Reason> ReasonToStay(const EarlierFiles& earlier, const Text& path)
{
    const auto content = earlier.contents.find(LowerCase(path));
    const bool isKnown = content != earlier.contents.end();
    if (!isKnown && !IsOwnShortcut(earlier, path))
        return Reason{Message::SkipUnknownContent};
    if (LeadsThroughLink(earlier, path))
        return Reason{Message::ReasonLinkInPath};
    // Of these the system knows more than their contents; the uninstaller takes that back too.
    const InstallJournal& journal = earlier.journal;
    if (CountOfUsers(earlier.target, path) || journal.Has<record::Shared>(path) ||
        journal.Has<record::Registered>(path) || journal.Has<record::Font>(path))
        return Reason{Message::SkipKnownToSystem};
    if (isKnown && !IsAsInstalled(earlier.files, content->second))
        return Reason{Message::SkipChangedFile};
    return std::nullopt;
}

/// Finds a file of the new version by another path of its: with a short name, or through a link
/// above, an earlier setup may have been given the same folder.
class NewFiles {
public:
    explicit NewFiles(const Target& target) : target_(target) {}

    void Add(const Text& path) { byName_.emplace(LowerCase(ExtractFilename(path)), &path); }
    bool Has(const Text& path) const
    {
        const auto [begin, end] = byName_.equal_range(LowerCase(ExtractFilename(path)));
        return std::any_of(
            begin, end, [&](const auto& named) { return target_.IsSameFile(path, *named.second); });
    }

private:
    const Target& target_;
    std::multimap<Text, const Text*> byName_;
};

std::set<Text> PathsOfNewVersion(const InstallPlan& plan)
{
    std::set<Text> paths;
    for (const PlannedFile& file : plan.files)
        paths.insert(LowerCase(file.path));
    for (const SkippedPart& part : plan.skipped)
        paths.insert(LowerCase(part.what));
    for (const Text& shortcut : plan.shortcutsLeftOut)
        paths.insert(LowerCase(shortcut));
    return paths;
}

class OldFiles {
public:
    OldFiles(const OldFilesWork& work, std::size_t earlier, const KnownContents& contents)
        : work_(work), files_(work.host.files), contents_(contents),
          records_(work.journal.Records()), earlier_(earlier), wanted_(PathsOfNewVersion(work.plan))
    {
        CollectNewOnes();
    }

    void RemoveAll();

private:
    void CollectNewOnes();
    bool IsOfNewVersion(const Text& path);
    bool IsGone(const Text& path);
    void KeepContents(const std::set<Text>& gone) const;
    void KeepFolder(const Text& folder);
    void NoteFolders(const Text& path);
    void RemoveFolders();

    const OldFilesWork& work_;
    const FileSystem& files_;
    const KnownContents& contents_;
    const std::deque<JournalRecord>& records_;
    const std::size_t earlier_;
    std::set<Text> written_; // by this installation; all in lower case
    std::set<Text> wanted_;  // rows of the new version and their shortcuts, installed or not
    std::optional<NewFiles> newFiles_; // of both; made where an old file is met
    std::set<Text> kept_;              // folders that the new version needs
    std::map<Text, Text> leaving_;     // folders that are empty afterwards, perhaps
};

void OldFiles::CollectNewOnes()
{
    for (std::size_t i = earlier_; i < records_.size(); ++i)
        if (std::holds_alternative<record::File>(records_[i]) ||
            std::holds_alternative<record::Replaced>(records_[i]))
            written_.insert(LowerCase(SubjectOf(records_[i])));
    for (const std::set<Text>* const paths : {&written_, &wanted_})
        for (const Text& path : *paths)
            KeepFolder(ExtractDirectory(path));
    for (const Text& folder : work_.plan.folders)
        KeepFolder(LowerCase(folder));
    KeepFolder(LowerCase(work_.plan.mainFolder));
}

// The folder and all of its parents.
void OldFiles::KeepFolder(const Text& folder)
{
    for (Text at = folder; kept_.insert(at).second;)
        at = ExtractDirectory(at);
}

void OldFiles::RemoveAll()
{
    std::set<Text> gone;
    for (std::size_t i = 0; i < earlier_; ++i) {
        const auto* const file = std::get_if<record::File>(&records_[i]);
        const Text key = file != nullptr ? LowerCase(file->path) : Text();
        if (file == nullptr || written_.count(key) > 0 || wanted_.count(key) > 0 ||
            gone.count(key) > 0)
            continue;
        // Taken along, since the journal may grow meanwhile.
        const Text path = file->path;
        if (IsOfNewVersion(path))
            gone.insert(key);
        else if (IsGone(path)) {
            gone.insert(key);
            NoteFolders(path);
        }
    }
    RemoveFolders();
    KeepContents(gone);
    work_.journal.Forget(gone);
}

bool OldFiles::IsOfNewVersion(const Text& path)
{
    if (!newFiles_) {
        newFiles_.emplace(work_.target);
        for (const std::set<Text>* const paths : {&written_, &wanted_})
            for (const Text& one : *paths)
                newFiles_->Add(one);
    }
    return newFiles_->Has(path);
}

// True also where it had gone before.
bool OldFiles::IsGone(const Text& path)
{
    if (!files_.FileExists(path))
        return true;
    std::optional<Reason> reason =
        ReasonToStay({files_, work_.target, work_.journal, contents_, work_.plan.mainFolder}, path);
    std::optional<RunError> failure;
    if (!reason && RunErrorNumber([&] { work_.transaction.RemoveFile(path); }, failure) != 0)
        reason = ReasonOf(*failure);
    if (reason)
        work_.log.Skipped(path, *reason);
    else
        work_.log.Line(IsShortcut(path) ? Message::LogRemovesShortcut : Message::LogRemovesOldFile,
                       path);
    return !reason;
}

// Contents of files that were not written again are still as recorded.
void OldFiles::KeepContents(const std::set<Text>& gone) const
{
    for (const auto& [key, content] : contents_)
        if (written_.count(key) == 0 && gone.count(key) == 0)
            work_.journal.Add(content);
}

// Folders that the product made and in which the new version puts nothing. One in which other files
// are found stays.
void OldFiles::NoteFolders(const Text& path)
{
    for (Text at = ExtractDirectory(path);
         work_.journal.Has<record::Folder>(at) && kept_.count(LowerCase(at)) == 0 &&
         !work_.target.IsLink(at);
         at = ExtractDirectory(at))
        leaving_[LowerCase(at)] = at;
}

void OldFiles::RemoveFolders()
{
    // A folder comes after the one that it is in.
    for (auto folder = leaving_.rbegin(); folder != leaving_.rend(); ++folder)
        work_.transaction.RemoveFolderAtEnd(folder->second);
}

} // namespace

EarlierJournal ReadEarlierJournal(const FileSystem& files, const Target& target, const Text& path)
{
    EarlierJournal earlier;
    if (!files.FileExists(path) || !target.IsOfTrustedUser(path))
        return earlier;
    if (auto records = ReadInstallJournal(ReadWholeFile(files, path)))
        earlier.records = std::move(*records);
    // This installation writes these records again; if they were kept, there would be more with
    // each one.
    std::erase_if(earlier.records, [&](const JournalRecord& record) {
        if (const auto* const content = std::get_if<record::Content>(&record))
            earlier.contents[LowerCase(content->path)] = *content;
        return std::holds_alternative<record::Product>(record) ||
               std::holds_alternative<record::Message>(record) ||
               std::holds_alternative<record::Content>(record);
    });
    return earlier;
}

std::vector<OldFile> PlanOldFiles(const FileSystem& files, const Target& target,
                                  const InstallPlan& plan)
{
    EarlierJournal earlier = ReadEarlierJournal(files, target, plan.installJournal);
    InstallJournal journal;
    journal.TakeOver(std::move(earlier.records));
    std::set<Text> known = PathsOfNewVersion(plan);
    for (const PlannedShortcut& shortcut : plan.shortcuts)
        known.insert(LowerCase(shortcut.path));
    NewFiles newFiles(target);
    for (const PlannedFile& file : plan.files)
        newFiles.Add(file.path);
    std::vector<OldFile> found;
    for (const JournalRecord& one : journal.Records())
        if (const auto* const file = std::get_if<record::File>(&one);
            file && known.insert(LowerCase(file->path)).second && files.FileExists(file->path) &&
            !newFiles.Has(file->path))
            found.push_back({file->path, ReasonToStay({files, target, journal, earlier.contents,
                                                       plan.mainFolder},
                                                      file->path)});
    return found;
}

void RemoveOldFiles(const OldFilesWork& work, std::size_t earlierRecords,
                    const KnownContents& contents)
{
    OldFiles(work, earlierRecords, contents).RemoveAll();
}

} // namespace quillon
