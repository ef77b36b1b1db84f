// The tab "Design": what the surface shows of the background's record, and how large it is.
#include "app/pages/DesignPage.h"

#include "app/MainForm.h"
#include "app/history/EditHistory.h"
#include "design/forms/ColorblendBackground.h"
#include "design/forms/design_commands.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

constexpr Colour kRed = 0x0000FF;
constexpr Colour kBlue = 0xFF0000;
const QRgb kRedPixel = qRgb(255, 0, 0);
const QRgb kBluePixel = qRgb(0, 0, 255);

class DesignPageTest : public WindowTest {
protected:
    /// The tab in a window of its own.
    DesignPage& Show()
    {
        tabs = std::make_unique<QTabWidget>();
        auto* page = new DesignPage(session);
        tabs->addTab(page, "Design");
        page->ShowSession();
        tabs->resize(640, 480);
        tabs->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(tabs.get()));
        return *page;
    }

    QWidget& Surface() { return Find<QWidget>(*tabs, "colorblendBackground"); }
    QImage Shown() { return Surface().grab().toImage().convertToFormat(QImage::Format_RGB32); }

    void PutPicture(const Text& path, const QImage& picture)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(picture.save(&buffer, "BMP"));
        machine.files.Put(path, bytes.toStdString());
    }

    /// A picture with red above and blue below.
    static QImage TwoColours(int width, int height)
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(QColor(kBluePixel));
        QPainter(&picture).fillRect(0, 0, width, height / 2, QColor(kRedPixel));
        return picture;
    }

    /// A metafile that draws nothing, of 100 x 50.
    static std::string EmptyMetafile()
    {
        const auto words = [](std::initializer_list<int> numbers) {
            std::string bytes;
            for (const int number : numbers) {
                bytes.push_back(static_cast<char>(number & 0xFF));
                bytes.push_back(static_cast<char>(number >> 8 & 0xFF));
            }
            return bytes;
        };
        return words({1, 9, 0x300, 9 + 5 + 3, 0, 0, 5, 0, 0}) + words({5, 0, 0x020C, 50, 100}) +
               words({3, 0, 0});
    }

    section::DesBackground& Background() { return session.project.DesBackground; }

    std::unique_ptr<QTabWidget> tabs;
};

TEST_F(DesignPageTest, PaintsTheBlendOfEachDirection)
{
    struct {
        Integer direction;
        const char* name;
        QRgb topLeft;
        QRgb topRight;
        QRgb bottomLeft;
        QRgb bottomRight;
        QRgb middle;
    } const cases[] = {
        {0, "none", kRedPixel, kRedPixel, kRedPixel, kRedPixel, kRedPixel},
        {1, "right", kRedPixel, kBluePixel, kRedPixel, kBluePixel, qRgb(128, 0, 128)},
        {2, "left", kBluePixel, kRedPixel, kBluePixel, kRedPixel, qRgb(128, 0, 128)},
        {3, "up", kBluePixel, kBluePixel, kRedPixel, kRedPixel, qRgb(128, 0, 128)},
        {4, "down", kRedPixel, kRedPixel, kBluePixel, kBluePixel, qRgb(128, 0, 128)},
        {5, "rectangles", kBluePixel, kBluePixel, kBluePixel, kBluePixel, kRedPixel},
    };
    Background().BackColor1 = kRed;
    Background().BackColor2 = kBlue;
    DesignPage& page = Show();
    for (const auto& c : cases) {
        Background().BlendDirection = c.direction;
        page.Screen().DrawDesBackground();
        const QImage shown = Shown();
        const int right = shown.width() - 1;
        const int bottom = shown.height() - 1;
        EXPECT_EQ(shown.pixel(0, 0), c.topLeft) << c.name;
        EXPECT_EQ(shown.pixel(right, 0), c.topRight) << c.name;
        EXPECT_EQ(shown.pixel(0, bottom), c.bottomLeft) << c.name;
        EXPECT_EQ(shown.pixel(right, bottom), c.bottomRight) << c.name;
        const QRgb middle = shown.pixel(right / 2, bottom / 2);
        EXPECT_NEAR(qRed(middle), qRed(c.middle), 1) << c.name;
        EXPECT_NEAR(qBlue(middle), qBlue(c.middle), 1) << c.name;
        SavePicture(*tabs, Text("DesignPage_") + c.name);
    }
}

