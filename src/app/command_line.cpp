#include "app/command_line.h"

#include "helpers/drive_path.h"

namespace quillon {

namespace {

bool IsWindowsPath(const Text& path)
{
    return path.starts_with("\\\\") || IsDrivePath(path);
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
