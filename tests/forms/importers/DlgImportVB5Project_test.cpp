#include "importers/forms/DlgImportVB5Project.h"

#include "forms/import_form_test.h"
#include "ui/controls/PathLabel.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

class DlgImportVB5ProjectTest : public ImportFormTest {
protected:
    DlgImportVB5ProjectTest()
    {
        machine.machine.registry[{RegistryRoot::LocalMachine,
                                  "SOFTWARE\\Microsoft\\Visual Basic\\5.0", "InstallDir"}] =
            "C:\\VB";
    }
};

TEST_F(DlgImportVB5ProjectTest, OpensWithItsDefaultsAndScansNothing)
{
    DlgImportVB5Project form(Context(), nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tVBDirectory"), "C:\\VB");
    EXPECT_TRUE(form.cAddIcon->isChecked());
    EXPECT_FALSE(form.cImportDAO35->isChecked());
    session.Settings.Directories.LastVB6ProjDir = "C:\\VB6";
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
    EXPECT_EQ(ask.questions[0].folder, "C:\\VB6") << "as for the other projects of this kind";
    EXPECT_EQ(form.sVBPfile->text(), "C:\\Proj\\Kund.vbp");
    EXPECT_FALSE(form.cImportActiveXSysFiles->isChecked());
    EXPECT_EQ(session.Settings.Directories.LastVB6ProjDir, "C:\\Proj");
}

TEST_F(DlgImportVB5ProjectTest, ImportsAndCloses)
{
    DlgImportVB5Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectVBP", "C:\\Proj\\Kund.vbp");
    Choose(form, "cmdSelectEXE", "C:\\Proj\\Kund.exe");
    Click(form, "cImportActiveXSysFiles");
    Click(form, "cAddIcon");
    Expect(BoxKind::Inform, "Info");
    Click(form, "cmdImport");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.project.Files.rows.size(), 11U);
    EXPECT_THAT(captions, ElementsAre("Välj destinationskatalog för Kund.exe"));
}

TEST_F(DlgImportVB5ProjectTest, KeepsWhatWasChosenWhereAChoiceIsCancelled)
{
    DlgImportVB5Project form(Context(), nullptr);
    ShowActive(form);
    Choose(form, "cmdSelectEXE", "C:\\Proj\\Kund.exe");
    Choose(form, "cmdSelectEXE", "");
    Choose(form, "cmdSelectVBP", "");
    EXPECT_EQ(form.sEXEfile->text(), "C:\\Proj\\Kund.exe");
    Expect(BoxKind::Inform, "Info");
    Click(form, "cmdImport");
    EXPECT_TRUE(form.isVisible());
}

TEST_F(DlgImportVB5ProjectTest, LooksRight)
{
    DlgImportVB5Project form(Context(), nullptr);
    ShowActive(form);
    SavePicture(form, "DlgImportVB5Project");
    SaveDarkPicture(form, "DlgImportVB5Project");
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdClose"); });
    ShowImportVB5Project(Context(), nullptr);
}

} // namespace
} // namespace quillon::test
