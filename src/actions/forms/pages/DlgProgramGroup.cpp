#include "actions/forms/pages/DlgProgramGroup.h"

#include "project/program_group.h"
#include "project/text_limits.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kNameCharacters = 40;

section::ProgramGroup& NamedGroup(Project& project)
{
    FillEmptyProgramGroup(project);
    return project.ProgramGroup;
}

} // namespace

DlgProgramGroup::DlgProgramGroup(Session& session, QWidget* parent)
    : EditorForm("DlgProgramGroup", "Programgrupp / meny", session, parent)
{
    section::ProgramGroup& group = NamedGroup(session.project);
    Field(NAMED(tProgramGroupName), group.ProgramGroup,
          MaxTextLength(&section::ProgramGroup::ProgramGroup));
    Named(NAMED(oCurrentUser), new QRadioButton("&Aktuell användare"));
    Named(NAMED(oAllUsers), new QRadioButton("A&lla användare"));
    oCurrentUser->setChecked(PlaceOfGroup(group) == GroupPlace::CurrentUser);
    oAllUsers->setChecked(PlaceOfGroup(group) == GroupPlace::AllUsers);
    Bind([this, &group] {
        SetPlaceOfGroup(group, oAllUsers->isChecked()      ? GroupPlace::AllUsers
                               : oCurrentUser->isChecked() ? GroupPlace::CurrentUser
                                                           : GroupPlace::None);
    });
    Arrange(VBox({
        Above("&Programgruppens namn:", MinWidth(kNameCharacters, tProgramGroupName)),
        Frame("Programgruppen skapas för", {oCurrentUser, oAllUsers}),
        Stretch(),
        OkCancel(),
    }));
    tProgramGroupName->setFocus();
}

void ShowProgramGroup(Session& session, QWidget* parent)
{
    DlgProgramGroup(session, parent).ShowModal();
}

} // namespace quillon
