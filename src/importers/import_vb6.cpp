#include "importers/import_vb6.h"

#include "filelist/adding/use_filter.h"
#include "helpers/windows_path.h"
#include "importers/data_access.h"
#include "importers/mfc_control.h"
#include "importers/row_import.h"
#include "importers/vb_import_steps.h"
#include "importers/vb_project.h"

#include <utility>

namespace quillon {

namespace {

constexpr const char* kDone =
    "Importen är nu klar! Alla filer som kan erhållas via Visual Basic 6.0 projektfilen har "
    "adderats till fillistan. Anropar du funktioner i DLL-filer från tredjeparts-tillverkare måste "
    "dessa läggas in manuellt till fillistan.";

constexpr std::string_view kAdoControl = "MSADODC.OCX";
constexpr std::string_view kRdoControl = "MSRDC20.OCX";

// What is ticked already needs no look into the control.
void TickMfc(const ImportData& data, Host host, const Text& control, Vb6Choices& choices)
{
    if (!choices.cImportActiveXSysFiles)
        choices.cImportActiveXSysFiles = NeedsMfc(data, host, control);
}

class Vb6Import {
public:
    Vb6Import(RowImport& import, const ImportData& data, Vb6Choices& choices)
        : import_(import), data_(data), choices_(choices),
          redistFolder_(GetDirectoryToVB6RedistDir(choices))
    {
    }

    // Kept: the order, and that a data control of the project brings its files once more where its
    // box is ticked; what has a row already is not added again.
    void AddLists()
    {
        import_.AddRedistFiles(redistFolder_, kVb6RedistFiles);
        import_.AddSystemFiles(kVb6Runtime);
        AddActiveXFiles();
        AddWhere(&Vb6Choices::cImportDAO35, [this] { AddVb6Dao35(import_, redistFolder_); });
        AddWhere(&Vb6Choices::cImportDAO36, [this] { AddVb6Dao36(import_); });
        AddWhere(&Vb6Choices::cImportADO,
                 [this] { AddAdo(import_, choices_, DataAccessQuestion::Ask); });
        AddWhere(&Vb6Choices::cImportRDO,
                 [this] { AddRdo(import_, choices_, DataAccessQuestion::Ask); });
        AddPackageIfWanted();
        AddWhere(&Vb6Choices::cImportActiveXSysFiles,
                 [this] { import_.AddSystemFiles(kMfcFiles); });
        AddLibrariesOfModules();
    }

private:
    // A box may have been ticked by a step before.
    template <class Step>
    void AddWhere(bool Vb6Choices::*box, Step step)
    {
        if (choices_.*box && !import_.IsStopped())
            step();
    }

    void AddActiveXFiles()
    {
        for (const Text& name :
             ReadActiveXFiles(import_.GetHost().files, choices_.sVBPfile, import_.GetAsk())) {
            if (import_.IsStopped())
                return;
            if (IsNeverAdded(name))
                import_.Pass(name, NotAdded::PartOfWindows);
            else
                AddActiveXFile(name);
        }
    }

    void AddActiveXFile(const Text& name)
    {
        AddControl(import_, name);
        TickMfc(data_, import_.GetHost(), name, choices_);
        if (EqualIgnoreCase(name, kAdoControl)) {
            AddAdo(import_, choices_, DataAccessQuestion::DoNotAsk);
            AddPackageIfWanted();
        }
        if (EqualIgnoreCase(name, kRdoControl)) {
            AddRdo(import_, choices_, DataAccessQuestion::DoNotAsk);
            AddPackageIfWanted();
        }
        // Kept: a box in its grey state is not a ticked one.
        if (choices_.cUseDepFile == 1 && !import_.IsStopped())
            import_.FollowActiveXDepFile(name);
    }

    // Once: it is large, and each data control asks for it.
    void AddPackageIfWanted()
    {
        if (choices_.cInstallMDA && !import_.IsStopped() && !std::exchange(isPackageTried_, true))
            AddDataAccessPackage(import_, redistFolder_);
    }

    void AddLibrariesOfModules()
    {
        if (import_.IsStopped())
            return;
        for (const Text& line :
             LinesOrTell(import_.GetHost().files, choices_.sVBPfile, import_.GetAsk()))
            if (const auto module = ModuleIn(line))
                for (const Text& library : data_.LibrariesOfModule(module->name, module->file))
                    import_.AddSystemFile(library, false);
    }

    RowImport& import_;
    const ImportData& data_;
    Vb6Choices& choices_;
    Text redistFolder_;
    bool isPackageTried_ = false;
};

} // namespace

Text FindVb6Directory(const Machine& machine)
{
    constexpr std::size_t kMaxCommandLength = 511; // and a NUL at its end
    Text command =
        FirstCharacters(machine
                            .ReadRegistryValue(RegistryRoot::ClassesRoot,
                                               "VisualBasic.Project\\shell\\open\\command", "")
                            .value_or(""),
                        kMaxCommandLength);
    command.erase(std::min(command.find('\0'), command.size()));
    if (command.starts_with('"'))
        command.erase(0, 1);
    const std::size_t end = command.rfind('\\');
    return end == Text::npos ? Text() : command.substr(0, end);
}

Text GetDirectoryToVB6RedistDir(const Vb6Choices& choices)
{
    return choices.tVBDirectory + "\\Wizards\\PDWizard\\Redist";
}

void ScanVb6Project(Host host, Ask& ask, const ImportData& data, Vb6Choices& choices)
{
    for (const Text& name : ReadActiveXFiles(host.files, choices.sVBPfile, ask)) {
        TickMfc(data, host, name, choices);
        if (EqualIgnoreCase(name, kAdoControl))
            choices.cImportADO = true;
        if (EqualIgnoreCase(name, kRdoControl))
            choices.cImportRDO = true;
    }
}

ImportResult ImportVb6Project(const ImportWork& work, const ImportData& data, Vb6Choices& choices)
{
    if (!AreFilesChosen(choices.sVBPfile, choices.sEXEfile, kVbChecks, work.list.ask) ||
        !IsVbFolderThere("Visual Basic 6.0", choices.tVBDirectory, work.list.host.files,
                         work.list.ask) ||
        !HasSystemFolder(work.list.host, work.list.ask, kVbFiles))
        return {.end = ImportEnd::Refused};
    return RunImport(work, [&](RowImport& import) {
        Vb6Import(import, data, choices).AddLists();
        return EndVbImport(import, choices.sEXEfile, choices.cAddIcon, {"Importen är klar", kDone});
    });
}

} // namespace quillon
