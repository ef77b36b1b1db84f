#include "importers/import_vb5.h"

#include "importers/data_access.h"
#include "importers/vb_import_steps.h"

namespace quillon {

namespace {

constexpr const char* kDone =
    "Allt är nu klart! Importen gick bra! Alla filer som kan hittas i Visual Basic 5.0 "
    "projekt-filen har nu adderats till fillistan. Anropar du funktioner i DLL-filer från "
    "tredjeparts-tillverkare måste dessa läggas in manuellt till fillistan. Samma sak gäller om du "
    "använder ActiveX:er som i sin tur är beroende av andra DLL-filer. Dessa DLL.er måste också "
    "läggas in manuellt i fillistan.";

void AddLists(RowImport& import, const Vb5Choices& choices)
{
    import.AddSystemFiles(kVb5Runtime);
    import.AddRedistFiles(choices.tVBDirectory + "\\setupkit\\kitfil32\\sys32", kVb5RedistFiles);
    if (choices.cImportActiveXSysFiles)
        import.AddSystemFiles(kMfcFiles);
    if (choices.cImportDAO35 && !import.IsStopped())
        AddVb5Dao35(import);
    // Kept: "SHDOCVW.DLL" becomes a row like any other here.
    for (const Text& name :
         ReadActiveXFiles(import.GetHost().files, choices.sVBPfile, import.GetAsk())) {
        if (import.IsStopped())
            return;
        AddControl(import, name);
    }
}

} // namespace

Text FindVb5Directory(const Machine& machine)
{
    constexpr std::size_t kMaxFolderLength = 511; // and a NUL at its end
    Text folder = FirstCharacters(machine
                                      .ReadRegistryValue(RegistryRoot::LocalMachine,
                                                         "SOFTWARE\\Microsoft\\Visual Basic\\5.0",
                                                         "InstallDir")
                                      .value_or(""),
                                  kMaxFolderLength);
    folder.erase(std::min(folder.find('\0'), folder.size()));
    return folder;
}

ImportResult ImportVb5Project(const ImportWork& work, const Vb5Choices& choices)
{
    if (!AreFilesChosen(choices.sVBPfile, choices.sEXEfile, kVbChecks, work.list.ask) ||
        !IsVbFolderThere("Visual Basic 5.0", choices.tVBDirectory, work.list.host.files,
                         work.list.ask) ||
        !HasSystemFolder(work.list.host, work.list.ask, kVbFiles))
        return {.end = ImportEnd::Refused};
    return RunImport(work, [&](RowImport& import) {
        AddLists(import, choices);
        return EndVbImport(import, choices.sEXEfile, choices.cAddIcon, {"Info", kDone});
    });
}

} // namespace quillon
