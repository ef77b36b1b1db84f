#include "helpers/windows_name.h"

#include "helpers/text.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

struct Case {
    Text text;
    PathFault fault;
};

} // namespace

TEST(FaultOfName, TellsWhatWindowsCannotHold)
{
    const Case cases[] = {
        {"a.txt", PathFault::None},
        {"Läs mig.first.txt", PathFault::None},
        {".gitignore", PathFault::None},
        {" leading", PathFault::None},
        {"100% & [x] {y} #1 'z' !", PathFault::None},
        {"", PathFault::Empty},
        {"a\r\nb", PathFault::Control},
        {"a\tb", PathFault::Control},
        {Text("a\0b", 3), PathFault::Control},
        {"a\x1F", PathFault::Control},
        {"a\x7F", PathFault::None},
        {"..", PathFault::Climbs},
        {"a<b", PathFault::Character},
        {"a>b", PathFault::Character},
        {"a:b", PathFault::Character},
        {"a\"b", PathFault::Character},
        {"a|b", PathFault::Character},
        {"a?b", PathFault::Character},
        {"a*b", PathFault::Character},
        {"a\\b", PathFault::Character},
        {"a/b", PathFault::Character},
        {".", PathFault::End},
        {"...", PathFault::End},
        {"a.", PathFault::End},
        {"a.txt ", PathFault::End},
        {" ", PathFault::End},
    };
    for (const Case& given : cases)
        EXPECT_EQ(FaultOfName(given.text), given.fault) << given.text;
}

TEST(FaultOfName, KnowsTheDevicesInAnyCaseAndWithAnyExtension)
{
    for (const char* name : {"CON", "prn", "Aux.txt", "NUL.tar.gz", "nul .txt", "COM1", "com9.log",
                             "LPT1", "lpt3.", "COM¹", "LPT³.x", "CONIN$", "conout$", "CLOCK$"})
        EXPECT_EQ(FaultOfName(name), Text(name).ends_with('.') ? PathFault::End : PathFault::Device)
            << name;
    for (const char* name :
         {"CONX", "console", "a.con", "COM", "COM0", "COM10", "LPTX", "nul_", "AUX1", "COM1x.txt"})
        EXPECT_EQ(FaultOfName(name), PathFault::None) << name;
}

TEST(FaultOfName, CountsCharactersAsTheFileSystemsDo)
{
    Text umlauts;
    for (int i = 0; i < 255; ++i)
        umlauts += "ä";
    EXPECT_EQ(FaultOfName(umlauts), PathFault::None);
    EXPECT_EQ(FaultOfName(umlauts + "x"), PathFault::TooLong);
}

TEST(FaultOfFolder, TakesAbsolutePathsAndThoseBelowAnother)
{
    for (const char* folder : {"C:\\", "c:/Data/App", "C:\\Data\\App\\", "Data", "Data\\App",
                               "\\\\server\\share\\App", "//server/share", "C:\\a\\\\b"})
        EXPECT_EQ(FaultOfFolder(folder), PathFault::None) << folder;
}

TEST(FaultOfFolder, TellsWhatIsNone)
{
    const Case cases[] = {
        {"", PathFault::NotAbsolute},
        {"C:", PathFault::NotAbsolute},
        {"C:Data", PathFault::NotAbsolute},
        {"\\Data", PathFault::NotAbsolute},
        {"\\\\", PathFault::NotAbsolute},
        {"C:\\Data\\..\\Windows", PathFault::Climbs},
        {"../Data", PathFault::Climbs},
        {"Data\\..", PathFault::Climbs},
        {"C:\\Data\\D:\\x", PathFault::Colon},
        {"Data:stream", PathFault::Colon},
        {"1:\\Data", PathFault::Colon},
        {"C:\\a?b\\c", PathFault::Character},
        {"\\\\?\\C\\Data", PathFault::Character},
        {"\\\\.\\pipe", PathFault::End},
        {"C:\\a.\\b", PathFault::End},
        {"C:\\a\\nul\\b", PathFault::Device},
        {"C:\\a\r\nF1=b", PathFault::Control},
    };
    for (const Case& given : cases)
        EXPECT_EQ(FaultOfFolder(given.text), given.fault) << given.text;
}

TEST(AsFileName, PutsHyphensForWhatNoFileNameHolds)
{
    EXPECT_EQ(AsFileName("  Åkes \"Spel\": a/b\\c*d?e<f>g|h\ti\r\nj "),
              "Åkes -Spel-- a-b-c-d-e-f-g-h-i--j");
    EXPECT_EQ(AsFileName("Exempel 1.0"), "Exempel 1.0");
    EXPECT_EQ(AsFileName(" "), "");
}

} // namespace quillon
