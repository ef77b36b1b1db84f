#include "actions/forms/DlgLanguage.h"

#include "helpers/windows_path.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgLanguageTest : public WindowTest {
protected:
    void PutFiles()
    {
        for (const char* name : {"SWEDISH.LNG", "norsk.lng", "ENGLISH.LNG", "läs.txt"})
            machine.files.Put(JoinPath("C:\\Quillon\\Language", name), name);
    }
    static QStringList Shown(const DlgLanguage& form)
    {
        QStringList names;
        for (int row = 0; row < form.FileListX->count(); ++row)
            names << form.FileListX->item(row)->text();
        return names;
    }
    static Text Selected(const DlgLanguage& form)
    {
        const auto selected = form.FileListX->selectedItems();
        return selected.isEmpty() ? Text() : FromQt(selected.front()->text());
    }
    static void Select(DlgLanguage& form, int row) { form.FileListX->setCurrentRow(row); }

    Text& language = session.project.Language.LanguageFile;
};

TEST_F(DlgLanguageTest, ShowsTheFilesAndTheOneOfTheProject)
{
    PutFiles();
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Språk");
    EXPECT_EQ(Shown(form), QStringList({"ENGLISH.LNG", "norsk.lng", "SWEDISH.LNG"}));
    EXPECT_EQ(Selected(form), "SWEDISH.LNG");
    EXPECT_EQ(form.cmdAddLanguage->text(), "&Lägg till språk...");
    EXPECT_EQ(form.cmdEditLanguage->text(), "&Redigera text...");
    EXPECT_TRUE(form.cmdEditLanguage->isEnabled());
    EXPECT_TRUE(form.FileListX->hasFocus());
    SavePicture(form, "DlgLanguage");
    SaveDarkPicture(form, "DlgLanguage");
}

TEST_F(DlgLanguageTest, SelectsWithoutRegardToCase)
{
    PutFiles();
    language = "NORSK.LNG";
    EXPECT_EQ(Selected(DlgLanguage(session, nullptr)), "norsk.lng");
}

TEST_F(DlgLanguageTest, SelectsNothingForAFileThatIsGone)
{
    PutFiles();
    language = "DANSK.LNG";
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(Selected(form), "");
    EXPECT_FALSE(form.cmdEditLanguage->isEnabled());
    Click(form, "cmdOK");
    EXPECT_EQ(language, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgLanguageTest, IsEmptyWithoutTheFolder)
{
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.FileListX->count(), 0);
    EXPECT_FALSE(form.cmdEditLanguage->isEnabled());
    ask.choices = {{{"norsk"}}};
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(form, "cmdAddLanguage");
    EXPECT_TRUE(form.isVisible());
    Click(form, "cmdCancel");
    EXPECT_EQ(language, "SWEDISH.LNG");
}

TEST_F(DlgLanguageTest, StoresTheSelectedFileInCapitals)
{
    PutFiles();
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    QTest::keyClick(form.FileListX, Qt::Key_Up);
    EXPECT_EQ(language, "SWEDISH.LNG");
    QTest::keyClick(form.FileListX, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(language, "NORSK.LNG");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgLanguageTest, ChangesNothingOnCancel)
{
    PutFiles();
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    Select(form, 0);
    Click(form, "cmdCancel");
    EXPECT_EQ(language, "SWEDISH.LNG");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgLanguageTest, AddsALanguageAndSelectsIt)
{
    PutFiles();
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    ask.choices = {{{"dansk"}}};
    Click(form, "cmdAddLanguage");
    EXPECT_EQ(Shown(form), QStringList({"DANSK.LNG", "ENGLISH.LNG", "norsk.lng", "SWEDISH.LNG"}));
    EXPECT_EQ(Selected(form), "DANSK.LNG");
    EXPECT_EQ(machine.files.Get("C:\\Quillon\\Language\\DANSK.LNG"), "SWEDISH.LNG");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff) << "the project is as it was";
    Click(form, "cmdEditLanguage");
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started.front().second, "C:\\Quillon\\Language\\DANSK.LNG");
}

TEST_F(DlgLanguageTest, KeepsItsSelectionWhereNothingIsAdded)
{
    PutFiles();
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    Select(form, 0);
    ask.choices = {{{""}}, {{"a?b"}}, {{"a.lng.txt"}}};
    Click(form, "cmdAddLanguage");
    ask.Expect({BoxKind::Inform, "Ogiltigt filnamn"});
    Click(form, "cmdAddLanguage");
    EXPECT_EQ(Selected(form), "ENGLISH.LNG");
    Click(form, "cmdAddLanguage");
    EXPECT_TRUE(machine.files.FileExists("C:\\Quillon\\Language\\A.LNG.TXT"));
    EXPECT_EQ(form.FileListX->count(), 3) << "it is no language file by its name";
    EXPECT_EQ(Selected(form), "ENGLISH.LNG");
}

TEST_F(DlgLanguageTest, EditsTheSelectedFile)
{
    PutFiles();
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    Select(form, 1);
    Click(form, "cmdEditLanguage");
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started.front().second, "C:\\Quillon\\Language\\norsk.lng");
    EXPECT_TRUE(form.isVisible());
    machine.machine.startFailure = 5;
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(form, "cmdEditLanguage");
}

TEST_F(DlgLanguageTest, StaysOpenOverAFileThatNoProjectCanName)
{
    PutFiles();
    machine.files.Put("C:\\Quillon\\Language\\日本.lng", "x");
    DlgLanguage form(session, nullptr);
    ShowActive(form);
    Select(form, 3);
    EXPECT_EQ(Selected(form), "日本.lng");
    ask.Expect({BoxKind::Inform, "Ogiltigt filnamn"});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.FileListX->hasFocus());
    EXPECT_EQ(language, "SWEDISH.LNG");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
