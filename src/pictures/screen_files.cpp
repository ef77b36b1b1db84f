#include "pictures/screen_files.h"

#include "design/changing_pictures.h"
#include "design/rtf_box_file.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

void ReadPictureInto(ScalablePicture& picture, const Text& file, const FileSystem& files,
                     std::vector<ScreenFileFault>& faults)
{
    if (file.empty())
        return;
    PictureResult result = ReadPictureFile(files, file);
    picture = std::move(result.picture);
    if (result.fault != PictureFault::None)
        faults.push_back({file, result.fault});
}

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

ScreenFiles ReadScreenFiles(const Project& project, const FileSystem& files, const Text& toolFolder)
{
    ScreenFiles read;
    const auto put = [&](ScalablePicture& picture, const Text& file) {
        ReadPictureInto(picture, file, files, read.faults);
    };
    ScreenPictures& pictures = read.pictures;
    if (project.DesBackground.Type != 1)
        put(pictures.background, project.DesBackground.PictureFilename);
    for (std::size_t i = 0; i < pictures.pictures.size(); ++i)
        put(pictures.pictures[i], project.DesPictures.Pictures[i].PictureFilename);
    if (const auto changing = ChangingPictures(project.DesPicturesAnim); !changing.empty())
        put(pictures.changing, changing.front());
    put(pictures.logotype, project.DesLogotype.LogotypeFilename);
    ApplyTransparency(pictures, project);
    const section::DesRTFbox& box = project.DesRTFbox;
    if (box.ShowRTFbox != kOff && !box.RTFfilename.empty())
        read.rtfBox = ReadRtfBox(RTFboxPath(toolFolder, box.RTFfilename), files, read.faults);
    return read;
}

} // namespace quillon
