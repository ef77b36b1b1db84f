// One large product on every medium and in every form that a medium has.
#include "helpers/text.h"
#include "wine/folder_state.h"
#include "wine/registry_text.h"
#include "wine/sample_product.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

// What a user does with the files by hand, or what an option of the tool would have done.
using Arrange = void (*)(const fs::path& package, const SampleProduct& product);

void LeaveAsItIs(const fs::path&, const SampleProduct&) {}

// The files of this medium are laid out by the user, in the folders of their sources.
void LayOutTree(const fs::path& package, const SampleProduct& product)
{
    std::size_t number = 0;
    for (const PackagedRow& row : PackagedRows(package)) {
        if (row.name == kEmptyFolderName)
            continue;
        const fs::path folder = package / ReplaceAll(row.sourceFolder, "\\", "/");
        const fs::path source = product.Drive() / product.Files().at(number++).source;
        fs::create_directories(folder);
        fs::copy_file(source, folder / row.name);
        fs::last_write_time(folder / row.name, fs::last_write_time(source));
    }
    // The first list went when the programs of the other machine came.
    if (WineBits() == 64)
        WriteManifest(package);
}

void MoveBesideTheSetup(const fs::path& package, const SampleProduct&)
{
    for (const auto& entry : fs::directory_iterator(package / "SetupFiles"))
        fs::rename(entry.path(), package / entry.path().filename());
    fs::remove(package / "SetupFiles");
    ChangeSetupKey(package, "PlaceCompressedFilesInFolderSetupFiles", "0");
}

void MoveIntoFoldersOfDestinations(const fs::path& package, const SampleProduct&)
{
    const fs::path base = package / "SetupFiles";
    for (const PackagedRow& row : PackagedRows(package)) {
        if (row.name == kEmptyFolderName)
            continue;
        const fs::path folder = base / ReplaceAll(row.destination.substr(1), "\\", "/");
        fs::create_directories(folder);
        fs::rename(base / (row.name + "_"), folder / row.name);
    }
    ChangeSetupKey(package, "CreateFolderStructureInFolderSetupFiles", "1");
}

struct MediumCase {
    const char* name;
    std::vector<std::string> options;
    Arrange arrange = LeaveAsItIs;
    const char* password = "";
};

void PrintTo(const MediumCase& medium, std::ostream* out)
{
    *out << medium.name;
}

class EveryMedium : public testing::TestWithParam<MediumCase> {
protected:
    // A password that the project asks for, which encrypts the container.
    static void SetPassword(SampleProduct& product, const std::string& password)
    {
        if (password.empty())
            return;
        product.project.DialogBoxes.PasswordDlg = 1;
        product.project.DialogBoxData.CorrectPassword = password;
    }

    static fs::path Package(SampleProduct& product)
    {
        SetPassword(product, GetParam().password);
        const fs::path package = MakePackage(product.Order(GetParam().options));
        GetParam().arrange(package, product);
        return package;
    }

    static std::string Arguments()
    {
        const std::string password = GetParam().password;
        return password.empty() ? "/S" : "/S /PASSWORD=\"" + password + '"';
    }
};

void ExpectFile(const WinePrefix& prefix, const SampleProduct& product, const SampleFile& file)
{
    const fs::path installed = prefix.OnHost(file.destination);
    ASSERT_EQ(fs::exists(installed), file.isInstalled) << file.destination;
    if (!file.isInstalled)
        return;
    const fs::path source = product.Drive() / file.source;
    EXPECT_TRUE(ReadBytes(installed) == ReadBytes(source)) << file.destination;
    const auto apart = fs::last_write_time(installed) - fs::last_write_time(source);
    EXPECT_LT(std::chrono::abs(apart), std::chrono::seconds(2)) << file.destination;
    const auto writers = fs::status(installed).permissions() & fs::perms::owner_write;
    EXPECT_EQ(writers == fs::perms::none, file.isReadOnly) << file.destination;
}

TEST_P(EveryMedium, InstallsEveryFileAndNothingElse)
{
    SampleProduct product;
    const fs::path package = Package(product);
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), Arguments()), 0U);

    std::size_t installed = 0;
    for (const SampleFile& file : product.Files()) {
        ExpectFile(prefix, product, file);
        installed += file.isInstalled ? 1 : 0;
    }
    const fs::path mainFolder = prefix.OnHost("C:\\Program Files\\Provpaket Åäö");
    EXPECT_TRUE(fs::is_directory(mainFolder / "Tom mapp" / "Även den"));
    std::size_t found = 0;
    for (const auto& entry : fs::recursive_directory_iterator(mainFolder))
        found += entry.is_regular_file() ? 1 : 0;
    // What removes them comes with them, and the record that it goes by.
    const std::vector<std::string> ofTheUninstaller = {"QNXUNIN.EXE", "QNS32X.BIN",
                                                       "QNXUNIN.SHA256", "QNXUNIN.LOG"};
    for (const std::string& name : ofTheUninstaller)
        EXPECT_TRUE(fs::exists(mainFolder / name)) << name;
    EXPECT_EQ(found, installed + ofTheUninstaller.size());
}

