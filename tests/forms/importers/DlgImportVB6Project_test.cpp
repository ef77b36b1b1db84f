#include "importers/forms/DlgImportVB6Project.h"

#include "forms/import_form_test.h"
#include "shell/settings_file.h"
#include "ui/controls/PathLabel.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

class DlgImportVB6ProjectTest : public ImportFormTest {
protected:
    DlgImportVB6ProjectTest()
    {
        machine.machine.registry[{RegistryRoot::ClassesRoot,
                                  "VisualBasic.Project\\shell\\open\\command", ""}] =
            "\"C:\\VB\\VB6.EXE\" \"%1\"";
    }
};

TEST_F(DlgImportVB6ProjectTest, OpensWithItsDefaults)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    EXPECT_EQ(form.sVBPfile->text(), "");
    EXPECT_EQ(form.sEXEfile->text(), "");
    EXPECT_EQ(TextIn(form, "tVBDirectory"), "C:\\VB");
    for (const QCheckBox* box : {form.cImportDAO35, form.cImportDAO36, form.cImportADO,
                                 form.cImportRDO, form.cInstallMDA, form.cImportActiveXSysFiles})
        EXPECT_FALSE(box->isChecked()) << FromQt(box->objectName());
    EXPECT_TRUE(form.cUseDepFile->isChecked());
    EXPECT_TRUE(form.cAddIcon->isChecked());
}

TEST_F(DlgImportVB6ProjectTest, ScansTheProjectThatIsChosen)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Click(form, "cImportDAO36");
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
    EXPECT_EQ(form.sVBPfile->text(), "C:\\Proj\\Kund.vbp");
    EXPECT_TRUE(form.cImportActiveXSysFiles->isChecked());
    EXPECT_TRUE(form.cImportDAO36->isChecked()) << "what was ticked stays";
    EXPECT_EQ(ask.questions[0].title, "Välj Visual Basic projekt");
    EXPECT_EQ(ask.questions[0].filter, "Visual Basic projekt (*.vbp)|*.vbp");
    EXPECT_EQ(ask.questions[0].fileName, "*.vbp");
    Choose(form, "cmdSelectVBP", "");
    EXPECT_EQ(form.sVBPfile->text(), "C:\\Proj\\Kund.vbp") << "a cancelled choice changes nothing";
}

TEST_F(DlgImportVB6ProjectTest, OpensItsChoicesInTheFolderOfTheSettings)
{
    LastFolders& folders = session.Settings.Directories;
    folders.LastVB6ProjDir = "C:\\Källor\\VB6";
    folders.LastVBNETProjDir = "C:\\Källor\\NET";
    {
        DlgImportVB6Project form(Context(), nullptr);
        ShowActive(form);
        Choose(form, "cmdSelectVBP", "");
        Choose(form, "cmdSelectEXE", "");
        EXPECT_EQ(ask.questions[0].folder, "C:\\Källor\\VB6");
        EXPECT_EQ(ask.questions[1].folder, "C:\\Källor\\VB6");
        Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
        Choose(form, "cmdSelectEXE", "C:\\Bin\\Kund.exe");
        EXPECT_EQ(ask.questions[3].folder, "C:\\Proj");
    }
    EXPECT_EQ(folders.LastVB6ProjDir, "C:\\Proj") << "that of the project";
    EXPECT_EQ(folders.LastVBNETProjDir, "C:\\Källor\\NET");
    WriteDataToIniFile(session);
    Session next = NewSession(machine.host, ask, "C:\\Quillon");
    ReadDataFromIniFile(next);
    EXPECT_EQ(next.Settings.Directories.LastVB6ProjDir, "C:\\Proj") << "at the next start";
    EXPECT_EQ(next.Settings.Directories.LastVBNETProjDir, "C:\\Källor\\NET");
}

TEST_F(DlgImportVB6ProjectTest, OpensItsChoicesInMyDocumentsOnANewMachine)
{
    ReadDataFromIniFile(session);
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "");
    EXPECT_EQ(ask.questions[0].folder, "C:\\Mina dokument");
}

