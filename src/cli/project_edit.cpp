#include "cli/project_edit.h"

#include "cli/box_json.h"
#include "cli/open_project.h"
#include "cli/project_json.h"
#include "filelist/sort.h"
#include "helpers/ansi_text.h"
#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"
#include "project/project_file.h"

#include <array>
#include <ostream>

namespace quillon::cli {

namespace {

constexpr const char* kNothingSaved = " Inget är sparat.";

Text ValueText(const Json& value)
{
    return value.is_string() ? value.get<Text>() : value.dump();
}

void DemandSameValue(const Text& name, const Json& wanted, const Json& before, const Json& again)
{
    if (wanted == before || wanted == again)
        return;
    throw CallFailure{"Värdet av " + name +
                          " kan ej lagras i projektfilen som det är: det skulle läsas som '" +
                          ValueText(again) + "'." + kNothingSaved,
                      Exit::Stopped};
}

// The project as it is read next time must have what the call has changed.
void DemandSameSettings(const Json& wanted, const Json& before, const Json& again)
{
    for (const auto& [section, keys] : wanted.items()) {
        if (!keys.is_object()) {
            DemandSameValue(section, keys, before[section], again[section]);
            continue;
        }
        for (const auto& [key, value] : keys.items())
            DemandSameValue(Text(section).append(".").append(key), value,
                            before[section].value(key, Json()), again[section].value(key, Json()));
    }
}

void DemandSameRows(const std::vector<FileListRow>& wanted, const std::vector<FileListRow>& again)
{
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (i >= again.size() || wanted[i] != again[i])
            throw CallFailure{"Raden " + NumberText(static_cast<std::int64_t>(i) + 1) + " ('" +
                                  wanted[i][Filename] + "', '" + wanted[i][Destination] +
                                  "') har tecken som inte kan lagras i projektfilen." +
                                  kNothingSaved,
                              Exit::Stopped};
}

// A file whose rows stand in an order of their own keeps it: a call that changes nothing else must
// not move them. Its duplicates are looked for in the whole list, as in one that nothing sorts.
void KeepOrderOfTheFile(FileList& files)
{
    FileList ordered = files;
    SortRows(ordered);
    if (ordered.rows == files.rows)
        return;
    files.sorted = false;
    files.sortKey = Destination;
}

} // namespace

ProjectEdit::ProjectEdit(const CallContext& context, const Text& path, Begin begin)
    : ask(context.err, context.arguments.Has("--continue") ? ConsoleAsk::Answers::ThatGoOn
                                                           : ConsoleAsk::Answers::ThatStop),
      session(NewSession(context.host, ask, context.toolFolder)), context_(context), path_(path),
      isNew_(begin == Begin::WithANewProject)
{
    // Where it fails, so does the reading or the saving, which have more to tell.
    RunErrorNumber([&] { Lock(); });
    if (!isNew_) {
        if (OpenProject(session, path) == Opened::InPart)
            throw CallFailure{PartlyReadText(path) + kNothingSaved, Exit::Unreadable};
    } else if (context.host.files.FileExists(path) || context.host.files.DirExists(path)) {
        throw CallFailure{"'" + path + "' finns redan." + kNothingSaved, Exit::Stopped};
    }
    if (!isNew_)
        bytesBefore_ = ReadWholeFile(context.host.files, path);
    // What was told while opening is no fault of the work that follows.
    ask.refusals.clear();
    KeepOrderOfTheFile(Files());
    settingsBefore_ = SettingsJson(session.project);
    rowsBefore_ = Files().rows;
}

void ProjectEdit::DemandNothingRefused() const
{
    if (!ask.refusals.empty() && !context_.arguments.Has("--continue"))
        throw CallFailure{ask.refusals.front() + kNothingSaved, Exit::Stopped};
}

Exit ProjectEdit::Save(const Text& lines, Json members)
{
    DemandNothingRefused();
    const bool changed = HasChanged();
    if (changed)
        Write();
    if (!context_.WantsJson()) {
        context_.out << lines << (changed ? "" : "Projektet är oförändrat.\n");
        return Exit::Done;
    }
    Json object = {{"project", path_}, {"changed", changed}, {"files", Files().rows.size()}};
    object.update(members);
    object["boxes"] = BoxesJson(ask);
    return context_.PrintJson(std::move(object), Exit::Done);
}

bool ProjectEdit::HasChanged()
{
    return isNew_ || Files().rows != rowsBefore_ ||
           SettingsJson(session.project) != settingsBefore_;
}

// A call that only looks may do so in a folder that it can't write to; one that saves can't go on
// without the lock.
void ProjectEdit::Lock()
{
    FileSystem& files = context_.host.files;
    lock_ = LockSavedFile(files, path_, LockWait::None);
    if (lock_)
        return;
    context_.err << "'" << path_ << "' ändras av ett annat program; väntar.\n" << std::flush;
    lock_ = LockSavedFile(files, path_, LockWait::UntilFree);
}

void ProjectEdit::Write()
{
    try {
        if (!lock_)
            Lock();
        WriteAndLookAt();
    } catch (const RunError& error) {
        throw CallFailure{FailureText(RunError(error.Number()), path_) + kNothingSaved,
                          Exit::Stopped};
    }
}

void ProjectEdit::WriteAndLookAt()
{
    DemandRoomForPictures(session.project);
    SavedFile file(context_.host.files, path_);
    WriteProject(session.project, file, session.host, ask);
    DemandSameAgain(file.TemporaryPath());
    DemandNobodyElseSaved();
    file.Commit();
}

void ProjectEdit::DemandSameAgain(const Text& file)
{
    std::ostream nowhere(nullptr);
    ConsoleAsk nobody(nullptr, nowhere);
    Session again = NewSession(session.host, nobody, session.options.ToolFolder);
    ReadProjectFile(again.project, file, session.host, nobody, session.options.ToolFolder);
    DemandSameSettings(SettingsJson(session.project), settingsBefore_, SettingsJson(again.project));
    DemandSameRows(Files().rows, again.project.Files.rows);
}

// The lock keeps out who asks for it; an editor, or a disk that knows no locks, does not.
void ProjectEdit::DemandNobodyElseSaved() const
{
    const FileSystem& files = context_.host.files;
    if (isNew_ ? files.FileExists(path_) : ReadWholeFile(files, path_) != bytesBefore_)
        throw CallFailure{"'" + path_ + "' har under tiden sparats av ett annat program." +
                              kNothingSaved,
                          Exit::Stopped};
}

void DemandReadableFile(const FileSystem& files, const Text& path)
{
    if (files.DirExists(path))
        throw CallFailure{"'" + path + "' är en katalog och ingen fil." + kNothingSaved,
                          Exit::Unreadable};
    try {
        std::array<std::byte, 1> first{};
        files.OpenInput(path)->Read(first);
    } catch (const RunError& error) {
        throw CallFailure{FailureText(error, path) + kNothingSaved, Exit::Unreadable};
    }
}

Json RowsJson(const FileList& files, const std::vector<std::size_t>& rows)
{
    Json objects = Json::array();
    for (const std::size_t number : rows) {
        const FileListRow& row = files.rows[number];
        objects.push_back({{"row", number + 1},
                           {"name", row[Filename]},
                           {"destination", row[Destination]},
                           {"source", row[Source]}});
    }
    return objects;
}

} // namespace quillon::cli
