#include "shell/command_table.h"

#include <algorithm>

namespace quillon {

namespace {

using enum MenuPart;

// clang-format off
constexpr MenuRow kMenuBar[] = {
    {Menu, {0, "&Arkiv"}},
    {Entry, {101, "&Nytt projekt", "Nytt projekt", "Ctrl+N"}},
    {Entry, {102, "&Öppna projekt...", "Öppna projekt", "Ctrl+O"}},
    {Entry, {103, "&Spara projekt", "Spara projekt", "Ctrl+S"}},
    {Entry, {104, "Spara projekt so&m...", "", "Ctrl+Shift+S"}},
    {Entry, {105, "&Projekthanterare..."}},
    {Line},
    {Submenu, {106, "&Importera Visual Basic projekt"}},
    {Entry, {201, "Visual Basic &5.0 projekt..."}},
    {Entry, {202, "&Visual Basic &6.0 projekt..."}},
    {Entry, {203, "Visual Basic .&NET projekt..."}},
    {Entry, {214, "Importera &programkatalog..."}},
    {SubmenuEnd},
    {Entry, {107, "Imp&ortera INI-fil..."}},
    {Line},
    {Entry, {108, "S&kapa...", "Skapa", "F7"}},
    {Entry, {109, "&Testa...", "Testa", "Ctrl+T"}},
    {Entry, {110, "Skriv &ut...", "", "Ctrl+P"}},
    {Line},
    {Submenu, {0, "Tidigare p&rojekt"}},
    {Entry, {291, kFreeSlot}},
    {Entry, {292, kFreeSlot}},
    {Entry, {293, kFreeSlot}},
    {Entry, {294, kFreeSlot}},
    {SubmenuEnd},
    {Line},
    {Entry, {112, "&Avsluta", "", "Ctrl+Q"}},

    {Menu, {0, "&Lista"}},
    {Submenu, {213, "&Addera"}},
    {Entry, {205, "&Addera filer...", "Addera filer", "Ctrl+Shift+A"}},
    {Entry, {206, "Addera &träd...", "Addera träd", "Ctrl+Shift+T"}},
    {Entry, {207, "Addera tom katalo&g...", "Addera tom katalog", "Ctrl+Shift+K"}},
    {Entry, {208, "Addera filer via DEP-fi&l..."}},
    {SubmenuEnd},
    {Entry, {113, "&Jämför fillista med Package && Deployment LST-fil"}},
    {Line},
    {Entry, {114, "Ta &bort...", "Radera markerade objekt", "Del", KeysWork::InFileList}},
    {Entry, {115, "&Sortera...", "Sortera fillista"}},
    {Line},
    {Entry, {116, "&Ikon...", "Ikoninställningar"}},
    {Entry, {117, "&Kopieringsinställningar...", "Kopieringsinställningar"}},
    {Entry, {118, "Registrera &teckensnitt..."}},
    {Entry, {119, "Visa &filinformation...", "Visa filinformation", "Alt+Return", KeysWork::InFileList}},
    {Line},
    {Entry, {120, "Ändra &destinationskatalog...", "Ändra destinationskatalog"}},
    {Entry, {121, "&Visa alla destinationskataloger...", "Visa alla destinationskataloger"}},
    {Submenu, {0, "S&ök och ersätt"}},
    {Entry, {209, "Sök och ersätt &destinationskataloger..."}},
    {Entry, {210, "Sök och ersätt &källkataloger..."}},
    {Entry, {211, "Sök och ersätt k&opieringsinställningar..."}},
    {SubmenuEnd},
    {Line},
    {Entry, {122, "&Registrera filer..."}},
    {Entry, {123, "&Programgrupp / meny..."}},
    {Line},
    {Entry, {124, "&Uppdatera lista", "Uppdatera fillista", "F5"}},

    {Menu, {0, "&Objekt"}},
    {Entry, {125, "B&akgrund...", "Bakgrund"}},
    {Entry, {126, "&Titel...", "Titel"}},
    {Entry, {127, "&Understrykning av titel...", "Understrykning av titel"}},
    {Entry, {128, "Te&xtruta...", "Textruta"}},
    {Entry, {129, "&RTF-ruta...", "RTF-ruta"}},
    {Entry, {130, "&Bilder...", "Bilder"}},
    {Entry, {131, "&Växlingsbara bilder...", "Växlingsbara bilder"}},
    {Entry, {132, "&Logotype...", "Logotype"}},
    {Entry, {133, "&Procentmätare..."}},
    {Entry, {134, "Lju&d..."}},
    {Line},
    {Entry, {135, "&Översikt..."}},

    {Menu, {0, "&Redigera"}},
    {Entry, {kUndoCommand, "&Ångra", "Ångra", "Ctrl+Z"}},
    {Entry, {kRedoCommand, "&Gör om", "Gör om", "Ctrl+Y"}},
    {Line},
    {Entry, {136, "K&opiera", "Kopiera", "Ctrl+C", KeysWork::InEditors}},
    {Entry, {137, "K&listra in", "Klistra in", "Ctrl+V", KeysWork::InEditors}},
    {Line},
    {Entry, {217, "&Sök i fillistan...", "Sök i fillistan", "Ctrl+F"}},

    {Menu, {0, "&Special"}},
    {Entry, {138, "&Inställningar..."}},
    {Entry, {139, "&Språk..."}},
    {Line},
    {Entry, {140, "&Kör program efter installation..."}},
    {Entry, {141, "Visa &dokument efter installation..."}},
    {Entry, {142, "K&ör skript..."}},
    {Entry, {143, "A&utoexec.bat && Config.sys..."}},
    {Line},
    {Entry, {144, "Va&riabler..."}},
    {Entry, {145, "&Versionsinformation..."}},
    {Line},
    {Entry, {146, "&Alternativ..."}},

    {Menu, {0, "&Fönster"}},
    {Entry, {147, "&Fillista", "", "Ctrl+1"}},
    {Entry, {148, "&Design", "", "Ctrl+2"}},
    {Entry, {149, "Di&alogrutor", "", "Ctrl+3"}},
    {Entry, {150, "&Registry", "", "Ctrl+4"}},
    {Entry, {151, "&INI-filer", "", "Ctrl+5"}},
    {Entry, {152, "&Komponenter", "", "Ctrl+6"}},

    {Menu, {0, "&Hjälp"}},
    {Entry, {153, "&Innehåll", "", "F1"}},
    {Entry, {154, "&Sök..."}},
    {Entry, {155, "&Hur du använder hjälpen"}},
    {Line},
    {Entry, {156, "S&upport"}},
    {Entry, {157, "&Felrapportguide..."}},
    {Line},
    {Entry, {158, "&Om Tavrell Quillon 2004..."}},
};

constexpr Command kToolbarOnly[] = {
    {301, "", "Förhandsgranska installationsskärm"},
    {302, "", "Hjälp"},
};

constexpr int kFilesBar[] = {101, 102, 103, 0, 108, 109, 0, 205, 206, 207, 114, 0, 116, 117, 119, 0,
                             120, 121, 0, 115, 124, 0, 302};
constexpr int kDesignBar[] = {101, 102, 103, 0, 108, 109, 0, 125, 126, 127, 128, 129, 130, 131, 132, 0,
                              301, 0, 302};
constexpr int kPlainBar[] = {101, 102, 103, 0, 108, 109, 0, 302};
constexpr int kTextBar[] = {101, 102, 103, 0, 108, 109, 0, 136, 137, 0, 302};
// clang-format on

} // namespace

std::span<const MenuRow> MenuBarRows()
{
    return kMenuBar;
}

std::span<const int> ToolbarIds(Tab tab)
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

const Command* FindCommand(int id)
{
    if (id < kFirstCommand || id > kLastCommand)
        return nullptr;
    const auto row = std::ranges::find_if(
        kMenuBar, [id](const MenuRow& entry) { return entry.command.id == id; });
    if (row != std::end(kMenuBar))
        return &row->command;
    const auto command = std::ranges::find(kToolbarOnly, id, &Command::id);
    return command == std::end(kToolbarOnly) ? nullptr : command;
}

} // namespace quillon
