// Files that end too early, byte by byte, and disks that fail.
#include "platform/run_error.h"
#include "project_file_fixture.h"

#include <algorithm>

namespace quillon {

using test::GoldenBytes;
using test::ProjectOnDisk;

namespace {

// A user who answers nothing and records everything: a cut file may name a picture that does not
// exist, so that the boxes can't be prepared.
class Witness : public test::ScriptedAsk {
public:
    void Warn(const Text& title, const Text&) override { titles.push_back(title); }
    void Critical(const Text& title, const Text&) override { titles.push_back(title); }

    bool Saw(const Text& title) const
    {
        return std::find(titles.begin(), titles.end(), title) != titles.end();
    }

    std::vector<Text> titles;
};

struct CutFile {
    explicit CutFile(const std::string& full) : bytes(full)
    {
        typeMark = EndOf("App = Quillon");
        firstList = EndOf("[RunScriptBefore]");
        firstListEnd = EndOf("....", firstList);
        fileList = EndOf("[FileList]");
        lastRow = bytes.rfind(";\r\n....") + 1;
    }

    std::size_t EndOf(const std::string& part, std::size_t from = 0) const
    {
        return bytes.find(part, from) + part.size();
    }

    bool EndsIn(std::size_t length, std::string_view tail) const
    {
        return std::string_view(bytes).substr(0, length).ends_with(tail);
    }

    /// How reading the first `length` bytes must end.
    ReadEnd Expected(std::size_t length) const
    {
        if (length < typeMark)
            return ReadEnd::Refused;
        if (length >= lastRow)
            return ReadEnd::Whole;
        // A CR whose LF is cut off belongs to its line, which is then no header and no end.
        const bool looseReturn = EndsIn(length, "\r");
        if (length >= firstList && length < firstListEnd + (looseReturn ? 2 : 0))
            return looseReturn && length == firstList + 1 ? ReadEnd::Stopped : ReadEnd::Damaged;
        const bool insideRow = length > fileList + 2 && !EndsIn(length, ";\r") &&
                               !EndsIn(length, "\r\n") && !IsWholeRow(length);
        return insideRow ? ReadEnd::RowsCut : ReadEnd::Stopped;
    }

    bool IsWholeRow(std::size_t length) const
    {
        const std::size_t line = bytes.rfind('\n', length - 1) + 1;
        return std::count(bytes.begin() + static_cast<std::ptrdiff_t>(line),
                          bytes.begin() + static_cast<std::ptrdiff_t>(length), ';') == 15;
    }

