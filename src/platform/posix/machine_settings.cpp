#include "platform/posix/machine_settings.h"

#include "helpers/ascii.h"
#include "platform/posix/environment.h"
#include "platform/posix/user_directories.h"

#include <algorithm>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace quillon {

namespace {

std::vector<std::string> SplitList(std::string_view list)
{
    std::vector<std::string> entries;
    while (!list.empty()) {
        const std::size_t end = list.find(';');
        if (end != 0)
            entries.emplace_back(list.substr(0, end));
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
    return entries;
}

/// The folder for a user's data, by the desktop's convention.
std::string DataFolder()
{
    const std::string named = EnvironmentVariable("XDG_DATA_HOME");
    if (named.starts_with("/"))
        return named;
    const std::string home = EnvironmentVariable("HOME");
    return (home.empty() ? EnvironmentVariable("TMPDIR") : home) + "/.local/share";
}

/// The same for what programs remember of their user. Empty where there is no home.
std::string ConfigFolder()
{
    const std::string named = EnvironmentVariable("XDG_CONFIG_HOME");
    if (named.starts_with("/"))
        return named;
    const std::string home = EnvironmentVariable("HOME");
    return home.empty() ? std::string() : home + "/.config";
}

std::string SettingsFolder()
{
    const std::string folder = ConfigFolder();
    return folder.empty() ? folder : folder + "/quillon";
}

/// The folder that the desktop has for documents and the like. Empty where the user wants none,
/// which the desktop says by naming the home folder.
std::string UserDirectory(const std::string& kind, const std::string& usualName)
{
    const std::string home = EnvironmentVariable("HOME");
    const std::string found =
        FindUserDirectory(ConfigFolder() + "/user-dirs.dirs", "XDG_" + kind + "_DIR", home)
            .value_or(home + "/" + usualName);
    const auto plain = [](const std::string& folder) {
        return std::filesystem::path(folder + "/").lexically_normal();
    };
    return plain(found) == plain(home) ? std::string() : found;
}

/// Whether a folder of drive C: has files in it, from a time when it lay there. They stay in sight.
bool HoldsFiles(const std::string& driveC, const Text& path)
{
    std::string inside = path.substr(2);
    std::ranges::replace(inside, '\\', '/');
    std::error_code unreadable;
    for (std::filesystem::recursive_directory_iterator entry(driveC + inside, unreadable), end;
         !unreadable && entry != end; entry.increment(unreadable))
        if (!entry->is_directory(unreadable))
            return true;
    return false;
}

std::string FolderOfDriveC()
{
    const std::string named = EnvironmentVariable("QUILLON_DRIVE_C");
    return named.empty() ? DataFolder() + "/quillon/drive_c" : named;
}

// The user's own folders are in drive C: as Windows has them. A drive that the user has named is
// taken as it is.
void MapFoldersOfUser(MachineSettings& settings)
{
    if (EnvironmentVariable("HOME").empty() || !EnvironmentVariable("QUILLON_DRIVE_C").empty())
        return;
    const Text user = "C:\\Users\\" + settings.user;
    std::vector<MappedFolder> folders{{kOwnDocuments, UserDirectory("DOCUMENTS", "Documents")}};
    if (!settings.user.empty())
        folders.insert(folders.end(), {{user + "\\Desktop", UserDirectory("DESKTOP", "Desktop")},
                                       {user + "\\AppData\\Roaming", ConfigFolder()},
                                       {user + "\\AppData\\Local", DataFolder()},
                                       {user + "\\AppData\\Roaming\\Microsoft\\Windows\\Templates",
                                        UserDirectory("TEMPLATES", "Templates")}});
    for (MappedFolder& mapped : folders)
        if (!mapped.folder.empty() && !HoldsFiles(FolderOfDriveC(), mapped.path))
            settings.folders.push_back(std::move(mapped));
}

void ReadUser(MachineSettings& settings)
{
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> buffer(16384);
    getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found);
    if (!found)
        return;
    settings.user = found->pw_name;
    settings.fullName = found->pw_gecos ? found->pw_gecos : "";
    // Room numbers and telephones follow the name.
    settings.fullName.resize(std::min(settings.fullName.find(','), settings.fullName.size()));
}

} // namespace

void AddDrives(std::string_view list, MachineSettings& settings)
{
    for (const std::string& entry : SplitList(list)) {
        const bool isDrive = entry.size() > 2 && entry[1] == '=' && IsLetter(entry[0]);
        const bool isTaken =
            isDrive && std::string_view("CcZz").find(entry[0]) != std::string_view::npos;
        if (!isDrive)
            settings.complaints.push_back(
                "QUILLON_DRIVES: '" + entry +
                "' är ingen enhet; skriv en bokstav, '=' och en katalog.");
        else if (isTaken)
            settings.complaints.push_back("QUILLON_DRIVES: '" + entry +
                                          "' går ej: C: anges med QUILLON_DRIVE_C, Z: är /.");
        else
            settings.drives.push_back({entry[0], entry.substr(2)});
    }
}

MachineSettings ReadMachineSettings()
{
    MachineSettings settings;
    settings.drives = {{'Z', "/"}, {'C', FolderOfDriveC()}};
    AddDrives(EnvironmentVariable("QUILLON_DRIVES"), settings);
    settings.registryFiles = SplitList(EnvironmentVariable("QUILLON_REGISTRY"));
    if (const std::string temp = EnvironmentVariable("TMPDIR"); !temp.empty())
        settings.tempFolder = temp;
    settings.settingsFolder = SettingsFolder();
    settings.dataFolder = DataFolder() + "/quillon";
    ReadUser(settings);
    MapFoldersOfUser(settings);
    return settings;
}

} // namespace quillon
