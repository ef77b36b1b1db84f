#include "importers/forms/DlgImportVBNetProject.h"

#include "forms/import_form_test.h"
#include "ui/controls/PathLabel.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

class DlgImportVBNetProjectTest : public ImportFormTest {
protected:
    DlgImportVBNetProjectTest()
    {
        machine.files.Put("C:\\Proj\\Kund.vbproj", "<References>\r\n");
        machine.files.Put("C:\\Proj\\bin\\Kund.exe", "MZ");
        machine.files.Put("C:\\Proj\\bin\\Lib.dll", "MZ");
    }
};

TEST_F(DlgImportVBNetProjectTest, TellsWhetherTheFrameworkIsTested)
{
    DlgImportVBNetProject form(Context(), nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cUseDepFile->isChecked());
    EXPECT_EQ(form.labNETtestStatus->text(), "Testa inte att .NET Framework är installerad");
    Click(form, "CmdTestNETFramework");
    EXPECT_THAT(captions, ElementsAre("NET"));
    EXPECT_EQ(form.labNETtestStatus->text(), "Testa att .NET Framework är installerad");
}

TEST_F(DlgImportVBNetProjectTest, BeginsTheChoiceOfTheProgramWhereItIsBuilt)
{
    LastFolders& folders = session.Settings.Directories;
    folders.LastVB6ProjDir = "C:\\VB6";
    folders.LastVBNETProjDir = "C:\\NET";
    DlgImportVBNetProject form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectEXE", "");
    EXPECT_EQ(ask.questions[0].folder, "C:\\NET");
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbproj");
    EXPECT_EQ(ask.questions[1].folder, "C:\\NET");
    EXPECT_EQ(folders.LastVBNETProjDir, "C:\\Proj");
    EXPECT_EQ(folders.LastVB6ProjDir, "C:\\VB6");
    EXPECT_EQ(ask.questions[1].filter,
              "Visual Basic projekt (*.vbproj)|*.vbproj|C#-projekt (*.csproj)|*.csproj");
    EXPECT_EQ(ask.questions[1].fileName, "*.vbproj");
    Choose(form, "cmdSelectEXE", "C:\\Proj\\bin\\Kund.exe");
    EXPECT_EQ(ask.questions[2].folder, "C:\\Proj\\bin");
    EXPECT_EQ(form.sEXEfile->text(), "C:\\Proj\\bin\\Kund.exe");
}

TEST_F(DlgImportVBNetProjectTest, ImportsAndAlwaysAsksForTheIcon)
{
    DlgImportVBNetProject form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbproj");
    Choose(form, "cmdSelectEXE", "C:\\Proj\\bin\\Kund.exe");
    Expect(BoxKind::Inform, "Importen är klar");
    Click(form, "cmdImport");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.project.Files.rows.size(), 2U);
    EXPECT_THAT(captions, ElementsAre("Välj destinationskatalog för Kund.exe",
                                      "Skriv in ikon-uppgifter för Kund.exe"));
}

TEST_F(DlgImportVBNetProjectTest, StaysOpenForAProjectOfAnotherKind)
{
    machine.files.Put("C:\\Proj\\New.vbproj", "<Project Sdk=\"Microsoft.NET.Sdk\">\n");
    DlgImportVBNetProject form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "C:\\Proj\\New.vbproj");
    Choose(form, "cmdSelectEXE", "C:\\Proj\\bin\\Kund.exe");
    Expect(BoxKind::Critical, "Fel inträffade");
    Click(form, "cmdImport");
    EXPECT_TRUE(form.isVisible());
}

// The dialog is hidden after its questions, and shown again for many libraries.
TEST_F(DlgImportVBNetProjectTest, ShowsItsProgressAmongManyLibrariesAndStopsThere)
{
    class WatchingAsk : public ScriptedAsk {
    public:
        using ScriptedAsk::ScriptedAsk;
        void ProcessEvents() override
        {
            if (onEvents)
                onEvents();
        }
        std::function<void()> onEvents;
    };
    for (int i = 10; i < 40; ++i)
        machine.files.Put("C:\\Proj\\bin\\lib" + std::to_string(i) + ".dll", "MZ");
    WatchingAsk user{{{BoxKind::Inform, "Importen är avbruten"}}};
    Session other = NewSession(machine.host, user, "C:\\Quillon");
    const ImportContext context{other, window, Context().forms};
    DlgImportVBNetProject form(context, nullptr);
    ShowActive(form);
    user.choices = {{{"C:\\Proj\\Kund.vbproj"}}, {{"C:\\Proj\\bin\\Kund.exe"}}};
    Click(form, "cmdSelectVBP");
    Click(form, "cmdSelectEXE");
    bool isSeen = false;
    user.onEvents = [&] {
        if (isSeen || form.sImportStatus->text() != "Adderar lib12.dll")
            return;
        isSeen = true;
        EXPECT_TRUE(form.isVisible());
        Click(form, "cmdClose");
    };
    Click(form, "cmdImport");
    EXPECT_TRUE(isSeen);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(other.project.Files.rows.size(), 4U) << "Kund.exe, Lib.dll, lib10.dll, lib11.dll";
}

TEST_F(DlgImportVBNetProjectTest, LooksRight)
{
    DlgImportVBNetProject form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbproj");
    SavePicture(form, "DlgImportVBNetProject");
    SaveDarkPicture(form, "DlgImportVBNetProject");
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdClose"); });
    ShowImportVBNetProject(Context(), nullptr);
}

} // namespace
} // namespace quillon::test
