#include "filelist/row_facts.h"

#include "helpers/number_text.h"

namespace quillon {

namespace {

constexpr double kBytesPerKilobyte = 1024;

} // namespace

bool LacksSource(const FileListRow& row)
{
    return !row.HasSource() && row[Filename] != kEmptyFolderName;
}

void FillFromFacts(FileListRow& row, const FileFacts& facts, char decimalSign)
{
    row[Size] =
        FormatNumber(static_cast<double>(facts.size) / kBytesPerKilobyte, "0.0", decimalSign);
    row[Date] = DateText(facts.modified);
    row[Time] = TimeText(facts.modified);
}

} // namespace quillon
