// The surface of the tab "Design" and the objects on it: a surface wider than a record's places,
// what a double click opens, which object is in front.
#include "app/design_objects_test.h"
#include "design/forms/design_commands.h"

namespace quillon::test {
namespace {

/// Presses the mouse, or clicks it twice, at a height of the surface.
void SendMouse(QWidget& surface, QEvent::Type type, int y)
{
    const QPoint at(200, y);
    QMouseEvent event(type, at, surface.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {});
    QApplication::sendEvent(&surface, &event);
}

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

TEST_F(DesignObjectsTest, ADoubleClickCountsTheHeightOfThePressBeforeIt)
{
    Show();
    QWidget& surface = Object("colorblendBackground");
    const std::pair<std::vector<int>, const char*> cases[] = {
        {{20}, "Titel"}, {{300}, "Bakgrund"}, {{300, 20}, "Titel"}, {{20, 300}, "Bakgrund"}};
    for (const auto& [presses, title] : cases) {
        QString opened;
        for (const int y : presses)
            SendMouse(surface, QEvent::MouseButtonPress, y);
        OnNextDialog([&](QDialog& dialog) { opened = dialog.windowTitle(); });
        SendMouse(surface, QEvent::MouseButtonDblClick, presses.back() == 20 ? 300 : 20);
        EXPECT_EQ(opened, title) << presses.front();
    }
}

TEST_F(DesignObjectsTest, ATextBoxBelowTheTitleFollowsTheTitlesEditor)
{
    project.DesTextBox.ShowTextBox = kOn;
    project.DesTextBox.BoxPlaceBelowTitle = kOn;
    Show();
    const Integer before = project.DesTextBox.BoxYPos;
    ask.fonts = {FontChoice{.name = "Arial", .size = 60}};
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "cmdTitleFont");
        Click(dialog, "cmdOK");
    });
    EditDesTitle(page->Screen());
    EXPECT_GT(project.DesTextBox.BoxYPos, before);
    EXPECT_EQ(Object("DesTextBoxPic").y(), PixelsOf(project.DesTextBox.BoxYPos, 15));
}

TEST_F(DesignObjectsTest, KeepOneOrderFromBackToFront)
{
    PutPicture("C:\\b.bmp", 200, 100);
    for (section::DesPicture& picture : project.DesPictures.Pictures)
        picture = {.PictureFilename = "C:\\b.bmp", .PictureXPos = 1500, .PictureYPos = 1500};
    project.DesTextBox = {.ShowTextBox = kOn, .BoxXPos = 1500, .BoxYPos = 1500};
    project.DesRTFbox = {.ShowRTFbox = kOn, .RTFboxXPos = 1500, .RTFboxYPos = 1500};
    DesignScreen& screen = Show();
    const QPoint all(250, 180); // of all of them
    const auto inFront = [&] { return screen.childAt(all)->objectName(); };
    QWidget& box = Object("DesTextBoxPic");
    EXPECT_EQ(inFront(), "DesRTFboxPic");
    // Neither what is drawn last nor what has the keyboard or was moved comes in front.
    screen.DrawDesTextBox();
    screen.DrawDesPictures();
    EXPECT_EQ(inFront(), "DesRTFboxPic");
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_Right);
    Drag(box, {3, 3});
    Drag(Object("DesPicture0"), {3, 3});
    EXPECT_EQ(inFront(), "DesRTFboxPic");
    for (const auto edit : {EditDesTextBox, EditDesTitle}) {
        OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
        edit(screen);
        EXPECT_EQ(inFront(), "DesRTFboxPic");
    }
    // And so on to the back.
    for (const char* name : {"DesRTFboxPic", "DesTextBoxPic", "DesPicture2", "DesPicture1",
                             "DesPicture0", "colorblendBackground"}) {
        EXPECT_EQ(inFront(), name);
        Object(name).hide();
    }
}

} // namespace
} // namespace quillon::test
