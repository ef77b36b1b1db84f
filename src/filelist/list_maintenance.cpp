#include "filelist/list_maintenance.h"

#include "filelist/row_status.h"
#include "filelist/row_text.h"
#include "helpers/number_text.h"
#include "platform/run_error.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kFilesMissing =
    "En eller flera filer har försvunnit från källkatalogen sedan du lade in dessa i fillistan! De "
    "filer som saknas har markerats med <Filen saknas> i kolumnen 'Destination'. Du bör radera "
    "bort dessa från fillistan (och sedan eventuellt lägga in dom på nytt om de är flyttade till "
    "en annan katalog).";

std::optional<FileStatus> StatusOfFile(const FileSystem& files, const Text& path)
{
    try {
        const FileStatus status = files.Status(path);
        return status.isFolder ? std::nullopt : std::optional(status);
    } catch (const RunError&) {
        return std::nullopt;
    }
}

// Kept: all options and the destination are lost, so a file that comes back stays marked.
void MarkAsMissing(FileListRow& row)
{
    for (std::size_t i = 0; i < kColumnCount; ++i)
        if (i != Filename && i != Source)
            row.columns[i].clear();
    row[Destination] = kFileIsGone;
    row[Size] = "0";
}

/// True when the row's file is gone.
bool UpdateRow(FileListRow& row, const Host& host)
{
    const auto status = row.HasSource() ? StatusOfFile(host.files, row[Source]) : std::nullopt;
    if (status)
        FillFromStatus(row, *status, host.machine.DecimalSign());
    else
        MarkAsMissing(row);
    return !status;
}

} // namespace

std::optional<NewPlaces> AddEmptyDirectoryCommand(const ListWork& work)
{
    const auto folder = work.ask.XInputBox("Addera tom katalog", "&Katalog:");
    if (!folder || folder->empty())
        return std::nullopt;
    FileList& files = work.project.Files;
    if (files.rows.size() >= kMaxRows) {
        work.ask.Critical("Fel", FullListText() + " Katalogen '" + *folder +
                                     "' kan ej adderas till fillistan!");
        return std::nullopt;
    }
    if (!CheckRowText(*folder, "Katalogen", work.ask) || !MayBeDestination(*folder, work.ask))
        return std::nullopt;
    // Kept: the answer is in the row as it was typed.
    FileListRow& row = files.rows.emplace_back();
    row[Filename] = kEmptyFolderName;
    row[Destination] = *folder;
    work.state.ProjectIsDirty = kOn;
    return SortRows(files);
}

void UpdateFileListCommand(const ListWork& work, const std::function<void(const NewPlaces&)>& show)
{
    FileList& files = work.project.Files;
    if (files.rows.empty())
        return;
    work.ask.ShowStatusText("Uppdaterar fillista...");
    std::size_t missing = 0;
    for (FileListRow& row : files.rows)
        if ((row.HasSource() || LacksSource(row)) && UpdateRow(row, work.host))
            ++missing;
    work.ask.ShowStatusText("");
    work.state.ProjectIsDirty = kOn;
    show(SortRows(files));
    if (missing > 0)
        work.ask.Warn("Filer saknas", kFilesMissing);
}

bool DeleteRowsCommand(const ListWork& work, std::span<const std::size_t> selectedRows)
{
    if (selectedRows.empty())
        return false;
    const bool goes = work.ask.YesNo("Fillista",
                                     selectedRows.size() == 1
                                         ? "Vill du ta bort det markerade objektet från listan?"
                                         : "Vill du ta bort de markerade objekten från listan?",
                                     Ask::Stops::OnNo);
    if (!goes)
        return false;
    std::vector<FileListRow>& rows = work.project.Files.rows;
    std::vector<FileListRow> kept;
    kept.reserve(rows.size());
    auto selected = selectedRows.begin();
    for (std::size_t number = 0; number < rows.size(); ++number)
        if (selected != selectedRows.end() && *selected == number)
            ++selected;
        else
            kept.push_back(std::move(rows[number]));
    rows = std::move(kept);
    work.state.ProjectIsDirty = kOn;
    return true;
}

std::optional<NewPlaces> ChangeDestinationCommand(const ListWork& work,
                                                  std::span<const std::size_t> selectedRows)
{
    FileList& files = work.project.Files;
    if (selectedRows.empty())
        return std::nullopt;
    const Text proposed =
        selectedRows.size() == 1 ? files.rows[selectedRows.front()][Destination] : "%DESTDIR";
    const auto destination =
        work.ask.ChooseDestination({DestinationQuestion::Place::User, proposed});
    if (!destination)
        return std::nullopt;
    for (const std::size_t number : selectedRows)
        files.rows[number][Destination] = *destination;
    work.state.ProjectIsDirty = kOn;
    return SortRows(files);
}

std::vector<Text> DestinationsOf(const FileList& files)
{
    // A copy is sorted, since showing the destinations must not change the order of the list.
    FileList byDestination;
    for (const FileListRow& row : files.rows)
        if (!row[Destination].empty())
            byDestination.rows.emplace_back()[Destination] = row[Destination];
    SortRowsBy(byDestination, Destination);
    std::vector<Text> destinations;
    for (const FileListRow& row : byDestination.rows)
        if (destinations.empty() || destinations.back() != row[Destination])
            destinations.push_back(row[Destination]);
    return destinations;
}

} // namespace quillon
