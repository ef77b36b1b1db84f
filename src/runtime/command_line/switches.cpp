#include "runtime/command_line/switches.h"

#include "formats/setup_names.h"
#include "formats/test_switches.h"
#include "helpers/drive_path.h"
#include "helpers/number_text.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "runtime/command_line/switch_words.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace quillon {

namespace {

constexpr std::string_view kPassword = "PASSWORD";
constexpr const char* kEllipsis = "\u2026";

constexpr std::pair<std::string_view, TestMode> kTestModes[] = {
    {kTestSwitch, TestMode::Test}, {kPreviewSwitch, TestMode::Preview}};

// A run is either a test or a preview.
bool SetTestMode(Switches& switches, std::string_view name)
{
    for (const auto& [word, mode] : kTestModes)
        if (EqualIgnoreCase(name, word)) {
            const bool isOther = switches.testMode && switches.testMode != mode;
            switches.testMode = switches.testMode.value_or(mode);
            return !isOther && switches.task == SetupTask::Install;
        }
    return false;
}

// Only one task at a time.
bool SetTask(Switches& switches, SetupTask task)
{
    const bool isOther =
        switches.testMode || (switches.task != SetupTask::Install && switches.task != task);
    if (!isOther)
        switches.task = task;
    return !isOther;
}

bool SetScope(Switches& switches, InstallScope scope)
{
    const bool isOther = switches.scope != InstallScope::Project && switches.scope != scope;
    switches.scope = scope;
    return !isOther;
}

bool ShowProgressAlone(Switches& switches)
{
    switches.silent = switches.passive = true;
    return true;
}

// The setup does this in any case, so the switch has no effect.
bool TakeAsGiven(Switches&)
{
    return true;
}

struct PlainSwitch {
    std::string_view name;
    bool (*set)(Switches& switches); // false: it does not go with another one
};

// clang-format off
constexpr PlainSwitch kPlainSwitches[] = {
    {"PASSIVE",          ShowProgressAlone},
    {"QB",               ShowProgressAlone},
    {"NORESTART",        [](Switches& switches) { return switches.noRestart = true; }},
    {"CLOSEAPPLICATIONS",   [](Switches& switches) { switches.closeApplications = CloseApplications::Always; return true; }},
    {"NOCLOSEAPPLICATIONS", [](Switches& switches) { switches.closeApplications = CloseApplications::Never; return true; }},
    // /SP-: suppresses a first question that this setup does not ask.
    {"SP-",              TakeAsGiven},
    {"SUPPRESSMSGBOXES", [](Switches& switches) { return switches.suppressBoxes = true; }},
    {"NOCANCEL",         [](Switches& switches) { switches.canCancel = false; return true; }},
    {"ALLUSERS",         [](Switches& switches) { return SetScope(switches, InstallScope::AllUsers); }},
    {"CURRENTUSER",      [](Switches& switches) { return SetScope(switches, InstallScope::CurrentUser); }},
    {"LOG",              [](Switches& switches) { return switches.hasLog = true; }},
    {"?",                [](Switches& switches) { return SetTask(switches, SetupTask::Help); }},
    {"HELP",             [](Switches& switches) { return SetTask(switches, SetupTask::Help); }},
    {"VERSION",          [](Switches& switches) { return SetTask(switches, SetupTask::Version); }},
    {"UNINSTALL",        [](Switches& switches) { return SetTask(switches, SetupTask::Uninstall); }},
    {"PLAN",             [](Switches& switches) { return SetTask(switches, SetupTask::Plan); }},
};
// clang-format on

struct ValueSwitch {
    std::string_view name;
    bool (*set)(Switches& switches, const Text& value); // false: the value is invalid
};

bool SetDestination(Switches& switches, const Text& value)
{
    // In its plain form, for it becomes a part of every path, and of the record of them.
    switches.destination = ResolvePath(value);
    return IsAbsolutePath(value) && IsAbsolutePath(switches.destination) &&
           FaultOfFolder(switches.destination) == PathFault::None;
}

bool SetLanguage(Switches& switches, const Text& value)
{
    constexpr std::string_view kEnding = ".LNG";
    switches.languageFile = UpperCase(value).ends_with(kEnding) ? value : value + Text(kEnding);
    return !value.empty() && FaultOfName(switches.languageFile) == PathFault::None;
}

bool SetExtraction(Switches& switches, const Text& value)
{
    switches.extractFolder = ResolvePath(value);
    return IsAbsolutePath(value) && FaultOfFolder(switches.extractFolder) == PathFault::None &&
           SetTask(switches, SetupTask::Extract);
}

bool SetPlan(Switches& switches, const Text& value)
{
    switches.planFile = value;
    return !value.empty() && SetTask(switches, SetupTask::Plan);
}

// As large as a process of Windows can end with, and as some that start it take.
bool SetRestartCode(Switches& switches, const Text& value)
{
    constexpr std::int64_t kMaxCode = 65535;
    const std::int64_t code = LeadingNumber(value);
    switches.restartCode = static_cast<ExitCode>(std::clamp<std::int64_t>(code, 0, kMaxCode));
    return code >= 0 && code <= kMaxCode && NumberText(code) == value;
}

bool SetFile(Text& field, const Text& value)
{
    field = value;
    return !value.empty();
}

// clang-format off
constexpr ValueSwitch kValueSwitches[] = {
    {"D",          SetDestination},
    {"DIR",        SetDestination},
    {"INSTALLDIR", SetDestination},
    {"LANG",       SetLanguage},
    {kPassword,    [](Switches& switches, const Text& value) { switches.password = value; return true; }},
    {"COMPONENTS", [](Switches& switches, const Text& value) { switches.components = value; return true; }},
    {"GROUP",      [](Switches& switches, const Text& value) {
         switches.programGroup = value;
         return FaultOfProgramGroup(value) == PathFault::None;
     }},
    {"LOG",        [](Switches& switches, const Text& value) {
         switches.hasLog = true;
         return SetFile(switches.logFile, value);
     }},
    {"LOGJSON",    [](Switches& switches, const Text& value) { return SetFile(switches.jsonLogFile, value); }},
    {"RESULT",     [](Switches& switches, const Text& value) { return SetFile(switches.resultFile, value); }},
    {"LOADINF",    [](Switches& switches, const Text& value) { return SetFile(switches.loadAnswers, value); }},
    {"SAVEINF",    [](Switches& switches, const Text& value) { return SetFile(switches.saveAnswers, value); }},
    {"RESTARTEXITCODE", SetRestartCode},
    {"PLAN",       SetPlan},
    {"EXTRACT",    SetExtraction},
    {kPackageSwitch, [](Switches& switches, const Text& value) { return SetFile(switches.packageFolder, value); }},
};
// clang-format on

bool HasValueSwitch(std::string_view name)
{
    return std::ranges::any_of(
        kValueSwitches, [&](const ValueSwitch& one) { return EqualIgnoreCase(name, one.name); });
}

bool SetPlain(Switches& switches, std::string_view name)
{
    for (const PlainSwitch& plain : kPlainSwitches)
        if (EqualIgnoreCase(name, plain.name))
            return plain.set(switches);
    return SetTestMode(switches, name);
}

// Sets the field that the switch names; false where there is no such switch or its value is
// invalid. `name` has no mark.
bool ApplySwitch(Switches& switches, std::string_view name, const std::optional<Text>& value)
{
    for (const char* word : kSilentWords)
        if (EqualIgnoreCase(name, word)) {
            switches.silent = true;
            return !value;
        }
    return value ? SetSwitch(switches, name, *value) : SetPlain(switches, name);
}

// With its mark.
bool IsPassword(const Text& name)
{
    return !name.empty() && IsSwitchMark(name[0]) && EqualIgnoreCase(name.substr(1), kPassword);
}

// Of what is no switch only a name is shown and logged: whatever follows it may be a password,
// also where its switch is misspelt.
Text ShownName(std::string_view given)
{
    const Text word(given.substr(given.starts_with('"') ? 1 : 0));
    const Text name = word.substr(0, word.find_first_of("=:\" \t"));
    const Text begin = name.substr(0, 1 + kPassword.size());
    return name == word && IsPassword(begin) ? begin : name;
}

// A word that is no switch may be the rest of a password with a blank in it: it is not shown, and
// the switch before it says where it stands.
Text ShownWord(std::string_view given, std::string_view before)
{
    const Text name = ShownName(given);
    const bool hasMark = !name.empty() && IsSwitchMark(name[0]);
    const bool isKnown = name.size() < given.size() && HasValueSwitch(name.substr(hasMark ? 1 : 0));
    const Text nameBefore = ShownName(before);
    if (isKnown || (hasMark && !IsPassword(nameBefore)))
        return name;
    return nameBefore + (before.empty() ? "" : " ") + kEllipsis;
}

void ReadSwitch(Switches& switches, const Text& given, const Text& before)
{
    const Text word = RemoveQuotes(given);
    const std::size_t mark = word.find_first_of("=:");
    const auto value = mark == Text::npos ? std::nullopt : std::optional(word.substr(mark + 1));
    const Text name = word.substr(0, mark);
    const bool hasMark = !name.empty() && IsSwitchMark(name[0]);
    // Written as a property, as for the system's own installer.
    const bool isProperty = EqualIgnoreCase(name, "INSTALLDIR");
    const bool isKnown =
        (hasMark || isProperty) && ApplySwitch(switches, hasMark ? name.substr(1) : name, value);
    if (!isKnown && !switches.badSwitch)
        switches.badSwitch = ShownWord(given, before);
}

} // namespace

