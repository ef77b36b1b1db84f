#include "formats/installation_log_name.h"

#include <gtest/gtest.h>

namespace quillon {

TEST(InstallationLogName, CountsTheProductsOfAFolder)
{
    EXPECT_EQ(InstallationLogName(1), "QNXUNIN.LOG");
    EXPECT_EQ(InstallationLogName(2), "QNXUNIN2.LOG");
    EXPECT_EQ(InstallationLogName(12), "QNXUNIN12.LOG");
}

TEST(InstallationLogName, IsKnownAgain)
{
    for (const char* name : {"QNXUNIN.LOG", "qnxunin2.log", "QnxUnin12.Log"})
        EXPECT_TRUE(IsInstallationLogName(name)) << name;
    for (const char* name : {"QNXUNIN.EXE", "QNXUNIN", "QNXUNI.LOG", "XQNXUNIN.LOG",
                             "QNXUNIN.LOG.bak", "QNXUNIN.A.LOG", "QNXUNIN.LOGG", "QNXUNINLOG", ""})
        EXPECT_FALSE(IsInstallationLogName(name)) << name;
}

} // namespace quillon
