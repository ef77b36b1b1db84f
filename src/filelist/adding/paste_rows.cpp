#include "filelist/adding/paste_rows.h"

#include "filelist/adding/add_file.h"
#include "filelist/adding/add_target.h"

#include <algorithm>

namespace quillon {

std::vector<std::size_t> PasteRows(const ListWork& work, std::span<const FileListRow> rows)
{
    const std::size_t rowsBefore = work.project.Files.rows.size();
    FileAdding adding(work.project.Files, work.host, work.ask);
    for (const FileListRow& row : rows)
        if (adding.AddRow(row, rows.size() == 1) == FileAdding::RowOutcome::Refused)
            break;
    NoteAddedRows(work, rowsBefore);
    const NewPlaces places = adding.Finish();
    std::vector<std::size_t> added(places.begin() + static_cast<std::ptrdiff_t>(rowsBefore),
                                   places.end());
    std::ranges::sort(added);
    return added;
}

} // namespace quillon