TEST_F(DesignPageTest, BlendsAPartOfTheWay)
{
    Background() = {.BackColor1 = kRed, .BackColor2 = kBlue, .BlendDepth = "50"};
    Show();
    const QImage shown = Shown();
    EXPECT_EQ(shown.pixel(0, 0), kRedPixel);
    EXPECT_EQ(shown.pixel(0, shown.height() - 1), qRgb(127, 0, 128));
}

TEST_F(DesignPageTest, PaintsAStretchedPicture)
{
    PutPicture("C:\\bild.bmp", TwoColours(40, 20));
    Background() = {.Type = 2, .PictureFilename = "C:\\bild.bmp", .StretchPicture = kOn};
    Show();
    const QImage shown = Shown();
    EXPECT_EQ(shown.pixel(0, 0), kRedPixel);
    EXPECT_EQ(shown.pixel(shown.width() - 1, shown.height() - 1), kBluePixel);
    SavePicture(*tabs, "DesignPage_stretched");
}

TEST_F(DesignPageTest, PaintsAPictureInItsOwnSize)
{
    PutPicture("C:\\bild.bmp", TwoColours(40, 20));
    Background() = {.Type = 2,
                    .BackColor1 = 0x00FF00,
                    .PictureFilename = "C:\\bild.bmp",
                    .StretchPicture = kOff};
    Show();
    const QImage shown = Shown();
    const QRgb green = qRgb(0, 255, 0);
    const QPoint middle = Surface().rect().center();
    EXPECT_EQ(PixelAt(shown, {0, 0}), green);
    EXPECT_EQ(PixelAt(shown, middle - QPoint(0, 5)), kRedPixel);
    EXPECT_EQ(PixelAt(shown, middle + QPoint(0, 5)), kBluePixel);
    EXPECT_EQ(PixelAt(shown, middle - QPoint(0, 13)), green);
    EXPECT_EQ(PixelAt(shown, middle - QPoint(22, 0)), green);
}

TEST_F(DesignPageTest, TellsOnceOfAPictureThatIsNoneAndKeepsItsName)
{
    DesignPage& page = Show();
    machine.files.Put("C:\\bild.bmp", "no picture at all");
    Background() = {.Type = 2,
                    .BackColor1 = kRed,
                    .BackColor2 = kBlue,
                    .BlendDirection = 1,
                    .PictureFilename = "C:\\bild.bmp"};
    const ExpectedBox told{BoxKind::Critical, "Fel bildformat",
                           "Filen som du valde är ej ett giltigt bildformat!"};
    ask.Expect(told);
    page.ShowSession();
    page.ShowSession();
    page.Screen().DrawDesBackground();
    EXPECT_EQ(Background().PictureFilename, "C:\\bild.bmp");
    EXPECT_EQ(Background().Type, 2);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    // What the setup paints without a picture.
    const QImage shown = Shown();
    EXPECT_EQ(shown.pixel(0, 0), kRedPixel);
    EXPECT_EQ(shown.pixel(shown.width() - 1, 0), kBluePixel);
    // Each project that is opened is reported, the same one too.
    ask.Expect(told);
    page.BeginProject();
    page.ShowSession();
    page.Screen().DrawDesAll();
    // One that could be read in between is reported when it fails again.
    PutPicture("C:\\bild.bmp", TwoColours(4, 4));
    page.Screen().DrawDesBackground();
    machine.files.Put("C:\\bild.bmp", "no picture at all");
    ask.Expect(told);
    page.Screen().DrawDesBackground();
    // So is one that was missing in between.
    machine.files.RemoveFile("C:\\bild.bmp");
    page.Screen().DrawDesBackground();
    machine.files.Put("C:\\bild.bmp", "no picture at all");
    ask.Expect(told);
    page.Screen().DrawDesBackground();
}

