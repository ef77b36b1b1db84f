// What the author can read about the file of a row.
#pragma once

#include "platform/file_system.h"
#include "project/file_list.h"

namespace quillon {

struct FileInfo {
    Text Filename;
    Text FileSize;
    Text FileDateTime;
    Text FileAttr;
    Text FileDest;
    Text FileSrc;
    // Empty where the file has no version data.
    Text FileVersion;
    Text FileDescription;
    Text Copyright;

    bool operator==(const FileInfo&) const = default;
};

/// A file that is gone says so in place of its size and has no date.
FileInfo FileInfoOf(const FileListRow& row, const FileSystem& files);

/// "### ### ###" and its unit. Kept: the blanks of the pattern show also where there are no digits,
/// and an empty file shows no digit at all.
Text FileSizeText(std::uint64_t bytes);
/// "yyyy-mm-dd    hh:mm:ss"
Text FileDateTimeText(const LocalTime& time);
Text FileAttrText(const FileStatus& status);

/// The package of Microsoft's data access components, which has options of its own.
bool IsDataAccessPackage(const FileListRow& row);

} // namespace quillon