INSTANTIATE_TEST_SUITE_P(
    Media, EveryMedium,
    testing::Values(
        MediumCase{"CompressedCd", {"--medium", "cd"}},
        MediumCase{"SmallCd", {"--medium", "cd", "--small"}},
        MediumCase{"StoredCd", {"--medium", "cd", "--no-compress"}},
        MediumCase{"CdTree", {"--medium", "tree"}, LayOutTree},
        MediumCase{"OneByOneInAFolder", {"--medium", "cd", "--separate"}},
        MediumCase{"OneByOneBesideTheSetup", {"--medium", "cd", "--separate"}, MoveBesideTheSetup},
        MediumCase{
            "OneByOneInATree", {"--medium", "cd", "--separate"}, MoveIntoFoldersOfDestinations},
        MediumCase{"Floppies", {"--medium", "floppy", "--continue"}},
        MediumCase{"WithPassword", {"--medium", "cd"}, LeaveAsItIs, "Hemlig räv 7"}),
    [](const auto& medium) { return medium.param.name; });

TEST(Floppies, AreSeveralAndAreCounted)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "floppy", "--continue"}));
    EXPECT_TRUE(fs::exists(package / "disk2" / "FILEDATA.DAT"));
    EXPECT_TRUE(fs::exists(package / "disk3" / "FILEDATA.DAT"));
    EXPECT_THAT(ReadBytes(package / "QNSETUP.INF"), testing::ContainsRegex("Floppies=[3-9]"));
}

TEST(Floppies, WriteNothingWhenOneIsMissing)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "floppy", "--continue"}));
    fs::remove_all(package / "disk3");
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 20001U);
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö")));
}

TEST(Password, LetsNobodyInWithoutIt)
{
    SampleProduct product;
    product.project.DialogBoxes.PasswordDlg = 1;
    product.project.DialogBoxData.CorrectPassword = "Hemlig räv 7";
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    const WinePrefix prefix;
    for (const char* arguments : {"/S", "/S /PASSWORD=fel"})
        EXPECT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), arguments), 1603U) << arguments;
    EXPECT_FALSE(fs::exists(prefix.OnHost("C:\\Program Files\\Provpaket Åäö")));
}

TEST(SampleSetup, WritesItsListsAndTakesThemAllBack)
{
    SampleProduct product;
    const fs::path package = MakePackage(product.Order({"--medium", "cd"}));
    const WinePrefix prefix;
    prefix.Restart();
    const RegistryText registryBefore(prefix);
    const FolderState before = StateOf(prefix.DriveC());
    const std::string winIni = "C:\\windows\\win.ini";
    const std::string winIniBefore = ReadBytes(prefix.OnHost(winIni));

    ASSERT_EQ(prefix.Run(OnZ(package / "SETUP.EXE"), "/S"), 0U);
    const RegistryText registry(prefix);
    EXPECT_EQ(registry.Value("HKLM\\Software\\Prov\\Djup\\Nyckel", "Tal"), "dword:fffffffb");
    EXPECT_EQ(registry.Value("HKCU\\Software\\Prov", "Mapp"),
              "C:\\Program Files\\Provpaket Åäö\\Data");
    EXPECT_EQ(registry.Value("HKLM\\Software\\Classes\\.prov", ""), "Prov.Fil");
    EXPECT_THAT(
        ReadBytes(prefix.OnHost(winIni)),
        testing::HasSubstr("[Prov]\r\nMapp=C:\\Program Files\\Provpaket \xC5\xE4\xF6\r\nTom=\r\n"));

    const auto uninstall = registry.Value(
        "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Provpaket Åäö",
        "QuietUninstallString");
    ASSERT_TRUE(uninstall.has_value());
    EXPECT_EQ(prefix.RunCommandLine(*uninstall), 0U);
    prefix.Restart();
    EXPECT_EQ(ReadBytes(prefix.OnHost(winIni)), winIniBefore);
    EXPECT_EQ(RegistryDifference(registryBefore, RegistryText(prefix)), "");
    // Its bytes are the old ones; only its date is new.
    EXPECT_EQ(FolderDifference(before, StateOf(prefix.DriveC())), "changed: windows/win.ini\n");
}

} // namespace
} // namespace quillon::test
