#include "runtime/user_choices.h"

namespace quillon {

void AddChoices(const UserChoices& chosen, UserChoices& choices)
{
    if (!chosen.destination.empty())
        choices.destination = chosen.destination;
    if (chosen.programGroup)
        choices.programGroup = chosen.programGroup;
    if (chosen.user)
        choices.user = chosen.user;
    for (std::size_t i = 0; i < chosen.components.size(); ++i) {
        if (chosen.components[i].isTicked)
            choices.components[i].isTicked = chosen.components[i].isTicked;
        if (chosen.components[i].folder)
            choices.components[i].folder = chosen.components[i].folder;
    }
}

void ApplyChoices(const UserChoices& choices, SetupInformation& setup)
{
    Project& project = setup.project;
    if (choices.programGroup)
        project.ProgramGroup.ProgramGroup = *choices.programGroup;
    if (choices.user) {
        project.LicenseData = *choices.user;
        // What the user has left empty is not filled in again.
        project.DialogBoxData.GetNameCompanyFromRegistry = kOff;
    }
    for (std::size_t i = 0; i < choices.components.size(); ++i) {
        section::FileComponent& component = project.FileComponents[i];
        if (choices.components[i].isTicked)
            component.CompDefault = *choices.components[i].isTicked ? 1 : 0;
        if (choices.components[i].folder)
            component.CompDir = *choices.components[i].folder;
    }
}

} // namespace quillon
