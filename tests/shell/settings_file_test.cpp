#include "shell/settings_file.h"

#include "helpers/ansi_text.h"
#include "platform/run_error.h"
#include "shell/settings_keys.h"
#include "support/golden.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon {
namespace {

constexpr const char* kFile = "C:\\Data\\Roaming\\Quillon\\QUILLON.INI";
constexpr const char* kMyDocuments = "C:\\Mina dokument";

class SettingsFileTest : public testing::Test {
protected:
    test::MemoryHost memory;
    test::ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, "C:\\Program\\Quillon");

    void Read(const Text& content)
    {
        memory.files.Put(kFile, AnsiText::ToBytes(content));
        ReadDataFromIniFile(session);
    }

    std::string Written()
    {
        WriteDataToIniFile(session);
        return memory.files.Get(kFile);
    }

    void ExpectNewMachine() const
    {
        const Settings& settings = session.Settings;
        for (const auto& key : kLastFolders)
            EXPECT_EQ(settings.Directories.*std::get<Text LastFolders::*>(key.field), kMyDocuments)
                << key.name;
        for (const Text& file : session.RecentFiles)
            EXPECT_EQ(file, "");
        EXPECT_EQ(settings.HideTabs.HideTabRegistry, 0);
        EXPECT_EQ(settings.HideTabs.HideTabINIFiles, 0);
        EXPECT_EQ(settings.HideTabs.HideTabComponents, 0);
        EXPECT_EQ(settings.ListOptions.ShowAlsoSourcePathInFileList, kOff);
        EXPECT_EQ(settings.ListOptions.ShowGridLinesInFileList, kOff);
        EXPECT_EQ(settings.ListOptions.OldStyleAddDialogBox, kOff);
        EXPECT_EQ(session.options.UpdateSetupExeDateTime, kOff);
        EXPECT_EQ(session.options.PlaceCompressedFilesInFolderSetupFiles, kOn);
        EXPECT_EQ(session.options.CreateFolderStructureInFolderSetupFiles, kOff);
        EXPECT_EQ(settings.WindowOptions.MyDocFolderAutoCreateDone, kOff);
        EXPECT_EQ(settings.WindowOptions.CBarsCurrentStyle, 3);
        EXPECT_EQ(settings.WindowPlace.Width, 0);
        EXPECT_EQ(settings.WindowPlace.Height, 0);
        EXPECT_EQ(settings.WindowPlace.Maximized, kOff);
        EXPECT_EQ(settings.WindowPlace.ColumnWidths, "");
    }

    void SetEverything()
    {
        session.Settings = {
            .Directories = {"C:\\Bilder", "C:\\Bilder\\Sidbilder", "C:\\Ljud", "C:\\Avtal",
                            "C:\\Källor\\VB6", "C:\\Källor\\NET"},
            .HideTabs = {.HideTabINIFiles = -1},
            .ListOptions = {.ShowAlsoSourcePathInFileList = kOn, .OldStyleAddDialogBox = kOn},
            .WindowOptions = {.MyDocFolderAutoCreateDone = kOn, .CBarsCurrentStyle = 2},
            .WindowPlace = {1180, 760, kOn, "0:120 1:300"}};
        session.RecentFiles = {"C:\\Projekt\\Räkna.qnp", "C:\\Projekt\\b.qnp"};
        session.options.UpdateSetupExeDateTime = kOn;
        session.options.PlaceCompressedFilesInFolderSetupFiles = kOff;
        session.options.CreateFolderStructureInFolderSetupFiles = kOn;
    }
};

TEST_F(SettingsFileTest, NeedsNoFile)
{
    ReadDataFromIniFile(session);
    ExpectNewMachine();
}

TEST_F(SettingsFileTest, WritesEveryKeyInItsOrder)
{
    SetEverything();
    EXPECT_TRUE(test::SameBytes(Written(), test::GoldenFile("shell/settings/QUILLON.INI")));
}

TEST_F(SettingsFileTest, ReadsWhatItWrote)
{
    memory.files.Put(kFile, test::GoldenFile("shell/settings/QUILLON.INI"));
    ReadDataFromIniFile(session);
    EXPECT_EQ(session.Settings.Directories.LastVB6ProjDir, "C:\\Källor\\VB6");
    EXPECT_EQ(session.RecentFiles[0], "C:\\Projekt\\Räkna.qnp");
    EXPECT_EQ(session.RecentFiles[2], "");
    EXPECT_EQ(session.Settings.HideTabs.HideTabINIFiles, kOn);
    EXPECT_EQ(session.options.PlaceCompressedFilesInFolderSetupFiles, kOff);
    EXPECT_EQ(session.Settings.WindowOptions.CBarsCurrentStyle, 2);
    EXPECT_EQ(session.Settings.WindowPlace.Width, 1180);
    EXPECT_EQ(session.Settings.WindowPlace.ColumnWidths, "0:120 1:300");
    memory.files.RemoveFile(kFile);
    EXPECT_TRUE(test::SameBytes(Written(), test::GoldenFile("shell/settings/QUILLON.INI")));
}

