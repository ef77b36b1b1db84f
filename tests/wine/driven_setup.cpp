#include "wine/driven_setup.h"

#include "wine/package.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace fs = std::filesystem;

void UseNoScreen(const WinePrefix& prefix)
{
    ASSERT_EQ(prefix.RunCommandLine("reg add HKCU\\Software\\Wine\\Drivers /v Graphics /d null"),
              0U);
    prefix.Stop();
}

std::string DriveSetup(const WinePrefix& prefix, const std::string& script)
{
    const fs::path driver = WorkFolder() / "drive_setup.exe";
    fs::copy_file(TestProgramFolder() / "drive_setup.exe", driver, fs::copy_options::skip_existing);
    WriteBytes(prefix.DriveC() / "script.txt", script);
    EXPECT_EQ(prefix.Run(OnZ(driver), R"(C:\script.txt C:\driven.txt)"), 0U);
    return ReadBytes(prefix.DriveC() / "driven.txt");
}

} // namespace quillon::test
