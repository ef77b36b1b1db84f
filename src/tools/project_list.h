// The projects that the author has gathered: a list of paths in the tool's settings file, and what
// the project manager shows of each.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "project/records.h"

#include <vector>

namespace quillon {

/// A project of the list. All but the path is a summary of the project's file as it was last saved.
struct ListedProject {
    Text name;
    Text platform = "Win32"; // the only one that setups are made for
    Text medium;
    Text fileCount;
    Text megabytes; // with one decimal
    Text fileName;
    Text date; // "yyyy-mm-dd"
    Text path;
};

/// A column of the list, in the order of the columns. The path's is hidden.
struct ProjectColumn {
    const char* header;
    Text ListedProject::*text;
    enum class Order { Alphabetic, Numeric } order = Order::Alphabetic;
};

// clang-format off
inline constexpr ProjectColumn kProjectColumns[] = {
    {"Namn",         &ListedProject::name},
    {"Plattform",    &ListedProject::platform},
    {"Media",        &ListedProject::medium},
    {"Antal filer",  &ListedProject::fileCount, ProjectColumn::Order::Numeric},
    {"Storlek (MB)", &ListedProject::megabytes, ProjectColumn::Order::Numeric},
    {"Projektfil",   &ListedProject::fileName},
    {"Datum",        &ListedProject::date},
    {"Path",         &ListedProject::path},
};
// clang-format on

/// The list as it was read. `paths` holds every entry of the settings file, `projects` those whose
/// file is there.
struct ProjectList {
    std::vector<Text> paths;
    std::vector<ListedProject> projects;
};

/// Reads the list of a settings file, and the summary of each project from its own file. An entry
/// whose file is gone is passed over; the first empty entry ends the list.
ProjectList ReadProjectList(const Host& host, const Text& settingsFile);

/// Writes `projects` as the list, in their order. An entry of `read` that was passed over is
/// forgotten where its folder is there and its file is not; where the folder is away too, with its
/// drive perhaps, the entry keeps its place behind the one before it. Entries that another program
/// of the tool has added since `read` was read stay, and those that it has removed are gone here as
/// well. Throws `RunError` when the settings file can't be written.
void SaveProjectList(FileSystem& files, const Text& settingsFile, const ProjectList& read,
                     const std::vector<ListedProject>& projects);

/// The row for the open project as it is in memory; nothing, and a message, where it has
/// no file, no name, or is in the list already.
std::optional<ListedProject> ListOpenProject(const Project& project, const OpenProjectState& state,
                                             const std::vector<ListedProject>& listed, Host& host,
                                             Ask& ask);

/// What `PMMoreInfo` shows of a project's file.
struct ProjectVersionData {
    Text CompanyName;
    Text ProductName;
    Text Description;
    Text ProductVersion;
    Text Comments;
};

ProjectVersionData ReadProjectVersionData(const FileSystem& files, const Text& projectFile);

} // namespace quillon
