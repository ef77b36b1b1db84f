#include "design/forms/DlgDesRTFbox.h"

#include "design/rtf_box_file.h"
#include "rtf/rtf_text.h"
#include "support/window_test.h"
#include "ui/controls/ColourButton.h"

namespace quillon::test {
namespace {

class DlgDesRTFboxTest : public WindowTest {
protected:
    DlgDesRTFboxTest()
    {
        session.surface.width = 1600;
        session.surface.height = 1200;
    }

    section::DesRTFbox& box = session.project.DesRTFbox;
};

TEST_F(DlgDesRTFboxTest, ProposesTheProjectsName)
{
    session.state.ProjectFileName = "C:\\P\\Demo.qnp";
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tRTFfilename"), "Demo.rtf");
}

TEST_F(DlgDesRTFboxTest, SavesAnUnsavedProjectsTextAsRtfRtf)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tRTFfilename"), "rtf");
    Click(form, "cmdOK");
    EXPECT_EQ(box.RTFfilename, "rtf.rtf");
    EXPECT_TRUE(machine.files.FileExists("C:\\Quillon\\rtf\\rtf.rtf"));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgDesRTFboxTest, FormatsTheSelection)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.RTFbox, "Hej på dig Ωμέγα");
    form.RTFbox->selectAll();
    Click(form, "cmdBold");
    Click(form, "cmdItalic");
    Click(form, "cmdUnderline");
    ask.fonts = {FontChoice{.name = "Courier New",
                            .size = 18,
                            .isBold = true,
                            .isUnderlined = true,
                            .isStruckOut = true,
                            .colour = 0x0000FF}};
    Click(form, "cmdRTFfont");
    EXPECT_TRUE(ask.shownFonts.front().isItalic);
    EXPECT_EQ(ask.shownFonts.front().isUnderlined, true);
    Click(form, "cShowRTFbox");
    SavePicture(form, "DlgDesRTFbox");
    SaveDarkPicture(form, "DlgDesRTFbox");
    Type(form, "tRTFfilename", "Text");
    Click(form, "cmdOK");
    EXPECT_EQ(box.RTFfilename, "Text.rtf");
    EXPECT_EQ(box.ShowRTFbox, kOn);
    const auto text = ReadRtf(machine.files.Get("C:\\Quillon\\rtf\\Text.rtf"));
    ASSERT_TRUE(text);
    ASSERT_EQ(text->paragraphs.size(), 1U);
    ASSERT_EQ(text->paragraphs[0].runs.size(), 1U);
    const RtfRun& run = text->paragraphs[0].runs[0];
    EXPECT_EQ(run.text, "Hej på dig Ωμέγα");
    EXPECT_EQ(text->fonts[static_cast<std::size_t>(run.style.font)].name, "Courier New");
    EXPECT_EQ(run.style.halfPoints, 36);
    EXPECT_TRUE(run.style.isBold && run.style.isUnderlined && run.style.isStruckOut);
    EXPECT_FALSE(run.style.isItalic);
    EXPECT_EQ(run.style.foreground, 0x0000FF);
}

TEST_F(DlgDesRTFboxTest, TakesOfWhatIsPastedOnlyWhatTheFileHolds)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QApplication::clipboard()->setImage(picture);
    form.RTFbox->paste();
    EXPECT_TRUE(form.RTFbox->document()->isEmpty());
    auto* html = new QMimeData;
    html->setText("ab");
    html->setHtml("<p><b>a</b><img src=\"x.png\">b</p><table><tr><td>c</td></tr></table>");
    QApplication::clipboard()->setMimeData(html);
    form.RTFbox->paste();
    const QString shown = form.RTFbox->toPlainText();
    EXPECT_TRUE(shown.startsWith("ab")) << shown.toStdString();
    EXPECT_TRUE(shown.contains("c")) << shown.toStdString();
    EXPECT_EQ(form.RTFbox->document()->rootFrame()->childFrames().size(), 0) << "no table";
    Click(form, "cmdUndo");
    EXPECT_TRUE(form.RTFbox->document()->isEmpty()) << "in one step";
    Click(form, "cmdRedo");
    Click(form, "cmdOK");
    const auto text = ReadRtf(machine.files.Get("C:\\Quillon\\rtf\\rtf.rtf"));
    ASSERT_TRUE(text);
    EXPECT_EQ(text->paragraphs.at(0).runs.at(0).text, "a");
    EXPECT_TRUE(text->paragraphs[0].runs[0].style.isBold);
}