TEST_F(DesignPageTest, SaysInTheStatusBarWhyAPictureIsMissing)
{
    PutPicture("C:\\bild.bmp", TwoColours(4, 4));
    std::string huge = machine.files.Get("C:\\bild.bmp");
    huge.replace(18, 4, std::string("\0\0\1\0", 4)); // 65536 pixels wide
    machine.files.Put("C:\\stor.bmp", huge);
    machine.files.At("C:\\bild.bmp").unreadable = true;
    Background() = {.Type = 2, .PictureFilename = "C:\\bild.bmp"};
    section::DesPicture& picture = session.project.DesPictures.Pictures[0];
    picture.PictureFilename = "C:\\stor.bmp";
    DesignPage& page = Show();
    QTest::qWait(0);
    // No box comes up, since neither is a wrong format.
    const Text unreadable = "Filen 'C:\\bild.bmp' kan ej läsas. Kontrollera att du får läsa den.";
    ASSERT_FALSE(ask.statusTexts.empty());
    EXPECT_EQ(ask.statusTexts.back(), unreadable);
    machine.files.At("C:\\bild.bmp").unreadable = false;
    page.Screen().DrawDesBackground();
    EXPECT_EQ(ask.statusTexts.back(), "Filen 'C:\\stor.bmp' är en för stor bild. Välj en mindre "
                                      "bild, eller mindre bilder bredvid den.");
    picture.PictureFilename = "C:\\borta.bmp";
    page.Screen().DrawDesPictures();
    EXPECT_EQ(ask.statusTexts.back(), "Filen 'C:\\borta.bmp' finns inte. Lägg tillbaka den eller "
                                      "välj en annan bild.");
    picture.PictureFilename = "C:\\bild.bmp";
    page.Screen().DrawDesPictures();
    EXPECT_EQ(ask.statusTexts.back(), "");
    // On another tab the status bar keeps nothing of it, and texts of others stay.
    const std::size_t said = ask.statusTexts.size();
    page.Screen().DrawDesAll();
    page.Screen().HideDesObjects();
    EXPECT_EQ(ask.statusTexts.size(), said);
    machine.files.RemoveFile("C:\\bild.bmp");
    page.Screen().DrawDesAll();
    EXPECT_NE(ask.statusTexts.back(), "");
    page.Screen().HideDesObjects();
    EXPECT_EQ(ask.statusTexts.back(), "");
    // A file that could not be read is reported once it can be and is no picture.
    machine.files.Put("C:\\bild.bmp", "no picture at all");
    ask.Expect({BoxKind::Critical, "Fel bildformat"});
    page.Screen().DrawDesBackground();
}

TEST_F(DesignPageTest, SaysNothingMoreOfABackgroundPictureThatWasTakenAway)
{
    Background() = {.Type = 2, .PictureFilename = "C:\\borta.bmp"};
    DesignPage& page = Show();
    QTest::qWait(0);
    ASSERT_FALSE(ask.statusTexts.empty());
    EXPECT_NE(ask.statusTexts.back(), "");
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "cmdReset");
        Click(dialog, "cmdOK");
    });
    EditDesBackground(page.Screen());
    EXPECT_EQ(Background().Type, 2);
    EXPECT_EQ(ask.statusTexts.back(), "");
    // Of the project before, nothing is said of another one.
    Background().PictureFilename = "C:\\borta.bmp";
    page.Screen().DrawDesBackground();
    EXPECT_NE(ask.statusTexts.back(), "");
    page.BeginProject();
    EXPECT_EQ(ask.statusTexts.back(), "");
}

TEST_F(DesignPageTest, SaysNothingOfItsPicturesBehindAnotherTab)
{
    MainForm form(session);
    ShowActive(form);
    QTest::qWait(0);
    ASSERT_EQ(form.SelectedTab(), Tab::Files);
    Background() = {.Type = 2, .PictureFilename = "C:\\borta.bmp"};
    session.project.DesPictures.Pictures[0].PictureFilename = "C:\\borta.bmp";
    session.project.DesLogotype.LogotypeFilename = "C:\\borta.bmp";
    const auto said = ask.statusTexts;
    for (const CommandId editor : {CommandId::Background, CommandId::Logotype, CommandId::Title}) {
        OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
        form.RunCommand(editor);
    }
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
    EditDesPictures(form.Design(), 0);
    form.ShowProject(); // as after opening it
    QTest::qWait(0);
    EXPECT_EQ(ask.statusTexts, said);
    form.SelectTab(Tab::Design);
    QTest::qWait(0);
    EXPECT_NE(ask.statusTexts.back().find("C:\\borta.bmp"), Text::npos);
    form.SelectTab(Tab::Files);
    EXPECT_EQ(ask.statusTexts.back(), "");
}

