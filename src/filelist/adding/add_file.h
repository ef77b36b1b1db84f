// How a file on disk becomes a row of the file list: the one way in for the user's commands and the
// importers alike.
#pragma once

#include "filelist/adding/duplicates.h"
#include "filelist/adding/refused_file.h"
#include "filelist/view/sort.h"
#include "platform/ask.h"
#include "platform/host.h"
#include "project/file_list.h"

#include <optional>
#include <set>
#include <vector>

namespace quillon {

/// The arguments of `AddFileToFileList`, by the names of the tool.
struct FileToAdd {
    Text FileName;
    Text SourcePath;
    Text Destination;
    Text ComponentNr;
    bool CheckDuplicates = false;
    bool ShowDuplicateMessage = false;
    bool UseVersionRules = false; // look into programs and libraries for a version
    bool TrapErrors = false;      // a failure ends in a box instead of a RunError
    // Instead of those that its name asks for; the row that is left of a file that fails has them.
    Text CopyOptions = {};
    bool KeepsFontHere = false; // a font goes to the destination too, not to the font folder
    // What a listing of its folder said about the file, whatever path it is reached by.
    std::optional<FileStatus> Listed = {};
    bool PassOverUnreadable = false; // without a box
};

/// One command's additions to a file list. While this object lives, new rows are at the end of the
/// list, and no other code may sort or shorten it; `Finish` or the destructor sorts a sorted list
/// again. So a command that adds thousands of rows sorts once.
class FileAdding {
public:
    // What becomes of the rows that lack their source, as failures leave them.
    enum class RowsWithoutSource {
        StayAsTheyAre,
        // By the next file of their name and destination, which is no duplicate of them. A file
        // that is missing is tried for one row once in a command.
        AreFilled
    };

    FileAdding(FileList& files, Host host, Ask& ask,
               RowsWithoutSource withoutSource = RowsWithoutSource::StayAsTheyAre);
    ~FileAdding();
    FileAdding(const FileAdding&) = delete;
    FileAdding& operator=(const FileAdding&) = delete;

    /// The number of the new row, which is what a caller selects; nothing where the file was
    /// refused or failed. Kept: a file that fails once its row is made leaves the row as far as it
    /// was filled.
    std::optional<std::size_t> AddFileToFileList(const FileToAdd& file);

    /// Takes a file from the Windows system folder; always without duplicate test, its failures
    /// always reported in a message box.
    std::optional<std::size_t> AddSystemFileToFileList(const Text& fileName, bool isRuntimeFile);

    enum class RowOutcome { Added, Duplicate, Refused };
    /// A row of another list, whole as it is, by the same rules; its file need not be here. A
    /// refusal is always reported, a duplicate where `showDuplicateMessage` says so.
    RowOutcome AddRow(const FileListRow& row, bool showDuplicateMessage);

    /// Where each row is now, by its number so far. No row may be added afterwards.
    NewPlaces Finish();

private:
    std::optional<std::size_t> AddOrRefuse(const FileToAdd& file);
    std::optional<std::size_t> AddSystemFile(const Text& fileName, bool isRuntimeFile);
    bool IsGuardedHere(const Text& fileName, const Text& sourcePath) const;
    bool IsRefusedAsDuplicate(const FileToAdd& file, bool isThere);
    bool IsRefused(const std::optional<Refusal>& refusal);
    bool IsNewEmptyFolder(const Text& destination);
    void FillFromDisk(FileListRow& row, const FileStatus& status, const Text& path) const;
    template <class Fill>
    std::size_t AppendRow(FileListRow row, Fill fill);
    std::size_t Append(FileListRow row);
    // A row that lacks its source.
    struct Unfilled {
        std::size_t row;
        bool wasTried; // by this command, so only a file that is there fills it
    };
    std::vector<Unfilled>::iterator ToBeFilled(const Text& name, const Text& destination);

    FileList& files_;
    Host host_;
    Ask& ask_;
    // Made by the first test, since an importer may add without one.
    std::optional<DuplicateIndex> duplicates_;
    // Where the list makes empty folders, in lower case; made by the first that is added whole.
    std::optional<std::set<Text>> emptyFolders_;
    RowsWithoutSource withoutSource_;
    std::vector<Unfilled> toBeFilled_; // empty where such rows stay as they are
    bool finished_ = false;
};

} // namespace quillon
