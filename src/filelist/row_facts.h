// What a row shows of its file on disk: size, date and time.
#pragma once

#include "platform/file_system.h"
#include "project/file_list.h"

namespace quillon {

void FillFromFacts(FileListRow& row, const FileFacts& facts, char decimalSign);

} // namespace quillon
