// The two agreement pages: plain and formatted.
#include "actions/forms/previews/InstDlgLicenseInfo.h"

#include "actions/forms/pages/DlgLicenseInfo.h"
#include "actions/forms/pages/DlgLicenseInfoRtf.h"
#include "actions/forms/previews/InstDlgLicenseInfoRtf.h"
#include "forms/preview_test.h"
#include "ui/controls/rtf_view.h"

namespace quillon::test {
namespace {

constexpr char kRtfFile[] = "C:\\Data\\avtal.rtf";

// As a word processor of the time writes it.
constexpr char kAgreement[] =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset0 Arial;}"
    "{\\f1\\froman\\fcharset0 Times New Roman;}{\\f2\\fnil\\fcharset2 Symbol;}}\r\n"
    "{\\colortbl ;\\red192\\green0\\blue0;\\red0\\green0\\blue160;}\r\n"
    "\\viewkind4\\uc1\\pard\\qc\\cf1\\b\\f0\\fs32 Licensavtal\\par\r\n"
    "\\pard\\sb120\\cf0\\b0\\fs20 Detta avtal g\\'e4ller f\\'f6r \\i Receptboken\\i0  och "
    "\\ul alla\\ulnone  dess delar.\\par\r\n"
    "\\pard{\\pntext\\f2\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf2\\pnindent360{\\pntxtb\\'B7}}"
    "\\fi-360\\li360\\tx360 Programmet f\\'e5r installeras p\\'e5 en dator, och p\\'e5 en till "
    "som samma anv\\'e4ndare b\\'e4r med sig.\\par\r\n"
    "{\\pntext\\f2\\'B7\\tab}En \\cf2 s\\'e4kerhetskopia\\cf0  \\'e4r till\\'e5ten.\\par\r\n"
    "\\pard\\qj\\f1 Avtalet \\'e4r skrivet med tv\\'e5 tecken som koden saknar: \\u8364?100 "
    "och \\u960?.\\par\r\n\\pard\\qr\\b Firma AB\\b0\\par\r\n}\r\n\0";

class InstDlgLicenseInfoTest : public PreviewTest {
protected:
    LicensePreview page{.title = "Licensinformation",
                        .license = "Avtal för %PROJECTNAME\r\n\r\nDu får använda programmet.",
                        .footText = "Godkänner du avtalet?"};
};

TEST_F(InstDlgLicenseInfoTest, ShowsWhatWasTyped)
{
    InstDlgLicenseInfo form(page, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Licensinformation");
    EXPECT_EQ(Said(form.sTitle), "Licensinformation");
    EXPECT_EQ(Said(form.sLicenseText), "Avtal för Receptboken\n\nDu får använda programmet.");
    EXPECT_EQ(Said(form.sFootText), "Godkänner du avtalet?");
    EXPECT_EQ(form.CmdYes->text(), "&Ja");
    EXPECT_EQ(form.CmdNo->text(), "N&ej");
    EXPECT_EQ(form.cmdNext, nullptr);
    EXPECT_EQ(form.cmdCancel, nullptr);
    EXPECT_TRUE(form.PictureDlg->HasPicture());
}

TEST_F(InstDlgLicenseInfoTest, ClosesByAnyButton)
{
    InstDlgLicenseInfo plain(page, session, nullptr);
    ExpectEachButtonCloses(plain, {"cmdBack", "CmdYes", "CmdNo"});
    InstDlgLicenseInfoRtf formatted(page, session, nullptr);
    ExpectEachButtonCloses(formatted, {"cmdBack", "CmdYes", "CmdNo"});
}

TEST_F(InstDlgLicenseInfoTest, LeavesEverythingAsItWas)
{
    for (const auto show : {ShowInstDlgLicenseInfo, ShowInstDlgLicenseInfoRtf}) {
        OnNextDialog([](QDialog& dialog) { Click(dialog, "CmdYes"); });
        show(session, page, nullptr);
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(InstDlgLicenseInfoTest, ShowsTextsOfAnyLengthWhole)
{
    for (const Text& license : {Text(), Text(16384, 'W'), ReplaceAll(Text(8000, 'x'), "x", "\r\n")})
        for (const Text& footText : {Text(), Text(200, 'W')}) {
            page.license = license;
            page.footText = footText;
            page.title = footText;
            InstDlgLicenseInfo form(page, session, nullptr);
            ShowActive(form);
            for (const RunningText* text : {form.sTitle, form.sLicenseText, form.sFootText})
                ExpectReadable(*text);
            EXPECT_EQ(form.sFootText->isHidden(), footText.empty());
            EXPECT_GT(form.sLicenseText->height(), 3 * form.fontMetrics().lineSpacing());
        }
}

TEST_F(InstDlgLicenseInfoTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgLicenseInfo editor(session, nullptr);
    ShowActive(editor);
    Type(editor, "tDialogTitle", page.title);
    editor.tLicenseText->setPlainText(LinesToQt(page.license));
    Type(editor, "tFootText", page.footText);
    ShowPreviewOf(editor, "InstDlgLicenseInfo", [](QDialog& preview) {
        EXPECT_EQ(Said(static_cast<InstDlgLicenseInfo&>(preview).sFootText),
                  "Godkänner du avtalet?");
    });
}

TEST_F(InstDlgLicenseInfoTest, LooksRight)
{
    page.license += "\r\n" + ReplaceAll(Text(200, 'x'), "x", "Programmet ägs av Firma AB. ");
    InstDlgLicenseInfo form(page, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgLicenseInfo");
    SaveDarkPicture(form, "InstDlgLicenseInfo");
}

class InstDlgLicenseInfoRtfTest : public PreviewTest {
protected:
    InstDlgLicenseInfoRtfTest()
    {
        machine.files.Put(kRtfFile, {kAgreement, sizeof(kAgreement) - 1});
    }

    Text NoteFor(const Text& path)
    {
        page.license = path;
        InstDlgLicenseInfoRtf form(page, session, nullptr);
        ShowActive(form);
        return FromQt(form.RtfLicense->ShownNote());
    }

    LicensePreview page{
        .title = "Licensinformation", .license = kRtfFile, .footText = "Godkänner du avtalet?"};
};

TEST_F(InstDlgLicenseInfoRtfTest, ShowsTheFileAsFormattedText)
{
    InstDlgLicenseInfoRtf form(page, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.RtfLicense->ShownNote(), "");
    const QTextDocument& text = *form.RtfLicense->document();
    ASSERT_EQ(text.blockCount(), 6);
    const QTextBlock title = text.firstBlock();
    EXPECT_EQ(title.text(), "Licensavtal");
    EXPECT_TRUE(title.blockFormat().alignment().testFlag(Qt::AlignHCenter));
    const QTextCharFormat look = title.begin().fragment().charFormat();
    EXPECT_EQ(look.fontPointSize(), 16);
    EXPECT_EQ(look.fontWeight(), QFont::Bold);
    EXPECT_EQ(look.foreground().color(), QColor(192, 0, 0));
    EXPECT_EQ(look.fontFamilies().toStringList(), QStringList("Arial"));
    EXPECT_EQ(text.findBlockByNumber(2).text().left(14), "•\tProgrammet f");
    EXPECT_LT(text.findBlockByNumber(2).blockFormat().textIndent(), 0);
    EXPECT_TRUE(text.findBlockByNumber(4).text().endsWith("€100 och π."));
    EXPECT_TRUE(form.RtfLicense->isReadOnly());
}

TEST_F(InstDlgLicenseInfoRtfTest, SaysWhatIsWrongWithAFile)
{
    machine.files.Put("C:\\text.rtf", "Ett avtal i vanlig text.");
    machine.files.Put("C:\\tom.rtf", "");
    machine.files.Put("C:\\kort.rtf", "{\\rtf1 Halva avtal");
    machine.files.Put("C:\\stor.rtf", std::string((32U << 20U) + 1, ' '));
    machine.files.Put("C:\\last.rtf", "{\\rtf1 }");
    machine.files.At("C:\\last.rtf").unreadable = true;
    EXPECT_EQ(NoteFor(""), "Ingen RTF-fil är vald.");
    EXPECT_EQ(NoteFor("C:\\borta.rtf"), "Filen 'C:\\borta.rtf' finns inte.");
    EXPECT_EQ(NoteFor("C:\\text.rtf"), "Filen 'C:\\text.rtf' är ingen RTF-fil.");
    EXPECT_EQ(NoteFor("C:\\tom.rtf"), "Filen 'C:\\tom.rtf' är ingen RTF-fil.");
    EXPECT_EQ(NoteFor("C:\\stor.rtf"), "Filen 'C:\\stor.rtf' är för stor för att visas.");
    EXPECT_EQ(NoteFor("C:\\last.rtf"), "Åtkomst nekas till 'C:\\last.rtf'.");
    EXPECT_EQ(NoteFor("C:\\kort.rtf"), "Filen är inte hel. Här visas det som finns av texten.");
    EXPECT_EQ(NoteFor(kRtfFile), "");
}

TEST_F(InstDlgLicenseInfoRtfTest, ShowsWhatThereIsOfACutFile)
{
    machine.files.Put(kRtfFile, "{\\rtf1 Halva avtal");
    InstDlgLicenseInfoRtf form(page, session, nullptr);
    EXPECT_EQ(form.RtfLicense->toPlainText(),
              "Filen är inte hel. Här visas det som finns av texten.\nHalva avtal");
}

TEST_F(InstDlgLicenseInfoRtfTest, ShowsAFileCutAtAnyByte)
{
    const std::string whole(kAgreement, sizeof(kAgreement) - 1);
    RtfView view("Avtal");
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        machine.files.Put(kRtfFile, whole.substr(0, length));
        view.ShowFile(machine.files, kRtfFile);
        const bool isWhole = view.ShownNote().isEmpty();
        // Only what follows the last brace may be missing.
        EXPECT_EQ(isWhole, length > whole.rfind('}')) << length;
    }
}

TEST_F(InstDlgLicenseInfoRtfTest, ShowsTheBeginningOfAnEndlessText)
{
    std::string endless = "{\\rtf1 ";
    while (endless.size() < 10'000'000)
        endless += "\\b Det h\\'e4r \\b0 avtalet tar aldrig slut.\\par\r\n";
    machine.files.Put(kRtfFile, endless);
    RtfView view("Avtal");
    view.ShowFile(machine.files, kRtfFile);
    EXPECT_EQ(view.ShownNote(),
              "Texten är för lång för att visas i sin helhet. Här visas dess början.");
    EXPECT_LE(view.document()->blockCount(), static_cast<int>(kMaxRtfLines) + 1);
}

TEST_F(InstDlgLicenseInfoRtfTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgLicenseInfoRtf editor(session, nullptr);
    ShowActive(editor);
    ask.choices = {{{kRtfFile}}};
    Click(editor, "CmdSelectRtfFile");
    Type(editor, "tFootText", page.footText);
    ShowPreviewOf(editor, "InstDlgLicenseInfoRtf", [](QDialog& preview) {
        EXPECT_TRUE(
            static_cast<InstDlgLicenseInfoRtf&>(preview).RtfLicense->toPlainText().startsWith(
                "Licensavtal"));
    });
}

TEST_F(InstDlgLicenseInfoRtfTest, LooksRight)
{
    InstDlgLicenseInfoRtf form(page, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgLicenseInfoRtf");
    SaveDarkPicture(form, "InstDlgLicenseInfoRtf");
}

TEST_F(InstDlgLicenseInfoRtfTest, LooksRightWithoutAFile)
{
    page.license = "C:\\Data\\borta.rtf";
    InstDlgLicenseInfoRtf form(page, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgLicenseInfoRtf-missing");
}

} // namespace
} // namespace quillon::test
