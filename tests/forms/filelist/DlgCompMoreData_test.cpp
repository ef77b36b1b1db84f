// The two forms for what belongs to a component beside its name and folder.
#include "filelist/forms/DlgCompMoreData.h"

#include "filelist/forms/DlgCompMoreDataAdv.h"
#include "support/window_test.h"
#include "ui/kit/typed_text.h"

namespace quillon::test {
namespace {

class DlgCompMoreDataTest : public WindowTest {
protected:
    section::FileComponent& component = session.project.FileComponents[2];

    void OpenAdvanced(QWidget& form, std::function<void(QDialog&)> use)
    {
        OnNextDialog(std::move(use));
        Click(form, "CmdAdvanced");
    }
    static QPlainTextEdit& Area(QWidget& form, const char* name)
    {
        return Find<QPlainTextEdit>(form, name);
    }
};

TEST_F(DlgCompMoreDataTest, OpensWithTheComponentOfANewProject)
{
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Komponent - mer inställningar och beskrivning");
    EXPECT_EQ(form.sComponent->text(), "   (# 3)");
    EXPECT_EQ(form.tCompText->toPlainText(), "");
    EXPECT_TRUE(form.cCompDefault->isChecked());
    EXPECT_FALSE(form.cCanChangeDestDir->isChecked());
    EXPECT_FALSE(form.cMustAlwaysBeInstalled->isChecked());
    EXPECT_TRUE(form.tCompText->hasFocus());
}

TEST_F(DlgCompMoreDataTest, ShowsWhatTheComponentHolds)
{
    component = {.CompName = "Hjälp & <b>bilder</b>",
                 .CompText = "Handbok och bilder",
                 .CompDefault = 0,
                 .CompCanChangeDir = 1,
                 .CompMustAlwaysBeInstalled = 0};
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(FromQt(form.sComponent->text()), "Hjälp & <b>bilder</b>   (# 3)");
    EXPECT_EQ(form.tCompText->toPlainText(), "Handbok och bilder");
    EXPECT_FALSE(form.cCompDefault->isChecked());
    EXPECT_TRUE(form.cCanChangeDestDir->isChecked());
    EXPECT_FALSE(form.cMustAlwaysBeInstalled->isChecked());
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgCompMoreDataTest, StoresOnOk)
{
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tCompText, "Exempel på Ж€");
    Click(form, "cCompDefault");
    Click(form, "cCanChangeDestDir");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(component.CompText, "Exempel på €");
    EXPECT_EQ(component.CompDefault, 0);
    EXPECT_EQ(component.CompCanChangeDir, 1);
    EXPECT_EQ(component.CompMustAlwaysBeInstalled, 0);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(session.project.FileComponents[1].CompText, "");
}

TEST_F(DlgCompMoreDataTest, TicksFromTheStartWhatMustBeInstalled)
{
    component.CompDefault = 0;
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    Click(form, "cMustAlwaysBeInstalled");
    EXPECT_TRUE(form.cCompDefault->isChecked());
    Click(form, "cCompDefault");
    EXPECT_FALSE(form.cCompDefault->isChecked()) << "it can be unticked by hand";
    Click(form, "cmdOK");
    EXPECT_EQ(component.CompMustAlwaysBeInstalled, 1);
    EXPECT_EQ(component.CompDefault, 1) << "but ends ticked";
}

TEST_F(DlgCompMoreDataTest, LeavesTheTickWhenAComponentNeedNotBeInstalledAnyMore)
{
    component.CompMustAlwaysBeInstalled = 1;
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    Click(form, "cMustAlwaysBeInstalled");
    Click(form, "cmdOK");
    EXPECT_EQ(component.CompMustAlwaysBeInstalled, 0);
    EXPECT_EQ(component.CompDefault, 1);
}

TEST_F(DlgCompMoreDataTest, TakesNoLineBreakInItsText)
{
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tCompText, "En");
    for (const Qt::KeyboardModifier with : {Qt::ControlModifier, Qt::ShiftModifier}) {
        QTest::keyClick(form.tCompText, Qt::Key_Return, with);
        QTest::keyClick(form.tCompText, Qt::Key_Enter, with | Qt::KeypadModifier);
    }
    EXPECT_EQ(TypedText(form.tCompText), "En");
    EXPECT_TRUE(form.isVisible());
    QApplication::clipboard()->setText("\nTvå\r\nTre");
    form.tCompText->paste();
    EXPECT_EQ(TypedText(form.tCompText), "En Två Tre");
    QTest::keyClick(form.tCompText, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible()) << "Enter is OK";
    EXPECT_EQ(component.CompText, "En Två Tre");
}

TEST_F(DlgCompMoreDataTest, LeavesLineBreaksThatTheTextHasAlready)
{
    component.CompText = "En\r\nTvå";
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    form.tCompText->moveCursor(QTextCursor::End);
    QApplication::clipboard()->setText(" till\nsist");
    form.tCompText->paste();
    form.tCompText->moveCursor(QTextCursor::Start);
    TypeKeys(*form.tCompText, "Nr ");
    Click(form, "cmdOK");
    EXPECT_EQ(component.CompText, "Nr En\r\nTvå till sist");
}

