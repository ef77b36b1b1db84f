#include "platform/posix/drive_map.h"

#include <algorithm>
#include <filesystem>

namespace quillon {

namespace {

bool IsLetter(char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

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

/// Absolute, without "." and "..". Where ".." stands in it, links are followed first, since the
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

bool LiesIn(const std::string& path, const std::string& folder)
{
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

} // namespace

DriveMap::DriveMap(std::vector<MappedDrive> drives)
    : drives_(std::move(drives)), names_(std::make_unique<NameLookup>())
{
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

    const std::string_view path = std::string_view(windowsPath).substr(hasDrive ? 2 : 0);
    const std::string host = names_->Resolve(*root, PartsOf(path));
    return host.empty() ? "/" : host;
}

std::optional<Text> DriveMap::ToWindows(const std::string& hostPath) const
{
    const std::string path = PlainHostPath(hostPath);
    const MappedDrive* closest = nullptr;
    for (const MappedDrive& drive : drives_)
        if (LiesIn(path, drive.folder) &&
            (!closest || drive.folder.size() > closest->folder.size()))
            closest = &drive;
    if (!closest || path.find('\\') != std::string::npos)
        return std::nullopt;

    Text windowsPath = path.substr(closest->folder.size());
    std::replace(windowsPath.begin(), windowsPath.end(), '/', '\\');
    return Text(1, closest->letter) + ":" + (windowsPath.empty() ? "\\" : windowsPath);
}

} // namespace quillon
