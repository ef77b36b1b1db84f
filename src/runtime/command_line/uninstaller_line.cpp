#include "runtime/command_line/uninstaller_line.h"

#include "runtime/command_line/switch_words.h"

namespace quillon {

std::optional<StarterLine> ReadStarterLine(const Text& commandLine)
{
    const Text opening = Text("/") + kUninstallerSwitch + "=\"";
    const std::size_t end = commandLine.find('"', opening.size());
    if (!commandLine.starts_with(opening) || end == Text::npos)
        return std::nullopt;
    return StarterLine{commandLine.substr(opening.size(), end - opening.size()),
                       TrimBlanks(commandLine.substr(end + 1))};
}

} // namespace quillon
