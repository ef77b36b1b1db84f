#include "filelist/row_copy.h"

namespace quillon {

Text TabSeparatedRows(const FileList& list, std::span<const std::size_t> rows,
                      std::span<const Column> columns)
{
    Text lines;
    for (const std::size_t row : rows) {
        for (const Column& column : columns)
            lines.append(&column == columns.data() ? "" : "\t").append(list.rows[row][column]);
        lines += '\n';
    }
    return lines;
}

} // namespace quillon
