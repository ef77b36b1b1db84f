// The objects on the tab "Design": where they are, how they are moved, what opens their editors.
#include "app/design_objects_test.h"
#include "app/MainForm.h"
#include "app/pages/DesignPage.h"
#include "design/forms/design_commands.h"
#include "design/number_fields.h"

#include <fstream>
#include <iterator>

namespace quillon::test {
namespace {

TEST_F(DesignObjectsTest, ANewProjectShowsNoneOfThem)
{
    Show();
    for (const char* name : {"DesPicture0", "DesPicture1", "DesPicture2", "DesPictureAnim",
                             "DesLogotype", "DesTextBoxPic", "DesRTFboxPic"})
        EXPECT_FALSE(Object(name).isVisible()) << name;
}

TEST_F(DesignObjectsTest, AreShownWhereTheRecordsSay)
{
    PutPicture("C:\\b.bmp", 60, 40);
    project.DesPictures.Pictures[1].PictureFilename = "C:\\b.bmp";
    project.DesPicturesAnim.NrAnimPictures = 1;
    project.DesLogotype.LogotypeFilename = "C:\\b.bmp";
    project.DesTextBox.ShowTextBox = kOn;
    project.DesRTFbox.ShowRTFbox = kOn;
    project.DesRTFbox.RTFfilename = "demo.rtf";
    Show();
    EXPECT_EQ(Object("DesPicture1").geometry(), QRect(23, 83, 60, 40));
    EXPECT_EQ(Object("DesPictureAnim").geometry(), QRect(36, 96, 200, 100));
    EXPECT_EQ(Object("DesTextBoxPic").geometry(), QRect(27, 197, 200, 99));
    EXPECT_EQ(Object("DesRTFboxPic").geometry(), QRect(27, 187, 200, 110));
    EXPECT_EQ(Find<QLabel>(*tabs, "Label_DesRTFboxPic").text(), "demo.rtf");
    EXPECT_EQ(Find<QLabel>(*tabs, "Label_DesRTFboxPic").pos(), QPoint(24, 2));
    EXPECT_TRUE(Object("DesLogotype").isVisible());
    EXPECT_EQ(Object("DesLogotype").size(), QSize(60, 40));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    SavePicture(*tabs, "DesignPage_objects");
}

TEST_F(DesignObjectsTest, ShowWhatIsBehindTheirTransparentColour)
{
    PutPicture("C:\\b.bmp", 60, 40); // all red
    project.DesBackground = {.BackColor1 = 0x00FF00, .BlendDirection = 0};
    project.DesPictures.Pictures[0].PictureFilename = "C:\\b.bmp";
    project.DesPictures.Pictures[0].UseTransparentBkg = kOn;
    project.DesPictures.Pictures[1].PictureFilename = "C:\\b.bmp";
    project.DesPictures.Pictures[1].PictureXPos = 300 * 15;
    project.DesPictures.TransparentColorNr = 1;
    project.DesLogotype = {
        .LogotypeFilename = "C:\\b.bmp", .UseTransparentBkg = kOn, .TransparentColorNr = 1};
    Show();
    const auto middleOf = [&](const char* name) {
        const QWidget& object = Object(name);
        const QImage shown = tabs->grab().toImage();
        const QPoint middle = object.mapTo(tabs.get(), object.rect().center());
        return shown.pixel(middle * shown.devicePixelRatio());
    };
    EXPECT_EQ(middleOf("DesPicture0"), qRgb(0, 255, 0));
    EXPECT_EQ(middleOf("DesPicture1"), qRgb(255, 0, 0));
    EXPECT_EQ(middleOf("DesLogotype"), qRgb(0, 255, 0));
}

TEST_F(DesignObjectsTest, TellTheirNamesAndWhatTheyShow)
{
    PutPicture("C:\\b.bmp", 60, 40);
    project.DesPictures.Pictures[2].PictureFilename = "C:\\b.bmp";
    project.DesPicturesAnim.NrAnimPictures = 3;
    project.DesLogotype.LogotypeFilename = "C:\\b.bmp";
    project.DesTextBox.BoxTitle = "Rubrik";
    project.DesTextBox.BoxText = "Text";
    project.DesRTFbox.RTFfilename = "demo.rtf";
    Show();
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"DesPicture0", "Bild 1", ""},
        {"DesPicture2", "Bild 3", "C:\\b.bmp"},
        {"DesPictureAnim", "Växlingsbara bilder", "3 bilder"},
        {"DesLogotype", "Logotype", "C:\\b.bmp"},
        {"DesTextBoxPic", "Textruta", "Rubrik\nText"},
        {"DesRTFboxPic", "RTF-ruta", "demo.rtf"},
        {"colorblendBackground", "Installationens bakgrund", "Titel"}};
    for (const auto& [name, accessibleName, content] : cases) {
        EXPECT_EQ(Object(name).accessibleName(), accessibleName) << name;
        EXPECT_EQ(Object(name).accessibleDescription(), content) << name;
        EXPECT_EQ(Object(name).focusPolicy(), Qt::StrongFocus) << name;
    }
}

