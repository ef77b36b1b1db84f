#include "ui/look/icons.h"

#include "shell/command_table.h"
#include "ui/look/icon_engine.h"

#include <QtWidgets>

// Outside any namespace, as the macro wants it. A static library's pictures are not found before
// this has run.
static void TakeInPictures()
{
    Q_INIT_RESOURCE(icons);
}

namespace quillon {

QIcon CommandIcon(CommandId id)
{
    const Command* command = FindCommand(id);
    return command == nullptr || command->icon.empty() ? QIcon() : NamedIcon(command->icon.data());
}

QIcon NamedIcon(const char* name)
{
    TakeInPictures();
    return QIcon(new SvgIconEngine(QString::fromLatin1(name)));
}

} // namespace quillon
