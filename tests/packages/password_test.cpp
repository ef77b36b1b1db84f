// What a password protects and what not: the statements of docs/package-files.md, one by one.
#include "packages/packaged_product.h"

#include "archive/zip_reader.h"
#include "formats/package_files.h"
#include "formats/setup_information.h"
#include "helpers/ansi_text.h"

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

const Text kPassword = "Hemlig7";

class Password : public testing::Test {
protected:
    static PackageFiles Make(const ProductMedium& medium)
    {
        return MakeProductPackage(medium, kPassword);
    }
    static ZipReader Archive(const PackageFiles& files, const char* name)
    {
        MemoryFiles memory;
        memory.Put("D:\\a.zip", files.at(name));
        return ZipReader(memory.OpenInput("D:\\a.zip"));
    }
};

TEST_F(Password, KeepsAnOrdinaryUserFromInstalling)
{
    const PackageFiles files = Make({"Cd", Medium::CompressedCd});
    EXPECT_EQ(InstallProduct(files).code, ExitCode::Failed);
    EXPECT_EQ(InstallProduct(files, "fel").code, ExitCode::Failed);
    EXPECT_EQ(InstallProduct(files, kPassword).code, ExitCode::Done);
}

TEST_F(Password, EncryptsTheContainerAndLeavesNamesAndSizesPlain)
{
    const PackageFiles files = Make({"Cd", Medium::CompressedCd});
    ZipReader archive = Archive(files, kFileContainerName);
    ASSERT_EQ(archive.Entries().size(), 3U);
    for (const ZipEntry& entry : archive.Entries())
        EXPECT_TRUE(entry.isEncrypted) << entry.name;
    EXPECT_EQ(archive.Entries()[0].name, "data/prog.exe");
    EXPECT_EQ(archive.Entries()[0].size, 4000U);
    EXPECT_THROW(archive.Extract(archive.Entries()[0], "fel", [](auto) {}), ZipError);
}

TEST_F(Password, LiesInThePackageForWhoeverCanUnscramble)
{
    const PackageFiles files = Make({"Cd", Medium::CompressedCd});
    EXPECT_THAT(files.at(kSetupInformationName), Not(HasSubstr(kPassword)));
    const SetupInformation setup = ReadSetupInformation(files.at(kSetupInformationName));
    EXPECT_EQ(setup.project.DialogBoxData.CorrectPassword, kPassword);
    ZipReader archive = Archive(files, kFileContainerName);
    std::size_t unpacked = 0;
    archive.Extract(archive.Entries()[0], setup.project.DialogBoxData.CorrectPassword,
                    [&](std::span<const std::byte> bytes) { unpacked += bytes.size(); });
    EXPECT_EQ(unpacked, 4000U);
    EXPECT_THAT(VerifyProduct(files), IsEmpty()) << "nobody is asked for it";
}

TEST_F(Password, LeavesEverythingElsePlain)
{
    const PackageFiles files = Make({"Cd", Medium::CompressedCd});
    EXPECT_THAT(files.at(kFileListName), HasSubstr("F1=prog.exe;%DESTDIR;4000;data;"));
    EXPECT_THAT(files.at(kSetupInformationName), HasSubstr("HKEY_CURRENT_USER\\SOFTWARE\\Prov"));
    EXPECT_EQ(files.at(kLicenseRtfName), "{\\rtf1 text}");
    EXPECT_FALSE(Archive(files, kDesignContainerName).Entries().at(0).isEncrypted);
}

TEST_F(Password, LeavesFilesThatAreKeptByThemselvesPlain)
{
    EXPECT_EQ(Make({"OneByOne", Medium::CompressedCd, true}).at("SetupFiles\\läs mig.txt_"),
              "text");
    EXPECT_EQ(Make({"Tree", Medium::CdTree}).at("data\\läs mig.txt"), "text");
}

TEST_F(Password, IsNoSealOfThePackage)
{
    PackageFiles files = Make({"Cd", Medium::CompressedCd});
    std::string& bytes = files[kSetupInformationName];
    const std::string group = "ProgramGroup = ";
    bytes.insert(bytes.find(group) + group.size(), "Ny ");
    EXPECT_THAT(VerifyProduct(files), Not(IsEmpty()));
    ListAgain(files);
    EXPECT_THAT(VerifyProduct(files), IsEmpty());
    EXPECT_EQ(InstallProduct(files, kPassword).code, ExitCode::Done);
}

} // namespace
} // namespace quillon::test
