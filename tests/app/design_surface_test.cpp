// The surface of the tab "Design" and the objects on it: a surface wider than a record's places.
#include "app/design_objects_test.h"

namespace quillon::test {
namespace {

class WideSurfaceTest : public DesignObjectsTest {
protected:
    /// A surface of 37500 twips each way, beyond what a record's place can be.
    void ShowWide()
    {
        wide = std::make_unique<DesignScreen>(session);
        wide->resize(2500, 2500);
        wide->PlaceSurface({2500, 2500}, 0);
        ShowActive(*wide);
        wide->DrawDesAll();
    }

    static constexpr int kMost = 32767;
    static constexpr int kMostInPixels = 2184;

    std::unique_ptr<DesignScreen> wide;
};

TEST_F(WideSurfaceTest, ShowsDraggedObjectsWhereTheirRecordsSay)
{
    PutPicture("C:\\b.bmp", 60, 40);
    project.DesPictures.Pictures[0].PictureFilename = "C:\\b.bmp";
    project.DesPicturesAnim.NrAnimPictures = 1;
    project.DesTextBox.ShowTextBox = project.DesRTFbox.ShowRTFbox = kOn;
    ShowWide();
    // Narrow enough to have room beyond the last place.
    project.DesTextBox.BoxWidth = project.DesTextBox.BoxHeight = 50;
    project.DesRTFbox.RTFboxWidth = project.DesRTFbox.RTFboxHeight = 60;
    project.DesPicturesAnim.PictureWidth = project.DesPicturesAnim.PictureHeight = 60;
    wide->DrawDesAll();
    const std::tuple<const char*, Integer&, Integer&> objects[] = {
        {"DesPicture0", project.DesPictures.Pictures[0].PictureXPos,
         project.DesPictures.Pictures[0].PictureYPos},
        {"DesPictureAnim", project.DesPicturesAnim.PictureXPos,
         project.DesPicturesAnim.PictureYPos},
        {"DesTextBoxPic", project.DesTextBox.BoxXPos, project.DesTextBox.BoxYPos},
        {"DesRTFboxPic", project.DesRTFbox.RTFboxXPos, project.DesRTFbox.RTFboxYPos}};
    for (const auto& [name, x, y] : objects) {
        auto& object = Find<QWidget>(*wide, name);
        Drag(object, {3000, 3000});
        EXPECT_EQ(x, kMost) << name;
        EXPECT_EQ(y, kMost) << name;
        EXPECT_EQ(object.pos(), QPoint(kMostInPixels, kMostInPixels)) << name;
        wide->DrawDesAll();
        EXPECT_EQ(object.pos(), QPoint(kMostInPixels, kMostInPixels)) << name;
    }
}

TEST_F(WideSurfaceTest, TheArrowKeysStopAtTheLastPlaceOfARecord)
{
    project.DesTextBox = {.ShowTextBox = kOn,
                          .BoxWidth = 50,
                          .BoxHeight = 50,
                          .BoxXPos = kMost - 20,
                          .BoxYPos = kMost - 20};
    ShowWide();
    auto& box = Find<QWidget>(*wide, "DesTextBoxPic");
    box.setFocus();
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&box, Qt::Key_Right);
        QTest::keyClick(&box, Qt::Key_Down, Qt::ShiftModifier);
    }
    EXPECT_EQ(box.pos(), QPoint(kMostInPixels, kMostInPixels));
    EXPECT_EQ(project.DesTextBox.BoxXPos, kMost);
    EXPECT_EQ(project.DesTextBox.BoxYPos, kMost);
    session.state.ProjectIsDirty = kOff;
    QTest::keyClick(&box, Qt::Key_Right);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff) << "nothing moved";
    QTest::keyClick(&box, Qt::Key_Left);
    EXPECT_EQ(project.DesTextBox.BoxXPos, kMost - 15);
}

} // namespace
} // namespace quillon::test