TEST_F(DesignObjectsTest, FollowTheMouse)
{
    project.DesTextBox.ShowTextBox = kOn;
    project.DesRTFbox.ShowRTFbox = kOn;
    project.DesPicturesAnim.NrAnimPictures = 1;
    Show();
    Drag(Object("DesTextBoxPic"), {30, -20});
    EXPECT_EQ(project.DesTextBox.BoxXPos, 400 + 30 * 15);
    EXPECT_EQ(project.DesTextBox.BoxYPos, 2950 - 20 * 15);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    Drag(Object("DesRTFboxPic"), {5, 5});
    EXPECT_EQ(project.DesRTFbox.RTFboxXPos, 475);
    Drag(Object("DesPictureAnim"), {-900, -900});
    EXPECT_EQ(project.DesPicturesAnim.PictureXPos, 80);
    EXPECT_EQ(project.DesPicturesAnim.PictureYPos, 95);
    EXPECT_FALSE(Object("DesDragRect").isVisible());
}

TEST_F(DesignObjectsTest, ShowARectangleWhileTheyAreDragged)
{
    project.DesTextBox.ShowTextBox = kOn;
    Show();
    QWidget& box = Object("DesTextBoxPic");
    QTest::mousePress(&box, Qt::LeftButton, {}, {10, 10});
    EXPECT_TRUE(Object("DesDragRect").isVisible());
    EXPECT_EQ(box.cursor().shape(), Qt::SizeAllCursor);
    QTest::mouseRelease(&box, Qt::LeftButton, {}, {10, 10});
    EXPECT_FALSE(Object("DesDragRect").isVisible());
    EXPECT_EQ(project.DesTextBox.BoxXPos, 400);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DesignObjectsTest, MoveByTheArrowKeys)
{
    PutPicture("C:\\b.bmp", 60, 40);
    project.DesPictures.Pictures[0].PictureFilename = "C:\\b.bmp";
    Show();
    QWidget& picture = Object("DesPicture0");
    picture.setFocus();
    QTest::keyClick(&picture, Qt::Key_Right);
    QTest::keyClick(&picture, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(project.DesPictures.Pictures[0].PictureXPos, 240 + 15);
    EXPECT_EQ(project.DesPictures.Pictures[0].PictureYPos, 1140 + 150);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DesignObjectsTest, FreePicturesFollowTheMouseAndStayInside)
{
    PutPicture("C:\\b.bmp", 60, 40);
    for (section::DesPicture& picture : project.DesPictures.Pictures)
        picture.PictureFilename = "C:\\b.bmp";
    project.DesPictures.Pictures[2].StretchPicture = kOn;
    Show();
    Drag(Object("DesPicture0"), {37, 11});
    EXPECT_EQ(project.DesPictures.Pictures[0].PictureXPos, 240 + 37 * 15);
    EXPECT_EQ(project.DesPictures.Pictures[0].PictureYPos, 1140 + 11 * 15);
    EXPECT_EQ(Object("DesPicture0").geometry(), QRect(53, 87, 60, 40));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    Drag(Object("DesPicture1"), {5000, 5000});
    EXPECT_EQ(project.DesPictures.Pictures[1].PictureXPos, RightOfSurface() - 60 * 15);
    EXPECT_EQ(project.DesPictures.Pictures[1].PictureYPos, BottomOfSurface() - 40 * 15);
    Drag(Object("DesPicture2"), {-5000, -5000});
    EXPECT_EQ(project.DesPictures.Pictures[2].PictureXPos, 80);
    EXPECT_EQ(project.DesPictures.Pictures[2].PictureYPos, 95);
    EXPECT_EQ(Object("DesPicture2").size(), QSize(200, 100));
    EXPECT_TRUE(Object("DesPicture2").isVisible());
}

TEST_F(DesignObjectsTest, EscapeEndsADrag)
{
    project.DesTextBox.ShowTextBox = kOn;
    Show();
    QWidget& box = Object("DesTextBoxPic");
    QTest::mousePress(&box, Qt::LeftButton, {}, {10, 10});
    MoveHeld(box, {60, 60}, Qt::LeftButton);
    EXPECT_TRUE(Object("DesDragRect").isVisible());
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(Object("DesDragRect").isVisible());
    EXPECT_EQ(box.cursor().shape(), Qt::ArrowCursor);
    MoveHeld(box, {90, 90}, Qt::LeftButton);
    QTest::mouseRelease(&box, Qt::LeftButton, {}, {90, 90});
    EXPECT_EQ(project.DesTextBox.BoxXPos, 400);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DesignObjectsTest, StandStillWhileASecondButtonIsDown)
{
    project.DesTextBox.ShowTextBox = kOn;
    Show();
    QWidget& box = Object("DesTextBoxPic");
    QTest::mousePress(&box, Qt::LeftButton, {}, {10, 10});
    MoveHeld(box, {60, 60}, Qt::LeftButton | Qt::RightButton);
    QTest::mouseRelease(&box, Qt::RightButton, {}, {60, 60});
    EXPECT_TRUE(Object("DesDragRect").isVisible());
    QTest::mouseRelease(&box, Qt::LeftButton, {}, {60, 60});
    EXPECT_EQ(project.DesTextBox.BoxXPos, 400) << "it was never dragged with one button";
    QTest::mousePress(&box, Qt::RightButton, {}, {10, 10});
    EXPECT_FALSE(Object("DesDragRect").isVisible());
    QTest::mouseRelease(&box, Qt::RightButton, {}, {10, 10});
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DesignObjectsTest, TheKeyboardStopsAtTheEdges)
{
    project.DesTextBox.ShowTextBox = kOn;
    project.DesTextBox.BoxXPos = 80;
    project.DesTextBox.BoxYPos = 95;
    Show();
    QWidget& box = Object("DesTextBoxPic");
    box.setFocus();
    for (const int key : {Qt::Key_Left, Qt::Key_Up}) {
        QTest::keyClick(&box, Qt::Key(key));
        QTest::keyClick(&box, Qt::Key(key), Qt::ShiftModifier);
    }
    EXPECT_EQ(project.DesTextBox.BoxXPos, 80);
    EXPECT_EQ(project.DesTextBox.BoxYPos, 95);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff) << "nothing moved";
    for (int i = 0; i < 100; ++i) {
        QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&box, Qt::Key_Down, Qt::ShiftModifier);
    }
    EXPECT_EQ(project.DesTextBox.BoxXPos, RightOfSurface() - 200 * 15);
    EXPECT_EQ(project.DesTextBox.BoxYPos, BottomOfSurface() - 1485);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DesignObjectsTest, CancelInAnEditorMovesNothing)
{
    project.DesTextBox.ShowTextBox = kOn;
    project.DesTextBox.BoxPlaceBelowTitle = kOff;
    Show();
    // A place that was set in a larger window.
    project.DesTextBox.BoxXPos = 30000;
    for (const int editor : {0, 1}) {
        OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdCancel"); });
        editor == 0 ? EditDesTitle(page->Screen()) : EditDesTextBox(page->Screen());
        EXPECT_EQ(project.DesTextBox.BoxXPos, 30000) << editor;
        EXPECT_EQ(session.state.ProjectIsDirty, kOff) << editor;
    }
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
    EditDesTextBox(page->Screen());
    EXPECT_LT(project.DesTextBox.BoxXPos, 30000);
}

