// The editors of the design's objects.
#include "design/forms/DlgDesBackground.h"
#include "design/forms/DlgDesLogotype.h"
#include "design/forms/DlgDesOverview.h"
#include "design/forms/DlgDesPercentGauge.h"
#include "design/forms/DlgDesPictures.h"
#include "design/forms/DlgDesPicturesAnim.h"
#include "design/forms/DlgDesTextbox.h"
#include "design/forms/DlgDesTitle.h"
#include "design/forms/DlgSound.h"
#include "design/forms/DlgUnderline.h"
#include "forms/design/design_editors_test.h"
#include "shell/help_pages.h"
#include "shell/lifecycle.h"
#include "ui/controls/PathLabel.h"
#include "ui/controls/UpDownArrows.h"

namespace quillon::test {
namespace {

TEST_F(DesignEditorsTest, BackgroundStoresItsFields)
{
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Bakgrund");
    EXPECT_TRUE(form.oColor->isChecked());
    EXPECT_EQ(form.ComboBlendDirection->currentText(), "Tona ned");
    EXPECT_TRUE(form.tBlendDepth->isEnabled());
    // An empty depth of the record is shown as it is until a direction is chosen.
    EXPECT_EQ(form.tBlendDepth->text(), "");
    ask.colours = {0x123456};
    Click(form, "cmdBackColor");
    EXPECT_EQ(ask.shownColours, std::vector<Long>{16711680});
    ask.choices = {{{"C:\\Bilder\\sol.jpg"}}};
    Click(form, "cmdSelectPicture");
    EXPECT_EQ(ask.questions.back().title, "Välj bakgrundsbild");
    EXPECT_EQ(ask.questions.back().filter,
              "Alla bildfiler (*.bmp;*.jpg)|*.bmp;*.jpg|Bitmappar (*.bmp)|*.bmp|JPEG-bilder "
              "(*.jpg)|*.jpg");
    EXPECT_TRUE(form.oPicture->isChecked());
    EXPECT_EQ(session.Settings.Directories.LastPictureDir, "C:\\Bilder");
    Click(form, "cStretchPictureToScreen");
    SavePicture(form, "DlgDesBackground");
    SaveDarkPicture(form, "DlgDesBackground");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesBackground.Type, 2);
    EXPECT_EQ(project.DesBackground.BackColor1, 0x123456);
    EXPECT_EQ(project.DesBackground.BlendDepth, "");
    EXPECT_EQ(project.DesBackground.PictureFilename, "C:\\Bilder\\sol.jpg");
    EXPECT_EQ(project.DesBackground.StretchPicture, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DesignEditorsTest, BackgroundOfColourLosesItsPicture)
{
    project.DesBackground.Type = 2;
    project.DesBackground.PictureFilename = "C:\\sol.jpg";
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.oPicture->isChecked());
    Click(form, "oColor");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesBackground.Type, 1);
    EXPECT_EQ(project.DesBackground.PictureFilename, "");
}

TEST_F(DesignEditorsTest, BackgroundIsMarkedChangedByADirectionAlone)
{
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    form.ComboBlendDirection->setCurrentIndex(0);
    EXPECT_FALSE(form.tBlendDepth->isEnabled());
    EXPECT_FALSE(form.labBlendDepth->isEnabled());
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    form.ComboBlendDirection->setCurrentIndex(5);
    EXPECT_TRUE(form.tBlendDepth->isEnabled());
    EXPECT_EQ(form.tBlendDepth->text(), "100");
    EXPECT_EQ(form.ComboBlendDirection->currentText(), "Rektangulär toning");
    Click(form, "cmdCancel");
    EXPECT_EQ(project.DesBackground.BlendDirection, 4);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DesignEditorsTest, BackgroundResetEmptiesTheName)
{
    project.DesBackground.Type = 2;
    project.DesBackground.PictureFilename = "C:\\sol.jpg";
    DlgDesBackground form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdReset");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesBackground.PictureFilename, "");
    EXPECT_EQ(project.DesBackground.Type, 2);
}