TEST_F(DesignPageTest, TellsAgainOfAPictureThatTheUserSetsAnew)
{
    machine.files.Put("C:\\bild.bmp", "no picture at all");
    Background() = {.Type = 2, .PictureFilename = "C:\\bild.bmp"};
    session.project.DesPictures.Pictures[0].PictureFilename = "C:\\bild.bmp";
    session.project.DesLogotype.LogotypeFilename = "C:\\bild.bmp";
    const ExpectedBox told{BoxKind::Critical, "Fel bildformat"};
    for (int i = 0; i < 3; ++i)
        ask.Expect(told);
    DesignPage& page = Show();
    QTest::qWait(0);
    const std::function<void()> editors[] = {
        [&] { EditDesBackground(page.Screen()); },
        [&] { EditDesPictures(page.Screen(), 0); },
        [&] { EditDesLogotype(page.Screen()); },
    };
    for (const auto& edit : editors) {
        OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdCancel"); });
        edit();
        ask.Expect(told);
        OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
        edit();
        page.Screen().DrawDesAll();
    }
    EXPECT_EQ(session.project.DesLogotype.LogotypeFilename, "C:\\bild.bmp");
}

TEST_F(DesignPageTest, ShowsTheColourBehindAMetafileThatTheSetupShows)
{
    Background() = {.Type = 2,
                    .BackColor1 = kRed,
                    .BackColor2 = kBlue,
                    .BlendDirection = 4,
                    .PictureFilename = "C:\\borta.bmp"};
    machine.files.Put("C:\\l.wmf", EmptyMetafile());
    session.project.DesLogotype = {
        .LogotypeFilename = "C:\\l.wmf", .LogotypeWMFWidth = 60, .LogotypeWMFHeight = 40};
    DesignPage& page = Show();
    QTest::qWait(0);
    auto& logotype = Find<QWidget>(*tabs, "DesLogotype");
    const auto shown = [&] { return PixelAt(logotype.grab().toImage(), {5, 5}); };
    EXPECT_TRUE(logotype.isVisible());
    EXPECT_EQ(shown(), kRedPixel) << "a picture is wanted, so it is the first colour";
    Background().Type = 1;
    page.Screen().DrawDesAll();
    EXPECT_EQ(shown(), kBluePixel);
    Background().BackColor2 = 0;
    page.Screen().DrawDesAll();
    EXPECT_EQ(shown(), qRgb(0x1F, 0x1F, 0x1F));
    // Kept: the editor's OK shows the second colour of the record, also of a single colour.
    Background().BackColor2 = kBlue;
    Background().BlendDirection = 0;
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdOK"); });
    EditDesBackground(page.Screen());
    EXPECT_EQ(shown(), kBluePixel);
    page.Screen().DrawDesAll();
    EXPECT_EQ(shown(), kRedPixel);
}

TEST_F(DesignPageTest, KeepsOfItsPicturesNoMoreThanItShows)
{
    PutPicture("C:\\stor.bmp", TwoColours(1500, 1400));
    Background() = {.Type = 2, .PictureFilename = "C:\\stor.bmp", .StretchPicture = kOn};
    for (section::DesPicture& picture : session.project.DesPictures.Pictures) {
        picture.PictureFilename = "C:\\stor.bmp";
        picture.StretchPicture = kOn;
    }
    DesignPage& page = Show();
    QTest::qWait(0);
    const QSize screen = page.screen()->size().expandedTo(Surface().size());
    // With its halves, from which a much smaller one is made.
    const double kept = double(screen.width()) * screen.height() * 4 / 3;
    const double shown = double(Surface().width()) * Surface().height() + 3.0 * 200 * 100;
    const double ratio = page.devicePixelRatioF();
    const auto most = static_cast<std::int64_t>((kept + shown) * ratio * ratio * 4);
    EXPECT_LE(page.Screen().PicturesMemory(), most);
    EXPECT_GT(page.Screen().PicturesMemory(), 3 * 200 * 100 * 4);
    // An emptied slot keeps nothing.
    for (section::DesPicture& picture : session.project.DesPictures.Pictures)
        picture.PictureFilename.clear();
    Background().Type = 1;
    page.Screen().DrawDesAll();
    EXPECT_EQ(page.Screen().PicturesMemory(), 0);
}

