#include "actions/dialog_bitmap.h"

#include "actions/kept_path.h"
#include "project/new_project.h"
#include "project/text_limits.h"

namespace quillon {

namespace {

constexpr PathKind kPicture{"Bilden", "Lägg bilden i en katalog närmare roten."};

} // namespace

std::optional<Text> ChooseDlgBitmap(Text& folder, Ask& ask)
{
    return ChooseKeptPath(
        {.title = "Välj bild", .filter = "Bitmappar (*.bmp)|*.bmp", .defaultExtension = ".bmp"},
        folder, MaxTextLength(&section::DialogBoxes::DlgBitmap), kPicture, ask);
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
