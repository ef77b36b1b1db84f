// The files of a whole design: what is kept of them, and that all of them together stay within
// bounds.
#include "pictures/screen_files.h"

#include "made_jpeg.h"
#include "made_metafile.h"
#include "picture_tests.h"
#include "support/memory_host.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace quillon::test {
namespace {

using testing::IsEmpty;

constexpr int kWidth = 1024;
constexpr int kHeight = 768;

/// The header of a bitmap of 24 bits from the top, whose pixels are all that follows.
std::string BitmapHeader(int width, int height)
{
    const auto pixels = std::int64_t{width} * 3 * height;
    return "BM" + Long(54 + pixels) + Long(0) + Long(54) + Long(40) + Long(width) + Long(-height) +
           Word(1) + Word(24) + Long(0) + Long(pixels) + Long(2835) + Long(2835) + Long(0) +
           Long(0);
}

/// Gray; the width is a multiple of four.
std::string GrayBitmap(int width, int height, char gray = '\x40')
{
    const std::string header = BitmapHeader(width, height);
    std::string bytes;
    bytes.reserve(header.size() + std::size_t(width) * 3 * std::size_t(height));
    bytes = header;
    bytes.resize(header.size() + std::size_t(width) * 3 * std::size_t(height), gray);
    return bytes;
}

/// A disk with one file under every name, read from a real one, so that no copy of it is in
/// memory.
class OneFileDisk : public MemoryFiles {
public:
    explicit OneFileDisk(std::string path) : path_(std::move(path)) {}

    bool FileExists(const Text&) const override { return true; }
    std::unique_ptr<InputFile> OpenInput(const Text&) const override
    {
        return std::make_unique<Opened>(path_);
    }

private:
    class Opened : public InputFile {
    public:
        explicit Opened(const std::string& path) : file_(path, std::ios::binary)
        {
            file_.seekg(0, std::ios::end);
            size_ = static_cast<std::uint64_t>(file_.tellg());
            file_.seekg(0);
        }
        std::size_t Read(std::span<std::byte> into) override
        {
            file_.read(reinterpret_cast<char*>(into.data()),
                       static_cast<std::streamsize>(into.size()));
            return static_cast<std::size_t>(file_.gcount());
        }
        std::uint64_t Size() const override { return size_; }
        void Seek(std::uint64_t place) override { file_.seekg(static_cast<std::streamoff>(place)); }

    private:
        std::ifstream file_;
        std::uint64_t size_ = 0;
    };

