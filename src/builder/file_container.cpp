#include "builder/file_container.h"

#include "builder/compression_setup.h"
#include "builder/file_list_file.h"
#include "builder/remove_quietly.h"
#include "builder/selfextract/payload_sources.h"
#include "builder/source_address.h"
#include "filelist/adding/system_files.h"
#include "formats/package.h"
#include "ini/profile_writer.h"
#include "project/file_rows.h"

namespace quillon {

namespace {

// False when the list took a file no more; the run is marked as failed then.
bool AddProjectFiles(CreateRun& run)
{
    Long row = 0;
    for (const FileListRow& file : run.project.Files.rows) {
        if (IsRowSkipped(file, run.project))
            continue;
        ++row;
        if (!file.HasSource())
            continue;
        const Text path = ConvertLongFilenameToShortFilename(run.host.files, file[Source]);
        if (run.compression.IfcAddFileListItem(path, FileRowKey(row)) == 0) {
            run.ask.AddStatusLine("Fel inträffade! Kan ej addera filen " + file[Filename] +
                                  " till filtabell!");
            run.CreateFailed = true;
            return false;
        }
        run.ask.AddStatusLine("Adderar '" + file[Filename] + "'");
    }
    return true;
}

// What a self-extracting program carries is packed as a whole, and what was packed before does not
// become smaller. Neither does what is encrypted.
bool IsPackedLater(const CreateRun& run)
{
    return run.form.TargetMedia == Medium::Internet && ContainerPassword(run.project).empty();
}

Integer LevelOfContainer(const CreateRun& run)
{
    return IsPackedLater(run) ? kStoredLevel : CompressionLevel(run.form);
}

void TellSuccess(CreateRun& run, bool spanning)
{
    if (!spanning)
        run.ask.AddStatusLine("Skriver filtabell");
    run.ask.AddStatusLine("Stänger FILEDATA.DAT");
    // Kept: the file's name is misspelt in this line.
    run.ask.AddStatusLine("Antal filer som adderats till FILEDATA.DTA: " +
                          ConvertLongToString(run.FilesInList) + " st");
}

void ListContainer(CreateRun& run, bool spanning)
{
    if (!spanning)
        run.packageFiles.push_back(kFileContainerName);
    else
        for (const Sha256Digest& digest : run.compression.PieceDigests())
            run.piecesOnDisks.push_back({PieceName(int(run.piecesOnDisks.size()) + 1), digest});
}

void WriteFloppyCount(CreateRun& run)
{
    run.ask.AddStatusLine("Uppdaterar QNSETUP.INF med diskettinformation");
    WriteProfileValue(run.host.files, run.InDestination(kSetupInformationName), "Media", "Floppies",
                      NumberText(run.FloppiesUsed));
}

// A solid container finds more where files that are alike are beside each other.
Integer MakeContainer(CreateRun& run, bool spanning)
{
    const Text target = run.InDestination(kFileContainerName);
    const bool isSolid = MakesSmallContainer(run.form);
    if (isSolid || IsPackedLater(run))
        run.compression.Sort(PacksBefore);

    run.ask.AddStatusLine("Kopierar och komprimerar filer");
    RemoveQuietly(run.host.files, target);
    return isSolid ? run.compression.IfcCreateSolidFile(target)
                   : run.compression.IfcCreateZipFile(target, spanning ? 1 : 0,
                                                      ContainerPassword(run.project));
}

} // namespace

Text ContainerPassword(const Project& project)
{
    const bool asksForPassword = project.DialogBoxes.PasswordDlg == 1;
    return asksForPassword ? project.DialogBoxData.CorrectPassword : Text();
}

void ReportCompressionError(Ask& ask, const Text& what, Integer result,
                            const Text& missingReadRight)
{
    ask.AddStatusLine(" Komprimering av " + what + " misslyckades!");
    ask.AddStatusLine(" DynaZip rapporterade fel #" + NumberText(result) + "!");
    if (result == CompressionResult::kNoReadAccess)
        ask.AddStatusLine(" Felmeddelande: " + missingReadRight);
}

void CreateFileContainer(CreateRun& run, bool spanning)
{
    InitCompression(run, LevelOfContainer(run));
    run.ask.AddStatusLine("Öppnar FILEDATA.DAT");
    if (!AddProjectFiles(run))
        return;

    const Integer result = MakeContainer(run, spanning);
    const bool failed = result > CompressionResult::kDone;
    if (failed) {
        ReportCompressionError(run.ask, "filer", result,
                               "Saknar läsrättigheter till en eller flera filer!");
        run.ask.AddStatusLine(Text(" Kan ej skapa ") + kFileContainerName);
        run.CreateFailed = true;
        run.compressionFailure = run.compression.LastFailure();
    }
    run.FloppiesUsed = spanning ? run.compression.IfcGetNrFloppiesUsed() : Integer(0);
    run.compression.IfcFreeFileList();
    if (!failed) {
        ListContainer(run, spanning);
        TellSuccess(run, spanning);
    }
    if (spanning)
        WriteFloppyCount(run);
}

} // namespace quillon
