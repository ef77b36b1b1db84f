// What the import of a development project works on, what it asks beside boxes, and how it ends.
#pragma once

#include "filelist/adding/add_file.h"
#include "filelist/list_work.h"

#include <optional>
#include <vector>

namespace quillon {

/// The user of an import, beside `Ask`: the windows, the command line's switches, the tests.
class ImportUser {
public:
    virtual ~ImportUser() = default;

    /// Where the program goes; nothing when cancelled.
    struct ProgramQuestion {
        DestinationQuestion destination;
        Text caption;
        Text frameCaption;
    };
    virtual std::optional<Text> ChooseProgramDestination(const ProgramQuestion& question) = 0;
    /// The icon of a row; false when cancelled.
    virtual bool EditIcon(FileListRow& row, const Text& title) = 0;

    virtual void HideDialog() {}
    /// Shows the dialog again for long work after the questions about the program.
    virtual void ShowDialog() {}
    virtual void UpdateStatusBar() {}
    /// Comes before each file that is looked at; false stops the import.
    virtual bool MayGoOn(const Text& /*file*/) { return true; }
};

struct ImportWork {
    ListWork list;
    ImportUser& user;
    Text toolFolder;
    Text ownFolder;        // where the tool writes
    bool isDryRun = false; // nothing is written to the disk
};

enum class ImportEnd {
    Done,
    Refused,   // by a check, before anything changed
    Cancelled, // when asked for the destination; the rows so far stay
    Stopped,   // by the user in its midst; the rows so far stay
    Failed     // reported in a message box; the rows so far stay
};

/// Why an import has added no row for a file.
enum class NotAdded {
    NotInSystemFolder,
    NotAtSource,
    NotRegistered,
    OutsideSystemFolder,
    LeftOut,
    RestOfDepFile,
    AlreadyListed,
    PartOfWindows,
    OfTheBuild
};

/// True for what no setup of the program needs; false for what the user may have to add himself.
bool IsNeverNeeded(NotAdded why);

struct NotAddedFile {
    Text file;
    NotAdded why;

    /// In words: "finns inte i systemkatalogen".
    Text Reason() const;
    /// In a word for scripts: "missing".
    Text Kind() const;

    bool operator==(const NotAddedFile&) const = default;
};

struct ImportResult {
    ImportEnd end = ImportEnd::Done;
    // Where each row is now, by its number so far: those from before, then the new ones.
    NewPlaces places;
    // The places of the rows that the import has made or filled, ascending.
    std::vector<std::size_t> added;
    std::vector<NotAddedFile> notAdded;
    // Where the program's row is, where it is a new one; it is to be selected.
    std::optional<std::size_t> newProgram;
};

} // namespace quillon
