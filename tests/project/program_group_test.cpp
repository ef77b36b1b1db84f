#include "project/program_group.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(ProgramGroup, TakesTheNameOfTheProjectWhereItHasNone)
{
    struct Case {
        const char* group;
        const char* project;
        const char* result;
    };
    for (const Case& one :
         {Case{"", "Räkna", "Räkna"}, Case{"Firma\\Räkna", "Räkna", "Firma\\Räkna"},
          Case{" ", "Räkna", " "}, Case{"", "", ""}}) {
        Project project;
        project.ProgramGroup.ProgramGroup = one.group;
        project.ProjectName.ProjectName = one.project;
        FillEmptyProgramGroup(project);
        EXPECT_EQ(project.ProgramGroup.ProgramGroup, one.result);
        EXPECT_EQ(project.ProjectName.ProjectName, one.project);
    }
}

TEST(ProgramGroup, GoesToOnePlace)
{
    struct Case {
        Flag currentUser;
        Flag allUsers;
        GroupPlace place;
    };
    for (const Case& one :
         {Case{kOn, kOff, GroupPlace::CurrentUser}, Case{kOff, kOn, GroupPlace::AllUsers},
          Case{kOn, kOn, GroupPlace::AllUsers}, Case{kOff, kOff, GroupPlace::None}}) {
        section::ProgramGroup group;
        group.ProgramGroup_CurrentUser = one.currentUser;
        group.ProgramGroup_AllUsers = one.allUsers;
        EXPECT_EQ(PlaceOfGroup(group), one.place);
    }
    EXPECT_EQ(PlaceOfGroup(section::ProgramGroup()), GroupPlace::CurrentUser);
}

TEST(ProgramGroup, KeepsOneMark)
{
    section::ProgramGroup group;
    group.ProgramGroup_CurrentUser = group.ProgramGroup_AllUsers = kOn;
    SetPlaceOfGroup(group, GroupPlace::None);
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOn);
    EXPECT_EQ(group.ProgramGroup_AllUsers, kOn);
    SetPlaceOfGroup(group, GroupPlace::AllUsers);
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOff);
    EXPECT_EQ(group.ProgramGroup_AllUsers, kOn);
    SetPlaceOfGroup(group, GroupPlace::CurrentUser);
    EXPECT_EQ(group.ProgramGroup_CurrentUser, kOn);
    EXPECT_EQ(group.ProgramGroup_AllUsers, kOff);
}

} // namespace
} // namespace quillon
