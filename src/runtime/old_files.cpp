#include "runtime/old_files.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/failure_reason.h"
#include "runtime/file_installer.h"

#include <set>

namespace quillon {

namespace {

class OldFiles {
public:
    OldFiles(const OldFilesWork& work, std::size_t earlier, const KnownContents& contents)
        : work_(work), files_(work.host.files), contents_(contents),
          records_(work.record.Records()), earlier_(earlier)
    {
        CollectNewOnes();
    }

    void RemoveAll();

private:
    void CollectNewOnes();
    bool IsGone(const Text& path);
    std::optional<Reason> ReasonToStay(const Text& path);
    bool LeadsThroughLink(const Text& path) const;
    bool IsAsInstalled(const record::Content& content) const;
    void KeepContents(const std::set<Text>& gone) const;
    void KeepFolder(const Text& folder);
    void NoteFolders(const Text& path);
    void RemoveFolders();

    const OldFilesWork& work_;
    const FileSystem& files_;
    const KnownContents& contents_;
    const std::deque<JournalRecord>& records_;
    const std::size_t earlier_;
    std::set<Text> written_;       // by this installation; all in lower case
    std::set<Text> wanted_;        // rows of the new version, installed or not
    std::set<Text> kept_;          // folders that the new version needs
    std::map<Text, Text> leaving_; // folders that are empty afterwards, perhaps
};

void OldFiles::CollectNewOnes()
{
    for (std::size_t i = earlier_; i < records_.size(); ++i)
        if (std::holds_alternative<record::File>(records_[i]) ||
            std::holds_alternative<record::Replaced>(records_[i]))
            written_.insert(LowerCase(SubjectOf(records_[i])));
    for (const PlannedFile& file : work_.plan.files)
        wanted_.insert(LowerCase(file.path));
    for (const SkippedPart& part : work_.plan.skipped)
        wanted_.insert(LowerCase(part.what));
    for (const std::set<Text>* const paths : {&written_, &wanted_})
        for (const Text& path : *paths)
            KeepFolder(ExtractDirectory(path));
    for (const Text& folder : work_.plan.folders)
        KeepFolder(LowerCase(folder));
    KeepFolder(LowerCase(work_.plan.mainFolder));
}

// With those above it.
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
        // Taken along, since the record may grow meanwhile.
        if (const Text path = file->path; IsGone(path)) {
            gone.insert(key);
            NoteFolders(path);
        }
    }
    RemoveFolders();
    KeepContents(gone);
    work_.record.Forget(gone);
}

// True also where it had gone before.
bool OldFiles::IsGone(const Text& path)
{
    if (!files_.FileExists(path))
        return true;
    std::optional<Reason> reason = ReasonToStay(path);
    std::optional<RunError> failure;
    if (!reason && RunErrorNumber([&] { work_.changes.RemoveFile(path); }, failure) != 0)
        reason = ReasonOf(*failure);
    if (reason)
        work_.log.Skipped(path, *reason);
    else
        work_.log.Line(Message::LogRemovesOldFile, path);
    return !reason;
}

std::optional<Reason> OldFiles::ReasonToStay(const Text& path)
{
    const auto content = contents_.find(LowerCase(path));
    if (content == contents_.end())
        return Reason{Message::SkipUnknownContent};
    if (LeadsThroughLink(path))
        return Reason{Message::ReasonLinkInPath};
    // Of these the system knows more than their contents; the uninstaller tells it that they go.
    if (CountOfUsers(work_.target, path) || work_.record.Has<record::Shared>(path) ||
        work_.record.Has<record::Registered>(path) || work_.record.Has<record::Font>(path))
        return Reason{Message::SkipKnownToSystem};
    if (!IsAsInstalled(content->second))
        return Reason{Message::SkipChangedFile};
    return std::nullopt;
}

// In the place of a folder that the product made; those above it are the machine owner's own.
bool OldFiles::LeadsThroughLink(const Text& path) const
{
    for (Text at = ExtractDirectory(path); work_.record.Has<record::Folder>(at);
         at = ExtractDirectory(at))
        if (work_.target.IsLink(at))
            return true;
    return false;
}

bool OldFiles::IsAsInstalled(const record::Content& content) const
{
    bool isSame = false;
    RunErrorNumber([&] {
        isSame = files_.Status(content.path).size == content.size &&
                 DigestText(DigestOfFile(files_, content.path)) == content.digest;
    });
    return isSame;
}

// What has not been written anew is still what it was.
void OldFiles::KeepContents(const std::set<Text>& gone) const
{
    for (const auto& [key, content] : contents_)
        if (written_.count(key) == 0 && gone.count(key) == 0)
            work_.record.Add(content);
}

// Those that the product made and that nothing of the new version lies in. What somebody else has
// put there keeps them.
void OldFiles::NoteFolders(const Text& path)
{
    for (Text at = ExtractDirectory(path);
         work_.record.Has<record::Folder>(at) && kept_.count(LowerCase(at)) == 0 &&
         !work_.target.IsLink(at);
         at = ExtractDirectory(at))
        leaving_[LowerCase(at)] = at;
}

void OldFiles::RemoveFolders()
{
    // A folder stands behind the one that it is in.
    for (auto folder = leaving_.rbegin(); folder != leaving_.rend(); ++folder)
        work_.changes.RemoveFolderAtEnd(folder->second);
}

} // namespace

void RemoveOldFiles(const OldFilesWork& work, std::size_t earlierRecords,
                    const KnownContents& contents)
{
    OldFiles(work, earlierRecords, contents).RemoveAll();
}

} // namespace quillon
