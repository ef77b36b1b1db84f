// The shape that all forms share, on a small form of its own.
#include "ui/kit/Form.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgProbe : public EditorForm {
public:
    DlgProbe(Session& session) : EditorForm("DlgProbe", "Prov", session, nullptr)
    {
        section::Version& version = session.project.Version;
        Arrange(VBox({
            Fields({{"&Namn:", Field(NAMED(tName), version.CompanyName, 10)},
                    {"&Text:", Area(NAMED(tText), version.Comments, 10)}}),
            Check(NAMED(cBox), "&Ruta", session.project.Compression.CompressFiles),
            OkCancel(),
        }));
    }

    QLineEdit* tName = nullptr;
    QPlainTextEdit* tText = nullptr;
    QCheckBox* cBox = nullptr;
};

class FormKit : public WindowTest {};

TEST_F(FormKit, LoadsItsFields)
{
    session.project.Version.CompanyName = "Firma Ö";
    session.project.Version.Comments = "a\r\nb";
    DlgProbe form(session);
    EXPECT_EQ(TextIn(form, "tName"), "Firma Ö");
    EXPECT_EQ(form.tText->toPlainText(), "a\nb");
    EXPECT_TRUE(form.cBox->isChecked());
}

TEST_F(FormKit, StoresOnOkAndMarksTheProject)
{
    DlgProbe form(session);
    ShowActive(form);
    Type(form, "tName", "Nytt namn AB");
    form.tText->setPlainText("x\ny");
    Click(form, "cBox");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(session.project.Version.CompanyName, "Nytt namn ");
    EXPECT_EQ(session.project.Version.Comments, "x\r\ny");
    EXPECT_EQ(session.project.Compression.CompressFiles, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(FormKit, LeavesAllAloneOnCancelAndEsc)
{
    for (const bool byKey : {false, true}) {
        DlgProbe form(session);
        ShowActive(form);
        Type(form, "tName", "Nytt");
        Click(form, "cBox");
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.OK);
        EXPECT_EQ(session.project.Version.CompanyName, "");
        EXPECT_EQ(session.project.Compression.CompressFiles, kOn);
        EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    }
}

TEST_F(FormKit, TakesNoCharacterThatAProjectCannotHold)
{
    DlgProbe form(session);
    ShowActive(form);
    Type(form, "tName", "a€ЖÅ");
    EXPECT_EQ(TextIn(form, "tName"), "a€Å");
    form.tText->insertPlainText("日b\nö");
    EXPECT_EQ(form.tText->toPlainText(), "b\nö");
    // A line break is two bytes on file.
    form.tText->setPlainText("12345678");
    form.tText->moveCursor(QTextCursor::End);
    form.tText->insertPlainText("\n");
    TypeKeys(*form.tText, "9");
    EXPECT_EQ(form.tText->toPlainText(), "12345678\n");
}

TEST_F(FormKit, RefusesWhatIsTypedIntoAFullAreaAndCutsNothingElse)
{
    DlgProbe form(session);
    ShowActive(form);
    form.tText->setPlainText("1234567890");
    form.tText->moveCursor(QTextCursor::Start);
    TypeKeys(*form.tText, "x");
    EXPECT_EQ(form.tText->toPlainText(), "1234567890");
    EXPECT_EQ(form.tText->textCursor().position(), 0);
    // Of a piece that is too long nothing is taken.
    form.tText->setPlainText("12345678");
    form.tText->moveCursor(QTextCursor::Start);
    form.tText->insertPlainText("abcd");
    EXPECT_EQ(form.tText->toPlainText(), "12345678");
    EXPECT_EQ(QToolTip::text(), "Texten är för lång. Här får högst 10 tecken stå.");
    // What it was to replace is still there.
    form.tText->moveCursor(QTextCursor::StartOfWord);
    form.tText->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    form.tText->insertPlainText("abcdefghijk");
    EXPECT_EQ(form.tText->toPlainText(), "12345678");
    form.tText->selectAll();
    form.tText->insertPlainText("abcdefghij");
    EXPECT_EQ(form.tText->toPlainText(), "abcdefghij");
}

TEST_F(FormKit, KeepsWhatAProjectCameWithBeyondTheLimit)
{
    session.project.Version.Comments = "1234567890abcdef";
    DlgProbe form(session);
    ShowActive(form);
    form.tText->moveCursor(QTextCursor::End);
    TypeKeys(*form.tText, "x");
    EXPECT_EQ(form.tText->toPlainText(), "1234567890abcdef");
    QTest::keyClick(form.tText, Qt::Key_Backspace);
    EXPECT_EQ(form.tText->toPlainText(), "1234567890abcde");
}

TEST_F(FormKit, RefusesAPieceThatALineHasNoRoomForAndSaysSo)
{
    DlgProbe form(session);
    ShowActive(form);
    Type(form, "tName", "123456789");
    form.tName->setCursorPosition(4);
    form.tName->insert("ab");
    EXPECT_EQ(TextIn(form, "tName"), "123456789");
    EXPECT_EQ(form.tName->cursorPosition(), 4);
    EXPECT_EQ(QToolTip::text(), "Texten är för lång. Här får högst 10 tecken stå.");
    form.tName->insert("a");
    EXPECT_EQ(TextIn(form, "tName"), "1234a56789");
    TypeKeys(*form.tName, "b");
    EXPECT_EQ(TextIn(form, "tName"), "1234a56789");
    QTest::keyClick(form.tName, Qt::Key_Backspace);
    EXPECT_EQ(TextIn(form, "tName"), "123456789");
    // What it was to replace is still there.
    form.tName->selectAll();
    form.tName->insert("abcdefghijk");
    EXPECT_EQ(TextIn(form, "tName"), "123456789");
}

TEST_F(FormKit, TakesPastedLinesAsOne)
{
    struct Row {
        const char* pasted;
        const char* within; // "12", between the two
        const char* behind; // "12"
    };
    for (const auto& [pasted, within, behind] :
         {Row{"ab\n", "1ab 2", "12ab"}, Row{"ab\r\n\r\n", "1ab  2", "12ab"},
          Row{"a\r\nb", "1a b2", "12a b"}, Row{"a\n\rb", "1a  b2", "12a  b"},
          Row{"\r", "1 2", "12"}, Row{"日\nb", "1 b2", "12 b"}})
        for (const bool isWithin : {true, false}) {
            DlgProbe form(session);
            ShowActive(form);
            Type(form, "tName", "12");
            form.tName->setCursorPosition(isWithin ? 1 : 2);
            QGuiApplication::clipboard()->setText(pasted);
            form.tName->paste();
            const Text line = isWithin ? within : behind;
            EXPECT_EQ(TextIn(form, "tName"), line);
            EXPECT_EQ(form.tName->cursorPosition(), static_cast<int>(line.size()) - isWithin);
        }
}

TEST_F(FormKit, StaysOpenOverATextThatTheProjectFileWouldCut)
{
    session.project.Version.CompanyName = "1234567890abc";
    session.project.Version.Comments = "1234567890abc";
    DlgProbe form(session);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tName"), "1234567890abc");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tName->hasFocus());
    EXPECT_EQ(QToolTip::text(), "Texten är för lång. Här får högst 10 tecken stå.");
    Type(form, "tName", "123");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.tText->hasFocus());
    EXPECT_EQ(session.project.Version.CompanyName, "1234567890abc");
    form.tText->setPlainText("1234567890");
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.project.Version.CompanyName, "123");
    EXPECT_EQ(session.project.Version.Comments, "1234567890");
}