TEST_F(DesignObjectsTest, AFontThatWasChosenIsShownBehindCancelToo)
{
    project.DesTextBox = {.BoxTitle = "Rubrik",
                          .BoxText = "Text",
                          .BoxTitleColor = 0,
                          .BoxBackColor = 0xFFFFFF,
                          .ShowTextBox = kOn,
                          .BoxXPos = 400,
                          .BoxYPos = 2950};
    Show();
    QWidget& box = Object("DesTextBoxPic");
    const QImage before = box.grab().toImage();
    ask.fonts = {FontChoice{.name = "Arial", .size = 20, .colour = 0x0000FF}};
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "cmdTitleFont");
        Click(dialog, "cmdCancel");
    });
    EditDesTextBox(page->Screen());
    EXPECT_NE(box.grab().toImage(), before);
    QWidget& surface = Object("colorblendBackground");
    const QImage title = surface.grab().toImage();
    ask.fonts = {FontChoice{.name = "Arial", .size = 48}};
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "cmdTitleFont");
        Click(dialog, "cmdCancel");
    });
    EditDesTitle(page->Screen());
    EXPECT_NE(surface.grab().toImage(), title);
}

TEST_F(DesignObjectsTest, ATextBoxBelowTheTitleFollowsItsEditors)
{
    project.DesTextBox.ShowTextBox = kOn;
    project.DesTextBox.BoxPlaceBelowTitle = kOn;
    Show();
    const Integer before = project.DesTextBox.BoxYPos;
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "oMistyUnderline");
        Click(dialog, "OKButton");
    });
    EditDesUnderline(page->Screen());
    EXPECT_GT(project.DesTextBox.BoxYPos, before);
    EXPECT_EQ(Object("DesTextBoxPic").y(), PixelsOf(project.DesTextBox.BoxYPos, 15));
}

