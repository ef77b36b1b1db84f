#include "importers/data_access.h"

#include "formats/copy_letters.h"
#include "formats/package_files.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"

namespace quillon {

namespace {

const Text kSharedTools = "SOFTWARE\\Microsoft\\Shared Tools";
constexpr const char* kDaoFailed = "Fel vid hämtning av DAO-filer";

constexpr const char* kDataAccessQuestion =
    "Vill du att Microsoft Data Access komponenter ska installeras på din användarens dator? Ifall "
    "du svarar 'Ja' kommer även filen 'MDAC_TYP.EXE' att inkluderas i installationsprojektet. Vet "
    "du att din slutanvändare har samma version av Microsoft Data Access komponenter som du kan du "
    "svara 'Nej' här för att spara utrymme. Filen 'MDAC_TYP.EXE' utökar installationsdatamängden "
    "med ca 6 MB. Se hjälpen för mer information.";

std::optional<Text> SharedTool(const RowImport& import, const Text& key, const Text& value)
{
    const auto text = import.GetHost().machine.ReadRegistryValue(
        RegistryRoot::LocalMachine, key.empty() ? kSharedTools : kSharedTools + "\\" + key, value);
    return text && text->empty() ? std::nullopt : text;
}

// The registered path is that of the library; some setups have registered its folder alone, whose
// name may contain a dot too.
bool NamesLibrary(const Text& path)
{
    const Text lower = LowerCase(path);
    return lower.ends_with(".dll") || lower.ends_with(".tlb");
}

Text FolderOfLibrary(const Text& path)
{
    return NamesLibrary(path) ? ExtractDirectory(path) : RemoveLastBackslash(path);
}

void AddDaoFile(RowImport& import, const char* name, const Text& path, const char* copyOptions)
{
    import.Add({.FileName = name,
                .SourcePath = path,
                .Destination = "%DAODIR",
                .TrapErrors = true,
                .CopyOptions = copyOptions});
}

void TellDao35Missing(RowImport& import, const Text& name)
{
    import.Pass(name, NotAdded::NotRegistered);
    import.GetAsk().Critical(
        kDaoFailed,
        "Kan ej hitta information om filen '" + name +
            "' i Registry! Denna information ska normalt finnas vid "
            "'HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools\\" +
            name +
            " :: Path' i Registry, men denna information saknas. Antingen är DAO inte installerad "
            "på din dator eller så skedde något fel under installationen. Du kan prova att "
            "installera DAO på nytt. Om felet kvarstår kan du kontakta oss.");
}

// The path of the library in the registry, whether it is whole or names the folder alone.
Text LibraryPath(const Text& path, const char* name)
{
    return NamesLibrary(path) ? path : JoinPath(path, name);
}

void AddVb6DaoLibrary(RowImport& import)
{
    const auto shared = SharedTool(import, "DAO350", "Path");
    auto library = SharedTool(import, "DAO350.DLL", "Path");
    if (!library)
        library = shared;
    if (!library)
        return TellDao35Missing(import, "dao350.dll");
    auto types = SharedTool(import, "DAO2535.TLB", "Path");
    if (!types && shared)
        types = JoinPath(FolderOfLibrary(*shared), "DAO2535.TLB");
    if (!types)
        return TellDao35Missing(import, "dao2535.tlb");
    AddDaoFile(import, "DAO350.dll", LibraryPath(*library, "DAO350.dll"),
               StartingLetters::kSharedServer);
    AddDaoFile(import, "DAO2535.tlb", LibraryPath(*types, "DAO2535.TLB"),
               StartingLetters::kSharedFile);
}

void AskForDataAccess(RowImport& import, Vb6Choices& choices, DataAccessQuestion question)
{
    if (question == DataAccessQuestion::DoNotAsk || choices.MDAQuestionAsked || import.IsStopped())
        return;
    const bool isWanted =
        import.GetAsk().YesNo("Microsoft Data Access", kDataAccessQuestion, Ask::Stops::OnNo);
    choices.MDAQuestionAsked = true;
    if (isWanted)
        choices.cInstallMDA = true;
}

// A dry run writes nothing; the row then has the size and date of the file that would be copied.
Text CopyForSetup(const RowImport& import, const Text& package)
{
    if (import.Work().isDryRun)
        return package;
    FileSystem& files = import.GetHost().files;
    const Text folder = JoinPath(import.Work().ownFolder, "Temp\\Mda");
    files.DirCreate(folder); // a failure here comes again below
    const Text copy = JoinPath(folder, kDataAccessArchive);
    files.CopyContent(package, copy);
    return copy;
}

} // namespace

void AddVb6Dao35(RowImport& import, const Text& redistFolder)
{
    import.AddSystemFiles(kVb6Dao35Files);
    if (import.IsStopped())
        return;
    AddVb6DaoLibrary(import);
    import.AddRedistFiles(redistFolder, std::span(&kVb6Dao35RedistFile, 1));
}

void AddVb6Dao36(RowImport& import)
{
    import.AddSystemFiles(kVb6Dao36Files);
    if (import.IsStopped())
        return;
    auto library = SharedTool(import, "DAO360.DLL", "Path");
    if (!library)
        if (const auto shared = SharedTool(import, "", "SharedFilesDir"))
            library = JoinPath(*shared, "DAO\\dao360.dll");
    if (library) {
        AddDaoFile(import, "DAO360.dll", LibraryPath(*library, "dao360.dll"),
                   StartingLetters::kSharedServer);
        return;
    }
    import.Pass("dao360.dll", NotAdded::NotRegistered);
    import.GetAsk().Critical(
        kDaoFailed,
        "Kan ej hitta information om filen 'dao360.dll' i Registry! Denna information ska normalt "
        "finnas vid 'HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Shared Tools' i Registry, men denna "
        "information saknas. Antingen är DAO 3.6 inte installerad på din dator eller så skedde "
        "något fel under installationen. Du kan prova att installera DAO på nytt. Om felet "
        "kvarstår kan du kontakta oss.");
}

void AddVb5Dao35(RowImport& import)
{
    import.AddSystemFiles(kVb5Dao35Files);
    if (import.IsStopped())
        return;
    const auto library = SharedTool(import, "DAO350", "Path");
    if (!library) {
        import.Pass("DAO2535.tlb", NotAdded::NotRegistered);
        import.Pass("DAO350.dll", NotAdded::NotRegistered);
        import.GetAsk().Critical("Fel", "Kan ej hitta DAO-filerna 'DAO2535.tlb' och 'DAO350.dll' "
                                        "på din hårddisk!");
        return;
    }
    const Text folder = FolderOfLibrary(*library);
    AddDaoFile(import, "DAO2535.tlb", JoinPath(folder, "DAO2535.tlb"),
               StartingLetters::kSharedFile);
    AddDaoFile(import, "DAO350.dll", JoinPath(folder, "DAO350.dll"),
               StartingLetters::kSharedServer);
}

void AddAdo(RowImport& import, Vb6Choices& choices, DataAccessQuestion question)
{
    import.AddSystemFiles(kAdoFiles);
    AskForDataAccess(import, choices, question);
}

void AddRdo(RowImport& import, Vb6Choices& choices, DataAccessQuestion question)
{
    import.AddSystemFiles(kRdoFiles);
    AskForDataAccess(import, choices, question);
}

void AddDataAccessPackage(RowImport& import, const Text& redistFolder)
{
    const Text package = redistFolder + "\\" + kDataAccessProgram;
    if (import.IsStopped())
        return;
    if (!import.GetHost().files.FileExists(package)) {
        import.Pass(kDataAccessProgram, NotAdded::NotAtSource);
        import.GetAsk().Critical(
            "Fel", "Kan ej hitta filen 'MDAC_TYP.EXE' på din hårddisk! Denna fil krävs för "
                   "installation av Microsoft Data Objects!");
        return;
    }
    try {
        import.Add({.FileName = kDataAccessArchive,
                    .SourcePath = CopyForSetup(import, package),
                    .Destination = "%DESTDIR",
                    .CheckDuplicates = true,
                    .CopyOptions = "W"});
    } catch (const RunError& error) {
        import.GetAsk().Critical("Fel inträffade", FailureText(error, package));
    }
}

} // namespace quillon
