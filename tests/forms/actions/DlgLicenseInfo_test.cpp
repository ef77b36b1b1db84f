#include "actions/forms/pages/DlgLicenseInfo.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgLicenseInfoTest : public WindowTest {
protected:
    section::DialogBoxData& data = session.project.DialogBoxData;
};

TEST_F(DlgLicenseInfoTest, ShowsAndStoresTheAgreement)
{
    data.LicenseText = "§ 1\r\nAvtal.";
    data.LicenseFootText = "Godkänner du avtalet?";
    const section::DialogBoxData before = data;
    DlgLicenseInfo form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Licensinformation");
    EXPECT_EQ(TextIn(form, "tDialogTitle"), "Licensinformation");
    EXPECT_EQ(form.tLicenseText->toPlainText(), "§ 1\nAvtal.");
    EXPECT_EQ(TextIn(form, "tFootText"), "Godkänner du avtalet?");
    EXPECT_FALSE(form.Accepted());
    Type(form, "tDialogTitle", "Licensavtal");
    form.tLicenseText->moveCursor(QTextCursor::End);
    TypeKeys(*form.tLicenseText, " Slut.");
    Type(form, "tFootText", "Ja?");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(data.LicenseTitle, "Licensavtal");
    EXPECT_EQ(data.LicenseText, "§ 1\r\nAvtal. Slut.");
    EXPECT_EQ(data.LicenseFootText, "Ja?");
    EXPECT_EQ(data.LicenseTitleRtf, before.LicenseTitleRtf);
    EXPECT_EQ(data.LicenseFootTextRtf, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgLicenseInfoTest, ChangesNothingOnCancel)
{
    DlgLicenseInfo form(session, nullptr);
    ShowActive(form);
    Type(form, "tDialogTitle", "Nytt");
    form.tLicenseText->setPlainText("Nytt");
    Type(form, "tFootText", "Nytt");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.LicenseTitle, "Licensinformation");
    EXPECT_EQ(data.LicenseText, "");
    EXPECT_EQ(data.LicenseFootText, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgLicenseInfoTest, TakesNoMoreThanTheProjectFileHolds)
{
    DlgLicenseInfo form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.tDialogTitle->maxLength(), 199);
    EXPECT_EQ(form.tFootText->maxLength(), 199);
    form.tLicenseText->setPlainText(QString(16383, 'x'));
    form.tLicenseText->moveCursor(QTextCursor::End);
    TypeKeys(*form.tLicenseText, "y");
    EXPECT_EQ(form.tLicenseText->toPlainText(), QString(16383, 'x'));
}

TEST_F(DlgLicenseInfoTest, LooksRight)
{
    data.LicenseText = "LICENSAVTAL\r\n\r\n1. Du får använda programmet på en dator i taget.\r\n"
                       "2. Du får göra en säkerhetskopia.";
    data.LicenseFootText = "Godkänner du villkoren i avtalet?";
    DlgLicenseInfo form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDialogTitle->hasFocus());
    SavePicture(form, "DlgLicenseInfo");
    SaveDarkPicture(form, "DlgLicenseInfo");
}

} // namespace
} // namespace quillon::test