TEST_F(DlgDesRTFboxTest, ShowsWhichFormatsAreOn)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    const auto colour = [&] { return form.cmdBold->palette().color(QPalette::Button); };
    const QColor off = colour();
    Click(form, "cmdBold");
    EXPECT_EQ(colour(), QApplication::palette().color(QPalette::Highlight));
    Click(form, "cmdBold");
    EXPECT_EQ(colour(), off);
}

TEST_F(DlgDesRTFboxTest, UndoesAndRedoes)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.cmdUndo->isEnabled());
    TypeKeys(*form.RTFbox, "abc");
    EXPECT_TRUE(form.cmdUndo->isEnabled());
    Click(form, "cmdUndo");
    EXPECT_NE(form.RTFbox->toPlainText(), "abc");
    Click(form, "cmdRedo");
    EXPECT_EQ(form.RTFbox->toPlainText(), "abc");
}

TEST_F(DlgDesRTFboxTest, LoadsTheFileAndTellsWhatItCantShow)
{
    box.RTFfilename = "a.rtf";
    machine.files.Put("C:\\Quillon\\rtf\\a.rtf",
                      "{\\rtf1\\ansi Hej {\\b d\\'e5}{\\pict\\wmetafile8 00}}");
    ask.Expect({BoxKind::Warn, "RTF-ruta",
                "Filen 'C:\\Quillon\\RTF\\a.rtf' innehåller bilder, som inte kan visas i rutan. "
                "Trycker du på 'OK' behålls den gamla filen bredvid den nya, med .bak efter "
                "namnet."});
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.RTFbox->toPlainText(), "Hej då");
    EXPECT_FALSE(form.cmdUndo->isEnabled());
    Click(form, "cmdCancel");
    EXPECT_NE(machine.files.Get("C:\\Quillon\\rtf\\a.rtf").find("\\pict"), std::string::npos);
}

TEST_F(DlgDesRTFboxTest, TellsAllThatItCantShow)
{
    box.RTFfilename = "a.rtf";
    machine.files.Put("C:\\Quillon\\rtf\\a.rtf",
                      "{\\rtf1{\\footerr 1}{\\shp{\\*\\shpinst}}\\ls1 a{\\up6 b}{\\v c}\\\\pict}");
    ask.Expect({BoxKind::Warn, "RTF-ruta",
                "Filen 'C:\\Quillon\\RTF\\a.rtf' innehåller ritade figurer, sidfot, automatiska "
                "listor, höjda eller sänkta tecken, dold text, som inte kan visas i rutan. "
                "Trycker du på 'OK' behålls den gamla filen bredvid den nya, med .bak efter "
                "namnet."});
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.RTFbox->toPlainText(), "ab\\pict");
}

TEST_F(DlgDesRTFboxTest, KeepsCapitalsSpacesAndHeightsOfLines)
{
    const std::string path = "C:\\Quillon\\rtf\\a.rtf";
    box.RTFfilename = "a.rtf";
    machine.files.Put(path, "{\\rtf1\\sl360\\slmult1 {\\caps\\expndtw45 ab}{\\scaps c}\\par"
                            "\\pard\\sl-300\\slmult0 d\\par\\pard\\sl450 e}");
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdOK");
    const auto text = ReadRtf(machine.files.Get(path));
    ASSERT_TRUE(text);
    ASSERT_EQ(text->paragraphs.size(), 3U);
    EXPECT_EQ(text->paragraphs[0].lineSpacing, 360);
    EXPECT_TRUE(text->paragraphs[0].isLineSpacingMultiple);
    EXPECT_EQ(text->paragraphs[1].lineSpacing, -300);
    EXPECT_EQ(text->paragraphs[2].lineSpacing, 450);
    EXPECT_FALSE(text->paragraphs[2].isLineSpacingMultiple);
    ASSERT_EQ(text->paragraphs[0].runs.size(), 2U);
    const RtfRun& first = text->paragraphs[0].runs[0];
    EXPECT_EQ(first.text, "ab") << "as it was written";
    EXPECT_EQ(first.style.capitals, RtfStyle::Capitals::All);
    EXPECT_EQ(first.style.letterSpacing, 45);
    EXPECT_EQ(text->paragraphs[0].runs[1].style.capitals, RtfStyle::Capitals::Small);
    EXPECT_FALSE(machine.files.FileExists(path + ".bak"));
}