TEST_F(SettingsFileTest, LeavesLinesThatAreNotItsOwn)
{
    Read("; mine\r\n[Other]\r\nA = 1\r\n\r\n[options]\r\nCBARSCURRENTSTYLE = 0\r\nB=2\r\n");
    const std::string written = Written();
    EXPECT_TRUE(written.starts_with("; mine\r\n[Other]\r\nA = 1\r\n\r\n[options]\r\n"
                                    "CBARSCURRENTSTYLE=0\r\nB=2\r\n"))
        << written;
}

TEST_F(SettingsFileTest, TakesTheMarkOfAFreeSlotForAFreeSlot)
{
    Read("[RecentFiles]\r\nF1=C:\\a.qnp\r\nF2=(tom)\r\nF3=\r\nF4=C:\\d.qnp\r\n");
    EXPECT_EQ(session.RecentFiles, (std::array<Text, 4>{"C:\\a.qnp", "", "", "C:\\d.qnp"}));
}

TEST_F(SettingsFileTest, TakesMyDocumentsForAnEmptyFolder)
{
    Read("[Directories]\r\nLastSoundDir=\r\nLastPictureDir=D:\\Bilder\r\n");
    EXPECT_EQ(session.Settings.Directories.LastSoundDir, kMyDocuments);
    EXPECT_EQ(session.Settings.Directories.LastPictureDir, "D:\\Bilder");
}

TEST_F(SettingsFileTest, CutsTextsAtTheirLimits)
{
    const Text longText(400, 'x');
    Text content = "[Directories]\r\n";
    for (const auto& key : kLastFolders)
        content += Text(key.name) + "=" + longText + "\r\n";
    content += "[RecentFiles]\r\nF4=" + longText + "\r\n";
    Read(content);
    const LastFolders& folders = session.Settings.Directories;
    EXPECT_EQ(folders.LastPictureDir.size(), 199U);
    EXPECT_EQ(folders.LastDlgPictureDir.size(), 199U);
    EXPECT_EQ(folders.LastSoundDir.size(), 199U);
    EXPECT_EQ(folders.LastRtfLicenseFileDir.size(), 254U);
    EXPECT_EQ(folders.LastVB6ProjDir.size(), 254U);
    EXPECT_EQ(folders.LastVBNETProjDir.size(), 254U);
    EXPECT_EQ(session.RecentFiles[3].size(), 199U);
}

struct Nonsense {
    const char* name;
    const char* content;
};

class NonsenseInSettings : public SettingsFileTest, public testing::WithParamInterface<Nonsense> {};

TEST_P(NonsenseInSettings, GivesTheValuesOfANewMachine)
{
    Read(GetParam().content);
    ExpectNewMachine();
}

INSTANTIATE_TEST_SUITE_P(
    All, NonsenseInSettings,
    testing::Values(Nonsense{"EmptyFile", ""},
                    Nonsense{"NoSections", "a=1\r\nHideTabRegistry=-1\r\n"},
                    Nonsense{"UnclosedHeader", "[HideTabs\r\nHideTabRegistry=-1\r\n"},
                    Nonsense{"UnknownStyle", "[Options]\r\nCBarsCurrentStyle=99\r\n"},
                    Nonsense{"NegativeStyle", "[Options]\r\nCBarsCurrentStyle=-1\r\n"},
                    Nonsense{"OverflowingStyle",
                             "[Options]\r\nCBarsCurrentStyle=99999999999999999999\r\n"},
                    Nonsense{"OverflowingTab", "[HideTabs]\r\nHideTabRegistry=40000\r\n"},
                    Nonsense{"WordForATab", "[HideTabs]\r\nHideTabINIFiles=ja\r\n"},
                    Nonsense{"WordsForSwitches", "[Options]\r\nOldStyleAddDialogBox=True\r\n"
                                                 "MyDocFolderAutoCreateDone=-1\r\n"},
                    Nonsense{"HugeWindow", "[MainWindow]\r\nWidth=32000\r\nHeight=700\r\n"},
                    Nonsense{"TinyWindow", "[MainWindow]\r\nWidth=1000\r\nHeight=3\r\n"},
                    Nonsense{"NegativeWindow", "[MainWindow]\r\nWidth=-1000\r\nHeight=-700\r\n"},
                    Nonsense{"OverflowingWindow", "[MainWindow]\r\nWidth=70000\r\nHeight=700\r\n"},
                    Nonsense{"OnlyFreeSlots", "[RecentFiles]\r\nF1=(tom)\r\nF2=\"(tom)\"\r\n"}),
    [](const auto& one) { return one.param.name; });

