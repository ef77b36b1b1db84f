#include "actions/forms/previews/InstDlgGeneral.h"

#include "actions/forms/pages/DlgGeneral.h"
#include "forms/preview_test.h"

namespace quillon::test {
namespace {

constexpr char kDamaged[] = "Bilden kan inte visas: den är skadad eller för stor";
const Text kLongWord(200, 'W');

class InstDlgGeneralTest : public PreviewTest {
protected:
    GeneralPreview page{.title = "Välkommen till %PROJECTNAME",
                        .text = "Programmet hjälper dig att hålla ordning på dina recept.\r\n\r\n"
                                "Stäng alla andra program innan du fortsätter."};
};

TEST_F(InstDlgGeneralTest, ShowsWhatWasTyped)
{
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Välkommen till Receptboken");
    EXPECT_EQ(Said(form.sTitle), "Välkommen till Receptboken");
    EXPECT_TRUE(form.sTitle->font().bold());
    EXPECT_EQ(Said(form.sText), "Programmet hjälper dig att hålla ordning på dina recept.\n\n"
                                "Stäng alla andra program innan du fortsätter.");
    EXPECT_EQ(form.cmdBack->text(), "< &Bakåt");
    EXPECT_EQ(form.cmdNext->text(), "&Nästa >");
    EXPECT_EQ(form.cmdCancel->text(), "Avbryt");
    EXPECT_TRUE(form.cmdNext->hasFocus());
}

TEST_F(InstDlgGeneralTest, LeavesVariablesWhereTheProjectDoes)
{
    session.project.InstallOptions.ExpandVariablesInDialogBoxes = "0";
    InstDlgGeneral form(page, session, nullptr);
    EXPECT_EQ(Said(form.sTitle), "Välkommen till %PROJECTNAME");
}

TEST_F(InstDlgGeneralTest, ClosesByAnyButton)
{
    InstDlgGeneral form(page, session, nullptr);
    ExpectEachButtonCloses(form, {"cmdBack", "cmdNext", "cmdCancel"});
}

TEST_F(InstDlgGeneralTest, LeavesEverythingAsItWas)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "InstDlgGeneral");
        Click(dialog, "cmdNext");
    });
    ShowInstDlgGeneral(session, page, nullptr);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(session.project.ProgramGroup.ProgramGroup, "") << "a look sets no default";
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(InstDlgGeneralTest, ShowsThePageSOwnPicture)
{
    page.bitmap = "C:\\Bilder\\egen.bmp";
    machine.files.Put(page.bitmap, Bitmap(Qt::red, 164, 314));
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    const QImage shown = form.PictureDlg->grab().toImage();
    EXPECT_EQ(QColor(PixelAt(shown, form.PictureDlg->rect().center())), QColor(Qt::red));
}

TEST_F(InstDlgGeneralTest, KeepsTheShapeOfAPicture)
{
    page.bitmap = "C:\\Bilder\\bred.bmp";
    machine.files.Put(page.bitmap, Bitmap(Qt::red, 200, 100));
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    const QImage shown = form.PictureDlg->grab().toImage();
    const QPoint centre = form.PictureDlg->rect().center();
    EXPECT_EQ(QColor(PixelAt(shown, centre)), QColor(Qt::red));
    EXPECT_EQ(QColor(PixelAt(shown, {2, centre.y()})), QColor(Qt::red)) << "as wide as its room";
    const int beside = form.PictureDlg->width() / 4 + 3;
    EXPECT_NE(QColor(PixelAt(shown, centre + QPoint(0, beside))), QColor(Qt::red));
}

TEST_F(InstDlgGeneralTest, FallsBackOnTheSharedPicture)
{
    machine.files.Put("D:\\delad.bmp", Bitmap(Qt::green, 164, 314));
    session.project.DialogBoxes.DlgBitmap = "D:\\delad.bmp";
    for (const char* bitmap : {"", "C:\\finns\\inte.bmp"}) {
        page.bitmap = bitmap;
        InstDlgGeneral form(page, session, nullptr);
        ShowActive(form);
        const QImage shown = form.PictureDlg->grab().toImage();
        EXPECT_EQ(QColor(PixelAt(shown, form.PictureDlg->rect().center())), QColor(Qt::green))
            << bitmap;
    }
}

TEST_F(InstDlgGeneralTest, SaysWhyThereIsNoPicture)
{
    machine.files.Put("C:\\skadad.bmp", "BM" + std::string(300, 'x'));
    machine.files.Put("C:\\huvud.bmp", Bitmap(Qt::red).substr(0, 20));
    machine.files.Put("C:\\stor.bmp", BitmapHeader(65535, 65535));
    for (const auto& [bitmap, shared, note] :
         {std::tuple{"", "", "Ingen bild är vald"},
          std::tuple{"C:\\a.bmp", "", "Bildfilen finns inte"},
          std::tuple{"C:\\a.bmp", "C:\\b.bmp", "Bildfilen finns inte"},
          std::tuple{"C:\\skadad.bmp", "", kDamaged}, std::tuple{"C:\\huvud.bmp", "", kDamaged},
          std::tuple{"C:\\stor.bmp", "", kDamaged}}) {
        page.bitmap = bitmap;
        session.project.DialogBoxes.DlgBitmap = shared;
        InstDlgGeneral form(page, session, nullptr);
        ShowActive(form);
        EXPECT_FALSE(form.PictureDlg->HasPicture()) << bitmap;
        EXPECT_EQ(form.PictureDlg->ShownNote(), note) << bitmap << shared;
        form.grab();
    }
}

