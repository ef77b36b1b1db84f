#include "app/commands/popup_file_list.h"

#include "actions/forms/DlgShowDocAfter.h"
#include "app/MainForm.h"
#include "app/history/edit_name.h"
#include "filelist/forms/row_commands.h"
#include "project/components.h"
#include "shell/command_table.h"
#include "ui/look/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// An entry runs the command of its id, under the command's caption, or else its own action. One
// that has neither yet is shown disabled.
struct PopupEntry {
    const char* name; // null is a line between groups
    CommandId id = CommandId::None;
    const char* caption = nullptr;
    Action action = nullptr;
};

constexpr const char* kComponentNumber = "mPopupCompNr";

void ChangeComponentNumber(MainForm& form)
{
    ChangeComponentNumberCommand(form.GetSession(), form, &form);
}

void ChangeSource(MainForm& form)
{
    ChangeSourceCommand(form.GetSession(), form, &form);
}

void ShowDocument(MainForm& form)
{
    ShowDocOfRowAfter(form.GetSession(), form, &form);
}

// clang-format off
constexpr PopupEntry kEntries[] = {
    {"mPopupCopyOptions", CommandId::CopyOptions},
    {"mPopupIcon",        CommandId::Icon},
    {kComponentNumber,    CommandId::None, "Flytta till k&omponent...", ChangeComponentNumber},
    {nullptr},
    {"mPopupDestDir",     CommandId::ChangeDestination},
    {"mPopupSrcFile",     CommandId::None, "Ändra käl&lfil...", ChangeSource},
    {nullptr},
    {"mPopupDeleteFiles", CommandId::DeleteRows},
    {nullptr},
    {"mPopupShowDoc",     CommandId::None, "Visa dokument &efter installation...", ShowDocument},
    {"mPopupFileInfo",    CommandId::FileInfo},
};
// clang-format on

Action ActionOf(const PopupEntry& entry)
{
    return entry.id != CommandId::None ? FindAction(entry.id) : entry.action;
}

QString CaptionOf(const PopupEntry& entry)
{
    const Command* command = FindCommand(entry.id);
    return command ? ToQt(command->caption) : QString::fromUtf8(entry.caption);
}

void AddEntry(const PopupEntry& entry, MainForm& form, QMenu& menu)
{
    const Action action = ActionOf(entry);
    QAction* shown = menu.addAction(CaptionOf(entry));
    shown->setObjectName(entry.name);
    if (entry.id != CommandId::None)
        shown->setIcon(CommandIcon(entry.id));
    shown->setEnabled(action != nullptr);
    shown->setVisible(entry.name != kComponentNumber ||
                      IsAnyComponentInUse(form.GetSession().project));
    QObject::connect(shown, &QAction::triggered, &form, [&form, entry, action] {
        form.Run(action,
                 entry.id != CommandId::None ? EditName(entry.id) : EditName(entry.caption));
    });
}

} // namespace

QMenu* MakePopupFileList(MainForm& form)
{
    auto* menu = new QMenu(&form);
    menu->setObjectName("menuPopupFileList");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const PopupEntry& entry : kEntries)
        if (entry.name)
            AddEntry(entry, form, *menu);
        else
            menu->addSeparator();
    return menu;
}

void ShowPopupFileList(MainForm& form, const QPoint& onScreen)
{
    MakePopupFileList(form)->popup(onScreen);
}

} // namespace quillon
