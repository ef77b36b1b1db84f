// The rows that one command of the file list makes, and those that it fills: rows from before that
// lacked their source.
#pragma once

#include "filelist/view/sort.h"
#include "project/file_list.h"

namespace quillon {

class RowsOfCommand {
public:
    /// Before the command adds its first file.
    explicit RowsOfCommand(const FileList& files);

    /// By the row's number before the list is put in order.
    bool Has(std::size_t row) const;
    /// Where they are afterwards, ascending. Rows that lack their source are no additions.
    std::vector<std::size_t> Added(const FileList& files, const NewPlaces& places) const;

private:
    std::size_t rowsBefore_;
    std::vector<std::size_t> withoutSourceBefore_;
};

} // namespace quillon
