#include "filelist/file_info.h"

#include "filelist/file_version.h"
#include "helpers/number_text.h"
#include "platform/run_error.h"

namespace quillon {

namespace {

void FillFromDisk(FileInfo& info, const FileSystem& files, const Text& path)
{
    try {
        const FileFacts facts = files.Facts(path);
        if (facts.isFolder)
            return;
        info.FileSize = FileSizeText(facts.size);
        info.FileDateTime = FileDateTimeText(facts.modified);
        info.FileAttr = FileAttrText(facts);
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

Text FileAttrText(const FileFacts& facts)
{
    Text words;
    if (facts.isReadOnly)
        words += "[Skrivskyddad]  ";
    if (facts.isHidden)
        words += "[Dold]  ";
    if (facts.isArchive)
        words += "[Arkiv]  ";
    if (facts.isSystem)
        words += "[System]  ";
    return words;
}

bool IsDataAccessPackage(const FileListRow& row)
{
    return EqualIgnoreCase(row[Filename], "MDAC_TYP.ZIP");
}

} // namespace quillon
