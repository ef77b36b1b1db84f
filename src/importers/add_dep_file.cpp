#include "importers/add_dep_file.h"

#include "filelist/adding/add_target.h"
#include "helpers/windows_path.h"
#include "importers/dependency_file.h"

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

} // namespace

std::optional<NewPlaces> AddDepFileCommand(const ListWork& work, Text& lastDepFileDir)
{
    const auto section = ChooseSection(work.ask, lastDepFileDir);
    if (!section)
        return std::nullopt;
    const std::size_t rowsBefore = work.project.Files.rows.size();
    FileAdding adding(work.project.Files, work.host, work.ask);
    work.ask.ShowBusyPointer(true);
    DependencyFiles(adding, work.host, work.ask).AddWithSecondLevel(*section);
    work.ask.ShowBusyPointer(false);
    work.ask.ShowStatusText("");
    NoteAddedRows(work, rowsBefore);
    return adding.Finish();
}

} // namespace quillon
