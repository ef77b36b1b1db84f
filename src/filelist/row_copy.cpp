#include "filelist/row_copy.h"

#include "helpers/ansi_text.h"
#include "project/file_rows.h"

namespace quillon {

namespace {

constexpr const char* kFirstLine = "Quillon FileList 1\r\n";

} // namespace

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

std::string WholeRows(const FileList& list, std::span<const std::size_t> rows)
{
    std::string bytes = kFirstLine;
    std::size_t number = 0;
    for (const std::size_t row : rows)
        bytes += AnsiText::ToBytes(FileRowLine(++number, list.rows[row]) + "\r\n");
    return bytes;
}

std::vector<FileListRow> RowsOfBytes(std::string_view bytes, char decimalSign)
{
    std::vector<FileListRow> rows;
    if (!bytes.starts_with(kFirstLine))
        return rows;
    bytes.remove_prefix(std::string_view(kFirstLine).size());
    for (auto end = bytes.find("\r\n"); end != bytes.npos; end = bytes.find("\r\n")) {
        const std::size_t before = rows.size();
        if (!AddRowFromLine(bytes.substr(0, end), decimalSign, rows)) {
            rows.resize(before);
            break;
        }
        bytes.remove_prefix(end + 2);
    }
    return rows;
}

} // namespace quillon
