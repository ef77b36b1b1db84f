#include "formats/variable_names.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(VariableNames, StandInTheOrderOfThePreview)
{
    const char* const names[] = {
        "%DESTDIR",      "%COMPDIR1",       "%COMPDIR2",    "%COMPDIR3",       "%COMPDIR4",
        "%COMPDIR5",     "%COMPDIR6",       "%COMPDIR7",    "%COMPDIR8",       "%COMPDIR9",
        "%SYSDIR",       "%WINDIR",         "%SRCDIR",      "%PROGRAMFILES",   "%COMMONFILES",
        "%FONTDIR",      "%DAODIR",         "%MYDOCUMENTS", "%APPDATADIR",     "%LOCALAPPDATADIR",
        "%TEMPLATESDIR", "%WORDSTARTUPDIR", "%DESTDRIVE",   "%SRCDRIVE",       "%PROJECTNAME",
        "%PROGRAMGROUP", "%COMPANY",        "%PRODUCTNAME", "%PRODUCTVERSION", "%XPRODUCTVERSION",
        "%DATE",         "%TIME",           "%USERCOMPANY", "%USERNAME",       "%USERADDRESS",
        "%USERPHONE",    "%USERFAX",        "%USEREMAIL",   "%REG1",           "%REG2",
        "%REG3"};
    ASSERT_EQ(kVariableNames.size(), std::size(names));
    for (std::size_t i = 0; i < kVariableNames.size(); ++i)
        EXPECT_EQ(kVariableNames[i].name, names[i]);
}

TEST(NameOf, FindsEachNameByItsMeaning)
{
    for (const VariableName& variable : kVariableNames)
        EXPECT_EQ(NameOf(variable.meaning, variable.number), variable.name);
}

} // namespace quillon
