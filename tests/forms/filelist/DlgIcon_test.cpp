#include "filelist/forms/DlgIcon.h"

#include "filelist/forms/DlgIconOptions.h"
#include "filelist/list_builder.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgIconTest : public WindowTest {
protected:
    DlgIconTest()
    {
        row = MakeRow("Prog.exe", "%DESTDIR\\Bin", "c:\\d\\prog.exe");
        row[Extension] = "exe";
    }
    void GiveIcon(const Text& marker)
    {
        row[IconMarker] = marker;
        row[IconDesc] = "Programmet";
        row[IconPar] = "/a";
        row[IconWorkDir] = "%DESTDIR";
        row[IconFile] = "%DESTDIR\\p.ico";
        row[IconDocReader] = "WordPad";
    }

    FileListRow row;
};

TEST_F(DlgIconTest, ProposesAnIcon)
{
    DlgIcon form(row, session, nullptr);
    EXPECT_EQ(form.windowTitle(), "Ikon");
    EXPECT_EQ(form.sFilename->text(), "Prog.exe");
    EXPECT_EQ(TextIn(form, "tDescription"), "");
    EXPECT_EQ(TextIn(form, "tParameters"), "");
    EXPECT_EQ(TextIn(form, "tWorkDir"), "%DESTDIR\\Bin");
    EXPECT_EQ(TextIn(form, "tIconFile"), "");
    EXPECT_FALSE(form.cAddIcon->isChecked());
    EXPECT_EQ(form.ComboDocumentReader->currentText(), "<Ingen>");
    QStringList readers;
    for (int i = 0; i < form.ComboDocumentReader->count(); ++i)
        readers << form.ComboDocumentReader->itemText(i);
    EXPECT_EQ(readers, QStringList({"<Ingen>", "Notepad", "Winhelp", "WordPad", "Write"}));
}

TEST_F(DlgIconTest, ShowsTheIconThatTheRowHas)
{
    GiveIcon("IkonS");
    const FileListRow before = row;
    DlgIcon form(row, session, nullptr);
    EXPECT_EQ(TextIn(form, "tDescription"), "Programmet");
    EXPECT_EQ(TextIn(form, "tParameters"), "/a");
    EXPECT_EQ(TextIn(form, "tWorkDir"), "%DESTDIR");
    EXPECT_EQ(TextIn(form, "tIconFile"), "%DESTDIR\\p.ico");
    EXPECT_TRUE(form.cAddIcon->isChecked());
    EXPECT_EQ(form.ComboDocumentReader->currentText(), "WordPad");
    form.cmdOK->click();
    EXPECT_EQ(row, before);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgIconTest, KeepsAReaderThatItDoesNotOffer)
{
    GiveIcon("Ikon");
    row[IconDocReader] = "Läsaren";
    DlgIcon form(row, session, nullptr);
    form.cmdOK->click();
    EXPECT_EQ(row[IconDocReader], "Läsaren");
}

TEST_F(DlgIconTest, WantsAnIconOnceANameOrAParameterIsTyped)
{
    for (const char* field : {"tDescription", "tParameters", "tWorkDir", "tIconFile"}) {
        DlgIcon form(row, session, nullptr);
        ShowActive(form);
        Type(form, field, "a");
        const bool wants = field == Text("tDescription") || field == Text("tParameters");
        EXPECT_EQ(form.cAddIcon->isChecked(), wants) << field;
    }
}

TEST_F(DlgIconTest, StoresWhatWasTyped)
{
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tParameters", "/läs \"%DESTDIR\\a.txt\"");
    Type(form, "tWorkDir", "%DE\\Sub");
    Type(form, "tIconFile", "%DEa.ico");
    form.ComboDocumentReader->setCurrentText("Write");
    Click(form, "cmdOK");
    EXPECT_EQ(row[IconMarker], "Ikon");
    EXPECT_EQ(row[IconDesc], "Prog.exe") << "an icon needs a name";
    EXPECT_EQ(row[IconPar], "/läs \"%DESTDIR\\a.txt\"");
    EXPECT_EQ(row[IconWorkDir], "%DESTDIR\\Sub");
    EXPECT_EQ(row[IconFile], "%DESTDIR\\a.ico");
    EXPECT_EQ(row[IconDocReader], "Write");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgIconTest, ForgetsTheIconThatIsUnticked)
{
    GiveIcon("IkonD");
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    Click(form, "cAddIcon");
    Click(form, "cmdOK");
    for (const Column column :
         {IconMarker, IconDesc, IconPar, IconWorkDir, IconFile, IconDocReader})
        EXPECT_EQ(row[column], "") << column;
    EXPECT_EQ(row[Destination], "%DESTDIR\\Bin");
}

