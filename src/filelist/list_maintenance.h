// The commands that keep the rows of the file list true: refresh, delete, another destination, a
// row for an empty folder.
#pragma once

#include "filelist/list_work.h"
#include "filelist/view/sort.h"

#include <functional>
#include <optional>
#include <span>

namespace quillon {

/// Asks for a folder that the setup makes empty. Where each of the former rows is afterwards;
/// nothing where the list is as it was.
std::optional<NewPlaces> AddEmptyDirectoryCommand(const ListWork& work);

/// Brings size, date and time of every row in line with its file, and marks those whose file is
/// gone. `show` shows the list before a box reports these.
void UpdateFileListCommand(const ListWork& work, const std::function<void(const NewPlaces&)>& show);

/// Takes the selected rows (ascending numbers) out, if the user says so; true when they are gone.
bool DeleteRowsCommand(const ListWork& work, std::span<const std::size_t> selectedRows);

/// Asks for the destination of the selected rows. Nothing where the list is as it was.
std::optional<NewPlaces> ChangeDestinationCommand(const ListWork& work,
                                                  std::span<const std::size_t> selectedRows);

/// All destinations of the rows, in their order.
std::vector<Text> DestinationsOf(const FileList& files);

} // namespace quillon
