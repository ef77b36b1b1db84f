#include "filelist/options/row_options.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

struct Named {
    const char* name;
    const char* plain;       // without version rules
    const char* withVersion; // with them, the file having a version
    bool asksForVersion = false;
};

} // namespace

TEST(CopyOptions, AreWrittenInThisOrder)
{
    Text letters;
    Text controls;
    for (const CopyOption& option : kCopyOptions) {
        letters += option.letter;
        controls.append(option.control).append(" ");
        EXPECT_FALSE(option.meaning.empty());
    }
    EXPECT_EQ(letters, "DVNXRASWPBE*F");
    EXPECT_EQ(controls, "cDateTimeCheck cVersionCheck cNeverReplace cWarnIfExist cRegisterFile "
                        "cActiveFile cSharedFile cWriteProtected cSetWriteProtection cMakeBackup "
                        "cVersionNoCopyIfEqual cNoUninstall  ");
}

TEST(CopyOptions, CarryTheCaptionsOfTheOptionsDialog)
{
    const char* const captions[] = {"Kontrollera &datum och tid",
                                    "Kontrollera &version",
                                    "&Ersätt aldrig existerande fil",
                                    "Var&na alltid om en fil redan existerar",
                                    "&Registrera fil",
                                    "Hantera &aktiv fil",
                                    "&Filen delas med andra program",
                                    "Ersät&t även skrivskyddad fil",
                                    "&Sätt på skrivskydd",
                                    "Säkerhetskopiera alltid e&xisterande fil",
                                    "&Kopiera inte om samma version",
                                    "Denna fil f&år aldrig avinstalleras",
                                    ""};
    for (std::size_t i = 0; i < kCopyOptions.size(); ++i)
        EXPECT_EQ(kCopyOptions[i].caption, captions[i]);
}

TEST(StartingCopyOptions, FollowTheName)
{
    const Named files[] = {
        {"a.txt", "D", "D"},
        {"setup.exe", "D", "V", true},
        {"SETUP.EXE", "D", "V", true},
        {"a.dll", "DA", "VA", true},
        {"a.ocx", "VRA", "VRA"},
        {"setup.exe.bak", "D", "V", true},
        {"x.dll.txt", "DA", "VA", true},
        {"a.dll.ocx", "VRA", "VA", true},
        {"a.exe.ocx", "VRA", "V", true},
        {"a.dll.exe", "DA", "V", true},
        {"dll", "D", "D"},
        {"<Dir>", "D", "D"},
        {"OLEAUT32.DLL", "VRAW", "VRAW"},
        {"OLEPRO32.DLL", "VRAW", "VRAW"},
        {"COMCAT.DLL", "VRAW", "VRAW"},
        {"MSVBVM50.DLL", "VRAW", "VRAW"},
        {"MSVBVM60.DLL", "VRAW", "VRAW"},
        {"MFC40.DLL", "VRAW", "VRAW"},
        {"MFC42.DLL", "VRAW", "VRAW"},
        {"MSDERUN.DLL", "VRAW", "VRAW"},
        {"MSBIND.DLL", "VRAW", "VRAW"},
        {"MSDBRPTR.DLL", "VRAW", "VRAW"},
        {"ASYCFILT.DLL", "VAWE", "VAWE"},
        {"CTL3D32.DLL", "VAWE", "VAWE"},
        {"COMCTL32.DLL", "VAWE", "VAWE"},
        {"COMDLG32.DLL", "VAWE", "VAWE"},
        {"MSVCRT.DLL", "VAWE", "VAWE"},
        {"MSVCRT40.DLL", "VAWE", "VAWE"},
        {"STDOLE2.TLB", "VAW", "VAW"},
        {"msvcrt.dll", "VAWE", "VAWE"},
        {"msvcrt.dll.old", "DA", "VA", true},
    };
    for (const Named& file : files) {
        bool asked = false;
        const auto hasVersion = [&](bool answer) {
            return [&asked, answer] {
                asked = true;
                return answer;
            };
        };
        EXPECT_EQ(StartingCopyOptions(file.name, false, hasVersion(true)), file.plain) << file.name;
        EXPECT_FALSE(asked) << file.name << ": no version rules, no look into the file";
        EXPECT_EQ(StartingCopyOptions(file.name, true, hasVersion(true)), file.withVersion);
        EXPECT_EQ(asked, file.asksForVersion) << file.name;
        EXPECT_EQ(StartingCopyOptions(file.name, true, hasVersion(false)), file.plain) << file.name;
    }
}

TEST(StartingSystemFileOptions, FollowTheName)
{
    struct {
        const char* name;
        bool isRuntimeFile;
        const char* options;
    } const files[] = {
        {"a.dll", false, "VA"},       {"a.dll", true, "VRAW"},   {"a.tlb", false, "D"},
        {"A.TLB", true, "D"},         {"a.b.tlb", true, "VRAW"}, {"stdole2.tlb", false, "VAW"},
        {"STDOLE2.TLB", true, "VAW"}, {"a.ocx", false, "VA"},    {"msvcrt.dll", false, "VA"},
    };
    for (const auto& file : files)
        EXPECT_EQ(StartingSystemFileOptions(file.name, file.isRuntimeFile), file.options)
            << file.name;
}

} // namespace quillon::test