TEST_F(DlgIconTest, ChangesNothingOnCancel)
{
    GiveIcon("Ikon");
    const FileListRow before = row;
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tDescription", "x");
    OnNextDialog([](QDialog& options) {
        Click(options, "cIconOnDesktop");
        Click(options, "cmdOK");
    });
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    Click(form, "mIconOptions");
    // Kept: any OK marks the project.
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(row, before);
}

TEST_F(DlgIconTest, TakesOnePlaceFromItsOptions)
{
    GiveIcon("IkonP");
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    OnNextDialog([](QDialog& options) {
        EXPECT_FALSE(Find<QCheckBox>(options, "cIconOnDesktop").isChecked());
        EXPECT_TRUE(Find<QCheckBox>(options, "cIconOnProgramMenu").isChecked());
        Click(options, "cIconOnDesktop");
        EXPECT_FALSE(Find<QCheckBox>(options, "cIconOnProgramMenu").isChecked());
        Click(options, "cmdOK");
    });
    Click(form, "mIconOptions");
    OnNextDialog([](QDialog& options) {
        EXPECT_TRUE(Find<QCheckBox>(options, "cIconOnDesktop").isChecked());
        Click(options, "cIconOnStartMenu");
        Click(options, "cmdCancel");
    });
    Click(form, "mIconOptions");
    Click(form, "cmdOK");
    EXPECT_EQ(row[IconMarker], "IkonD");
}

TEST_F(DlgIconTest, TellsOfAWrongIconFileWhenTheFieldIsLeft)
{
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    Type(form, "tIconFile", "c:\\a.gif");
    EXPECT_TRUE(ask.shown.empty());
    ask.Expect({BoxKind::Inform, "Viktig Information"});
    ask.Expect({BoxKind::Warn, "Otillåten filtyp för ikon"});
    form.tDescription->setFocus();
    EXPECT_EQ(ask.shown.size(), 2U);
    EXPECT_EQ(TextIn(form, "tIconFile"), "c:\\a.gif");
}

TEST_F(DlgIconTest, TellsOfAWrongIconFileOnceOnOkAndStoresIt)
{
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    form.cAddIcon->setChecked(true);
    Type(form, "tIconFile", "%DEa.jpg");
    ask.Expect({BoxKind::Warn, "Otillåten filtyp för ikon"});
    QTest::keyClick(form.tIconFile, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(row[IconFile], "%DESTDIR\\a.jpg");
}

TEST_F(DlgIconTest, StaysOpenOverASemicolon)
{
    const FileListRow before = row;
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    for (const auto& [name, accessibleName] :
         {std::pair{"tDescription", "Beskrivning"}, std::pair{"tWorkDir", "Starta i"},
          std::pair{"tParameters", "Parametrar"}, std::pair{"tIconFile", "Extern ikonfil"}}) {
        Type(form, name, "a;b");
        ask.Expect({BoxKind::Critical, "Ogiltiga tecken hittade",
                    Text("Fältet '") + accessibleName +
                        "' innehåller ogiltiga tecken! Semikolon kan inte användas, eftersom det "
                        "skiljer fälten i projektfilen åt."});
        Click(form, "cmdOK");
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(Find<QLineEdit>(form, name).hasFocus()) << name;
        Type(form, name, "ab");
    }
    EXPECT_EQ(row, before);
}

TEST_F(DlgIconTest, LooksRight)
{
    GiveIcon("Ikon");
    DlgIcon form(row, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.tDescription->hasFocus());
    SavePicture(form, "DlgIcon");
    SaveDarkPicture(form, "DlgIcon");
}

class DlgIconOptionsTest : public WindowTest {};

TEST_F(DlgIconOptionsTest, LetsOnePlaceAtMostBeChosen)
{
    const char* const boxes[] = {"cIconOnDesktop", "cIconOnStartMenu", "cIconOnProgramMenu"};
    const IconPlaces places[] = {
        {.onDesktop = true}, {.onStartMenu = true}, {.onProgramMenu = true}};
    for (const IconPlaces& before : places)
        for (std::size_t ticked = 0; ticked < 3; ++ticked) {
            DlgIconOptions form(before, nullptr);
            ShowActive(form);
            if (!Find<QCheckBox>(form, boxes[ticked]).isChecked())
                Click(form, boxes[ticked]);
            Click(form, "cmdOK");
            EXPECT_EQ(form.Places, places[ticked]);
        }
    DlgIconOptions form({.onDesktop = true}, nullptr);
    ShowActive(form);
    Click(form, "cIconOnDesktop");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Places, IconPlaces());
}

TEST_F(DlgIconOptionsTest, LooksRight)
{
    DlgIconOptions form({.onDesktop = true}, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.cIconOnDesktop->text(), "&Placera även ikon på skrivbordet");
    SavePicture(form, "DlgIconOptions");
    SaveDarkPicture(form, "DlgIconOptions");
}

} // namespace
} // namespace quillon::test
