#include "actions/forms/pages/DlgLicenseInfoRtf.h"

#include "support/window_test.h"
#include "ui/controls/PathLabel.h"

namespace quillon::test {
namespace {

constexpr const char* kDocument = "D:\\Avtal\\licens.rtf";

class DlgLicenseInfoRtfTest : public WindowTest {
protected:
    DlgLicenseInfoRtfTest() { machine.files.Put(kDocument, "{\\rtf1 Avtal}"); }

    static Text ShownPath(const DlgLicenseInfoRtf& form)
    {
        return FromQt(form.labRtfFilename->text());
    }

    section::DialogBoxData& data = session.project.DialogBoxData;
};

TEST_F(DlgLicenseInfoRtfTest, ShowsAndStoresTheAgreement)
{
    data.LicenseFootTextRtf = "Godkänner du?";
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Licensinformation (RTF)");
    EXPECT_EQ(TextIn(form, "tDialogTitle"), "Licensinformation");
    EXPECT_EQ(form.tDialogTitle->maxLength(), 199);
    EXPECT_EQ(TextIn(form, "tFootText"), "Godkänner du?");
    EXPECT_EQ(form.tFootText->maxLength(), 199);
    EXPECT_EQ(ShownPath(form), "");
    EXPECT_FALSE(form.Accepted());
    Type(form, "tDialogTitle", "Licensavtal");
    Type(form, "tFootText", "Ja?");
    ask.choices = {{{kDocument}}};
    Click(form, "CmdSelectRtfFile");
    EXPECT_EQ(data.LicenseFilenameRtf, "") << "not before OK";
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(data.LicenseTitleRtf, "Licensavtal");
    EXPECT_EQ(data.LicenseFootTextRtf, "Ja?");
    EXPECT_EQ(data.LicenseFilenameRtf, kDocument);
    EXPECT_EQ(data.LicenseTitle, "Licensinformation");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgLicenseInfoRtfTest, ChangesNothingOnCancel)
{
    data.LicenseFilenameRtf = kDocument;
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    Type(form, "tDialogTitle", "Nytt");
    Type(form, "tFootText", "Nytt");
    Click(form, "CmdDel");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.LicenseTitleRtf, "Licensinformation");
    EXPECT_EQ(data.LicenseFootTextRtf, "");
    EXPECT_EQ(data.LicenseFilenameRtf, kDocument);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgLicenseInfoRtfTest, RemembersTheFolderOfTheDocument)
{
    session.Settings.Directories.LastRtfLicenseFileDir = "C:\\Mina dokument";
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{kDocument}}, {}};
    Click(form, "CmdSelectRtfFile");
    EXPECT_EQ(ask.questions.at(0).title, "Välj RTF-fil");
    EXPECT_EQ(ask.questions.at(0).folder, "C:\\Mina dokument");
    EXPECT_EQ(session.Settings.Directories.LastRtfLicenseFileDir, "D:\\Avtal");
    EXPECT_EQ(ShownPath(form), kDocument);
    EXPECT_EQ(form.labRtfFilename->toolTip(), kDocument);
    Click(form, "CmdSelectRtfFile");
    EXPECT_EQ(ask.questions.at(1).folder, "D:\\Avtal");
    EXPECT_EQ(ShownPath(form), kDocument) << "a cancelled choice";
}

TEST_F(DlgLicenseInfoRtfTest, OpensTheDocumentThatItShows)
{
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.CmdOpenRtfFile->isEnabled());
    ask.choices = {{{kDocument}}};
    Click(form, "CmdSelectRtfFile");
    Click(form, "CmdOpenRtfFile");
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started[0].first, kDocument);
    machine.machine.startFailure = 53;
    ask.Expect({BoxKind::Critical, "Kan ej öppna", "Kan inte öppna RTF-filen!"});
    Click(form, "CmdOpenRtfFile");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(DlgLicenseInfoRtfTest, TakesTheDocumentAway)
{
    data.LicenseFilenameRtf = kDocument;
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.sRtfNote->isVisible());
    Click(form, "CmdDel");
    EXPECT_EQ(ShownPath(form), "");
    EXPECT_FALSE(form.CmdDel->isEnabled());
    EXPECT_FALSE(form.CmdOpenRtfFile->isEnabled());
    EXPECT_EQ(form.sRtfNote->text(), "Ingen RTF-fil är vald.");
    EXPECT_TRUE(form.sRtfNote->isVisible());
    Click(form, "cmdOK");
    EXPECT_EQ(data.LicenseFilenameRtf, "");
}

TEST_F(DlgLicenseInfoRtfTest, SaysThatTheDocumentIsMissing)
{
    data.LicenseFilenameRtf = "D:\\borta.rtf";
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(ShownPath(form), "D:\\borta.rtf");
    EXPECT_EQ(form.sRtfNote->text(), "Filen finns inte.");
    EXPECT_TRUE(form.sRtfNote->isVisible());
    SavePicture(form, "DlgLicenseInfoRtf-saknad-fil");
    Click(form, "cmdOK");
    EXPECT_EQ(data.LicenseFilenameRtf, "D:\\borta.rtf");
}

TEST_F(DlgLicenseInfoRtfTest, LooksRight)
{
    data.LicenseFilenameRtf = kDocument;
    data.LicenseFootTextRtf = "Godkänner du villkoren i avtalet?";
    DlgLicenseInfoRtf form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDialogTitle->hasFocus());
    SavePicture(form, "DlgLicenseInfoRtf");
    SaveDarkPicture(form, "DlgLicenseInfoRtf");
}

} // namespace
} // namespace quillon::test
