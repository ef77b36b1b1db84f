#include "platform/posix/drive_map.h"

#include "helpers/ascii.h"

#include <algorithm>
#include <filesystem>

namespace quillon {

namespace {

char UpperLetter(char letter)
{
    return letter >= 'a' ? static_cast<char>(letter - ('a' - 'A')) : letter;
}

bool IsSeparator(char character)
{
    return character == '\\' || character == '/';
}

/// The names on the way, "." and ".." worked out as Windows does, by the text alone.
std::vector<std::string_view> PartsOf(std::string_view path)
{
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const auto end = std::find_if(path.begin(), path.end(), IsSeparator);
        const std::string_view part = path.substr(0, std::size_t(end - path.begin()));
        path.remove_prefix(std::min(path.size(), part.size() + 1));
        if (part == ".." && !parts.empty())
            parts.pop_back();
        else if (!part.empty() && part != "." && part != "..")
            parts.push_back(part);
    }
    return parts;
}

std::string WithoutLastSlash(std::string path)
{
    while (!path.empty() && path.back() == '/')
        path.pop_back();
    return path;
}

/// Absolute, without "." and "..". Where it has a "..", links are followed first, since the
/// folder above a link's target is not the one above the link.
std::string PlainHostPath(const std::string& path)
{
    std::error_code failed;
    const std::filesystem::path absolute = std::filesystem::absolute(path, failed);
    const bool climbs = std::find(absolute.begin(), absolute.end(), "..") != absolute.end();
    const std::filesystem::path followed =
        climbs ? std::filesystem::weakly_canonical(absolute, failed) : absolute;
    return WithoutLastSlash((failed ? absolute : followed).lexically_normal().string());
}

/// Whether these names begin with those of the folder, without regard to case.
bool BeginsWith(const std::vector<std::string_view>& path,
                const std::vector<std::string_view>& folder)
{
    return folder.size() <= path.size() &&
           std::equal(folder.begin(), folder.end(), path.begin(),
                      [](std::string_view a, std::string_view b) { return EqualIgnoreCase(a, b); });
}

bool LiesIn(const std::string& path, const std::string& folder)
{
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

} // namespace

DriveMap::DriveMap(std::vector<MappedDrive> drives, std::vector<MappedFolder> folders)
    : drives_(std::move(drives)), folders_(std::move(folders)),
      names_(std::make_unique<NameLookup>())
{
    for (MappedFolder& mapped : folders_)
        mapped.folder = PlainHostPath(mapped.folder);
    for (MappedDrive& drive : drives_) {
        drive.letter = UpperLetter(drive.letter);
        drive.folder = PlainHostPath(drive.folder);
    }
}

std::optional<std::string> DriveMap::FolderOf(char letter) const
{
    const auto found = std::find_if(drives_.begin(), drives_.end(), [&](const MappedDrive& drive) {
        return drive.letter == UpperLetter(letter);
    });
    if (found == drives_.end())
        return std::nullopt;
    return found->folder;
}

std::optional<std::string> DriveMap::ToHost(const Text& windowsPath) const
{
    const bool hasDrive =
        windowsPath.size() >= 2 && IsLetter(windowsPath[0]) && windowsPath[1] == ':';
    const bool isRooted = !windowsPath.empty() && IsSeparator(windowsPath[0]);
    if (windowsPath.empty() || isRooted || windowsPath.find('\0') != Text::npos)
        return std::nullopt;

    std::optional<std::string> root;
    if (hasDrive)
        root = FolderOf(windowsPath[0]);
    else
        root = PlainHostPath(".");
    if (!root)
        return std::nullopt;

    std::vector<std::string_view> parts =
        PartsOf(std::string_view(windowsPath).substr(hasDrive ? 2 : 0));
    if (const MappedFolder* mapped = hasDrive ? FolderAbove(windowsPath) : nullptr) {
        root = mapped->folder;
        const auto above = PartsOf(std::string_view(mapped->path).substr(2)).size();
        parts.erase(parts.begin(), parts.begin() + static_cast<std::ptrdiff_t>(above));
    }
    const std::string host = names_->Resolve(*root, parts);
    return host.empty() ? "/" : host;
}

/// The mapped folder that holds a path with a drive most closely; null where there is none.
const MappedFolder* DriveMap::FolderAbove(const Text& windowsPath) const
{
    const auto parts = PartsOf(std::string_view(windowsPath).substr(2));
    const MappedFolder* closest = nullptr;
    for (const MappedFolder& mapped : folders_) {
        const auto names = PartsOf(std::string_view(mapped.path).substr(2));
        if (UpperLetter(windowsPath[0]) == mapped.path[0] && BeginsWith(parts, names) &&
            (!closest || mapped.path.size() > closest->path.size()))
            closest = &mapped;
    }
    return closest;
}

bool DriveMap::IsMappedFolder(const Text& windowsPath) const
{
    return std::any_of(folders_.begin(), folders_.end(), [&](const MappedFolder& mapped) {
        return EqualIgnoreCase(mapped.path, windowsPath);
    });
}

std::optional<Text> DriveMap::ToWindows(const std::string& hostPath) const
{
    const std::string path = PlainHostPath(hostPath);
    if (path.find('\\') != std::string::npos)
        return std::nullopt;
    std::optional<MappedFolder> closest;
    const auto consider = [&](const Text& windows, const std::string& folder) {
        if (LiesIn(path, folder) && (!closest || folder.size() > closest->folder.size()))
            closest = {windows, folder};
    };
    for (const MappedDrive& drive : drives_)
        consider(Text(1, drive.letter) + ":", drive.folder);
    for (const MappedFolder& mapped : folders_)
        consider(mapped.path, mapped.folder);
    if (!closest)
        return std::nullopt;

    Text inside = path.substr(closest->folder.size());
    std::replace(inside.begin(), inside.end(), '/', '\\');
    const bool isDrive = closest->path.size() == 2;
    return closest->path + (isDrive && inside.empty() ? "\\" : inside);
}

} // namespace quillon
