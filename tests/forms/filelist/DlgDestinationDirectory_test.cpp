#include "filelist/forms/DlgDestinationDirectory.h"

#include "filelist/forms/DlgDestDirVars.h"
#include "filelist/forms/list_commands.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using Place = DestinationQuestion::Place;

class DlgDestinationDirectoryTest : public WindowTest {
protected:
    Text TypedDirectory(DlgDestinationDirectory& form)
    {
        return FromQt(form.ctDirectory->currentText());
    }
    void TypeDirectory(DlgDestinationDirectory& form, const Text& text)
    {
        form.ctDirectory->setFocus();
        form.ctDirectory->lineEdit()->selectAll();
        QTest::keyClick(form.ctDirectory->lineEdit(), Qt::Key_Delete);
        TypeKeys(*form.ctDirectory->lineEdit(), text);
    }
    Text Destination(const DestinationQuestion& question)
    {
        DlgDestinationDirectory form(question, session, nullptr);
        ShowActive(form);
        Click(form, "cmdOK");
        EXPECT_TRUE(form.Accepted());
        return form.Destination;
    }
};

TEST_F(DlgDestinationDirectoryTest, OpensWithWhatItsCallerSays)
{
    DlgDestinationDirectory form({Place::User, "%COMPDIR2"}, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.oUserDirectory->isChecked());
    EXPECT_EQ(TypedDirectory(form), "%COMPDIR2");
    EXPECT_TRUE(form.ctDirectory->isEnabled());
    EXPECT_EQ(form.ctDirectory->count(), 0);
    EXPECT_TRUE(form.ctDirectory->hasFocus());
    EXPECT_FALSE(form.Accepted());
}

TEST_F(DlgDestinationDirectoryTest, LetsNothingBeTypedForTheSystemsFolders)
{
    for (const Place place : {Place::System, Place::Windows}) {
        DlgDestinationDirectory form({place, ""}, session, nullptr);
        EXPECT_FALSE(form.ctDirectory->isEnabled());
        EXPECT_EQ(form.oSystemDirectory->isChecked(), place == Place::System);
        EXPECT_EQ(form.oWindowsDirectory->isChecked(), place == Place::Windows);
        ShowActive(form);
        Click(form, "oUserDirectory");
        EXPECT_TRUE(form.ctDirectory->isEnabled());
        Click(form, "oWindowsDirectory");
        EXPECT_FALSE(form.ctDirectory->isEnabled());
    }
}

TEST_F(DlgDestinationDirectoryTest, GivesTheDestination)
{
    EXPECT_EQ(Destination({Place::User, "%DESTDIR\\Sub\\"}), "%DESTDIR\\Sub");
    EXPECT_EQ(Destination({Place::User, ""}), "");
    EXPECT_EQ(Destination({Place::System, "%DESTDIR"}), "%SYSDIR");
    EXPECT_EQ(Destination({Place::Windows, "%DESTDIR"}), "%WINDIR");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgDestinationDirectoryTest, RemembersTheUsersFoldersOnly)
{
    Destination({Place::User, "%DESTDIR\\A\\"});
    Destination({Place::User, "%DESTDIR\\B"});
    Destination({Place::User, "%DESTDIR\\A"});
    Destination({Place::User, ""});
    Destination({Place::System, "%DESTDIR\\C"});
    DlgDestinationDirectory form({Place::User, "%DESTDIR"}, session, nullptr);
    ASSERT_EQ(form.ctDirectory->count(), 2);
    EXPECT_EQ(form.ctDirectory->itemText(0), "%DESTDIR\\B");
    EXPECT_EQ(form.ctDirectory->itemText(1), "%DESTDIR\\A");
    EXPECT_EQ(TypedDirectory(form), "%DESTDIR") << "the dropdown does not change the proposal";
}

