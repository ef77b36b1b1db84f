#include "runtime/journal/install_journal.h"

#include "support/memory_host.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillon {

TEST(ReadInstallJournal, RefusesWhatIsNoLog)
{
    EXPECT_EQ(ReadInstallJournal(""), std::nullopt);
    EXPECT_EQ(ReadInstallJournal("FILE\tx\r\n"), std::nullopt);
    EXPECT_EQ(ReadInstallJournal("Quillon installationslogg 3\r\nFILE\tx\r\n"), std::nullopt);
    EXPECT_EQ(ReadInstallJournal("Quillon installationslogg 2\r\nskräp\r\n"), std::nullopt);
}

// Products that were installed by an earlier version have such logs for years.
TEST(ReadInstallJournal, ReadsTheFirstFormat)
{
    const auto records = ReadInstallJournal("Quillon installationslogg 1\r\n"
                                            "PRODUCT\tExempel\r\n"
                                            "FILE\tC:\\App\\a%25.txt\r\n"
                                            "INIVALUE\tC:\\A.INI\tS\tx\t2\t1\t100\r\n"
                                            "INIVALUE\tC:\\A.INI\tS\ty\t2\t\t\r\n");
    ASSERT_TRUE(records);
    EXPECT_EQ(*records, (std::vector<JournalRecord>{
                            record::Product{"Exempel"}, record::File{"C:\\App\\a%.txt"},
                            record::IniValue{"C:\\A.INI", "S", "x", "2", "x=100"},
                            record::IniValue{"C:\\A.INI", "S", "y", "2", std::nullopt}}));
}

TEST(InstallJournal, IsReadAsItWasSaved)
{
    test::MemoryHost host;
    host.files.PutFolder("C:\\App");
    InstallJournal log;
    log.Add(record::Folder{"C:\\App"});
    log.Add(record::File{"C:\\App\\a.txt"});
    log.Save(host.files, "C:\\App\\QNXUNIN.LOG");
    EXPECT_EQ(host.files.Get("C:\\App\\QNXUNIN.LOG"),
              "Quillon installationslogg 2\r\nFOLDER\tC:\\App\r\nFILE\tC:\\App\\a.txt\r\n");
    const auto read = ReadInstallJournal(host.files.Get("C:\\App\\QNXUNIN.LOG"));
    ASSERT_TRUE(read);
    EXPECT_TRUE(std::ranges::equal(*read, log.Records()));
}

// Long enough for several pieces.
TEST(InstallJournal, IsWholeHoweverLongItIs)
{
    test::MemoryHost host;
    host.files.PutFolder("C:\\App");
    InstallJournal log;
    std::vector<JournalRecord> expected{record::Folder{"C:\\App"}};
    std::vector<JournalRecord> contents;
    log.Add(expected.front());
    for (int i = 0; i < 5000; ++i) {
        const Text path = "C:\\App\\" + std::to_string(i) + ".txt";
        expected.push_back(record::File{path});
        contents.push_back(record::Content{path, std::uint64_t(i), Text(64, 'a')});
        log.Add(expected.back());
        log.Add(contents.back());
    }
    EXPECT_TRUE(std::ranges::equal(expected, log.Records()));
    log.Save(host.files, "C:\\App\\QNXUNIN.LOG");
    expected.insert(expected.end(), contents.begin(), contents.end());
    const auto read = ReadInstallJournal(host.files.Get("C:\\App\\QNXUNIN.LOG"));
    ASSERT_TRUE(read);
    EXPECT_TRUE(std::ranges::equal(*read, expected));
}

TEST(InstallJournal, KnowsTheSharedFilesOfEarlierInstallations)
{
    InstallJournal log;
    log.Add(record::Shared{"C:\\b.dll"});
    log.TakeOver({record::Shared{"C:\\A.DLL"}, record::File{"C:\\c.dll"}});
    EXPECT_TRUE(log.Has<record::Shared>("c:\\a.dll"));
    EXPECT_TRUE(log.Has<record::Shared>("C:\\B.DLL"));
    EXPECT_FALSE(log.Has<record::Shared>("C:\\c.dll"));
    EXPECT_FALSE(log.Has<record::Registered>("C:\\b.dll"));
    log.Add(record::Registered{"C:\\B.dll"});
    EXPECT_TRUE(log.Has<record::Registered>("C:\\b.dll"));
    EXPECT_EQ(log.Records().front(), JournalRecord(record::Shared{"C:\\A.DLL"}));
}

} // namespace quillon
