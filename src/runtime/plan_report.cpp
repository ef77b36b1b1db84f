#include "runtime/plan_report.h"

#include "formats/copy_letters.h"
#include "runtime/json_writer.h"
#include "runtime/uninstall_entry.h"

namespace quillon {

namespace {

// In the order of the scopes.
constexpr const char* kScopeNames[] = {"project", "allUsers", "currentUser"};

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

void AddSkipped(JsonWriter& json, const PlanReportInput& input)
{
    json.OpenArray("skipped");
    for (const SkippedPart& part : input.plan.skipped) {
        json.OpenObject();
        json.Add("subject", part.what);
        json.Add("reason", KeyOf(part.reason.message).key);
        json.Add("detail", input.texts(part.reason));
        json.Close();
    }
    json.Close();
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
    json.Add("scope", kScopeNames[static_cast<std::size_t>(plan.scope)]);
    json.Add("mainFolder", plan.mainFolder);
    json.Add("programGroup", plan.programGroup);
    json.Add("bytes", static_cast<std::int64_t>(bytes));
    json.AddFlag("uninstaller", plan.hasUninstaller);
    if (plan.hasUninstaller)
        json.Add("record", plan.installLog);
    AddTexts(json, "folders", plan.folders);
    AddFiles(json, input);
    AddRegistry(json, plan);
    AddIni(json, plan);
    AddTexts(json, "registrations", plan.registerFiles);
    AddShortcuts(json, plan);
    AddSkipped(json, input);
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