TEST_F(DesignEditorsTest, TitleStoresItsFields)
{
    project.DesTitle.TitleCharInterSpace = "";
    DlgDesTitle form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tTitleCharInterSpace"), "0");
    EXPECT_TRUE(form.oTitleLeft->isChecked());
    EXPECT_TRUE(form.cTitleShadow->isChecked());
    EXPECT_EQ(form.sTitleFont->text(), "Times New Roman, 26 pt, fet, kursiv");
    Type(form, "tTitleText", "Hej");
    Click(form, "oTitleRight");
    Click(form, "cTitleShadow");
    ask.colours = {0xFF};
    Click(form, "cmdTitleColor");
    Type(form, "tTitleCharInterSpace", "12");
    SavePicture(form, "DlgDesTitle");
    SaveDarkPicture(form, "DlgDesTitle");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesTitle.TitleText, "Hej");
    EXPECT_EQ(project.DesTitle.TitleAlignment, 3);
    EXPECT_EQ(project.DesTitle.TitleShadow, kOff);
    EXPECT_EQ(project.DesTitle.TitleForeColor, 0xFF);
    EXPECT_EQ(project.DesTitle.TitleCharInterSpace, "12");
}

TEST_F(DesignEditorsTest, TitleCorrectsTheSpacing)
{
    DlgDesTitle form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(Left(form, "tTitleCharInterSpace", "-11"), "-10");
    EXPECT_EQ(Left(form, "tTitleCharInterSpace", "101"), "100");
    EXPECT_EQ(Left(form, "tTitleCharInterSpace", "abc"), "0");
    EXPECT_EQ(Left(form, "tTitleCharInterSpace", "60abc"), "60");
    Type(form, "tTitleCharInterSpace", "60abc");
    QTest::mouseClick(&Find<QToolButton>(*form.UpDownArr, "Up"), Qt::LeftButton);
    EXPECT_EQ(TextIn(form, "tTitleCharInterSpace"), "61");
    EXPECT_EQ(Left(form, "tTitleCharInterSpace", ""), "0");
    QTest::keyClick(form.tTitleCharInterSpace, Qt::Key_Down);
    EXPECT_EQ(TextIn(form, "tTitleCharInterSpace"), "-1");
    QTest::mouseClick(&Find<QToolButton>(*form.UpDownArr, "Up"), Qt::LeftButton);
    EXPECT_EQ(TextIn(form, "tTitleCharInterSpace"), "0");
}

TEST_F(DesignEditorsTest, TitleStoresTheNumberInFrontOfWhatIsNone)
{
    DlgDesTitle form(session, nullptr);
    ShowActive(form);
    Type(form, "tTitleCharInterSpace", "60abc");
    QTest::keyClick(form.tTitleCharInterSpace, Qt::Key_Return);
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(project.DesTitle.TitleCharInterSpace, "60");
}

TEST_F(DesignEditorsTest, TextboxKeepsItsFontsAndTheirColoursOnCancel)
{
    DlgDesTextbox form(session, nullptr);
    ShowActive(form);
    Type(form, "tTitleText", "Rubrik");
    ask.fonts = {FontChoice{.name = "Courier", .size = 8, .colour = 0x44},
                 FontChoice{.name = "Times", .size = 9, .isItalic = true, .colour = 0x55}};
    Click(form, "cmdTitleFont");
    Click(form, "cmdTextBoxFont");
    Click(form, "cmdCancel");
    const section::DesTextBox& box = project.DesTextBox;
    EXPECT_EQ(box.BoxTitleFontName, "Courier");
    EXPECT_EQ(box.BoxTitleFontBold, kOff);
    EXPECT_EQ(box.BoxTitleColor, 0x44);
    EXPECT_EQ(box.BoxTextFontName, "Times");
    EXPECT_EQ(box.BoxTextFontItalic, kOn);
    EXPECT_EQ(box.BoxTextColor, 0x55);
    EXPECT_EQ(box.BoxTitle, "Titel");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DesignEditorsTest, ACancelledChooserChangesNothing)
{
    project.DesBackground.PictureFilename = "C:\\sol.bmp";
    project.DesBackground.Type = 2;
    DlgDesBackground background(session, nullptr);
    ShowActive(background);
    ask.choices.push_back({});
    Click(background, "cmdSelectPicture");
    ask.colours.push_back(std::nullopt);
    Click(background, "cmdBackColor");
    Click(background, "cmdOK");
    EXPECT_EQ(project.DesBackground.PictureFilename, "C:\\sol.bmp");
    EXPECT_EQ(project.DesBackground.BackColor1, 16711680);
    session.state.ProjectIsDirty = kOff;
    DlgDesTitle title(session, nullptr);
    ShowActive(title);
    ask.fonts.push_back(std::nullopt);
    Click(title, "cmdTitleFont");
    EXPECT_EQ(project.DesTitle.TitleFontName, "Times New Roman");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DesignEditorsTest, PicturesResetTakesAllOfASlotBack)
{
    project.DesPictures.Pictures[0] = {.PictureFilename = "C:\\a.bmp",
                                       .UseTransparentBkg = kOn,
                                       .PictureWidth = 33,
                                       .PictureHeight = 44,
                                       .PictureXPos = 700};
    DlgDesPictures form(0, session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.cStretchPicture->isEnabled());
    Click(form, "cmdReset");
    EXPECT_TRUE(form.cStretchPicture->isEnabled());
    Click(form, "cmdOK");
    const section::DesPicture& picture = project.DesPictures.Pictures[0];
    EXPECT_EQ(picture.PictureFilename, "");
    EXPECT_EQ(picture.UseTransparentBkg, kOff);
    EXPECT_EQ(picture.StretchPicture, kOff);
    EXPECT_EQ(picture.PictureWidth, 200);
    EXPECT_EQ(picture.PictureHeight, 100);
    EXPECT_EQ(picture.PictureXPos, 700);
}