TEST_F(DlgDestinationDirectoryTest, StaysOpenOverASemicolon)
{
    ScriptedAsk told({{BoxKind::Critical, "Ogiltiga tecken hittade",
                       "Destinationskatalogen innehåller ogiltiga tecken!"}});
    Session other = NewSession(machine.host, told, "C:\\Quillon");
    DlgDestinationDirectory form({Place::User, "%DESTDIR"}, other, nullptr);
    ShowActive(form);
    TypeDirectory(form, "a;b");
    QTest::keyClick(form.ctDirectory->lineEdit(), Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Accepted());
    EXPECT_TRUE(told.shown.size() == 1U);
    TypeDirectory(form, "ab");
    QTest::keyClick(form.ctDirectory->lineEdit(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Destination, "ab");
}

TEST_F(DlgDestinationDirectoryTest, CompletesVariablesWhileTheyAreTyped)
{
    DlgDestinationDirectory form({Place::User, ""}, session, nullptr);
    ShowActive(form);
    const std::pair<Text, Text> typed[] = {
        {"%DE\\Sub", "%DESTDIR\\Sub"}, {"%PRApp", "%PROGRAMFILES\\App"}, {"%FO", "%FONTDIR"},
        {"%COMP3", "%COMPDIR3"},       {"%COMM", "%COMMONFILES\\"},      {"%de", "%de"}};
    for (const auto& [keys, text] : typed) {
        TypeDirectory(form, keys);
        EXPECT_EQ(TypedDirectory(form), text);
    }
}

TEST_F(DlgDestinationDirectoryTest, TakesNoCharacterThatAProjectCannotHold)
{
    DlgDestinationDirectory form({Place::User, ""}, session, nullptr);
    ShowActive(form);
    TypeDirectory(form, "C:\\ЖÅ");
    EXPECT_EQ(TypedDirectory(form), "C:\\Å");
}

TEST_F(DlgDestinationDirectoryTest, CancelsByButtonAndEsc)
{
    for (const bool byKey : {false, true}) {
        DlgDestinationDirectory form({Place::User, "%DESTDIR\\Sub"}, session, nullptr);
        ShowActive(form);
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Accepted());
        EXPECT_EQ(session.state.DestinationDirectoryChoices[0], "");
    }
}

TEST_F(DlgDestinationDirectoryTest, TakesAVariableFromItsList)
{
    DlgDestinationDirectory form({Place::System, ""}, session, nullptr);
    ShowActive(form);
    OnNextDialog([](QDialog& list) {
        SavePicture(list, "DlgDestDirVars");
        auto& variables = Find<QListWidget>(list, "lbVariables");
        ASSERT_EQ(variables.count(), 17);
        EXPECT_EQ(variables.accessibleName(), "Välj variabel");
        QListWidgetItem* chosen = variables.item(3);
        variables.scrollToItem(chosen);
        const QPoint place = variables.visualItemRect(chosen).center();
        QTest::mouseClick(variables.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(variables.viewport(), Qt::LeftButton, {}, place);
        EXPECT_FALSE(list.isVisible());
    });
    Click(form, "CmdVars");
    EXPECT_EQ(TypedDirectory(form), "%COMMONFILES");
    EXPECT_TRUE(form.oUserDirectory->isChecked());
    EXPECT_TRUE(form.ctDirectory->isEnabled());
}

TEST_F(DlgDestinationDirectoryTest, LeavesItsTextWhenNoVariableIsChosen)
{
    DlgDestinationDirectory form({Place::System, ""}, session, nullptr);
    ShowActive(form);
    OnNextDialog([](QDialog& list) { QTest::keyClick(&list, Qt::Key_Escape); });
    Click(form, "CmdVars");
    EXPECT_EQ(TypedDirectory(form), "");
    EXPECT_TRUE(form.oSystemDirectory->isChecked());
}

TEST_F(DlgDestinationDirectoryTest, AnswersTheQuestionOfACommand)
{
    OnNextDialog([](QDialog& form) { Click(form, "cmdOK"); });
    EXPECT_EQ(ChooseDestination(session, {Place::User, "%DESTDIR"}, nullptr), "%DESTDIR");
    OnNextDialog([](QDialog& form) { Click(form, "cmdCancel"); });
    EXPECT_FALSE(ChooseDestination(session, {Place::User, "%DESTDIR"}, nullptr));
}

TEST_F(DlgDestinationDirectoryTest, HasItsPicture)
{
    session.state.DestinationDirectoryChoices[0] = "%DESTDIR\\Bilder";
    DlgDestinationDirectory form({Place::User, "%DESTDIR\\Bilder"}, session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgDestinationDirectory");
    SaveDarkPicture(form, "DlgDestinationDirectory");
}

} // namespace
} // namespace quillon::test
