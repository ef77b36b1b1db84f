// The tab "Design": what the surface shows of the background's record, and how large it is.
#include "app/DesignPage.h"

#include "app/MainForm.h"
#include "design/forms/ColorblendBackground.h"
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
    machine.files.Put("C:\\bild.bmp", "no picture at all");
    ScriptedAsk user({{BoxKind::Critical, "Fel bildformat",
                       "Filen som du valde är ej ett giltigt bildformat!"}});
    Session own = NewSession(machine.host, user, "C:\\Quillon");
    DesignPage page(own);
    page.ShowSession();
    own.project.DesBackground.Type = 2;
    own.project.DesBackground.BackColor1 = kRed;
    own.project.DesBackground.PictureFilename = "C:\\bild.bmp";
    page.ShowSession();
    page.ShowSession();
    EXPECT_EQ(own.project.DesBackground.PictureFilename, "C:\\bild.bmp");
    EXPECT_EQ(own.project.DesBackground.Type, 2);
    EXPECT_EQ(own.state.ProjectIsDirty, kOff);
    // Kept: the rest of the step is not done, so the colours are those of before.
    auto& surface = Find<QWidget>(page, "colorblendBackground");
    surface.resize(10, 10);
    EXPECT_EQ(surface.grab().toImage().pixel(0, 0), kBluePixel);
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
    auto& surface = Find<QWidget>(form, "colorblendBackground");
    EXPECT_EQ(surface.grab().toImage().pixel(0, 0), kRedPixel);
}

} // namespace
} // namespace quillon::test