// They come from a larger window, or follow their pictures.
TEST_F(DesignEditorsTest, SizesThatNobodyChangesStayAsTheyAre)
{
    project.DesTextBox.BoxWidth = 800;
    project.DesTextBox.BoxHeight = 20;
    DlgDesTextbox box(session, nullptr);
    ShowActive(box);
    Type(box, "tTitleText", "Rubrik");
    Click(box, "cmdOK");
    EXPECT_EQ(project.DesTextBox.BoxTitle, "Rubrik");
    EXPECT_EQ(project.DesTextBox.BoxWidth, 800);
    EXPECT_EQ(project.DesTextBox.BoxHeight, 20);
    section::DesPicture& picture = project.DesPictures.Pictures[0];
    for (const auto& [width, height] : {std::pair<Integer, Integer>{3000, 2250}, {5, 9}}) {
        picture = {.PictureFilename = "C:\\a.bmp", .PictureWidth = width, .PictureHeight = height};
        DlgDesPictures form(0, session, nullptr);
        ShowActive(form);
        Click(form, "cmdOK");
        EXPECT_EQ(picture.PictureWidth, width);
        EXPECT_EQ(picture.PictureHeight, height);
    }
}

TEST_F(DesignEditorsTest, SizesThatAreStillBeingTypedAreChecked)
{
    section::DesPicture& picture = project.DesPictures.Pictures[0];
    DlgDesPictures form(0, session, nullptr);
    ShowActive(form);
    Type(form, "tWidth", "2001");
    QTest::keyClick(form.tWidth, Qt::Key_Return);
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(picture.PictureWidth, 2000);
    DlgDesPictures never(0, session, nullptr); // is on the screen, so no field is left
    never.tWidth->setText("9");
    never.cmdOK->click();
    EXPECT_EQ(picture.PictureWidth, 10);
}

TEST_F(DesignEditorsTest, ChangingPicturesAndLogotypesCheckWhatNobodyChangesToo)
{
    project.DesPicturesAnim = {.PictureWidth = 5, .PictureHeight = 3000, .IntervalSeconds = 0};
    DlgDesPicturesAnim changing(session, nullptr);
    ShowActive(changing);
    Click(changing, "cmdOK");
    EXPECT_EQ(project.DesPicturesAnim.PictureWidth, 10);
    EXPECT_EQ(project.DesPicturesAnim.PictureHeight, 2000);
    EXPECT_EQ(project.DesPicturesAnim.IntervalSeconds, 1);
    project.DesLogotype.LogotypeWMFWidth = 900;
    project.DesLogotype.LogotypeWMFHeight = 0;
    DlgDesLogotype logotype(session, nullptr);
    ShowActive(logotype);
    Click(logotype, "cmdOK");
    EXPECT_EQ(project.DesLogotype.LogotypeWMFWidth, 100);
    EXPECT_EQ(project.DesLogotype.LogotypeWMFHeight, 50);
}

