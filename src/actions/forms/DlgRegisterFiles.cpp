#include "actions/forms/DlgRegisterFiles.h"

#include "actions/forms/list_editor.h"
#include "shell/help.h"
#include "shell/session.h"
#include "ui/controls/list_area.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgRegisterFiles::DlgRegisterFiles(Session& session, QWidget* parent)
    : EditorForm("DlgRegisterFiles", "Registrera filer", session, parent)
{
    Area(NAMED(tRegFileList), session.project.Lists.RegisterFileList);
    UnsavableLineNote(NAMED(sRegFileListWarning), tRegFileList, &section::Lists::RegisterFileList);
    Button(NAMED(cmdGetRFiles), "Hämta alla &registreringsmärkta filer från fillistan",
           [this] { Gather(RowsToRegister::Marked); });
    Button(NAMED(cmdGetDllFiles), "Hämta alla &DLL-filer från fillistan",
           [this] { Gather(RowsToRegister::Libraries); });
    Button(NAMED(cmdHelp), "&Hjälp", [this] { ShowHelp(session_, {CommandId::RegisterFiles}); });
    Arrange(VBox({
        Growing(Above("&Filer som ska registreras, en sökväg per rad:",
                      ListEditor(tRegFileList, sRegFileListWarning))),
        HBox({cmdGetRFiles, cmdGetDllFiles, Stretch()}),
        HBox({cmdHelp, Growing(OkCancel())}),
    }));
    tRegFileList->setFocus();
}

void DlgRegisterFiles::Gather(RowsToRegister which)
{
    const Text list = LinesFromQt(TypedText(tRegFileList));
    AppendLines(tRegFileList, LinesToGather(list, session_.project.Files, which));
}

void ShowRegisterFiles(Session& session, QWidget* parent)
{
    DlgRegisterFiles(session, parent).ShowModal();
}

} // namespace quillon
