#include "filelist/adding/add_file.h"

#include "filelist/adding/file_name_case.h"
#include "filelist/adding/file_version.h"
#include "filelist/adding/system_files.h"
#include "filelist/options/row_options.h"
#include "filelist/row_status.h"
#include "filelist/row_text.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr const char* kAlreadyInList =
    "Filen är redan inlagd i fillistan! Ska samma fil in i fillistan fler gånger måste den plockas "
    "från en annan källkatalog! Har den nya filen samma filnamn och destinationskatalog som en "
    "befintlig fil kan den inte heller adderas till fillistan!";

Text ReasonText(const RunError& error, const Text& path)
{
    switch (error.Number()) {
    case ErrorNumber::kFileNotFound:
        return "Filen existerar inte vid källsökvägen '" + path + "'!";
    case ErrorNumber::kPathNotFound:
        return "En av mapparna som specificeras i källsökvägen '" + path + "' existerar inte!";
    default:
        return "Fel # " + NumberText(error.Number()) + " inträffade!";
    }
}

bool IsSameFile(const FileListRow& row, const FileToAdd& file)
{
    return EqualIgnoreCase(row[Filename], file.FileName) &&
           (EqualIgnoreCase(row[Source], file.SourcePath) ||
            EqualIgnoreCase(row[Destination], file.Destination));
}

} // namespace

FileAdding::FileAdding(FileList& files, Host host, Ask& ask, RowsWithoutSource withoutSource)
    : files_(files), host_(host), ask_(ask), withoutSource_(withoutSource)
{
    if (withoutSource_ == RowsWithoutSource::AreFilled)
        for (std::size_t i = 0; i < files_.rows.size(); ++i)
            if (LacksSource(files_.rows[i]))
                toBeFilled_.push_back({i, false});
}

FileAdding::~FileAdding()
{
    if (!finished_)
        Finish();
}

NewPlaces FileAdding::Finish()
{
    finished_ = true;
    duplicates_.reset();
    return SortRows(files_);
}

std::optional<std::size_t> FileAdding::AddFileToFileList(const FileToAdd& file)
{
    if (!file.TrapErrors)
        return AddOrRefuse(file);
    try {
        return AddOrRefuse(file);
    } catch (const RunError& error) {
        ask_.Critical("Fel", "Filen '" + file.FileName + "' kan ej adderas till fillistan. " +
                                 ReasonText(error, file.SourcePath));
        return std::nullopt;
    }
}

std::optional<std::size_t> FileAdding::AddOrRefuse(const FileToAdd& file)
{
    if (IsGuardedHere(file.FileName, file.SourcePath))
        return std::nullopt;
    // The row keeps the path in lower case, so all that is read of the file is read by that.
    const Text stored = LowerCase(file.SourcePath);
    const auto found = StatusIfExists(host_.files, stored);
    const auto meant =
        found && file.Listed ? file.Listed : StatusIfExists(host_.files, file.SourcePath);
    // Before the duplicate test: of two names that differ in case alone, the second one's file is
    // not in the list.
    if (IsRefused(RefusalOfLowerCase(file.SourcePath, meant, found)) ||
        IsRefusedAsDuplicate(file, found && !found->isFolder) ||
        IsRefused(RefusalOfTexts(file.FileName, file.SourcePath, file.Destination)))
        return std::nullopt;
    const auto unreadable = RefusalToRead(host_.files, stored);
    if ((found && found->isHidden) || (unreadable && file.PassOverUnreadable) ||
        IsRefused(unreadable))
        return std::nullopt;

    FileListRow row;
    row[Filename] = file.FileName;
    row[Destination] = file.Destination;
    row[CopyOptions] = file.CopyOptions;
    return AppendRow(std::move(row), [&](FileListRow& filled) {
        FillFromDisk(filled, found ? *found : host_.files.Status(file.SourcePath), file.SourcePath);
        if (file.CopyOptions.empty())
            filled[CopyOptions] = StartingCopyOptions(file.FileName, file.UseVersionRules, [&] {
                return !FileVersionText(host_.files, stored).empty();
            });
        filled[ComponentNumber] = file.ComponentNr;
        filled[Extension] = ExtensionFromFirstDot(file.FileName);
        filled[Source] = stored;
        // Kept: a font goes to the font folder whatever destination the user chose; he can change
        // it then.
        if (!file.KeepsFontHere && EqualIgnoreCase(filled[Extension], "ttf"))
            filled[Destination] = "%FONTDIR";
    });
}

std::optional<std::size_t> FileAdding::AddSystemFileToFileList(const Text& fileName,
                                                               bool isRuntimeFile)
{
    try {
        return AddSystemFile(fileName, isRuntimeFile);
    } catch (const RunError& error) {
        if (error.Number() == ErrorNumber::kFileNotFound)
            ask_.Critical("Kan ej addera en fil",
                          "Filen '" + fileName +
                              "' existerar inte i systemkatalogen! Kan ej addera den till "
                              "fillistan!");
        else
            ask_.Critical("Fel", "Kan ej öppna filen '" + fileName + "'!");
        return std::nullopt;
    }
}

