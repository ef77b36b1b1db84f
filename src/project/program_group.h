// The group in the Start menu that a setup makes.
#pragma once

#include "project/records.h"

namespace quillon {

/// A group without a name takes the project's, in the project itself. Kept: the code that shows or
/// writes the group calls this, so that showing it changes the project.
void FillEmptyProgramGroup(Project& project);

/// Whose menu the group goes to. A project can have both marks, where all users count, or none.
enum class GroupPlace { None, CurrentUser, AllUsers };

GroupPlace PlaceOfGroup(const section::ProgramGroup& group);
/// `None` leaves the marks as they are.
void SetPlaceOfGroup(section::ProgramGroup& group, GroupPlace place);

} // namespace quillon
