#include "actions/forms/DlgRunAppAfter.h"

#include "actions/forms/target_file_field.h"
#include "project/text_limits.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::RunAppAfter;

constexpr int kFieldCharacters = 50;

QWidget* ProgramFrame(const Text& caption, QLineEdit* name, QLineEdit* parameters)
{
    return Frame(caption, {Fields({
                              {"Filnamn:", MinWidth(kFieldCharacters, name)},
                              {"Parametrar:", parameters},
                          })});
}

} // namespace

DlgRunAppAfter::DlgRunAppAfter(Session& session, QWidget* parent)
    : EditorForm("DlgRunAppAfter", "Kör följande program efter installation", session, parent)
{
    RunAppAfter& run = session.project.RunAppAfter;
    Field(NAMED(tProgramName1), run.AppFileName1, MaxTextLength(&RunAppAfter::AppFileName1));
    Field(NAMED(tParameters1), run.AppParam1, MaxTextLength(&RunAppAfter::AppParam1));
    Field(NAMED(tProgramName2), run.AppFileName2, MaxTextLength(&RunAppAfter::AppFileName2));
    Field(NAMED(tParameters2), run.AppParam2, MaxTextLength(&RunAppAfter::AppParam2));
    for (QLineEdit* program : {tProgramName1, tProgramName2})
        EditTargetFile(program, "Filnamn", session.ask);
    Arrange(VBox({
        ProgramFrame("Program 1", tProgramName1, tParameters1),
        ProgramFrame("Program 2", tProgramName2, tParameters2),
        Stretch(),
        OkCancel(),
    }));
}

void ShowRunAppAfter(Session& session, QWidget* parent)
{
    DlgRunAppAfter(session, parent).ShowModal();
}

} // namespace quillon
