#include "runtime/pages/design_screen.h"

#include "design/changing_pictures.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

// The size of a surface whose author never opened the design's tab.
constexpr int kUsualWidth = 640;
constexpr int kUsualHeight = 480;

std::array<Text*, 4> TextsOf(Project& project)
{
    return {&project.DesTitle.TitleText, &project.DesSubTitle.SubTitleText,
            &project.DesTextBox.BoxTitle, &project.DesTextBox.BoxText};
}

// A test run names the file by its absolute path: the tool's folder, one for such files, and a
// name.
Text ToolFolderOf(const Text& rtfFile)
{
    return ExtractDirectory(ExtractDirectory(rtfFile));
}

} // namespace

DesignScreen::DesignScreen(const SetupInformation& setup, const SetupVariables& variables,
                           const DesignFiles& files, int width, int height)
    : project_(setup.project), files_(files),
      surfaceWidth_(setup.DesWidth > 0 ? setup.DesWidth : kUsualWidth),
      surfaceHeight_(setup.DesHeight > 0 ? setup.DesHeight : kUsualHeight), width_(width),
      height_(height), changing_(ChangingPictures(setup.project.DesPicturesAnim))
{
    std::ranges::transform(TextsOf(project_), texts_.begin(),
                           [](const Text* text) { return *text; });
    SetVariables(variables);
    Text& rtf = project_.DesRTFbox.RTFfilename;
    const Text toolFolder = ToolFolderOf(rtf);
    rtf = ExtractFilename(rtf);
    read_ = ReadScreenFiles(project_, files.Files(), toolFolder,
                            {.surfaceWidth = surfaceWidth_,
                             .surfaceHeight = surfaceHeight_,
                             .metrics = {},
                             .width = width,
                             .height = height});
}

bool DesignScreen::SetVariables(const SetupVariables& variables)
{
    if (!IsTrueText(project_.InstallOptions.ExpandVariablesInDialogBoxes))
        return false;
    bool isChanged = false;
    const std::array<Text*, 4> shown = TextsOf(project_);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Text text = variables.Expand(texts_[i]);
        isChanged = isChanged || text != *shown[i];
        *shown[i] = text;
    }
    return isChanged;
}

ScreenDesign DesignScreen::Design(bool isPageShown) const
{
    return {.project = project_,
            .width = surfaceWidth_,
            .height = surfaceHeight_,
            .metrics = {},
            .pictures = read_.pictures,
            .rtfBox = read_.rtfBox ? &*read_.rtfBox : nullptr,
            .hidesPictures =
                isPageShown && project_.DesPictures.HidePicturesWhenDialogsShowed != 0};
}

void DesignScreen::Paint(const Canvas& canvas, Letters& letters, bool isPageShown) const
{
    PaintScreen(canvas, letters, Design(isPageShown));
}

int DesignScreen::Interval() const
{
    constexpr int kSecond = 1000;
    return changing_.size() < 2
               ? 0
               : std::max(1, int{project_.DesPicturesAnim.IntervalSeconds}) * kSecond;
}

PixelRect DesignScreen::ShowNext()
{
    for (std::size_t tried = 0; tried < changing_.size(); ++tried) {
        shownPicture_ = (shownPicture_ + 1) % changing_.size();
        PictureResult next = ReadPictureFile(files_.Files(), changing_[shownPicture_]);
        if (next.fault != PictureFault::None)
            continue;
        read_.pictures.changing = std::move(next.picture);
        const ScreenDesign design = Design(false);
        KeepOnlyShown(read_.pictures, design, width_, height_);
        return ChangingPicturesRect(design, width_, height_);
    }
    return {};
}

} // namespace quillon
