#include "ui/controls/complete_variable.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class CompleteVariablesTest : public testing::Test {
protected:
    void Take(PrefixTable table)
    {
        CompleteVariables(&field, table);
        ShowActive(field);
    }
    QString Typed(const char* keys)
    {
        field.selectAll();
        TypeKeys(field, keys);
        return field.text();
    }

    QLineEdit field;
};

TEST_F(CompleteVariablesTest, SwallowsTheLettersOfAVariableThatIsTypedInFull)
{
    Take(PrefixTable::ProgramOrDocument);
    EXPECT_EQ(Typed("%DE"), "%DESTDIR\\");
    EXPECT_EQ(Typed("%DESTDIR\\Bin"), "%DESTDIR\\Bin");
    EXPECT_EQ(Typed("%PROGRAMFILES\\App\\%DE"), "%PROGRAMFILES\\App\\%DE");
    EXPECT_EQ(Typed("%DEBin"), "%DESTDIR\\Bin");
    EXPECT_EQ(field.cursorPosition(), field.text().size());
}

TEST_F(CompleteVariablesTest, SwallowsThemInFieldsForFoldersToo)
{
    Take(PrefixTable::Folder);
    EXPECT_EQ(Typed("%DESTDIR\\Bin"), "%DESTDIR\\Bin");
    EXPECT_EQ(Typed("%COMPDIR3\\STDIR"), "%COMPDIR3\\STDIR");
    EXPECT_EQ(Typed("%DE\\STDIR"), "%DESTDIR\\STDIR");
}

TEST_F(CompleteVariablesTest, TakesLettersAsTheyAreOnceTheTextWasChangedOtherwise)
{
    Take(PrefixTable::Folder);
    EXPECT_EQ(Typed("%DE"), "%DESTDIR");
    QTest::keyClick(&field, Qt::Key_Backspace);
    TypeKeys(field, "R");
    EXPECT_EQ(field.text(), "%DESTDIR");
    TypeKeys(field, "STDIR");
    EXPECT_EQ(field.text(), "%DESTDIRSTDIR");
    EXPECT_EQ(Typed("%DE"), "%DESTDIR");
    field.insert("STD");
    EXPECT_EQ(field.text(), "%DESTDIRSTD") << "pasted";
    EXPECT_EQ(Typed("%DE"), "%DESTDIR");
    field.setCursorPosition(0);
    TypeKeys(field, "S");
    EXPECT_EQ(field.text(), "S%DESTDIR");
}

} // namespace
} // namespace quillon::test
