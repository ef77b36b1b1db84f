#include "actions/forms/DlgRunAppAfter.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

constexpr const char* kLowerCase = "Du har angett en variabel med gemener i fältet 'Filnamn'! En "
                                   "variabel får endast bestå av versaler, tex '%DESTDIR'.";
constexpr const char* kPrograms[] = {"tProgramName1", "tProgramName2"};

class DlgRunAppAfterTest : public WindowTest {
protected:
    section::RunAppAfter& run = session.project.RunAppAfter;
};

TEST_F(DlgRunAppAfterTest, ShowsTheProgramsOfTheProject)
{
    run = {.AppFileName1 = "%DESTDIR\\a.exe",
           .AppParam1 = "/a",
           .AppFileName2 = "%WINDIR\\b.exe",
           .AppParam2 = "/b"};
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Kör följande program efter installation");
    EXPECT_EQ(TextIn(form, "tProgramName1"), "%DESTDIR\\a.exe");
    EXPECT_EQ(TextIn(form, "tParameters1"), "/a");
    EXPECT_EQ(TextIn(form, "tProgramName2"), "%WINDIR\\b.exe");
    EXPECT_EQ(TextIn(form, "tParameters2"), "/b");
    EXPECT_TRUE(form.tProgramName1->hasFocus());
    EXPECT_EQ(form.tProgramName2->accessibleName(), "Filnamn");
    EXPECT_EQ(form.tParameters2->accessibleName(), "Parametrar");
    QStringList frames;
    for (const auto* frame : form.findChildren<QGroupBox*>())
        frames << frame->title();
    EXPECT_EQ(frames, QStringList({"Program 1", "Program 2"}));
    SavePicture(form, "DlgRunAppAfter");
    SaveDarkPicture(form, "DlgRunAppAfter");
}

TEST_F(DlgRunAppAfterTest, StoresWhatWasTyped)
{
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tProgramName1", "%DEProg.exe");
    Type(form, "tParameters1", "/a \"%DESTDIR\\x\"");
    Type(form, "tProgramName2", "%WInotepad.exe");
    Type(form, "tParameters2", "läs.txt");
    EXPECT_EQ(run.AppFileName1, "") << "it counts on OK";
    Click(form, "cmdOK");
    EXPECT_EQ(run.AppFileName1, "%DESTDIR\\Prog.exe");
    EXPECT_EQ(run.AppParam1, "/a \"%DESTDIR\\x\"");
    EXPECT_EQ(run.AppFileName2, "%WINDIR\\notepad.exe");
    EXPECT_EQ(run.AppParam2, "läs.txt");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgRunAppAfterTest, ChangesNothingOnCancel)
{
    run.AppFileName1 = "a.exe";
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    for (const char* field : {"tProgramName1", "tParameters1", "tProgramName2", "tParameters2"})
        Type(form, field, "x");
    Click(form, "cmdCancel");
    EXPECT_EQ(run.AppFileName1, "a.exe");
    EXPECT_EQ(run.AppParam1, "");
    EXPECT_EQ(run.AppFileName2, "");
    EXPECT_EQ(run.AppParam2, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgRunAppAfterTest, PutsAProgramInOrderWhenItsFieldIsLeft)
{
    const std::pair<const char*, const char*> cases[] = {
        {"C:\\Temp\\%DESTDIR\\Prog.exe", "%DESTDIR\\Prog.exe"},
        {"%DESTDIR\\Prog\\", "%DESTDIR\\Prog"},
        {"C:\\%WINDIR\\", "%WINDIR"},
        {"a.exe", "a.exe"},
    };
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    for (const char* field : kPrograms)
        for (const auto& [typed, left] : cases) {
            // Pasted, since a variable that is typed completes itself.
            Type(form, field, "");
            Find<QLineEdit>(form, field).insert(typed);
            EXPECT_EQ(TextIn(form, field), typed);
            form.tParameters1->setFocus();
            EXPECT_EQ(TextIn(form, field), left);
        }
    Type(form, "tParameters1", "C:\\%DESTDIR\\");
    form.tProgramName1->setFocus();
    EXPECT_EQ(TextIn(form, "tParameters1"), "C:\\%DESTDIR\\") << "parameters are as they are";
}

TEST_F(DlgRunAppAfterTest, TellsOnceOfAVariableInSmallLetters)
{
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    for (const char* field : kPrograms) {
        Type(form, field, "%destdir\\x");
        ask.Expect({BoxKind::Warn, "Variabelnamn ej korrekt", kLowerCase});
        form.tParameters1->setFocus();
        EXPECT_EQ(TextIn(form, field), "%destdir\\x");
    }
    EXPECT_EQ(ask.shown.size(), 2U);
    Click(form, "cmdOK");
    EXPECT_EQ(run.AppFileName1, "%destdir\\x");
    EXPECT_EQ(run.AppFileName2, "%destdir\\x");
}

TEST_F(DlgRunAppAfterTest, LeavesTheFieldOnOk)
{
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tProgramName2", "C:\\%destdir\\x\\");
    ask.Expect({BoxKind::Warn, "Variabelnamn ej korrekt", kLowerCase});
    QTest::keyClick(form.tProgramName2, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(run.AppFileName2, "%destdir\\x");
}

TEST_F(DlgRunAppAfterTest, ChecksTheFieldOnceTheMouseHasPressedOkWhole)
{
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tProgramName1", "%destdir\\x");
    QTest::mousePress(form.cmdOK, Qt::LeftButton);
    EXPECT_TRUE(ask.shown.empty()) << "a box now would take the release";
    ask.Expect({BoxKind::Warn, "Variabelnamn ej korrekt", kLowerCase});
    QTest::mouseRelease(form.cmdOK, Qt::LeftButton);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(run.AppFileName1, "%destdir\\x");
}

TEST_F(DlgRunAppAfterTest, ChecksNothingOnCancel)
{
    DlgRunAppAfter form(session, nullptr);
    ShowActive(form);
    Type(form, "tProgramName1", "%destdir\\x");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(DlgRunAppAfterTest, TakesNoMoreThanTheProjectHolds)
{
    DlgRunAppAfter form(session, nullptr);
    for (const QLineEdit* field :
         {form.tProgramName1, form.tParameters1, form.tProgramName2, form.tParameters2})
        EXPECT_EQ(field->maxLength(), 199);
}

} // namespace
} // namespace quillon::test
