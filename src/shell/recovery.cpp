#include "shell/recovery.h"

#include "filelist/view/sort.h"
#include "formats/digest_text.h"
#include "formats/manifest_line.h"
#include "helpers/windows_path.h"
#include "ini/profile_reader.h"
#include "ini/profile_writer.h"
#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "project/project_title.h"
#include "project/unicode_value.h"
#include "runtime/silent_ask.h"

namespace quillon {

namespace {

constexpr const char* kSection = "Recovery";
constexpr const char* kProjectKey = "Project";
// What was known of the project's file when it was last read or saved: its digest, "none" where
// there was no file, and whether all of it is in the project.
constexpr const char* kContentKey = "Content";
constexpr const char* kNoContent = "none";
constexpr const char* kWholeKey = "Whole";
constexpr int kMaxValueLength = 5000;
// More than the number of programs that run at the same time.
constexpr int kPlaces = 99;

Text RecoveryFolder(const Session& session)
{
    return JoinPath(session.options.OwnFolder, "Recovery");
}

Text PlaceIn(const Text& folder, int number)
{
    return JoinPath(folder, NumberText(number));
}

Text CopyOf(const Text& place)
{
    return place + kProjectFileExtension;
}

Text NameFileOf(const Text& place)
{
    return place + ".ini";
}

std::unique_ptr<FileLock> LockOf(FileSystem& files, const Text& place)
{
    try {
        return files.Lock(place + ".lock", LockWait::None);
    } catch (const RunError&) {
        return nullptr;
    }
}

void RemoveIfThere(FileSystem& files, const Text& path)
{
    RunErrorNumber([&] {
        if (files.FileExists(path))
            files.RemoveFile(path);
    });
}

void RemovePlace(FileSystem& files, const Text& place)
{
    // The copy first: a place whose removal fails half-way must not look like a copy without a
    // name.
    RemoveIfThere(files, CopyOf(place));
    RemoveIfThere(files, NameFileOf(place));
}

Text ProjectNameOf(const FileSystem& files, const Text& place)
{
    ProfileReader reader;
    reader.SetIniFile(files, NameFileOf(place));
    reader.SetIniSection(kSection);
    const Text name = UnicodeValueFromFile(reader.ReadIniString(kProjectKey, kMaxValueLength));
    return name.empty() ? kUnsavedProjectName : name;
}

void WriteKnownFile(FileSystem& files, const Text& place, const KnownFile& known)
{
    WriteProfileValue(files, NameFileOf(place), kSection, kContentKey,
                      known.content ? DigestText(*known.content) : kNoContent);
    WriteProfileValue(files, NameFileOf(place), kSection, kWholeKey, known.isInProject ? "1" : "0");
}

/// The project's file as the program knew it that left the copy, so that saving asks the user if
/// the file was changed since.
KnownFile ReadKnownFile(const FileSystem& files, const Text& place, const Text& project)
{
    ProfileReader reader;
    reader.SetIniFile(files, NameFileOf(place));
    reader.SetIniSection(kSection);
    const Text content = reader.ReadIniString(kContentKey, kMaxValueLength);
    KnownFile known = LookAtFile(files, project);
    if (content == kNoContent)
        known.content.reset();
    else if (content.size() == kDigestDigits)
        known.content = DigestOfDigits(content);
    known.isInProject = reader.ReadIniString(kWholeKey, kMaxValueLength) != "0";
    return known;
}

Answer AskAboutCopy(Session& session, const Text& place, const Text& project)
{
    const LocalTime kept = session.host.files.Status(CopyOf(place)).modified;
    return session.ask.YesNoCancel(
        "Återskapa projekt", "Quillon avslutades utan att '" + project +
                                 "' sparades. Ändringarna till och med " + DateText(kept) + " kl " +
                                 TimeText(kept) +
                                 " finns kvar. Vill du öppna dem? Nej tar bort dem för gott.");
}

/// Whether all of the copy is in the project.
bool OpenCopy(Session& session, MainWindow& window, const Text& place, const Text& project)
{
    ResetToNewProject(session.project, session.state, session.options.ToolFolder);
    const ReadEnd end = ReadProjectFile(session.project, CopyOf(place), session.host, session.ask,
                                        session.options.ToolFolder);
    KeepStoredOrder(session.project.Files);
    session.state.ProjectFileName = project;
    session.state.ProjectIsDirty = kOn;
    session.knownFile = ReadKnownFile(session.host.files, place, project);
    window.ShowProject();
    window.SelectTab(Tab::Files);
    return end == ReadEnd::Whole;
}

} // namespace

RecoveryCopy::RecoveryCopy(Session& session) : session_(session)
{
    FileSystem& files = session.host.files;
    const Text folder = RecoveryFolder(session);
    if (!files.DirCreate(folder))
        return;
    for (int number = 1; number <= kPlaces; ++number) {
        const Text place = PlaceIn(folder, number);
        auto lock = LockOf(files, place);
        if (!lock || files.FileExists(CopyOf(place)))
            continue;
        lock_ = std::move(lock);
        path_ = place;
        return;
    }
}

bool RecoveryCopy::Keep()
{
    if (!lock_)
        return false;
    SilentAsk nobody; // no question may come up for a copy
    // Writing fills an empty program group, which is the user's to save.
    const Text group = session_.project.ProgramGroup.ProgramGroup;
    const bool isWritten =
        RunErrorNumber([&] {
            WriteProfileValue(session_.host.files, NameFileOf(path_), kSection, kProjectKey,
                              UnicodeValueOnFile(session_.state.ProjectFileName, kMaxValueLength));
            WriteKnownFile(session_.host.files, path_, session_.knownFile);
            WriteProjectFile(session_.project, CopyOf(path_), session_.host, nobody);
        }) == 0;
    session_.project.ProgramGroup.ProgramGroup = group;
    isKept_ = isKept_ || isWritten;
    return isWritten;
}

void RecoveryCopy::Remove()
{
    if (!isKept_)
        return;
    RemovePlace(session_.host.files, path_);
    isKept_ = false;
}

void OfferLeftCopies(Session& session, MainWindow& window, RecoveryCopy& own)
{
    FileSystem& files = session.host.files;
    const Text folder = RecoveryFolder(session);
    for (int number = 1; number <= kPlaces; ++number) {
        const Text place = PlaceIn(folder, number);
        if (!files.FileExists(CopyOf(place)))
            continue;
        // Held while the question is shown, so that no other program offers the copy too.
        const auto lock = LockOf(files, place);
        if (!lock)
            continue;
        const Text project = ProjectNameOf(files, place);
        const Answer answer = AskAboutCopy(session, place, project);
        if (answer == Answer::No)
            RemovePlace(files, place);
        if (answer != Answer::Yes)
            continue;
        if (OpenCopy(session, window, place, project) && own.Keep())
            RemovePlace(files, place);
        return;
    }
}

} // namespace quillon
