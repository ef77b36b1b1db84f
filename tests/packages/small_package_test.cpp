// A package with a solid container: the setup unpacks it in the container's order, and what it does
// is the same as with a ZIP file.
#include "packages/packaged_product.h"

#include "formats/package_files.h"

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const ProductMedium kZip{"Cd", Medium::CompressedCd};
const ProductMedium kSmall{"SmallCd", Medium::CompressedCd, false, true};

PackageFiles PackageOf(CreateDesk& desk)
{
    desk.Choose(Medium::CompressedCd);
    desk.form.SmallContainer = 1;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    PackageFiles files;
    for (const Text& name : desk.Package())
        files[name] = desk.Get(name);
    return files;
}

/// All but the record of the installation, which has the order of the work.
std::map<Text, std::string> WithoutRecord(const InstalledProduct& product)
{
    std::map<Text, std::string> machine = product.machine;
    EXPECT_EQ(std::erase_if(machine, [](const auto& file) { return file.first.ends_with(".log"); }),
              1U);
    return machine;
}

TEST(SmallPackage, IsInstalledAsOneWithAZipFile)
{
    const InstalledProduct small = InstallProduct(MakeProductPackage(kSmall));
    const InstalledProduct zip = InstallProduct(MakeProductPackage(kZip));
    EXPECT_EQ(small.code, ExitCode::Done) << small.log;
    EXPECT_EQ(WithoutRecord(small), WithoutRecord(zip));
    EXPECT_EQ(small.modified, zip.modified);
}

TEST(SmallPackage, RegistersInTheOrderOfTheRows)
{
    CreateDesk desk;
    desk.project.Files.rows.clear();
    // The container has them the other way round.
    desk.AddFile("b.ocx", "needs nothing")[CopyOptions] = "R";
    desk.AddFile("a.ocx", "needs b.ocx")[CopyOptions] = "R";
    const InstalledProduct product = InstallProduct(PackageOf(desk));
    EXPECT_EQ(product.code, ExitCode::Done) << product.log;
    const std::size_t registered = product.log.find("Registrerar ");
    ASSERT_NE(registered, Text::npos) << product.log;
    EXPECT_LT(product.log.find("b.ocx", registered), product.log.find("a.ocx", registered))
        << product.log;
    // Their bytes came in the container's order.
    EXPECT_GT(product.log.find("b.ocx"), product.log.find("a.ocx")) << product.log;
}

TEST(SmallPackage, LetsTheLaterOfTwoRowsForOnePlaceDecide)
{
    CreateDesk desk;
    desk.project.Files.rows.clear();
    desk.AddFile("z.txt", "first")[Filename] = "same.txt";
    desk.AddFile("a.txt", "second")[Filename] = "Same.txt";
    const InstalledProduct product = InstallProduct(PackageOf(desk));
    EXPECT_EQ(product.code, ExitCode::Done) << product.log;
    std::vector<std::string> contents;
    for (const auto& [path, bytes] : product.machine)
        if (path.ends_with("\\same.txt"))
            contents.push_back(bytes);
    EXPECT_THAT(contents, ElementsAre("second"));
}

TEST(SmallPackage, IsUnpackedInTheOrderOfItsContainer)
{
    CreateDesk desk;
    desk.project.Files.rows.clear();
    // The container has them the other way round.
    desk.AddFile("c.txt", "third")[Filename] = "same.txt";
    desk.AddFile("b.txt", "second");
    desk.AddFile("a.txt", "first")[Filename] = "Same.txt";
    const InstalledProduct product = RunProduct(PackageOf(desk), "/S /extract:C:\\Ut");
    EXPECT_EQ(product.code, ExitCode::Done) << product.log;
    // The names are still given in the order of the rows.
    EXPECT_EQ(product.machine.at("c:\\ut\\same.txt"), "third");
    EXPECT_EQ(product.machine.at("c:\\ut\\same.txt.3"), "first");
    EXPECT_EQ(product.machine.at("c:\\ut\\b.txt"), "second");
    const std::size_t first = product.log.find("C:\\Ut\\Same.txt.3");
    const std::size_t second = product.log.find("C:\\Ut\\b.txt");
    const std::size_t third = product.log.find("C:\\Ut\\same.txt\r");
    ASSERT_NE(third, Text::npos) << product.log;
    EXPECT_LT(first, second) << product.log;
    EXPECT_LT(second, third) << product.log;
}

TEST(SmallPackage, IsWholeForWhoeverVerifiesIt)
{
    EXPECT_THAT(VerifyProduct(MakeProductPackage(kSmall)), IsEmpty());
}

// Without a manifest the container's own digests are what finds it, before anything is written.
TEST(SmallPackage, IsNotInstalledWithADamageThatNoManifestTellsOf)
{
    const PackageFiles whole = MakeProductPackage(kSmall);
    for (std::size_t at = 0; at < whole.at(kFileContainerName).size(); at += 11) {
        PackageFiles files = whole;
        files.erase(kManifestName);
        char& byte = files[kFileContainerName][at];
        byte = static_cast<char>(byte ^ 4);
        const InstalledProduct product = InstallProduct(files);
        EXPECT_EQ(product.code, ExitCode::DamagedPackage) << at;
        EXPECT_EQ(product.machine == EmptyMachine(), true) << at;
        EXPECT_THAT(product.log, HasSubstr(kFileContainerName)) << at;
    }
}

} // namespace
} // namespace quillon::test
