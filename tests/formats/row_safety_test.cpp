#include "formats/row_safety.h"

#include "formats/variable_names.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

struct Case {
    Text text;
    PathFault fault;
};

} // namespace

TEST(FaultOfRowName, TakesTheMarkOfAnEmptyFolder)
{
    EXPECT_EQ(FaultOfRowName("<Dir>"), PathFault::None);
    EXPECT_EQ(FaultOfRowName("<dir>"), PathFault::Character);
    EXPECT_EQ(FaultOfRowName("a.txt"), PathFault::None);
    EXPECT_EQ(FaultOfRowName("nul"), PathFault::Device);
}

TEST(FaultOfDestination, TakesEveryVariableAtTheBeginning)
{
    for (const VariableName& variable : kVariableNames) {
        const Text name(variable.name);
        const bool isDrive = name == "%DESTDRIVE" || name == "%SRCDRIVE";
        EXPECT_EQ(FaultOfDestination(name + "\\Data"), PathFault::None) << name;
        EXPECT_EQ(FaultOfDestination(name), isDrive ? PathFault::NotAbsolute : PathFault::None)
            << name;
    }
}

TEST(FaultOfDestination, TakesTextsWhereTheyMakeNames)
{
    for (const char* destination :
         {"%DESTDIR\\%PROJECTNAME", "%DESTDIR\\v%PRODUCTVERSION\\x", "%DESTDIR/Data/",
          "C:\\%COMPANY\\100% ren", "Data\\%USERNAME", "  %DESTDIR  ", "%COMPDIR9Extra"})
        EXPECT_EQ(FaultOfDestination(destination), PathFault::None) << destination;
}

TEST(FaultOfDestination, TellsWhatTheSetupCouldNotMake)
{
    const Case cases[] = {
        {"", PathFault::NotAbsolute},
        {"C:", PathFault::NotAbsolute},
        {"\\Data", PathFault::NotAbsolute},
        {"%DESTDIR\\..\\..\\Windows", PathFault::Climbs},
        {"%DESTDIR\\..", PathFault::Climbs},
        {"%DESTDIR/../x", PathFault::Climbs},
        {"%DESTDIR:stream", PathFault::Colon},
        {"C:\\%SYSDIR", PathFault::Colon},
        {"%DESTDIR\\%SRCDRIVE", PathFault::Colon},
        {"%DESTDRIVE:\\x", PathFault::NotAbsolute},
        {"%DESTDIR\\C:\\x", PathFault::Colon},
        {"%DESTDIR\\a|b", PathFault::Character},
        {"<Filen saknas>", PathFault::Character},
        {"%DESTDIR\\aux", PathFault::Device},
        {"%DESTDIR\\a. \\b", PathFault::End},
        {"%DESTDIR\\a\r\nb", PathFault::Control},
        {"%DESTDR\\Data", PathFault::UnknownVariable},
        {"%destdir\\Data", PathFault::UnknownVariable},
        {"%", PathFault::UnknownVariable},
    };
    for (const Case& given : cases)
        EXPECT_EQ(FaultOfDestination(given.text), given.fault) << given.text;
}

TEST(FaultOfSourceFolder, KeepsTheFilesOfATreeBelowIt)
{
    const Case cases[] = {
        {"", PathFault::None},
        {"data\\app", PathFault::None},
        {"\\server\\share", PathFault::None}, // what is left of a network path
        {"..\\secret", PathFault::Climbs},
        {"data/../../secret", PathFault::Climbs},
        {"c:\\windows", PathFault::Colon},
        {"c:", PathFault::Colon},
        {"a:b\\c", PathFault::Colon},
        {"data\\nul", PathFault::Device},
    };
    for (const Case& given : cases)
        EXPECT_EQ(FaultOfSourceFolder(given.text), given.fault) << given.text;
}

TEST(UnknownVariableIn, FindsWordsThatTheSetupLeavesAsTheyStand)
{
    const std::pair<Text, Text> cases[] = {
        {"%DESTDIR\\%PROJECTNAME", ""},
        {"%DESTDR\\Data", "%DESTDR"},
        {"%DESTDIR\\%FOO\\x", "%FOO"},
        {"%DESTDIR\\100%", ""},
        {"%DESTDIR\\50%A", ""},
        {"%DESTDIR\\50%OFF", "%OFF"},
        {"%DESTDIR\\%date", ""},
        {"%DATEX", ""}, // expanded, with an X after it
        {"%COMPDIR\\%COMPDIR1", "%COMPDIR"},
    };
    for (const auto& [destination, word] : cases)
        EXPECT_EQ(UnknownVariableIn(destination), word) << destination;
}

TEST(RowFaultTexts, NameTheTextAndTheReason)
{
    EXPECT_EQ(RowNameFaultText("a.txt"), "");
    EXPECT_EQ(
        RowNameFaultText("aux.txt"),
        "Namnet 'aux.txt' fungerar inte i Windows: CON, PRN, AUX, NUL, COM1 till COM9 och LPT1 "
        "till LPT9 är reserverade namn.");
    EXPECT_EQ(DestinationFaultText("%DESTDIR"), "");
    const std::pair<Text, Text> cases[] = {
        {"%DESTDIR\\..", "'..' får inte ingå"},
        {"%DESTDIR\\C:\\x", "ett kolon får bara stå efter enhetens bokstav"},
        {"%DESTDIR\\a?", "tecknen \\ / : * ? \" < > | får inte ingå i ett namn"},
        {"%DESTDIR\\a\tb", "styrtecken, till exempel radbrytningar, får inte ingå i ett namn"},
        {"%DESTDIR\\a.", "ett namn får inte sluta med punkt eller blanksteg"},
        {"%DESTDIR\\" + Text(256, 'n'), "ett namn får ha högst 255 tecken"},
        {"", "det är ingen fullständig katalog"},
        {"%DATEN", ""},
        {"%FEL", "variabeln är okänd"},
    };
    for (const auto& [destination, reason] : cases)
        EXPECT_EQ(DestinationFaultText(destination),
                  reason.empty() ? Text()
                                 : "Destinationen '" + destination +
                                       "' fungerar inte i Windows: " + reason + ".")
            << destination;
    EXPECT_NE(NameFaultText("<Dir>"), "");
    EXPECT_EQ(RowNameFaultText("<Dir>"), "");
    EXPECT_EQ(RowNameFaultText(""), "Namnet '' fungerar inte i Windows: namnet saknas.");
    EXPECT_EQ(SourceFolderFaultText("data"), "");
    EXPECT_EQ(SourceFolderFaultText("..\\data"),
              "Källkatalogen '..\\data' fungerar inte i Windows: '..' får inte ingå.");
}

} // namespace quillon
