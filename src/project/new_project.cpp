#include "project/new_project.h"

#include "helpers/windows_path.h"

#include <utility>

namespace quillon {

namespace {

void SetDefaultBitmaps(Project& project, const Text& toolFolder)
{
    const Text bitmap = DefaultDlgBitmap(toolFolder);
    section::DialogBoxData& data = project.DialogBoxData;
    project.DialogBoxes.DlgBitmap = bitmap;
    data.WelcomeDlgBitmap = bitmap;
    data.GeneralDlgBitmap = bitmap;
    data.GeneralDlgBitmap2 = bitmap;
    data.StartInstallDlgBitmap = bitmap;
    data.InstallCompleteDlgBitmap = bitmap;
    data.NameCompanyDlgBitmap = bitmap;
}

void ResetState(OpenProjectState& state)
{
    // Kept: New does not reset the last of the destination choices.
    Text lastChoice = std::move(state.DestinationDirectoryChoices.back());
    state = {};
    state.DestinationDirectoryChoices.back() = std::move(lastChoice);
}

} // namespace

void ResetToNewProject(Project& project, OpenProjectState& state, const Text& toolFolder)
{
    Project fresh;
    // Kept: New leaves Comments alone, so a new project inherits the last one's comment.
    fresh.Version.Comments = std::move(project.Version.Comments);
    // Kept: New hides the slide show's pictures by a count of 0 and does not forget them.
    fresh.DesPicturesAnim.P = std::move(project.DesPicturesAnim.P);
    SetDefaultBitmaps(fresh, toolFolder);

    project = std::move(fresh);
    ResetState(state);
}

Text DefaultDlgBitmap(const Text& toolFolder)
{
    return JoinPath(JoinPath(PrettyPath(toolFolder), "Res"), kDefaultDlgBitmapName);
}

} // namespace quillon
