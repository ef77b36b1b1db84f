#include "actions/forms/previews/InstDlgPassword.h"

#include "actions/forms/pages/DlgPassword.h"
#include "actions/forms/previews/previews.h"
#include "forms/preview_test.h"

namespace quillon::test {
namespace {

constexpr char kPrompt[] =
    "Skriv in korrekt lösenord. Det krävs för att programmet ska kunna installeras.";

class InstDlgPasswordTest : public PreviewTest {};

TEST_F(InstDlgPasswordTest, AsksForThePassword)
{
    InstDlgPassword form(kPrompt, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Lösenord");
    EXPECT_EQ(Said(form.sTitle), "Lösenord");
    EXPECT_EQ(Said(form.sText), kPrompt);
    auto* caption = form.findChild<QLabel*>();
    ASSERT_NE(caption, nullptr);
    EXPECT_EQ(caption->text().remove('&'), "Lösenord:");
    EXPECT_EQ(caption->buddy(), form.tPassword);
    EXPECT_TRUE(form.tPassword->hasFocus());
}

TEST_F(InstDlgPasswordTest, ShowsAnAsteriskForEachLetter)
{
    session.project.DialogBoxData.CorrectPassword = "hemlig";
    InstDlgPassword form(kPrompt, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.tPassword->text(), "");
    Type(form, "tPassword", "åÄ1!");
    EXPECT_EQ(form.tPassword->displayText(), "****");
}

TEST_F(InstDlgPasswordTest, ShowsOnlyTheFirstLineOfItsText)
{
    InstDlgPassword form("Ett\r\nTvå", session, nullptr);
    EXPECT_EQ(Said(form.sText), "Ett");
}

TEST_F(InstDlgPasswordTest, ClosesByAnyButton)
{
    InstDlgPassword form(kPrompt, session, nullptr);
    ExpectEachButtonCloses(form, {"cmdBack", "cmdNext", "cmdCancel"});
}

TEST_F(InstDlgPasswordTest, LeavesEverythingAsItWas)
{
    session.project.DialogBoxData.CorrectPassword = "hemlig";
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "InstDlgPassword");
        Type(dialog, "tPassword", "gissning");
        Click(dialog, "cmdNext");
    });
    ShowInstDlgPassword(session, kPrompt, nullptr);
    EXPECT_EQ(session.project.DialogBoxData.CorrectPassword, "hemlig");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_TRUE(ask.shown.empty()) << "no password is checked";
}

TEST_F(InstDlgPasswordTest, ShowsATextOfAnyLengthWhole)
{
    for (const Text& prompt : {Text(), Text(200, 'W')}) {
        InstDlgPassword form(prompt, session, nullptr);
        ShowActive(form);
        ExpectReadable(*form.sText);
    }
}

TEST_F(InstDlgPasswordTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgPassword editor(session, nullptr);
    ShowActive(editor);
    editor.tDialogText->setPlainText("Lösenordet står på fodralet.");
    ShowPreviewOf(editor, "InstDlgPassword", [](QDialog& preview) {
        EXPECT_EQ(Said(static_cast<InstDlgPassword&>(preview).sText),
                  "Lösenordet står på fodralet.");
    });
}

TEST_F(InstDlgPasswordTest, LooksRight)
{
    InstDlgPassword form(kPrompt, session, nullptr);
    ShowActive(form);
    Type(form, "tPassword", "hemligt");
    SavePicture(form, "InstDlgPassword");
    SaveDarkPicture(form, "InstDlgPassword");
}

} // namespace
} // namespace quillon::test
