#include "wine/driven_setup.h"

#include "wine/package.h"

#include <gtest/gtest.h>

#include <fstream>

namespace quillon::test {

namespace fs = std::filesystem;

// Written into the registry's file, since a session of Wine takes longer than many a test.
void UseNoScreen(const WinePrefix& prefix)
{
    prefix.Stop();
    std::ofstream registry(prefix.Folder() / "user.reg", std::ios::binary | std::ios::app);
    registry << "\n[Software\\\\Wine\\\\Drivers]\n\"Graphics\"=\"null\"\n";
    ASSERT_TRUE(registry.flush().good());
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
