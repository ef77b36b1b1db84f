#include "helpers/windows_path.h"

#include "helpers/utf8.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr char kBackslash = '\\';

// How many leading parts no ".." takes away: the drive, or the server and its share.
std::size_t PartsOfRoot(const std::vector<std::string_view>& parts, bool isNetwork)
{
    if (isNetwork)
        return 2;
    return !parts.empty() && parts[0].ends_with(':') ? 1 : 0;
}

} // namespace

bool IsDriveRoot(std::string_view path)
{
    return path.size() >= 2 && path.size() <= 3 && path[1] == ':' &&
           (path.size() == 2 || path[2] == kBackslash);
}

Text ExtractFilename(std::string_view path)
{
    const std::size_t last = path.rfind(kBackslash);
    if (last != std::string_view::npos)
        path.remove_prefix(last + 1);
    return FirstCharacters(path, kMaxPathLength);
}

Text ExtractDirectory(std::string_view path)
{
    const std::size_t last = path.rfind(kBackslash);
    if (last == std::string_view::npos)
        return {};
    const std::string_view withBackslash = path.substr(0, last + 1);
    const bool keepsIt = IsDriveRoot(withBackslash);
    return FirstCharacters(keepsIt ? withBackslash : path.substr(0, last), kMaxPathLength);
}

bool HasFolder(std::string_view path)
{
    return path.find_first_of("\\/") != std::string_view::npos;
}

Text ChangeFilenameExt(std::string_view name, std::string_view extension)
{
    const std::size_t nameStart = name.find_last_of(kBackslash);
    const std::size_t dot = name.rfind('.');
    const bool hasDot =
        dot != std::string_view::npos && (nameStart == std::string_view::npos || dot > nameStart);
    Text changed(hasDot ? name.substr(0, dot) : name);
    return FirstCharacters(changed.append(".").append(extension), kMaxPathLength);
}

Text ExtensionFromFirstDot(std::string_view name)
{
    const std::size_t dot = name.find('.');
    return dot == std::string_view::npos ? Text() : Text(name.substr(dot + 1));
}

Text RemoveLastBackslash(std::string_view path)
{
    if (!path.empty() && path.back() == kBackslash)
        path.remove_suffix(1);
    return FirstCharacters(path, kMaxPathLength);
}

Text RemoveDupBackslashesEx(std::string_view path)
{
    Text single;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const bool repeats = i > 1 && path[i] == kBackslash && path[i - 1] == kBackslash;
        if (!repeats)
            single += path[i];
    }
    return FirstCharacters(single, kMaxPathLength);
}

Text JoinPath(std::string_view folder, std::string_view name)
{
    Text path(folder);
    if (!path.empty() && path.back() != kBackslash)
        path += kBackslash;
    return path.append(name);
}

std::vector<Text> PathParts(std::string_view path, std::string_view separators)
{
    std::vector<Text> parts;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(separators), path.size());
        if (end > 0)
            parts.emplace_back(path.substr(0, end));
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return parts;
}

Text ResolvePath(std::string_view path)
{
    const Text backslashed = ReplaceAll(path, "/", "\\");
    std::string_view rest = backslashed;
    std::vector<std::string_view> parts;
    const bool isNetwork = rest.starts_with("\\\\");
    const bool isRooted = rest.starts_with(kBackslash);
    while (!rest.empty()) {
        const std::string_view part = rest.substr(0, rest.find(kBackslash));
        rest.remove_prefix(std::min(part.size() + 1, rest.size()));
        if (part == ".." && parts.size() > PartsOfRoot(parts, isNetwork))
            parts.pop_back();
        if (!part.empty() && part != "." && part != "..")
            parts.push_back(part);
    }
    Text resolved(isNetwork ? "\\\\" : isRooted ? "\\" : "");
    for (std::size_t i = 0; i < parts.size(); ++i)
        resolved.append(i == 0 ? "" : "\\").append(parts[i]);
    const bool isDriveAlone = parts.size() == 1 && parts[0].ends_with(':');
    return isDriveAlone ? resolved + kBackslash : resolved;
}

Text FormatPathForDisplay(std::string_view path)
{
    const Text lower = LowerCase(path);
    Text shown;
    bool startsWord = true;
    for (std::size_t position = 0; position < lower.size();) {
        const std::size_t start = position;
        const char32_t letter = NextCodePoint(lower, position);
        const std::string_view character(lower.data() + start, position - start);
        shown += startsWord ? UpperCase(character) : Text(character);
        startsWord = letter == U'\\';
    }
    return shown;
}

Text PrettyPath(std::string_view path)
{
    return FormatPathForDisplay(path);
}

Text WithoutDrive(std::string_view path)
{
    const std::size_t colon = path.find(':');
    if (colon != std::string_view::npos)
        path.remove_prefix(colon + 1);
    while (!path.empty() && path.front() == kBackslash)
        path.remove_prefix(1);
    return Text(path);
}

} // namespace quillon
