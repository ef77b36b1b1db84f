#include "tools/project_list.h"

#include "filelist/view/totals.h"
#include "formats/package_files.h"
#include "helpers/date_text.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "ini/profile_reader.h"
#include "ini/profile_writer.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"
#include "project/project_title.h"
#include "project/unicode_value.h"

#include <algorithm>
#include <limits>
#include <set>

namespace quillon {

namespace {

constexpr const char* kSection = "ProjectManager";
constexpr const char* kCountKey = "ProjectFiles";
constexpr int kMaxTextLength = 5000; // the largest buffer that the profile reader has

Text EntryKey(std::size_t number)
{
    return "PF" + NumberText(static_cast<std::int64_t>(number));
}

Text MediumName(std::int64_t targetMedia)
{
    switch (Medium(targetMedia)) {
    case Medium::Floppy:
        return "Diskett";
    case Medium::Internet:
        return "Internet";
    default:
        return "CD/DVD";
    }
}

Text Megabytes(double kilobytes, char decimalSign)
{
    return FormatNumber(kilobytes / 1024, "0.0", decimalSign);
}

/// A count that no number can hold is ignored: the list then ends at its first empty entry.
std::size_t EntryCount(const ProfileReader& reader)
{
    try {
        return static_cast<std::size_t>(std::max<Long>(reader.ReadIniLong(kCountKey), 0));
    } catch (const RunError&) {
        return std::numeric_limits<std::size_t>::max();
    }
}

std::vector<Text> EntriesOf(ProfileReader& reader)
{
    reader.SetIniSection(kSection);
    std::vector<Text> paths;
    const std::size_t count = EntryCount(reader);
    while (paths.size() < count) {
        const Text onFile = reader.ReadIniString(EntryKey(paths.size() + 1), kMaxTextLength);
        if (onFile.empty())
            break;
        // A damaged entry is one whose file is not there; those after it count.
        const Text path = UnicodeValueFromFile(onFile);
        paths.push_back(path.empty() ? onFile : path);
    }
    return paths;
}

Text ReadText(ProfileReader& reader, const Text& section, const Text& key)
{
    reader.SetIniSection(section);
    return reader.ReadIniString(key, kMaxTextLength);
}

ListedProject Summary(const Host& host, const Text& path)
{
    ProfileReader reader;
    reader.SetIniFile(host.files, path);
    const Text kilobytes = ReadText(reader, "FileListInfo", "TotalSize");
    return {.name = ReadText(reader, "ProjectName", "ProjectName"),
            .medium = MediumName(LeadingNumber(ReadText(reader, "Media", "TargetMedia"))),
            .fileCount = ReadText(reader, "FileListInfo", "Files"),
            .megabytes = Megabytes(static_cast<double>(LeadingNumber(kilobytes)),
                                   host.machine.DecimalSign()),
            .fileName = ProjectTitle(path),
            .date = DateText(host.files.Status(path).modified),
            .path = path};
}

std::vector<Text> PathsOf(const std::vector<ListedProject>& projects)
{
    std::vector<Text> paths;
    for (const ListedProject& project : projects)
        paths.push_back(project.path);
    return paths;
}

// A project has one place in the list, however its path is spelt.
std::set<Text> LowerCased(const std::vector<Text>& paths)
{
    std::set<Text> lower;
    for (const Text& path : paths)
        lower.insert(LowerCase(path));
    return lower;
}

// A folder that is not there may lie on a stick that is out or a share that is offline. Only where
// the folder is there has the file gone from it.
bool MayComeBack(const FileSystem& files, const Text& path)
{
    return files.FileExists(path) ||
           (IsWindowsPath(path) && !files.DirExists(ExtractDirectory(ResolvePath(path))));
}

/// `wanted` with the entries of the list that were not shown and may come back, each behind the one
/// that it stood behind.
std::vector<Text> WithAbsent(const FileSystem& files, const ProjectList& read,
                             std::vector<Text> wanted)
{
    const std::set<Text> shown = LowerCased(PathsOf(read.projects));
    std::size_t place = 0;
    for (const Text& path : read.paths) {
        const bool isShown = shown.count(LowerCase(path)) > 0;
        if (place < wanted.size() && EqualIgnoreCase(wanted[place], path))
            ++place;
        else if (!isShown && MayComeBack(files, path))
            wanted.insert(wanted.begin() + static_cast<std::ptrdiff_t>(place++), path);
    }
    return wanted;
}

/// What this program has changed, on top of what the file holds now.
std::vector<Text> Merged(const std::vector<Text>& read, const std::vector<Text>& wanted,
                         const std::vector<Text>& onFile)
{
    const std::set<Text> wasRead = LowerCased(read);
    const std::set<Text> isOnFile = LowerCased(onFile);
    std::set<Text> known;
    std::vector<Text> merged;
    for (const Text& path : wanted) {
        const Text lower = LowerCase(path);
        const bool wasRemovedByOthers = wasRead.count(lower) > 0 && isOnFile.count(lower) == 0;
        if (!wasRemovedByOthers && known.insert(lower).second)
            merged.push_back(path);
    }
    for (const Text& path : onFile) {
        const Text lower = LowerCase(path);
        const bool wasAddedByOthers = wasRead.count(lower) == 0;
        if (wasAddedByOthers && known.insert(lower).second)
            merged.push_back(path);
    }
    return merged;
}

void SetEntries(std::string& bytes, const std::vector<Text>& paths)
{
    SetProfileValue(bytes, kSection, kCountKey,
                    NumberText(static_cast<std::int64_t>(paths.size())));
    for (std::size_t i = 0; i < paths.size(); ++i)
        SetProfileValue(bytes, kSection, EntryKey(i + 1),
                        UnicodeValueOnFile(paths[i], kMaxTextLength));
}

} // namespace

ProjectList ReadProjectList(const Host& host, const Text& settingsFile)
{
    ProfileReader reader;
    reader.SetIniFile(host.files, settingsFile);
    ProjectList list;
    list.paths = EntriesOf(reader);
    std::set<Text> known;
    for (const Text& path : list.paths)
        if (host.files.FileExists(path) && known.insert(LowerCase(path)).second)
            list.projects.push_back(Summary(host, path));
    return list;
}

void SaveProjectList(FileSystem& files, const Text& settingsFile, const ProjectList& read,
                     const std::vector<ListedProject>& projects)
{
    if (!files.DirCreate(ExtractDirectory(settingsFile)))
        throw RunError(ErrorNumber::kPathNotFound, settingsFile);
    const std::vector<Text> wanted = WithAbsent(files, read, PathsOf(projects));
    const auto lock = LockSavedFile(files, settingsFile, LockWait::UntilFree);
    std::string bytes =
        files.FileExists(settingsFile) ? ReadWholeFile(files, settingsFile) : std::string();
    ProfileReader reader;
    reader.SetIniBytes(bytes);
    SetEntries(bytes, Merged(read.paths, wanted, EntriesOf(reader)));
    SaveWholeFile(files, settingsFile, bytes);
}

std::optional<ListedProject> ListOpenProject(const Project& project, const OpenProjectState& state,
                                             const std::vector<ListedProject>& listed, Host& host,
                                             Ask& ask)
{
    const Text& path = state.ProjectFileName;
    if (path == kUnsavedProjectName) {
        ask.Inform("Info", "Du måste döpa projektfilen (spara) först innan du kan addera den till "
                           "projektlistan!");
        return std::nullopt;
    }
    if (project.ProjectName.ProjectName.empty()) {
        ask.Inform("Info", "Du måste ha skrivit in ett projektnamn innan du kan addera ett projekt "
                           "till projektlistan!");
        return std::nullopt;
    }
    if (UnicodeValueOnFile(path, kMaxTextLength).empty()) {
        ask.Critical("Fel",
                     "Sökvägen till projektfilen kan ej stå i projektlistan. Spara projektet "
                     "under ett annat namn först.");
        return std::nullopt;
    }
    if (std::ranges::any_of(
            listed, [&](const ListedProject& row) { return EqualIgnoreCase(row.path, path); })) {
        ask.Inform("Info", "Projektfilen finns redan i projektlistan!");
        return std::nullopt;
    }
    const char decimalSign = host.machine.DecimalSign();
    const Long kilobytes = GetTotalSizeOfFiles(project.Files, decimalSign, ask);
    return ListedProject{.name = project.ProjectName.ProjectName,
                         .medium = MediumName(project.Media.TargetMedia),
                         .fileCount =
                             NumberText(static_cast<std::int64_t>(project.Files.rows.size())),
                         .megabytes = Megabytes(kilobytes, decimalSign),
                         .fileName = ProjectTitle(path),
                         .date = DateText(host.machine.Now()),
                         .path = path};
}

ProjectVersionData ReadProjectVersionData(const FileSystem& files, const Text& projectFile)
{
    ProfileReader reader;
    reader.SetIniFile(files, projectFile);
    const auto read = [&](const char* key) { return ReadText(reader, "Version", key); };
    return {read("CompanyName"), read("ProductName"), read("Description"), read("ProductVersion"),
            read("Comments")};
}

} // namespace quillon
