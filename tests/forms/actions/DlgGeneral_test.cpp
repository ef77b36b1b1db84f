#include "actions/forms/pages/DlgGeneral.h"

#include "support/bitmap_maker.h"
#include "support/window_test.h"
#include "ui/controls/PictureView.h"

namespace quillon::test {
namespace {

constexpr const char* kStandard = "C:\\Quillon\\Res\\SetupDef.bmp";

class DlgGeneralTest : public WindowTest {
protected:
    DlgGeneralTest() { machine.files.Put(kStandard, Bitmap(Qt::darkBlue)); }

    static PictureView& Picture(QWidget& form)
    {
        return *static_cast<PictureView*>(form.findChild<QWidget*>("PictureBitmap"));
    }
    static Text ShownPath(QWidget& form)
    {
        return FromQt(Find<QLabel>(form, "sBitmapFilename").text());
    }
    static void Choose(QWidget& form) { Click(form, "cmdSelectBitmap"); }

    section::DialogBoxData& data = session.project.DialogBoxData;
    const GeneralPage& welcome = GeneralPageOf(&section::DialogBoxes::WelcomeDlg);
};

TEST_F(DlgGeneralTest, ShowsAndStoresEachOfTheFivePages)
{
    const char* const captions[] = {"Välkommen", "Generell information", "Generell information 2",
                                    "Starta installation", "Installationen avslutad"};
    for (std::size_t i = 0; i < std::size(kGeneralPages); ++i) {
        const GeneralPage& page = kGeneralPages[i];
        const section::DialogBoxData before = data;
        const Text number = NumberText(static_cast<std::int64_t>(i));
        session.state.ProjectIsDirty = kOff;
        data.*page.text = "Rad 1\r\nRad " + number;
        machine.files.Put("D:\\" + number + ".bmp", Bitmap(Qt::red));
        ask.choices = {{{"D:\\" + number + ".bmp"}}};

        DlgGeneral form(page, session, nullptr);
        ShowActive(form);
        EXPECT_EQ(form.windowTitle(), captions[i]);
        EXPECT_EQ(TextIn(form, "tDialogTitle"), captions[i]);
        EXPECT_EQ(FromQt(form.tDialogText->toPlainText()), "Rad 1\nRad " + number);
        EXPECT_EQ(ShownPath(form), kStandard);
        EXPECT_FALSE(form.Accepted());
        Type(form, "tDialogTitle", "Titel " + number);
        form.tDialogText->moveCursor(QTextCursor::End);
        TypeKeys(*form.tDialogText, "!");
        Choose(form);
        Click(form, "cmdOK");
        EXPECT_TRUE(form.Accepted());
        EXPECT_EQ(session.state.ProjectIsDirty, kOn);

        EXPECT_EQ(data.*page.title, "Titel " + number);
        EXPECT_EQ(data.*page.text, "Rad 1\r\nRad " + number + "!");
        EXPECT_EQ(data.*page.bitmap, "D:\\" + number + ".bmp");
        // No other page has changed.
        for (const GeneralPage& other : kGeneralPages)
            if (&other != &page) {
                EXPECT_EQ(data.*other.title, before.*other.title);
                EXPECT_EQ(data.*other.text, before.*other.text);
                EXPECT_EQ(data.*other.bitmap, before.*other.bitmap);
            }
    }
    EXPECT_EQ(data.NameCompanyDlgBitmap, kStandard);
    EXPECT_EQ(session.project.DialogBoxes.DlgBitmap, kStandard);
}

TEST_F(DlgGeneralTest, ChangesNothingOnCancel)
{
    ask.choices = {{{"D:\\ny.bmp"}}};
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    Type(form, "tDialogTitle", "Nytt");
    form.tDialogText->setPlainText("Nytt");
    Choose(form);
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.WelcomeDlgTitle, "Välkommen");
    EXPECT_EQ(data.WelcomeDlgText, "");
    EXPECT_EQ(data.WelcomeDlgBitmap, kStandard);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    // Where the user has looked for a picture is remembered all the same.
    EXPECT_EQ(session.Settings.Directories.LastDlgPictureDir, "D:\\");
}

TEST_F(DlgGeneralTest, ChoosesAPictureForThePageAlone)
{
    session.Settings.Directories.LastDlgPictureDir = "C:\\Bilder";
    machine.files.Put("D:\\Bilder\\sida.bmp", Bitmap(Qt::red));
    ask.choices = {{{"D:\\Bilder\\sida.bmp"}}, {}};
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(Picture(form).HasPicture());
    Choose(form);
    const FileQuestion& question = ask.questions.at(0);
    EXPECT_EQ(question.title, "Välj bild");
    EXPECT_EQ(question.folder, "C:\\Bilder");
    EXPECT_EQ(question.filter, "Bitmappar (*.bmp)|*.bmp");
    EXPECT_EQ(question.defaultExtension, ".bmp");
    EXPECT_EQ(session.Settings.Directories.LastDlgPictureDir, "D:\\Bilder");
    EXPECT_EQ(ShownPath(form), "D:\\Bilder\\sida.bmp");
    const QImage shown = Picture(form).grab().toImage();
    EXPECT_EQ(shown.pixelColor(shown.rect().center()), QColor(Qt::red));
    Choose(form);
    EXPECT_EQ(ShownPath(form), "D:\\Bilder\\sida.bmp") << "a cancelled choice";
    EXPECT_EQ(data.WelcomeDlgBitmap, kStandard) << "not before OK";
}

TEST_F(DlgGeneralTest, GoesBackToTheStandardPicture)
{
    data.WelcomeDlgBitmap = "D:\\annan.bmp";
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    Click(form, "cmdStdBitmap");
    EXPECT_EQ(ShownPath(form), kStandard);
    EXPECT_TRUE(Picture(form).HasPicture());
    Click(form, "cmdOK");
    EXPECT_EQ(data.WelcomeDlgBitmap, kStandard);
}

TEST_F(DlgGeneralTest, KeepsThePictureWhenTheStandardOneIsMissing)
{
    machine.files.RemoveFile(kStandard);
    data.WelcomeDlgBitmap = "D:\\annan.bmp";
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    ask.Expect({BoxKind::Critical, "Fel", "Standardbilden finns inte i förväntad katalog!"});
    Click(form, "cmdStdBitmap");
    EXPECT_EQ(ShownPath(form), "D:\\annan.bmp");
    Click(form, "cmdOK");
    EXPECT_EQ(data.WelcomeDlgBitmap, "D:\\annan.bmp");
}

TEST_F(DlgGeneralTest, SaysWhyThereIsNoPicture)
{
    machine.files.Put("D:\\trasig.bmp", Bitmap(Qt::red).substr(0, 30));
    machine.files.Put("D:\\enorm.bmp", BitmapHeader(100000, 100000));
    const char* const damaged = "Bilden kan inte visas: den är skadad eller för stor";
    for (const auto& [path, note] :
         {std::pair{"", "Ingen bild är vald"}, std::pair{"D:\\borta.bmp", "Bildfilen finns inte"},
          std::pair{"D:\\trasig.bmp", damaged}, std::pair{"D:\\enorm.bmp", damaged}}) {
        data.WelcomeDlgBitmap = path;
        DlgGeneral form(welcome, session, nullptr);
        ShowActive(form);
        EXPECT_FALSE(Picture(form).HasPicture()) << path;
        EXPECT_EQ(Picture(form).ShownNote(), note) << path;
        Click(form, "cmdOK");
        EXPECT_EQ(data.WelcomeDlgBitmap, path);
    }
    data.WelcomeDlgBitmap = "D:\\enorm.bmp";
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgGeneral-trasig-bild");
}

TEST_F(DlgGeneralTest, TakesNoMoreThanTheProjectFileHolds)
{
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.tDialogTitle->maxLength(), 199);
    form.tDialogText->setPlainText(QString(699, 'x'));
    form.tDialogText->moveCursor(QTextCursor::End);
    TypeKeys(*form.tDialogText, "y");
    Click(form, "cmdOK");
    EXPECT_EQ(data.WelcomeDlgText, Text(699, 'x'));
}

TEST_F(DlgGeneralTest, IsUsedByKeys)
{
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDialogTitle->hasFocus());
    // Enter makes a new line in the text and is OK elsewhere.
    form.tDialogText->setFocus();
    QTest::keyClick(form.tDialogText, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(form.tDialogTitle, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(data.WelcomeDlgText, "\r\n");
}

TEST_F(DlgGeneralTest, LooksRight)
{
    data.WelcomeDlgText =
        "Välkommen till installationsprogrammet för Räkna!\r\n\r\nProgrammet installeras på din "
        "dator. Avsluta alla andra program innan du fortsätter.";
    DlgGeneral form(welcome, session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgGeneral");
    SaveDarkPicture(form, "DlgGeneral");
}

} // namespace
} // namespace quillon::test
