#include "importers/import_vbnet.h"

#include "filelist/adding/use_filter.h"
#include "helpers/windows_path.h"
#include "importers/project_lines.h"
#include "importers/row_import.h"
#include "importers/vb_project.h"
#include "importers/vbnet_project.h"
#include "platform/run_error.h"

#include <algorithm>
#include <iterator>

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

constexpr const char* kComponents = "projektets COM-komponenter";

// Up to this number the import ends before a window could be seen.
constexpr std::size_t kFewLibraries = 20;

// Nobody knows a library by its GUID alone.
Text NameOf(const ComReference& reference)
{
    return reference.name.empty() ? reference.guid : reference.name + " (" + reference.guid + ")";
}

class VbNetImport {
public:
    VbNetImport(RowImport& import, const ImportData& data, const VbNetChoices& choices)
        : import_(import), data_(data), choices_(choices)
    {
    }

    /// False where the file is a project of another kind, or names components of a system folder
    /// that is not there.
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
        return !references || AddReferences(*references);
    }

    /// False where this machine has no system folder that they could be in.
    bool AddLibrariesOfWrappers()
    {
        std::vector<Text> libraries;
        try {
            const auto project = ReadProjectLines(import_.GetHost().files, choices_.sVBPfile);
            for (const Text& line : IncludedFileLines(project.lines))
                std::ranges::copy(data_.LibrariesOfWrappersIn(line), std::back_inserter(libraries));
        } catch (const RunError&) {
            return true; // reported by the reading of the references
        }
        if (!libraries.empty() && !HasComponents())
            return false;
        for (const Text& library : libraries)
            import_.AddSystemFile(library, false);
        return true;
    }

    // Kept: they go to the main folder, whatever folder the program goes to. What can't be read is
    // passed over without a box, and listed with what was not added.
    void AddLibrariesBesideProgram()
    {
        const Text folder = ExtractDirectory(choices_.sEXEfile);
        std::vector<FolderEntry> entries;
        try {
            entries = import_.GetHost().files.List(folder);
        } catch (const RunError&) {
            return import_.Pass(folder, NotAdded::LeftOut);
        }
        std::erase_if(entries, [](const FolderEntry& entry) {
            return entry.status.isFolder || !LowerCase(entry.name).ends_with(".dll");
        });
        const bool takesItsTime = entries.size() > kFewLibraries;
        if (takesItsTime)
            import_.Work().user.ShowDialog();
        for (const FolderEntry& entry : entries)
            if (!import_.IsStopped())
                AddLibrary(folder, entry);
        if (takesItsTime)
            import_.Work().user.HideDialog();
    }

private:
    void Tell(const Text& text) { import_.GetAsk().Critical("Fel inträffade", text); }

    bool HasComponents() const
    {
        return HasSystemFolder(import_.GetHost(), import_.GetAsk(), kComponents);
    }

    // Components that are not registered, or lie elsewhere, need no system folder.
    bool AddReferences(const ComReferences& references)
    {
        std::vector<Text> paths;
        for (const ComReference& reference : references.list)
            paths.push_back(RegisteredPath(reference));
        const bool needsFolder = std::ranges::any_of(paths, [&](const Text& path) {
            return !path.empty() && !IsPartOfWindows(path) && IsInSystemFolder(path);
        });
        if (needsFolder && !HasComponents())
            return false;
        if (references.isCut)
            Tell(TooManyReferencesText(choices_.sVBPfile, "referenser"));
        for (std::size_t i = 0; i < paths.size() && !import_.IsStopped(); ++i)
            AddReference(references.list[i], paths[i]);
        return true;
    }

    /// Empty where it is not registered.
    Text RegisteredPath(const ComReference& reference) const
    {
        return import_.GetHost()
            .machine
            .ReadRegistryValue(RegistryRoot::ClassesRoot,
                               "TypeLib\\" + reference.guid + "\\" + reference.major + "." +
                                   reference.minor + "\\0\\win32",
                               "")
            .value_or("");
    }

    static bool IsPartOfWindows(const Text& path)
    {
        const Text name = ExtractFilename(path);
        return IsNeverAdded(name) || EqualIgnoreCase(name, "STDOLE2.TLB");
    }

    // Whatever is registered may lie there on a machine that has no such folder.
    bool IsInSystemFolder(const Text& path) const
    {
        return ContainsText(LowerCase(path), LowerCase(import_.GetHost().machine.GetSystemDir()));
    }

    void AddReference(const ComReference& reference, const Text& path)
    {
        if (path.empty())
            return import_.Pass(NameOf(reference), NotAdded::NotRegistered);
        const Text name = ExtractFilename(path);
        if (IsPartOfWindows(path))
            return import_.Pass(name, NotAdded::PartOfWindows);
        if (!IsInSystemFolder(path))
            return import_.Pass(path, NotAdded::OutsideSystemFolder);
        if (import_.PassIfListed(name))
            return;
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
                         .Listed = entry.status,
                         .PassOverUnreadable = true});
        } catch (const RunError&) {
            // The import has noted it.
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
    if (!import.IsStopped() && !steps.AddLibrariesOfWrappers())
        return ImportEnd::Refused;
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