TEST_F(DlgImportVB6ProjectTest, AsksForTheProgram)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectEXE", "C:\\Proj\\Kund.exe");
    EXPECT_EQ(form.sEXEfile->text(), "C:\\Proj\\Kund.exe");
    EXPECT_EQ(ask.questions[0].title, "Välj programfil");
    EXPECT_EQ(ask.questions[0].filter, "Programfiler (*.exe)|*.exe");
    EXPECT_EQ(ask.questions[0].fileName, "*.exe");
}

TEST_F(DlgImportVB6ProjectTest, ImportsAndCloses)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
    Choose(form, "cmdSelectEXE", "C:\\Proj\\Kund.exe");
    Expect(BoxKind::Inform, "Importen är klar");
    Click(form, "cmdImport");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.project.Files.rows.size(), 10U);
    EXPECT_THAT(captions, ElementsAre("Välj destinationskatalog för Kund.exe",
                                      "Skriv in ikon-uppgifter för Kund.exe"));
    EXPECT_THAT(window.calls, ElementsAre("status", "status"));
    ASSERT_TRUE(form.Result());
    EXPECT_EQ(form.Result()->places.size(), 10U);
}

TEST_F(DlgImportVB6ProjectTest, HandsOverWhatIsTicked)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectEXE", "C:\\Proj\\Kund.exe");
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
    for (const char* const box : {"cImportADO", "cImportActiveXSysFiles", "cAddIcon"})
        Click(form, box);
    Expect(BoxKind::YesNo, "Microsoft Data Access");
    Expect(BoxKind::Critical, "Fel"); // the package that was asked for is not there
    Expect(BoxKind::Inform, "Importen är klar");
    Click(form, "cmdImport");
    EXPECT_THAT(captions, ElementsAre("Välj destinationskatalog för Kund.exe"));
    EXPECT_EQ(session.project.Files.rows.size(), 12U) << "the walk ticks MFC again";
}

TEST_F(DlgImportVB6ProjectTest, StaysOpenWhereACheckRefuses)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Expect(BoxKind::Inform, "Info");
    Click(form, "cmdImport");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.cmdSelectVBP->isEnabled());
    EXPECT_EQ(form.cmdClose->text(), "S&täng");
    EXPECT_FALSE(form.Result());
}

TEST_F(DlgImportVB6ProjectTest, StopsInTheMidstOfAnImport)
{
    class StoppingAsk : public ScriptedAsk {
    public:
        using ScriptedAsk::ScriptedAsk;
        void ProcessEvents() override
        {
            if (++yields == 3)
                onThird();
        }
        std::function<void()> onThird;
        int yields = 0;
    };
    StoppingAsk user{{{BoxKind::Inform, "Importen är avbruten"}}};
    Session other = NewSession(machine.host, user, "C:\\Quillon");
    const ImportContext context{other, window, Context().forms};
    DlgImportVB6Project form(context, nullptr);
    ShowActive(form);
    user.choices = {{{"C:\\Proj\\Kund.vbp"}}, {{"C:\\Proj\\Kund.exe"}}};
    Click(form, "cmdSelectVBP");
    Click(form, "cmdSelectEXE");
    user.onThird = [&] {
        EXPECT_EQ(form.cmdClose->text(), "S&toppa");
        EXPECT_FALSE(form.cmdImport->isEnabled());
        EXPECT_EQ(form.sImportStatus->text(), "Adderar OLEPRO32.dll");
        Click(form, "cmdClose");
        EXPECT_TRUE(form.isVisible());
    };
    Click(form, "cmdImport");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(other.project.Files.rows.size(), 2U) << "what was added so far stays";
    ASSERT_TRUE(form.Result());
    EXPECT_EQ(form.Result()->end, ImportEnd::Stopped);
}

TEST_F(DlgImportVB6ProjectTest, OpensTheDetailsOfThePackage)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Click(form, "cmdMDADetails");
    EXPECT_THAT(captions, ElementsAre("MDA"));
}

TEST_F(DlgImportVB6ProjectTest, ShowsTheListAnewBehindAnImportAlone)
{
    OnNextDialog([](QDialog& form) { Click(form, "cmdClose"); });
    ShowImportVB6Project(Context(), nullptr);
    EXPECT_TRUE(window.calls.empty());
    ask.choices = {{{"C:\\Proj\\Kund.vbp"}}, {{"C:\\Proj\\Kund.exe"}}};
    Expect(BoxKind::Inform, "Importen är klar");
    OnNextDialog([](QDialog& form) {
        Click(form, "cmdSelectVBP");
        Click(form, "cmdSelectEXE");
        Click(form, "cmdImport");
    });
    ShowImportVB6Project(Context(), nullptr);
    EXPECT_THAT(window.calls, ElementsAre("status", "status", "list"));
}

