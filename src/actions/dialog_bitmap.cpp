#include "actions/dialog_bitmap.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "project/dialog_keys.h"
#include "project/new_project.h"

namespace quillon {

namespace {

/// Whether the project file gives the path back as it is; where not, a box says why.
bool CanKeepPath(const Text& path, Ask& ask)
{
    const int longest = LongestText(section::kDialogBoxes, &section::DialogBoxes::DlgBitmap);
    if (!AnsiText::Holds(path)) {
        ask.Critical("Ogiltiga tecken hittade",
                     "Bilden '" + path +
                         "' kan ej väljas. Namnet innehåller tecken som inte kan lagras i ett "
                         "projekt. Byt namn på filen eller katalogen och försök igen.");
        return false;
    }
    if (CharacterCount(path) > static_cast<std::size_t>(longest)) {
        ask.Critical("Fel", "Bilden '" + path +
                                "' kan ej väljas. Sökvägen är för lång för att kunna lagras i ett "
                                "projekt. Lägg bilden i en katalog närmare roten.");
        return false;
    }
    return true;
}

} // namespace

std::optional<Text> ChooseDlgBitmap(Text& folder, Ask& ask)
{
    const auto path = ask.OpenFile({.title = "Välj bild",
                                    .folder = folder,
                                    .filter = "Bitmappar (*.bmp)|*.bmp",
                                    .defaultExtension = ".bmp"});
    if (!path || path->empty())
        return std::nullopt;
    folder = ExtractDirectory(*path);
    return CanKeepPath(*path, ask) ? path : std::nullopt;
}

std::optional<Text> StandardDlgBitmap(const FileSystem& files, const Text& toolFolder, Ask& ask)
{
    try {
        const Text path = DefaultDlgBitmap(toolFolder);
        if (files.FileExists(path))
            return path;
        ask.Critical("Fel", "Standardbilden finns inte i förväntad katalog!");
    } catch (const std::exception&) {
        ask.Critical("Fel", "Oväntat fel inträffade när standardbilden skulle väljas!");
    }
    return std::nullopt;
}

void UseDlgBitmap(Project& project, const Text& path)
{
    section::DialogBoxData& data = project.DialogBoxData;
    for (Text* bitmap :
         {&project.DialogBoxes.DlgBitmap, &data.WelcomeDlgBitmap, &data.GeneralDlgBitmap,
          &data.GeneralDlgBitmap2, &data.StartInstallDlgBitmap, &data.InstallCompleteDlgBitmap,
          &data.NameCompanyDlgBitmap})
        *bitmap = path;
}

} // namespace quillon
