#include "builder/file_list_file.h"

#include "builder/source_address.h"
#include "filelist/adding/system_files.h"
#include "formats/document_viewers.h"
#include "formats/install_row.h"
#include "formats/section_document.h"
#include "helpers/ansi_text.h"
#include "helpers/product.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

InstallRow MakeInstallRow(const FileListRow& row, Long number, const FileSystem& files)
{
    InstallRow made{.number = int(number),
                    .name = row[Filename],
                    .destination = row[Destination],
                    .iconMarker = row[IconMarker],
                    .copyOptions = row[CopyOptions],
                    .component = row[ComponentNumber].empty() ? "0" : row[ComponentNumber],
                    .iconTitle = row[IconDesc],
                    .iconParameters = row[IconPar],
                    .workFolder = row[IconWorkDir],
                    .iconFile = row[IconFile],
                    .viewer = int(ViewerNamed(row[IconDocReader]))};
    if (row.HasSource()) {
        // The very path that the container reads, so that size and content are of one file.
        const Text source = ConvertLongFilenameToShortFilename(files, row[Source]);
        const FileStatus status = files.Status(source);
        if (status.isFolder)
            throw RunError(ErrorNumber::kFileNotFound, source);
        made.size = status.size;
        made.sourceFolder = SourceFolderOnMedium(source);
    }
    return made;
}

void WriteRow(AnsiTextFile& file, const InstallRow& row)
{
    const Text line = InstallRowLine(row);
    // A character outside Windows-1252 would become '?', and the setup would look for another file.
    if (!AnsiText::Holds(line))
        throw RunError(ErrorNumber::kBadFileName, row.name);
    file.Line(line);
}

} // namespace

int WriteFileListFile(const Text& path, const Project& project, const Host& host,
                      FileListOutcome& outcome)
{
    const auto write = [&] {
        AnsiTextFile file(host.files, path);
        for (const Text& line : FileHeaderLines(kFileListType))
            file.Line(line);
        file.Line();
        file.Line("[FileList]");
        for (const FileListRow& row : project.Files.rows) {
            if (IsRowSkipped(row, project))
                continue;
            WriteRow(file, MakeInstallRow(row, outcome.FilesInList + 1, host.files));
            ++outcome.FilesInList;
        }
        if (!project.Files.rows.empty()) {
            file.Line(kEndOfList);
            file.Line();
        }
        file.Line(kEndOfFile);
        file.Line();
        file.Close();
    };
    return RunErrorNumber(write, outcome.failure);
}

} // namespace quillon
