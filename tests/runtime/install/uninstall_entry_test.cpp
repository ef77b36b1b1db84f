// The entry in the system's list of programs: each value of the table that writes it.
#include "runtime/support/setup_fixture.h"

#include "runtime/install/uninstall_entry.h"

namespace quillon {
namespace {

using test::kMain;
const RegistryKey kEntry{RegistryRoot::LocalMachine,
                         "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Exempel"};

class UninstallEntry : public test::SetupFixture {
protected:
    UninstallEntry()
    {
        AddFile("prog.exe", "%DESTDIR\\Bin", std::string(1500, 'p'));
        project.Version = {"Firma AB", "Exempelprogram", "", "1.2", "", ""};
    }

    std::optional<RegistryData> Value(const char* name) const
    {
        return target.ReadValue(kEntry, name);
    }
};

TEST_F(UninstallEntry, HasEachValueOfTheTable)
{
    const Text command = "\"" + kMain + "\\QNXUNIN.EXE\" \"" + kMain + "\\QNXUNIN.LOG\"";
    const std::map<Text, RegistryData> expected{
        {"DisplayName", TextData("Exempelprogram")},
        {"DisplayVersion", TextData("1.2")},
        {"Publisher", TextData("Firma AB")},
        {"UninstallString", TextData(command)},
        {"QuietUninstallString", TextData(command + " /S")},
        {"InstallLocation", TextData(kMain)},
        {"DisplayIcon", TextData(kMain + "\\QNXUNIN.EXE")},
        {"InstallDate", TextData("20040301")},
        {"EstimatedSize", NumberData(2)},
        {"NoModify", NumberData(1)},
        {"NoRepair", NumberData(1)},
    };
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(target.ValueNames(kEntry).size(), expected.size());
    for (const auto& [name, data] : expected)
        EXPECT_EQ(Value(name.c_str()), data) << name;
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(target.KeyExists(kEntry));
}

TEST_F(UninstallEntry, ShowsTheProjectWhereTheProductHasNoNameAndTheProgramsOwnVersion)
{
    project.Version.ProductName = "";
    package.setup.XProductVersion = "3.4.5.6";
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Value("DisplayName"), TextData("Exempel"));
    EXPECT_EQ(Value("DisplayVersion"), TextData("3.4.5.6"));
}

TEST_F(UninstallEntry, HasNoEmptyValue)
{
    project.Version = {};
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Value("Publisher"), std::nullopt);
    EXPECT_EQ(Value("DisplayVersion"), std::nullopt);
    EXPECT_EQ(Value("DisplayName"), TextData("Exempel"));
}

TEST_F(UninstallEntry, KeepsItsKeyOnAnUpgradeAndLosesWhatTheNewVersionLacks)
{
    const test::MachineState before = State();
    ASSERT_EQ(Install(), ExitCode::Done);
    project.Version = {"", "Exempelprogram 2", "", "2.0", "", ""};
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Value("DisplayName"), TextData("Exempelprogram 2"));
    EXPECT_EQ(Value("DisplayVersion"), TextData("2.0"));
    EXPECT_EQ(Value("Publisher"), std::nullopt);
    const RegistryKey above{RegistryRoot::LocalMachine,
                            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall"};
    EXPECT_EQ(target.SubKeys(above), std::vector<Text>{"Exempel"});
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(State(), before);
}

// Of two files that are kept, one is of the product's earlier version and one is the user's.
TEST_F(UninstallEntry, CountsTheFilesOfTheProductAlone)
{
    AddFile("data.txt", "%DESTDIR", std::string(3000, 'd'), "N");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(Value("EstimatedSize"), NumberData(5));
    memory.files.Put(kMain + "\\egen.txt", "användarens");
    AddFile("egen.txt", "%DESTDIR", std::string(9000, 'e'), "N");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kMain + "\\egen.txt"), "användarens");
    EXPECT_EQ(Value("EstimatedSize"), NumberData(5));
}

} // namespace
} // namespace quillon
