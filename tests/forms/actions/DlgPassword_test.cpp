#include "actions/forms/pages/DlgPassword.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

constexpr const char* kUsualText =
    "Skriv in korrekt lösenord. Det krävs för att programmet ska kunna installeras.";

class DlgPasswordTest : public WindowTest {
protected:
    section::DialogBoxData& data = session.project.DialogBoxData;
};

TEST_F(DlgPasswordTest, ShowsAndStoresThePassword)
{
    DlgPassword form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Lösenord");
    EXPECT_EQ(FromQt(form.tDialogText->toPlainText()), kUsualText);
    EXPECT_EQ(TextIn(form, "tPassword"), "");
    EXPECT_EQ(form.tPassword->maxLength(), 199);
    EXPECT_EQ(form.tPassword->echoMode(), QLineEdit::Normal) << "the author sees what is typed";
    form.tDialogText->setPlainText("Vad heter ordet?");
    Type(form, "tPassword", "Sesam Öppna dig! 'ö'");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(data.PasswordDialogText, "Vad heter ordet?");
    EXPECT_EQ(data.CorrectPassword, "Sesam Öppna dig! 'ö'");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgPasswordTest, ChangesNothingOnCancel)
{
    DlgPassword form(session, nullptr);
    ShowActive(form);
    form.tDialogText->setPlainText("Nytt");
    Type(form, "tPassword", "x");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.PasswordDialogText, kUsualText);
    EXPECT_EQ(data.CorrectPassword, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgPasswordTest, HoldsItsTextInOneLine)
{
    DlgPassword form(session, nullptr);
    ShowActive(form);
    form.tDialogText->selectAll();
    form.tDialogText->insertPlainText("Första\nandra");
    EXPECT_EQ(form.tDialogText->toPlainText(), "Första andra");
    form.tDialogText->setPlainText(QString(199, 'x'));
    form.tDialogText->moveCursor(QTextCursor::End);
    TypeKeys(*form.tDialogText, "y");
    QTest::keyClick(form.tDialogText, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(data.PasswordDialogText, Text(199, 'x'));
}

TEST_F(DlgPasswordTest, SaysWhenTheProjectFileKeepsAnotherPassword)
{
    DlgPassword form(session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.sPasswordNote->isVisible());
    Type(form, "tPassword", "'Sesam'");
    EXPECT_TRUE(form.sPasswordNote->isVisible());
    EXPECT_TRUE(
        form.sPasswordNote->text().startsWith("När projektet öppnas igen är lösenordet 'Sesam': "));
    QApplication::processEvents();
    SavePicture(form, "DlgPassword-citattecken");
    Click(form, "cmdOK");
    EXPECT_EQ(data.CorrectPassword, "'Sesam'") << "a note is no refusal";
    DlgPassword again(session, nullptr);
    ShowActive(again);
    EXPECT_TRUE(again.sPasswordNote->isVisible());
    Type(again, "tPassword", "Sesam");
    EXPECT_FALSE(again.sPasswordNote->isVisible());
}

TEST_F(DlgPasswordTest, LooksRight)
{
    data.CorrectPassword = "Sesam";
    DlgPassword form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDialogText->hasFocus());
    SavePicture(form, "DlgPassword");
    SaveDarkPicture(form, "DlgPassword");
}

} // namespace
} // namespace quillon::test