TEST_F(InstDlgGeneralTest, ShowsTextsOfAnyLengthWhole)
{
    const Text manyLines = ReplaceAll(Text(700, 'x'), "xx", "y\r\n");
    for (const auto& [title, text] :
         {std::pair{Text(), Text()}, std::pair{kLongWord, Text(700, 'W')},
          std::pair{Text("Kort"), manyLines}}) {
        page.title = title;
        page.text = text;
        InstDlgGeneral form(page, session, nullptr);
        ShowActive(form);
        ExpectReadable(*form.sTitle);
        ExpectReadable(*form.sText);
        EXPECT_GT(form.sText->height(), 3 * form.fontMetrics().lineSpacing());
    }
}

TEST_F(InstDlgGeneralTest, NamesTheWindowAfterTheProjectWhereItHasNoTitle)
{
    page.title = "";
    InstDlgGeneral form(page, session, nullptr);
    EXPECT_EQ(form.windowTitle(), "Installation av Receptboken");
    EXPECT_TRUE(form.sTitle->isHidden());
}

TEST_F(InstDlgGeneralTest, ScrollsByKeys)
{
    page.text = ReplaceAll(Text(700, 'x'), "xx", "y\r\n");
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    form.sText->setFocus();
    QTest::keyClick(form.sText, Qt::Key_PageDown);
    EXPECT_GT(form.sText->verticalScrollBar()->value(), 0);
    QTest::keyClick(form.sText, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(InstDlgGeneralTest, LooksRight)
{
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgGeneral");
    SaveDarkPicture(form, "InstDlgGeneral");
}

TEST_F(InstDlgGeneralTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgGeneral editor(GeneralPageOf(&section::DialogBoxes::WelcomeDlg), session, nullptr);
    ShowActive(editor);
    Type(editor, "tDialogTitle", page.title);
    editor.tDialogText->setPlainText(LinesToQt(page.text));
    ask.choices = {{{"D:\\egen.bmp"}}};
    machine.files.Put("D:\\egen.bmp", Bitmap(QColor(0x80, 0xA0, 0x60), 164, 314));
    Click(editor, "cmdSelectBitmap");
    ShowPreviewOf(editor, "InstDlgGeneral", [](QDialog& preview) {
        EXPECT_EQ(preview.windowTitle(), "Välkommen till Receptboken");
    });
    EXPECT_EQ(session.project.DialogBoxData.WelcomeDlgTitle, "Välkommen");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(InstDlgGeneralTest, LooksRightWithLongTexts)
{
    page.title = "En rubrik som är mycket längre än vad någon borde skriva men som får finnas ändå";
    page.text = ReplaceAll(Text(700, 'x'), "xxxxx", "läs detta, ");
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgGeneral-long");
}

TEST_F(InstDlgGeneralTest, LeadsBackFromNoFirstPage)
{
    page.page = &section::DialogBoxes::WelcomeDlg;
    InstDlgGeneral first(page, session, nullptr);
    EXPECT_FALSE(first.cmdBack->isEnabled());
    ExpectEachButtonCloses(first, {"cmdNext", "cmdCancel"});
    page.page = &section::DialogBoxes::GeneralInfoDlg;
    EXPECT_TRUE(InstDlgGeneral(page, session, nullptr).cmdBack->isEnabled());
    session.project.DialogBoxes.WelcomeDlg = 0;
    EXPECT_FALSE(InstDlgGeneral(page, session, nullptr).cmdBack->isEnabled());
}

TEST_F(InstDlgGeneralTest, EndsWithOneButton)
{
    page.title = "Installationen avslutad";
    page.page = &section::DialogBoxes::InstallCompletedDlg;
    InstDlgGeneral form(page, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.findChildren<QPushButton*>().size(), 1);
    EXPECT_EQ(form.cmdFinish->text(), "&Slutför");
    EXPECT_TRUE(form.cmdFinish->hasFocus());
    SavePicture(form, "InstDlgGeneral-sista");
    SaveDarkPicture(form, "InstDlgGeneral-sista");
    ExpectEachButtonCloses(form, {"cmdFinish"});
}

TEST_F(InstDlgGeneralTest, HasTheButtonsOfThePageThatIsEdited)
{
    for (const GeneralPage& edited : kGeneralPages) {
        DlgGeneral editor(edited, session, nullptr);
        ShowActive(editor);
        OnNextDialog([&](QDialog& preview) {
            const bool isLast = edited.isOn == &section::DialogBoxes::InstallCompletedDlg;
            EXPECT_EQ(preview.findChild<QPushButton*>("cmdFinish") != nullptr, isLast);
            const auto* back = preview.findChild<QPushButton*>("cmdBack");
            EXPECT_EQ(back == nullptr, isLast);
            if (edited.isOn == &section::DialogBoxes::WelcomeDlg)
                EXPECT_FALSE(back->isEnabled());
        });
        Click(editor, "cmdTest");
    }
}

} // namespace
} // namespace quillon::test
