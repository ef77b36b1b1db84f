#include "runtime/command_line/answer_file.h"

#include "helpers/drive_path.h"
#include "helpers/encoded_text.h"
#include "helpers/number_text.h"
#include "helpers/utf8.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "ini/ini_scanner.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/pages/page_order.h"

#include <algorithm>

namespace quillon {

namespace {

using section::LicenseData;

constexpr std::string_view kSection = "Setup";
constexpr std::uint64_t kMaxSize = 64 * 1024;

struct UserKey {
    const char* key;
    Text LicenseData::*field;
};

constexpr UserKey kUserKeys[] = {
    {"UserName", &LicenseData::UserName},       {"UserCompany", &LicenseData::UserCompany},
    {"UserAddress", &LicenseData::UserAddress}, {"UserPhone", &LicenseData::UserPhone},
    {"UserFax", &LicenseData::UserFax},         {"UserEmail", &LicenseData::Useremail}};

// The scope by the words of its switches.
constexpr std::pair<InstallScope, const char*> kScopes[] = {
    {InstallScope::AllUsers, "ALLUSERS"}, {InstallScope::CurrentUser, "CURRENTUSER"}};

bool TakeScope(Switches& answers, const Text& value)
{
    for (const auto& [scope, word] : kScopes)
        if (EqualIgnoreCase(word, value)) {
            answers.scope = scope;
            return true;
        }
    return value.empty();
}

// "CompDir2" for the second component.
constexpr std::string_view kComponentFolder = "CompDir";

// 0 where the key names the folder of no component.
int ComponentOfKey(std::string_view key)
{
    for (int number = 1; number <= int(kComponentCount); ++number)
        if (EqualIgnoreCase(key, Text(kComponentFolder) + NumberText(number)))
            return number;
    return 0;
}

bool TakeComponentFolder(Switches& answers, int number, const Text& value)
{
    const Text folder = ResolvePath(value);
    answers.componentFolders.emplace_back(number, folder);
    return IsAbsolutePath(value) && FaultOfFolder(folder) == PathFault::None;
}

bool TakeUser(Switches& answers, std::string_view key, const Text& value)
{
    for (const UserKey& one : kUserKeys)
        if (EqualIgnoreCase(one.key, key)) {
            answers.user.emplace_back(one.key, value);
            return true;
        }
    return false;
}

// An unknown key, such as one of a later version, is ignored.
bool TakeAnswer(Switches& answers, const ScannedLine& line)
{
    const Text value(line.value);
    for (const char* key : {"Dir", "Group", "Components", "Lang"})
        if (EqualIgnoreCase(line.name, key))
            return SetSwitch(answers, key, value);
    if (EqualIgnoreCase(line.name, "Scope"))
        return TakeScope(answers, value);
    if (const int number = ComponentOfKey(line.name))
        return TakeComponentFolder(answers, number, value);
    TakeUser(answers, line.name, value);
    return true;
}

// The command line takes precedence.
void Merge(const Switches& answers, Switches& switches)
{
    if (switches.destination.empty())
        switches.destination = answers.destination;
    if (!switches.components)
        switches.components = answers.components;
    if (!switches.programGroup)
        switches.programGroup = answers.programGroup;
    if (switches.languageFile.empty())
        switches.languageFile = answers.languageFile;
    if (switches.scope == InstallScope::Project)
        switches.scope = answers.scope;
    switches.user = answers.user;
    switches.componentFolders = answers.componentFolders;
}

Text ReadAnswers(const FileSystem& files, const Text& path)
{
    if (files.Status(path).size > kMaxSize)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    return DecodedText(ReadWholeFile(files, path));
}

// A name that the switch could not distinguish from others is given as the component's number.
Text NameOfComponent(const SetupInformation& setup, int number)
{
    const Text& name = setup.project.FileComponents[std::size_t(number) - 1].CompName;
    const bool isPlain =
        !name.empty() && TrimBlanks(name) == name && name[0] != '!' && name.find(',') == Text::npos;
    return isPlain ? name : NumberText(number);
}

Text TickedComponents(const SetupInformation& setup)
{
    Text list;
    for (const int number : ComponentsInUse(setup)) {
        const auto& component = setup.project.FileComponents[std::size_t(number) - 1];
        if (component.CompDefault != 0 || component.CompMustAlwaysBeInstalled != 0)
            list += (list.empty() ? "" : ",") + NameOfComponent(setup, number);
    }
    return list;
}

Text OneLine(const Text& text)
{
    Text line = text;
    std::replace_if(
        line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return line;
}

} // namespace

void LoadAnswers(const FileSystem& files, Switches& switches)
{
    if (switches.loadAnswers.empty() || switches.badSwitch)
        return;
    const Text named = "/LOADINF=" + switches.loadAnswers;
    Switches answers;
    Text section;
    const auto read = [&] {
        const Text text = ReadAnswers(files, switches.loadAnswers);
        IniScanner lines(text, kProfileSyntax);
        while (const auto line = lines.Next()) {
            if (line->kind == ScannedLine::Kind::Header)
                section = line->name;
            const bool isAnswer =
                line->kind == ScannedLine::Kind::Value && EqualIgnoreCase(section, kSection);
            if (isAnswer && !TakeAnswer(answers, *line) && !switches.badSwitch)
                switches.badSwitch = named + " (" + Text(line->name) + ")";
        }
    };
    if (RunErrorNumber(read) != ErrorNumber::kNone)
        switches.badSwitch = named;
    Merge(answers, switches);
}

void SaveAnswers(FileSystem& files, const Text& path, const Answers& answers)
{
    const Project& project = answers.setup.project;
    Text text = Text(kUtf8Bom) + // for editors
                "[" + Text(kSection) + "]" + Text(kLineBreak);
    const auto add = [&](const char* key, const Text& value) {
        text += Text(key) + "=" + OneLine(value) + Text(kLineBreak);
    };
    add("Dir", answers.variables.Value(NameOf(VariableMeaning::MainFolder)));
    add("Group", project.ProgramGroup.ProgramGroup);
    if (!ComponentsInUse(answers.setup).empty())
        add("Components", TickedComponents(answers.setup));
    for (int number = 1; number <= int(kComponentCount); ++number)
        if (answers.choices.components[std::size_t(number) - 1].folder)
            add((Text(kComponentFolder) + NumberText(number)).c_str(),
                answers.variables.Value(NameOf(VariableMeaning::ComponentFolder, number)));
    if (!answers.languageFile.empty())
        add("Lang", answers.languageFile);
    for (const auto& [scope, word] : kScopes)
        if (scope == answers.scope)
            add("Scope", word);
    // Names that the user has not chosen are those of the machine, so they are not written for the
    // next one.
    for (const UserKey& one : kUserKeys)
        if (answers.choices.user)
            add(one.key, (*answers.choices.user).*one.field);
    WriteWholeFile(files, path, text);
}

void TakeAnswers(const Switches& switches, const SetupInformation& setup, const Machine& machine,
                 UserChoices& choices)
{
    if (!switches.user.empty())
        choices.user = ProposedUser(setup, machine);
    for (const auto& [key, value] : switches.user)
        for (const UserKey& one : kUserKeys)
            if (EqualIgnoreCase(one.key, key))
                (*choices.user).*one.field = value;
    for (const auto& [number, folder] : switches.componentFolders) {
        const std::size_t at = std::size_t(number) - 1;
        if (setup.project.FileComponents[at].CompCanChangeDir != 0)
            choices.components[at].folder = folder;
    }
}

} // namespace quillon