    std::string path_;
};

/// A design that has a picture in all six places.
Project FullDesign(Flag stretch)
{
    Project project;
    project.DesBackground = {.Type = 2, .PictureFilename = "C:\\b", .StretchPicture = stretch};
    for (section::DesPicture& picture : project.DesPictures.Pictures) {
        picture.PictureFilename = "C:\\b";
        picture.StretchPicture = stretch;
    }
    project.DesPicturesAnim.NrAnimPictures = 1;
    project.DesPicturesAnim.P[0] = "C:\\b";
    project.DesPicturesAnim.StretchPicture = stretch;
    project.DesLogotype.LogotypeFilename = "C:\\b";
    return project;
}

std::int64_t MemoryOf(const ScreenPictures& pictures)
{
    std::int64_t memory =
        pictures.background.Memory() + pictures.changing.Memory() + pictures.logotype.Memory();
    for (const ScalablePicture& picture : pictures.pictures)
        memory += picture.Memory();
    return memory;
}

/// The peak of a process that reads the design and paints it.
Usage ReadAndPaintInChild(const Project& project, const FileSystem& files)
{
    const pid_t child = fork();
    if (child == 0) {
        const ScreenFiles read =
            ReadScreenFiles(project, files, Text("C:\\"), {.width = kWidth, .height = kHeight});
        std::vector<Pixel> pixels(std::size_t{kWidth} * kHeight);
        BlockLetters letters;
        PaintScreen(WholeCanvas(pixels.data(), kWidth, kHeight), letters,
                    {.project = project, .pictures = read.pictures});
        const bool isPainted = read.faults.empty() && pixels[0] == 0xFF404040;
        _exit(isPainted ? 0 : 1);
    }
    int status = 0;
    rusage used{};
    EXPECT_EQ(wait4(child, &status, 0, &used), child);
    return {.isOver = WIFEXITED(status) && WEXITSTATUS(status) == 0,
            .peakKilobytes = used.ru_maxrss};
}

TEST(ReadScreenFiles, OfSixLargePicturesStaysWithinBounds)
{
    const TempFolder folder;
    constexpr int kSide = 4904 / kShareOfHugeSide;
    folder.Put("b", GrayBitmap(kSide, kSide));
    const OneFileDisk files(folder.Path("b"));
    for (const Flag stretch : {kOn, kOff}) {
        const Usage usage = ReadAndPaintInChild(FullDesign(stretch), files);
        EXPECT_TRUE(usage.isOver) << stretch;
        if (kIsMemoryMeasured)
            EXPECT_LT(usage.peakKilobytes, kMaxKilobytes) << stretch;
    }
}

TEST(ReadScreenFiles, OfAHugeJpegInItsOwnSizeStaysWithinBounds)
{
    const TempFolder folder;
    folder.Put("b",
               MakeJpeg({.width = kHugeSide, .height = kHugeSide, .components = 1, .quality = 50},
                        [](int, std::vector<unsigned char>& row) {
                            std::ranges::fill(row, std::uint8_t{0x40});
                        }));
    const OneFileDisk files(folder.Path("b"));
    const Usage usage = ReadAndPaintInChild(FullDesign(kOff), files);
    EXPECT_TRUE(usage.isOver);
    if (kIsMemoryMeasured)
        EXPECT_LT(usage.peakKilobytes, kMaxKilobytes);
}

TEST(ReadScreenFiles, ReadsTheUsersOwnTextInFrontOfTheTools)
{
    MemoryFiles files;
    files.Put("C:\\Quillon\\RTF\\a.rtf", "{\\rtf1 tool}");
    Project project;
    project.DesRTFbox.ShowRTFbox = kOn;
    project.DesRTFbox.RTFfilename = "a.rtf";
    const auto text = [&] {
        const ScreenFiles read = ReadScreenFiles(project, files, {"C:\\Quillon", "C:\\Data"},
                                                 {.width = 640, .height = 480});
        return read.rtfBox ? read.rtfBox->paragraphs.at(0).runs.at(0).text : Text();
    };
    EXPECT_EQ(text(), "tool");
    files.Put("C:\\Data\\RTF\\a.rtf", "{\\rtf1 user}");
    EXPECT_EQ(text(), "user");
}

TEST(ReadScreenFiles, KeepsNoMoreThanIsShown)
{
    MemoryFiles files;
    files.Put("C:\\b", GrayBitmap(2000, 1500));
    Project project = FullDesign(kOn);
    project.DesLogotype.LogotypeFilename.clear();
    const ScreenFiles read =
        ReadScreenFiles(project, files, Text("C:\\"), {.width = kWidth, .height = kHeight});
    EXPECT_THAT(read.faults, IsEmpty());
    EXPECT_EQ(read.pictures.background.Memory(), std::int64_t{kWidth} * kHeight * 4);
    // The others fill 200 x 100 pixels of a surface of 640 x 480.
    for (const ScalablePicture& picture : read.pictures.pictures)
        EXPECT_NEAR(double(picture.Memory()), 320.0 * 160 * 4, 320 * 4 * 2);
    EXPECT_NEAR(double(read.pictures.changing.Memory()), 320.0 * 160 * 4, 320 * 4 * 2);
}

TEST(ReadScreenFiles, TakesTheTransparentColourOutOfThePicturesOwnPixels)
{
    MemoryFiles files;
    std::string bytes = GrayBitmap(400, 2, '\0'); // black
    bytes.replace(54, 3 * 400, std::string(3 * 400, '\xFF'));
    files.Put("C:\\b", bytes);
    Project project;
    section::DesPicture& picture = project.DesPictures.Pictures[0];
    picture = {.PictureFilename = "C:\\b",
               .UseTransparentBkg = kOn,
               .StretchPicture = kOn,
               .PictureWidth = 100,
               .PictureHeight = 1};
    const ScreenFiles read =
        ReadScreenFiles(project, files, Text("C:\\"), {.width = 640, .height = 480});
    BlockLetters letters;
    const Picture& shown = read.pictures.pictures[0].InSize(100, 1, letters);
    EXPECT_EQ(shown.pixels[50], 0x80808080) << "half of it white, half of it clear";
}

TEST(ReadPictureFile, TakesOnlyTheMemoryThatTheOthersLeave)
{
    MemoryFiles files;
    files.Put("C:\\b.bmp", GrayBitmap(400, 100));
    constexpr std::int64_t kFile = 54 + 400 * 100 * 3;
    constexpr std::int64_t kPixels = 400 * 100 * 4;
    EXPECT_EQ(ReadPictureFile(files, "C:\\b.bmp", kFile + kPixels).fault, PictureFault::None);
    EXPECT_EQ(ReadPictureFile(files, "C:\\b.bmp", kFile + kPixels - 1).fault,
              PictureFault::TooLarge);
    EXPECT_EQ(ReadPictureFile(files, "C:\\b.bmp", kFile - 1).fault, PictureFault::TooLarge);
    EXPECT_EQ(ReadPictureFile(files, "C:\\b.bmp", -5).fault, PictureFault::TooLarge);
}

TEST(ReadPictureFile, KeepsAJpegSmallerWhereThereIsLittleMemory)
{
    const std::string bytes =
        MakeJpeg({.width = 800, .height = 800, .components = 1, .quality = 50},
                 [](int, std::vector<unsigned char>& row) { std::ranges::fill(row, 0x40); });
    MemoryFiles files;
    files.Put("C:\\b.jpg", bytes);
    const PictureResult result = ReadPictureFile(
        files, "C:\\b.jpg", static_cast<std::int64_t>(bytes.size()) + 400 * 400 * 4 + 2'000'000);
    ASSERT_EQ(result.fault, PictureFault::None);
    EXPECT_EQ(result.picture.Width(), 800);
    EXPECT_EQ(ReadPictureFile(files, "C:\\b.jpg", 100).fault, PictureFault::TooLarge);
}

TEST(ReadScreenFiles, TellsOfAPictureThatThereIsNoMoreRoomFor)
{
    // Metafiles are kept whole, and so many as there may be take too much.
    constexpr int kEscape = 0x0626;
    std::string metafile = MadeMetafile()
                               .Window(0, 0, 100, 100)
                               .Add(kEscape, std::string(std::size_t{40} << 20, '\0'))
                               .File();
    const TempFolder folder;
    folder.Put("b", metafile);
    metafile = {};
    const OneFileDisk files(folder.Path("b"));
    const ScreenFiles read = ReadScreenFiles(FullDesign(kOff), files, Text("C:\\"),
                                             {.width = kWidth, .height = kHeight});
    EXPECT_LE(MemoryOf(read.pictures), kMaxPicturesMemory);
    ASSERT_EQ(read.faults.size(), 1U);
    EXPECT_EQ(read.faults[0].fault, PictureFault::TooLarge);
    EXPECT_TRUE(read.pictures.logotype.IsEmpty());
    EXPECT_FALSE(read.pictures.changing.IsEmpty());
}

} // namespace
} // namespace quillon::test
