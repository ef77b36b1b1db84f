#include "importers/forms/DlgImportFolder.h"

#include "forms/import_form_test.h"
#include "support/linked_program.h"
#include "ui/controls/PathLabel.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

class DlgImportFolderTest : public ImportFormTest {
protected:
    DlgImportFolderTest()
    {
        PutProgram("Kund.exe", {.imports = {"MSVCP140.dll"}, .clrVersion = "v1.1.4322"});
        PutProgram("Tool.exe", {.is64Bit = true});
        machine.files.Put("C:\\Out\\Kund\\sv\\text.txt", "x");
        machine.files.Put("C:\\Out\\Kund\\Kund.pdb", "x");
    }

    void PutProgram(const Text& name, const LinkedProgramParts& parts)
    {
        machine.files.Put("C:\\Out\\Kund\\" + name, MakeLinkedProgram(parts));
    }
    static std::vector<Text> Findings(DlgImportFolder& form)
    {
        std::vector<Text> lines;
        for (int i = 0; i < form.ListOfFindings->count(); ++i)
            lines.push_back(FromQt(form.ListOfFindings->item(i)->text()));
        return lines;
    }
};

TEST_F(DlgImportFolderTest, ShowsWhatTheFolderHoldsAndLacks)
{
    DlgImportFolder form(Context(), nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.cbProgram->isEnabled());
    session.Settings.Directories = {.LastVB6ProjDir = "C:\\VB6", .LastVBNETProjDir = "C:\\NET"};
    session.ProjectsFolder = "C:\\Projekt";
    Choose(form, "cmdSelectFolder", "C:\\Out\\Kund");
    EXPECT_EQ(form.sFolder->text(), "C:\\Out\\Kund");
    EXPECT_EQ(ask.questions[0].folder, "C:\\Projekt");
    EXPECT_EQ(session.LastImportFolder, "C:\\Out\\Kund");
    EXPECT_EQ(session.Settings.Directories.LastVB6ProjDir, "C:\\VB6") << "it is no project";
    EXPECT_EQ(session.Settings.Directories.LastVBNETProjDir, "C:\\NET");
    EXPECT_EQ(form.cbProgram->currentText(), "Kund.exe");
    EXPECT_TRUE(form.cbProgram->isEnabled());
    EXPECT_THAT(Findings(form), ElementsAre("Programmet är för valfri processor.",
                                            "Programmet behöver .NET Framework 1.1.",
                                            "Saknas: MSVCP140.dll (behövs av Kund.exe)"));
    EXPECT_TRUE(form.cTestNETFramework->isEnabled());
    form.cbProgram->setCurrentIndex(1);
    emit form.cbProgram->activated(1);
    EXPECT_EQ(Findings(form)[0], "Programmet är för 64 bitar.");
    EXPECT_FALSE(form.cTestNETFramework->isEnabled());
}

TEST_F(DlgImportFolderTest, ImportsAndCloses)
{
    DlgImportFolder form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectFolder", "C:\\Out\\Kund");
    Expect(BoxKind::Inform, "Importen är klar");
    Click(form, "cmdImport");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.project.Files.rows.size(), 3U) << "without the symbols";
    EXPECT_EQ(session.project.NET.NET_TestIfInstalled, kOn);
    EXPECT_THAT(captions, ElementsAre("Välj destinationskatalog för Kund.exe",
                                      "Skriv in ikon-uppgifter för Kund.exe"));
}

TEST_F(DlgImportFolderTest, HandsOverWhatIsTicked)
{
    DlgImportFolder form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectFolder", "C:\\Out\\Kund");
    for (const char* const box : {"cTestNETFramework", "cSkipBuildFiles", "cAddIcon"})
        Click(form, box);
    Expect(BoxKind::Inform, "Importen är klar");
    Click(form, "cmdImport");
    EXPECT_EQ(session.project.Files.rows.size(), 4U);
    EXPECT_EQ(session.project.NET.NET_TestIfInstalled, kOff);
    EXPECT_EQ(captions.size(), 1U);
}

// What a rule has disabled is not enabled by a run.
TEST_F(DlgImportFolderTest, KeepsItsControlsAsTheyWereBehindARun)
{
    machine.files.Put("C:\\Out\\One\\One.exe", MakeLinkedProgram({.is64Bit = true}));
    class Refusing : public DlgImportFolder {
    public:
        using DlgImportFolder::DlgImportFolder;

    protected:
        ImportResult Import(const ImportWork&) override { return {.end = ImportEnd::Refused}; }
    };
    Refusing form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectFolder", "C:\\Out\\One");
    Click(form, "cmdImport");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.cbProgram->isEnabled());
    EXPECT_FALSE(form.cTestNETFramework->isEnabled());
    EXPECT_TRUE(form.cSkipBuildFiles->isEnabled());
    EXPECT_TRUE(form.cmdSelectFolder->isEnabled());
}

TEST_F(DlgImportFolderTest, StaysOpenWithoutAFolder)
{
    DlgImportFolder form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectFolder", "");
    Expect(BoxKind::Inform, "Info");
    Click(form, "cmdImport");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.cbProgram->isEnabled());
}

TEST_F(DlgImportFolderTest, LooksRight)
{
    DlgImportFolder form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectFolder", "C:\\Out\\Kund");
    SavePicture(form, "DlgImportFolder");
    SaveDarkPicture(form, "DlgImportFolder");
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdClose"); });
    ShowImportFolder(Context(), nullptr);
}

} // namespace
} // namespace quillon::test
