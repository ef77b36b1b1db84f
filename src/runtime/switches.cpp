#include "runtime/switches.h"

#include "helpers/windows_path.h"

#include <cctype>
#include <utility>

namespace quillon {

namespace {

// Where the switch that begins at `start` ends. "/D=C:\Program Files\App /S" is understood without
// quotation marks: a folder holds no slash, so its value goes on to the next switch.
std::size_t EndOfSwitch(std::string_view line, std::size_t start)
{
    const bool isFolder = EqualIgnoreCase(line.substr(start, 3), "/D=");
    bool quoted = false;
    for (std::size_t at = start; at < line.size(); ++at) {
        if (line[at] == '"')
            quoted = !quoted;
        const bool blank = !quoted && (line[at] == ' ' || line[at] == '\t');
        const std::size_t next = blank ? line.find_first_not_of(" \t", at) : Text::npos;
        if (blank && (!isFolder || next == Text::npos || line[next] == '/'))
            return at;
    }
    return line.size();
}

constexpr std::pair<std::string_view, TestMode> kTestModes[] = {{"/TEST", TestMode::Test},
                                                                {"/PREVIEW", TestMode::Preview}};

// Nobody can be shown both.
bool SetTestMode(Switches& switches, std::string_view name)
{
    for (const auto& [word, mode] : kTestModes)
        if (EqualIgnoreCase(name, word)) {
            const bool isOther = switches.testMode && switches.testMode != mode;
            switches.testMode = switches.testMode.value_or(mode);
            return !isOther;
        }
    return false;
}

// Sets the field that the switch names; false where there is no such switch or its value is no
// good.
bool ApplySwitch(Switches& switches, std::string_view name, std::optional<Text> value)
{
    if (EqualIgnoreCase(name, "/S")) {
        switches.silent = true;
        return !value;
    }
    if (!value)
        return SetTestMode(switches, name);
    if (EqualIgnoreCase(name, "/PASSWORD")) {
        switches.password = value;
        return true;
    }
    if (EqualIgnoreCase(name, "/D") || EqualIgnoreCase(name, "/DIR")) {
        // In its plain form, for it becomes a part of every path, and of the record of them.
        switches.destination = ResolvePath(*value);
        return IsWholePath(*value);
    }
    if (EqualIgnoreCase(name, "/LOG")) {
        switches.logFile = *value;
        return !value->empty();
    }
    if (EqualIgnoreCase(name, "/PACKAGE")) {
        switches.packageFolder = *value;
        return !value->empty();
    }
    return false;
}

} // namespace

bool IsWholePath(std::string_view path)
{
    if (path.size() >= 3 && path[1] == ':' && path[2] == '\\')
        return std::isalpha(static_cast<unsigned char>(path[0])) != 0;
    return path.size() > 2 && path.substr(0, 2) == "\\\\" && path[2] != '\\';
}

Switches ReadSwitches(std::string_view commandLine)
{
    Switches switches;
    for (std::size_t at = commandLine.find_first_not_of(" \t"); at != Text::npos;) {
        const std::size_t end = EndOfSwitch(commandLine, at);
        const std::string_view given = commandLine.substr(at, end - at);
        const std::size_t equals = given.find('=');
        std::optional<Text> value;
        if (equals != Text::npos)
            value = ReplaceAll(given.substr(equals + 1), "\"", "");
        if (!ApplySwitch(switches, given.substr(0, equals), value) && !switches.badSwitch)
            switches.badSwitch = Text(given);
        at = commandLine.find_first_not_of(" \t", end);
    }
    return switches;
}

Switches ReadUninstallerSwitches(std::string_view commandLine)
{
    Switches switches = ReadSwitches(commandLine);
    for (const auto& [word, mode] : kTestModes)
        if (switches.testMode == mode && !switches.badSwitch)
            switches.badSwitch = Text(word);
    return switches;
}

} // namespace quillon
