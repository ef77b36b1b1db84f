#include "filelist/options/file_info.h"

#include "filelist/adding/file_version.h"
#include "formats/package_files.h"
#include "helpers/number_text.h"
#include "platform/run_error.h"

namespace quillon {

namespace {

void FillFromDisk(FileInfo& info, const FileSystem& files, const Text& path)
{
    try {
        const FileStatus status = files.Status(path);
        if (status.isFolder)
            return;
        info.FileSize = FileSizeText(status.size);
        info.FileDateTime = FileDateTimeText(status.modified);
        info.FileAttr = FileAttrText(status);
    } catch (const RunError&) {
        return;
    }
    const FileVersionData version = VersionDataOfFile(files, path);
    info.FileVersion = version.FileVersion;
    info.FileDescription = version.FileDescription;
    info.Copyright = version.LegalCopyright;
}

} // namespace

FileInfo FileInfoOf(const FileListRow& row, const FileSystem& files)
{
    FileInfo info;
    info.Filename = row[Filename];
    info.FileSize = kFileIsGone;
    info.FileDest = row[Destination];
    info.FileSrc = row[Source];
    FillFromDisk(info, files, row[Source]);
    return info;
}

Text FileSizeText(std::uint64_t bytes)
{
    // A pattern without decimals has no use for a decimal sign.
    return FormatNumber(static_cast<double>(bytes), "### ### ###", ',') + " bytes";
}

Text FileDateTimeText(const LocalTime& time)
{
    return DateText(time) + "    " + TimeTextWithSeconds(time);
}

Text FileAttrText(const FileStatus& status)
{
    Text words;
    if (status.isReadOnly)
        words += "[Skrivskyddad]  ";
    if (status.isHidden)
        words += "[Dold]  ";
    if (status.isArchive)
        words += "[Arkiv]  ";
    if (status.isSystem)
        words += "[System]  ";
    return words;
}

bool IsDataAccessPackage(const FileListRow& row)
{
    return EqualIgnoreCase(row[Filename], kDataAccessArchive);
}

} // namespace quillon