TEST_F(DesignPageTest, KeepsNothingOfALogotypeThatIsTakenAway)
{
    PutPicture("C:\\l.bmp", TwoColours(60, 40));
    session.project.DesLogotype.LogotypeFilename = "C:\\l.bmp";
    DesignPage& page = Show();
    QTest::qWait(0);
    EXPECT_GE(page.Screen().PicturesMemory(), 60 * 40 * 4);
    session.project.DesLogotype.LogotypeFilename.clear();
    page.Screen().DrawDesLogotype();
    EXPECT_EQ(page.Screen().PicturesMemory(), 0);
}

// The pictures after it are given up then, and are read again after it.
TEST_F(DesignPageTest, ReadsALargePictureAlsoWhereTheOnesBehindItTakeItsRoom)
{
    const auto put = [&](const Text& path, int width, int height) {
        QImage picture(width, height, QImage::Format_Mono);
        picture.fill(1);
        PutPicture(path, picture);
    };
    put("C:\\hel.bmp", 4200, 4200);
    put("C:\\stor.bmp", 5000, 4900);
    auto& pictures = session.project.DesPictures.Pictures;
    pictures[0].StretchPicture = kOn;
    pictures[1].PictureFilename = pictures[2].PictureFilename = "C:\\hel.bmp";
    DesignScreen screen(session);
    screen.PlaceSurface({4400, 4400}, 0);
    screen.DrawDesPictures();
    const std::int64_t behind = screen.PicturesMemory();
    ASSERT_GT(behind + std::int64_t{5000} * 4900 * 4, kMaxPicturesMemory);
    pictures[0].PictureFilename = "C:\\stor.bmp";
    screen.DrawDesPictures();
    EXPECT_GT(screen.PicturesMemory(), behind);
    EXPECT_EQ(ask.statusTexts, std::vector<Text>());
}

TEST_F(DesignPageTest, ShowsTheMiddleOfAPictureLargerThanTheSurface)
{
    PutPicture("C:\\stor.bmp", TwoColours(3000, 3000));
    Background() = {.Type = 2, .PictureFilename = "C:\\stor.bmp", .StretchPicture = kOff};
    DesignPage& page = Show();
    const QImage shown = Shown();
    const QPoint middle = Surface().rect().center();
    EXPECT_EQ(PixelAt(shown, {0, 0}), kRedPixel);
    EXPECT_EQ(PixelAt(shown, middle - QPoint(0, 5)), kRedPixel);
    EXPECT_EQ(PixelAt(shown, middle + QPoint(0, 5)), kBluePixel);
    // Kept are as many pixels as the screen has points, and what is scaled from them, in pixels of
    // the screen.
    const QSize most = page.screen()->size().expandedTo(Surface().size()).grownBy({4, 4, 4, 4});
    const double ratio = page.devicePixelRatioF();
    EXPECT_LE(page.Screen().PicturesMemory(),
              double(most.width()) * most.height() * 4 * (1 + ratio * ratio));
    // A window that grows beyond its screen shows the rest.
    const Long width = Long(page.screen()->size().width()) + 400;
    tabs->resize(width, 600);
    QApplication::processEvents();
    EXPECT_GT(Surface().width(), page.screen()->size().width());
    EXPECT_NE(PixelAt(Shown(), {0, Surface().height() / 2 - 5}), qRgb(0, 0, 255));
}

