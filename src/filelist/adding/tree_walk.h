// A folder with everything below it, file by file, with the tree below a destination.
#pragma once

#include "filelist/adding/add_file.h"
#include "platform/run_error.h"

#include <functional>

namespace quillon {

/// What becomes of the folders on the way to a file.
enum class TreeForm {
    ReplaceStart, // what is after the start folder hangs below the destination
    WholePath     // all of the path but the drive does
};

struct TreeToAdd {
    Text StartDirectory;
    Text BaseDestination;
    Text ComponentNr;
    TreeForm form = TreeForm::ReplaceStart;
    bool CheckDuplicates = false;
};

struct TreeProgress {
    std::function<void()> enteredFolder = [] {};
    // Whether the file became a row or not.
    std::function<void()> sawFile = [] {};
};

/// Adds the files; those of a folder come after those of its subfolders. A folder that leads back
/// to one that the walk is in, by a link, is not entered. A failure ends the walk and is thrown.
void AddTree(FileAdding& adding, const FileSystem& files, const TreeToAdd& tree,
             const TreeProgress& progress = {});

/// What ended the walk, in a line that names the file or folder.
Text WalkFailureText(const RunError& failure, const TreeToAdd& tree);

/// The destination of the files of one folder, which ends in a backslash.
Text DestinationInTree(const Text& folder, const TreeToAdd& tree);

} // namespace quillon
