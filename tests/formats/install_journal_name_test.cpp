#include "formats/install_journal_name.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(InstallJournalName, CountsTheProductsOfAFolder)
{
    EXPECT_EQ(InstallJournalName(1), "QNXUNIN.LOG");
    EXPECT_EQ(InstallJournalName(2), "QNXUNIN2.LOG");
    EXPECT_EQ(InstallJournalName(12), "QNXUNIN12.LOG");
}

TEST(InstallJournalName, IsKnownAgain)
{
    for (const char* name : {"QNXUNIN.LOG", "qnxunin2.log", "QnxUnin12.Log"})
        EXPECT_TRUE(IsInstallJournalName(name)) << name;
    for (const char* name : {"QNXUNIN.EXE", "QNXUNIN", "QNXUNI.LOG", "XQNXUNIN.LOG",
                             "QNXUNIN.LOG.bak", "QNXUNIN.A.LOG", "QNXUNIN.LOGG", "QNXUNINLOG", ""})
        EXPECT_FALSE(IsInstallJournalName(name)) << name;
}

} // namespace quillon
