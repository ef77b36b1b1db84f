#include "importers/rows_of_command.h"

#include "filelist/row_status.h"

#include <algorithm>

namespace quillon {

RowsOfCommand::RowsOfCommand(const FileList& files) : rowsBefore_(files.rows.size())
{
    for (std::size_t row = 0; row < rowsBefore_; ++row)
        if (LacksSource(files.rows[row]))
            withoutSourceBefore_.push_back(row);
}

bool RowsOfCommand::Has(std::size_t row) const
{
    return row >= rowsBefore_ || std::ranges::binary_search(withoutSourceBefore_, row);
}

std::vector<std::size_t> RowsOfCommand::Added(const FileList& files, const NewPlaces& places) const
{
    std::vector<std::size_t> added;
    for (std::size_t row = 0; row < places.size(); ++row)
        if (Has(row) && !LacksSource(files.rows[places[row]]))
            added.push_back(places[row]);
    std::ranges::sort(added);
    return added;
}

} // namespace quillon
