#include "actions/forms/DlgAddINIentry.h"

#include "actions/ini_list.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgAddINIentryTest : public WindowTest {
protected:
    void SetUp() override { ShowActive(form); }

    Text list = "-- WIN.INI --\r\n[A]\r\n";
    DlgAddINIentry form{list, ask, nullptr};
};

TEST_F(DlgAddINIentryTest, MakesTheLineOfAValue)
{
    EXPECT_EQ(form.windowTitle(), "Lägg till värde");
    EXPECT_TRUE(form.tName->hasFocus());
    Type(form, "tName", "Path");
    Type(form, "tValue", "%DESTDIR");
    QTest::keyClick(form.tValue, Qt::Key_Return);
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(form.Lines, "Path=%DESTDIR\r\n");
}

TEST_F(DlgAddINIentryTest, BeginsALineBehindOneThatHasNoEnd)
{
    list = "-- WIN.INI --\r\n[A]\r\nb=1";
    Type(form, "tName", "a");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Lines, "\r\na=\r\n");
}

TEST_F(DlgAddINIentryTest, AllowsAnEmptyValue)
{
    Type(form, "tName", "Name");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Lines, "Name=\r\n");
}

TEST_F(DlgAddINIentryTest, ClosesWithoutALineWhenNothingWasTyped)
{
    Click(form, "cmdOK");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Lines, "");
}

TEST_F(DlgAddINIentryTest, AsksForTheNameOfAValue)
{
    ask.Expect({BoxKind::Inform, "Info", "Du måste ange ett namn!"});
    Type(form, "tValue", "x");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.tName->hasFocus());
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.OK);
    EXPECT_EQ(form.Lines, "");
}

TEST_F(DlgAddINIentryTest, StaysOpenWhereTheListHasNoRoom)
{
    list.assign(kMaxIniListLength - 7, 'x');
    list += "\r\n";
    Type(form, "tName", "a");
    Type(form, "tValue", "bc");
    ask.Expect({BoxKind::Critical, "Fel",
                "Listan över INI-filer kan innehålla högst 32767 tecken! Ingenting har lagts "
                "till."});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(TextIn(form, "tValue"), "bc");
    Type(form, "tValue", "b");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Lines, "a=b\r\n");
}

TEST_F(DlgAddINIentryTest, AppendsAVariableToTheValue)
{
    Type(form, "tValue", "a");
    ask.choices = {{{"%WINDIR"}}};
    Click(form, "cmdVariables");
    EXPECT_EQ(TextIn(form, "tValue"), "a%WINDIR");
    EXPECT_TRUE(form.tValue->hasFocus());
}

TEST_F(DlgAddINIentryTest, LooksRight)
{
    Type(form, "tName", "Katalog");
    Type(form, "tValue", "%DESTDIR\\Åäö");
    SavePicture(form, "DlgAddINIentry");
    SaveDarkPicture(form, "DlgAddINIentry");
}

} // namespace
} // namespace quillon::test
