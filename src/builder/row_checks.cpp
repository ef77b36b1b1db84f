#include "builder/row_checks.h"

#include "builder/design_objects.h"
#include "builder/one_by_one.h"
#include "builder/source_address.h"
#include "filelist/adding/system_files.h"
#include "filelist/row_status.h"
#include "formats/icon_marker.h"
#include "formats/install_journal_name.h"
#include "formats/row_safety.h"
#include "formats/runtime_programs.h"
#include "formats/variable_names.h"
#include "helpers/windows_path.h"

#include <functional>
#include <unordered_map>

namespace quillon {

namespace {

constexpr const char* kGoOnQuestion = " Vill du fortsätta att skapa ändå?";

/// "3 ('a.txt')"
Text NumberAndName(std::size_t number, const FileListRow& row)
{
    return NumberText(static_cast<std::int64_t>(number) + 1) + " ('" + row[Filename] + "')";
}

Text RowLabel(std::size_t number, const FileListRow& row)
{
    return "Rad " + NumberAndName(number, row);
}

// Kept: a marked row whose file is gone gets as far as the file list, which reports all of these.
Text FaultOfMarkedRow(const CreateRun& run, const FileListRow& row)
{
    if (!run.host.files.FileExists(row[Source]))
        return {};
    return Text("Raden är markerad med ") + kFileIsGone +
           ", men filen finns. Ta bort raden och addera filen på nytt.";
}

Text FaultOfRow(const CreateRun& run, const FileListRow& row)
{
    if (LacksSource(row))
        return "Filen har ingen källsökväg, eftersom den inte kunde adderas. Ta bort raden och "
               "addera filen på nytt.";
    if (row[Destination] == kFileIsGone)
        return FaultOfMarkedRow(run, row);
    if (const Text fault = RowNameFaultText(row[Filename]); !fault.empty())
        return fault;
    if (const Text fault = DestinationFaultText(row[Destination]); !fault.empty())
        return fault;
    if (run.form.TargetMedia != Medium::CdTree || !row.HasSource())
        return {};
    const Text source = ConvertLongFilenameToShortFilename(run.host.files, row[Source]);
    return SourceFolderFaultText(SourceFolderOnMedium(source));
}

struct Pair {
    std::size_t first;
    std::size_t second;
};
using RowText = std::function<Text(const FileListRow&)>;

/// The first two rows, counted from 0, for which `keyOf` gives one text. Rows with an empty text do
/// not count, nor, where `mayShareSource`, do two of one file.
std::optional<Pair> FindPair(const CreateRun& run, const RowText& keyOf, bool mayShareSource)
{
    const std::vector<FileListRow>& rows = run.project.Files.rows;
    std::unordered_map<Text, std::size_t> seen;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Text key = IsRowSkipped(rows[i], run.project) ? Text() : keyOf(rows[i]);
        if (key.empty())
            continue;
        const auto [found, isNew] = seen.emplace(key, i);
        const bool isSameFile =
            mayShareSource && EqualIgnoreCase(rows[found->second][Source], rows[i][Source]);
        if (!isNew && !isSameFile)
            return Pair{found->second, i};
    }
    return std::nullopt;
}

Text PairText(const CreateRun& run, const Pair& pair)
{
    const auto& rows = run.project.Files.rows;
    const auto withSource = [&](std::size_t number) {
        return NumberAndName(number, rows[number]) + " från '" + rows[number][Source] + "'";
    };
    return "Raderna " + withSource(pair.first) + " och " + withSource(pair.second);
}

Check GoOn(CreateRun& run, const char* title, const Text& text)
{
    return run.ask.YesNo(title, text + kGoOnQuestion, Ask::Stops::OnNo) ? Check::Passed
                                                                        : Check::Stopped;
}

Text PlainFolder(const Text& folder)
{
    return RemoveLastBackslash(ReplaceAll(TrimBlanks(folder), "/", "\\"));
}

bool IsMainFolderItself(const Project& project, const Text& folder)
{
    return folder == NameOf(VariableMeaning::MainFolder) ||
           EqualIgnoreCase(folder, PlainFolder(project.InstallDirectories.DestinationDirectory));
}

// A component without a folder of its own goes to the main one.
bool IsMainFolder(const Project& project, const Text& destination)
{
    const Text folder = PlainFolder(destination);
    int number = 0;
    for (const section::FileComponent& component : project.FileComponents)
        if (folder == NameOf(VariableMeaning::ComponentFolder, ++number)) {
            const Text own = PlainFolder(component.CompDir);
            return own.empty() || IsMainFolderItself(project, own);
        }
    return IsMainFolderItself(project, folder);
}

bool IsNameOfUninstaller(const Text& name)
{
    const Text upper = UpperCase(name);
    return upper == RuntimePrograms::kUninstaller.name ||
           upper == RuntimePrograms::kSetup.inPackage ||
           upper == RuntimePrograms::kUninstallerManifest || IsInstallJournalName(upper);
}

Text IconTitle(const FileListRow& row)
{
    if (!HasIconMarker(row[IconMarker]))
        return {};
    const Text title = TrimBlanks(row[IconDesc]);
    return LowerCase(title.empty() ? row[Filename] : title);
}

} // namespace