TEST_F(FormKit, NeverBringsBackByUndoWhatItHasTakenOut)
{
    DlgProbe form(session);
    ShowActive(form);
    form.tText->insertPlainText("abc");
    form.tText->undo();
    EXPECT_EQ(form.tText->toPlainText(), "");
    form.tText->insertPlainText("\u65e5d");
    form.tText->undo();
    EXPECT_EQ(form.tText->toPlainText(), "d");
}

TEST_F(FormKit, KeepsBlanksThatDoNotBreak)
{
    session.project.Version.Comments = "a\u00a0b";
    DlgProbe form(session);
    ShowActive(form);
    Click(form, "cmdOK");
    EXPECT_EQ(session.project.Version.Comments, "a\u00a0b");
}

TEST_F(FormKit, NamesItsControlsForScreenReaders)
{
    DlgProbe form(session);
    EXPECT_EQ(form.tName->accessibleName(), "Namn");
    EXPECT_EQ(form.tText->accessibleName(), "Text");
}

class DlgOptions : public EditorForm {
public:
    DlgOptions(Session& session) : EditorForm("DlgOptions", "Val", session, nullptr)
    {
        section::TargetOS& systems = session.project.TargetOS;
        section::ProgramGroup& group = session.project.ProgramGroup;
        Arrange(VBox({
            Frame("Ett", {Option(NAMED(oWarn), "&Varna", systems.TargetOS_WarnIfWrong),
                          Option(NAMED(oStop), "&Stoppa", systems.TargetOS_StopIfWrong)}),
            Frame("Två", {Option(NAMED(oOne), "&En", group.ProgramGroup_CurrentUser),
                          Option(NAMED(oAll), "&Alla", group.ProgramGroup_AllUsers)}),
            OkCancel(),
        }));
    }

    QRadioButton* oWarn = nullptr;
    QRadioButton* oStop = nullptr;
    QRadioButton* oOne = nullptr;
    QRadioButton* oAll = nullptr;
};

TEST_F(FormKit, ShowsOneOptionOfAFrameAsChosen)
{
    section::TargetOS& systems = session.project.TargetOS;
    systems.TargetOS_WarnIfWrong = systems.TargetOS_StopIfWrong = kOn;
    DlgOptions form(session);
    ShowActive(form);
    EXPECT_FALSE(form.oWarn->isChecked());
    EXPECT_TRUE(form.oStop->isChecked()) << "the last one counts";
    EXPECT_TRUE(form.oOne->isChecked()) << "another frame is none of its business";
    EXPECT_FALSE(form.oAll->isChecked());
    EXPECT_EQ(systems.TargetOS_WarnIfWrong, kOn) << "nothing changes before OK";
    Click(form, "oWarn");
    EXPECT_FALSE(form.oStop->isChecked());
    Click(form, "cmdOK");
    EXPECT_EQ(systems.TargetOS_WarnIfWrong, kOn);
    EXPECT_EQ(systems.TargetOS_StopIfWrong, kOff);
}

} // namespace
} // namespace quillon::test
