#include "app/command_line.h"

namespace quillon {

namespace {

bool IsWindowsPath(const Text& path)
{
    const bool isOfNetwork = path.starts_with("\\\\");
    const bool isOfDrive =
        path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/') &&
        ((path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z'));
    return isOfNetwork || isOfDrive;
}

} // namespace

std::optional<Text> ProjectOfCommandLine(std::span<char* const> words, const HostPaths& paths)
{
    Text line;
    for (const char* word : words) {
        if (!line.empty())
            line += ' ';
        line += word;
    }
    if (line.empty() || IsWindowsPath(line))
        return line;
    return paths.toWindows(line);
}

} // namespace quillon
