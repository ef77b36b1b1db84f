#include "actions/forms/DlgAddRegKey.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgAddRegKeyTest : public WindowTest {
protected:
    void SetUp() override { ShowActive(form); }

    /// Chooses a row by keys, as a user does.
    void Choose(QComboBox* list, int row)
    {
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(list->currentIndex(), row);
    }
    QStringList RowsOf(const QComboBox* list)
    {
        QStringList rows;
        for (int i = 0; i < list->count(); ++i)
            rows << list->itemText(i);
        return rows;
    }

    DlgAddRegKey form{ask, nullptr};
};

TEST_F(DlgAddRegKeyTest, OpensEmpty)
{
    EXPECT_EQ(form.windowTitle(), "Lägg till nyckel eller värde");
    EXPECT_EQ(RowsOf(form.ComboHKEY),
              QStringList({"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE",
                           "HKEY_USERS", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"}));
    EXPECT_EQ(RowsOf(form.ComboType),
              QStringList({"Sträng", "Värde (DWORD)", "Binär data", "(Standard)"}));
    EXPECT_EQ(form.ComboHKEY->currentIndex(), 0);
    EXPECT_EQ(form.ComboType->currentIndex(), 0);
    for (const char* field : {"tSubKey", "tName", "tValue"})
        EXPECT_EQ(TextIn(form, field), "") << field;
    EXPECT_TRUE(form.tSubKey->hasFocus());
    EXPECT_TRUE(form.tName->isEnabled());
    EXPECT_EQ(form.cmdVariables->text(), "&Variabler...");
}

TEST_F(DlgAddRegKeyTest, PresetsTheSubkeyOfTheChosenRoot)
{
    Choose(form.ComboHKEY, 2);
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\SOFTWARE\\");
    Choose(form.ComboHKEY, 3);
    EXPECT_EQ(TextIn(form, "tSubKey"), "");
    Type(form, "tSubKey", "\\x");
    Choose(form.ComboHKEY, 1);
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\x");
}

TEST_F(DlgAddRegKeyTest, GoesOnBehindAPresetThatIsReachedByTab)
{
    Choose(form.ComboHKEY, 2);
    QTest::keyClick(form.ComboHKEY, Qt::Key_Tab);
    TypeKeys(*form.tSubKey, "Firma");
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\SOFTWARE\\Firma");
    form.ComboHKEY->setFocus();
    QTest::keyClick(form.ComboHKEY, Qt::Key_Tab);
    TypeKeys(*form.tSubKey, "x");
    EXPECT_EQ(TextIn(form, "tSubKey"), "x");
}

TEST_F(DlgAddRegKeyTest, PutsABackslashInFrontWhenTheSubkeyIsLeft)
{
    Type(form, "tSubKey", "Software");
    EXPECT_EQ(TextIn(form, "tSubKey"), "Software");
    form.tName->setFocus();
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\Software");
}

TEST_F(DlgAddRegKeyTest, NamesTheStandardValueItself)
{
    Type(form, "tName", "Version");
    Choose(form.ComboType, 3);
    EXPECT_EQ(TextIn(form, "tName"), "(Standard)");
    EXPECT_FALSE(form.tName->isEnabled());
    SavePicture(form, "DlgAddRegKey-standard");
    Choose(form.ComboType, 0);
    EXPECT_EQ(TextIn(form, "tName"), "");
    EXPECT_TRUE(form.tName->isEnabled());
    Type(form, "tName", "Version");
    Choose(form.ComboType, 1);
    EXPECT_EQ(TextIn(form, "tName"), "Version");
}

TEST_F(DlgAddRegKeyTest, MakesALine)
{
    Choose(form.ComboHKEY, 2);
    Type(form, "tSubKey", "SOFTWARE\\Firma\\Prog\\");
    Type(form, "tName", "Version");
    Type(form, "tValue", "1.0");
    QTest::keyClick(form.tValue, Qt::Key_Return);
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(form.Line, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: Version=\"1.0\"");
}

TEST_F(DlgAddRegKeyTest, CompletesTheSubkeyThatIsStillBeingTyped)
{
    Type(form, "tSubKey", ".txt");
    QTest::keyClick(form.tSubKey, Qt::Key_Return);
    EXPECT_EQ(form.Line, "HKEY_CLASSES_ROOT\\.txt");
}

TEST_F(DlgAddRegKeyTest, StaysOpenWithoutASubkey)
{
    ask.Expect({BoxKind::Inform, "Info", "Ingen subnyckel har definierats!"});
    Type(form, "tName", "a");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.OK);
    EXPECT_TRUE(form.tSubKey->hasFocus());
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(form.OK);
}

TEST_F(DlgAddRegKeyTest, ReturnsToDataThatDoesNotSuitItsType)
{
    Type(form, "tSubKey", "\\x");
    Type(form, "tName", "n");
    for (const auto& [type, wrong, right, line] :
         {std::tuple{1, "0x10", "+7", "HKEY_CLASSES_ROOT\\x :: n=+7"},
          std::tuple{1, "2147483648", "", "HKEY_CLASSES_ROOT\\x :: n=0"},
          std::tuple{2, "A2  FF", "  A2 FF ", "HKEY_CLASSES_ROOT\\x :: n=!A2 FF"}}) {
        ShowActive(form);
        Choose(form.ComboType, type);
        Type(form, "tValue", wrong);
        form.OK = false;
        ask.Expect({BoxKind::Critical, "Fel"});
        Click(form, "cmdOK");
        EXPECT_FALSE(form.OK);
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(form.tValue->hasFocus());
        Type(form, "tValue", right);
        Click(form, "cmdOK");
        EXPECT_TRUE(form.OK);
        EXPECT_EQ(form.Line, line);
    }
    EXPECT_EQ(TextIn(form, "tValue"), "A2 FF") << "the field shows what was taken";
}

TEST_F(DlgAddRegKeyTest, AppendsAVariableToTheData)
{
    Type(form, "tValue", "a");
    form.tValue->home(false);
    ask.choices = {{{"%DESTDIR"}}, {}};
    Click(form, "cmdVariables");
    EXPECT_EQ(TextIn(form, "tValue"), "a%DESTDIR");
    EXPECT_TRUE(form.tValue->hasFocus());
    form.tSubKey->setFocus();
    Click(form, "cmdVariables");
    EXPECT_EQ(TextIn(form, "tValue"), "a%DESTDIR");
    EXPECT_TRUE(form.tValue->hasFocus());
    form.tValue->undo();
    EXPECT_EQ(TextIn(form, "tValue"), "a");
}

TEST_F(DlgAddRegKeyTest, TakesOnlyWhatAProjectCanHold)
{
    Type(form, "tValue", "å日ä");
    EXPECT_EQ(TextIn(form, "tValue"), "åä");
}

TEST_F(DlgAddRegKeyTest, LooksRight)
{
    Choose(form.ComboHKEY, 2);
    Type(form, "tSubKey", "\\SOFTWARE\\Firma AB\\Programmet");
    Type(form, "tName", "Katalog");
    Type(form, "tValue", "%DESTDIR");
    SavePicture(form, "DlgAddRegKey");
    SaveDarkPicture(form, "DlgAddRegKey");
}

} // namespace
} // namespace quillon::test
