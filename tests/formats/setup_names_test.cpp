#include "formats/setup_names.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(ProgramGroup, MayHaveAnyTextThatStaysInTheStartMenu)
{
    for (const char* group :
         {"", "Firma", "Firma\\Program", "Firma Inc.", "A: B", "%COMPANY\\%PROJECTNAME",
          "\\Firma\\", "Firma/Program", "Frågor?", "CONTROL"}) {
        EXPECT_EQ(FaultOfProgramGroup(group), PathFault::None) << group;
        EXPECT_EQ(ProgramGroupFaultText(group), "") << group;
    }
}

TEST(ProgramGroup, LeadsNowhereElse)
{
    EXPECT_EQ(FaultOfProgramGroup(".."), PathFault::Climbs);
    EXPECT_EQ(FaultOfProgramGroup("Firma\\.. \\x"), PathFault::Climbs);
    EXPECT_EQ(FaultOfProgramGroup("Firma/../x"), PathFault::Climbs);
    EXPECT_EQ(FaultOfProgramGroup("C:\\Firma"), PathFault::Colon);
    EXPECT_EQ(FaultOfProgramGroup("z:"), PathFault::Colon);
    EXPECT_EQ(FaultOfProgramGroup("Firma\\NUL"), PathFault::Device);
    EXPECT_EQ(FaultOfProgramGroup("a\r\nb"), PathFault::Control);
    EXPECT_EQ(FaultOfProgramGroup(Text(256, 'a')), PathFault::TooLong);
    EXPECT_EQ(ProgramGroupFaultText("..\\Startup"),
              "Programgruppen '..\\Startup' fungerar inte: '..' får inte ingå.");
}

TEST(SetupName, IsOneNameThatNoOtherFileOfThePackageHas)
{
    for (const char* name : {"SETUP.EXE", "INSTALL.EXE", "Start mig.exe"})
        EXPECT_EQ(SetupNameFaultText(name, "SWEDISH.LNG"), "") << name;
    EXPECT_EQ(
        SetupNameFaultText("..\\viktig.doc", ""),
        "Installationsprogrammets filnamn '..\\viktig.doc' fungerar inte: tecknen \\ / : * ? \" "
        "< > | får inte ingå i ett namn.");
    EXPECT_EQ(SetupNameFaultText("", ""),
              "Installationsprogrammets filnamn '' fungerar inte: namnet saknas.");
    for (const char* name : {"..", "con.exe", "C:\\a.exe", "a.exe ", "a|b.exe"})
        EXPECT_NE(SetupNameFaultText(name, ""), "") << name;
    for (const char* name :
         {"FILELIST.INF", "qnsetup.inf", "FileData.dat", "DESOBJ.DAT", "AUTORUN.INF", "LICENSE.RTF",
          "SetupFiles", "QNS32X.BIN", "DUNZIP32.DLL", "QNREG32.BIN", "QNXREG2.BIN", "QNXUNIN.BIN",
          "PACKAGE.SHA256", "swedish.lng"})
        EXPECT_EQ(SetupNameFaultText(name, "SWEDISH.LNG"),
                  Text("Installationsprogrammets filnamn '") + name +
                      "' fungerar inte: paketet har en annan fil med det namnet.");
}

} // namespace quillon
