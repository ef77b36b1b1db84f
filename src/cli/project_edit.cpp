#include "cli/project_edit.h"

#include "actions/unsavable_line.h"
#include "cli/box_json.h"
#include "cli/open_project.h"
#include "cli/project_json.h"
#include "filelist/view/sort.h"
#include "helpers/ansi_text.h"
#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"
#include "project/project_file.h"

#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

constexpr const char* kNothingSaved = " Inget är sparat.";
// In characters. A longer value, such as a whole agreement, is cut in messages.
constexpr std::size_t kMaxShownLength = 60;

Text BeginningOf(const Text& value)
{
    const Text beginning = FirstCharacters(value, kMaxShownLength);
    return beginning == value ? value : beginning + "...";
}

[[noreturn]] void RefuseValue(const Text& name, const Json& wanted, const Json& again)
{
    const Text value = ValueText(wanted);
    const Text read = ValueText(again);
    const Text why =
        read == TrimBlanks(value)
            ? Text("projektfilen ger ej tillbaka blanktecken i början eller slutet av ett värde.")
            : "det skulle läsas som '" + BeginningOf(read) + "'.";
    throw CallFailure{"Värdet av " + name + " kan ej lagras i projektfilen som det är: " + why +
                          kNothingSaved,
                      Exit::Stopped};
}

/// The settings by name; a list's own name where it is one.
template <class Visit>
void EachSetting(const Json& settings, Visit visit)
{
    for (const auto& [section, keys] : settings.items()) {
        if (!keys.is_object()) {
            visit(Text(section), keys, Json::json_pointer("/" + section));
            continue;
        }
        for (const auto& [key, value] : keys.items())
            visit(Text(section).append(".").append(key), value,
                  Json::json_pointer("/" + section + "/" + key));
    }
}

// What the call has changed must be the same when the project is read again.
void RequireChangesAgain(const Json& wanted, const Json& before, const Json& again)
{
    EachSetting(wanted, [&](const Text& name, const Json& value, const Json::json_pointer& place) {
        if (value != before.value(place, Json()) && value != again.value(place, Json()))
            RefuseValue(name, value, again.value(place, Json()));
    });
}

// Everything else must be read as it would have been without the call. `unchanged` is what a file
// gives back to which the project was saved before the call.
void RequireNothingElseChanged(const Json& wanted, const Json& before, const Json& again,
                               const Json& unchanged)
{
    EachSetting(wanted, [&](const Text& name, const Json& value, const Json::json_pointer& place) {
        const Json read = again.value(place, Json());
        if (value == before.value(place, Json()) && read != unchanged.value(place, Json()))
            throw CallFailure{"Värdena kan ej lagras i projektfilen: " + name +
                                  ", som inte skulle ändras, skulle läsas som '" +
                                  BeginningOf(ValueText(read)) + "'." + kNothingSaved,
                              Exit::Stopped};
    });
}

void RequireSameRows(const std::vector<FileListRow>& wanted, const std::vector<FileListRow>& again)
{
    for (std::size_t i = 0; i < wanted.size(); ++i)
        if (i >= again.size() || wanted[i] != again[i])
            throw CallFailure{"Raden " + NumberText(static_cast<std::int64_t>(i) + 1) + " ('" +
                                  wanted[i][Filename] + "', '" + wanted[i][Destination] +
                                  "') har tecken som inte kan lagras i projektfilen." +
                                  kNothingSaved,
                              Exit::Stopped};
}

// Only calls that can leave something out have the switch.
bool MayContinue(const Arguments& arguments)
{
    return arguments.Declares("--continue") && arguments.Has("--continue");
}

} // namespace

ProjectEdit::ProjectEdit(const CallContext& context, const Text& path, Begin begin)
    : ask(context.err, MayContinue(context.arguments) ? ConsoleAsk::Answers::Accept
                                                      : ConsoleAsk::Answers::Decline),
      session(NewSession(context.host, ask, context.toolFolder)), context_(context), path_(path),
      isNew_(begin == Begin::WithANewProject)
{
    // A lock that can't be taken is ignored, since the reading or the saving then fails too, with a
    // better message.
    RunErrorNumber([&] { Lock(); });
    if (!isNew_) {
        if (OpenProject(session, path) == Opened::InPart)
            throw CallFailure{PartlyReadText(path) + kNothingSaved, Exit::Unreadable};
    } else if (context.host.files.FileExists(path) || context.host.files.DirExists(path)) {
        throw CallFailure{"'" + path + "' finns redan." + kNothingSaved, Exit::Stopped};
    }
    if (!isNew_)
        bytesBefore_ = ReadWholeFile(context.host.files, path);
    // The boxes that came up while opening must not end the call.
    ask.refusals.clear();
    KeepStoredOrder(Files());
    settingsBefore_ = SettingsJson(session.project);
    rowsBefore_ = Files().rows;
}

void ProjectEdit::RequireNothingRefused() const
{
    if (!ask.refusals.empty() && !MayContinue(context_.arguments))
        throw CallFailure{ask.refusals.front() + kNothingSaved, Exit::Stopped};
}

Exit ProjectEdit::Save(const Text& lines, Json members)
{
    RequireNothingRefused();
    const bool changed = HasChanged();
    if (changed) {
        if (const auto why = WhyListsCannotBeSaved(session.project.Lists))
            throw CallFailure{*why + kNothingSaved, Exit::Stopped};
        Write();
    }
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
    RequireRoomForPictures(session.project);
    SavedFile file(context_.host.files, path_);
    WriteProject(session.project, file, session.host, ask);
    RequireSameAgain(file.TemporaryPath());
    RequireNobodyElseSaved();
    file.Commit();
}

void ProjectEdit::RequireSameAgain(const Text& file)
{
    Project again = ReadAgain(file);
    const Json wanted = SettingsJson(session.project);
    const Json read = SettingsJson(again);
    RequireChangesAgain(wanted, settingsBefore_, read);
    // Most projects are read as they were saved and need no further comparison.
    if (wanted != read)
        RequireNothingElseChanged(wanted, settingsBefore_, read, SettingsOfUnchangedProject(file));
    RequireSameRows(Files().rows, again.Files.rows);
}

Project ProjectEdit::ReadAgain(const Text& file) const
{
    std::ostream nowhere(nullptr);
    ConsoleAsk nobody(nullptr, nowhere);
    Session again = NewSession(session.host, nobody, session.options.ToolFolder);
    ReadProjectFile(again.project, file, session.host, nobody, session.options.ToolFolder);
    return std::move(again.project);
}

// What would be read if the project had been saved without the call.
Json ProjectEdit::SettingsOfUnchangedProject(const Text& file) const
{
    std::ostream nowhere(nullptr);
    ConsoleAsk nobody(nullptr, nowhere);
    Project unchanged = isNew_
                            ? NewSession(session.host, nobody, session.options.ToolFolder).project
                            : ReadAgain(path_);
    SavedFile saved(session.host.files, file);
    WriteProject(unchanged, saved, session.host, nobody);
    unchanged = ReadAgain(saved.TemporaryPath());
    return SettingsJson(unchanged);
}

// The lock works only among programs that ask for it: an editor does not, and some disks have no
// locks.
void ProjectEdit::RequireNobodyElseSaved() const
{
    const FileSystem& files = context_.host.files;
    if (isNew_ ? files.FileExists(path_) : ReadWholeFile(files, path_) != bytesBefore_)
        throw CallFailure{"'" + path_ + "' har under tiden sparats av ett annat program." +
                              kNothingSaved,
                          Exit::Stopped};
}

void RequireReadableFile(const FileSystem& files, const Text& path)
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
