#include "project/file_rows.h"

#include "helpers/ansi_text.h"
#include "helpers/number_text.h"

#include <optional>

namespace quillon {

namespace {

constexpr char kFieldEnd = ';';

// Cuts the first field off; nothing when no semicolon is left.
std::optional<Text> TakeField(std::string_view& fields)
{
    const std::size_t end = fields.find(kFieldEnd);
    if (end == std::string_view::npos)
        return std::nullopt;
    const std::string_view field = fields.substr(0, end);
    fields.remove_prefix(end + 1);
    return AnsiText::FromBytes(field);
}

} // namespace

Text FileRowLine(std::size_t number, const FileListRow& row)
{
    Text line = FileRowKey(static_cast<std::int64_t>(number)) + "=";
    for (const Text& field : row.columns)
        line.append(field).append(1, kFieldEnd);
    return line;
}

bool AddRowFromLine(std::string_view lineBytes, char decimalSign, std::vector<FileListRow>& rows)
{
    const std::size_t sign = lineBytes.find('=');
    if (sign == std::string_view::npos)
        return false;
    std::string_view fields = lineBytes.substr(sign + 1);
    auto field = TakeField(fields);
    if (!field)
        return false;

    FileListRow& row = rows.emplace_back();
    for (Text& column : row.columns) {
        if (!field)
            return false;
        column = std::move(*field);
        field = TakeField(fields);
    }
    row[Size] = NormalizeDecimalSeparator(row[Size], decimalSign);
    return true;
}

Text NormalizeDecimalSeparator(const Text& number, char decimalSign)
{
    const char otherSign = decimalSign == '.' ? ',' : '.';
    const std::size_t place = number.find(otherSign);
    Text normal = number;
    if (number.find(decimalSign) == Text::npos && place != Text::npos)
        normal[place] = decimalSign;
    return normal;
}

} // namespace quillon