TEST_F(DlgDesRTFboxTest, KeepsHalfAPointWhereNoOtherSizeIsChosen)
{
    const std::string path = "C:\\Quillon\\rtf\\a.rtf";
    box.RTFfilename = "a.rtf";
    machine.files.Put(path, "{\\rtf1\\fs21 abc}");
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    form.RTFbox->selectAll();
    ask.fonts = {FontChoice{.name = "Arial", .size = 10, .isBold = true, .colour = 0}};
    Click(form, "cmdRTFfont");
    EXPECT_EQ(ask.shownFonts.back().size, 10);
    Click(form, "cmdOK");
    auto text = ReadRtf(machine.files.Get(path));
    EXPECT_EQ(text->paragraphs.at(0).runs.at(0).style.halfPoints, 21);
    EXPECT_TRUE(text->paragraphs[0].runs[0].style.isBold);
    EXPECT_EQ(text->paragraphs[0].runs[0].style.foreground, kNoColour);
    DlgDesRTFbox again(session, nullptr);
    ShowActive(again);
    again.RTFbox->selectAll();
    ask.fonts = {FontChoice{.name = "Arial", .size = 12}};
    Click(again, "cmdRTFfont");
    Click(again, "cmdOK");
    text = ReadRtf(machine.files.Get(path));
    EXPECT_EQ(text->paragraphs.at(0).runs.at(0).style.halfPoints, 24);
}

// The text is printed on paper of the author's colour, whatever colours the desktop has.
TEST_F(DlgDesRTFboxTest, WritesBlackOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(42, 42, 42)));
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.RTFbox, "MMMMMM");
    const QImage shown = form.RTFbox->viewport()->grab().toImage();
    int dark = 0;
    int light = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            ++(qGray(shown.pixel(x, y)) < 80 ? dark : light);
    EXPECT_GT(dark, 60);
    EXPECT_GT(light, 20 * dark);
    Click(form, "cmdOK");
    QApplication::setPalette(before);
    const auto text = ReadRtf(machine.files.Get("C:\\Quillon\\rtf\\rtf.rtf"));
    ASSERT_TRUE(text);
    EXPECT_EQ(text->paragraphs.at(0).runs.at(0).style.foreground, kNoColour);
    EXPECT_EQ(text->paragraphs[0].runs[0].style.background, kNoColour);
}

TEST_F(DlgDesRTFboxTest, KeepsAFileThatItDidNotShowWhole)
{
    const std::string path = "C:\\Quillon\\rtf\\a.rtf";
    box.RTFfilename = "a.rtf";
    for (const char* bytes :
         {"no RTF at all", "{\\rtf1 Hej{\\pict\\wmetafile8 00}}", "{\\rtf1 Hej"}) {
        machine.files.Put(path, bytes);
        if (bytes == std::string("no RTF at all"))
            ask.Expect({BoxKind::Critical, "Fel"});
        else
            ask.Expect({BoxKind::Warn, "RTF-ruta"});
        DlgDesRTFbox form(session, nullptr);
        ShowActive(form);
        Click(form, "cmdOK");
        EXPECT_EQ(machine.files.Get(path + ".bak"), bytes);
        EXPECT_TRUE(machine.files.Get(path).starts_with("{\\rtf1"));
        machine.files.RemoveFile(path + ".bak");
    }
    // A file that was shown whole is replaced; another one of the typed name is not.
    DlgDesRTFbox again(session, nullptr);
    ShowActive(again);
    Click(again, "cmdOK");
    EXPECT_FALSE(machine.files.FileExists(path + ".bak"));
    machine.files.Put("C:\\Quillon\\rtf\\b.rtf", "another project's");
    DlgDesRTFbox other(session, nullptr);
    ShowActive(other);
    Type(other, "tRTFfilename", "b");
    Click(other, "cmdOK");
    EXPECT_EQ(machine.files.Get("C:\\Quillon\\rtf\\b.rtf.bak"), "another project's");
}