TEST_F(DlgImportVB6ProjectTest, ExplainsEachChoiceInItsHelp)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    const std::vector<HelpTopic> topics = HelpTopicsOf(form);
    std::vector<Text> explained;
    for (const HelpTopic& topic : topics)
        explained.push_back(topic.caption);
    EXPECT_THAT(explained,
                ElementsAre("Importera Visual Basic 6.0 projekt", "Projektfil (.VBP)",
                            "Programfil (.EXE)", "Visual Basic 6.0 katalog", "DAO 3.5 och Jet 3.5",
                            "DAO 3.6 och Jet 4.0", "ADO-datakontroll", "RDO-datakontroll",
                            "Data Access (MDAC)", "Detaljer om Data Access",
                            "Mfc42.dll och Msvcrt.dll", "Följ DEP-filer för ActiveX",
                            "Lägg till ikon för programmet"));
    for (const bool byKey : {true, false}) {
        bool isShown = false;
        OnNextDialog([&](QDialog& help) {
            isShown = true;
            EXPECT_EQ(help.objectName(), "DlgFormHelp");
            const QString text = Find<QTextEdit>(help, "tHelp").toPlainText();
            for (const HelpTopic& topic : topics)
                EXPECT_TRUE(text.contains(ToQt(topic.caption + "\n" + topic.text)))
                    << topic.caption;
            EXPECT_EQ(Find<QTextEdit>(help, "tHelp").verticalScrollBar()->value(), 0);
            SavePicture(help, "DlgFormHelp");
            Click(help, "cmdOK");
        });
        if (byKey)
            QTest::keyClick(&form, Qt::Key_F1);
        else
            Click(form, "CmdHelp");
        EXPECT_TRUE(isShown) << byKey;
    }
    EXPECT_EQ(form.cAddIcon->whatsThis(), form.cAddIcon->toolTip());
}

TEST_F(DlgImportVB6ProjectTest, ShowsWhatItHasNotAddedBehindTheImport)
{
    machine.files.RemoveFile("C:\\WINDOWS\\SYSTEM32\\msvbvm60.dll");
    machine.files.Put("C:\\Proj\\Kund.vbp", "Object={1}; SHDOCVW.DLL\r\n");
    ask.choices = {{{"C:\\Proj\\Kund.vbp"}}, {{"C:\\Proj\\Kund.exe"}}};
    Expect(BoxKind::Critical, "Kan ej addera en fil");
    Expect(BoxKind::Inform, "Importen är klar");
    std::vector<Text> rows;
    OnNextDialog([&](QDialog& form) {
        Click(form, "cmdSelectVBP");
        Click(form, "cmdSelectEXE");
        OnNextDialog([&](QDialog& list) {
            EXPECT_EQ(list.objectName(), "DlgNotAddedFiles");
            auto& files = Find<QTreeWidget>(list, "ListOfFiles");
            for (int i = 0; i < files.topLevelItemCount(); ++i)
                rows.push_back(
                    FromQt(files.topLevelItem(i)->text(0) + ": " + files.topLevelItem(i)->text(1)));
            SavePicture(list, "DlgNotAddedFiles");
            Click(list, "cmdOK");
        });
        Click(form, "cmdImport");
    });
    ShowImportVB6Project(Context(), nullptr);
    EXPECT_THAT(rows, ElementsAre("MSVBVM60.dll: finns inte i systemkatalogen"))
        << "and nothing of what no setup needs";
    EXPECT_THAT(window.calls, ElementsAre("status", "status", "list"));
}

TEST_F(DlgImportVB6ProjectTest, LooksRight)
{
    DlgImportVB6Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
    QApplication::processEvents();
    SavePicture(form, "DlgImportVB6Project");
    SaveDarkPicture(form, "DlgImportVB6Project");
}

} // namespace
} // namespace quillon::test
