#include "actions/forms/DlgRunScript.h"

#include "actions/forms/list_editor.h"
#include "shell/help.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

QWidget* TabOf(Piece piece)
{
    auto* tab = new QWidget;
    Arrange(tab, piece);
    return tab;
}

} // namespace

DlgRunScript::DlgRunScript(Session& session, QWidget* parent)
    : EditorForm("DlgRunScript", "Kör skript", session, parent)
{
    section::Lists& lists = session.project.Lists;
    Area(NAMED(tRunScriptBefore), lists.RunScriptBefore)
        ->setAccessibleName("Skript före installationen");
    UnsavableLineNote(NAMED(sRunScriptBeforeWarning), tRunScriptBefore,
                      &section::Lists::RunScriptBefore);
    Area(NAMED(tRunScriptAfter), lists.RunScriptAfter)
        ->setAccessibleName("Skript efter installationen");
    UnsavableLineNote(NAMED(sRunScriptAfterWarning), tRunScriptAfter,
                      &section::Lists::RunScriptAfter);
    Named(NAMED(ScriptTab), new QTabWidget, "Skript");
    ScriptTab->addTab(TabOf(ListEditor(tRunScriptBefore, sRunScriptBeforeWarning)),
                      "&Före installationen");
    ScriptTab->addTab(TabOf(ListEditor(tRunScriptAfter, sRunScriptAfterWarning)),
                      "&Efter installationen");
    Button(NAMED(cmdHelp), "&Hjälp", [this] { ShowHelp(session_, {CommandId::RunScript}); });
    Arrange(VBox({Growing(ScriptTab), HBox({cmdHelp, Growing(OkCancel())})}));
    tRunScriptBefore->setFocus();
}

void ShowRunScript(Session& session, QWidget* parent)
{
    DlgRunScript(session, parent).ShowModal();
}

} // namespace quillon