TEST_F(DlgDesRTFboxTest, TellsOfAFileThatIsMissing)
{
    box.RTFfilename = "borta.rtf";
    ask.Expect({BoxKind::Critical, "Fel"});
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.RTFbox->toPlainText(), "");
}

TEST_F(DlgDesRTFboxTest, KeepsTheTextInTheUsersFolderWhereTheToolsIsClosed)
{
    const Text ofTool = "C:\\Quillon\\RTF\\a.rtf";
    const Text own = "C:\\Data\\Quillon\\RTF\\a.rtf";
    session.options.OwnFolder = "C:\\Data\\Quillon";
    machine.files.Put(ofTool, "{\\rtf1 tool}");
    machine.files.RefuseOutput(ofTool + ".tmp", 70);
    box.RTFfilename = "a.rtf";
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.RTFbox->toPlainText(), "tool");
    form.RTFbox->setPlainText("user");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(machine.files.Get(ofTool), "{\\rtf1 tool}");
    const auto saved = ReadRtf(machine.files.Get(own));
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->paragraphs.at(0).runs.at(0).text, "user");
    DlgDesRTFbox again(session, nullptr);
    ShowActive(again);
    EXPECT_EQ(again.RTFbox->toPlainText(), "user");
    Click(again, "cmdOK");
    EXPECT_FALSE(machine.files.FileExists(own + ".bak")) << "it was shown whole";
}

TEST_F(DlgDesRTFboxTest, WantsAFileName)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    Type(form, "tRTFfilename", "");
    ask.Expect({BoxKind::Inform, "Filnamn saknas"});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    Type(form, "tRTFfilename", "..\\x");
    ask.Expect({BoxKind::Critical, "Felaktigt filnamn"});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgDesRTFboxTest, TakesOnlyANameThatAProjectCanHold)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    Type(form, "tRTFfilename", "åΩ");
    EXPECT_EQ(TextIn(form, "tRTFfilename"), "å");
    form.tRTFfilename->setText(QString(300, 'x'));
    EXPECT_LE(StoredRTFfilename(TextIn(form, "tRTFfilename")).size(), 200U);
}

TEST_F(DlgDesRTFboxTest, StaysOpenWhereTheTextCantBeSaved)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.RTFbox, "abc");
    machine.files.FailFromWrite(1, 61);
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(box.RTFfilename, "");
}

TEST_F(DlgDesRTFboxTest, LeavesASizeAloneThatNobodyChanges)
{
    box.RTFboxWidth = 1700;
    box.RTFboxHeight = 40;
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdOK");
    EXPECT_EQ(box.RTFboxWidth, 1700);
    EXPECT_EQ(box.RTFboxHeight, 40);
}

TEST_F(DlgDesRTFboxTest, CorrectsItsSize)
{
    DlgDesRTFbox form(session, nullptr);
    ShowActive(form);
    ask.colours = {0x00FFFF};
    Click(form, "cmdSetBackColor");
    Type(form, "tWidth", "99");
    Type(form, "tHeight", "1001");
    Click(form, "cmdOK");
    EXPECT_EQ(box.RTFboxWidth, 100);
    EXPECT_EQ(box.RTFboxHeight, 1000);
    EXPECT_EQ(box.RTFboxBackColor, 0x00FFFF);
}

} // namespace
} // namespace quillon::test
