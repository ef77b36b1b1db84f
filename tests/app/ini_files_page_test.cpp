#include "app/pages/IniFilesPage.h"

#include "actions/ini_list.h"
#include "app/MainForm.h"
#include "helpers/ansi_text.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class IniFilesPageTest : public WindowTest {
protected:
    void SetUp() override
    {
        page.ShowSession();
        ShowActive(page);
    }

    void Press(const char* button, const Text& answer)
    {
        ask.choices.push_back({{answer}});
        Click(page, button);
    }

    IniFilesPage page{session};
    QPlainTextEdit& editor = Find<QPlainTextEdit>(page, "editINIList");
    Text& list = session.project.Lists.INIFiles;
};

TEST_F(IniFilesPageTest, WritesWhatIsTypedToTheProject)
{
    TypeKeys(editor, "a=");
    QTest::keyClick(&editor, Qt::Key_Return);
    EXPECT_EQ(list, "a=\r\n");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(IniFilesPageTest, MarksNothingChangedByShowing)
{
    list = "-- WIN.INI --\r\n[A]\r\nb=c";
    page.ShowSession();
    EXPECT_EQ(editor.toPlainText(), "-- WIN.INI --\n[A]\nb=c");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    SavePicture(page, "IniFilesPage");
}

TEST_F(IniFilesPageTest, AddsFilesAndSectionsAtTheEnd)
{
    Press("cmdNewINIfile", "win");
    EXPECT_EQ(list, "-- WIN.INI --");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    editor.moveCursor(QTextCursor::Start);
    Press("cmdAddINIsection", "Settings");
    EXPECT_EQ(list, "-- WIN.INI --\r\n[Settings]\r\n");
    EXPECT_TRUE(editor.textCursor().atEnd());
    EXPECT_TRUE(editor.hasFocus());
    TypeKeys(editor, "a=b");
    Press("cmdNewINIfile", "app.ini");
    EXPECT_EQ(list, "-- WIN.INI --\r\n[Settings]\r\na=b\r\n\r\n-- APP.INI --");
    EXPECT_EQ(ask.questions.at(0).title, "Lägg till ny INI-fil");
    EXPECT_EQ(ask.questions.at(0).filter, "&Filnamn:");
    EXPECT_EQ(ask.questions.at(1).title, "Lägg till sektion");
    EXPECT_EQ(ask.questions.at(1).filter, "&Sektion:");
}

TEST_F(IniFilesPageTest, BeginsAnEmptyListWithASection)
{
    Press("cmdAddINIsection", "A");
    EXPECT_EQ(list, "[A]\r\n");
}

TEST_F(IniFilesPageTest, AddsNothingWithoutAnAnswer)
{
    for (const char* button : {"cmdNewINIfile", "cmdAddINIsection"}) {
        Press(button, "");
        ask.choices.push_back({});
        Click(page, button);
    }
    EXPECT_EQ(list, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(IniFilesPageTest, AddsAValueAtTheEnd)
{
    list = "[A]\r\n";
    page.ShowSession();
    const auto enter = [](const char* name, const char* value, const char* button) {
        OnNextDialog([=](QDialog& dialog) {
            Type(dialog, "tName", name);
            Type(dialog, "tValue", value);
            Click(dialog, button);
        });
    };
    enter("a", "b", "cmdCancel");
    Click(page, "cmdAddINIvalue");
    enter("", "", "cmdOK");
    Click(page, "cmdAddINIvalue");
    EXPECT_EQ(list, "[A]\r\n");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    enter("Path", "%DESTDIR", "cmdOK");
    Click(page, "cmdAddINIvalue");
    EXPECT_EQ(list, "[A]\r\nPath=%DESTDIR\r\n");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(page.focusWidget(), &editor);
    enter("Name", "", "cmdOK");
    Click(page, "cmdAddINIvalue");
    EXPECT_EQ(list, "[A]\r\nPath=%DESTDIR\r\nName=\r\n");
    editor.undo();
    EXPECT_EQ(list, "[A]\r\nPath=%DESTDIR\r\n");
}

TEST_F(IniFilesPageTest, AddsAValueBelowTheHeadOfAFile)
{
    Press("cmdNewINIfile", "win");
    OnNextDialog([](QDialog& dialog) {
        Type(dialog, "tName", "a");
        Click(dialog, "cmdOK");
    });
    Click(page, "cmdAddINIvalue");
    EXPECT_EQ(list, "-- WIN.INI --\r\na=\r\n");
}

TEST_F(IniFilesPageTest, AddsAVariableAtTheEnd)
{
    TypeKeys(editor, "Path=");
    editor.moveCursor(QTextCursor::Start);
    Press("cmdVariables2", "%WINDIR");
    EXPECT_EQ(list, "Path=%WINDIR");
    EXPECT_TRUE(editor.hasFocus());
    editor.undo();
    EXPECT_EQ(list, "Path=");
    session.state.ProjectIsDirty = kOff;
    ask.choices = {{}};
    Click(page, "cmdVariables2");
    EXPECT_EQ(list, "Path=") << "nothing was chosen";
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(IniFilesPageTest, UndoesWhatAButtonAdded)
{
    TypeKeys(editor, "x");
    Press("cmdAddINIsection", "A");
    editor.undo();
    EXPECT_EQ(list, "x");
    editor.redo();
    EXPECT_EQ(list, "x\r\n[A]\r\n");
}

TEST_F(IniFilesPageTest, TakesNoMoreThanTheProjectFileHolds)
{
    list = Text(kMaxIniListLength - 1, 'x');
    page.ShowSession();
    editor.moveCursor(QTextCursor::Start);
    TypeKeys(editor, "ab");
    EXPECT_EQ(list, "a" + Text(kMaxIniListLength - 1, 'x'));
    const Text full = list;
    ask.Expect({BoxKind::Critical, "Fel",
                "Listan över INI-filer kan innehålla högst 32767 tecken! Ingenting har lagts "
                "till."});
    Press("cmdAddINIsection", "A");
    EXPECT_EQ(list, full);
}

TEST_F(IniFilesPageTest, SpeaksItsList)
{
    EXPECT_EQ(editor.fontMetrics().horizontalAdvance("ill1"),
              editor.fontMetrics().horizontalAdvance("WMW%"));
    EXPECT_EQ(editor.accessibleName(), "INI-filer, sektioner och värden");
}

class TextCommandsTest : public WindowTest {
protected:
    QPlainTextEdit& Editor(const char* name) { return Find<QPlainTextEdit>(form, name); }

    MainForm form{session};
};

TEST_F(TextCommandsTest, ImportAnIniFileIntoTheListInView)
{
    machine.files.Put("C:\\Data\\min.ini", "[A]\r\nb=c\r\n");
    form.SelectTab(Tab::IniFiles);
    ask.choices = {{{"C:\\Data\\min.ini"}}, {{"C:\\Data\\min.ini"}}};
    form.RunCommand(CommandId::ImportIniFile);
    EXPECT_EQ(session.project.Lists.INIFiles, "-- MIN.INI --\r\n[A]\r\nb=c");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    form.RunCommand(CommandId::ImportIniFile);
    EXPECT_EQ(session.project.Lists.INIFiles,
              "-- MIN.INI --\r\n[A]\r\nb=c\r\n\r\n-- MIN.INI --\r\n[A]\r\nb=c");
    Editor("editINIList").undo();
    EXPECT_EQ(session.project.Lists.INIFiles, "-- MIN.INI --\r\n[A]\r\nb=c");
}

TEST_F(TextCommandsTest, ImportEveryByteOfALine)
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n')
            bytes += static_cast<char>(byte);
    machine.files.Put("C:\\Data\\skräp.ini", bytes);
    form.SelectTab(Tab::IniFiles);
    ask.choices = {{{"C:\\Data\\skräp.ini"}}};
    form.RunCommand(CommandId::ImportIniFile);
    EXPECT_EQ(session.project.Lists.INIFiles, "-- SKRÄP.INI --\r\n" + AnsiText::FromBytes(bytes));
}

TEST_F(TextCommandsTest, ImportNothingOfAFileThatIsTooLong)
{
    machine.files.Put("C:\\Data\\lang.ini", std::string(10'000'000, 'x'));
    session.project.Lists.INIFiles = "[A]";
    form.ShowProject();
    form.SelectTab(Tab::IniFiles);
    ask.choices = {{{"C:\\Data\\lang.ini"}}};
    ask.Expect({BoxKind::Critical, "Fel",
                "Listan över INI-filer kan innehålla högst 32767 tecken! Ingenting har lagts "
                "till."});
    form.RunCommand(CommandId::ImportIniFile);
    EXPECT_EQ(session.project.Lists.INIFiles, "[A]");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(TextCommandsTest, ImportNothingOnCancelOrOnAnotherTab)
{
    form.SelectTab(Tab::IniFiles);
    ask.choices = {{}};
    form.RunCommand(CommandId::ImportIniFile);
    for (const Tab tab : {Tab::Files, Tab::Design, Tab::Dialogs, Tab::Registry, Tab::Components}) {
        form.SelectTab(tab);
        form.RunCommand(CommandId::ImportIniFile);
    }
    EXPECT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(TextCommandsTest, CopyAndPasteTheTextOfTheTab)
{
    struct Row {
        Tab tab;
        const char* editor;
        Text* list;
    };
    section::Lists& lists = session.project.Lists;
    for (const Row& row : {Row{Tab::Registry, "editRegistryList", &lists.Registry},
                           Row{Tab::IniFiles, "editINIList", &lists.INIFiles}}) {
        form.SelectTab(row.tab);
        Editor(row.editor).setPlainText("ab\ncd");
        Editor(row.editor).selectAll();
        form.RunCommand(CommandId::Copy);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "ab\ncd");
        Editor(row.editor).moveCursor(QTextCursor::End);
        session.state.ProjectIsDirty = kOff;
        form.RunCommand(CommandId::Paste);
        EXPECT_EQ(*row.list, "ab\r\ncdab\r\ncd");
        EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    }
}

TEST_F(TextCommandsTest, CopyAndPasteNothingOnOtherTabs)
{
    QGuiApplication::clipboard()->setText("klipp");
    for (const Tab tab : {Tab::Files, Tab::Design, Tab::Dialogs, Tab::Components}) {
        form.SelectTab(tab);
        form.RunCommand(CommandId::Copy);
        form.RunCommand(CommandId::Paste);
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "klipp");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
