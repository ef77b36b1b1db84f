#include "runtime/journal/journal_table.h"

#include <gtest/gtest.h>

namespace quillon {

const RegistryKey kFirma{RegistryRoot::CurrentUser, "SOFTWARE\\Firma"};
const RegistryData kNumber{kRegistryNumber, std::string("\7\0\0\0", 4)};

struct LineCase {
    JournalRecord record;
    const char* line;
};
class LineOfAJournal : public testing::TestWithParam<LineCase> {};

TEST_P(LineOfAJournal, GoesRound)
{
    EXPECT_EQ(JournalLine(GetParam().record), GetParam().line);
    const auto read = ReadJournalLine(GetParam().line);
    ASSERT_TRUE(read);
    EXPECT_EQ(*read, GetParam().record);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(OfEachKind, LineOfAJournal, testing::Values(
    LineCase{record::Product{"Exempel"}, "PRODUCT\tExempel"},
    LineCase{record::Message{"Uninstall_Title", "Ta bort %1"}, "MESSAGE\tUninstall_Title\tTa bort %251"},
    LineCase{record::Folder{"C:\\A"}, "FOLDER\tC:\\A"},
    LineCase{record::Place{"C:\\A"}, "PLACE\tC:\\A"},
    LineCase{record::File{"C:\\A\\b"}, "FILE\tC:\\A\\b"},
    LineCase{record::Replaced{"C:\\A\\b"}, "REPLACED\tC:\\A\\b"},
    LineCase{record::Backup{"C:\\b", "C:\\b.bak"}, "BACKUP\tC:\\b\tC:\\b.bak"},
    LineCase{record::Shared{"C:\\b"}, "SHARED\tC:\\b"},
    LineCase{record::Font{"C:\\b"}, "FONT\tC:\\b"},
    LineCase{record::Registered{"C:\\b"}, "REGISTERED\tC:\\b"},
    LineCase{record::AtRestart{"C:\\~qn1.tmp\\1", ""}, "ATRESTART\tC:\\~qn1.tmp\\1\t"},
    LineCase{record::Key{kFirma}, "KEY\tHKEY_CURRENT_USER\tSOFTWARE\\Firma"},
    LineCase{record::Value{kFirma, "Antal", kNumber, std::nullopt},
             "VALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tAntal\t4\t07000000\t\t"},
    LineCase{record::Value{kFirma, "", kNumber, RegistryData{kRegistryBytes, ""}},
             "VALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\t\t4\t07000000\t3\t"},
    LineCase{record::UninstallKey{kFirma}, "UNINSTALLKEY\tHKEY_CURRENT_USER\tSOFTWARE\\Firma"},
    LineCase{record::UninstallValue{kFirma, "v"}, "UNINSTALLVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tv"},
    LineCase{record::IniFile{"C:\\A.INI"}, "INIFILE\tC:\\A.INI"},
    LineCase{record::IniOpenEnd{"C:\\A.INI", "x=1"}, "INIOPENEND\tC:\\A.INI\tx=1"},
    LineCase{record::IniSection{"C:\\A.INI", "S"}, "INISECTION\tC:\\A.INI\tS"},
    LineCase{record::IniValue{"C:\\A.INI", "S", "x", "2", std::nullopt}, "INIVALUE\tC:\\A.INI\tS\tx\t2\t\t"},
    LineCase{record::IniValue{"C:\\A.INI", "S", "x", "2", "\tx = 1 "}, "INIVALUE\tC:\\A.INI\tS\tx\t2\t1\t%09x = 1 "},
    LineCase{record::TempFolder{"C:\\~qn1.tmp"}, "TEMPFOLDER\tC:\\~qn1.tmp"},
    LineCase{record::LeavingFolder{"C:\\Data"}, "LEAVING\tC:\\Data"},
    LineCase{record::MovedAside{"C:\\b", "C:\\~qn1.tmp\\1"}, "ASIDE\tC:\\b\tC:\\~qn1.tmp\\1"},
    LineCase{record::InsteadOf{"C:\\b", "C:\\~qn1.tmp\\1"}, "INSTEADOF\tC:\\b\tC:\\~qn1.tmp\\1"},
    LineCase{record::FormerValue{kFirma, "v", kNumber},
             "FORMERVALUE\tHKEY_CURRENT_USER\tSOFTWARE\\Firma\tv\t4\t07000000"},
    LineCase{record::RemovedKey{kFirma}, "REMOVEDKEY\tHKEY_CURRENT_USER\tSOFTWARE\\Firma"},
    LineCase{record::RegisteredBefore{"C:\\b"}, "REGISTEREDBEFORE\tC:\\b"},
    LineCase{record::AnnouncedBefore{"C:\\b"}, "ANNOUNCEDBEFORE\tC:\\b"},
    LineCase{record::StartupLine{"C:\\CONFIG.SYS", "FILES=40\t%A%"}, "STARTUPLINE\tC:\\CONFIG.SYS\tFILES=40%09%25A%25"},
    LineCase{record::Content{"C:\\a.txt", 5000000000, "0a1b"}, "CONTENT\tC:\\a.txt\t5000000000\t0a1b"},
    LineCase{record::Committed{}, "COMMITTED"}));
// clang-format on

TEST(JournalLine, TakesAnySignInAField)
{
    const JournalRecord record = record::Backup{"C:\\100%\\a\tb.txt", "rad1\r\nrad2%0D åäö"};
    const Text line = JournalLine(record);
    EXPECT_EQ(line, "BACKUP\tC:\\100%25\\a%09b.txt\trad1%0D%0Arad2%250D åäö");
    EXPECT_EQ(ReadJournalLine(line), record);
}

class NoLineOfAJournal : public testing::TestWithParam<const char*> {};

TEST_P(NoLineOfAJournal, IsRefused)
{
    EXPECT_EQ(ReadJournalLine(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    , NoLineOfAJournal,
    testing::Values("", "ANNAT\tx", "FILE", "FILE\ta\tb", "file\ta", "BACKUP\ta", "COMMITTED\tx",
                    // A root that the registry does not have.
                    "UNINSTALLKEY\tHKEY_CURRENT_USE\tFirma", "KEY\t\tFirma",
                    "UNINSTALLVALUE\tX\tFirma\tv", "VALUE\tX\tFirma\tv\t1\t\t\t",
                    // A value without data.
                    "VALUE\tHKEY_CURRENT_USER\tFirma\tv\t\t\t\t",
                    "VALUE\tHKEY_CURRENT_USER\tFirma\tv\t4\t0Z\t\t",
                    "VALUE\tHKEY_CURRENT_USER\tFirma\tv\t4\t00\t\tFF",
                    "FORMERVALUE\tHKEY_CURRENT_USER\tFirma\tv\t4\t0",
                    "FORMERVALUE\tHKEY_CURRENT_USER\tFirma\tv\t4",
                    // Neither with nor without a former line.
                    "CONTENT\tC:\\a.txt\t-1\t0a", "CONTENT\tC:\\a.txt\t05\t0a",
                    "CONTENT\tC:\\a.txt\t\t0a", "CONTENT\tC:\\a.txt\t5",
                    "INIVALUE\tC:\\A.INI\tS\tx\t2\t2\tx=1", "INIVALUE\tC:\\A.INI\tS\tx\t2\t\tx=1",
                    // Keys of the system's own.
                    "UNINSTALLKEY\tHKEY_LOCAL_MACHINE\t", "UNINSTALLKEY\tHKEY_LOCAL_MACHINE\t\\",
                    "UNINSTALLKEY\tHKEY_LOCAL_MACHINE\tsoftware",
                    "UNINSTALLKEY\tHKEY_LOCAL_MACHINE\tSOFTWARE\\Microsoft\\",
                    "UNINSTALLKEY\tHKEY_LOCAL_MACHINE\tSystem"));

TEST(JournalLine, MayNameASystemKeyThatGoesOnlyWhereItIsEmpty)
{
    EXPECT_TRUE(ReadJournalLine("KEY\tHKEY_LOCAL_MACHINE\tSOFTWARE"));
}

TEST(ReadJournal, LeavesABrokenOffLastLineOut)
{
    const auto records = ReadJournal("Huvud\r\nFOLDER\tC:\\A\r\nFILE\tC:\\A\\b", "Huvud");
    ASSERT_TRUE(records);
    ASSERT_EQ(records->size(), 1U);
    EXPECT_EQ(records->front(), JournalRecord(record::Folder{"C:\\A"}));
}

TEST(ReadJournal, RefusesWhatIsNoJournal)
{
    EXPECT_EQ(ReadJournal("", "Huvud"), std::nullopt);
    EXPECT_EQ(ReadJournal("Huvud", "Huvud"), std::nullopt);
    EXPECT_EQ(ReadJournal("FILE\tx\r\n", "Huvud"), std::nullopt);
    EXPECT_EQ(ReadJournal("Huvud 2\r\nFILE\tx\r\n", "Huvud"), std::nullopt);
    EXPECT_EQ(ReadJournal("Huvud\r\nskräp\r\n", "Huvud"), std::nullopt);
}

} // namespace quillon
