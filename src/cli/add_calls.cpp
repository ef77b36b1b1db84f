// quillonc add, add-tree, add-folder and add-dep: everything by which rows come into the list.
#include "cli/calls.h"
#include "cli/project_edit.h"
#include "filelist/adding/add_files_command.h"
#include "filelist/adding/add_target.h"
#include "filelist/adding/add_tree_command.h"
#include "filelist/adding/tree_walk.h"
#include "filelist/list_maintenance.h"
#include "filelist/row_text.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "importers/add_dep_file.h"
#include "ini/profile_reader.h"
#include "platform/run_error.h"

#include <nlohmann/json.hpp>
#include <numeric>
#include <unordered_set>

namespace quillon::cli {

namespace {

// As many numbers as a dependency file may leave out.
constexpr int kFirstNumbersLookedAt = 16;

// Everything that a command asks of where its files go.
void PrepareTarget(const CallContext& context, ProjectEdit& edit)
{
    edit.ask.prepared.destination = context.arguments.Value("--to");
    if (!context.arguments.Declares("--component"))
        return;
    const auto number = context.arguments.Value("--component");
    if (!number)
        return;
    if (number->size() != 1 || (*number)[0] < '1' || (*number)[0] > '9')
        throw UsageError{"Växeln --component är ett nummer från 1 till 9."};
    const auto place = static_cast<std::size_t>((*number)[0] - '1');
    if (edit.session.project.FileComponents[place].Comp == 0)
        throw CallFailure{"Projektet har ingen komponent " + *number + ".", Exit::Stopped};
    edit.ask.prepared.componentNr = *number;
}

// Ends the call where a full list is why something failed; no box of the commands says so.
void TellFullList(const ProjectEdit& edit)
{
    if (edit.session.project.Files.rows.size() >= kMaxRows)
        throw CallFailure{FullListText() + " Inget är sparat.", Exit::Stopped};
}

// The rows that were added in addition to those before; `places` says where each is now.
std::vector<std::size_t> NewRows(const std::optional<NewPlaces>& places, std::size_t rowsBefore)
{
    std::vector<std::size_t> rows;
    if (places)
        rows.assign(places->begin() + static_cast<std::ptrdiff_t>(rowsBefore), places->end());
    std::sort(rows.begin(), rows.end());
    return rows;
}

Exit SaveAdded(ProjectEdit& edit, const std::vector<std::size_t>& added,
               std::optional<std::size_t> seen)
{
    Text line = "Adderade filer: " + CountText(added.size());
    Json members = {{"added", RowsJson(edit.Files(), added)}};
    // Kept: a file that is in the list already, or hidden, is passed over silently.
    if (seen) {
        const std::size_t passed = *seen - added.size() - edit.ask.refusals.size();
        line += ", överhoppade (finns redan eller dolda): " + CountText(passed);
        members["passed"] = passed;
    }
    members["refused"] = edit.ask.refusals;
    return edit.Save(line + "\n", std::move(members));
}

// The files that the call names, each once.
std::vector<Text> FileOperands(const CallContext& context)
{
    std::vector<Text> paths;
    std::unordered_set<Text> known;
    for (std::size_t i = 1; i < context.arguments.operands.size(); ++i) {
        const Text path = context.PathOperand(i);
        RequireReadableFile(context.host.files, path);
        if (known.insert(path).second)
            paths.push_back(path);
    }
    return paths;
}

void RequireFolder(const FileSystem& files, const Text& folder)
{
    if (!files.DirExists(folder))
        throw CallFailure{"Katalogen '" + folder + "' finns inte. Inget är sparat.",
                          Exit::Unreadable};
}

TreeToAdd ChooseTreeFrom(const CallContext& context, ProjectEdit& edit)
{
    edit.ask.prepared.folder = context.PathOperand(1);
    RequireFolder(context.host.files, edit.ask.prepared.folder);
    PrepareTarget(context, edit);
    auto tree = ChooseTree(edit.Work());
    if (!tree)
        throw CallFailure{"Kataloger adderas från en hel enhet endast med --continue. Inget är "
                          "sparat.",
                          Exit::Stopped};
    if (context.arguments.Has("--to")) {
        const auto destination = edit.ask.ChooseDestination({});
        if (!destination)
            edit.ask.EndCall();
        tree->BaseDestination = *destination;
    }
    tree->form = context.arguments.Has("--concat") ? TreeForm::WholePath : TreeForm::ReplaceStart;
    tree->CheckDuplicates = !edit.Files().rows.empty();
    return *tree;
}

// A section that names no file is mostly a wrong file; the window passes over it silently.
void RequireSectionWithFiles(const FileSystem& files, const Text& depFile, const Text& binary)
{
    ProfileReader reader;
    reader.SetIniFile(files, depFile);
    const Text section = LowerCase(ExtractFilename(binary));
    reader.SetIniSection(section);
    for (int number = 1; number <= kFirstNumbersLookedAt; ++number)
        if (!reader.ReadIniString("Uses" + NumberText(number), 200).empty())
            return;
    throw CallFailure{"Filen '" + depFile + "' har inget avsnitt [" + section +
                          "] som anger filer. Inget är sparat.",
                      Exit::Stopped};
}

} // namespace

Exit AddFiles(const CallContext& context)
{
    ProjectEdit edit(context, context.PathOperand(0));
    PrepareTarget(context, edit);
    edit.ask.prepared.files = FileOperands(context);
    for (const Text& path : edit.ask.prepared.files)
        if (IsInRoot(path)) {
            RefuseFilesInRoot(edit.ask);
            edit.ask.EndCall();
        }
    const std::size_t rowsBefore = edit.Files().rows.size();
    Text folder;
    const auto places = AddFilesCommand(edit.Work(), folder);
    // The command keeps the folder of files that it got through to the end.
    if (folder.empty()) {
        TellFullList(edit);
        edit.ask.EndCall();
    }
    return SaveAdded(edit, NewRows(places, rowsBefore), edit.ask.prepared.files.size());
}

Exit AddTreeOfFiles(const CallContext& context)
{
    ProjectEdit edit(context, context.PathOperand(0));
    const TreeToAdd tree = ChooseTreeFrom(context, edit);
    const std::size_t rowsBefore = edit.Files().rows.size();
    std::size_t seen = 0;
    FileAdding adding(edit.Files(), edit.session.host, edit.ask);
    try {
        AddTree(adding, context.host.files, tree,
                {.enteredFolder = [] {}, .sawFile = [&] { ++seen; }});
    } catch (const RunError& error) {
        if (error.Number() == ErrorNumber::kOverflow)
            TellFullList(edit);
        throw CallFailure{WalkFailureText(error, tree) + " Inget är sparat.", Exit::Stopped};
    }
    return SaveAdded(edit, NewRows(adding.Finish(), rowsBefore), seen);
}

Exit AddEmptyFolder(const CallContext& context)
{
    const Text& folder = context.arguments.operands[1];
    if (folder.empty())
        throw UsageError{"Destinationen är tom."};
    ProjectEdit edit(context, context.PathOperand(0));
    edit.ask.prepared.line = folder;
    const std::size_t rowsBefore = edit.Files().rows.size();
    const auto places = AddEmptyDirectoryCommand(edit.Work());
    edit.RequireNothingRefused();
    return edit.Save("Adderad katalog: " + folder + "\n",
                     {{"added", RowsJson(edit.Files(), NewRows(places, rowsBefore))}});
}

Exit AddByDepFile(const CallContext& context)
{
    ProjectEdit edit(context, context.PathOperand(0));
    PrepareTarget(context, edit);
    edit.ask.prepared.oneFileEach = {context.PathOperand(1), context.PathOperand(2)};
    for (const Text& file : edit.ask.prepared.oneFileEach)
        RequireReadableFile(context.host.files, file);
    RequireSectionWithFiles(context.host.files, edit.ask.prepared.oneFileEach[0],
                            edit.ask.prepared.oneFileEach[1]);
    Text folder;
    const auto rows = AddDepFileCommand(edit.Work(), folder);
    if (!edit.ask.refusals.empty())
        TellFullList(edit);
    if (!rows)
        edit.ask.EndCall();
    return SaveAdded(edit, rows->added, std::nullopt);
}

} // namespace quillon::cli
