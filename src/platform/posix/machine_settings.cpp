#include "platform/posix/machine_settings.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace quillon {

namespace {

/// Empty where the variable is missing.
std::string Variable(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

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
    const std::string named = Variable("XDG_DATA_HOME");
    if (named.starts_with("/"))
        return named;
    const std::string home = Variable("HOME");
    return (home.empty() ? Variable("TMPDIR") : home) + "/.local/share";
}

/// The folder for what the tool remembers of its user, by the same convention.
std::string SettingsFolder()
{
    const std::string named = Variable("XDG_CONFIG_HOME");
    if (named.starts_with("/"))
        return named + "/quillon";
    const std::string home = Variable("HOME");
    return home.empty() ? std::string() : home + "/.config/quillon";
}

std::string FolderOfDriveC()
{
    const std::string named = Variable("QUILLON_DRIVE_C");
    return named.empty() ? DataFolder() + "/quillon/drive_c" : named;
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
        const bool isDrive = entry.size() > 2 && entry[1] == '=' &&
                             std::isalpha(static_cast<unsigned char>(entry[0])) != 0;
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
    AddDrives(Variable("QUILLON_DRIVES"), settings);
    settings.registryFiles = SplitList(Variable("QUILLON_REGISTRY"));
    if (const std::string temp = Variable("TMPDIR"); !temp.empty())
        settings.tempFolder = temp;
    settings.settingsFolder = SettingsFolder();
    ReadUser(settings);
    return settings;
}

} // namespace quillon
