// Dependency files (.DEP), in which a wizard for setups notes which files a component needs. The
// section of a component names its files under Uses1, Uses2 and so on; each of these may have a
// section there, or a dependency file, of its own.
#pragma once

#include "filelist/adding/add_file.h"
#include "ini/profile_reader.h"

#include <array>
#include <map>
#include <memory>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace quillon {

/// The path that a value means, relative to the component's folder. Kept: of several "..\" only
/// the first is worked out. Empty where ".." leads out of a folder that has no parent.
Text ResolveDepPath(std::string_view value, std::string_view baseFolder);

/// The folder of a component, in the form that `ResolveDepPath` takes: that of a file in a drive's
/// root is the drive alone.
Text FolderForNames(const Text& path);

/// The place in a dependency file that names a component's files.
struct DepSection {
    Text DepFile;
    Text SectionName;
    Text BaseFolder;  // of the component
    Text Destination; // for its files
};

/// Watches a walk through dependency files.
class DependencyWatch {
public:
    virtual ~DependencyWatch() = default;

    /// Called before each file, and from time to time while a walk finds no new one; false ends the
    /// walk.
    virtual bool MayGoOn(const Text& file) = 0;
    /// The file was not added, without a failure: the list may have it already.
    virtual void LeftOut(const FileToAdd& file) = 0;
    /// The file failed, which ends the walk through its section; a box follows.
    virtual void Failed(const FileToAdd& file, const Text& depFile) = 0;
};

/// Follows dependency files for one command, which adds the files through one `FileAdding`.
///
/// Files may name each other, and themselves, in thousands of lines on both levels: walked line by
/// line, a thousand controls would take hours. So each dependency file is read once, each file that
/// one names is tried once, and a section that was walked to its end is not walked again. The rows
/// are those of the plain walk, which would try the rest again and find it in the list. A walk that
/// a failure has ended is none of these: the next one passes over the file that failed, whose row
/// is there, and adds what follows.
class DependencyFiles {
public:
    DependencyFiles(FileAdding& adding, Host host, Ask& ask, DependencyWatch* watch = nullptr)
        : adding_(adding), host_(host), ask_(ask), watch_(watch)
    {
    }
    DependencyFiles(const DependencyFiles&) = delete;
    DependencyFiles& operator=(const DependencyFiles&) = delete;

    /// Adds the files that the section names and those that their own sections in the same file
    /// name. A failure is reported in a message box and ends the section; rows added so far stay.
    /// False where the file was found to name nothing.
    bool AddFilesToFileListViaDepFile(const DepSection& section);

    /// The same, and then for each file of the section the dependency file that is beside it.
    void AddWithSecondLevel(const DepSection& section);

    /// All that a component of the system folder needs, by the dependency file beside it. A name
    /// with a folder is that of no such component, whatever file it may lead to.
    void FollowActiveXDepFile(const Text& fileName);

private:
    enum class Outcome { Whole, Failed, NothingNamed };
    enum class Walked { ToItsEnd, StoppedAtNameWithoutExtension };

    // What was done with one dependency file for one folder and destination, by sections.
    struct Done {
        std::unordered_set<Text> values;        // whatever the section
        std::unordered_map<Text, Walked> inner; // by the name of the file that led there
        std::unordered_set<Text> walked;        // in lower case
        std::unordered_set<Text> followed;      // the same, with the second level
    };

    Outcome Walk(const DepSection& section);
    int AddFilesOf(const DepSection& section, ProfileReader& reader, Done& done);
    bool AddSecondLevelOf(const DepSection& section, ProfileReader& reader);
    Walked AddFilesOfInnerSection(const Text& name, const DepSection& origin, ProfileReader& reader,
                                  Done& done);
    Walked AddFilesOfCurrentSection(const DepSection& origin, const ProfileReader& reader,
                                    Done& done);
    void AddFile(const Text& value, const Text& path, const DepSection& origin, Done& done);
    void AddOrLeaveOut(const FileToAdd& file, const Text& depFile);
    void AskWatch(const Text& file);
    void NoteStep(const Text& depFile);
    Done& DoneFor(const DepSection& section);
    std::shared_ptr<ProfileReader> ReaderFor(const Text& depFile);

    FileAdding& adding_;
    Host host_;
    Ask& ask_;
    DependencyWatch* watch_;
    bool isStopped_ = false;
    int stepsUnwatched_ = 0;
    std::map<Text, std::shared_ptr<ProfileReader>> readers_; // by resolved path in lower case
    std::size_t bytesHeld_ = 0;
    std::map<std::array<Text, 3>, Done> done_; // by file, folder and destination
    std::set<std::array<Text, 3>> tried_;      // names, resolved paths and destinations
};

} // namespace quillon