TEST_F(DesignEditorsTest, ChangingPicturesCheckTheirFieldsOnOk)
{
    DlgDesPicturesAnim form(session, nullptr);
    ShowActive(form);
    form.tWidth->setText("9");
    form.tHeight->setText("2001x");
    form.tIntervalSeconds->setText("");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesPicturesAnim.PictureWidth, 10);
    EXPECT_EQ(project.DesPicturesAnim.PictureHeight, 2000);
    EXPECT_EQ(project.DesPicturesAnim.IntervalSeconds, 1);
}

TEST_F(DesignEditorsTest, LogotypeChecksItsSizeAgainOnOk)
{
    DlgDesLogotype form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.ComboTransparentColor->count(), 12);
    form.tLogotypeWMFWidth->setText("801");
    form.tLogotypeWMFHeight->setText("");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesLogotype.LogotypeWMFWidth, 100);
    EXPECT_EQ(project.DesLogotype.LogotypeWMFHeight, 50);
}

TEST_F(DesignEditorsTest, ATransparentColourThatIsNoneShowsTheDefaultAndStays)
{
    Integer& ofPictures = project.DesPictures.TransparentColorNr;
    Integer& ofLogotype = project.DesLogotype.TransparentColorNr;
    for (const Integer number : std::initializer_list<Integer>{-1, 12, 32767}) {
        ofPictures = ofLogotype = number;
        DlgDesPictures pictures(0, session, nullptr);
        ShowActive(pictures);
        EXPECT_EQ(pictures.ComboTransparentColor->currentText(), "Svart") << number;
        Click(pictures, "cmdOK");
        DlgDesLogotype logotype(session, nullptr);
        ShowActive(logotype);
        EXPECT_EQ(logotype.ComboTransparentColor->currentText(), "Svart") << number;
        Click(logotype, "cmdOK");
        EXPECT_EQ(ofPictures, number);
        EXPECT_EQ(ofLogotype, number);
    }
    DlgDesPictures other(0, session, nullptr);
    ShowActive(other);
    other.ComboTransparentColor->setCurrentIndex(2);
    Click(other, "cmdOK");
    EXPECT_EQ(ofPictures, 2);
    // The one that is shown can be chosen, too.
    DlgDesLogotype same(session, nullptr);
    ShowActive(same);
    same.ComboTransparentColor->showPopup();
    QTest::keyClick(same.ComboTransparentColor->view(), Qt::Key_Return);
    Click(same, "cmdOK");
    EXPECT_EQ(ofLogotype, 8);
}

TEST_F(DesignEditorsTest, ListsHaveTheirNamesInOrder)
{
    const auto rows = [](const QComboBox& list) {
        QStringList names;
        for (int i = 0; i < list.count(); ++i)
            names << list.itemText(i);
        return names;
    };
    const QStringList colours = {"Gul",     "Röd",     "Blå",   "Grön", "Cyan",    "Magenta",
                                 "Mörkröd", "Mörkblå", "Svart", "Grå",  "Ljusgrå", "Vit"};
    EXPECT_EQ(rows(*DlgDesPictures(0, session, nullptr).ComboTransparentColor), colours);
    EXPECT_EQ(rows(*DlgDesLogotype(session, nullptr).ComboTransparentColor), colours);
    EXPECT_EQ(rows(*DlgDesBackground(session, nullptr).ComboBlendDirection),
              QStringList({"Ingen toning", "Tona höger", "Tona vänster", "Tona upp", "Tona ned",
                           "Rektangulär toning"}));
}

TEST_F(DesignEditorsTest, LogotypeIsChosenAndTakenAway)
{
    session.Settings.Directories.LastPictureDir = "C:\\Bilder";
    DlgDesLogotype form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{"C:\\b\\firma.wmf"}}};
    Click(form, "cmdSelectPicture");
    EXPECT_EQ(ask.questions.back().title, "Välj bild");
    EXPECT_EQ(ask.questions.back().folder, "C:\\Bilder");
    EXPECT_EQ(ask.questions.back().filter,
              "Alla bildfiler|*.bmp;*.wmf;*.jpg|Bitmappar (*.bmp)|*.bmp|Metafiler "
              "(*.wmf)|*.wmf|JPEG-bilder (*.jpg)|*.jpg");
    EXPECT_EQ(session.Settings.Directories.LastPictureDir, "C:\\b");
    EXPECT_EQ(form.sFilename->text(), "C:\\b\\firma.wmf");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesLogotype.LogotypeFilename, "C:\\b\\firma.wmf");
    DlgDesLogotype again(session, nullptr);
    ShowActive(again);
    Click(again, "cmdReset");
    EXPECT_EQ(again.sFilename->text(), "");
    Click(again, "cmdOK");
    EXPECT_EQ(project.DesLogotype.LogotypeFilename, "");
}

