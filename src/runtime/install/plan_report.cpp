#include "runtime/install/plan_report.h"

#include "formats/copy_letters.h"
#include "runtime/ini_files/startup_files.h"
#include "runtime/install/data_access.h"
#include "runtime/install/old_files.h"
#include "runtime/install/old_shortcuts.h"
#include "runtime/install/uninstall_entry.h"
#include "runtime/log/json_writer.h"
#include "runtime/uninstall_entry_key.h"

#include <set>

namespace quillon {

namespace {

const char* NameOf(InstallScope scope)
{
    switch (scope) {
    case InstallScope::Project:
        return "project";
    case InstallScope::AllUsers:
        return "allUsers";
    case InstallScope::CurrentUser:
        return "currentUser";
    }
    return "";
}

const char* ActionOf(RegistryLine::Kind kind)
{
    switch (kind) {
    case RegistryLine::Kind::Key:
        return "makeKey";
    case RegistryLine::Kind::Delete:
        return "delete";
    case RegistryLine::Kind::Uninstall:
        return "deleteWhenUninstalled";
    default:
        return "write";
    }
}

void AddFiles(JsonWriter& json, const PlanReportInput& input)
{
    json.OpenArray("files");
    for (const PlannedFile& file : input.plan.files) {
        json.OpenObject();
        json.Add("path", file.path);
        json.Add("size", static_cast<std::int64_t>(file.row->size));
        json.AddFlag("exists", input.files.FileExists(file.path));
        if (!file.row->copyOptions.empty())
            json.Add("options", file.row->copyOptions);
        json.Close();
    }
    json.Close();
}

void AddShortcuts(JsonWriter& json, const InstallPlan& plan)
{
    json.OpenArray("shortcuts");
    for (const PlannedShortcut& planned : plan.shortcuts) {
        json.OpenObject();
        json.Add("path", planned.path);
        json.Add("program", planned.shortcut.program);
        if (!planned.shortcut.arguments.empty())
            json.Add("arguments", planned.shortcut.arguments);
        json.Close();
    }
    json.Close();
}

void AddRegistry(JsonWriter& json, const InstallPlan& plan)
{
    json.OpenArray("registry");
    for (const RegistryLine& line : plan.registry) {
        json.OpenObject();
        json.Add("action", ActionOf(line.kind));
        json.Add("key", KeyText(line.key));
        if (line.hasValue)
            json.Add("value", line.valueName);
        json.Close();
    }
    json.Close();
}

void AddIni(JsonWriter& json, const InstallPlan& plan)
{
    json.OpenArray("ini");
    for (const IniLine& line : plan.ini) {
        json.OpenObject();
        json.Add("file", line.file);
        json.Add("section", line.section);
        if (!line.name.empty())
            json.Add("name", line.name);
        json.Close();
    }
    json.Close();
}

void AddTexts(JsonWriter& json, const char* name, const std::vector<Text>& texts)
{
    json.OpenArray(name);
    for (const Text& text : texts)
        json.AddItem(text);
    json.Close();
}

void AddSkipped(JsonWriter& json, const PlanReportInput& input,
                const std::vector<SkippedPart>& skipped)
{
    json.OpenArray("skipped");
    for (const SkippedPart& part : skipped) {
        json.OpenObject();
        json.Add("subject", part.what);
        json.Add("reason", KeyOf(part.reason.message).key);
        json.Add("detail", input.texts(part.reason));
        json.Close();
    }
    json.Close();
}

void AddScript(JsonWriter& json, const char* name, const Text& script)
{
    std::vector<Text> lines;
    for (const Text& line : SplitLines(script))
        if (!TrimBlanks(line).empty())
            lines.push_back(TrimBlanks(line));
    AddTexts(json, name, lines);
}

void AddFonts(JsonWriter& json, const InstallPlan& plan)
{
    std::vector<Text> paths;
    for (const PlannedFile& file : plan.files)
        if (HasOption(file.row->copyOptions, CopyLetter::kFont))
            paths.push_back(file.path);
    AddTexts(json, "fonts", paths);
}

// Lines for systems that read no such files are skipped.
void AddStartupLines(JsonWriter& json, const PlanReportInput& input,
                     std::vector<SkippedPart>& skipped)
{
    const section::Lists& lists = input.setup.project.Lists;
    json.OpenArray("startupLines");
    for (const PlannedStartupLine& planned :
         PlanStartupLines(input.files, input.target, input.variables, lists)) {
        json.OpenObject();
        json.Add("file", planned.path);
        json.Add("line", planned.line);
        json.Close();
    }
    json.Close();
    if (ReadsStartupFiles(input.target))
        return;
    const auto skip = [&](const char* name, const Text& lines) {
        if (!lines.empty())
            skipped.push_back(
                {input.texts(Message::PartStartupLines, name), {Message::SkipNoStartupFiles}});
    };
    skip("AUTOEXEC.BAT", lists.AutoexecBat);
    skip("CONFIG.SYS", lists.ConfigSys);
}

// Programs, and the document, which are started beside copying.
class StartedParts {
public:
    StartedParts(JsonWriter& json, const PlanReportInput& input, std::vector<SkippedPart>& skipped)
        : json_(json), input_(input), skipped_(skipped)
    {
    }
    void AddAll();

private:
    void Add(const char* when, const Text& part, const Text& path, const Text& parameters,
             bool isSkipped);
    void AddAfter(const char* number, const Text& file, const Text& parameters)
    {
        if (!file.empty())
            Add("after", input_.texts(Message::PartProgram, number),
                input_.variables.ExpandPath(file), parameters, input_.silent);
    }

