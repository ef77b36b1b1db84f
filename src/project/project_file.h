// The project file (.qnp): the whole project as one text file in INI form. docs/project-file.md
// shows one.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "platform/saved_file.h"
#include "project/records.h"

namespace quillon {

inline constexpr const char* kProjectFileExtension = ".qnp";

/// Twips per pixel of the screen, across and down. These are the values of a 96 dpi screen, which
/// also hold where there is no window.
struct ScreenMetrics {
    int TPPX = 15;
    int TPPY = 15;
};

/// Saves the project whole; the file that was there goes only when the new one is on the disk. A
/// failure is thrown: 6 means more rows or INI lines than such a file can hold, 9 more animation
/// pictures. Writing fills an empty `ProgramGroup` with the project's name, in the model as well.
/// Sizes that can't be summed bring a box up and count as 0.
void WriteProjectFile(Project& project, const Text& path, Host& host, Ask& ask,
                      const ScreenMetrics& screen = {});

/// The same without the last step: the file is closed, and the caller puts it into its place.
void WriteProject(Project& project, SavedFile& file, Host& host, Ask& ask,
                  const ScreenMetrics& screen = {});

/// Throws 9 where the project has more animation pictures than there is room for.
void RequireRoomForPictures(const Project& project);

/// How reading came to its end. The project holds what was read up to there.
enum class ReadEnd {
    Whole,
    Refused, // no project file; the box said so and nothing was changed
    Damaged, // the file ends inside its first list; the box said so
    Stopped, // a list, or the header of one, is missing or has no end; silent
    RowsCut, // a line of the file list is no whole row; silent, and all rows before it are there
    // The number of rows is missing, no number, or smaller than that of the rows, which are then
    // not all read; silent.
    RowsLeft,
    Failed, // a value that does not fit its field, or a failure of the machine; two beeps
};

/// Reads over the project that is open: what the file does not hold takes the value of a missing
/// key, and the two texts `AutoexecBat` and `ConfigSys` stay as they were where the file has none.
/// Rows are added after those that are there.
ReadEnd ReadProjectFile(Project& project, const Text& path, Host& host, Ask& ask,
                        const Text& toolFolder);

} // namespace quillon
