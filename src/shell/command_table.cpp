#include "shell/command_table.h"

#include <algorithm>

namespace quillon {

namespace {

using enum CommandId;
using enum MenuPart;

// clang-format off
constexpr MenuRow kMenuBar[] = {
    {Menu, {None, "&Arkiv"}},
    {Entry, {NewProject, "&Nytt projekt", "Nytt projekt", "new", "Ctrl+N"}},
    {Entry, {OpenProject, "&Öppna projekt...", "Öppna projekt", "open", "Ctrl+O"}},
    {Entry, {SaveProject, "&Spara projekt", "Spara projekt", "save", "Ctrl+S"}},
    {Entry, {SaveProjectAs, "Spara projekt so&m...", "", "save-as", "Ctrl+Shift+S"}},
    {Entry, {ProjectManager, "&Projekthanterare...", "", "project-manager"}},
    {Line},
    {Submenu, {ImportProject, "&Importera Visual Basic projekt"}},
    {Entry, {ImportVB5, "Visual Basic &5.0 projekt...", "", "import-project"}},
    {Entry, {ImportVB6, "&Visual Basic &6.0 projekt...", "", "import-project"}},
    {Entry, {ImportVBNet, "Visual Basic .&NET projekt...", "", "import-project"}},
    {Entry, {ImportFolder, "Importera &programkatalog...", "", "import-folder"}},
    {SubmenuEnd},
    {Entry, {ImportIniFile, "Imp&ortera INI-fil...", "", "import-ini"}},
    {Line},
    {Entry, {Create, "S&kapa...", "Skapa", "create", "F7"}},
    {Entry, {Test, "&Testa...", "Testa", "test", "Ctrl+T"}},
    {Entry, {Print, "Skriv &ut...", "", "print", "Ctrl+P"}},
    {Line},
    {Submenu, {None, "Tidigare p&rojekt"}},
    {Entry, {RecentFile1, kFreeSlot, "", "recent"}},
    {Entry, {RecentFile2, kFreeSlot, "", "recent"}},
    {Entry, {RecentFile3, kFreeSlot, "", "recent"}},
    {Entry, {RecentFile4, kFreeSlot, "", "recent"}},
    {SubmenuEnd},
    {Line},
    {Entry, {Exit, "&Avsluta", "", "exit", "Ctrl+Q"}},

    {Menu, {None, "&Lista"}},
    {Submenu, {Add, "&Addera"}},
    {Entry, {AddFiles, "&Addera filer...", "Addera filer", "add-files", "Ctrl+Shift+A"}},
    {Entry, {AddTree, "Addera &träd...", "Addera träd", "add-tree", "Ctrl+Shift+T"}},
    {Entry, {AddEmptyFolder, "Addera tom katalo&g...", "Addera tom katalog", "add-folder", "Ctrl+Shift+K"}},
    {Entry, {AddDepFile, "Addera filer via DEP-fi&l...", "", "add-dependencies"}},
    {SubmenuEnd},
    {Entry, {CompareLstFile, "&Jämför fillista med Package && Deployment LST-fil", "", "compare"}},
    {Line},
    {Entry, {DeleteRows, "Ta &bort...", "Radera markerade objekt", "remove", "Del", KeysWork::InFileList}},
    {Entry, {SortList, "&Sortera...", "Sortera fillista", "sort"}},
    {Line},
    {Entry, {Icon, "&Ikon...", "Ikoninställningar", "icon"}},
    {Entry, {CopyOptions, "&Kopieringsinställningar...", "Kopieringsinställningar", "copy-options"}},
    {Entry, {RegisterFont, "Registrera &teckensnitt...", "", "register-font"}},
    {Entry, {FileInfo, "Visa &filinformation...", "Visa filinformation", "file-info", "Alt+Return", KeysWork::InFileList}},
    {Line},
    {Entry, {ChangeDestination, "Ändra &destinationskatalog...", "Ändra destinationskatalog", "destination"}},
    {Entry, {ShowDestinations, "&Visa alla destinationskataloger...", "Visa alla destinationskataloger", "destinations"}},
    {Submenu, {None, "S&ök och ersätt"}},
    {Entry, {ReplaceDestinations, "Sök och ersätt &destinationskataloger...", "", "replace-destinations"}},
    {Entry, {ReplaceSources, "Sök och ersätt &källkataloger...", "", "replace-sources"}},
    {Entry, {ReplaceOptions, "Sök och ersätt k&opieringsinställningar...", "", "replace-options"}},
    {SubmenuEnd},
    {Line},
    {Entry, {RegisterFiles, "&Registrera filer...", "", "register-files"}},
    {Entry, {ProgramGroup, "&Programgrupp / meny...", "", "program-group"}},
    {Line},
    {Entry, {UpdateFileList, "&Uppdatera lista", "Uppdatera fillista", "refresh", "F5"}},

    {Menu, {None, "&Objekt"}},
    {Entry, {Background, "B&akgrund...", "Bakgrund", "background"}},
    {Entry, {Title, "&Titel...", "Titel", "title"}},
    {Entry, {Underline, "&Understrykning av titel...", "Understrykning av titel", "underline"}},
    {Entry, {TextBox, "Te&xtruta...", "Textruta", "text-box"}},
    {Entry, {RtfBox, "&RTF-ruta...", "RTF-ruta", "rtf-box"}},
    {Entry, {Pictures, "&Bilder...", "Bilder", "pictures"}},
    {Entry, {ChangingPictures, "&Växlingsbara bilder...", "Växlingsbara bilder", "slides"}},
    {Entry, {Logotype, "&Logotype...", "Logotype", "logotype"}},
    {Entry, {PercentGauge, "&Procentmätare...", "", "percent"}},
    {Entry, {Sound, "Lju&d...", "", "sound"}},
    {Line},
    {Entry, {Overview, "&Översikt...", "", "overview"}},

    {Menu, {None, "&Redigera"}},
    {Entry, {Undo, "&Ångra", "Ångra", "undo", "Ctrl+Z"}},
    {Entry, {Redo, "&Gör om", "Gör om", "redo", "Ctrl+Y"}},
    {Line},
    {Entry, {Copy, "K&opiera", "Kopiera", "copy", "Ctrl+C", KeysWork::InEditors}},
    {Entry, {Paste, "K&listra in", "Klistra in", "paste", "Ctrl+V", KeysWork::InEditors}},
    {Line},
    {Entry, {FindInList, "&Sök i fillistan...", "Sök i fillistan", "find", "Ctrl+F"}},

    {Menu, {None, "&Special"}},
    {Entry, {InstallOptions, "&Inställningar...", "", "install-options"}},
    {Entry, {Language, "&Språk...", "", "language"}},
    {Line},
    {Entry, {RunAppAfter, "&Kör program efter installation...", "", "run-after"}},
    {Entry, {ShowDocAfter, "Visa &dokument efter installation...", "", "document-after"}},
    {Entry, {RunScript, "K&ör skript...", "", "script"}},
    {Entry, {AutoexecConfig, "A&utoexec.bat && Config.sys...", "", "startup-files"}},
    {Line},
    {Entry, {Variables, "Va&riabler...", "", "variables"}},
    {Entry, {VersionInfo, "&Versionsinformation...", "", "version"}},
    {Line},
    {Entry, {EditorOptions, "&Alternativ...", "", "options"}},

    {Menu, {None, "&Fönster"}},
    {Entry, {FilesTab, "&Fillista", "", "tab-files", "Ctrl+1"}},
    {Entry, {DesignTab, "&Design", "", "tab-design", "Ctrl+2"}},
    {Entry, {DialogsTab, "Di&alogrutor", "", "tab-dialogs", "Ctrl+3"}},
    {Entry, {RegistryTab, "&Registry", "", "tab-registry", "Ctrl+4"}},
    {Entry, {IniFilesTab, "&INI-filer", "", "tab-ini", "Ctrl+5"}},
    {Entry, {ComponentsTab, "&Komponenter", "", "tab-components", "Ctrl+6"}},

    {Menu, {None, "&Hjälp"}},
    {Entry, {HelpContents, "&Innehåll", "", "contents", "F1"}},
    {Entry, {HelpSearch, "&Sök...", "", "find"}},
    {Entry, {HelpOnHelp, "&Hur du använder hjälpen", "", "help"}},
    {Line},
    {Entry, {Support, "S&upport", "", "support"}},
    {Entry, {BugReport, "&Felrapportguide...", "", "bug"}},
    {Line},
    {Entry, {About, "&Om Tavrell Quillon 2004...", "", "about"}},
};

constexpr Command kToolbarOnly[] = {
    {PreviewScreen, "", "Förhandsgranska installationsskärm", "preview"},
    {Help, "", "Hjälp", "help"},
};

constexpr CommandId kFilesBar[] = {
    NewProject, OpenProject, SaveProject, None,
    Create, Test, None,
    AddFiles, AddTree, AddEmptyFolder, DeleteRows, None,
    Icon, CopyOptions, FileInfo, None,
    ChangeDestination, ShowDestinations, None,
    SortList, UpdateFileList, None,
    Help};
constexpr CommandId kDesignBar[] = {
    NewProject, OpenProject, SaveProject, None,
    Create, Test, None,
    Background, Title, Underline, TextBox, RtfBox, Pictures, ChangingPictures, Logotype, None,
    PreviewScreen, None,
    Help};
constexpr CommandId kPlainBar[] = {
    NewProject, OpenProject, SaveProject, None,
    Create, Test, None,
    Help};
constexpr CommandId kTextBar[] = {
    NewProject, OpenProject, SaveProject, None,
    Create, Test, None,
    Copy, Paste, None,
    Help};
// clang-format on

} // namespace

CommandId CommandOf(Tab tab)
{
    switch (tab) {
    case Tab::Files:
        return FilesTab;
    case Tab::Design:
        return DesignTab;
    case Tab::Dialogs:
        return DialogsTab;
    case Tab::Registry:
        return RegistryTab;
    case Tab::IniFiles:
        return IniFilesTab;
    case Tab::Components:
        return ComponentsTab;
    }
    return None;
}

std::span<const MenuRow> MenuBarRows()
{
    return kMenuBar;
}

std::span<const CommandId> ToolbarIds(Tab tab)
{
    switch (tab) {
    case Tab::Files:
        return kFilesBar;
    case Tab::Design:
        return kDesignBar;
    case Tab::Registry:
    case Tab::IniFiles:
        return kTextBar;
    default:
        return kPlainBar;
    }
}

std::span<const Command> ToolbarOnlyCommands()
{
    return kToolbarOnly;
}

const Command* FindCommand(CommandId id)
{
    if (id == CommandId::None)
        return nullptr;
    const auto row = std::ranges::find_if(
        kMenuBar, [id](const MenuRow& entry) { return entry.command.id == id; });
    if (row != std::end(kMenuBar))
        return &row->command;
    const auto command = std::ranges::find(kToolbarOnly, id, &Command::id);
    return command == std::end(kToolbarOnly) ? nullptr : command;
}

} // namespace quillon
