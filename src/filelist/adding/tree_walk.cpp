#include "filelist/adding/tree_walk.h"

#include "filelist/adding/file_name_case.h"
#include "filelist/row_text.h"
#include "helpers/windows_path.h"
#include "platform/entered_folders.h"
#include "platform/failure_text.h"

namespace quillon {

namespace {

class TreeWalk {
public:
    TreeWalk(FileAdding& adding, const FileSystem& files, const TreeToAdd& tree,
             const TreeProgress& progress)
        : adding_(adding), files_(files), tree_(tree), progress_(progress)
    {
    }

    void Walk(const Text& folder, std::uint64_t identity)
    {
        if (entered_.Has(identity))
            return;
        entered_.Enter(identity);
        progress_.enteredFolder();
        const std::vector<FolderEntry> entries = files_.List(folder);
        for (const FolderEntry& entry : entries)
            if (entry.status.isFolder)
                Walk(JoinPath(folder, entry.name), entry.status.identity);
        AddFilesOf(JoinPath(folder, ""), entries);
        entered_.Leave();
    }

private:
    void AddFilesOf(const Text& folder, const std::vector<FolderEntry>& entries)
    {
        const Text path = FormatFileNameCase(folder);
        const Text destination = DestinationInTree(path, tree_);
        for (const FolderEntry& entry : entries) {
            if (entry.status.isFolder)
                continue;
            const Text name = FormatFileNameCase(entry.name);
            adding_.AddFileToFileList({.FileName = name,
                                       .SourcePath = path + name,
                                       .Destination = destination,
                                       .ComponentNr = tree_.ComponentNr,
                                       .CheckDuplicates = tree_.CheckDuplicates,
                                       .UseVersionRules = true,
                                       .Listed = entry.status});
            progress_.sawFile();
        }
    }

    FileAdding& adding_;
    const FileSystem& files_;
    const TreeToAdd& tree_;
    const TreeProgress& progress_;
    EnteredFolders entered_;
};

// The tool's own function for this also cuts long paths, and these must stay whole.
std::string_view WithoutLastBackslash(std::string_view path)
{
    return path.ends_with('\\') ? path.substr(0, path.size() - 1) : path;
}

} // namespace

Text DestinationInTree(const Text& folder, const TreeToAdd& tree)
{
    // By the lengths alone: the folder's path may be in another case than the start's. A drive's
    // root ends in a backslash that belongs to what is after it.
    const std::size_t replaced = tree.form == TreeForm::WholePath
                                     ? std::string_view("C:").size()
                                     : WithoutLastBackslash(tree.StartDirectory).size();
    return Text(WithoutLastBackslash(tree.BaseDestination + folder.substr(replaced)));
}

void AddTree(FileAdding& adding, const FileSystem& files, const TreeToAdd& tree,
             const TreeProgress& progress)
{
    TreeWalk(adding, files, tree, progress)
        .Walk(tree.StartDirectory, files.Status(tree.StartDirectory).identity);
}

Text WalkFailureText(const RunError& failure, const TreeToAdd& tree)
{
    if (failure.Number() == ErrorNumber::kOverflow)
        return FullListText() + " '" + failure.Path() + "' fick inte plats.";
    return FailureText(failure, tree.StartDirectory);
}

} // namespace quillon
