#include "importers/vb_import_steps.h"

#include "importers/vb_project.h"

namespace quillon {

namespace {

constexpr const char* kControlsInSystemFolder =
    "Alla ActiveX-filer som ingår i ett Visual Basic projekt måste vara placerade i "
    "systemkatalogen, ifall dessa ska importeras automatiskt till fillistan! Är ActiveX-filen "
    "placerad i en annan katalog måste den adderas manuellt till fillistan.";

} // namespace

bool IsVbFolderThere(const char* version, const Text& folder, const FileSystem& files, Ask& ask)
{
    const Text field = Text("'") + version + " katalog'";
    if (folder.empty()) {
        ask.Inform("Info",
                   "Fältet " + field + " måste innehålla en sökväg till " + version + " filer!");
        return false;
    }
    if (!files.DirExists(folder)) {
        ask.Critical("Fel", "Katalogen som anges vid " + field +
                                " existerar inte! Kan ej importera! Kontrollera sökvägen!");
        return false;
    }
    return true;
}

std::vector<Text> ReadActiveXFiles(const FileSystem& files, const Text& project, Ask& ask)
{
    ActiveXFiles read = ActiveXFilesOf(LinesOrTell(files, project, ask));
    if (read.isCut)
        ask.Critical("Fel inträffade", TooManyReferencesText(project, "ActiveX-filer"));
    return std::move(read.names);
}

void AddControl(RowImport& import, const Text& name)
{
    if (import.AddSystemFile(name, true) == RowImport::Added::Missing)
        import.GetAsk().Inform("Info", kControlsInSystemFolder);
}

ImportEnd EndVbImport(RowImport& import, const Text& program, bool withIcon,
                      const ClosingMessage& message)
{
    Ask& ask = import.GetAsk();
    ImportUser& user = import.Work().user;
    import.ShowBusy(false);
    ask.ShowStatusText("");
    if (import.IsStopped())
        return ImportEnd::Stopped;
    user.HideDialog();
    ask.ProcessEvents();
    user.UpdateStatusBar();
    ImportEnd end = ImportEnd::Done;
    if (!import.AddProgram(program, end))
        return end;
    user.UpdateStatusBar();
    if (withIcon)
        import.AddProgramIcon();
    ask.Inform(message.title, message.text);
    return ImportEnd::Done;
}

} // namespace quillon
