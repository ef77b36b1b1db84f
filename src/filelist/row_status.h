// What a row shows of its file on disk: size, date and time.
#pragma once

#include "platform/file_system.h"
#include "project/file_list.h"

namespace quillon {

/// True on what is left of a file whose addition failed half way: it names no file and is no empty
/// folder.
bool LacksSource(const FileListRow& row);

void FillFromStatus(FileListRow& row, const FileStatus& status, char decimalSign);

} // namespace quillon
