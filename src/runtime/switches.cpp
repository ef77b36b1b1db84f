#include "runtime/switches.h"

#include "helpers/windows_path.h"
#include "runtime/switch_words.h"

#include <cctype>
#include <utility>

namespace quillon {

namespace {

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
        return IsAbsolutePath(*value) && IsAbsolutePath(switches.destination);
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

Text WithoutQuotes(std::string_view word)
{
    return ReplaceAll(word, "\"", "");
}

void ReadSwitch(Switches& switches, const Text& given)
{
    const Text word = WithoutQuotes(given);
    const std::size_t equals = word.find('=');
    const auto value = equals == Text::npos ? std::nullopt : std::optional(word.substr(equals + 1));
    if (!ApplySwitch(switches, word.substr(0, equals), value) && !switches.badSwitch)
        switches.badSwitch = given;
}

} // namespace

bool IsAbsolutePath(std::string_view path)
{
    if (path.size() >= 3 && path[1] == ':' && path[2] == '\\')
        return std::isalpha(static_cast<unsigned char>(path[0])) != 0;
    return path.size() > 2 && path.substr(0, 2) == "\\\\" && path[2] != '\\';
}

Switches ReadSwitches(std::string_view commandLine)
{
    Switches switches;
    const Text line(commandLine);
    for (const char* at = SkipSwitchBlanks(line.c_str()); *at != 0; at = SkipSwitchBlanks(at)) {
        const char* const end = EndOfSwitch(at);
        ReadSwitch(switches, Text(at, end));
        at = end;
    }
    return switches;
}

UninstallerCommand ReadUninstallerCommand(std::string_view commandLine)
{
    UninstallerCommand command;
    const Text line(commandLine);
    const char* const first = SkipSwitchBlanks(line.c_str());
    const char* rest = first;
    const Text word = WithoutQuotes(Text(first, EndOfSwitch(first)));
    if (!word.empty() && word[0] != '/') {
        command.logPath = word;
        rest = EndOfSwitch(first);
    }
    command.switches = ReadSwitches(rest);
    // One that was asked for a test must not remove anything.
    for (const auto& [name, mode] : kTestModes)
        if (command.switches.testMode == mode && !command.switches.badSwitch)
            command.switches.badSwitch = Text(name);
    return command;
}

} // namespace quillon
