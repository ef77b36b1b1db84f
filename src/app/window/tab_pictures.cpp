#include "app/window/tab_pictures.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "shell/command_table.h"
#include "ui/controls/picture.h"
#include "ui/look/icons.h"

#include <QtWidgets>

namespace quillon {

namespace {

QIcon TabPicture(const FileSystem& files, const Text& toolFolder, int tab)
{
    const Text file = "Res\\tab" + NumberText(tab + 1) + ".bmp";
    // The bitmaps are larger than they show, so that they stay sharp on a fine screen.
    if (const auto picture = LoadPicture(files, JoinPath(toolFolder, file)))
        return QIcon(QPixmap::fromImage(*picture));
    return CommandIcon(CommandOf(static_cast<Tab>(tab)));
}

} // namespace

void ShowTabPictures(QTabWidget& tabs, const FileSystem& files, const Text& toolFolder)
{
    for (int tab = 0; tab < tabs.count(); ++tab)
        tabs.setTabIcon(tab, TabPicture(files, toolFolder, tab));
}

} // namespace quillon
