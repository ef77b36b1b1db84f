#include "importers/row_import.h"

#include "filelist/adding/add_target.h"
#include "filelist/adding/use_filter.h"
#include "filelist/options/icon_row.h"
#include "filelist/row_status.h"
#include "formats/icon_marker.h"
#include "helpers/windows_path.h"
#include "importers/project_lines.h"
#include "platform/failure_text.h"

#include <algorithm>

namespace quillon {

namespace {

/// The first row that has a file and this trait.
template <class Trait>
std::optional<std::size_t> FirstRow(const FileList& files, Trait trait)
{
    for (std::size_t i = 0; i < files.rows.size(); ++i)
        if (!LacksSource(files.rows[i]) && trait(files.rows[i]))
            return i;
    return std::nullopt;
}

} // namespace

RowImport::RowImport(const ImportWork& work)
    : work_(work), rowsBefore_(work.list.project.Files.rows.size()), own_(work.list.project.Files),
      adding_(work.list.project.Files, work.list.host, work.list.ask,
              FileAdding::RowsWithoutSource::AreFilled),
      dependencies_(adding_, work.list.host, work.list.ask, this)
{
}

bool RowImport::MayGoOn(const Text& file)
{
    isStopped_ = isStopped_ || !work_.user.MayGoOn(file);
    return !isStopped_;
}

void RowImport::Pass(const Text& file, NotAdded why)
{
    Pass(file, why, file);
}

// Files of the same name from several folders are reported one by one.
void RowImport::Pass(const Text& file, NotAdded why, const Text& path)
{
    const NotAddedFile entry{file, why};
    if (reported_.insert(LowerCase(path) + "\n" + entry.Reason()).second)
        notAdded_.push_back(entry);
}

bool RowImport::PassIfListed(const Text& name)
{
    const auto row = FirstRow(Files(), [&](const FileListRow& listed) {
        return EqualIgnoreCase(listed[Filename], name);
    });
    if (row && !own_.Has(*row))
        Pass(name, NotAdded::AlreadyListed);
    return row.has_value();
}

std::optional<std::size_t> RowImport::SystemRow(const Text& name, const Text& path) const
{
    return FirstRow(Files(), [&](const FileListRow& row) {
        return row[Source] == path ||
               (row[Destination] == "%SYSDIR" && EqualIgnoreCase(row[Filename], name));
    });
}

RowImport::Added RowImport::AddSystemFile(const Text& name, bool isRuntimeFile)
{
    if (!MayGoOn(name))
        return Added::LeftOut;
    if (missingSystemFiles_.contains(LowerCase(name)))
        return Added::AlreadyReported;
    const Text path = LowerCase(JoinPath(GetHost().machine.GetSystemDir(), name));
    if (const auto row = SystemRow(name, path)) {
        if (!own_.Has(*row))
            Pass(name, NotAdded::AlreadyListed);
        return Added::AlreadyThere;
    }
    const bool isThere = !HasFolder(name) && GetHost().files.FileExists(path);
    if (adding_.AddSystemFileToFileList(name, isRuntimeFile))
        return Added::Yes;
    if (isThere) {
        Pass(name, NotAdded::LeftOut);
        return Added::LeftOut;
    }
    Pass(name, HasFolder(name) ? NotAdded::OutsideSystemFolder : NotAdded::NotInSystemFolder);
    missingSystemFiles_.insert(LowerCase(name));
    return Added::Missing;
}

void RowImport::AddSystemFiles(std::span<const SystemFile> files)
{
    for (const SystemFile& file : files)
        AddSystemFile(Text(file.name), file.isRuntimeFile);
}

void RowImport::AddRedistFiles(const Text& folder, std::span<const RedistFile> files)
{
    for (const RedistFile& file : files)
        Add({.FileName = Text(file.name),
             .SourcePath = folder + "\\" + Text(file.name),
             .Destination = "%SYSDIR",
             .TrapErrors = true,
             .CopyOptions = Text(file.copyOptions)});
}

bool RowImport::Add(const FileToAdd& file)
{
    if (!MayGoOn(file.FileName))
        return false;
    try {
        if (adding_.AddFileToFileList(file))
            return true;
    } catch (const RunError&) {
        Pass(file.FileName, WhyNotAdded(file), file.SourcePath);
        throw;
    }
    LeftOut(file);
    return false;
}

// A file that this import has added before is not reported.
void RowImport::LeftOut(const FileToAdd& file)
{
    const auto row = file.CheckDuplicates ? RowOfFile(file) : std::nullopt;
    if (!row)
        Pass(file.FileName, WhyNotAdded(file), file.SourcePath);
    else if (!own_.Has(*row))
        Pass(file.FileName, NotAdded::AlreadyListed, file.SourcePath);
}

// The walk of the dependency file ends here, so the files that it names after this one are unknown.
void RowImport::Failed(const FileToAdd& file, const Text& depFile)
{
    Pass(file.FileName, WhyNotAdded(file), file.SourcePath);
    Pass(ExtractFilename(depFile), NotAdded::RestOfDepFile);
}

NotAdded RowImport::WhyNotAdded(const FileToAdd& file) const
{
    if (IsNeverAdded(file.FileName))
        return NotAdded::PartOfWindows;
    return GetHost().files.FileExists(file.SourcePath) ? NotAdded::LeftOut : NotAdded::NotAtSource;
}

// The row by which a file is in the list.
std::optional<std::size_t> RowImport::RowOfFile(const FileToAdd& file)
{
    const std::vector<FileListRow>& rows = Files().rows;
    for (; rowsLookedAt_ < rows.size(); ++rowsLookedAt_)
        rowsByName_.emplace(LowerCase(rows[rowsLookedAt_][Filename]), rowsLookedAt_);
    std::optional<std::size_t> first;
    const auto [begin, end] = rowsByName_.equal_range(LowerCase(file.FileName));
    for (auto named = begin; named != end; ++named) {
        const FileListRow& row = rows[named->second];
        if (!LacksSource(row) && (EqualIgnoreCase(row[Source], file.SourcePath) ||
                                  EqualIgnoreCase(row[Destination], file.Destination)))
            first = std::min(first.value_or(named->second), named->second);
    }
    return first;
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
    // A program that was in the list before has a row too, wherever it is.
    programRow_ = RowOfFile(file);
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
    // The user left the title empty, so no icon is wanted. An icon from before the import stays.
    if (row[IconDesc].empty() && !hadIcon) {
        row[IconMarker].clear();
        row[IconDocReader].clear();
    }
}

ImportResult RowImport::Finish(ImportEnd end)
{
    NoteAddedRows(work_.list, rowsBefore_);
    ImportResult result{.end = end, .places = adding_.Finish(), .notAdded = std::move(notAdded_)};
    result.added = own_.Added(Files(), result.places);
    if (!result.added.empty())
        work_.list.state.ProjectIsDirty = kOn;
    if (isProgramNew_ && programRow_)
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

bool HasSystemFolder(Host host, Ask& ask, const Text& what)
{
    const Text folder = host.machine.GetSystemDir();
    try {
        const auto entries = folder.empty() ? std::vector<FolderEntry>() : host.files.List(folder);
        if (std::ranges::any_of(entries, [](const auto& entry) { return !entry.status.isFolder; }))
            return true;
    } catch (const RunError&) {
        // Reported below, as a folder without files is.
    }
    ask.Critical("Systemkatalogen saknas",
                 (folder.empty() ? Text("Den här datorn har ingen systemkatalog")
                                 : "Systemkatalogen '" + folder + "' finns inte eller är tom") +
                     ", så " + what +
                     " kan ej hämtas. Kopiera systemkatalogen från en dator med Windows och Visual "
                     "Basic dit, eller låt QUILLON_DRIVE_C ange en katalog där den finns.");
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
