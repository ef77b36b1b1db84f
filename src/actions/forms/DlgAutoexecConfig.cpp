#include "actions/forms/DlgAutoexecConfig.h"

#include "actions/forms/list_editor.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr const char* kAddTheseLines = "Lägg till dessa rader:";

} // namespace

DlgAutoexecConfig::DlgAutoexecConfig(Session& session, QWidget* parent)
    : EditorForm("DlgAutoexecConfig", "Autoexec.bat & Config.sys", session, parent)
{
    section::Lists& lists = session.project.Lists;
    // Both captions read the same, which is not enough for a screen reader's user.
    Area(NAMED(tAUTOEXEC), lists.AutoexecBat)
        ->setAccessibleName("Rader att lägga till i AUTOEXEC.BAT");
    Area(NAMED(tCONFIG), lists.ConfigSys)->setAccessibleName("Rader att lägga till i CONFIG.SYS");
    UnsavableLineNote(NAMED(sAUTOEXECWarning), tAUTOEXEC, &section::Lists::AutoexecBat);
    UnsavableLineNote(NAMED(sCONFIGWarning), tCONFIG, &section::Lists::ConfigSys);
    Arrange(VBox({
        Growing(Frame("&AUTOEXEC.BAT",
                      {Above(kAddTheseLines, ListEditor(tAUTOEXEC, sAUTOEXECWarning))})),
        Growing(Frame("&CONFIG.SYS", {Above(kAddTheseLines, ListEditor(tCONFIG, sCONFIGWarning))})),
        OkCancel(),
    }));
    tAUTOEXEC->setFocus();
}

void ShowAutoexecConfig(Session& session, QWidget* parent)
{
    DlgAutoexecConfig(session, parent).ShowModal();
}

} // namespace quillon
