#include "runtime/install_log.h"

#include "support/memory_host.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(LogRecord, GoesRoundWithAnySignInItsFields)
{
    const LogRecord record{RecordKind::Backup, {"C:\\100%\\a\tb.txt", "rad1\r\nrad2%0D åäö"}};
    const Text line = LogRecordLine(record);
    EXPECT_EQ(line, "BACKUP\tC:\\100%25\\a%09b.txt\trad1%0D%0Arad2%250D åäö");
    EXPECT_EQ(ReadLogRecord(line), record);
}

TEST(LogRecord, KeepsEmptyFields)
{
    const LogRecord record{RecordKind::Value, {"HKCU", "a", "", "1", "", "", ""}};
    EXPECT_EQ(ReadLogRecord(LogRecordLine(record)), record);
}

TEST(LogRecord, IsRefusedWithAnUnknownWordOrWrongFields)
{
    EXPECT_EQ(ReadLogRecord("ANNAT\tx"), std::nullopt);
    EXPECT_EQ(ReadLogRecord("FILE"), std::nullopt);
    EXPECT_EQ(ReadLogRecord("FILE\ta\tb"), std::nullopt);
    EXPECT_EQ(ReadLogRecord(""), std::nullopt);
}

TEST(LogRecord, IsRefusedWhereItNamesNoKeyThatASetupMakes)
{
    EXPECT_TRUE(ReadLogRecord("UNINSTALLKEY\tHKEY_CURRENT_USER\tFirma"));
    EXPECT_EQ(ReadLogRecord("UNINSTALLKEY\tHKEY_CURRENT_USE\tFirma"), std::nullopt);
    EXPECT_EQ(ReadLogRecord("KEY\t\tFirma"), std::nullopt);
    EXPECT_EQ(ReadLogRecord("UNINSTALLVALUE\tX\tFirma\tv"), std::nullopt);
    EXPECT_EQ(ReadLogRecord("VALUE\tX\tFirma\tv\t1\t\t\t"), std::nullopt);
    for (const char* key : {"", "\\", "software", "SOFTWARE\\Microsoft\\", "System"})
        EXPECT_EQ(ReadLogRecord(Text("UNINSTALLKEY\tHKEY_LOCAL_MACHINE\t") + key), std::nullopt)
            << key;
    EXPECT_TRUE(ReadLogRecord("KEY\tHKEY_LOCAL_MACHINE\tSOFTWARE")) << "goes only if it is empty";
}

TEST(ReadInstallLog, LeavesABrokenOffLastLineOut)
{
    const auto records =
        ReadInstallLog("Quillon installationslogg 1\r\nFOLDER\tC:\\A\r\nFILE\tC:\\A\\b");
    ASSERT_TRUE(records);
    ASSERT_EQ(records->size(), 1U);
    EXPECT_EQ(records->front().fields[0], "C:\\A");
}

TEST(ReadInstallLog, RefusesWhatIsNoLog)
{
    EXPECT_EQ(ReadInstallLog(""), std::nullopt);
    EXPECT_EQ(ReadInstallLog("FILE\tx\r\n"), std::nullopt);
    EXPECT_EQ(ReadInstallLog("Quillon installationslogg 1\r\nskräp\r\n"), std::nullopt);
}

TEST(InstallLog, WritesEachRecordAtOnce)
{
    test::MemoryHost host;
    host.files.PutFolder("C:\\App");
    InstallLog log;
    log.Add(RecordKind::Folder, {"C:\\App"});
    log.Open(host.files, "C:\\App\\QNXUNIN.LOG");
    log.Add(RecordKind::File, {"C:\\App\\a.txt"});
    const auto records = ReadInstallLog(host.files.Get("C:\\App\\QNXUNIN.LOG"));
    ASSERT_TRUE(records);
    EXPECT_EQ(*records, log.Records());
    EXPECT_EQ(records->size(), 2U);
    EXPECT_TRUE(log.Has(RecordKind::File, "c:\\app\\A.TXT"));
    EXPECT_FALSE(log.Has(RecordKind::Folder, "C:\\App\\a.txt"));
}

} // namespace quillon
