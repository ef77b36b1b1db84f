#include "builder/design_objects.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillon {

TEST(UsesJpegPictures, LooksAtEachPictureOfTheScreen)
{
    using Place = Text& (*)(Project&);
    const Place places[] = {
        [](Project& project) -> Text& { return project.DesBackground.PictureFilename; },
        [](Project& project) -> Text& { return project.DesPictures.Pictures[0].PictureFilename; },
        [](Project& project) -> Text& { return project.DesPictures.Pictures[1].PictureFilename; },
        [](Project& project) -> Text& { return project.DesPictures.Pictures[2].PictureFilename; },
        [](Project& project) -> Text& { return project.DesPicturesAnim.P[1]; },
        [](Project& project) -> Text& { return project.DesLogotype.LogotypeFilename; }};
    for (const Place place : places) {
        Project project;
        project.DesPicturesAnim.NrAnimPictures = 2;
        EXPECT_FALSE(UsesJpegPictures(project));
        place(project) = "C:\\Bilder\\A.JPG";
        EXPECT_TRUE(UsesJpegPictures(project));
        place(project) = "C:\\Bilder\\a.jpeg";
        EXPECT_FALSE(UsesJpegPictures(project));
        place(project) = "C:\\Bilder.jpg\\a.bmp";
        EXPECT_TRUE(UsesJpegPictures(project));
    }
}

TEST(UsesJpegPictures, DoesNotLookAtDialogsOrPicturesBehindTheCount)
{
    Project project;
    project.DialogBoxes.DlgBitmap = "a.jpg";
    project.DialogBoxData.WelcomeDlgBitmap = "a.jpg";
    project.DesSound.BackSoundFilename = "a.jpg";
    project.DesRTFbox.RTFfilename = "a.jpg";
    project.DesPicturesAnim.NrAnimPictures = 1;
    project.DesPicturesAnim.P[1] = "a.jpg";
    EXPECT_FALSE(UsesJpegPictures(project));
}

TEST(AnimationPictures, AreAsManyAsTheProjectHolds)
{
    section::DesPicturesAnim animation;
    for (const auto& [number, count] :
         std::initializer_list<std::pair<int, std::size_t>>{{-3, 0}, {0, 0}, {2, 2}, {40, 21}}) {
        animation.NrAnimPictures = Integer(number);
        EXPECT_EQ(AnimationPictures(animation).size(), count);
    }
}

TEST(IsDefaultDialogBitmap, KnowsThePictureInAnyCaseAndFolder)
{
    EXPECT_TRUE(IsDefaultDialogBitmap("C:\\Quillon\\Res\\SetupDef.bmp"));
    EXPECT_TRUE(IsDefaultDialogBitmap("SETUPDEF.BMP"));
    EXPECT_TRUE(IsDefaultDialogBitmap("C:\\min_setupdef.bmp"));
    EXPECT_FALSE(IsDefaultDialogBitmap("C:\\sida.bmp"));
    EXPECT_FALSE(IsDefaultDialogBitmap(""));
}

} // namespace quillon