TEST_F(DesignObjectsTest, KnowTheHeightOfTheScreen)
{
    const DesignScreen& screen = Show();
    EXPECT_EQ(screen.ScreenHeightInPixels(), tabs->screen()->size().height());
}

TEST_F(DesignObjectsTest, TheLogotypeStaysWhereItIs)
{
    PutPicture("C:\\b.bmp", 60, 40);
    project.DesLogotype.LogotypeFilename = "C:\\b.bmp";
    Show();
    QWidget& logotype = Object("DesLogotype");
    const QPoint before = logotype.pos();
    Drag(logotype, {-50, -50});
    QTest::keyClick(&logotype, Qt::Key_Left);
    EXPECT_EQ(logotype.pos(), before);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DesignObjectsTest, OpenTheirEditors)
{
    PutPicture("C:\\b.bmp", 60, 40);
    for (section::DesPicture& picture : project.DesPictures.Pictures)
        picture.PictureFilename = "C:\\b.bmp";
    project.DesPicturesAnim.NrAnimPictures = 1;
    project.DesLogotype.LogotypeFilename = "C:\\b.bmp";
    project.DesTextBox.ShowTextBox = kOn;
    project.DesRTFbox.ShowRTFbox = kOn;
    Show();
    const std::pair<const char*, const char*> cases[] = {
        {"DesPicture0", "Bild 1"},     {"DesPicture2", "Bild 3"},
        {"DesLogotype", "Logotype"},   {"DesPictureAnim", "Växlingsbara bilder"},
        {"DesTextBoxPic", "Textruta"}, {"DesRTFboxPic", "RTF-ruta"}};
    for (const auto& [name, title] : cases) {
        QString opened;
        OnNextDialog([&](QDialog& dialog) { opened = dialog.windowTitle(); });
        QTest::mouseDClick(&Object(name), Qt::LeftButton);
        EXPECT_EQ(opened, title) << name;
        OnNextDialog([&](QDialog& dialog) { opened = "Enter: " + dialog.windowTitle(); });
        QTest::keyClick(&Object(name), Qt::Key_Return);
        EXPECT_EQ(opened, QString("Enter: ") + title) << name;
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DesignObjectsTest, TheSurfaceOpensAnEditorByTheHeightOfThePress)
{
    project.DesTitleUnderline = {.UnderlineType = 1, .UnderlineHeight = 3};
    Show();
    QWidget& surface = Object("colorblendBackground");
    const std::pair<int, const char*> cases[] = {
        {20, "Titel"}, {45 + 13, "Understrykning av titel"}, {300, "Bakgrund"}};
    for (const auto& [y, title] : cases) {
        QString opened;
        OnNextDialog([&](QDialog& dialog) { opened = dialog.windowTitle(); });
        QTest::mousePress(&surface, Qt::LeftButton, {}, {200, y});
        QTest::mouseDClick(&surface, Qt::LeftButton, {}, {200, y});
        EXPECT_EQ(opened, title) << y;
    }
}

TEST_F(DesignObjectsTest, ALogotypeAsLargeAsTheSurfaceIsRefused)
{
    PutPicture("C:\\stor.bmp", 3000, 10);
    ask.Expect({BoxKind::Critical, "Kan ej lägga in bilden"});
    project.DesLogotype.LogotypeFilename = "C:\\stor.bmp";
    Show();
    EXPECT_FALSE(Object("DesLogotype").isVisible());
    // The picture may fit a larger window, so its name stays; it is reported once.
    EXPECT_EQ(project.DesLogotype.LogotypeFilename, "C:\\stor.bmp");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    page->Screen().DrawDesAll();
    EXPECT_EQ(page->Screen().PicturesMemory(), 0);
}

TEST_F(DesignObjectsTest, PicturesBehindADamagedOneAreNotLaidOut)
{
    machine.files.Put("C:\\fel.bmp", "no picture");
    PutPicture("C:\\b.bmp", 60, 40);
    ask.Expect(
        {BoxKind::Critical, "Fel bildformat", "Filen som du valde är ej ett giltigt bildformat!"});
    project.DesPictures.Pictures[0].PictureFilename = "C:\\fel.bmp";
    project.DesPictures.Pictures[1].PictureFilename = "C:\\b.bmp";
    Show();
    EXPECT_EQ(project.DesPictures.Pictures[0].PictureFilename, "C:\\fel.bmp");
    EXPECT_FALSE(Object("DesPicture1").isVisible());
    EXPECT_FALSE(ask.busyPointer);
}

TEST_F(DesignObjectsTest, PicturesBehindOneThatAnEditorBreaksStayShown)
{
    machine.files.Put("C:\\fel.bmp", "no picture");
    PutPicture("C:\\b.bmp", 60, 40);
    section::DesPictures& record = project.DesPictures;
    for (section::DesPicture& picture : record.Pictures)
        picture.PictureFilename = "C:\\b.bmp";
    Show();
    const QRect before = Object("DesPicture1").geometry();
    ask.Expect({BoxKind::Critical, "Fel bildformat"});
    record.Pictures[0].PictureFilename = "C:\\fel.bmp";
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
    EditDesPictures(page->Screen(), 0);
    EXPECT_FALSE(Object("DesPicture0").isVisible());
    for (const char* name : {"DesPicture1", "DesPicture2"}) {
        EXPECT_TRUE(Object(name).isVisible()) << name;
        EXPECT_EQ(PixelAt(Object(name).grab().toImage(), {30, 20}), qRgb(255, 0, 0)) << name;
    }
    EXPECT_EQ(Object("DesPicture1").geometry(), before);
    Drag(Object("DesPicture1"), {37, 11});
    EXPECT_EQ(record.Pictures[1].PictureXPos, 340 + 37 * 15);
    EXPECT_EQ(record.Pictures[2].PictureXPos, 440);
    // Nothing of another project is shown, even where it names the same files.
    ask.Expect({BoxKind::Critical, "Fel bildformat"});
    page->BeginProject();
    page->ShowSession();
    EXPECT_FALSE(Object("DesPicture1").isVisible());
    EXPECT_EQ(page->Screen().PicturesMemory(), 0);
}

TEST_F(DesignObjectsTest, AnEmptiedSlotIsHiddenBehindOneThatCantBeRead)
{
    machine.files.Put("C:\\fel.bmp", "no picture");
    PutPicture("C:\\b.bmp", 60, 40);
    for (section::DesPicture& picture : project.DesPictures.Pictures)
        picture.PictureFilename = "C:\\b.bmp";
    DesignScreen& screen = Show();
    const std::int64_t before = screen.PicturesMemory();
    ask.Expect({BoxKind::Critical, "Fel bildformat"});
    project.DesPictures.Pictures[0].PictureFilename = "C:\\fel.bmp";
    project.DesPictures.Pictures[1].PictureFilename.clear();
    screen.DrawDesPictures();
    EXPECT_FALSE(Object("DesPicture1").isVisible());
    EXPECT_TRUE(Object("DesPicture2").isVisible());
    EXPECT_LE(screen.PicturesMemory(), before / 2) << "nothing is kept of what is hidden";
}

/// Files that record which one is opened.
class WatchedFiles : public MemoryFiles {
public:
    std::unique_ptr<InputFile> OpenInput(const Text& path) const override
    {
        if (onOpen)
            onOpen(path);
        return MemoryFiles::OpenInput(path);
    }

    std::function<void(const Text&)> onOpen;
};

/// Records that a widget is shown.
class ShownNote : public QObject {
public:
    ShownNote(QWidget& widget, QStringList& notes) : notes_(notes)
    {
        widget.installEventFilter(this);
    }

private:
    bool eventFilter(QObject* widget, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            notes_ << widget->objectName();
        return false;
    }

    QStringList& notes_;
};

TEST_F(DesignObjectsTest, AreDrawnInTheirOrderWithABusyPointerAtPictures)
{
    WatchedFiles watched;
    PutPicture("C:\\b.bmp", 60, 40);
    for (const char* path : {"C:\\bak.bmp", "C:\\ett.bmp", "C:\\tre.bmp", "C:\\logo.bmp"})
        watched.Put(path, machine.files.Get("C:\\b.bmp"));
    Host host{watched, machine.machine};
    Session own = NewSession(host, ask, "C:\\Quillon");
    own.project.DesBackground = {.Type = 2, .PictureFilename = "C:\\bak.bmp"};
    own.project.DesPictures.Pictures[0].PictureFilename = "C:\\ett.bmp";
    own.project.DesPictures.Pictures[2].PictureFilename = "C:\\tre.bmp";
    own.project.DesPicturesAnim.NrAnimPictures = 1;
    own.project.DesLogotype.LogotypeFilename = "C:\\logo.bmp";
    own.project.DesTextBox.ShowTextBox = own.project.DesRTFbox.ShowRTFbox = kOn;
    DesignScreen screen(own);
    screen.PlaceSurface({800, 600}, 0);
    ShowActive(screen);
    QStringList notes;
    std::vector<std::unique_ptr<ShownNote>> watches;
    for (const char* name : {"DesPicture0", "DesPicture1", "DesPicture2", "DesPictureAnim",
                             "DesLogotype", "DesTextBoxPic", "DesRTFboxPic"})
        watches.push_back(std::make_unique<ShownNote>(Find<QWidget>(screen, name), notes));
    const auto& surface = Find<QWidget>(screen, "colorblendBackground");
    watched.onOpen = [&](const Text& path) {
        notes << ToQt(path) + (ask.busyPointer ? " busy" : "") +
                     (surface.accessibleDescription() == "Ny" ? " titled" : "");
    };
    own.project.DesTitle.TitleText = "Ny";
    screen.DrawDesAll();
    EXPECT_EQ(notes, QStringList({"C:\\bak.bmp", "C:\\ett.bmp busy titled",
                                  "C:\\tre.bmp busy titled", "DesPicture0", "DesPicture2",
                                  "DesPictureAnim", "C:\\logo.bmp busy titled", "DesLogotype",
                                  "DesTextBoxPic", "DesRTFboxPic"}))
        << notes.join('\n').toStdString();
    EXPECT_FALSE(ask.busyPointer);
}

TEST_F(DesignObjectsTest, ThatOnlyTheSetupFillsHavePicturesInTheirPlaces)
{
    for (const char* name : {"BtDesRTF.bmp", "BtDesPix.bmp"}) {
        std::ifstream file(Text(QUILLON_TOOL_FOLDER) + "/Res/" + name, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        ASSERT_FALSE(bytes.empty()) << name;
        machine.files.Put(Text("C:\\Quillon\\Res\\") + name, bytes);
    }
    project.DesRTFbox = {.RTFfilename = "demo.rtf",
                         .RTFboxBackColor = 0x80FFFF,
                         .ShowRTFbox = kOn,
                         .RTFboxXPos = 400,
                         .RTFboxYPos = 2800};
    project.DesPicturesAnim.NrAnimPictures = 3;
    project.DesPicturesAnim.PictureXPos = 6000;
    Show();
    SavePicture(*tabs, "DesignPage_placeholders");
    const std::tuple<const char*, QRgb, QSize> cases[] = {
        {"DesRTFboxPic", qRgb(255, 255, 128), {48, 48}},
        {"DesPictureAnim", qRgb(0x80, 0x80, 0x80), {48, 48}}};
    for (const auto& [name, background, size] : cases) {
        const QImage shown = Object(name).grab().toImage();
        const double ratio = shown.devicePixelRatio();
        QRect paper; // of the picture, which is white on each background
        for (int y = 2; y < shown.height() - 2; ++y)
            for (int x = 2; x < shown.width() - 2; ++x)
                if (shown.pixel(x, y) == qRgb(255, 255, 255) &&
                    (name == Text("DesRTFboxPic") || y < shown.height() * 2 / 3))
                    paper |= QRect(x, y, 1, 1);
        EXPECT_GT(paper.width(), size.width() * ratio / 2) << name;
        EXPECT_LE(paper.width(), size.width() * ratio) << name;
        EXPECT_LE(paper.height(), size.height() * ratio) << name;
        EXPECT_NEAR(paper.center().x(), shown.width() / 2.0, 6 * ratio) << name;
        EXPECT_NEAR(paper.center().y(), shown.height() / 2.0, 14 * ratio) << name;
        EXPECT_EQ(shown.pixel(3, shown.height() - 4), background) << name;
    }
    EXPECT_EQ(Find<QLabel>(Object("DesRTFboxPic"), "Label_DesRTFboxPic").text(), "demo.rtf");
    // In the smallest ones they are as small as needed.
    project.DesRTFbox.RTFboxWidth = 100;
    project.DesRTFbox.RTFboxHeight = 50;
    project.DesPicturesAnim.PictureWidth = project.DesPicturesAnim.PictureHeight = 10;
    page->Screen().DrawDesAll();
    SavePicture(*tabs, "DesignPage_small_placeholders");
    EXPECT_EQ(Object("DesPictureAnim").size(), QSize(10, 10));
}

TEST_F(DesignObjectsTest, CommandsOpenTheEditors)
{
    MainForm form(session);
    ShowActive(form);
    const std::pair<CommandId, const char*> commands[] = {
        {CommandId::Background, "Bakgrund"},
        {CommandId::Title, "Titel"},
        {CommandId::Underline, "Understrykning av titel"},
        {CommandId::TextBox, "Textruta"},
        {CommandId::RtfBox, "RTF-ruta"},
        {CommandId::Pictures, "Bild 1"},
        {CommandId::ChangingPictures, "Växlingsbara bilder"},
        {CommandId::Logotype, "Logotype"},
        {CommandId::PercentGauge, "Procentmätare"},
        {CommandId::Sound, "Ljud"},
        {CommandId::Overview, "Översikt"}};
    for (const auto& [id, title] : commands) {
        QString opened;
        OnNextDialog([&](QDialog& dialog) { opened = dialog.windowTitle(); });
        form.RunCommand(id);
        EXPECT_EQ(opened, title) << static_cast<int>(id);
    }
}

TEST(PictureToEdit, IsTheFirstFreeSlot)
{
    section::DesPictures record;
    EXPECT_EQ(PictureToEdit(record), 0U);
    record.Pictures[0].PictureFilename = "a";
    EXPECT_EQ(PictureToEdit(record), 1U);
    record.Pictures[1].PictureFilename = record.Pictures[2].PictureFilename = "b";
    EXPECT_EQ(PictureToEdit(record), 0U);
}

} // namespace
} // namespace quillon::test
