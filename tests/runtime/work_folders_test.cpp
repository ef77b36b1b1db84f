#include "runtime/work_folders.h"

#include "runtime/support/setup_fixture.h"

#include <gtest/gtest.h>

namespace quillon {

class WorkFolders : public testing::Test {
protected:
    void Sweep()
    {
        RemoveAbandonedWorkFolders(files, "C:\\TEMP",
                                   [this](const Text& path) { return links.count(path) > 0; });
    }

    test::MemoryHost memory;
    test::FailingFiles files{memory.files};
    std::set<Text> links;
};

TEST_F(WorkFolders, OfKilledSetupsGo)
{
    memory.files.Put("C:\\TEMP\\QN123456.TMP\\QNS32X.EXE", "x");
    memory.files.Put("C:\\TEMP\\QN123456.TMP\\DUNZIP32.DLL", "x");
    memory.files.Put("C:\\TEMP\\qn7.tmp\\qnxunin.bin", "x");
    memory.files.SetReadOnly("C:\\TEMP\\qn7.tmp\\qnxunin.bin", true);
    memory.files.PutFolder("C:\\TEMP\\QN8.TMP");
    Sweep();
    EXPECT_TRUE(memory.files.List("C:\\TEMP").empty());
}

TEST_F(WorkFolders, OfLivingSetupsStay)
{
    memory.files.Put("C:\\TEMP\\QN1.TMP\\QNS32X.EXE", "x");
    files.locked.insert("C:\\TEMP\\QN1.TMP\\LOCK");
    Sweep();
    EXPECT_TRUE(memory.files.FileExists("C:\\TEMP\\QN1.TMP\\QNS32X.EXE"));
}

TEST_F(WorkFolders, ThatLeadElsewhereAreNotFollowed)
{
    memory.files.Put("C:\\TEMP\\QN1.TMP\\QNS32X.EXE", "x");
    links.insert("C:\\TEMP\\QN1.TMP");
    Sweep();
    EXPECT_TRUE(memory.files.FileExists("C:\\TEMP\\QN1.TMP\\QNS32X.EXE"));
}

TEST_F(WorkFolders, KeepWhatNoSetupPutsThere)
{
    memory.files.Put("C:\\TEMP\\QN1.TMP\\minne.txt", "x");
    memory.files.Put("C:\\TEMP\\QN1.TMP\\QNS32X.EXE", "x");
    for (const char* folder : {"QN.TMP", "QN1.TXT", "QN1A.TMP", "XQN1.TMP", "QN1.TMP.TMP", "QN1"})
        memory.files.Put(Text("C:\\TEMP\\") + folder + "\\QNS32X.EXE", "x");
    memory.files.Put("C:\\TEMP\\QN2.TMP", "a file");
    Sweep();
    EXPECT_TRUE(memory.files.FileExists("C:\\TEMP\\QN1.TMP\\minne.txt"));
    EXPECT_FALSE(memory.files.FileExists("C:\\TEMP\\QN1.TMP\\QNS32X.EXE"));
    EXPECT_EQ(memory.files.List("C:\\TEMP").size(), 8U);
    RemoveAbandonedWorkFolders(files, "C:\\FINNS INTE", [](const Text&) { return false; });
}

} // namespace quillon
