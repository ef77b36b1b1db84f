#include "app/pages/DialogsPage.h"

#include "helpers/windows_path.h"
#include "support/bitmap_maker.h"
#include "support/window_test.h"
#include "ui/controls/PathLabel.h"
#include "ui/controls/PictureView.h"

namespace quillon::test {
namespace {

constexpr const char* kBoxes[] = {"cWelcomeDlg",      "cGeneralInfoDlg",    "cGeneralInfoDlg2",
                                  "cLicenseInfoDlg",  "cLicenseInfoRtfDlg", "cPasswordDlg",
                                  "cNameCompanyDlg",  "cDestinationDlg",    "cDestinationDriveDlg",
                                  "cSelectProgGroup", "cStartInstallDlg",   "cInstallCompletedDlg"};

class DialogsPageTest : public WindowTest {
protected:
    void SetUp() override
    {
        machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", Bitmap(Qt::darkBlue));
        page.ShowSession();
        ShowActive(page);
    }

    QCheckBox& Box(const char* name) { return Find<QCheckBox>(page, name); }
    PictureView& Picture()
    {
        return *static_cast<PictureView*>(page.findChild<QWidget*>("PictureDlgBitmap"));
    }
    Text ShownPath() { return FromQt(Find<QLabel>(page, "sDlgBitmapFilename").text()); }
    bool TakeDirty() { return std::exchange(session.state.ProjectIsDirty, kOff) != kOff; }