TEST_F(DesignEditorsTest, ChangingPicturesAreChosenAsForABackground)
{
    session.Settings.Directories.LastPictureDir = "C:\\Bilder";
    DlgDesPicturesAnim form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{"C:\\b\\ett.jpg"}}};
    Click(form, "cmdAddPicture");
    EXPECT_EQ(ask.questions.back().title, "Välj bild");
    EXPECT_EQ(ask.questions.back().folder, "C:\\Bilder");
    EXPECT_EQ(ask.questions.back().filter,
              "Alla bildfiler (*.bmp;*.jpg)|*.bmp;*.jpg|Bitmappar (*.bmp)|*.bmp|JPEG-bilder "
              "(*.jpg)|*.jpg");
    EXPECT_EQ(session.Settings.Directories.LastPictureDir, "C:\\b");
}

TEST_F(DesignEditorsTest, NoChangingPicturesKeepTheirSizeAndPlaceInTheFile)
{
    project.DesPicturesAnim.PictureXPos = 900;
    project.DesPicturesAnim.PictureYPos = 1500;
    DlgDesPicturesAnim form(session, nullptr);
    ShowActive(form);
    Type(form, "tWidth", "310");
    Type(form, "tHeight", "170");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesPicturesAnim.NrAnimPictures, 0);
    session.state.ProjectFileName = "C:\\P\\a.qnp";
    machine.files.PutFolder("C:\\P");
    ASSERT_EQ(SaveProject(session), SaveEnd::Done);
    const std::string written = machine.files.Get("C:\\P\\a.qnp");
    EXPECT_NE(written.find("[DesPicturesAnim]\r\nNrAnimPictures = 0\r\nStretchPicture = 0\r\n"
                           "PictureWidth = 310\r\nPictureHeight = 170\r\nPictureXPos = 60\r\n"
                           "PictureYPos = 100\r\nPictureXPosTwips = 900\r\n"
                           "PictureYPosTwips = 1500\r\n"),
              std::string::npos);
}

TEST_F(DesignEditorsTest, TitleKeepsANewFontOnCancel)
{
    DlgDesTitle form(session, nullptr);
    ShowActive(form);
    ask.fonts = {FontChoice{.name = "Arial", .size = 20}};
    ask.colours = {0xFF};
    Click(form, "cmdTitleFont");
    Click(form, "cmdTitleColor");
    EXPECT_EQ(ask.shownFonts.front(), (FontChoice{.name = "Times New Roman",
                                                  .size = 26,
                                                  .isBold = true,
                                                  .isItalic = true,
                                                  .maxNameLength = 199}));
    EXPECT_EQ(form.sTitleFont->text(), "Arial, 20 pt, ej fet, ej kursiv");
    Click(form, "cmdCancel");
    EXPECT_EQ(project.DesTitle.TitleFontName, "Arial");
    EXPECT_EQ(project.DesTitle.TitleFontSize, 20);
    EXPECT_EQ(project.DesTitle.TitleFontBold, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(project.DesTitle.TitleForeColor, 65535); // a colour is only stored with OK
}

TEST_F(DesignEditorsTest, TitleTakesTheSubtitleBack)
{
    DlgDesTitle form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{"%PRODUCT"}}};
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Undertitel");
        auto& field = Find<QLineEdit>(dialog, "tSubtitle");
        field.setText("ab");
        field.setCursorPosition(1);
        Click(dialog, "cmdVariables");
        EXPECT_EQ(field.text(), "a%PRODUCTb");
        SavePicture(dialog, "DlgDesSubTitle");
        Click(dialog, "cmdOK");
    });
    Click(form, "CmdSubTitle");
    EXPECT_EQ(project.DesSubTitle.SubTitleText, "");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesSubTitle.SubTitleText, "a%PRODUCTb");
}