TEST_F(SettingsFileTest, ReadsBytesOfAnyKind)
{
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 7);
    memory.files.Put(kFile, bytes);
    ReadDataFromIniFile(session);
    ExpectNewMachine();
    SetEverything();
    WriteDataToIniFile(session);
    Session next = NewSession(memory.host, ask, "C:\\Program\\Quillon");
    ReadDataFromIniFile(next);
    EXPECT_EQ(next.Settings.WindowOptions.CBarsCurrentStyle, 2);
    EXPECT_EQ(next.RecentFiles[0], "C:\\Projekt\\Räkna.qnp");
}

TEST_F(SettingsFileTest, WritesNoNameThatAFileCannotHold)
{
    const Text tooLong = "C:\\" + Text(185, 'x') + "Ж.qnp";
    session.RecentFiles = {tooLong, "C:\\a\r\n[Options].qnp", "C:\\å.qnp"};
    const Text written = AnsiText::FromBytes(Written());
    EXPECT_NE(written.find("F1=\r\nF2=\r\nF3=C:\\å.qnp\r\n"), Text::npos) << written;
}

TEST_F(SettingsFileTest, RemembersPathsWithCharactersOutsideTheCodePage)
{
    const Text folder = "C:\\verktyg Ω\\日本 ";
    const Text longest = "C:\\" + Text(184, 'x') + "Ж.qnp";
    session.RecentFiles = {"C:\\Ж.qnp", folder + "å.qnp", longest, "C:\\å.qnp"};
    session.Settings.Directories.LastSoundDir = "C:\\Ω";
    EXPECT_NE(Written().find("F1=utf-8:C:\\\xD0\x96.qnp\r\n"), std::string::npos);
    Session next = NewSession(memory.host, ask, "C:\\Program\\Quillon");
    ReadDataFromIniFile(next);
    EXPECT_EQ(next.RecentFiles, session.RecentFiles);
    EXPECT_EQ(next.Settings.Directories.LastSoundDir, "C:\\Ω");
}

TEST_F(SettingsFileTest, ReadsNothingFromADamagedName)
{
    memory.files.Put(kFile, "[RecentFiles]\r\nF1=utf-8:C:\\\xD0.qnp\r\nF2=utf-8:\r\n");
    ReadDataFromIniFile(session);
    EXPECT_EQ(session.RecentFiles[0], "");
    EXPECT_EQ(session.RecentFiles[1], "");
}

TEST_F(SettingsFileTest, WritesAHiddenTabAsMinusOneWhateverNumberStoodThere)
{
    Read("[HideTabs]\r\nHideTabRegistry=1\r\n");
    EXPECT_EQ(session.Settings.HideTabs.HideTabRegistry, kOn);
    EXPECT_NE(Written().find("HideTabRegistry=-1\r\n"), std::string::npos);
}

// Nothing is reported: the script expects no box, and no failure may leave the function.
TEST_F(SettingsFileTest, KeepsQuietAboutAFileThatCannotBeWritten)
{
    memory.files.Put(kFile, "[Options]\r\nCBarsCurrentStyle=1\r\n");
    memory.files.SetReadOnly(kFile, true);
    EXPECT_NO_THROW(WriteDataToIniFile(session));
    EXPECT_EQ(memory.files.Get(kFile), "[Options]\r\nCBarsCurrentStyle=1\r\n");

    memory.files.SetReadOnly(kFile, false);
    memory.files.FailFromWrite(1, ErrorNumber::kDiskFull);
    EXPECT_NO_THROW(WriteDataToIniFile(session));
}

TEST_F(SettingsFileTest, KeepsQuietAboutAFolderThatCannotBeMade)
{
    memory.files.refuseFolders = true;
    EXPECT_NO_THROW(WriteDataToIniFile(session));
    EXPECT_FALSE(memory.files.FileExists(kFile));
}

TEST_F(SettingsFileTest, LivesOnAMachineWithoutAFolderForSettings)
{
    memory.machine.settingsDir.clear();
    ReadDataFromIniFile(session);
    ExpectNewMachine();
    EXPECT_NO_THROW(WriteDataToIniFile(session));
    EXPECT_EQ(SettingsFile(memory.machine), "");
}

TEST_F(SettingsFileTest, ReadsAFileThatMayNotBeReadAsNone)
{
    memory.files.Put(kFile, "[Options]\r\nCBarsCurrentStyle=1\r\n");
    memory.files.At(kFile).unreadable = true;
    ReadDataFromIniFile(session);
    ExpectNewMachine();
    EXPECT_NO_THROW(WriteDataToIniFile(session));
}

} // namespace
} // namespace quillon
