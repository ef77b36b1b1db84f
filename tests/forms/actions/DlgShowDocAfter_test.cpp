#include "actions/forms/DlgShowDocAfter.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgShowDocAfterTest : public WindowTest {
protected:
    section::ShowDocAfter& shown = session.project.ShowDocAfter;
};

TEST_F(DlgShowDocAfterTest, StartsWithAProposalForTheBox)
{
    DlgShowDocAfter form(session, nullptr);
    EXPECT_EQ(form.windowTitle(), "Visa dokument efter installation");
    EXPECT_EQ(TextIn(form, "tDocumentFileName"), "");
    EXPECT_FALSE(form.cShowCheckBox->isChecked());
    EXPECT_EQ(TextIn(form, "tCheckBoxText"), "&Läs dokumentet 'Viktig Information'");
    EXPECT_FALSE(form.cUseInternalRTFBox->isChecked());
    EXPECT_EQ(TextIn(form, "tInternalRTFBoxDlgTitle"), "");
}

TEST_F(DlgShowDocAfterTest, SaysWhatItAsks)
{
    DlgShowDocAfter form(session, nullptr);
    QStringList captions;
    for (const auto* label : form.findChildren<QLabel*>())
        captions << label->text();
    EXPECT_EQ(captions, QStringList({"Visa följande dokument efter installationen",
                                     "&Text vid kryssruta:", "Titel för dialogrut&a:"}));
    EXPECT_EQ(form.cShowCheckBox->text(),
              "&Visa extra kryssruta i dialogrutan 'Installationen avslutad'");
    EXPECT_EQ(form.cUseInternalRTFBox->text(),
              "Visa &RTF-dokument direkt i installationsprogrammet");
}

TEST_F(DlgShowDocAfterTest, TicksABoxForEveryValueThatIsSet)
{
    for (const Flag value : {kOn, Flag(1)}) {
        shown = {.DocFileName = "a.rtf", .ShowCheckBox = value, .UseInternalRTFBox = value};
        DlgShowDocAfter form(session, nullptr);
        EXPECT_TRUE(form.cShowCheckBox->isChecked());
        EXPECT_TRUE(form.cUseInternalRTFBox->isChecked());
        ShowActive(form);
        Click(form, "cmdCancel");
        EXPECT_EQ(shown.ShowCheckBox, value);
        EXPECT_EQ(shown.UseInternalRTFBox, value);
    }
    DlgShowDocAfter form(session, nullptr);
    form.cmdOK->click();
    EXPECT_EQ(shown.ShowCheckBox, kOn);
    EXPECT_EQ(shown.UseInternalRTFBox, kOn);
}

TEST_F(DlgShowDocAfterTest, StoresWhatWasTyped)
{
    DlgShowDocAfter form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDocumentFileName->hasFocus());
    Type(form, "tDocumentFileName", "%DELäs.rtf");
    Click(form, "cShowCheckBox");
    Type(form, "tCheckBoxText", "&Läs mig");
    Click(form, "cUseInternalRTFBox");
    Type(form, "tInternalRTFBoxDlgTitle", "Läs detta");
    SavePicture(form, "DlgShowDocAfter");
    SaveDarkPicture(form, "DlgShowDocAfter");
    EXPECT_EQ(shown.DocFileName, "");
    Click(form, "cmdOK");
    EXPECT_EQ(shown.DocFileName, "%DESTDIR\\Läs.rtf");
    EXPECT_EQ(shown.ShowCheckBox, kOn);
    EXPECT_EQ(shown.CheckBoxText, "&Läs mig");
    EXPECT_EQ(shown.UseInternalRTFBox, kOn);
    EXPECT_EQ(shown.InternalRTFBoxDlgTitle, "Läs detta");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgShowDocAfterTest, ChangesNothingOnCancel)
{
    DlgShowDocAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tDocumentFileName", "a.txt");
    Click(form, "cShowCheckBox");
    Click(form, "cUseInternalRTFBox");
    Type(form, "tCheckBoxText", "x");
    Type(form, "tInternalRTFBoxDlgTitle", "x");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(shown.DocFileName, "");
    EXPECT_EQ(shown.ShowCheckBox, kOff);
    EXPECT_EQ(shown.CheckBoxText, "&Läs dokumentet 'Viktig Information'");
    EXPECT_EQ(shown.UseInternalRTFBox, kOff);
    EXPECT_EQ(shown.InternalRTFBoxDlgTitle, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgShowDocAfterTest, ShowsNothingButRtfInTheSetupItself)
{
    const std::pair<const char*, Flag> cases[] = {
        {"readme.txt", kOff}, {"", kOff}, {"readme.rtf", kOn}, {"%DESTDIR\\A.Rtf", kOn}};
    for (const auto& [name, isShown] : cases) {
        shown = {.DocFileName = name, .UseInternalRTFBox = kOn};
        DlgShowDocAfter form(session, nullptr);
        EXPECT_TRUE(form.cUseInternalRTFBox->isChecked());
        form.cmdOK->click();
        EXPECT_EQ(form.cUseInternalRTFBox->isChecked(), isShown != kOff) << name;
        EXPECT_EQ(shown.UseInternalRTFBox, isShown) << name;
    }
}

TEST_F(DlgShowDocAfterTest, PutsTheDocumentInOrderWhenItsFieldIsLeft)
{
    DlgShowDocAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tDocumentFileName", "C:\\Temp\\%DESTDIR\\Doc\\");
    form.tCheckBoxText->setFocus();
    EXPECT_EQ(TextIn(form, "tDocumentFileName"), "%DESTDIR\\Doc");
    Type(form, "tDocumentFileName", "%destdir\\x");
    ask.Expect({BoxKind::Warn, "Variabelnamn ej korrekt",
                "Du har angett en variabel med gemener i fältet 'Dokument'! En variabel får "
                "endast bestå av versaler, tex '%DESTDIR'."});
    form.tCheckBoxText->setFocus();
    EXPECT_EQ(TextIn(form, "tDocumentFileName"), "%destdir\\x");
}

TEST_F(DlgShowDocAfterTest, LetsTheMouseTickABoxBesideAVariableInSmallLetters)
{
    DlgShowDocAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tDocumentFileName", "%destdir\\x.rtf");
    Click(form, "cShowCheckBox");
    Click(form, "cUseInternalRTFBox");
    EXPECT_TRUE(form.cShowCheckBox->isChecked());
    EXPECT_TRUE(form.cUseInternalRTFBox->isChecked());
    EXPECT_TRUE(ask.shown.empty()) << "the box comes when the field is left";
    ask.Expect({BoxKind::Warn, "Variabelnamn ej korrekt"});
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(DlgShowDocAfterTest, TakesNoMoreThanTheProjectHolds)
{
    DlgShowDocAfter form(session, nullptr);
    for (const QLineEdit* field :
         {form.tDocumentFileName, form.tCheckBoxText, form.tInternalRTFBoxDlgTitle})
        EXPECT_EQ(field->maxLength(), 199);
}

} // namespace
} // namespace quillon::test
