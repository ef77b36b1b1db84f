#include "filelist/forms/DlgRegisterFont.h"

#include "filelist/list_builder.h"
#include "support/window_test.h"
#include "ui/controls/PathLabel.h"

namespace quillon::test {
namespace {

class DlgRegisterFontTest : public WindowTest {
protected:
    DlgRegisterFontTest()
    {
        row = MakeRow("Blad.ttf", "%FONTDIR", "c:\\d\\blad.ttf");
        row[Extension] = "ttf";
        row[CopyOptions] = "DA";
    }

    FileListRow row;
    Integer& never = session.project.FontOptions.NeverReplaceExistingFonts;
};

TEST_F(DlgRegisterFontTest, ProposesNoRegistration)
{
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Registrera teckensnitt");
    EXPECT_EQ(form.sFontFileName->text(), "Blad.ttf");
    EXPECT_EQ(TextIn(form, "tFontDesc"), "");
    EXPECT_EQ(form.tFontDesc->accessibleName(), "Typsnittsnamn");
    EXPECT_FALSE(form.cRegisterFont->isChecked());
    EXPECT_EQ(form.cRegisterFont->text(), "&Registrera detta teckensnitt efter installation");
    EXPECT_TRUE(form.cNeverReplaceExistingFonts->isChecked()) << "so in a new project";
    EXPECT_EQ(form.cNeverReplaceExistingFonts->text(),
              "&Om ett teckensnitt redan existerar ska den aldrig ersättas");
    EXPECT_TRUE(form.tFontDesc->hasFocus());
}

TEST_F(DlgRegisterFontTest, ShowsTheRegistrationThatTheRowHas)
{
    row[CopyOptions] = "DWF";
    row[IconDesc] = "Blad Fet";
    never = 0;
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tFontDesc"), "Blad Fet");
    EXPECT_TRUE(form.cRegisterFont->isChecked());
    EXPECT_FALSE(form.cNeverReplaceExistingFonts->isChecked());
    SavePicture(form, "DlgRegisterFont");
    SaveDarkPicture(form, "DlgRegisterFont");
    Click(form, "cmdOK");
    EXPECT_EQ(row[CopyOptions], "DWF");
    EXPECT_EQ(row[IconDesc], "Blad Fet");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgRegisterFontTest, RegistersOnceANameIsTyped)
{
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tFontDesc", "B");
    EXPECT_TRUE(form.cRegisterFont->isChecked());
    Click(form, "cmdOK");
    EXPECT_EQ(row[CopyOptions], "DWFN");
    EXPECT_EQ(row[IconDesc], "B");
}

TEST_F(DlgRegisterFontTest, KeepsOneFlagForTheWholeProject)
{
    for (const Integer value : {Integer(1), Integer(-1), Integer(2)}) {
        never = value;
        DlgRegisterFont form(row, session, nullptr);
        ShowActive(form);
        EXPECT_TRUE(form.cNeverReplaceExistingFonts->isChecked()) << value;
        Click(form, "cNeverReplaceExistingFonts");
        Click(form, "cmdOK");
        EXPECT_EQ(never, 0) << "also where no font is registered";
    }
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tFontDesc", "Blad");
    Click(form, "cNeverReplaceExistingFonts");
    Click(form, "cmdOK");
    EXPECT_EQ(never, 1);
    EXPECT_EQ(row[CopyOptions], "DWFN");
}

TEST_F(DlgRegisterFontTest, EndsTheRegistrationWithoutAName)
{
    row[CopyOptions] = "DWFN";
    row[IconDesc] = "Blad";
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tFontDesc", "");
    EXPECT_TRUE(form.cRegisterFont->isChecked());
    Click(form, "cmdOK");
    EXPECT_FALSE(form.cRegisterFont->isChecked());
    EXPECT_EQ(row[CopyOptions], "D");
    EXPECT_EQ(row[IconDesc], "");
}

TEST_F(DlgRegisterFontTest, EndsTheRegistrationThatIsUnticked)
{
    row[CopyOptions] = "DWFN";
    row[IconDesc] = "Blad";
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    Click(form, "cRegisterFont");
    Click(form, "cmdOK");
    EXPECT_EQ(row[CopyOptions], "D");
    EXPECT_EQ(row[IconDesc], "");
}

TEST_F(DlgRegisterFontTest, ChangesNothingOnCancel)
{
    const FileListRow before = row;
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tFontDesc", "Blad");
    Click(form, "cNeverReplaceExistingFonts");
    Click(form, "cmdCancel");
    EXPECT_EQ(row, before);
    EXPECT_EQ(never, 1);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgRegisterFontTest, StaysOpenOverASemicolon)
{
    const FileListRow before = row;
    DlgRegisterFont form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tFontDesc", "a;b");
    ask.Expect({BoxKind::Critical, "Ogiltiga tecken hittade"});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tFontDesc->hasFocus());
    EXPECT_EQ(row, before);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    Click(form, "cRegisterFont");
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible()) << "the name is not stored";
    EXPECT_EQ(row[IconDesc], "");
}

} // namespace
} // namespace quillon::test
