#include "actions/forms/DlgGetRegKey.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgGetRegKeyTest : public WindowTest {
protected:
    section::RunAppSelfX& place = session.project.RunAppSelfX;
};

TEST_F(DlgGetRegKeyTest, ShowsThePlaceOfTheProject)
{
    place.DD_iHKEYIndex = "2";
    place.DD_sSubKey = "Software\\Firma";
    place.DD_sValueName = "Katalog";
    DlgGetRegKey form(place, session, nullptr);
    EXPECT_EQ(form.windowTitle(), "Specificera Registry-nyckel");
    EXPECT_EQ(form.ComboHKEY->currentText(), "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(form.ComboHKEY->count(), 6);
    EXPECT_EQ(TextIn(form, "tSubKey"), "Software\\Firma");
    EXPECT_EQ(TextIn(form, "tValueName"), "Katalog");
    bool hasPrompt = false;
    for (const QLabel* label : form.findChildren<QLabel*>())
        hasPrompt = hasPrompt || label->text() == "Här kan du specificera var i Registry som "
                                                  "%DESTDIR (huvuddestinationskatalogen) ska hämta "
                                                  "sitt nya värde.";
    EXPECT_TRUE(hasPrompt);
}

TEST_F(DlgGetRegKeyTest, TakesAPlaceAsItIsTyped)
{
    DlgGetRegKey form(place, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.ComboHKEY->currentIndex(), 0);
    form.ComboHKEY->setFocus();
    QTest::keyClick(form.ComboHKEY, Qt::Key_End);
    Type(form, "tSubKey", "Config");
    Type(form, "tValueName", "x");
    EXPECT_EQ(place.DD_sSubKey, "");
    Click(form, "cmdOK");
    EXPECT_EQ(place.DD_iHKEYIndex, "5");
    EXPECT_EQ(place.DD_sSubKey, "Config");
    EXPECT_EQ(place.DD_sValueName, "x");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgGetRegKeyTest, ChangesNothingOnCancel)
{
    DlgGetRegKey form(place, session, nullptr);
    ShowActive(form);
    Type(form, "tSubKey", "Config");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_EQ(place.DD_sSubKey, "");
    EXPECT_EQ(place.DD_iHKEYIndex, "0");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgGetRegKeyTest, KeepsARootThatThereIsNot)
{
    for (const char* index : {"6", "-1", "32767", "4294967296"}) {
        place.DD_iHKEYIndex = index;
        DlgGetRegKey form(place, session, nullptr);
        EXPECT_EQ(form.ComboHKEY->currentIndex(), -1);
        form.cmdOK->click();
        EXPECT_EQ(place.DD_iHKEYIndex, index);
    }
}

TEST_F(DlgGetRegKeyTest, TakesNoMoreThanTheProjectFileHolds)
{
    DlgGetRegKey form(place, session, nullptr);
    for (const auto& [field, longest] :
         {std::pair{form.tSubKey, 254}, std::pair{form.tValueName, 199}}) {
        QApplication::clipboard()->setText(QString(longest + 1, 'x'));
        field->paste();
        EXPECT_EQ(field->text(), "");
        QApplication::clipboard()->setText(QString(longest, 'x'));
        field->paste();
        EXPECT_EQ(field->text().size(), longest);
    }
}

TEST_F(DlgGetRegKeyTest, LooksRight)
{
    place = {.DD_iHKEYIndex = "2", .DD_sSubKey = "\\SOFTWARE\\Firma", .DD_sValueName = "Katalog"};
    DlgGetRegKey form(place, session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgGetRegKey");
}

} // namespace
} // namespace quillon::test
