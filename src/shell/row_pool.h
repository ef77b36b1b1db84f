// Rows of the file list for states of a project that differ in few of them: each distinct row is
// held once, as one text, and a state is a list of numbers.
#pragma once

#include "filelist/row_table.h"
#include "project/file_list.h"

#include <string_view>
#include <vector>

namespace quillon {

/// The row as one text, in the place of what `packed` held.
void PackRow(const FileListRow& row, Text& packed);
FileListRow UnpackRow(std::string_view packed);

class RowPool {
public:
    /// The number of this row, which is taken in where it is new.
    RowNumber NumberOf(const Text& packed);
    const Text& At(RowNumber number) const { return rows_[number]; }
    /// One more than the highest number.
    std::size_t Size() const { return rows_.size(); }

    /// Forgets all rows but these; what stays keeps its number.
    void KeepOnly(const std::vector<bool>& used);

    /// About what the rows take in memory.
    std::size_t Bytes() const { return bytes_; }

private:
    static std::size_t BytesOf(const Text& packed);
    void Index(RowNumber number);

    std::vector<Text> rows_; // a forgotten one is empty, which no packed row is
    std::vector<RowNumber> free_;
    RowTable table_;
    std::size_t bytes_ = 0;
};

} // namespace quillon
