#include "importers/row_import.h"

#include "filelist/adding/add_target.h"
#include "filelist/options/icon_row.h"
#include "helpers/windows_path.h"
#include "importers/project_lines.h"
#include "platform/failure_text.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kNotInSystemFolder = "finns inte i systemkatalogen";
constexpr const char* kNotAtSource = "finns inte vid källsökvägen";
constexpr const char* kAlreadyListed = "finns redan i fillistan";
constexpr const char* kLeftOut = "är dold, skyddad av Windows eller har ett otillåtet namn";

constexpr const char* kIconMarker = "Ikon";

} // namespace

RowImport::RowImport(const ImportWork& work)
    : work_(work), rowsBefore_(work.list.project.Files.rows.size()),
      adding_(work.list.project.Files, work.list.host, work.list.ask),
      dependencies_(adding_, work.list.host, work.list.ask)
{
}

bool RowImport::MayGoOn(const Text& file)
{
    isStopped_ = isStopped_ || !work_.user.MayGoOn(file);
    return !isStopped_;
}

void RowImport::Pass(const Text& file, const Text& reason)
{
    notAdded_.push_back({file, reason});
}

bool RowImport::HasSystemRow(const Text& name, const Text& path) const
{
    return std::ranges::any_of(Files().rows, [&](const FileListRow& row) {
        return row[Source] == path ||
               (row[Destination] == "%SYSDIR" && EqualIgnoreCase(row[Filename], name));
    });
}

RowImport::Added RowImport::AddSystemFile(const Text& name, bool isRuntimeFile)
{
    if (!MayGoOn(name))
        return Added::LeftOut;
    const Text path = LowerCase(JoinPath(GetHost().machine.GetSystemDir(), name));
    if (HasSystemRow(name, path)) {
        Pass(name, kAlreadyListed);
        return Added::AlreadyThere;
    }
    const bool isThere = GetHost().files.FileExists(path);
    if (adding_.AddSystemFileToFileList(name, isRuntimeFile))
        return Added::Yes;
    Pass(name, isThere ? kLeftOut : kNotInSystemFolder);
    return isThere ? Added::LeftOut : Added::Missing;
}

void RowImport::AddSystemFiles(std::span<const SystemFile> files)
{
    for (const SystemFile& file : files)
        AddSystemFile(Text(file.name), file.isRuntimeFile);
}

void RowImport::AddRedistFiles(const Text& folder, std::span<const RedistFile> files)
{
    for (const RedistFile& file : files)
        AddWithOptions({.FileName = Text(file.name),
                        .SourcePath = folder + "\\" + Text(file.name),
                        .Destination = "%SYSDIR",
                        .TrapErrors = true},
                       file.copyOptions);
}

void RowImport::AddWithOptions(FileToAdd file, std::string_view copyOptions)
{
    const std::size_t rowsBefore = Files().rows.size();
    Add(file);
    // Also on the row that is left of a file that is not there.
    if (Files().rows.size() > rowsBefore)
        Files().rows.back()[CopyOptions] = copyOptions;
}

bool RowImport::Add(const FileToAdd& file)
{
    if (!MayGoOn(file.FileName))
        return false;
    if (adding_.AddFileToFileList(file))
        return true;
    const bool isThere = GetHost().files.FileExists(file.SourcePath);
    const bool isListed = file.CheckDuplicates && FindProgram(file).has_value();
    Pass(file.FileName, isListed ? kAlreadyListed : isThere ? kLeftOut : kNotAtSource);
    return false;
}

// The row by which a file is in the list already.
std::optional<std::size_t> RowImport::FindProgram(const FileToAdd& program) const
{
    const auto found = std::ranges::find_if(Files().rows, [&](const FileListRow& row) {
        return EqualIgnoreCase(row[Filename], program.FileName) &&
               (EqualIgnoreCase(row[Source], program.SourcePath) ||
                EqualIgnoreCase(row[Destination], program.Destination));
    });
    if (found == Files().rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - Files().rows.begin());
}

