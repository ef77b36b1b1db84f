// quillonc new and quillonc set: a project's fields.
#include "cli/calls.h"
#include "cli/field_rules.h"
#include "cli/project_edit.h"
#include "cli/project_field.h"
#include "filelist/main_directory.h"
#include "formats/setup_names.h"

#include <nlohmann/json.hpp>

namespace quillon::cli {

namespace {

// The rules of the main folder's field in the window. No user can correct the value here, so what
// the window only reports ends the call.
void CheckMainFolder(ProjectEdit& edit)
{
    Text& folder = edit.session.project.InstallDirectories.DestinationDirectory;
    folder = CheckMainDirectory(folder, edit.ask);
    edit.RequireNothingRefused();
}

// What Create would refuse; a project that has it already can still be changed elsewhere.
void CheckSetupNames(const Text& starterBefore, const Text& groupBefore, const Project& project)
{
    const Text& starter = project.InstallOptions.SetupName;
    const Text& group = project.ProgramGroup.ProgramGroup;
    Text fault;
    if (starter != starterBefore)
        fault = SetupNameFaultText(starter, project.Language.LanguageFile);
    if (fault.empty() && group != groupBefore)
        fault = ProgramGroupFaultText(group);
    if (!fault.empty())
        throw UsageError{fault};
}

struct Assignment {
    Text field;
    Text value;
};

Assignment AssignmentIn(const Text& argument)
{
    const std::size_t sign = argument.find('=');
    if (sign == Text::npos || sign == 0)
        throw UsageError{"'" + argument + "' saknar formen FÄLT=VÄRDE."};
    return {TrimBlanks(argument.substr(0, sign)), argument.substr(sign + 1)};
}

} // namespace

Exit NewProject(const CallContext& context)
{
    const Text name = context.RequireValue("--name");
    const Text folder = context.RequireValue("--destination");
    const Text path = context.PathOperand(0);
    ProjectEdit edit(context, path, ProjectEdit::Begin::WithANewProject);
    SetField(edit.session.project, "ProjectName.ProjectName", name);
    SetField(edit.session.project, "InstallDirectories.DestinationDirectory", folder);
    CheckMainFolder(edit);
    const Text& checked = edit.session.project.InstallDirectories.DestinationDirectory;
    return edit.Save("Nytt projekt: " + path + "\n", {{"name", name}, {"destination", checked}});
}

Exit SetFields(const CallContext& context)
{
    ProjectEdit edit(context, context.PathOperand(0));
    Project& project = edit.session.project;
    const Text folderBefore = project.InstallDirectories.DestinationDirectory;
    const Text starterBefore = project.InstallOptions.SetupName;
    const Text groupBefore = project.ProgramGroup.ProgramGroup;
    Text lines;
    Json set = Json::object();
    std::vector<Text> fields;
    const auto tell = [&](const Text& field, const Text& value) {
        set[field] = value;
        lines += field + " = " + value + "\n";
    };
    for (std::size_t i = 1; i < context.arguments.operands.size(); ++i) {
        const Assignment assignment = AssignmentIn(context.arguments.operands[i]);
        SetField(project, assignment.field, assignment.value);
        fields.push_back(assignment.field);
        tell(assignment.field, assignment.value);
    }
    for (const auto& [field, value] : ApplyFieldRules(project, fields, edit.ask))
        tell(field, value);
    if (project.InstallDirectories.DestinationDirectory != folderBefore)
        CheckMainFolder(edit);
    CheckSetupNames(starterBefore, groupBefore, project);
    return edit.Save(lines, {{"set", std::move(set)}});
}

} // namespace quillon::cli
