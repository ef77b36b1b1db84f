#include "actions/forms/DlgInstallOptInternetAdv.h"

#include "support/window_test.h"
#include "ui/controls/PathLabel.h"

namespace quillon::test {
namespace {

class DlgInstallOptInternetAdvTest : public WindowTest {
protected:
    void Open()
    {
        form = std::make_unique<DlgInstallOptInternetAdv>(values, session, nullptr);
        ShowActive(*form);
    }
    void Fill()
    {
        values.ExpandEXEInWinTempMap = kOn;
        values.program = {.ProgramFilename = "C:\\Data\\Koll.exe",
                          .Param = "/a",
                          .ReturnValueExit = "1",
                          .ReturnValueBack = "2",
                          .ReturnValueDD = "3",
                          .DD_iHKEYIndex = "2",
                          .DD_sSubKey = "Software\\Firma",
                          .DD_sValueName = "Katalog",
                          .VisibleWin = kOn};
    }

    InternetAdvanced values;
    std::unique_ptr<DlgInstallOptInternetAdv> form;
};

TEST_F(DlgInstallOptInternetAdvTest, OpensWithoutAProgram)
{
    Open();
    EXPECT_FALSE(form->cADExpandEXEInWinTempMap->isChecked());
    EXPECT_EQ(form->sProgramFilename->text(), "");
    for (const char* field : {"tParam", "tReturnValueExit", "tReturnValueBack", "tReturnValueDD"})
        EXPECT_EQ(TextIn(*form, field), "") << field;
    EXPECT_FALSE(form->oVisible->isChecked());
    EXPECT_TRUE(form->oInvisible->isChecked());
}

TEST_F(DlgInstallOptInternetAdvTest, ShowsWhatThereIsAndKeepsItOnOk)
{
    Fill();
    Open();
    EXPECT_TRUE(form->cADExpandEXEInWinTempMap->isChecked());
    EXPECT_EQ(form->sProgramFilename->text(), "C:\\Data\\Koll.exe");
    EXPECT_EQ(TextIn(*form, "tParam"), "/a");
    EXPECT_EQ(TextIn(*form, "tReturnValueExit"), "1");
    EXPECT_EQ(TextIn(*form, "tReturnValueBack"), "2");
    EXPECT_EQ(TextIn(*form, "tReturnValueDD"), "3");
    EXPECT_TRUE(form->oVisible->isChecked());
    Click(*form, "cmdOK");
    EXPECT_EQ(values.ExpandEXEInWinTempMap, kOn);
    EXPECT_EQ(values.program.ProgramFilename, "C:\\Data\\Koll.exe");
    EXPECT_EQ(values.program.DD_sSubKey, "Software\\Firma");
    EXPECT_EQ(values.program.VisibleWin, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgInstallOptInternetAdvTest, SaysWhatItsControlsAreFor)
{
    Open();
    const std::pair<const char*, const char*> captions[] = {
        {"cADExpandEXEInWinTempMap",
         "&Packa upp filerna i den självuppackande installationen i Windows temporära katalog"},
        {"oVisible", "Programmet är &visuellt och har ett grafiskt gränssnitt"},
        {"oInvisible", "Programmet är &osynligt och saknar ett grafiskt gränssnitt"},
        {"cmdReset", "Ta bort program"},
        {"CmdSelRegKey", "&Specificera nyckel i Registry..."}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(Find<QAbstractButton>(*form, name).text(), caption);
    QStringList labels;
    for (const QLabel* label : form->findChildren<QLabel*>())
        labels << label->text();
    for (const char* caption : {"&Inparametrar till program:", "&Avbryt vid följande returvärde:",
                                "&Backa vid följande returvärde:",
                                "&Ge %DESTDIR ett nytt värde vid följande returvärde:"})
        EXPECT_TRUE(labels.contains(caption)) << caption;
    QStringList frames;
    for (const QGroupBox* frame : form->findChildren<QGroupBox*>())
        frames << frame->title();
    EXPECT_EQ(frames, QStringList({"Kör ett program i den självuppackande installationen",
                                   "Hantering av returvärden"}));
}

TEST_F(DlgInstallOptInternetAdvTest, TakesWhatIsTyped)
{
    Open();
    ask.choices = {{{"C:\\Data\\a.exe"}}};
    Click(*form, "cmdSelectProgram");
    EXPECT_EQ(form->sProgramFilename->text(), "C:\\Data\\a.exe");
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Välj programfil");
    EXPECT_EQ(ask.questions[0].filter, "Programfiler (*.exe)|*.exe");
    EXPECT_EQ(ask.questions[0].defaultExtension, ".exe");
    Click(*form, "cADExpandEXEInWinTempMap");
    Type(*form, "tParam", "%DESTDIR /q");
    Type(*form, "tReturnValueExit", "-1");
    Type(*form, "tReturnValueBack", "2");
    Type(*form, "tReturnValueDD", "9999999999");
    Click(*form, "oVisible");
    EXPECT_EQ(values.program.ProgramFilename, "") << "nothing is stored before OK";
    Click(*form, "cmdOK");
    EXPECT_EQ(values.ExpandEXEInWinTempMap, kOn);
    EXPECT_EQ(values.program.ProgramFilename, "C:\\Data\\a.exe");
    EXPECT_EQ(values.program.Param, "%DESTDIR /q");
    EXPECT_EQ(values.program.ReturnValueExit, "-1");
    EXPECT_EQ(values.program.ReturnValueBack, "2");
    EXPECT_EQ(values.program.ReturnValueDD, "999999999") << "as long as the project file holds";
    EXPECT_EQ(values.program.VisibleWin, kOn);
}

TEST_F(DlgInstallOptInternetAdvTest, RefusesAProgramThatAProjectCannotName)
{
    Fill();
    Open();
    const Text tooLong = Text("C:\\").append(200, 'x').append(".exe");
    ask.choices = {{}, {{"C:\\日.exe"}}, {{tooLong}}};
    Click(*form, "cmdSelectProgram");
    ask.Expect({BoxKind::Critical, "Ogiltiga tecken hittade"});
    Click(*form, "cmdSelectProgram");
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(*form, "cmdSelectProgram");
    EXPECT_EQ(form->sProgramFilename->text(), "C:\\Data\\Koll.exe");
}

TEST_F(DlgInstallOptInternetAdvTest, TakesTheProgramAwayWithAllThatBelongsToIt)
{
    Fill();
    Open();
    Click(*form, "cmdReset");
    EXPECT_EQ(form->sProgramFilename->text(), "");
    EXPECT_EQ(TextIn(*form, "tParam"), "");
    EXPECT_EQ(values.program.ProgramFilename, "C:\\Data\\Koll.exe");
    Click(*form, "cmdOK");
    const section::RunAppSelfX& program = values.program;
    for (const Text& text :
         {program.ProgramFilename, program.Param, program.ReturnValueExit, program.ReturnValueBack,
          program.ReturnValueDD, program.DD_sSubKey, program.DD_sValueName})
        EXPECT_EQ(text, "");
    EXPECT_EQ(program.DD_iHKEYIndex, "0");
    EXPECT_EQ(program.VisibleWin, kOff);
    EXPECT_EQ(values.ExpandEXEInWinTempMap, kOn) << "which is not about the program";
}

TEST_F(DlgInstallOptInternetAdvTest, AsksForThePlaceInTheRegistry)
{
    Fill();
    Open();
    OnNextDialog([](QDialog& place) {
        EXPECT_EQ(place.objectName(), "DlgGetRegKey");
        EXPECT_EQ(Find<QComboBox>(place, "ComboHKEY").currentIndex(), 2);
        EXPECT_EQ(TextIn(place, "tSubKey"), "Software\\Firma");
        Type(place, "tSubKey", "Software\\Annan");
        Click(place, "cmdOK");
    });
    Click(*form, "CmdSelRegKey");
    EXPECT_EQ(values.program.DD_sSubKey, "Software\\Firma");
    OnNextDialog([](QDialog& place) {
        EXPECT_EQ(TextIn(place, "tSubKey"), "Software\\Annan");
        Type(place, "tSubKey", "Software\\Tredje");
        Click(place, "cmdCancel");
    });
    Click(*form, "CmdSelRegKey");
    Click(*form, "cmdOK");
    EXPECT_EQ(values.program.DD_sSubKey, "Software\\Annan");
}

TEST_F(DlgInstallOptInternetAdvTest, ChangesNothingOnCancel)
{
    Fill();
    Open();
    Type(*form, "tParam", "x");
    Click(*form, "cmdReset");
    Click(*form, "cADExpandEXEInWinTempMap");
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(values.program.ProgramFilename, "C:\\Data\\Koll.exe");
    EXPECT_EQ(values.program.Param, "/a");
    EXPECT_EQ(values.ExpandEXEInWinTempMap, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgInstallOptInternetAdvTest, TellsWhatIsNotSavedWithoutAProgram)
{
    Open();
    EXPECT_FALSE(form->sProgramWarning->isVisible());
    OnNextDialog([](QDialog& place) {
        Type(place, "tSubKey", "x");
        Click(place, "cmdOK");
    });
    Click(*form, "CmdSelRegKey");
    EXPECT_TRUE(form->sProgramWarning->isVisible());
    EXPECT_FALSE(form->cmdReset->isEnabled()) << "there is no program to remove";
    Type(*form, "tReturnValueExit", "1");
    EXPECT_TRUE(form->sProgramWarning->isVisible());
    QApplication::processEvents();
    SavePicture(*form, "DlgInstallOptInternetAdv-varning");
    ask.choices = {{{"C:\\a.exe"}}};
    Click(*form, "cmdSelectProgram");
    EXPECT_FALSE(form->sProgramWarning->isVisible());
    Click(*form, "cmdReset");
    EXPECT_FALSE(form->sProgramWarning->isVisible());
    EXPECT_FALSE(form->cmdReset->isEnabled());
}

TEST_F(DlgInstallOptInternetAdvTest, LooksRight)
{
    Fill();
    Open();
    SavePicture(*form, "DlgInstallOptInternetAdv");
    SaveDarkPicture(*form, "DlgInstallOptInternetAdv");
}

} // namespace
} // namespace quillon::test
