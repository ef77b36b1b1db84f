#include "importers/import_vbnet.h"

#include "helpers/windows_path.h"
#include "importers/project_lines.h"
#include "importers/row_import.h"
#include "importers/vbnet_project.h"
#include "platform/run_error.h"

namespace quillon {

namespace {

constexpr ImportChecks kChecks = {
    .bothMissing = "Du måste välja en projektfil och tillhörande programfil först!",
    .programMissing = "Du måste välja den programfil som ditt Visual basic-projekt skapar vid "
                      "kompilering först! Du väljer en programfil genom att trycka på knappen "
                      "'Välj programfil...'.",
    .projectMissing = "Du måste välja en Visual Basic projektfil först !"};

constexpr const char* kNoReferences =
    "Kan ej hitta referenser i projektfilen! Projektfilen är sannolikt inte en giltig .NET "
    "projektfil.";
constexpr const char* kMsBuildProject =
    "Projektfilen är av det nyare slag som Visual Studio 2005 och senare skapar, och anger inte "
    "vilka filer programmet behöver. Bygg eller publicera programmet och använd i stället "
    "'Importera programkatalog...' i menyn Arkiv (quillonc import-folder) på den katalog där "
    "programmet hamnar.";
constexpr const char* kDone =
    "Importen är nu klar! Alla filer som kan erhållas via Visual Basic .NET projektfilen har "
    "adderats till fillistan. Anropar du funktioner i DLL-filer från tredjeparts-tillverkare måste "
    "dessa läggas in manuellt till fillistan.";

constexpr std::string_view kNeverAdded[] = {"STDOLE2.TLB", "SHDOCVW.DLL"};

class VbNetImport {
public:
    VbNetImport(RowImport& import, const ImportData& data, const VbNetChoices& choices)
        : import_(import), data_(data), choices_(choices)
    {
    }

    /// False where the file is a project of another kind.
    bool AddReferences()
    {
        ProjectLines project;
        try {
            project = ReadProjectLines(import_.GetHost().files, choices_.sVBPfile);
        } catch (const RunError&) {
            Tell("Kan ej öppna eller läsa Visual Basic projektfil!");
            return true;
        }
        if (!project.damage.empty())
            Tell(project.damage);
        const auto references = ComReferencesOf(project.lines);
        if (!references && IsMsBuildProject(project.lines)) {
            Tell(kMsBuildProject);
            return false;
        }
        if (!references)
            Tell(kNoReferences);
        else
            for (const ComReference& reference : *references)
                AddReference(reference);
        return true;
    }

    void AddLibrariesOfWrappers()
    {
        ProjectLines project;
        try {
            project = ReadProjectLines(import_.GetHost().files, choices_.sVBPfile);
        } catch (const RunError&) {
            return; // told when the references were read
        }
        for (const Text& line : IncludedFileLines(project.lines))
            for (const Text& library : data_.LibrariesOfWrappersIn(line))
                import_.AddSystemFile(library, false);
    }

    // Kept: they go to the main folder, whatever folder the program goes to.
    void AddLibrariesBesideProgram()
    {
        const Text folder = ExtractDirectory(choices_.sEXEfile);
        std::vector<FolderEntry> entries;
        try {
            entries = import_.GetHost().files.List(folder);
        } catch (const RunError&) {
            return;
        }
        for (const FolderEntry& entry : entries)
            if (!entry.status.isFolder && LowerCase(entry.name).ends_with(".dll"))
                AddLibrary(folder, entry);
    }

private:
    void Tell(const Text& text) { import_.GetAsk().Critical("Fel inträffade", text); }

    void AddReference(const ComReference& reference)
    {
        const auto path = import_.GetHost().machine.ReadRegistryValue(
            RegistryRoot::ClassesRoot,
            "TypeLib\\" + reference.guid + "\\" + reference.major + "." + reference.minor +
                "\\0\\win32",
            "");
        if (!path || path->empty())
            return import_.Pass(reference.guid, "saknas i registry");
        const Text name = ExtractFilename(*path);
        for (const std::string_view never : kNeverAdded)
            if (EqualIgnoreCase(name, never))
                return import_.Pass(name, "hör till Windows och läggs aldrig in");
        const Text systemFolder = LowerCase(import_.GetHost().machine.GetSystemDir());
        if (systemFolder.empty() || !ContainsText(LowerCase(*path), systemFolder))
            return import_.Pass(*path, "ligger utanför systemkatalogen");
        if (IsFilenameInFileList(import_.Work().list.project.Files, name))
            return import_.Pass(name, "finns redan i fillistan");
        const bool isOcx = ContainsText(LowerCase(name), ".ocx");
        import_.AddSystemFile(name, isOcx);
        // Kept: a box in its grey state is not a ticked one, and only controls are followed.
        if (choices_.cUseDepFile == 1 && isOcx && !import_.IsStopped())
            import_.FollowActiveXDepFile(name);
    }

    void AddLibrary(const Text& folder, const FolderEntry& entry)
    {
        try {
            import_.Add({.FileName = entry.name,
                         .SourcePath = JoinPath(folder, entry.name),
                         .Destination = "%DESTDIR",
                         .CheckDuplicates = true,
                         .Listed = entry.status});
        } catch (const RunError&) {
            import_.Pass(entry.name, "kan ej läsas");
        }
    }

    RowImport& import_;
    const ImportData& data_;
    const VbNetChoices& choices_;
};

ImportEnd RunVbNetImport(RowImport& import, const ImportData& data, const VbNetChoices& choices)
{
    Ask& ask = import.GetAsk();
    ImportUser& user = import.Work().user;
    VbNetImport steps(import, data, choices);
    if (!steps.AddReferences())
        return ImportEnd::Refused;
    steps.AddLibrariesOfWrappers();
    if (import.IsStopped())
        return ImportEnd::Stopped;
    user.HideDialog();
    ask.ProcessEvents();
    import.ShowBusy(false);
    ask.ShowStatusText("");
    user.UpdateStatusBar();
    ImportEnd end = ImportEnd::Done;
    if (!import.AddProgram(choices.sEXEfile, end))
        return end;
    user.UpdateStatusBar();
    steps.AddLibrariesBesideProgram();
    if (import.IsStopped())
        return ImportEnd::Stopped;
    user.UpdateStatusBar();
    import.AddProgramIcon();
    ask.Inform("Importen är klar", kDone);
    return ImportEnd::Done;
}

} // namespace

Text ProgramFolderOf(const Text& vbprojFile)
{
    return JoinPath(ExtractDirectory(vbprojFile), "bin");
}

ImportResult ImportVbNetProject(const ImportWork& work, const ImportData& data,
                                const VbNetChoices& choices)
{
    if (!AreFilesChosen(choices.sVBPfile, choices.sEXEfile, kChecks, work.list.ask))
        return {.end = ImportEnd::Refused};
    return RunImport(work,
                     [&](RowImport& import) { return RunVbNetImport(import, data, choices); });
}

} // namespace quillon
