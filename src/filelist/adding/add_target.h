// Where new files go: the questions that every command asks which adds files.
#pragma once

#include "filelist/adding/add_file.h"
#include "filelist/list_work.h"

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

struct AddTarget {
    Text Destination;
    Text ComponentNr;
};

/// The component that new files belong to and the folder that it brings along; asked only where the
/// project has components. Nothing when cancelled.
std::optional<AddTarget> ChooseComponentTarget(const ListWork& work);

/// The destination to begin with for these files. The names decide together: one font or library
/// among them is enough.
DestinationQuestion PresetDestination(const std::vector<Text>& paths, const Text& componentFolder,
                                      const Machine& machine);

/// Asks for component and destination. Nothing when cancelled.
std::optional<AddTarget> ChooseAddTarget(const ListWork& work, const std::vector<Text>& paths);

/// Files in a drive's root can't be added.
bool IsInRoot(const Text& path);
void RefuseFilesInRoot(Ask& ask);

/// Runs `add`; false, with a box, when it failed. The rows made so far stay.
bool RunAdding(const ListWork& work, const std::function<void()>& add);

/// The last step of a command that added rows: the project counts as changed if there are more rows
/// than `rowsBefore`.
void NoteAddedRows(const ListWork& work, std::size_t rowsBefore);

} // namespace quillon
