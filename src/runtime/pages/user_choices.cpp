#include "runtime/pages/user_choices.h"

namespace quillon {

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