TEST_F(DesignPageTest, MovesObjectsInsideTheSurfaceWhenAProjectIsOpenedBehindAnotherTab)
{
    const auto put = [&] {
        Project& project = session.project;
        project.DesTextBox = {.ShowTextBox = kOn, .BoxXPos = 30000, .BoxYPos = 80};
        project.DesRTFbox.RTFboxXPos = -500;
        project.DesPictures.Pictures[0].PictureYPos = 30000;
        project.DesPicturesAnim.PictureXPos = 30000;
    };
    const auto places = [&] {
        const Project& project = session.project;
        return std::vector<int>{
            project.DesTextBox.BoxXPos, project.DesTextBox.BoxYPos, project.DesRTFbox.RTFboxXPos,
            project.DesPictures.Pictures[0].PictureYPos, project.DesPicturesAnim.PictureXPos};
    };
    MainForm form(session);
    form.resize(800, 600);
    ShowActive(form);
    ASSERT_EQ(form.SelectedTab(), Tab::Files);
    put();
    form.ShowProject();
    const auto behind = places();
    const QSize page = Find<QWidget>(form, "DesignScreen").size();
    EXPECT_EQ(behind[0], page.width() * 15 - 80 - 15 - 200 * 15);
    EXPECT_EQ(behind[1], 95);
    EXPECT_EQ(behind[2], 80);
    EXPECT_EQ(behind[3], page.height() * 15 - 80 - 15);
    EXPECT_EQ(behind[4], 30000) << "these are not moved";
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_FALSE(Find<QWidget>(form, "DesTextBoxPic").isVisible());
    // Showing it changes nothing any more, and it is the same as on the hidden tab.
    form.SelectTab(Tab::Design);
    QTest::qWait(0);
    EXPECT_EQ(places(), behind);
    EXPECT_TRUE(Find<QWidget>(form, "DesTextBoxPic").isVisible());
    put();
    form.ShowProject();
    EXPECT_EQ(places(), behind);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_FALSE(form.Edits().UndoName()) << "laying out is no step of the user's";
}

TEST_F(DesignPageTest, LaysAProjectOutOnceItsWindowIsSeen)
{
    MainForm form(session);
    form.resize(800, 600);
    session.project.DesRTFbox.RTFboxXPos = 30000;
    form.ShowProject();
    EXPECT_EQ(session.project.DesRTFbox.RTFboxXPos, 30000) << "the window has no size yet";
    ShowActive(form);
    QTest::qWait(0);
    EXPECT_EQ(session.project.DesRTFbox.RTFboxXPos,
              Find<QWidget>(form, "DesignScreen").width() * 15 - 80 - 15 - 200 * 15);
}

TEST_F(DesignPageTest, AMissingPictureStaysInTheProjectWithoutAWord)
{
    Background() = {.Type = 2, .PictureFilename = "C:\\borta.bmp"};
    Show();
    EXPECT_EQ(Background().PictureFilename, "C:\\borta.bmp");
}

TEST_F(DesignPageTest, TellsTheSessionTheSizeOfTheSurface)
{
    Show();
    QWidget& surface = Surface();
    QWidget& page = *surface.parentWidget();
    EXPECT_EQ(surface.pos(), QPoint(5, 5)) << "80 twips";
    EXPECT_EQ(session.surface.width, surface.width());
    EXPECT_EQ(session.surface.height, surface.height());
    // A margin of 80 twips on all sides.
    EXPECT_NEAR(page.width() - surface.width(), 160 / 15.0, 0.7);
    EXPECT_NEAR(page.height() - surface.height(), 160 / 15.0, 0.7);
    const int height = surface.height();
    tabs->resize(tabs->width() + 100, tabs->height() + 50);
    EXPECT_EQ(session.surface.width, surface.width());
    EXPECT_EQ(session.surface.height, height + 50);
}

TEST_F(DesignPageTest, FollowsTheWindowAlsoBehindAnotherTab)
{
    MainForm form(session);
    form.resize(800, 600);
    ShowActive(form);
    ASSERT_EQ(form.SelectedTab(), Tab::Files);
    const int width = session.surface.width;
    EXPECT_GT(width, 640);
    form.resize(900, 600);
    QApplication::processEvents();
    EXPECT_EQ(session.surface.width, width + 100);
    form.SelectTab(Tab::Design);
    auto& surface = Find<QWidget>(form, "colorblendBackground");
    EXPECT_EQ(surface.width(), session.surface.width);
    EXPECT_TRUE(surface.isVisible());
    SavePicture(form, "MainForm_design");
}

TEST_F(DesignPageTest, DrawsAnewWhenTheTabIsChosen)
{
    MainForm form(session);
    ShowActive(form);
    Background().BackColor1 = kRed;
    form.SelectTab(Tab::Design);
    QApplication::processEvents();
    auto& surface = Find<QWidget>(form, "colorblendBackground");
    EXPECT_EQ(surface.grab().toImage().pixel(0, 0), kRedPixel);
}

} // namespace
} // namespace quillon::test