    std::string bytes;
    std::size_t typeMark = 0;
    std::size_t firstList = 0;
    std::size_t firstListEnd = 0;
    std::size_t fileList = 0;
    std::size_t lastRow = 0;
};

} // namespace

TEST(DamagedFile, CutAtAnyByteEndsTheReadingAsItsPlaceSays)
{
    const CutFile file(GoldenBytes("full/full.qnp"));
    for (std::size_t length = 0; length <= file.bytes.size(); ++length) {
        ProjectOnDisk disk;
        Witness ask;
        const ReadEnd end = disk.Load(file.bytes.substr(0, length), ask);
        ASSERT_EQ(end, file.Expected(length)) << length << " bytes";
        ASSERT_EQ(ask.Saw("Fel filformat"), end == ReadEnd::Refused) << length;
        ASSERT_EQ(ask.Saw("Fel"), end == ReadEnd::Damaged) << length;
        ASSERT_EQ(ask.beeps, 0) << length;
    }
}

TEST(DamagedFile, LoadedOverAnotherProjectCanStillBeSaved)
{
    const std::string full = GoldenBytes("full/full.qnp");
    ProjectOnDisk disk;
    for (std::size_t length = 0; length <= full.size(); length += 97) {
        Witness ask;
        disk.Load(full.substr(0, length), ask);
        Witness again;
        const std::string saved = disk.Save();
        EXPECT_TRUE(saved.ends_with("-(EOF)-\r\n\r\n"));
        EXPECT_EQ(disk.Load(saved, again), ReadEnd::Whole) << length;
    }
}

TEST(WriteProjectFile, LeavesTheOldFileWhereverTheDiskFails)
{
    ProjectOnDisk disk;
    disk.project.Files.rows.resize(20000);
    const std::string whole = disk.Save();
    disk.project.ProjectName.ProjectName = "Ny";
    int failures = 0;
    int error = ErrorNumber::kDiskFull;
    for (int n = 1; error != ErrorNumber::kNone; ++n) {
        disk.machine.files.FailFromWrite(n, ErrorNumber::kDiskFull);
        error = RunErrorNumber([&] { disk.Save(); });
        if (error == ErrorNumber::kNone)
            break;
        ++failures;
        EXPECT_EQ(error, ErrorNumber::kDiskFull);
        EXPECT_TRUE(disk.machine.files.Get(test::kPath) == whole) << "write " << n;
        EXPECT_EQ(disk.machine.files.List("C:\\Projekt").size(), 1U) << "write " << n;
    }
    EXPECT_GT(failures, 5) << "pieces of the rows, the flush, the new name";
    EXPECT_FALSE(disk.machine.files.Get(test::kPath) == whole);
}

TEST(WriteProjectFile, ThrowsWhereItsFileCantBeOpenedAndChangesNothing)
{
    ProjectOnDisk disk;
    disk.project.ProjectName.ProjectName = "Demo";
    test::ScriptedAsk ask;
    const auto writeTo = [&](const Text& path) {
        return RunErrorNumber(
            [&] { WriteProjectFile(disk.project, path, disk.machine.host, ask); });
    };
    EXPECT_EQ(writeTo("C:\\nowhere\\a.qnp"), 76);
    EXPECT_EQ(writeTo("C:\\Projekt"), 75);
    disk.machine.files.RefuseOutput("C:\\Projekt\\b.qnp.tmp1", ErrorNumber::kPermissionDenied);
    EXPECT_EQ(writeTo("C:\\Projekt\\b.qnp"), 70);
    EXPECT_EQ(disk.project.ProgramGroup.ProgramGroup, "");
}

TEST(WriteProjectFile, LeavesNothingOfALongerFile)
{
    ProjectOnDisk disk;
    std::string longer;
    disk.machine.files.Put(test::kPath, longer.append(100000, 'x'));
    EXPECT_EQ(disk.Save(), GoldenBytes("empty/empty.qnp"));
}

TEST(WriteProjectFile, FailsPastTheLastPictureOfTheSlideShowBeforeItOpensAFile)
{
    ProjectOnDisk disk;
    disk.machine.files.Put(test::kPath, "old");
    disk.project.DesPicturesAnim.NrAnimPictures = 22;
    disk.machine.files.RefuseOutput(std::string(test::kPath) + ".tmp1", ErrorNumber::kDiskFull);
    EXPECT_EQ(RunErrorNumber([&] { disk.Save(); }), 9);
    EXPECT_EQ(disk.machine.files.Get(test::kPath), "old");
    disk.project.DesPicturesAnim.NrAnimPictures = 21;
    EXPECT_EQ(RunErrorNumber([&] { disk.Save(); }), 61);
}

// More rows than the number says would be gone with the next save.
TEST(ReadProjectFile, KnowsThatTheNumberOfRowsIsNotThatOfTheRows)
{
    const auto endWith = [](const std::string& files, std::size_t rows) {
        ProjectOnDisk disk;
        const ReadEnd end =
            disk.Load(test::WithValue(test::Full(), "FileListInfo", "Files", files));
        EXPECT_EQ(disk.project.Files.rows.size(), rows) << files;
        return end;
    };
    EXPECT_EQ(endWith("3", 3), ReadEnd::Whole);
    EXPECT_EQ(endWith("30", 3), ReadEnd::Whole) << "no row is lost";
    EXPECT_EQ(endWith("2", 2), ReadEnd::RowsLeft);
    EXPECT_EQ(endWith("0", 0), ReadEnd::RowsLeft);
    EXPECT_EQ(endWith("-1", 0), ReadEnd::RowsLeft);
    EXPECT_EQ(endWith("", 0), ReadEnd::RowsLeft);
    EXPECT_EQ(endWith("tre", 0), ReadEnd::RowsLeft);
    EXPECT_EQ(endWith("-", 0), ReadEnd::RowsLeft);
    ProjectOnDisk disk;
    EXPECT_EQ(disk.Load(test::WithoutKey(test::Full(), "FileListInfo", "Files")),
              ReadEnd::RowsLeft);
    EXPECT_EQ(disk.Load(test::WithValue(test::Empty(), "FileListInfo", "Files", "")),
              ReadEnd::RowsLeft)
        << "a damaged number, though nothing follows";
    EXPECT_EQ(disk.Load(test::Empty()), ReadEnd::Whole);
}

namespace {

// A disk that can't even say whether a file is there.
class DeafFiles : public test::MemoryFiles {
public:
    bool FileExists(const Text& path) const override
    {
        throw RunError(ErrorNumber::kDeviceIo, path);
    }
};

} // namespace

TEST(DlgBitmap, OnADiskThatFailsDoesNotEndTheReading)
{
    DeafFiles files;
    files.Put(test::kPath, GoldenBytes("full/full.qnp"));
    test::FixedMachine machine;
    Host host{files, machine};
    Project project = test::NewProject();
    test::ScriptedAsk ask{{{test::BoxKind::Critical, "Fel inträffade"}}};
    EXPECT_EQ(ReadProjectFile(project, test::kPath, host, ask, test::kToolFolder), ReadEnd::Whole);
    EXPECT_EQ(project.DialogBoxes.DlgBitmap, test::kDefaultBitmap);
    EXPECT_EQ(project.Files.rows.size(), 3U);
}

} // namespace quillon