    JsonWriter& json_;
    const PlanReportInput& input_;
    std::vector<SkippedPart>& skipped_;
};

void StartedParts::Add(const char* when, const Text& part, const Text& path, const Text& parameters,
                       bool isSkipped)
{
    if (isSkipped) {
        skipped_.push_back({part, {Message::SkipSilent}});
        return;
    }
    json_.OpenObject();
    json_.Add("when", when);
    json_.Add("path", path);
    if (const Text arguments = TrimBlanks(input_.variables.Expand(parameters)); !arguments.empty())
        json_.Add("arguments", arguments);
    json_.Close();
}

void StartedParts::AddAll()
{
    const Project& project = input_.setup.project;
    const section::RunAppSelfX& first = project.RunAppSelfX;
    json_.OpenArray("programs");
    if (!first.ProgramFilename.empty())
        Add("before", input_.texts[Message::PartFirstProgram], first.ProgramFilename, first.Param,
            input_.silent && first.VisibleWin != kOff);
    if (const PlannedFile* const file = FindDataAccess(input_.plan))
        Add("after", input_.texts(Message::PartDataAccess, file->row->name), file->path, {},
            input_.silent && project.Databases.MDAAskUser != kOff);
    AddAfter("1", project.RunAppAfter.AppFileName1, project.RunAppAfter.AppParam1);
    AddAfter("2", project.RunAppAfter.AppFileName2, project.RunAppAfter.AppParam2);
    const Text& document = project.ShowDocAfter.DocFileName;
    if (!document.empty())
        Add("document", input_.texts[Message::PartDocument], input_.variables.ExpandPath(document),
            {}, input_.silent);
    json_.Close();
}

// What an earlier version has left. What stays of it is skipped.
void AddRemovals(JsonWriter& json, const PlanReportInput& input, std::vector<SkippedPart>& skipped)
{
    const InstallPlan& plan = input.plan;
    std::vector<Text> files;
    std::vector<Text> shortcuts;
    if (input.setup.project.InstallOptions.DeleteProgGroup != kOff) {
        InstallJournal journal;
        if (plan.hasUninstaller)
            journal.TakeOver(
                ReadEarlierJournal(input.files, input.target, plan.installJournal).records);
        shortcuts = OldShortcuts(input.files, input.target, journal, plan);
    }
    const std::set<Text> ofGroup(shortcuts.begin(), shortcuts.end());
    const auto found = plan.hasUninstaller ? PlanOldFiles(input.files, input.target, plan)
                                           : std::vector<OldFile>();
    for (const OldFile& old : found)
        if (ofGroup.count(old.path) > 0)
            continue;
        else if (old.stays)
            skipped.push_back({old.path, *old.stays});
        else
            (IsShortcut(old.path) ? shortcuts : files).push_back(old.path);
    AddTexts(json, "filesRemoved", files);
    AddTexts(json, "shortcutsRemoved", shortcuts);
}

const char* RestartOf(const section::InstallOptions& options)
{
    if (options.NeverRestartWindows != kOff)
        return "never";
    return options.RestartWindows != kOff ? "always" : "ifNeeded";
}

bool IsBelow(const Text& path, const Text& folder)
{
    return LowerCase(path).starts_with(LowerCase(folder) + "\\");
}

} // namespace

Text PlanReport(const PlanReportInput& input)
{
    const InstallPlan& plan = input.plan;
    std::uint64_t bytes = 0;
    for (const PlannedFile& file : plan.files)
        bytes += file.row->size;
    JsonWriter json;
    json.OpenObject();
    json.Add("product", input.setup.project.ProjectName.ProjectName);
    json.Add("version", VersionOf(input.setup));
    json.Add("scope", NameOf(plan.scope));
    json.Add("mainFolder", plan.mainFolder);
    json.Add("programGroup", plan.programGroup);
    json.Add("bytes", static_cast<std::int64_t>(bytes));
    json.AddFlag("uninstaller", plan.hasUninstaller);
    if (plan.hasUninstaller) {
        json.Add("record", plan.installJournal);
        json.Add("entry", KeyText(UninstallEntryKey(input.setup.project.ProjectName.ProjectName,
                                                    plan.scope)));
    }
    json.Add("restart", RestartOf(input.setup.project.InstallOptions));
    AddTexts(json, "folders", plan.folders);
    AddFiles(json, input);
    AddRegistry(json, plan);
    AddIni(json, plan);
    AddTexts(json, "registrations", plan.registerFiles);
    AddFonts(json, plan);
    AddShortcuts(json, plan);
    AddScript(json, "scriptBefore", input.setup.project.Lists.RunScriptBefore);
    AddScript(json, "scriptAfter", input.setup.project.Lists.RunScriptAfter);
    std::vector<SkippedPart> skipped = plan.skipped;
    AddStartupLines(json, input, skipped);
    StartedParts(json, input, skipped).AddAll();
    AddRemovals(json, input, skipped);
    AddSkipped(json, input, skipped);
    json.Close();
    return json.Written() + "\n";
}

Text PartForAllUsers(const InstallPlan& plan, const Machine& machine)
{
    const Text windows = machine.GetWindowsDir();
    for (const PlannedFile& file : plan.files)
        for (const char letter : {CopyLetter::kRegister, CopyLetter::kShared, CopyLetter::kFont})
            if (HasOption(file.row->copyOptions, letter) || IsBelow(file.path, windows))
                return file.path;
    for (const Text& folder : plan.folders)
        if (IsBelow(folder, windows))
            return folder;
    for (const RegistryLine& line : plan.registry)
        if (line.key.root != RegistryRoot::CurrentUser)
            return KeyText(line.key);
    for (const IniLine& line : plan.ini)
        if (IsBelow(line.file, windows))
            return line.file;
    return plan.registerFiles.empty() ? Text() : plan.registerFiles.front();
}

} // namespace quillon
