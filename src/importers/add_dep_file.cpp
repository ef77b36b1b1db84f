#include "importers/add_dep_file.h"

#include "filelist/adding/add_target.h"
#include "helpers/windows_path.h"
#include "importers/dependency_file.h"
#include "importers/import_work.h"
#include "importers/rows_of_command.h"

#include <algorithm>

namespace quillon {

namespace {

std::optional<DepSection> ChooseSection(Ask& ask, Text& lastDepFileDir)
{
    const auto depFile = ask.OpenFile({.title = "Välj DEP-fil",
                                       .folder = lastDepFileDir,
                                       .filter = "Dependency-filer (*.dep)|*.dep"});
    if (!depFile)
        return std::nullopt;
    lastDepFileDir = ExtractDirectory(*depFile);
    // The component mostly is beside its dependency file.
    const auto component =
        ask.OpenFile({.title = "Välj tillhörande binär fil",
                      .folder = lastDepFileDir,
                      .filter = "Binära filer (*.dll;*.ocx;*.exe)|*.dll;*.ocx;*.exe"});
    if (!component)
        return std::nullopt;
    const auto destination = ask.ChooseDestination({DestinationQuestion::Place::System, ""});
    if (!destination)
        return std::nullopt;
    return DepSection{.DepFile = *depFile,
                      .SectionName = LowerCase(ExtractFilename(*component)),
                      .BaseFolder = FolderForNames(*component),
                      .Destination = *destination};
}

/// Notes the dependency files whose walk a failure has ended.
class CutFiles : public DependencyWatch {
public:
    bool MayGoOn(const Text& /*file*/) override { return true; }
    void LeftOut(const FileToAdd& /*file*/) override {}
    void Failed(const FileToAdd& /*file*/, const Text& depFile) override
    {
        const Text name = ExtractFilename(depFile);
        if (std::ranges::find(names_, name) == names_.end())
            names_.push_back(name);
    }

    // Nobody sees what a file would have named behind the one that failed.
    void Tell(Ask& ask) const
    {
        Text text;
        for (const Text& name : names_)
            text += "Filen '" + name + "' " + NotAddedFile{name, NotAdded::RestOfDepFile}.Reason() +
                    ".\r\n";
        if (!text.empty())
            ask.Warn("Alla filer är ej adderade",
                     text + "\r\nLägg den fil som saknas på plats och välj kommandot igen.");
    }

private:
    std::vector<Text> names_;
};

} // namespace

std::optional<DepFileRows> AddDepFileCommand(const ListWork& work, Text& lastDepFileDir)
{
    const auto section = ChooseSection(work.ask, lastDepFileDir);
    if (!section)
        return std::nullopt;
    const FileList& files = work.project.Files;
    const std::size_t rowsBefore = files.rows.size();
    const RowsOfCommand own(files);
    // A row that an earlier walk has left without its source would else be a duplicate of the file
    // that has come since.
    FileAdding adding(work.project.Files, work.host, work.ask,
                      FileAdding::RowsWithoutSource::AreFilled);
    CutFiles cut;
    work.ask.ShowBusyPointer(true);
    DependencyFiles(adding, work.host, work.ask, &cut).AddWithSecondLevel(*section);
    work.ask.ShowBusyPointer(false);
    work.ask.ShowStatusText("");
    cut.Tell(work.ask);
    NoteAddedRows(work, rowsBefore);
    DepFileRows result{.places = adding.Finish(), .added = {}};
    result.added = own.Added(files, result.places);
    if (!result.added.empty())
        work.state.ProjectIsDirty = kOn;
    return result;
}

} // namespace quillon
