#include "builder/design_objects.h"

#include "design/rtf_box_file.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

Text RTFboxPath(const Project& project, const FileSystem& files, const CreateOptions& options)
{
    return PathIn(files, RTFboxFolders(options.ToolFolder, options.OwnFolder),
                  project.DesRTFbox.RTFfilename);
}

void AddIfNamed(std::vector<DesignObject>& objects, const Text& path)
{
    if (!path.empty())
        objects.push_back({path});
}

void AddDialogBitmap(std::vector<DesignObject>& objects, const Text& path)
{
    if (!IsDefaultDialogBitmap(path))
        AddIfNamed(objects, path);
}

bool IsJpeg(const Text& path)
{
    return ContainsText(LowerCase(path), ".jpg");
}

} // namespace

std::vector<Text> AnimationPictures(const section::DesPicturesAnim& animation)
{
    const std::size_t count =
        std::min(std::size_t(std::max<int>(animation.NrAnimPictures, 0)), animation.P.size());
    return {animation.P.begin(), animation.P.begin() + std::ptrdiff_t(count)};
}

bool IsDefaultDialogBitmap(const Text& path)
{
    return ContainsText(UpperCase(path), "SETUPDEF.BMP");
}

std::vector<DesignObject> DesignObjects(const Project& project, const FileSystem& files,
                                        const CreateOptions& options)
{
    std::vector<DesignObject> objects;
    if (!project.DesRTFbox.RTFfilename.empty() && project.DesRTFbox.ShowRTFbox != kOff)
        objects.push_back({RTFboxPath(project, files, options), false});
    AddIfNamed(objects, project.DesBackground.PictureFilename);
    for (const section::DesPicture& picture : project.DesPictures.Pictures)
        AddIfNamed(objects, picture.PictureFilename);
    AddIfNamed(objects, project.DesLogotype.LogotypeFilename);
    AddIfNamed(objects, project.DesSound.BackSoundFilename);
    for (const Text& picture : AnimationPictures(project.DesPicturesAnim))
        AddIfNamed(objects, picture);
    AddDialogBitmap(objects, project.DialogBoxes.DlgBitmap);
    const section::DialogBoxData& dialogs = project.DialogBoxData;
    for (const Text* bitmap : {&dialogs.WelcomeDlgBitmap, &dialogs.GeneralDlgBitmap,
                               &dialogs.GeneralDlgBitmap2, &dialogs.StartInstallDlgBitmap,
                               &dialogs.InstallCompleteDlgBitmap, &dialogs.NameCompanyDlgBitmap})
        AddDialogBitmap(objects, *bitmap);
    return objects;
}

bool UsesJpegPictures(const Project& project)
{
    std::vector<Text> pictures = AnimationPictures(project.DesPicturesAnim);
    pictures.push_back(project.DesBackground.PictureFilename);
    for (const section::DesPicture& picture : project.DesPictures.Pictures)
        pictures.push_back(picture.PictureFilename);
    pictures.push_back(project.DesLogotype.LogotypeFilename);
    return std::ranges::any_of(pictures, IsJpeg);
}

} // namespace quillon