Check CheckRows(CreateRun& run)
{
    Text firstFault;
    std::int64_t more = -1;
    const std::vector<FileListRow>& rows = run.project.Files.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Text fault = IsRowSkipped(rows[i], run.project) ? Text() : FaultOfRow(run, rows[i]);
        if (fault.empty())
            continue;
        if (++more == 0)
            firstFault = RowLabel(i, rows[i]) + ": " + fault;
    }
    if (firstFault.empty())
        return Check::Passed;
    const Text others = more == 0   ? Text()
                        : more == 1 ? Text(" En rad till har fel.")
                                    : " " + NumberText(more) + " rader till har fel.";
    run.ask.Critical("Felaktig rad i fillistan", "Kan ej skapa! " + firstFault + others);
    return Check::Stopped;
}

Check CheckUnknownVariables(CreateRun& run)
{
    const std::vector<FileListRow>& rows = run.project.Files.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Text word =
            IsRowSkipped(rows[i], run.project) ? Text() : UnknownVariableIn(rows[i][Destination]);
        if (!word.empty())
            return GoOn(run, "Okänd variabel",
                        RowLabel(i, rows[i]) + " har destinationen '" + rows[i][Destination] +
                            "', men '" + word +
                            "' är ingen variabel. Installationsprogrammet låter ordet stå som det "
                            "är.");
    }
    return Check::Passed;
}

Check CheckOneByOneNames(CreateRun& run)
{
    const bool isOneByOne =
        run.form.TargetMedia == Medium::CompressedCd && run.form.KeepCompressedFilesOneAndOne != 0;
    if (!isOneByOne)
        return Check::Passed;
    const auto target = [&](const FileListRow& row) {
        return row.HasSource() ? LowerCase(ResolvePath(OneByOnePath(run.options, "C:\\", row)))
                               : Text();
    };
    const auto pair = FindPair(run, target, true);
    if (!pair)
        return Check::Passed;
    run.ask.Critical("Samma filnamn",
                     "Kan ej skapa! " + PairText(run, *pair) +
                         " skulle skriva över varandra, eftersom filerna inte slås samman. Byt "
                         "namn på den ena eller låt filerna slås samman.");
    return Check::Stopped;
}

Check CheckUninstallerNames(CreateRun& run)
{
    const std::vector<FileListRow>& rows = run.project.Files.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!IsNameOfUninstaller(rows[i][Filename]) ||
            !IsMainFolder(run.project, rows[i][Destination]))
            continue;
        run.ask.Critical("Reserverat filnamn hittades",
                         "Kan ej skapa! " + RowLabel(i, rows[i]) +
                             " har ett namn som avinstallationen använder i huvudkatalogen. Byt "
                             "namn på filen eller lägg den i en annan katalog.");
        return Check::Stopped;
    }
    return Check::Passed;
}

Check CheckIconTitles(CreateRun& run)
{
    const auto pair = FindPair(run, IconTitle, false);
    if (!pair)
        return Check::Passed;
    return GoOn(run, "Samma ikonnamn",
                PairText(run, *pair) +
                    " har ikoner med samma beskrivning. Bara den ena ikonen blir kvar i "
                    "programgruppen.");
}

Check CheckDesignNames(CreateRun& run)
{
    std::unordered_map<Text, Text> seen;
    for (const DesignObject& object : DesignObjects(run.project, run.host.files, run.options)) {
        const Text name = ExtractFilename(object.path);
        const auto [found, isNew] = seen.emplace(LowerCase(name), object.path);
        if (!isNew && !EqualIgnoreCase(found->second, object.path))
            return GoOn(run, "Samma filnamn",
                        "Skärmobjekten '" + found->second + "' och '" + object.path +
                            "' har samma filnamn. Installationsprogrammet visar det ena i stället "
                            "för det andra.");
    }
    return Check::Passed;
}

Check CheckNamesInTree(CreateRun& run)
{
    if (run.form.TargetMedia != Medium::CdTree)
        return Check::Passed;
    const std::vector<FileListRow>& rows = run.project.Files.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isRenamed =
            rows[i].HasSource() && !IsRowSkipped(rows[i], run.project) &&
            !EqualIgnoreCase(rows[i][Filename], ExtractFilename(rows[i][Source]));
        if (isRenamed)
            return GoOn(run, "Filen har bytt namn",
                        RowLabel(i, rows[i]) + " har källsökvägen '" + rows[i][Source] +
                            "'. Installationsprogrammet letar på mediet efter filen under radens "
                            "namn, så filen måste läggas dit under det namnet.");
    }
    return Check::Passed;
}

} // namespace quillon