TEST_F(DlgCompMoreDataTest, TakesNoMoreThanTheProjectFileHolds)
{
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    const auto pasteTwice = [](auto& field, int longest) {
        for (const int length : {longest, longest + 1}) {
            QApplication::clipboard()->setText(QString(length, length == longest ? 'x' : 'y'));
            field.selectAll();
            field.paste();
        }
    };
    pasteTwice(*form.tCompText, 249);
    OpenAdvanced(form, [&](QDialog& advanced) {
        pasteTwice(Find<QLineEdit>(advanced, "tUpdateReferenceFile"), 127);
        pasteTwice(Find<QLineEdit>(advanced, "tUpdateInfoBoxTitle"), 127);
        pasteTwice(Area(advanced, "tUpdateInfoBoxText"), 299);
        Click(advanced, "cmdOK");
    });
    Click(form, "cmdOK");
    EXPECT_EQ(component.CompText, Text(249, 'x'));
    EXPECT_EQ(component.CompAdvUpdateRefFile, Text(127, 'x'));
    EXPECT_EQ(component.CompAdvUpdateInfoBoxTitle, Text(127, 'x'));
    EXPECT_EQ(component.CompAdvUpdateInfoBoxText, Text(299, 'x'));
}

TEST_F(DlgCompMoreDataTest, KeepsAdvancedValuesUntilOk)
{
    component.CompAdvUpdateRefFile = "%DESTDIR\\gammal.exe";
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    OpenAdvanced(form, [](QDialog& advanced) {
        EXPECT_EQ(advanced.windowTitle(), "Komponent - avancerade inställningar");
        EXPECT_FALSE(Find<QCheckBox>(advanced, "cOnlyUpdate").isChecked());
        EXPECT_EQ(TextIn(advanced, "tUpdateReferenceFile"), "%DESTDIR\\gammal.exe");
        Click(advanced, "cOnlyUpdate");
        Type(advanced, "tUpdateReferenceFile", "%DESTDIR\\prog.exe");
        Type(advanced, "tUpdateInfoBoxTitle", "Fel");
        TypeKeys(Area(advanced, "tUpdateInfoBoxText"), "Saknas");
        Click(advanced, "cmdOK");
    });
    EXPECT_EQ(component.CompAdvOnlyUpdate, 0);
    EXPECT_EQ(component.CompAdvUpdateRefFile, "%DESTDIR\\gammal.exe");
    OpenAdvanced(form, [](QDialog& advanced) {
        EXPECT_TRUE(Find<QCheckBox>(advanced, "cOnlyUpdate").isChecked()) << "the form has them";
        EXPECT_EQ(TextIn(advanced, "tUpdateInfoBoxTitle"), "Fel");
        Type(advanced, "tUpdateInfoBoxTitle", "Nej");
        Click(advanced, "cmdCancel");
    });
    Click(form, "cmdOK");
    EXPECT_EQ(component.CompAdvOnlyUpdate, 1);
    EXPECT_EQ(component.CompAdvUpdateRefFile, "%DESTDIR\\prog.exe");
    EXPECT_EQ(component.CompAdvUpdateInfoBoxTitle, "Fel");
    EXPECT_EQ(component.CompAdvUpdateInfoBoxText, "Saknas");
}

TEST_F(DlgCompMoreDataTest, DropsEverythingOnCancel)
{
    for (const bool byKey : {false, true}) {
        DlgCompMoreData form(2, session, nullptr);
        ShowActive(form);
        TypeKeys(*form.tCompText, "x");
        Click(form, "cMustAlwaysBeInstalled");
        OpenAdvanced(form, [](QDialog& advanced) {
            Click(advanced, "cOnlyUpdate");
            Click(advanced, "cmdOK");
        });
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Accepted());
        EXPECT_EQ(component.CompText, "");
        EXPECT_EQ(component.CompMustAlwaysBeInstalled, 0);
        EXPECT_EQ(component.CompAdvOnlyUpdate, 0);
    }
}

TEST_F(DlgCompMoreDataTest, MarksTheProjectByItsOwnOk)
{
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    OpenAdvanced(form, [](QDialog& advanced) { Click(advanced, "cmdCancel"); });
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    OpenAdvanced(form, [](QDialog& advanced) { Click(advanced, "cmdOK"); });
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    Click(form, "cmdOK");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgCompMoreDataTest, HasItsPictures)
{
    component = {.CompName = "Hjälp",
                 .CompText =
                     "Handbok med många bilder. Den kan läsas utan att programmet är igång.",
                 .CompAdvUpdateRefFile = "%DESTDIR\\prog.exe",
                 .CompAdvUpdateInfoBoxTitle = "Hjälp saknas",
                 .CompAdvUpdateInfoBoxText = "Hjälpen är inte installerad sen tidigare."};
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgCompMoreData");
    SaveDarkPicture(form, "DlgCompMoreData");
    DlgCompMoreDataAdv advanced(component, session, nullptr);
    ShowActive(advanced);
    SavePicture(advanced, "DlgCompMoreDataAdv");
    SaveDarkPicture(advanced, "DlgCompMoreDataAdv");
}

TEST_F(DlgCompMoreDataTest, LeavesTheProjectUnchangedOnCancelBehindTheAdvancedForm)
{
    const section::FileComponent before = component;
    DlgCompMoreData form(2, session, nullptr);
    ShowActive(form);
    OpenAdvanced(form, [](QDialog& advanced) {
        Type(advanced, "tUpdateReferenceFile", "%DESTDIR\\Prog.exe");
        Click(advanced, "cmdOK");
    });
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    Click(form, "cmdCancel");
    EXPECT_EQ(component.CompAdvUpdateRefFile, before.CompAdvUpdateRefFile);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
