#include "app/command_line.h"

#include "helpers/drive_path.h"

namespace quillon {

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