bool SetSwitch(Switches& switches, std::string_view name, const Text& value)
{
    for (const ValueSwitch& one : kValueSwitches)
        if (EqualIgnoreCase(name, one.name))
            return one.set(switches, value);
    return false;
}

ExitCode CodeToEndWith(ExitCode code, const Switches& switches)
{
    return code == ExitCode::RestartNeeded ? switches.restartCode : code;
}

Switches ReadSwitches(std::string_view commandLine)
{
    Switches switches;
    const Text line(commandLine);
    Text before;
    for (const char* at = SkipSwitchBlanks(line.c_str()); *at != 0; at = SkipSwitchBlanks(at)) {
        const char* const end = EndOfSwitch(at);
        const Text given(at, end);
        ReadSwitch(switches, given, before);
        before = given;
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
    const Text word = RemoveQuotes(Text(first, EndOfSwitch(first)));
    if (!word.empty() && !IsSwitchMark(word[0])) {
        command.journalPath = word;
        rest = EndOfSwitch(first);
    }
    command.switches = ReadSwitches(rest);
    // An uninstaller that was asked for a test must not remove anything.
    for (const auto& [name, mode] : kTestModes)
        if (command.switches.testMode == mode && !command.switches.badSwitch)
            command.switches.badSwitch = "/" + Text(name);
    // A test makes no plan and unpacks nothing.
    const SetupTask task = command.switches.task;
    if ((task == SetupTask::Plan || task == SetupTask::Extract) && !command.switches.badSwitch)
        command.switches.badSwitch = task == SetupTask::Plan ? "/PLAN" : "/EXTRACT";
    return command;
}

} // namespace quillon