TEST_F(DesignEditorsTest, UnderlineSwitchesItsControls)
{
    project.DesTitleUnderline.UnderlineHeight = 1;
    DlgUnderline form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.GetUnderlineTypeNr(), 0);
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "3");
    EXPECT_FALSE(form.CmdColor1->isEnabled() || form.CmdColor2->isEnabled());
    Click(form, "oMistyUnderline");
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "10");
    QTest::keyClick(form.tUnderlineHeight, Qt::Key_Down);
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "10") << "the least";
    EXPECT_TRUE(form.CmdColor1->isEnabled() && form.CmdColor2->isEnabled());
    EXPECT_EQ(Left(form, "tUnderlineHeight", "9"), "10");
    Click(form, "oSimpleUnderline");
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "3");
    EXPECT_TRUE(form.CmdColor1->isEnabled());
    EXPECT_FALSE(form.CmdColor2->isEnabled());
    Click(form, "oBlendUnderline");
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "4");
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(form.tUnderlineHeight, Qt::Key_Down);
        EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "3") << "the least";
    }
    EXPECT_EQ(Left(form, "tUnderlineHeight", "3"), "3");
    EXPECT_EQ(Left(form, "tUnderlineHeight", "51"), "50");
    EXPECT_EQ(Left(form, "tUnderlineHeight", ""), "3");
    Type(form, "tUnderlineHeight", "7");
    Click(form, "oNoUnderline");
    EXPECT_EQ(TextIn(form, "tUnderlineHeight"), "7");
    form.SetUnderlineTypeNr(3);
    ask.colours = {0x11, 0x22};
    Click(form, "CmdColor1");
    Click(form, "CmdColor2");
    Click(form, "cUnderlineTextOnly");
    SavePicture(form, "DlgUnderline");
    Click(form, "OKButton");
    const section::DesTitleUnderline& stored = project.DesTitleUnderline;
    EXPECT_EQ(stored.UnderlineType, 3);
    EXPECT_EQ(stored.UnderlineColor1, 0x11);
    EXPECT_EQ(stored.UnderlineColor2, 0x22);
    EXPECT_EQ(stored.UnderlineHeight, 4);
    EXPECT_EQ(stored.UnderlineTextOnly, 0);
}

TEST_F(DesignEditorsTest, UnderlineStoresThreeForAnEmptiedHeight)
{
    project.DesTitleUnderline = {.UnderlineType = 1, .UnderlineHeight = 20};
    DlgUnderline form(session, nullptr);
    ShowActive(form);
    Type(form, "tUnderlineHeight", "");
    Click(form, "OKButton");
    EXPECT_EQ(project.DesTitleUnderline.UnderlineHeight, 3);
    DlgUnderline never(session, nullptr); // is on the screen, so no field is left
    never.tUnderlineHeight->clear();
    never.cmdOK->click();
    EXPECT_EQ(project.DesTitleUnderline.UnderlineHeight, 3);
}

