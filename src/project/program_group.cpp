#include "project/program_group.h"

namespace quillon {

void FillEmptyProgramGroup(Project& project)
{
    Text& group = project.ProgramGroup.ProgramGroup;
    if (group.empty())
        group = project.ProjectName.ProjectName;
}

GroupPlace PlaceOfGroup(const section::ProgramGroup& group)
{
    if (group.ProgramGroup_AllUsers != kOff)
        return GroupPlace::AllUsers;
    return group.ProgramGroup_CurrentUser != kOff ? GroupPlace::CurrentUser : GroupPlace::None;
}

void SetPlaceOfGroup(section::ProgramGroup& group, GroupPlace place)
{
    if (place == GroupPlace::None)
        return;
    group.ProgramGroup_CurrentUser = place == GroupPlace::CurrentUser ? kOn : kOff;
    group.ProgramGroup_AllUsers = place == GroupPlace::AllUsers ? kOn : kOff;
}

} // namespace quillon
