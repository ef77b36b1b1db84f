// Create on a real disk: what it writes is a package that the runtime's own reader finds whole, on
// every medium.
#include "builder/create.h"

#include "formats/package.h"
#include "full_project.h"
#include "platform/posix/posix_host.h"
#include "support/scripted_ask.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

using test::BoxKind;
using test::Row;
using test::ScriptedAsk;
using test::TempFolder;
using testing::IsEmpty;

namespace {

constexpr std::uint64_t kFloppySize = 1'457'664;

class DiskFolders : public DiskSource {
public:
    explicit DiskFolders(FileSystem& files) : files_(files) {}

    std::optional<Text> NextDisk(int number) override
    {
        const Text folder = DiskFolder("S:\\Ut", number);
        return files_.DirCreate(folder) ? std::optional(folder) : std::nullopt;
    }
    std::uint64_t Capacity(const Text&) const override { return kFloppySize; }

private:
    FileSystem& files_;
};

class OnDisk : public testing::TestWithParam<Medium> {
protected:
    OnDisk()
    {
        for (const char* program : {"SETUP32.EXE", "Small32/QNS32X.EXE", "Full32/QNS32X.EXE",
                                    "DUNZIP32.DLL", "QNREG32.EXE", "QNXREG2.EXE", "QNXUNIN.EXE"})
            disk.Put(std::string("Quillon/Release/") + program, program);
        disk.Put("Quillon/Language/Swedish.lng", "[PreLoader]\r\n");
        disk.PutFolder("Ut");
        project.ProjectName.ProjectName = "Demo";
        project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Demo";
        form.TargetMedia = GetParam();
        form.tDestinationDir = "S:\\Ut";
    }

    void AddFile(const std::string& inside, const std::string& bytes, const Text& name,
                 const Text& source)
    {
        disk.Put(inside, bytes);
        project.Files.rows.push_back(Row(name, "%DESTDIR", source));
        project.Files.rows.back()[Size] = "1"; // reads in any locale
    }

    CreateResult Create()
    {
        std::deque<test::ExpectedBox> script;
        if (form.TargetMedia == Medium::Floppy)
            script.push_back({BoxKind::OkCancel, "Diskett", ""});
        ScriptedAsk ask(std::move(script));
        DiskFolders disks(system.files);
        CompressionInterface compression(system.host, ask, disks);
        CreateRun run{project, state, form, options, system.host, ask, compression};
        const CreateResult result = RunCreate(run);
        lastLine = ask.statusLines.empty() ? Text() : ask.statusLines.back();
        return result;
    }

    // A tree's files are laid out by the user, here as the rows address them.
    void LayOutTree()
    {
        for (const InstallRow& row : OpenPackage(system.files, "S:\\Ut").rows) {
            const Text folder = "S:\\Ut\\" + row.sourceFolder;
            ASSERT_TRUE(system.files.DirCreate(folder));
            for (const FileListRow& source : project.Files.rows)
                if (source[Filename] == row.name)
                    system.files.CopyContent(source[Source], folder + "\\" + row.name);
        }
    }

    TempFolder disk;
    PosixHost system{MachineSettings{.drives = {{'S', disk.Path()}}, .tempFolder = "/tmp"}};
    Project project;
    OpenProjectState state;
    CreateForm form;
    CreateOptions options = DefaultCreateOptions("S:\\Quillon");
    Text lastLine;
};

} // namespace

TEST_P(OnDisk, MakesAPackageThatIsWhole)
{
    AddFile("Data/Läsmig.txt", "hej", "Läsmig.txt", "s:\\data\\läsmig.txt");
    AddFile("Data/Stor.bin", std::string(3'000'000, 'x'), "Stor.bin",
            "s:\\tmp\\..\\data\\stor.bin");
    const Text longFolder(200, 'm');
    AddFile(longFolder + "/" + Text(90, 'n') + "/a.txt", "", "a.txt",
            "s:\\" + longFolder + "\\" + Text(90, 'n') + "\\a.txt");
    ASSERT_EQ(Create(), CreateResult::Done) << lastLine;
    if (GetParam() == Medium::CdTree)
        LayOutTree();
    Package package = OpenPackage(system.files, "S:\\Ut");
    EXPECT_THAT(VerifyPackage(system.files, package), IsEmpty());
    ASSERT_EQ(package.rows.size(), 3u);
    EXPECT_EQ(package.rows[0].name, "Läsmig.txt");
    EXPECT_EQ(package.rows[1].size, 3'000'000u);
    EXPECT_EQ(package.rows[1].sourceFolder, "data");
    EXPECT_EQ(package.setup.project.ProjectName.ProjectName, "Demo");
}

TEST_P(OnDisk, KeepsFilesOneByOneWhereTheMediumHasThat)
{
    form.KeepCompressedFilesOneAndOne = 1;
    for (const Flag tree : {kOff, kOn})
        for (const Flag subfolder : {kOff, kOn}) {
            options.CreateFolderStructureInFolderSetupFiles = tree;
            options.PlaceCompressedFilesInFolderSetupFiles = subfolder;
            project.Files.rows.clear();
            AddFile("Data/A.txt", "hej", "A.txt", "s:\\data\\a.txt");
            ASSERT_EQ(Create(), CreateResult::Done) << lastLine;
            if (GetParam() == Medium::CdTree)
                LayOutTree();
            Package package = OpenPackage(system.files, "S:\\Ut");
            EXPECT_THAT(VerifyPackage(system.files, package), IsEmpty());
        }
}

TEST_P(OnDisk, WritesFloppiesThatEachTakeNoMoreThanTheyHold)
{
    form.UseCompression = 0;
    AddFile("Data/Stor.bin", std::string(3'000'000, 'x'), "Stor.bin", "s:\\data\\stor.bin");
    ASSERT_EQ(Create(), CreateResult::Done) << lastLine;
    const int disks = OpenPackage(system.files, "S:\\Ut").setup.Floppies;
    EXPECT_EQ(disks > 0, GetParam() == Medium::Floppy);
    for (int n = 2; n <= disks; ++n)
        EXPECT_LE(system.files.Status(DiskFolder("S:\\Ut", n) + "\\FILEDATA.DAT").size,
                  kFloppySize);
}

INSTANTIATE_TEST_SUITE_P(Create, OnDisk,
                         testing::Values(Medium::Floppy, Medium::CompressedCd, Medium::CdTree));

} // namespace quillon
