#include "ui/icons.h"

#include "ui/icon_engine.h"

#include <QtWidgets>
#include <algorithm>

// Outside any namespace, as the macro wants it. A static library's pictures are not found before
// this has run.
static void TakeInPictures()
{
    Q_INIT_RESOURCE(icons);
}

namespace quillon {

namespace {

struct CommandPicture {
    int id;
    const char* name;
};

// clang-format off
constexpr CommandPicture kPictures[] = {
    {101, "new"}, {102, "open"}, {103, "save"}, {104, "save-as"}, {105, "project-manager"},
    {107, "import-ini"}, {108, "create"}, {109, "test"}, {110, "print"}, {112, "exit"},

    {113, "compare"}, {114, "remove"}, {115, "sort"}, {116, "icon"}, {117, "copy-options"},
    {118, "register-font"}, {119, "file-info"}, {120, "destination"}, {121, "destinations"},
    {122, "register-files"}, {123, "program-group"}, {124, "refresh"},
    {205, "add-files"}, {206, "add-tree"}, {207, "add-folder"}, {208, "add-dependencies"},
    {209, "replace-destinations"}, {210, "replace-sources"}, {211, "replace-options"},

    {125, "background"}, {126, "title"}, {127, "underline"}, {128, "text-box"}, {129, "rtf-box"},
    {130, "pictures"}, {131, "slides"}, {132, "logotype"}, {133, "percent"}, {134, "sound"},
    {135, "overview"},

    {215, "undo"}, {216, "redo"}, {136, "copy"}, {137, "paste"},
    {217, "find"},

    {138, "install-options"}, {139, "language"}, {140, "run-after"}, {141, "document-after"},
    {142, "script"}, {143, "startup-files"}, {144, "variables"}, {145, "version"},
    {146, "options"},

    {147, "tab-files"}, {148, "tab-design"}, {149, "tab-dialogs"}, {150, "tab-registry"},
    {151, "tab-ini"}, {152, "tab-components"},

    {201, "import-project"}, {202, "import-project"}, {203, "import-project"},
    {214, "import-folder"}, {291, "recent"}, {292, "recent"}, {293, "recent"}, {294, "recent"},

    {153, "contents"}, {154, "find"}, {155, "help"}, {156, "support"}, {157, "bug"}, {158, "about"}, {301, "preview"}, {302, "help"},
};
// clang-format on

} // namespace

QIcon CommandIcon(int id)
{
    const auto* picture = std::ranges::find(kPictures, id, &CommandPicture::id);
    return picture == std::end(kPictures) ? QIcon() : NamedIcon(picture->name);
}

QIcon NamedIcon(const char* name)
{
    TakeInPictures();
    return QIcon(new SvgIconEngine(QString::fromLatin1(name)));
}

} // namespace quillon
