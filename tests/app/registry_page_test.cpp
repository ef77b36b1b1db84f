#include "app/pages/RegistryPage.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class RegistryPageTest : public WindowTest {
protected:
    void SetUp() override
    {
        page.ShowSession();
        ShowActive(page);
    }

    RegistryPage page{session};
    QPlainTextEdit& editor = Find<QPlainTextEdit>(page, "editRegistryList");
    Text& list = session.project.Lists.Registry;
};

TEST_F(RegistryPageTest, WritesWhatIsTypedToTheProject)
{
    EXPECT_EQ(editor.toPlainText(), "");
    TypeKeys(editor, "HKEY_USERS\\x");
    QTest::keyClick(&editor, Qt::Key_Return);
    TypeKeys(editor, "å日ä");
    EXPECT_EQ(list, "HKEY_USERS\\x\r\nåä");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(RegistryPageTest, MarksNothingChangedByShowing)
{
    list = "a\r\nb\r\n";
    page.ShowSession();
    EXPECT_EQ(editor.toPlainText(), "a\nb\n");
    EXPECT_EQ(list, "a\r\nb\r\n");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    SavePicture(page, "RegistryPage");
}

TEST_F(RegistryPageTest, KeepsTheCaretWhenItShowsTheSameTextAgain)
{
    TypeKeys(editor, "abc");
    editor.moveCursor(QTextCursor::Left);
    page.ShowSession();
    EXPECT_EQ(editor.textCursor().position(), 2);
    editor.undo();
    EXPECT_EQ(list, "");
}

TEST_F(RegistryPageTest, SavesEveryBlankAsItWas)
{
    list = "a\u00a0b\tc  ";
    page.ShowSession();
    editor.moveCursor(QTextCursor::End);
    TypeKeys(editor, "x");
    EXPECT_EQ(list, "a\u00a0b\tc  x");
}

TEST_F(RegistryPageTest, TellsALineThatTheProjectFileWouldNotGiveBack)
{
    auto& warning = Find<QLabel>(page, "sRegistryWarning");
    EXPECT_FALSE(warning.isVisible());
    TypeKeys(editor, "....");
    EXPECT_TRUE(warning.isVisible());
    EXPECT_TRUE(warning.text().startsWith("Raden '....' kan ej lagras i projektfilen."));
    QApplication::processEvents();
    SavePicture(page, "RegistryPage-varning");
    TypeKeys(editor, ".");
    EXPECT_FALSE(warning.isVisible());
    list = "[FileList]";
    page.ShowSession();
    EXPECT_TRUE(warning.isVisible());
}

TEST_F(RegistryPageTest, AddsAVariableAtTheEnd)
{
    TypeKeys(editor, "Path=");
    editor.moveCursor(QTextCursor::Start);
    ask.choices = {{{"%DESTDIR"}}, {}};
    Click(page, "cmdVariables1");
    EXPECT_EQ(list, "Path=%DESTDIR");
    EXPECT_TRUE(editor.hasFocus());
    EXPECT_TRUE(editor.textCursor().atEnd());
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    editor.undo();
    EXPECT_EQ(list, "Path=");
    session.state.ProjectIsDirty = kOff;
    Click(page, "cmdVariables1");
    EXPECT_EQ(list, "Path=") << "nothing was chosen";
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(ask.questions.at(0).title, "ChooseVariable");
}

TEST_F(RegistryPageTest, AddsALineFromEachOfItsDialogs)
{
    struct Row {
        const char* button;
        const char* dialog;
        const char* line;
    };
    Text lines;
    for (const Row& row :
         {Row{"cmdAddRegistryKey", "DlgAddRegKey", "HKEY_CLASSES_ROOT\\.qnp"},
          Row{"cmdDeleteRegistryKey", "DlgDeleteRegKey", "DELETE=HKEY_CLASSES_ROOT\\.qnp"},
          Row{"cmdUninstallRegistryKey", "DlgUninstallRegKey",
              "UNINSTALL=HKEY_CLASSES_ROOT\\.qnp"}}) {
        SCOPED_TRACE(row.button);
        session.state.ProjectIsDirty = kOff;
        OnNextDialog([&](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), row.dialog);
            Type(dialog, "tSubKey", ".qnp");
            Click(dialog, "cmdCancel");
        });
        Click(page, row.button);
        EXPECT_EQ(list, lines);
        EXPECT_EQ(session.state.ProjectIsDirty, kOff);
        editor.moveCursor(QTextCursor::Start);
        OnNextDialog([](QDialog& dialog) {
            Type(dialog, "tSubKey", ".qnp\\");
            Click(dialog, "cmdOK");
        });
        Click(page, row.button);
        lines += (lines.empty() ? "" : "\r\n") + Text(row.line);
        EXPECT_EQ(list, lines);
        EXPECT_EQ(session.state.ProjectIsDirty, kOn);
        EXPECT_EQ(page.focusWidget(), &editor);
        EXPECT_TRUE(editor.textCursor().atEnd());
    }
    editor.undo();
    EXPECT_EQ(list, "HKEY_CLASSES_ROOT\\.qnp\r\nDELETE=HKEY_CLASSES_ROOT\\.qnp");
    editor.redo();
    EXPECT_EQ(list, lines);
}

TEST_F(RegistryPageTest, IsReadInLettersOfOneWidthAndByName)
{
    EXPECT_EQ(editor.fontMetrics().horizontalAdvance("ill1"),
              editor.fontMetrics().horizontalAdvance("WMW%"));
    EXPECT_EQ(editor.lineWrapMode(), QPlainTextEdit::NoWrap);
    EXPECT_EQ(editor.accessibleName(), "Nycklar och värden i Registry");
    EXPECT_TRUE(editor.tabChangesFocus());
}

} // namespace
} // namespace quillon::test
