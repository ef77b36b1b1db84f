#include "filelist/row_status.h"

#include "helpers/number_text.h"

namespace quillon {

namespace {

constexpr double kBytesPerKilobyte = 1024;

} // namespace

bool LacksSource(const FileListRow& row)
{
    return !row.HasSource() && row[Filename] != kEmptyFolderName;
}

void FillFromStatus(FileListRow& row, const FileStatus& status, char decimalSign)
{
    row[Size] =
        FormatNumber(static_cast<double>(status.size) / kBytesPerKilobyte, "0.0", decimalSign);
    row[Date] = DateText(status.modified);
    row[Time] = TimeText(status.modified);
}

} // namespace quillon
