// Files with the same bytes lie in a package once, and each is installed with its own name and
// date.
#include "packages/packaged_product.h"

#include "archive/solid/package_container.h"
#include "formats/package_files.h"

namespace quillon::test {
namespace {

using testing::IsEmpty;

constexpr LocalTime kFirst{2004, 2, 29, 12, 30, 0};
constexpr LocalTime kSecond{2005, 1, 2, 3, 4, 6};

PackageFiles MakePackage(const Text& password, bool isSmall)
{
    CreateDesk desk;
    desk.project.Files.rows.clear();
    const FileListRow first = desk.AddFile("first.dll", "the same bytes");
    const FileListRow second = desk.AddFile("second.dll", "the same bytes", "%DESTDIR\\Sub");
    desk.machine.files.SetModified(first[Source], kFirst);
    desk.machine.files.SetModified(second[Source], kSecond);
    desk.project.DialogBoxes.PasswordDlg = password.empty() ? 0 : 1;
    desk.project.DialogBoxData.CorrectPassword = password;
    desk.Choose(Medium::CompressedCd);
    desk.form.SmallContainer = isSmall ? 1 : 0;
    EXPECT_EQ(desk.Create(), CreateResult::Done);
    PackageFiles files;
    for (const Text& name : desk.Package())
        files[name] = desk.Get(name);
    return files;
}

template <class Values>
auto ByName(const Values& values, const Text& end)
{
    for (const auto& [path, value] : values)
        if (path.ends_with(end))
            return value;
    ADD_FAILURE() << end << " was not installed";
    return typename Values::mapped_type();
}

TEST(EqualFilesInAPackage, ShareAnEntryAndAreInstalledEachOnItsOwn)
{
    const std::pair<Text, bool> kinds[] = {{"", false}, {"Hemlig7", false}, {"", true}};
    for (const auto& [password, isSmall] : kinds) {
        const PackageFiles files = MakePackage(password, isSmall);
        MemoryFiles memory;
        memory.Put("D:\\a.zip", files.at(kFileContainerName));
        const auto container = OpenAnyContainer(memory.OpenInput("D:\\a.zip"));
        ASSERT_EQ(container->Entries().size(), 1U);
        EXPECT_EQ(container->Entries()[0].isSolid, isSmall);
        EXPECT_THAT(VerifyProduct(files), IsEmpty());
        const InstalledProduct product = InstallProduct(files, password);
        EXPECT_EQ(product.code, ExitCode::Done) << product.log;
        EXPECT_EQ(ByName(product.machine, "\\first.dll"), "the same bytes");
        EXPECT_EQ(ByName(product.machine, "\\sub\\second.dll"), "the same bytes");
        EXPECT_EQ(ByName(product.modified, "\\first.dll"), kFirst);
        EXPECT_EQ(ByName(product.modified, "\\sub\\second.dll"), kSecond);
    }
}

} // namespace
} // namespace quillon::test
