// The steps that the imports of development projects share: how a file becomes a row, the program
// with its destination, its icon.
#pragma once

#include "importers/dependency_file.h"
#include "importers/import_work.h"
#include "importers/rows_of_command.h"
#include "importers/runtime_lists.h"

#include <functional>
#include <span>
#include <unordered_map>
#include <unordered_set>

namespace quillon {

/// One import. Rows are added at the end of the list, which is put in order by `Finish`.
class RowImport : private DependencyWatch {
public:
    explicit RowImport(const ImportWork& work);
    RowImport(const RowImport&) = delete;
    RowImport& operator=(const RowImport&) = delete;

    // `AlreadyReported`: the file is missing, and this import has reported it before.
    enum class Added { Yes, AlreadyThere, LeftOut, Missing, AlreadyReported };

    /// A file of the system folder. One that has a row already is not added twice; a row that is
    /// left of a missing file is none.
    Added AddSystemFile(const Text& name, bool isRuntimeFile);
    void AddSystemFiles(std::span<const SystemFile> files);
    /// A file for redistribution, with copy options of its own. Kept: there is no duplicate test.
    void AddRedistFiles(const Text& folder, std::span<const RedistFile> files);
    /// Any other file; false where it was refused. A file that fails throws unless it has
    /// `TrapErrors`.
    bool Add(const FileToAdd& file);

    /// A file that an ActiveX file of the system folder needs.
    void FollowActiveXDepFile(const Text& fileName)
    {
        dependencies_.FollowActiveXDepFile(fileName);
    }

    /// True where any row with a file has this name, whatever its folder.
    bool PassIfListed(const Text& name);
    /// A file that was not added. It is reported once.
    void Pass(const Text& file, NotAdded why);

    /// Asks for the destination and adds the program, in a subfolder of it where one is given.
    /// False, and `end` says why, where the import ends here.
    bool AddProgram(const Text& program, ImportEnd& end, const Text& subfolder = {});
    /// What was chosen for the program.
    const Text& ProgramDestination() const { return programDestination_; }
    /// Asks for the icon of the program.
    void AddProgramIcon();

    /// True once the user has stopped the import; nothing is added any more.
    bool IsStopped() const { return isStopped_; }
    ImportResult Finish(ImportEnd end);

    /// Shows the busy pointer. `Ask` lifts it for its own questions; it must be off before the
    /// windows of `ImportUser`.
    void ShowBusy(bool isBusy);

    Host GetHost() const { return work_.list.host; }
    Ask& GetAsk() const { return work_.list.ask; }
    const ImportWork& Work() const { return work_; }

private:
    bool MayGoOn(const Text& file) override;
    void LeftOut(const FileToAdd& file) override;
    void Failed(const FileToAdd& file, const Text& depFile) override;

    void Pass(const Text& file, NotAdded why, const Text& path);
    FileList& Files() const { return work_.list.project.Files; }
    std::optional<std::size_t> SystemRow(const Text& name, const Text& path) const;
    std::optional<std::size_t> RowOfFile(const FileToAdd& file);
    NotAdded WhyNotAdded(const FileToAdd& file) const;

    const ImportWork& work_;
    std::size_t rowsBefore_;
    RowsOfCommand own_;
    FileAdding adding_;
    DependencyFiles dependencies_;
    bool isStopped_ = false;
    bool isBusy_ = false;
    bool isProgramNew_ = false;
    std::optional<std::size_t> programRow_;
    Text programDestination_;
    std::vector<NotAddedFile> notAdded_;
    // The rows by their names in lower case, as far as they were looked at. Without this, importing
    // a folder again would compare each of its files with each row.
    std::unordered_multimap<Text, std::size_t> rowsByName_;
    std::size_t rowsLookedAt_ = 0;
    std::unordered_set<Text> reported_;           // the names in `notAdded_`
    std::unordered_set<Text> missingSystemFiles_; // their names, in lower case
};

/// The messages of the checks before an import.
struct ImportChecks {
    const char* bothMissing;
    const char* programMissing;
    const char* projectMissing;
};

/// False, with a message box, where project or program are not chosen.
bool AreFilesChosen(const Text& project, const Text& program, const ImportChecks& texts, Ask& ask);

/// False, with a box that says what to do, where this machine has no system folder with files.
/// `what` is taken from there: "Visual Basics filer".
bool HasSystemFolder(Host host, Ask& ask, const Text& what);

/// The lines of a project file. What can't be read is reported in a message box; what was read
/// counts.
std::vector<Text> LinesOrTell(const FileSystem& files, const Text& path, Ask& ask);

/// Runs an import's steps under a busy pointer; a failure is reported, and the rows so far stay.
ImportResult RunImport(const ImportWork& work, const std::function<ImportEnd(RowImport&)>& steps);

} // namespace quillon