std::optional<std::size_t> FileAdding::AddSystemFile(const Text& fileName, bool isRuntimeFile)
{
    const Text folder = host_.machine.GetSystemDir();
    if (folder.empty())
        throw RunError(ErrorNumber::kFileNotFound, fileName);
    // A name with a folder is no file of the system folder, even where it leads there.
    if (HasFolder(fileName))
        throw RunError(ErrorNumber::kFileNotFound, fileName);
    const Text path = LowerCase(JoinPath(folder, fileName));
    if (IsGuardedHere(fileName, path))
        return std::nullopt;
    if (IsRefused(RefusalOfTexts(ExtractFilename(fileName), path, "%SYSDIR")))
        return std::nullopt;
    const auto status = StatusIfExists(host_.files, path);
    if ((status && status->isHidden) || IsRefused(RefusalToRead(host_.files, path)))
        return std::nullopt;

    FileListRow row;
    row[Filename] = FormatFileNameCase(fileName);
    row[Destination] = "%SYSDIR";
    return AppendRow(std::move(row), [&](FileListRow& filled) {
        FillFromDisk(filled, status ? *status : host_.files.Status(path), path);
        filled[CopyOptions] = StartingSystemFileOptions(fileName, isRuntimeFile);
        filled[Extension] = ExtensionFromFirstDot(filled[Filename]);
        filled[Source] = path;
    });
}

FileAdding::RowOutcome FileAdding::AddRow(const FileListRow& row, bool showDuplicateMessage)
{
    const bool isFolder = !row.HasSource();
    if (files_.rows.size() >= kMaxRows) {
        ask_.Critical("Fel", FullListText());
        return RowOutcome::Refused;
    }
    const bool isGood =
        isFolder ? CheckRowText(row[Destination], "Katalogen", ask_) &&
                       MayBeDestination(row[Destination], ask_)
                 : !IsRefused(RefusalOfTexts(row[Filename], row[Source], row[Destination]));
    if (!isGood)
        return RowOutcome::Refused;
    const bool isDuplicate =
        isFolder ? !IsNewEmptyFolder(row[Destination])
                 : IsRefusedAsDuplicate({.FileName = row[Filename],
                                         .SourcePath = row[Source],
                                         .Destination = row[Destination],
                                         .CheckDuplicates = true,
                                         .ShowDuplicateMessage = showDuplicateMessage},
                                        true);
    if (isDuplicate)
        return RowOutcome::Duplicate;
    Append(row);
    return RowOutcome::Added;
}

bool FileAdding::IsNewEmptyFolder(const Text& destination)
{
    if (!emptyFolders_) {
        emptyFolders_.emplace();
        for (const FileListRow& row : files_.rows)
            if (!row.HasSource())
                emptyFolders_->insert(LowerCase(row[Destination]));
    }
    return emptyFolders_->insert(LowerCase(destination)).second;
}

bool FileAdding::IsGuardedHere(const Text& fileName, const Text& sourcePath) const
{
    return host_.machine.IsWindowsXP() && IsProtectedOnWindowsXP(fileName) &&
           EqualIgnoreCase(ExtractDirectory(sourcePath), host_.machine.GetSystemDir());
}

bool FileAdding::IsRefusedAsDuplicate(const FileToAdd& file, bool isThere)
{
    if (!file.CheckDuplicates)
        return false;
    if (!duplicates_)
        duplicates_.emplace(files_);
    if (!duplicates_->IsFileAlreadyInList(file.FileName, file.SourcePath, file.Destination))
        return false;
    // The index counts the rows to be filled too.
    const auto place = ToBeFilled(file.FileName, file.Destination);
    if (place != toBeFilled_.end() && (isThere || !place->wasTried) &&
        std::ranges::none_of(files_.rows, [&](const FileListRow& row) {
            return !LacksSource(row) && IsSameFile(row, file);
        }))
        return false;
    if (file.ShowDuplicateMessage)
        ask_.Inform("Quillon", kAlreadyInList);
    return true;
}

bool FileAdding::IsRefused(const std::optional<Refusal>& refusal)
{
    if (refusal)
        ask_.Critical(refusal->title, refusal->text);
    return refusal.has_value();
}

void FileAdding::FillFromDisk(FileListRow& row, const FileStatus& status, const Text& path) const
{
    if (status.isFolder)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    FillFromStatus(row, status, host_.machine.DecimalSign());
}

// A row exists from before its file is looked at, so a failure of `fill` leaves it in the list.
template <class Fill>
std::size_t FileAdding::AppendRow(FileListRow row, Fill fill)
{
    if (files_.rows.size() >= kMaxRows &&
        ToBeFilled(row[Filename], row[Destination]) == toBeFilled_.end())
        throw RunError(ErrorNumber::kOverflow, row[Filename]);
    try {
        fill(row);
    } catch (const RunError&) {
        Append(std::move(row));
        throw;
    }
    return Append(std::move(row));
}

// The row without its source that a file of this name and destination fills.
std::vector<FileAdding::Unfilled>::iterator FileAdding::ToBeFilled(const Text& name,
                                                                   const Text& destination)
{
    return std::ranges::find_if(toBeFilled_, [&](const Unfilled& unfilled) {
        const FileListRow& row = files_.rows[unfilled.row];
        return EqualIgnoreCase(row[Filename], name) &&
               EqualIgnoreCase(row[Destination], destination);
    });
}

std::size_t FileAdding::Append(FileListRow row)
{
    if (const auto place = ToBeFilled(row[Filename], row[Destination]);
        place != toBeFilled_.end()) {
        const std::size_t number = place->row;
        files_.rows[number] = std::move(row);
        place->wasTried = true;
        if (!LacksSource(files_.rows[number]))
            toBeFilled_.erase(place);
        duplicates_.reset();
        return number;
    }
    if (withoutSource_ == RowsWithoutSource::AreFilled && LacksSource(row))
        toBeFilled_.push_back({files_.rows.size(), true});
    files_.rows.push_back(std::move(row));
    if (duplicates_)
        duplicates_->NoteNewRow();
    return files_.rows.size() - 1;
}

} // namespace quillon