bool RowImport::AddProgram(const Text& program, ImportEnd& end, const Text& subfolder)
{
    const Text name = ExtractFilename(program);
    ImportUser::ProgramQuestion question;
    question.destination.folder = "%DESTDIR";
    question.caption = "Välj destinationskatalog för " + name;
    question.frameCaption = "Destinationskatalog";
    const auto destination = work_.user.ChooseProgramDestination(question);
    if (!destination) {
        end = ImportEnd::Cancelled;
        return false;
    }
    const FileToAdd file{.FileName = name,
                         .SourcePath = program,
                         .Destination =
                             subfolder.empty() ? *destination : *destination + "\\" + subfolder,
                         .CheckDuplicates = true,
                         .UseVersionRules = true};
    programDestination_ = *destination;
    isProgramNew_ = Add(file);
    end = ImportEnd::Stopped;
    if (isStopped_)
        return false;
    // A program that was in the list before has a row too, wherever it stands.
    programRow_ = isProgramNew_ ? Files().rows.size() - 1 : FindProgram(file);
    return true;
}

void RowImport::AddProgramIcon()
{
    if (!programRow_)
        return;
    FileListRow& row = Files().rows[*programRow_];
    const FileListRow before = row;
    const bool hadIcon = !before[IconMarker].empty();
    if (!hadIcon) {
        row[IconMarker] = kIconMarker;
        row[IconDocReader] = kDocumentReaders.front();
    }
    work_.user.EditIcon(row, "Skriv in ikon-uppgifter för " + row[Filename]);
    // Without a title the user has changed his mind. An icon from before the import stays.
    if (row[IconDesc].empty() && !hadIcon) {
        row[IconMarker].clear();
        row[IconDocReader].clear();
    }
}

ImportResult RowImport::Finish(ImportEnd end)
{
    NoteAddedRows(work_.list, rowsBefore_);
    ImportResult result{.end = end, .places = adding_.Finish(), .notAdded = std::move(notAdded_)};
    if (isProgramNew_)
        result.newProgram = result.places[*programRow_];
    return result;
}

void RowImport::ShowBusy(bool isBusy)
{
    if (isBusy != isBusy_)
        GetAsk().ShowBusyPointer(isBusy);
    isBusy_ = isBusy;
}

bool AreFilesChosen(const Text& project, const Text& program, const ImportChecks& texts, Ask& ask)
{
    const char* fault = nullptr;
    if (project.empty() && program.empty())
        fault = texts.bothMissing;
    else if (program.empty())
        fault = texts.programMissing;
    else if (project.empty())
        fault = texts.projectMissing;
    if (fault)
        ask.Inform("Info", fault);
    return fault == nullptr;
}

bool HasSystemFolder(Host host, Ask& ask)
{
    const Text folder = host.machine.GetSystemDir();
    try {
        const auto entries = folder.empty() ? std::vector<FolderEntry>() : host.files.List(folder);
        if (std::ranges::any_of(entries, [](const auto& entry) { return !entry.status.isFolder; }))
            return true;
    } catch (const RunError&) {
        // Told below, as a folder without files is.
    }
    ask.Critical("Systemkatalogen saknas",
                 (folder.empty() ? Text("Den här datorn har ingen systemkatalog")
                                 : "Systemkatalogen '" + folder + "' finns inte eller är tom") +
                     ", så Visual Basics filer kan ej hämtas. Kopiera systemkatalogen från en "
                     "dator med Windows och Visual Basic dit, eller låt QUILLON_DRIVE_C ange en "
                     "katalog där den finns.");
    return false;
}

std::vector<Text> LinesOrTell(const FileSystem& files, const Text& path, Ask& ask)
{
    try {
        ProjectLines project = ReadProjectLines(files, path);
        if (!project.damage.empty())
            ask.Critical("Fel inträffade", project.damage);
        return std::move(project.lines);
    } catch (const RunError& error) {
        ask.Critical("Fel inträffade", FailureText(error, path));
        return {};
    }
}

ImportResult RunImport(const ImportWork& work, const std::function<ImportEnd(RowImport&)>& steps)
{
    RowImport import(work);
    ImportEnd end = ImportEnd::Failed;
    import.ShowBusy(true);
    try {
        end = steps(import);
    } catch (const RunError& error) {
        work.list.ask.Critical("Fel", FailureText(error, ""));
    }
    import.ShowBusy(false);
    if (end == ImportEnd::Stopped)
        work.list.ask.Inform("Importen är avbruten",
                             "Importen har stoppats. De filer som redan har adderats ligger kvar "
                             "i fillistan.");
    return import.Finish(end);
}

} // namespace quillon
