// The shape that all forms share, on a small form of its own.
#include "ui/Form.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgProbe : public EditorForm {
public:
    DlgProbe(Session& session) : EditorForm("DlgProbe", "Prov", session, nullptr)
    {
        section::Version& version = session.project.Version;
        Arrange(Down({
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
    form.tText->setPlainText("12345678\n9");
    EXPECT_EQ(form.tText->toPlainText(), "12345678\n");
}

TEST_F(FormKit, NamesItsControlsForScreenReaders)
{
    DlgProbe form(session);
    EXPECT_EQ(form.tName->accessibleName(), "Namn");
    EXPECT_EQ(form.tText->accessibleName(), "Text");
}

} // namespace
} // namespace quillon::test
