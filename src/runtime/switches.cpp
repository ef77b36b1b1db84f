#include "runtime/switches.h"

#include "formats/setup_names.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "runtime/switch_words.h"

#include <cctype>
#include <utility>

namespace quillon {

namespace {

constexpr std::pair<std::string_view, TestMode> kTestModes[] = {{"TEST", TestMode::Test},
                                                                {"PREVIEW", TestMode::Preview}};

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

struct PlainSwitch {
    std::string_view name;
    void (*set)(Switches& switches);
};

constexpr PlainSwitch kPlainSwitches[] = {
    {"PASSIVE", [](Switches& switches) { switches.silent = switches.passive = true; }},
    {"QB", [](Switches& switches) { switches.silent = switches.passive = true; }},
    // The machine is never started anew without being asked for; tools say so all the same.
    {"NORESTART", [](Switches& switches) { switches.noRestart = true; }},
    {"CLOSEAPPLICATIONS",
     [](Switches& switches) { switches.closeApplications = CloseApplications::Always; }},
    {"NOCLOSEAPPLICATIONS",
     [](Switches& switches) { switches.closeApplications = CloseApplications::Never; }},
};

struct ValueSwitch {
    std::string_view name;
    bool (*set)(Switches& switches, const Text& value); // false: the value is no good
};

bool SetDestination(Switches& switches, const Text& value)
{
    // In its plain form, for it becomes a part of every path, and of the record of them.
    switches.destination = ResolvePath(value);
    return IsAbsolutePath(value) && IsAbsolutePath(switches.destination);
}

bool SetLanguage(Switches& switches, const Text& value)
{
    constexpr std::string_view kEnding = ".LNG";
    switches.languageFile = UpperCase(value).ends_with(kEnding) ? value : value + Text(kEnding);
    return !value.empty() && FaultOfName(switches.languageFile) == PathFault::None;
}

// clang-format off
constexpr ValueSwitch kValueSwitches[] = {
    {"D",          SetDestination},
    {"DIR",        SetDestination},
    {"INSTALLDIR", SetDestination},
    {"LANG",       SetLanguage},
    {"PASSWORD",   [](Switches& switches, const Text& value) { switches.password = value; return true; }},
    {"COMPONENTS", [](Switches& switches, const Text& value) { switches.components = value; return true; }},
    {"GROUP",      [](Switches& switches, const Text& value) {
         switches.programGroup = value;
         return FaultOfProgramGroup(value) == PathFault::None;
     }},
    {"LOG",        [](Switches& switches, const Text& value) { switches.logFile = value; return !value.empty(); }},
    {kPackageSwitch, [](Switches& switches, const Text& value) { switches.packageFolder = value; return !value.empty(); }},
};
// clang-format on

bool SetPlain(Switches& switches, std::string_view name)
{
    for (const PlainSwitch& plain : kPlainSwitches)
        if (EqualIgnoreCase(name, plain.name)) {
            plain.set(switches);
            return true;
        }
    return SetTestMode(switches, name);
}

// Sets the field that the switch names; false where there is no such switch or its value is no
// good. `name` has no mark.
bool ApplySwitch(Switches& switches, std::string_view name, const std::optional<Text>& value)
{
    for (const char* word : kSilentWords)
        if (EqualIgnoreCase(name, word)) {
            switches.silent = true;
            return !value;
        }
    if (!value)
        return SetPlain(switches, name);
    for (const ValueSwitch& one : kValueSwitches)
        if (EqualIgnoreCase(name, one.name))
            return one.set(switches, *value);
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
    const Text name = word.substr(0, equals);
    const bool hasMark = !name.empty() && IsSwitchMark(name[0]);
    // Written as a property, as for the system's own installer.
    const bool isProperty = EqualIgnoreCase(name, "INSTALLDIR");
    const bool isKnown =
        (hasMark || isProperty) && ApplySwitch(switches, hasMark ? name.substr(1) : name, value);
    if (!isKnown && !switches.badSwitch)
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
    if (!word.empty() && !IsSwitchMark(word[0])) {
        command.logPath = word;
        rest = EndOfSwitch(first);
    }
    command.switches = ReadSwitches(rest);
    // One that was asked for a test must not remove anything.
    for (const auto& [name, mode] : kTestModes)
        if (command.switches.testMode == mode && !command.switches.badSwitch)
            command.switches.badSwitch = "/" + Text(name);
    return command;
}

} // namespace quillon
