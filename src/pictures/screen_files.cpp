#include "pictures/screen_files.h"

#include "design/changing_pictures.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

class PicturesReader {
public:
    PicturesReader(ScreenFiles& read, const Project& project, const FileSystem& files,
                   const ScreenSize& size)
        : read_(read), project_(project), files_(files), size_(size)
    {
    }

    void Read(ScalablePicture& picture, const Text& file,
              const std::optional<Colour>& transparent = {})
    {
        if (file.empty())
            return;
        PictureResult result = ReadPictureFile(files_, file, kMaxPicturesMemory - Memory());
        picture = std::move(result.picture);
        if (result.fault != PictureFault::None)
            read_.faults.push_back({file, result.fault});
        // In the picture's own pixels, before they are mixed.
        if (transparent)
            picture.MakeTransparent(*transparent);
        KeepOnlyShown(read_.pictures,
                      {.project = project_,
                       .width = size_.surfaceWidth,
                       .height = size_.surfaceHeight,
                       .metrics = size_.metrics,
                       .pictures = read_.pictures},
                      size_.width, size_.height);
    }

private:
    std::int64_t Memory() const
    {
        const ScreenPictures& pictures = read_.pictures;
        std::int64_t memory =
            pictures.background.Memory() + pictures.changing.Memory() + pictures.logotype.Memory();
        for (const ScalablePicture& picture : pictures.pictures)
            memory += picture.Memory();
        return memory;
    }

    ScreenFiles& read_;
    const Project& project_;
    const FileSystem& files_;
    const ScreenSize& size_;
};

std::optional<RtfText> ReadRtfBox(const Text& file, const FileSystem& files,
                                  std::vector<ScreenFileFault>& faults)
{
    std::optional<RtfText> text;
    const int failure = RunErrorNumber([&] { text = ReadRtf(ReadWholeFile(files, file)); });
    const bool isGone =
        failure == ErrorNumber::kFileNotFound || failure == ErrorNumber::kPathNotFound;
    if (!text)
        faults.push_back({file,
                          isGone                          ? PictureFault::NotFound
                          : failure != ErrorNumber::kNone ? PictureFault::Unreadable
                                                          : PictureFault::UnknownFormat,
                          true});
    return text;
}

} // namespace

ScreenFiles ReadScreenFiles(const Project& project, const FileSystem& files,
                            const RTFboxFolders& texts, const ScreenSize& size)
{
    ScreenFiles read;
    ScreenPictures& pictures = read.pictures;
    PicturesReader reader(read, project, files, size);
    if (project.DesBackground.Type != Integer(BackgroundType::Colours))
        reader.Read(pictures.background, project.DesBackground.PictureFilename);
    for (std::size_t i = 0; i < pictures.pictures.size(); ++i)
        reader.Read(pictures.pictures[i], project.DesPictures.Pictures[i].PictureFilename,
                    TransparentColourOf(project.DesPictures, i));
    if (const auto changing = ChangingPictures(project.DesPicturesAnim); !changing.empty())
        reader.Read(pictures.changing, changing.front());
    reader.Read(pictures.logotype, project.DesLogotype.LogotypeFilename,
                TransparentColourOf(project.DesLogotype));
    const section::DesRTFbox& box = project.DesRTFbox;
    if (box.ShowRTFbox != kOff && !box.RTFfilename.empty())
        read.rtfBox = ReadRtfBox(PathIn(files, texts, box.RTFfilename), files, read.faults);
    return read;
}

} // namespace quillon