TEST_F(DesignEditorsTest, UnderlineOpensItsPageOfTheHelp)
{
    machine.files.Put("C:\\Quillon\\QN.HLP", "# Hjälp\n\n## Understrykning {underline}\n\nText\n");
    std::vector<CommandId> opened;
    session.helpWindow = [&](const auto&, const HelpRequest& request) {
        opened.push_back(request.command);
    };
    DlgUnderline form(session, nullptr);
    ShowActive(form);
    Click(form, "CmdHelp");
    EXPECT_EQ(opened, std::vector{CommandId::Underline});
    // A help file of another kind is opened by the system.
    machine.files.Put("C:\\Quillon\\QN.HLP", "?_ an old one");
    Click(form, "CmdHelp");
    ASSERT_FALSE(machine.machine.started.empty());
    EXPECT_EQ(machine.machine.started.back().first, "C:\\Quillon\\QN.HLP");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(DesignEditorsTest, TextboxStoresItsFields)
{
    DlgDesTextbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.sBoxTitleFont->text(), "Arial, 12 pt, fet, ej kursiv");
    EXPECT_EQ(form.sBoxTextFont->text(), "Arial, 9 pt, ej fet, ej kursiv");
    Type(form, "tTitleText", "Rubrik");
    form.tBoxText->setPlainText("en\ntvå");
    Click(form, "cShowTextBox");
    Click(form, "cCenterBox");
    Click(form, "cPlaceBelowTitle");
    Click(form, "cUseBackground");
    ask.fonts = {FontChoice{.name = "Courier", .size = 8, .colour = 0x44}};
    Click(form, "cmdTextBoxFont");
    EXPECT_EQ(ask.shownFonts.front().colour, 0);
    EXPECT_EQ(ask.shownFonts.front().maxNameLength, 199);
    EXPECT_EQ(form.sBoxTextFont->text(), "Courier, 8 pt, ej fet, ej kursiv");
    EXPECT_EQ(Left(form, "tWidth", "49"), "50");
    EXPECT_EQ(Left(form, "tWidth", "641"), "640");
    EXPECT_EQ(Left(form, "tHeight", "481"), "480");
    SavePicture(form, "DlgDesTextbox");
    SaveDarkPicture(form, "DlgDesTextbox");
    Click(form, "cmdOK");
    const section::DesTextBox& box = project.DesTextBox;
    EXPECT_EQ(box.BoxTitle, "Rubrik");
    EXPECT_EQ(box.BoxText, "en\r\ntvå");
    EXPECT_EQ(box.ShowTextBox, kOn);
    EXPECT_EQ(box.BoxCenter, kOn);
    EXPECT_EQ(box.BoxPlaceBelowTitle, kOn);
    EXPECT_EQ(box.BoxUseBackColor, kOff);
    EXPECT_EQ(box.BoxTextColor, 0x44);
    EXPECT_EQ(box.BoxWidth, 640);
    EXPECT_EQ(box.BoxHeight, 480);
}

TEST_F(DesignEditorsTest, PicturesExcludeTransparenceAndStretching)
{
    project.DesPictures.Pictures[1].StretchPicture = kOn;
    DlgDesPictures form(1, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Bild 2");
    EXPECT_EQ(form.ComboTransparentColor->currentText(), "Svart");
    Click(form, "cTransparentBkg");
    EXPECT_FALSE(form.cStretchPicture->isChecked());
    for (QWidget* control : std::initializer_list<QWidget*>{form.cStretchPicture, form.tWidth,
                                                            form.tHeight, form.LabelW, form.LabelH})
        EXPECT_FALSE(control->isEnabled()) << control->objectName().toStdString();
    Click(form, "cTransparentBkg");
    EXPECT_TRUE(form.tWidth->isEnabled());
    EXPECT_EQ(Left(form, "tWidth", "9"), "10");
    EXPECT_EQ(Left(form, "tHeight", "2001"), "2000");
    SavePicture(form, "DlgDesPictures");
    SaveDarkPicture(form, "DlgDesPictures");
    Click(form, "cmdReset");
    EXPECT_EQ(TextIn(form, "tWidth"), "200");
    EXPECT_EQ(TextIn(form, "tHeight"), "100");
    ask.choices = {{{"C:\\b\\x.wmf"}}};
    Click(form, "cmdSelectPicture");
    EXPECT_EQ(ask.questions.back().title, "Välj bild");
    EXPECT_EQ(ask.questions.back().filter,
              "Alla bildfiler|*.bmp;*.wmf;*.jpg|Bitmappar (*.bmp)|*.bmp|Metafiler "
              "(*.wmf)|*.wmf|JPEG-bilder (*.jpg)|*.jpg");
    form.ComboTransparentColor->setCurrentIndex(11);
    Click(form, "cHidePicturesWhenDialogsShowed");
    const Integer hides = form.cHidePicturesWhenDialogsShowed->isChecked() ? 1 : 0;
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesPictures.Pictures[1].PictureFilename, "C:\\b\\x.wmf");
    EXPECT_EQ(project.DesPictures.TransparentColorNr, 11);
    EXPECT_EQ(project.DesPictures.HidePicturesWhenDialogsShowed, hides);
    EXPECT_EQ(project.DesPictures.Pictures[0].PictureFilename, "");
}

