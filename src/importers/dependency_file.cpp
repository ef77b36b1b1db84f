#include "importers/dependency_file.h"

#include "filelist/adding/use_filter.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

constexpr int kMaxKeys = 1000;
// Gaps in the numbering, all of a section together, after which it counts as ended.
constexpr int kMaxMisses = 15;
constexpr int kValueLimit = 200;
constexpr int kStepsBetweenLooks = 1000;

// Dependency files hold some hundred lines. A larger file is something else under that name.
constexpr std::uint64_t kMaxDepFileSize = std::uint64_t{32} << 20;
constexpr std::size_t kMaxBytesHeld = std::size_t{64} << 20;

Text UsedFile(const ProfileReader& reader, int number)
{
    return reader.ReadIniString("Uses" + NumberText(number), kValueLimit);
}

Text NameOf(const Text& path)
{
    return path.substr(path.rfind('\\') + 1);
}

bool HasDot(const Text& path)
{
    return path.find('.') != Text::npos;
}

Text KeyOf(const Text& path)
{
    return LowerCase(ResolvePath(path));
}

// Folders with the same key give the same files for all values. "C:\A\." and "C:\A" differ: from
// the first one "..\" leads to C:\A, and every path below it has a dot.
Text KeyOfBase(const Text& folder)
{
    const Text above = folder.substr(0, folder.rfind('\\') + 1);
    return KeyOf(folder) + (HasDot(folder) ? "\n.\n" : "\n\n") + KeyOf(above) +
           (HasDot(above) ? "\n." : "\n");
}

} // namespace

Text FolderForNames(const Text& path)
{
    // The tool's own function cuts long paths, and these must stay whole.
    const std::size_t last = path.rfind('\\');
    return last == Text::npos ? Text() : path.substr(0, last);
}

Text ResolveDepPath(std::string_view value, std::string_view baseFolder)
{
    if (value.starts_with("..")) {
        const std::size_t last = baseFolder.rfind('\\');
        if (last == std::string_view::npos)
            return {};
        const std::size_t upwards = FirstCharacters(value, std::string_view("..\\").size()).size();
        return Text(baseFolder.substr(0, last + 1)).append(value.substr(upwards));
    }
    if (value.starts_with('\\'))
        return FirstCharacters(baseFolder, std::string_view("C:").size()).append(value);
    return Text(baseFolder).append("\\").append(value);
}

bool DependencyFiles::AddFilesToFileListViaDepFile(const DepSection& section)
{
    return Walk(section) != Outcome::NothingNamed;
}

DependencyFiles::Outcome DependencyFiles::Walk(const DepSection& section)
{
    Done& done = DoneFor(section);
    const Text name = LowerCase(section.SectionName);
    if (done.walked.contains(name))
        return Outcome::Whole;
    ask_.ShowStatusText("Adderar filer...");
    try {
        // Kept: the walk never ends at its first number, so this box doesn't come up, and a file
        // without the section is passed over silently.
        if (AddFilesOf(section, *ReaderFor(section.DepFile), done) == 1 && !isStopped_) {
            ask_.Inform("Inga filer hittades",
                        "Hittade inga matchande filer i DEP-filen. Kontrollera att du valt rätt "
                        "DEP-fil och binär fil.");
            return Outcome::NothingNamed;
        }
    } catch (const RunError& error) {
        ask_.Critical("Fel", FailureText(error, section.DepFile));
        return Outcome::Failed;
    }
    done.walked.insert(name);
    return Outcome::Whole;
}

void DependencyFiles::AddWithSecondLevel(const DepSection& section)
{
    Done& done = DoneFor(section);
    const Text name = LowerCase(section.SectionName);
    if (done.followed.contains(name))
        return;
    const Outcome outcome = Walk(section);
    if (outcome == Outcome::NothingNamed)
        return;
    if (AddSecondLevelOf(section, *ReaderFor(section.DepFile)) && outcome == Outcome::Whole)
        done.followed.insert(name);
}

// True where none of its walks has failed.
bool DependencyFiles::AddSecondLevelOf(const DepSection& section, ProfileReader& reader)
{
    bool isWhole = true;
    for (int i = 1; i <= kMaxKeys && !isStopped_; ++i) {
        NoteStep(section.DepFile);
        reader.SetIniSection(section.SectionName);
        const Text value = UsedFile(reader, i);
        if (value.empty())
            break;
        const Text path = ResolveDepPath(value, section.BaseFolder);
        // What leads out of its drive names no file.
        if (path.empty())
            continue;
        const Outcome outcome = Walk({.DepFile = ChangeFilenameExt(path, "DEP"),
                                      .SectionName = NameOf(path),
                                      .BaseFolder = FolderForNames(path),
                                      .Destination = section.Destination});
        isWhole = isWhole && outcome != Outcome::Failed;
    }
    return isWhole;
}

