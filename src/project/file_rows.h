// The rows of the file list as lines of the project file: "F1=" and fifteen fields, each with a
// semicolon after it.
#pragma once

#include "helpers/number_text.h"
#include "project/file_list.h"

#include <string_view>

namespace quillon {

inline constexpr char kFileRowLetter = 'F';

/// The key of a row in a project and in a package's list.
inline Text FileRowKey(std::int64_t number)
{
    return kFileRowLetter + NumberText(number);
}

/// The row as its line, without line end.
Text FileRowLine(std::size_t number, const FileListRow& row);

/// Adds the row of one line. False when the line is no whole row, which ends a list: without its
/// first field nothing is added, with fewer than fifteen the row has the fields that are there.
bool AddRowFromLine(std::string_view lineBytes, char decimalSign, std::vector<FileListRow>& rows);

/// Makes a number from a machine with the other decimal sign readable here: where `decimalSign` is
/// missing, the first "." or "," of the other kind becomes it.
Text NormalizeDecimalSeparator(const Text& number, char decimalSign);

} // namespace quillon