TEST_F(DesignEditorsTest, ChangingPicturesAreTwentyAtMost)
{
    DlgDesPicturesAnim form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdRemovePicture"); // with no selection nothing happens
    for (int i = 1; i <= 20; ++i)
        ask.choices.push_back({{"C:\\b\\" + std::to_string(i) + ".jpg"}});
    for (int i = 1; i <= 20; ++i)
        Click(form, "cmdAddPicture");
    EXPECT_EQ(form.lbPictureList->count(), 20);
    ask.Expect({BoxKind::Inform, "Info",
                "Du kan ej lägga till fler bilder till listan! Du kan ha maximalt 20 bilder!"});
    Click(form, "cmdAddPicture");
    form.lbPictureList->setCurrentRow(0);
    Click(form, "cmdRemovePicture");
    Type(form, "tIntervalSeconds", "0");
    SavePicture(form, "DlgDesPicturesAnim");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesPicturesAnim.NrAnimPictures, 19);
    EXPECT_EQ(project.DesPicturesAnim.P[0], "C:\\b\\2.jpg");
    EXPECT_EQ(project.DesPicturesAnim.P[18], "C:\\b\\20.jpg");
    EXPECT_EQ(project.DesPicturesAnim.P[19], "");
    EXPECT_EQ(project.DesPicturesAnim.IntervalSeconds, 1);
}

TEST_F(DesignEditorsTest, LogotypeFallsBackToItsDefaults)
{
    DlgDesLogotype form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.oRight->isChecked());
    Click(form, "oLeft");
    EXPECT_EQ(Left(form, "tLogotypeWMFHeight", "601"), "50");
    EXPECT_EQ(Left(form, "tLogotypeWMFWidth", "801"), "100");
    Type(form, "tLogotypeWMFWidth", "0");
    SavePicture(form, "DlgDesLogotype");
    SaveDarkPicture(form, "DlgDesLogotype");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesLogotype.LogotypeAlignment, 1);
    EXPECT_EQ(project.DesLogotype.LogotypeWMFWidth, 100);
    EXPECT_EQ(project.DesLogotype.LogotypeWMFHeight, 50);
}

TEST_F(DesignEditorsTest, GaugeHasTwoDirections)
{
    DlgDesPercentGauge form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.oHCenter->isChecked() && form.oVCenter->isChecked());
    Click(form, "oLeft");
    Click(form, "oBottom");
    SavePicture(form, "DlgDesPercentGauge");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesPercentGauge.GaugeAlignmentH, 1);
    EXPECT_EQ(project.DesPercentGauge.GaugeAlignmentV, 3);
}

TEST_F(DesignEditorsTest, SoundIsChosenAndTakenAway)
{
    DlgSound form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{"C:\\l\\sus.mid"}}};
    Click(form, "cmdSelectBackSound");
    EXPECT_EQ(ask.questions.back().title, "Välj ljudfil");
    EXPECT_EQ(ask.questions.back().filter, "Ljud (*.wav;*.mid;*.mp3)|*.wav;*.mid;*.mp3");
    EXPECT_EQ(session.Settings.Directories.LastSoundDir, "C:\\l");
    EXPECT_EQ(form.sBackSoundFilenameX->text(), "C:\\l\\sus.mid");
    SavePicture(form, "DlgSound");
    Click(form, "cmdOK");
    EXPECT_EQ(project.DesSound.BackSoundFilename, "C:\\l\\sus.mid");
    DlgSound again(session, nullptr);
    ShowActive(again);
    Click(again, "cmdReset");
    Click(again, "cmdOK");
    EXPECT_EQ(project.DesSound.BackSoundFilename, "");
}

TEST_F(DesignEditorsTest, OverviewListsTheFiles)
{
    machine.files.Put("C:\\b\\ett.bmp", std::string(1500, 'x'));
    project.DesPictures.Pictures[0].PictureFilename = "C:\\b\\ett.bmp";
    DlgDesOverview form(session, nullptr);
    ShowActive(form);
    ASSERT_EQ(form.ListViewOverview->topLevelItemCount(), 1);
    const QTreeWidgetItem& row = *form.ListViewOverview->topLevelItem(0);
    EXPECT_EQ(row.text(0), "Bild 1");
    EXPECT_EQ(row.text(1), "ett.bmp");
    EXPECT_EQ(row.text(2), "1 500");
    SavePicture(form, "DlgDesOverview");
    Click(form, "cmdOK");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
