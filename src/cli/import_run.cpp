#include "cli/import_run.h"

#include "cli/box_json.h"
#include "filelist/options/icon_row.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

Text LinesOf(const FileList& files, const std::vector<std::size_t>& added,
             const ImportResult& result)
{
    Text lines;
    for (const std::size_t row : added)
        lines += files.rows[row][Filename] + " -> " + files.rows[row][Destination] + "\n";
    for (const NotAddedFile& file : result.notAdded)
        lines += "Ej adderad: " + file.file + " (" + file.Reason() + ")\n";
    return lines + "Adderade filer: " + CountText(added.size()) +
           ", ej adderade: " + CountText(result.notAdded.size()) + "\n";
}

} // namespace

ImportRun::ImportRun(const CallContext& context)
    : edit(context, context.PathOperand(0)), context_(context)
{
    edit.ask.prepared.destination = context.arguments.Value("--to");
}

ImportWork ImportRun::Work()
{
    return {.list = edit.Work(),
            .user = *this,
            .toolFolder = context_.toolFolder,
            .ownFolder = context_.ownFolder,
            .isDryRun = context_.arguments.Has("--dry-run")};
}

ImportData ImportRun::Data()
{
    return ReadImportData(context_.host.files, context_.toolFolder, context_.ownFolder, edit.ask);
}

std::optional<Text> ImportRun::ChooseProgramDestination(const ProgramQuestion& question)
{
    return edit.ask.ChooseDestination(question.destination);
}

bool ImportRun::EditIcon(FileListRow& row, const Text&)
{
    const auto title = context_.arguments.Value("--icon");
    if (!title)
        return false;
    const Text place = context_.arguments.Value("--icon-on").value_or("group");
    RowIcon icon = IconOf(row);
    icon.isAdded = kOn;
    icon.description = *title;
    icon.places = {.onDesktop = place == "desktop",
                   .onStartMenu = place == "start",
                   .onProgramMenu = place == "programs"};
    SetIcon(row, std::move(icon));
    return true;
}

// Ends the call with the box of a check that refused, or with the answer that ended the import.
void ImportRun::RequireFinished(ImportEnd end)
{
    if (end == ImportEnd::Refused && !edit.ask.boxes.empty())
        throw CallFailure{edit.ask.boxes.back().text + " Inget är sparat.", Exit::Stopped};
    if (end != ImportEnd::Done)
        edit.ask.EndCall();
}

Json ImportRun::MissedJson(const ImportResult& result) const
{
    Json missed = Json::array();
    for (const NotAddedFile& file : result.notAdded)
        missed.push_back({{"file", file.file}, {"reason", file.Reason()}, {"kind", file.Kind()}});
    return missed;
}

Exit ImportRun::Finish(const ImportResult& result, const Text& lines, Json members)
{
    RequireFinished(result.end);
    const std::vector<std::size_t>& added = result.added;
    const Text text = LinesOf(edit.Files(), added, result) + lines;
    const bool isDryRun = context_.arguments.Has("--dry-run");
    const bool isRefused = !edit.ask.refusals.empty() && !context_.arguments.Has("--continue");
    members["added"] = RowsJson(edit.Files(), added);
    members["missed"] = MissedJson(result);
    members["refused"] = edit.ask.refusals;
    members["dryRun"] = isDryRun;
    if (!isDryRun && !isRefused)
        return edit.Save(text, std::move(members));

    const Exit exit = isRefused ? Exit::Stopped : Exit::Done;
    if (isRefused)
        context_.err << edit.ask.refusals.front() << " Inget är sparat.\n";
    if (!context_.WantsJson()) {
        context_.out << text << "Inget är sparat.\n";
        return exit;
    }
    if (isRefused)
        members["error"] = edit.ask.refusals.front() + " Inget är sparat.";
    members["boxes"] = BoxesJson(edit.ask);
    return context_.PrintJson(std::move(members), exit);
}

} // namespace quillon::cli
