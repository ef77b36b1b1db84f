#include "filelist/forms/DlgIconX.h"

#include "filelist/list_builder.h"
#include "support/icon_maker.h"
#include "support/window_test.h"
#include "ui/controls/PictureView.h"

namespace quillon::test {
namespace {

class DlgIconXTest : public WindowTest {
protected:
    DlgIconXTest()
    {
        row = MakeRow("A.ICO", "%DESTDIR\\Bin", "c:\\d\\a.ico");
        row[Extension] = "ICO";
        row[IconFile] = "external";
        row[IconDocReader] = "Write";
        machine.files.Put("C:\\D\\A.ico", MakeIconFile({{16, Qt::red},
                                                        {256, QColor(40, 90, 200), true},
                                                        {48, Qt::darkGreen},
                                                        {32, QColor(200, 120, 0)}}));
    }

    FileListRow row;
};

TEST_F(DlgIconXTest, ShowsTheIconAndProposesNone)
{
    DlgIconX form(row, session, nullptr);
    EXPECT_TRUE(form.IconPicture->HasPicture());
    EXPECT_EQ(TextIn(form, "tDescription"), "");
    EXPECT_EQ(TextIn(form, "tCommandLine"), "");
    EXPECT_EQ(TextIn(form, "tWorkDir"), "%DESTDIR\\Bin");
    EXPECT_FALSE(form.cAddIcon->isChecked());
}

TEST_F(DlgIconXTest, TellsOfAnIconThatIsGone)
{
    machine.files.RemoveFile("C:\\D\\A.ico");
    ask.Expect(
        {BoxKind::Critical, "Fel", "Ikonen existerar inte på hårddisken vid angiven källsökväg!"});
    DlgIconX form(row, session, nullptr);
    EXPECT_FALSE(form.IconPicture->HasPicture());
    EXPECT_EQ(form.IconPicture->ShownNote(), "");
}

TEST_F(DlgIconXTest, SaysThatAFileHoldsNoIcon)
{
    machine.files.Put("C:\\D\\A.ico", "text");
    DlgIconX form(row, session, nullptr);
    EXPECT_FALSE(form.IconPicture->HasPicture());
    EXPECT_EQ(form.IconPicture->ShownNote(), "Filen innehåller ingen ikon som kan visas.");
}

TEST_F(DlgIconXTest, StoresTheCommandLineAndLeavesTheOtherColumns)
{
    DlgIconX form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tCommandLine", "\"%DESTDIR\\a.exe\" /b  ");
    EXPECT_TRUE(form.cAddIcon->isChecked());
    Click(form, "cmdOK");
    EXPECT_EQ(row[IconMarker], "Ikon");
    EXPECT_EQ(row[IconDesc], "A.ICO");
    EXPECT_EQ(row[IconPar], "\"%DESTDIR\\a.exe\" /b");
    EXPECT_EQ(row[IconWorkDir], "%DESTDIR\\Bin");
    EXPECT_EQ(row[IconFile], "external");
    EXPECT_EQ(row[IconDocReader], "Write");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgIconXTest, GoesBackToTheCommandLineThatIsNotRight)
{
    const FileListRow before = row;
    DlgIconX form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tCommandLine", "%DESTDIR\\a");
    ask.Expect({BoxKind::YesNo, "Kommandoraden", "", Answer::No});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tCommandLine->hasFocus());
    Type(form, "tCommandLine", "%DESTDIR\\a.exe /b");
    ask.Expect({BoxKind::YesNo, "Kommandoraden", "", Answer::Yes});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tCommandLine->hasFocus());
    EXPECT_EQ(row, before);
    ask.Expect({BoxKind::YesNo, "Kommandoraden", "", Answer::No});
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(row[IconPar], "%DESTDIR\\a.exe /b");
}

TEST_F(DlgIconXTest, ForgetsTheIconThatIsUnticked)
{
    row[IconMarker] = "IkonD";
    row[IconDesc] = "D";
    row[IconPar] = "a.exe";
    row[IconWorkDir] = "W";
    DlgIconX form(row, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cAddIcon->isChecked());
    Click(form, "cAddIcon");
    Click(form, "cmdOK");
    EXPECT_EQ(row[IconMarker] + row[IconDesc] + row[IconPar] + row[IconWorkDir], "");
    EXPECT_EQ(row[IconFile], "external");
    EXPECT_EQ(row[IconDocReader], "Write");
}

TEST_F(DlgIconXTest, TakesItsPlaceFromItsOptions)
{
    DlgIconX form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tCommandLine", "a.exe");
    OnNextDialog([](QDialog& options) {
        Click(options, "cIconOnProgramMenu");
        Click(options, "cmdOK");
    });
    Click(form, "mIconOptions");
    Click(form, "cmdOK");
    EXPECT_EQ(row[IconMarker], "IkonP");
}

TEST_F(DlgIconXTest, OpensTheHelpByItsKey)
{
    machine.files.Put("C:\\Quillon\\QN.HLP", "x");
    DlgIconX form(row, session, nullptr);
    ShowActive(form);
    QTest::keyClick(&form, Qt::Key_F1);
    ASSERT_EQ(machine.machine.started.size(), 1U);
}

TEST_F(DlgIconXTest, LooksRight)
{
    row[IconMarker] = "Ikon";
    row[IconDesc] = "Ordlistan";
    row[IconPar] = "\"%DESTDIR\\ordlista.exe\" /start";
    row[IconWorkDir] = "%DESTDIR";
    DlgIconX form(row, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDescription->hasFocus());
    SavePicture(form, "DlgIconX");
    SaveDarkPicture(form, "DlgIconX");
}

} // namespace
} // namespace quillon::test