void DependencyFiles::FollowActiveXDepFile(const Text& fileName)
{
    if (HasFolder(fileName))
        return;
    const Text systemFolder = host_.machine.GetSystemDir();
    AddWithSecondLevel({.DepFile = systemFolder + "\\" + ChangeFilenameExt(fileName, "DEP"),
                        .SectionName = fileName,
                        .BaseFolder = systemFolder,
                        .Destination = "%SYSDIR"});
}

// The number at which the walk ended.
int DependencyFiles::AddFilesOf(const DepSection& section, ProfileReader& reader, Done& done)
{
    reader.SetIniSection(section.SectionName);
    int misses = 0;
    int number = 1;
    for (; number <= kMaxKeys && !isStopped_; ++number) {
        NoteStep(section.DepFile);
        const Text value = UsedFile(reader, number);
        if (value.empty()) {
            if (++misses > kMaxMisses)
                break;
            continue;
        }
        const Text path = ResolveDepPath(value, section.BaseFolder);
        if (!HasDot(path))
            continue;
        AddFile(value, path, section, done);
        // Kept: after a name without a point the walk goes on in the section that it came to.
        if (AddFilesOfInnerSection(LowerCase(NameOf(value)), section, reader, done) ==
            Walked::ToItsEnd)
            reader.SetIniSection(section.SectionName);
    }
    return number;
}

DependencyFiles::Walked DependencyFiles::AddFilesOfInnerSection(const Text& name,
                                                                const DepSection& origin,
                                                                ProfileReader& reader, Done& done)
{
    reader.SetIniSection(name);
    if (const auto known = done.inner.find(name); known != done.inner.end())
        return known->second;
    const Walked walked = AddFilesOfCurrentSection(origin, reader, done);
    done.inner.emplace(name, walked);
    return walked;
}

DependencyFiles::Walked DependencyFiles::AddFilesOfCurrentSection(const DepSection& origin,
                                                                  const ProfileReader& reader,
                                                                  Done& done)
{
    for (int i = 1; i <= kMaxKeys && !isStopped_; ++i) {
        NoteStep(origin.DepFile);
        const Text value = UsedFile(reader, i);
        if (value.empty())
            break;
        const Text path = ResolveDepPath(value, origin.BaseFolder);
        if (!HasDot(path))
            return Walked::StoppedAtNameWithoutExtension;
        AddFile(value, path, origin, done);
    }
    return Walked::ToItsEnd;
}

void DependencyFiles::AddFile(const Text& value, const Text& path, const DepSection& origin,
                              Done& done)
{
    if (!done.values.insert(value).second)
        return;
    const Text name = LowerCase(NameOf(value));
    if (!tried_.insert({name, KeyOf(path), origin.Destination}).second)
        return;
    AskWatch(name);
    if (!isStopped_)
        AddOrLeaveOut({.FileName = name,
                       .SourcePath = LowerCase(path),
                       .Destination = origin.Destination,
                       .CheckDuplicates = true,
                       .UseVersionRules = true},
                      origin.DepFile);
}

void DependencyFiles::AskWatch(const Text& file)
{
    stepsUnwatched_ = 0;
    isStopped_ = isStopped_ || (watch_ && !watch_->MayGoOn(file));
}

void DependencyFiles::NoteStep(const Text& depFile)
{
    if (++stepsUnwatched_ >= kStepsBetweenLooks)
        AskWatch(ExtractFilename(depFile));
}

void DependencyFiles::AddOrLeaveOut(const FileToAdd& file, const Text& depFile)
{
    try {
        if (!AddFileToFileListView_UseFilter(adding_, host_.machine, file) && watch_)
            watch_->LeftOut(file);
    } catch (const RunError&) {
        if (watch_)
            watch_->Failed(file, depFile);
        throw;
    }
}

DependencyFiles::Done& DependencyFiles::DoneFor(const DepSection& section)
{
    return done_[{KeyOf(section.DepFile), KeyOfBase(section.BaseFolder), section.Destination}];
}

// Shared, since a reader that is at work may leave the table to make room for another. A failure is
// thrown once; afterwards the file counts as empty, like one that is not there.
std::shared_ptr<ProfileReader> DependencyFiles::ReaderFor(const Text& depFile)
{
    const Text path = ResolvePath(depFile);
    const Text key = LowerCase(path);
    if (const auto known = readers_.find(key); known != readers_.end())
        return known->second;
    if (bytesHeld_ > kMaxBytesHeld) {
        readers_.clear();
        bytesHeld_ = 0;
    }
    const auto reader = readers_.emplace(key, std::make_shared<ProfileReader>()).first->second;
    if (!host_.files.FileExists(path))
        return reader;
    if (host_.files.Status(path).size > kMaxDepFileSize) {
        ask_.Critical("Fel", "Filen '" + path + "' är för stor för att vara en DEP-fil.");
        return reader;
    }
    reader->SetIniBytes(ReadWholeFile(host_.files, path));
    bytesHeld_ += reader->Bytes().size();
    return reader;
}

} // namespace quillon