    DialogsPage page{session};
    section::DialogBoxes& pages = session.project.DialogBoxes;
};

TEST_F(DialogsPageTest, ShowsTheTwelvePagesOfANewProject)
{
    for (const char* name : kBoxes) {
        const Text box = name;
        EXPECT_EQ(Box(name).isChecked(),
                  box == "cWelcomeDlg" || box == "cDestinationDlg" || box == "cInstallCompletedDlg")
            << name;
    }
    EXPECT_EQ(Box("cNameCompanyDlg").text(), "Registrering (lokalt)");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DialogsPageTest, StandsInTheOrderOfTheChain)
{
    for (std::size_t i = 1; i < std::size(kBoxes); ++i)
        EXPECT_LT(Box(kBoxes[i - 1]).y(), Box(kBoxes[i]).y());
}

TEST_F(DialogsPageTest, TicksEachPageAndMarksTheProject)
{
    for (std::size_t i = 0; i < std::size(kBoxes); ++i) {
        const auto isOn = kDialogChain[i].isOn;
        for (int click = 0; click < 2; ++click) {
            const bool before = pages.*isOn != 0;
            Click(page, kBoxes[i]);
            EXPECT_EQ(pages.*isOn, before ? 0 : 1) << kBoxes[i];
            EXPECT_EQ(Box(kBoxes[i]).isChecked(), !before) << kBoxes[i];
            EXPECT_TRUE(TakeDirty()) << kBoxes[i];
        }
    }
}

TEST_F(DialogsPageTest, AsksForAFolderOrForADrive)
{
    Click(page, "cDestinationDriveDlg");
    EXPECT_FALSE(Box("cDestinationDlg").isChecked());
    EXPECT_EQ(pages.DestinationDlg, 0);
    Box("cDestinationDlg").setFocus();
    QTest::keyClick(&Box("cDestinationDlg"), Qt::Key_Space);
    EXPECT_TRUE(Box("cDestinationDlg").isChecked());
    EXPECT_FALSE(Box("cDestinationDriveDlg").isChecked());
    Click(page, "cDestinationDlg");
    EXPECT_FALSE(Box("cDestinationDriveDlg").isChecked());
}

TEST_F(DialogsPageTest, ShowsAtMostOneAgreement)
{
    for (const bool byKey : {false, true}) {
        const auto turn = [&](const char* name) {
            if (byKey)
                QTest::keyClick(&Box(name), Qt::Key_Space);
            else
                Click(page, name);
        };
        turn("cLicenseInfoDlg");
        EXPECT_EQ(pages.LicenseInfoDlg, 1);
        turn("cLicenseInfoRtfDlg");
        EXPECT_EQ(pages.LicenseInfoRtfDlg, 1);
        EXPECT_EQ(pages.LicenseInfoDlg, 0);
        EXPECT_FALSE(Box("cLicenseInfoDlg").isChecked());
        turn("cLicenseInfoDlg");
        EXPECT_EQ(pages.LicenseInfoRtfDlg, 0);
        EXPECT_FALSE(Box("cLicenseInfoRtfDlg").isChecked());
        turn("cLicenseInfoDlg");
        EXPECT_EQ(pages.LicenseInfoDlg, 0);
        EXPECT_EQ(pages.LicenseInfoRtfDlg, 0);
    }
}

TEST_F(DialogsPageTest, ClearsTheOtherAgreementAlsoWhenATickGoes)
{
    // Only a project made elsewhere can have both.
    pages.LicenseInfoDlg = pages.LicenseInfoRtfDlg = 1;
    page.ShowSession();
    Click(page, "cLicenseInfoDlg");
    EXPECT_EQ(pages.LicenseInfoDlg, 0);
    EXPECT_EQ(pages.LicenseInfoRtfDlg, 0);
}

TEST_F(DialogsPageTest, ClearsTheOtherAgreementByThePressAlone)
{
    Click(page, "cLicenseInfoDlg");
    TakeDirty();
    auto& rtf = Box("cLicenseInfoRtfDlg");
    QTest::mousePress(&rtf, Qt::LeftButton, {}, QPoint(10, rtf.height() / 2));
    EXPECT_FALSE(Box("cLicenseInfoDlg").isChecked());
    EXPECT_TRUE(TakeDirty());
    // The mouse is released outside the box, so its own tick stays.
    QTest::mouseRelease(&rtf, Qt::LeftButton, {}, QPoint(-50, -50));
    EXPECT_FALSE(rtf.isChecked());
    EXPECT_EQ(pages.LicenseInfoDlg, 0);
    EXPECT_EQ(pages.LicenseInfoRtfDlg, 0);
}

TEST_F(DialogsPageTest, ShowsANumberOtherThan0AsTicked)
{
    pages.PasswordDlg = -1;
    page.ShowSession();
    EXPECT_TRUE(Box("cPasswordDlg").isChecked());
    EXPECT_FALSE(TakeDirty());
    EXPECT_EQ(pages.PasswordDlg, -1);
}

TEST_F(DialogsPageTest, ShowsThePictureThatAllPagesShare)
{
    EXPECT_TRUE(Picture().HasPicture());
    EXPECT_EQ(ShownPath(), "C:\\Quillon\\Res\\SetupDef.bmp");
    EXPECT_EQ(Find<QLabel>(page, "sDlgBitmapFilename").toolTip(), ToQt(ShownPath()));
    SavePicture(page, "DialogsPage");
}

TEST_F(DialogsPageTest, GivesAChosenPictureToAllPages)
{
    session.Settings.Directories.LastDlgPictureDir = "C:\\Mina dokument";
    machine.files.Put("D:\\Bilder\\sida.bmp", Bitmap(Qt::red));
    session.project.DialogBoxData.GeneralDlgBitmap2 = "C:\\egen.bmp";
    ask.choices = {{{"D:\\Bilder\\sida.bmp"}}};
    Click(page, "cmdSelectDlgBitmap");
    EXPECT_EQ(ask.questions.at(0).folder, "C:\\Mina dokument");
    EXPECT_EQ(pages.DlgBitmap, "D:\\Bilder\\sida.bmp");
    EXPECT_EQ(session.project.DialogBoxData.GeneralDlgBitmap2, "D:\\Bilder\\sida.bmp");
    EXPECT_EQ(session.Settings.Directories.LastDlgPictureDir, "D:\\Bilder");
    EXPECT_EQ(ShownPath(), "D:\\Bilder\\sida.bmp");
    EXPECT_TRUE(Picture().HasPicture());
    EXPECT_TRUE(TakeDirty());
}

TEST_F(DialogsPageTest, ChangesNothingWhenNoPictureIsChosen)
{
    ask.choices = {{}};
    Click(page, "cmdSelectDlgBitmap");
    EXPECT_EQ(ShownPath(), "C:\\Quillon\\Res\\SetupDef.bmp");
    EXPECT_FALSE(TakeDirty());
}

TEST_F(DialogsPageTest, OpensAnEditorForEachPageTickedOrNot)
{
    struct Case {
        const char* button;
        const char* form;
        const char* caption;
    };
    // clang-format off
    constexpr Case kCases[] = {
        {"cmdWelcomeDlg",          "DlgGeneral",        "Välkommen"},
        {"cmdGeneralInfoDlg",      "DlgGeneral",        "Generell information"},
        {"cmdGeneralInfoDlg2",     "DlgGeneral",        "Generell information 2"},
        {"cmdLicenseInfoDlg",      "DlgLicenseInfo",    "Licensinformation"},
        {"cmdLicenseInfoRtfDlg",   "DlgLicenseInfoRtf", "Licensinformation (RTF)"},
        {"cmdPasswordDlg",         "DlgPassword",       "Lösenord"},
        {"cmdNameCompanyDlg",      "DlgNameCompany",    "Registrering (lokalt)"},
        {"cmdDestDirDlg",          "DlgDestDirDlg",     "Destinationskatalog"},
        {"cmdDestDriveDlg",        "DlgDestDriveDlg",   "Enhet"},
        {"cmdStartInstallDlg",     "DlgGeneral",        "Starta installation"},
        {"cmdInstallCompletedDlg", "DlgGeneral",        "Installationen avslutad"},
    };
    // clang-format on
    for (const Integer ticked : {Integer{0}, Integer{1}})
        for (const Case& one : kCases) {
            for (const DialogChainPage& each : kDialogChain)
                pages.*each.isOn = ticked;
            page.ShowSession();
            bool isShown = false;
            OnNextDialog([&](QDialog& form) {
                isShown = true;
                EXPECT_EQ(form.objectName(), one.form);
                EXPECT_EQ(form.windowTitle(), one.caption);
                EXPECT_TRUE(form.isModal());
                QTest::keyClick(&form, Qt::Key_Escape);
            });
            Click(page, one.button);
            EXPECT_TRUE(isShown) << one.button;
            EXPECT_FALSE(TakeDirty()) << one.button;
        }
}

TEST_F(DialogsPageTest, KeepsTheTextsOfAPageThatIsSwitchedOff)
{
    OnNextDialog([](QDialog& form) {
        Type(form, "tDialogTitle", "Hej!");
        Click(form, "cmdOK");
    });
    Click(page, "cmdWelcomeDlg");
    EXPECT_TRUE(TakeDirty());
    Click(page, "cWelcomeDlg");
    EXPECT_EQ(session.project.DialogBoxData.WelcomeDlgTitle, "Hej!");
    OnNextDialog([](QDialog& form) { EXPECT_EQ(TextIn(form, "tDialogTitle"), "Hej!"); });
    Click(page, "cmdWelcomeDlg");
    Click(page, "cWelcomeDlg");
    OnNextDialog([](QDialog& form) { EXPECT_EQ(TextIn(form, "tDialogTitle"), "Hej!"); });
    Click(page, "cmdWelcomeDlg");
}

TEST_F(DialogsPageTest, LeavesTheSharedPictureToAPageWithOneOfItsOwn)
{
    const Text shared = ShownPath();
    machine.files.Put("D:\\egen.bmp", Bitmap(Qt::red));
    ask.choices = {{{"D:\\egen.bmp"}}, {{"D:\\alla.bmp"}}};
    OnNextDialog([](QDialog& form) {
        Click(form, "cmdSelectBitmap");
        Click(form, "cmdOK");
    });
    Click(page, "cmdStartInstallDlg");
    const section::DialogBoxData& data = session.project.DialogBoxData;
    EXPECT_EQ(data.StartInstallDlgBitmap, "D:\\egen.bmp");
    EXPECT_EQ(data.WelcomeDlgBitmap, shared);
    EXPECT_EQ(pages.DlgBitmap, shared);
    EXPECT_EQ(ShownPath(), shared);
    Click(page, "cmdSelectDlgBitmap");
    EXPECT_EQ(data.StartInstallDlgBitmap, "D:\\alla.bmp");
}

TEST_F(DialogsPageTest, GoesBackToTheStandardPicture)
{
    pages.DlgBitmap = "D:\\annan.bmp";
    page.ShowSession();
    Click(page, "cmdStdDlgBitmap");
    EXPECT_EQ(pages.DlgBitmap, "C:\\Quillon\\Res\\SetupDef.bmp");
    EXPECT_EQ(session.project.DialogBoxData.WelcomeDlgBitmap, "C:\\Quillon\\Res\\SetupDef.bmp");
    EXPECT_TRUE(Picture().HasPicture());
    EXPECT_TRUE(TakeDirty());
}

TEST_F(DialogsPageTest, KeepsTheStandardPictureOfTheToolThatItWasChosenIn)
{
    Click(page, "cmdStdDlgBitmap");
    session.options.ToolFolder = "D:\\Annan";
    machine.files.RemoveFile("C:\\Quillon\\Res\\SetupDef.bmp");
    machine.files.Put("D:\\Annan\\Res\\SetupDef.bmp", Bitmap(Qt::darkBlue));
    page.ShowSession();
    EXPECT_EQ(ShownPath(), "C:\\Quillon\\Res\\SetupDef.bmp");
    EXPECT_EQ(Picture().ShownNote(), "Bildfilen finns inte");
    Click(page, "cmdStdDlgBitmap");
    EXPECT_EQ(ShownPath(), "D:\\Annan\\Res\\SetupDef.bmp");
}

TEST_F(DialogsPageTest, KeepsThePictureWhenTheStandardOneIsMissing)
{
    pages.DlgBitmap = "D:\\annan.bmp";
    machine.files.RemoveFile("C:\\Quillon\\Res\\SetupDef.bmp");
    ask.Expect({BoxKind::Critical, "Fel", "Standardbilden finns inte i förväntad katalog!"});
    Click(page, "cmdStdDlgBitmap");
    EXPECT_EQ(pages.DlgBitmap, "D:\\annan.bmp");
    EXPECT_FALSE(TakeDirty());
}

TEST_F(DialogsPageTest, SaysWhyThereIsNoPicture)
{
    machine.files.Put("C:\\trasig.bmp", "BM och inget mer");
    for (const auto& [path, note] :
         {std::pair{"C:\\finns\\inte.bmp", "Bildfilen finns inte"},
          std::pair{"C:\\trasig.bmp", "Bilden kan inte visas: den är skadad eller för stor"}}) {
        pages.DlgBitmap = path;
        page.ShowSession();
        EXPECT_FALSE(Picture().HasPicture());
        EXPECT_EQ(Picture().ShownNote(), note);
        EXPECT_EQ(Picture().accessibleDescription(), note);
    }
    SavePicture(page, "DialogsPage-trasig-bild");
    pages.DlgBitmap = "";
    page.ShowSession();
    EXPECT_EQ(Picture().ShownNote(), "Ingen bild är vald");
}

TEST_F(DialogsPageTest, ShowsAWidePictureWholeAndALongPathInOneLine)
{
    machine.files.Put("C:\\bred.bmp", Bitmap(Qt::green, 3000, 40));
    pages.DlgBitmap = "C:\\bred.bmp";
    page.ShowSession();
    const QImage shown = Picture().grab().toImage();
    const int middle = shown.height() / 2;
    EXPECT_NE(shown.pixelColor(1, middle), QColor(Qt::green));
    EXPECT_EQ(shown.pixelColor(shown.width() / 2, middle), QColor(Qt::green));
    const int width = page.width();
    pages.DlgBitmap = "C:\\" + Text(190, 'x') + ".bmp";
    page.ShowSession();
    page.adjustSize();
    EXPECT_LE(page.minimumSizeHint().width(), width);
}

} // namespace
} // namespace quillon::test
