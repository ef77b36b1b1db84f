#include "importers/import_folder.h"

#include "helpers/windows_path.h"
#include "importers/row_import.h"

namespace quillon {

namespace {

constexpr const char* kDone =
    "Importen är nu klar! Alla filer i programkatalogen har adderats till fillistan. Filer som "
    "saknas enligt listan över katalogens innehåll måste läggas in manuellt eller finnas hos "
    "mottagaren.";

// What the program does not say stays as it was.
void TakeVersion(const FileVersionData& program, section::Version& version)
{
    const auto take = [](const Text& from, Text& to) {
        if (!from.empty())
            to = from;
    };
    take(program.CompanyName, version.CompanyName);
    take(program.ProductName, version.ProductName);
    take(program.FileDescription, version.Description);
    take(program.ProductVersion, version.ProductVersion);
}

void SetNetTest(const DotNetNeed& need, section::NET& net)
{
    const bool isFirst = need.version == "1.0";
    net.NET_TestIfInstalled = kOn;
    net.NET_ver10 = isFirst ? kOn : kOff;
    net.NET_ver11 = isFirst ? kOff : kOn;
}

class FolderImport {
public:
    FolderImport(RowImport& import, const ProgramFolder& folder, const FolderChoices& choices)
        : import_(import), folder_(folder), choices_(choices)
    {
    }

    // The rows of a folder name it below the program's destination.
    void AddFiles(const Text& destination, std::size_t program)
    {
        for (std::size_t i = 0; i < folder_.files.size() && !import_.IsStopped(); ++i)
            if (i != program)
                AddFile(folder_.files[i], destination);
    }

private:
    void AddFile(const FolderFile& file, const Text& destination)
    {
        if (choices_.cSkipBuildFiles && IsBuildFile(file.entry.name))
            return import_.Pass(file.RelativePath(), NotAdded::OfTheBuild);
        import_.Add(
            {.FileName = file.entry.name,
             .SourcePath = JoinPath(folder_.folder, file.RelativePath()),
             .Destination = file.folder.empty() ? destination : destination + "\\" + file.folder,
             .CheckDuplicates = true,
             .UseVersionRules = true,
             .TrapErrors = true,
             .KeepsFontHere = true, // the program's own, which it loads from its folder
             .Listed = file.entry.status});
    }

    RowImport& import_;
    const ProgramFolder& folder_;
    const FolderChoices& choices_;
};

ImportEnd RunFolderImport(RowImport& import, const ProgramFolder& folder, std::size_t program,
                          const FolderChoices& choices)
{
    Ask& ask = import.GetAsk();
    ImportUser& user = import.Work().user;
    import.ShowBusy(false);
    ImportEnd end = ImportEnd::Done;
    const FolderFile& main = folder.files[program];
    if (!import.AddProgram(JoinPath(folder.folder, main.RelativePath()), end, main.folder))
        return end;
    import.ShowBusy(true);
    FolderImport(import, folder, choices).AddFiles(import.ProgramDestination(), program);
    import.ShowBusy(false);
    if (import.IsStopped())
        return ImportEnd::Stopped;
    user.HideDialog();
    ask.ProcessEvents();
    user.UpdateStatusBar();
    if (choices.cAddIcon)
        import.AddProgramIcon();
    ask.Inform("Importen är klar", kDone);
    return ImportEnd::Done;
}

} // namespace

bool CanTestFor(const DotNetNeed& need)
{
    return need.kind == DotNetNeed::Kind::Framework;
}

bool HasProgram(const ProgramFolder& folder, Ask& ask)
{
    if (folder.folder.empty())
        ask.Inform("Info", "Du måste välja en programkatalog först!");
    else if (folder.programs.empty())
        ask.Inform("Info", "Katalogen '" + folder.folder +
                               "' har inget Windows-program (.EXE). En katalog utan program "
                               "adderas med 'Addera träd...' i menyn Lista.");
    else if (!folder.damage.empty())
        ask.Critical("Katalogen är ej läst", folder.damage + " Inget är adderat.");
    return !folder.programs.empty() && folder.damage.empty();
}

ImportResult ImportProgramFolder(const ImportWork& work, const ProgramFolder& folder,
                                 std::size_t program, const ProgramFindings& findings,
                                 const FolderChoices& choices)
{
    ImportResult result = RunImport(
        work, [&](RowImport& import) { return RunFolderImport(import, folder, program, choices); });
    if (result.end != ImportEnd::Done)
        return result;
    if (choices.cVersionData)
        TakeVersion(findings.version, work.list.project.Version);
    if (choices.cTestNETFramework && CanTestFor(findings.dotNet))
        SetNetTest(findings.dotNet, work.list.project.NET);
    work.list.state.ProjectIsDirty = kOn;
    return result;
}

} // namespace quillon
