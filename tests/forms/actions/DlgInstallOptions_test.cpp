#include "actions/forms/DlgInstallOptions.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

enum Tab { kGeneral, kSystems, kInternet, kSign };

class DlgInstallOptionsTest : public WindowTest {
protected:
    void Open()
    {
        form = std::make_unique<DlgInstallOptions>(session, nullptr);
        ShowActive(*form);
    }
    void Open(Tab tab)
    {
        Open();
        form->XTab->setCurrentIndex(tab);
    }
    bool IsTicked(const char* name) { return Find<QAbstractButton>(*form, name).isChecked(); }
    QString CaptionOf(const char* name) { return Find<QAbstractButton>(*form, name).text(); }

    /// The names of the systems that are ticked.
    Text Systems()
    {
        Text ticked;
        for (const TargetSystem& system : kTargetSystems)
            if (IsTicked(system.control))
                ticked += Text(ticked.empty() ? "" : " ") + system.control;
        return ticked;
    }

    section::InstallOptions& options = session.project.InstallOptions;
    std::unique_ptr<DlgInstallOptions> form;
};

TEST_F(DlgInstallOptionsTest, ShowsTheOptionsOfANewProject)
{
    Open();
    EXPECT_EQ(form->windowTitle(), "Inställningar för installationsprogram");
    QStringList tabs;
    for (int i = 0; i < form->XTab->count(); ++i)
        tabs << form->XTab->tabText(i);
    EXPECT_EQ(tabs, QStringList({"Allmänt", "Operativsystem", "Internet", "Signering"}));
    EXPECT_EQ(form->XTab->currentIndex(), kGeneral);
    EXPECT_TRUE(form->ComboSetupFilename->hasFocus());
    EXPECT_EQ(form->ComboSetupFilename->currentText(), "SETUP.EXE");
    EXPECT_EQ(form->ComboRestartOption->currentText(), "Starta om vid behov (rekommenderas)");
    EXPECT_EQ(form->ComboTimeStamp->currentText(), "Ingen");
    EXPECT_EQ(TextIn(*form, "tSelfExtractFilename"), "self.exe");
    for (const char* on :
         {"oDelOldGroup", "cDontInstallSysFilesOnNewWin", "cExpandVariablesInRegistryKeys",
          "cExpandVariablesInDialogBoxes", "oWarnIfWrongOS"})
        EXPECT_TRUE(IsTicked(on)) << on;
    for (const char* off : {"oDoNotDelOldGroup", "cCreateAutorunFile", "cUninstallSupport",
                            "cCreateUninstallIcon", "oStopIfWrongOS", "cUseSign"})
        EXPECT_FALSE(IsTicked(off)) << off;
    EXPECT_EQ(Systems(), "cWin95 cWin95OSR2 cWin98 cWinME cWinNT4 cWinNT4SP3 cWin2000 cWinXP");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgInstallOptionsTest, SaysWhatItsControlsAreFor)
{
    Open();
    const std::pair<const char*, const char*> captions[] = {
        {"oDelOldGroup", "&Radera gammal programgrupp"},
        {"oDoNotDelOldGroup", "Radera &inte gammal programgrupp"},
        {"cCreateAutorunFile", "S&kapa Autorun-fil"},
        {"cUninstallSupport", "Stöd för &avinstallation"},
        {"cCreateUninstallIcon", "Skapa &även avinstallations-ikon"},
        {"cDontInstallSysFilesOnNewWin", "Installera inte systemfiler på Windows ME, 2000 och &XP"},
        {"cExpandVariablesInRegistryKeys", "Expandera variabler även i Registry-nycklar"},
        {"cExpandVariablesInDialogBoxes", "Expandera variabler även i dialogrutor (text)"},
        {"cWin95OSR2", "Windows 95 OSR2  (och senare)"},
        {"cWinNT4SP3", "Windows NT 4.0 SP3  (och senare)"},
        {"oWarnIfWrongOS", "&Varna om fel plattform"},
        {"oStopIfWrongOS", "Stoppa installationen om fel plattfor&m"},
        {"cUseSign", "&Signera självuppackande installationsprogram (för Internet)"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(CaptionOf(name), caption);
    const auto rowsOf = [](const QComboBox* list) {
        QStringList rows;
        for (int i = 0; i < list->count(); ++i)
            rows << list->itemText(i);
        return rows;
    };
    EXPECT_EQ(rowsOf(form->ComboSetupFilename),
              QStringList({"SETUP.EXE", "INSTALL.EXE", "SETUP32.EXE", "START.EXE"}));
    EXPECT_EQ(rowsOf(form->ComboRestartOption),
              QStringList({"Starta om vid behov (rekommenderas)", "Starta alltid om datorn",
                           "Starta aldrig om datorn"}));
    EXPECT_EQ(rowsOf(form->ComboTimeStamp), QStringList({"Ingen", "VeriSign TimeStamp Service"}));
}

TEST_F(DlgInstallOptionsTest, StoresTheGeneralOptions)
{
    Open();
    QTest::keyClick(form->ComboSetupFilename, Qt::Key_End);
    form->ComboRestartOption->setCurrentIndex(2);
    for (const char* control : {"oDoNotDelOldGroup", "cCreateAutorunFile", "cUninstallSupport",
                                "cCreateUninstallIcon", "cDontInstallSysFilesOnNewWin",
                                "cExpandVariablesInRegistryKeys", "cExpandVariablesInDialogBoxes"})
        Click(*form, control);
    EXPECT_EQ(options.SetupName, "SETUP.EXE") << "nothing is stored before OK";
    Click(*form, "cmdOK");
    EXPECT_EQ(options.SetupName, "START.EXE");
    EXPECT_EQ(options.RestartWindows, kOff);
    EXPECT_EQ(options.NeverRestartWindows, kOn);
    EXPECT_EQ(options.DeleteProgGroup, kOff);
    EXPECT_EQ(options.CreateAutorunFile, kOn);
    EXPECT_EQ(options.UninstallSupport, kOn);
    EXPECT_EQ(options.CreateUninstallIcon, kOn);
    EXPECT_EQ(options.DontInstallSysFilesOnNewWin, kOff);
    EXPECT_EQ(options.ExpandVariablesInRegistryKeys, "0");
    EXPECT_EQ(options.ExpandVariablesInDialogBoxes, "0");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    Open();
    EXPECT_EQ(form->ComboSetupFilename->currentIndex(), 3);
    EXPECT_EQ(form->ComboRestartOption->currentIndex(), 2);
    EXPECT_TRUE(IsTicked("oDoNotDelOldGroup"));
    EXPECT_FALSE(IsTicked("cExpandVariablesInRegistryKeys"));
}

TEST_F(DlgInstallOptionsTest, KeepsASetupNameThatIsNotOffered)
{
    options.SetupName = "Mitt.exe";
    Open();
    EXPECT_EQ(form->ComboSetupFilename->currentIndex(), -1);
    EXPECT_EQ(form->ComboSetupFilename->placeholderText(), "Mitt.exe");
    SavePicture(*form, "DlgInstallOptions-eget-namn");
    Click(*form, "cmdOK");
    EXPECT_EQ(options.SetupName, "Mitt.exe");
    Open();
    form->ComboSetupFilename->setCurrentIndex(1);
    Click(*form, "cmdCancel");
    EXPECT_EQ(options.SetupName, "Mitt.exe");
    Open();
    form->ComboSetupFilename->setCurrentIndex(1);
    Click(*form, "cmdOK");
    EXPECT_EQ(options.SetupName, "INSTALL.EXE");
}

TEST_F(DlgInstallOptionsTest, ReadsTextsThatHoldABooleanAfterALoad)
{
    options.ExpandVariablesInRegistryKeys = "-1";
    options.ExpandVariablesInDialogBoxes = "0";
    Open();
    EXPECT_TRUE(IsTicked("cExpandVariablesInRegistryKeys"));
    EXPECT_FALSE(IsTicked("cExpandVariablesInDialogBoxes"));
    Click(*form, "cExpandVariablesInDialogBoxes");
    Click(*form, "cmdOK");
    EXPECT_EQ(options.ExpandVariablesInRegistryKeys, "-1");
    EXPECT_EQ(options.ExpandVariablesInDialogBoxes, "-1");
}

TEST_F(DlgInstallOptionsTest, KeepsTheUninstallIconTogetherWithItsSupport)
{
    Open();
    Click(*form, "cCreateUninstallIcon");
    EXPECT_TRUE(IsTicked("cUninstallSupport"));
    Click(*form, "cUninstallSupport");
    EXPECT_FALSE(IsTicked("cCreateUninstallIcon"));
    Click(*form, "cUninstallSupport");
    EXPECT_FALSE(IsTicked("cCreateUninstallIcon"));
    EXPECT_TRUE(IsTicked("cUninstallSupport"));
}

TEST_F(DlgInstallOptionsTest, ChangesNothingOnCancel)
{
    options.UninstallSupport = kOn;
    options.CreateUninstallIcon = kOn;
    Open();
    Click(*form, "cUninstallSupport");
    form->ComboRestartOption->setCurrentIndex(1);
    form->XTab->setCurrentIndex(kSystems);
    Click(*form, "cWin95");
    form->XTab->setCurrentIndex(kInternet);
    Type(*form, "tSelfExtractFilename", "x.exe");
    form->XTab->setCurrentIndex(kSign);
    Click(*form, "cUseSign");
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(options.UninstallSupport, kOn);
    EXPECT_EQ(options.CreateUninstallIcon, kOn);
    EXPECT_EQ(options.RestartWindows, kOff);
    EXPECT_EQ(session.project.TargetOS.TargetOS_Win95, kOn);
    EXPECT_EQ(session.project.InstallOptionsInternet.SelfExtractFilename, "self.exe");
    EXPECT_EQ(session.project.Sign.SignSelfExtractFile, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgInstallOptionsTest, TakesNewerSystemsAlong)
{
    section::TargetOS& systems = session.project.TargetOS;
    for (const TargetSystem& system : kTargetSystems)
        systems.*system.isOn = kOff;
    Open(kSystems);
    EXPECT_EQ(Systems(), "");
    Click(*form, "cWin95OSR2");
    EXPECT_EQ(Systems(), "cWin95OSR2 cWin98");
    Click(*form, "cWin95OSR2");
    EXPECT_EQ(Systems(), "cWin98");
    Click(*form, "cWin98");
    Click(*form, "cWin95");
    EXPECT_EQ(Systems(), "cWin95 cWin95OSR2 cWin98");
    Click(*form, "cWinNT4");
    EXPECT_EQ(Systems(), "cWin95 cWin95OSR2 cWin98 cWinNT4 cWinNT4SP3");
    Click(*form, "cWinNT4");
    Click(*form, "cWinXP");
    Click(*form, "oStopIfWrongOS");
    Click(*form, "cmdOK");
    EXPECT_EQ(systems.TargetOS_Win95, kOn);
    EXPECT_EQ(systems.TargetOS_WinME, kOff);
    EXPECT_EQ(systems.TargetOS_WinNT4, kOff);
    EXPECT_EQ(systems.TargetOS_WinNT4SP3, kOn);
    EXPECT_EQ(systems.TargetOS_WinXP, kOn);
    EXPECT_EQ(systems.TargetOS_WarnIfWrong, kOff);
    EXPECT_EQ(systems.TargetOS_StopIfWrong, kOn);
}

TEST_F(DlgInstallOptionsTest, ShowsSystemsAsTheProjectHasThem)
{
    session.project.TargetOS.TargetOS_Win98 = kOff;
    Open(kSystems);
    EXPECT_TRUE(IsTicked("cWin95"));
    EXPECT_FALSE(IsTicked("cWin98"));
    Click(*form, "cmdOK");
    EXPECT_EQ(session.project.TargetOS.TargetOS_Win98, kOff);
}

TEST_F(DlgInstallOptionsTest, MovesTheFocusWithTheTab)
{
    Open();
    const char* const firsts[] = {"ComboSetupFilename", "cWin95", "tSelfExtractFilename",
                                  "cUseSign"};
    for (const int tab : {1, 2, 3, 0}) {
        QTest::mouseClick(form->XTab->tabBar(), Qt::LeftButton, {},
                          form->XTab->tabBar()->tabRect(tab).center());
        EXPECT_EQ(form->focusWidget()->objectName(), firsts[tab]);
    }
}

TEST_F(DlgInstallOptionsTest, ChoosesFilesForTheInternet)
{
    section::InstallOptionsInternet& internet = session.project.InstallOptionsInternet;
    Open(kInternet);
    Type(*form, "tSelfExtractFilename", "prog.exe");
    const Text tooLong = Text("C:\\").append(200, 'x');
    ask.choices = {{{"C:\\Data\\p.ico"}}, {}, {{tooLong}}};
    Click(*form, "cmdBrowseIcon");
    Click(*form, "cmdBrowseIcon");
    ask.Expect({BoxKind::Critical, "Fel"});
    Click(*form, "cmdBrowseIcon");
    EXPECT_EQ(ask.questions[0].title, "Välj ikon");
    EXPECT_EQ(ask.questions[0].folder, "C:\\");
    EXPECT_EQ(ask.questions[0].filter, "Ikonfiler (*.ico)|*.ico");
    Click(*form, "cmdOK");
    EXPECT_EQ(internet.SelfExtractFilename, "prog.exe");
    EXPECT_EQ(internet.SelfExtractIconFilename, "C:\\Data\\p.ico");
}

TEST_F(DlgInstallOptionsTest, KeepsTheFocusOnAWrongFileName)
{
    Open(kInternet);
    Type(*form, "tSelfExtractFilename", "self.zip");
    ask.Expect({BoxKind::Critical, "Fel namntillägg"});
    QTest::keyClick(form->tSelfExtractFilename, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_TRUE(form->tSelfExtractFilename->hasFocus());
    Type(*form, "tSelfExtractFilename", "");
    QTest::keyClick(form->tSelfExtractFilename, Qt::Key_Tab);
    EXPECT_TRUE(form->tSelfExtractIconFilename->hasFocus());
}

TEST_F(DlgInstallOptionsTest, ReturnsFromAnotherTabToAWrongFileName)
{
    Open(kInternet);
    Type(*form, "tSelfExtractFilename", "self.zip");
    ask.Expect({BoxKind::Critical, "Fel namntillägg"});
    QTest::mouseClick(form->XTab->tabBar(), Qt::LeftButton, {},
                      form->XTab->tabBar()->tabRect(kSign).center());
    QApplication::processEvents();
    EXPECT_EQ(form->XTab->currentIndex(), kInternet);
    EXPECT_TRUE(form->tSelfExtractFilename->hasFocus());
}

TEST_F(DlgInstallOptionsTest, TellsAWrongFileNameOnceOnOk)
{
    Open(kInternet);
    Type(*form, "tSelfExtractFilename", "self");
    for (const auto& press : {std::function([&] { Click(*form, "cmdOK"); }), std::function([&] {
                                  QTest::keyClick(form->tSelfExtractFilename, Qt::Key_Return);
                              })}) {
        ask.Expect({BoxKind::Critical, "Fel namntillägg"});
        press();
        QApplication::processEvents();
        EXPECT_TRUE(form->isVisible());
        EXPECT_TRUE(form->tSelfExtractFilename->hasFocus());
    }
    EXPECT_EQ(session.project.InstallOptionsInternet.SelfExtractFilename, "self.exe");
}

TEST_F(DlgInstallOptionsTest, ShowsAWrongFileNameThatTheProjectHasOnOk)
{
    session.project.InstallOptionsInternet.SelfExtractFilename = "self";
    Open();
    ask.Expect({BoxKind::Critical, "Fel namntillägg"});
    Click(*form, "cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->XTab->currentIndex(), kInternet);
    EXPECT_TRUE(form->tSelfExtractFilename->hasFocus());
}

TEST_F(DlgInstallOptionsTest, LetsGoOfAWrongFileNameOnCancel)
{
    for (const bool byKey : {true, false}) {
        Open(kInternet);
        Type(*form, "tSelfExtractFilename", "self");
        if (byKey)
            QTest::keyClick(form->tSelfExtractFilename, Qt::Key_Escape);
        else
            Click(*form, "cmdCancel");
        QApplication::processEvents();
        EXPECT_FALSE(form->isVisible());
    }
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(DlgInstallOptionsTest, LetsTheMouseUseTheButtonsBesideAWrongFileName)
{
    Open(kInternet);
    Type(*form, "tSelfExtractFilename", "self");
    ask.choices = {{{"C:\\Data\\p.ico"}}};
    Click(*form, "cmdBrowseIcon");
    EXPECT_EQ(TextIn(*form, "tSelfExtractIconFilename"), "C:\\Data\\p.ico");
    bool isShown = false;
    OnNextDialog([&](QDialog& advanced) {
        isShown = true;
        Click(advanced, "cmdOK");
    });
    Click(*form, "CmdInternetAdvanced");
    EXPECT_TRUE(isShown);
    QApplication::processEvents();
    EXPECT_TRUE(ask.shown.empty());
    EXPECT_EQ(form->focusWidget(), form->tSelfExtractFilename);
    ask.Expect({BoxKind::Critical, "Fel namntillägg"});
    Click(*form, "cmdOK");
    EXPECT_TRUE(form->isVisible());
}

TEST_F(DlgInstallOptionsTest, KeepsAdvancedValuesUntilOk)
{
    section::RunAppSelfX& program = session.project.RunAppSelfX;
    program.Param = "/a";
    Open(kInternet);
    const auto change = [&](const char* before, const char* after, const char* button) {
        OnNextDialog([=](QDialog& advanced) {
            EXPECT_EQ(advanced.objectName(), "DlgInstallOptInternetAdv");
            EXPECT_EQ(TextIn(advanced, "tParam"), before);
            Type(advanced, "tParam", after);
            Click(advanced, "cADExpandEXEInWinTempMap");
            Click(advanced, button);
        });
        Click(*form, "CmdInternetAdvanced");
    };
    change("/a", "/b", "cmdOK");
    change("/b", "/c", "cmdCancel");
    EXPECT_EQ(program.Param, "/a");
    Click(*form, "cmdCancel");
    EXPECT_EQ(program.Param, "/a");
    // Kept: any OK marks the project, also one whose values are given up afterwards.
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(session.project.InstallOptionsInternet.ExpandEXEInWinTempMap, kOn);
    Open(kInternet);
    change("/a", "/d", "cmdOK");
    Click(*form, "cmdOK");
    EXPECT_EQ(program.Param, "/d");
    EXPECT_EQ(session.project.InstallOptionsInternet.ExpandEXEInWinTempMap, kOff);
}

TEST_F(DlgInstallOptionsTest, AsksForTheSignatureOnlyWhereThereIsOne)
{
    Open(kSign);
    const char* const controls[] = {"tDesc",        "tURL",         "tSPC",     "tPVK",
                                    "cmdBrowseSPC", "cmdBrowsePVK", "labSign1", "labSign2",
                                    "labSign3",     "labSign4",     "labSign5", "ComboTimeStamp"};
    for (const bool isOn : {false, true, false}) {
        for (const char* control : controls)
            EXPECT_EQ(Find<QWidget>(*form, control).isEnabled(), isOn) << control;
        Click(*form, "cUseSign");
    }
    session.project.Sign.SignSelfExtractFile = kOn;
    Open(kSign);
    for (const char* control : controls)
        EXPECT_TRUE(Find<QWidget>(*form, control).isEnabled()) << control;
}

TEST_F(DlgInstallOptionsTest, StoresTheSignature)
{
    Open(kSign);
    Click(*form, "cUseSign");
    Type(*form, "tDesc", "Programmet");
    Type(*form, "tURL", "http://firma.example");
    ask.choices = {{{"C:\\n\\a.spc"}}, {{"C:\\n\\a.pvk"}}, {}, {}};
    for (const char* button : {"cmdBrowseSPC", "cmdBrowsePVK", "cmdBrowseSPC", "cmdBrowsePVK"})
        Click(*form, button);
    EXPECT_EQ(ask.questions[0].title, "Välj certifikationsfil");
    EXPECT_EQ(ask.questions[0].filter, "Certifikationsfiler (*.spc)|*.spc");
    EXPECT_EQ(ask.questions[1].title, "Välj privat nyckelfil");
    EXPECT_EQ(ask.questions[1].filter, "Privata nyckelfiler (*.pvk)|*.pvk");
    EXPECT_EQ(ask.questions[1].folder, "C:\\");
    form->ComboTimeStamp->setCurrentIndex(1);
    Click(*form, "cmdOK");
    const section::Sign& sign = session.project.Sign;
    EXPECT_EQ(sign.SignSelfExtractFile, kOn);
    EXPECT_EQ(sign.SignDescription, "Programmet");
    EXPECT_EQ(sign.SignURL, "http://firma.example");
    EXPECT_EQ(sign.SignSPCFilename, "C:\\n\\a.spc");
    EXPECT_EQ(sign.SignPVKFilename, "C:\\n\\a.pvk");
    EXPECT_EQ(sign.SignTimeStampSystem, 1);
}

TEST_F(DlgInstallOptionsTest, TakesNoMoreThanTheProjectFileHolds)
{
    Open();
    for (const auto& [field, longest] : {std::pair{form->tSelfExtractFilename, 79},
                                         {form->tSelfExtractIconFilename, 199},
                                         {form->tDesc, 255},
                                         {form->tURL, 255},
                                         {form->tSPC, 255},
                                         {form->tPVK, 255}}) {
        QApplication::clipboard()->setText(QString(longest + 1, 'x'));
        field->selectAll();
        const QString before = field->text();
        field->paste();
        EXPECT_EQ(field->text(), before) << field->objectName().toStdString();
        QApplication::clipboard()->setText(QString(longest, 'x'));
        field->selectAll();
        field->paste();
        EXPECT_EQ(field->text().size(), longest) << field->objectName().toStdString();
    }
}

TEST_F(DlgInstallOptionsTest, LooksRight)
{
    session.project.NET.NET_TestIfInstalled = kOn;
    session.project.Sign.SignSelfExtractFile = kOn;
    Open();
    for (int tab = 0; tab < form->XTab->count(); ++tab) {
        form->XTab->setCurrentIndex(tab);
        QApplication::processEvents();
        const std::string name = "DlgInstallOptions-" + std::to_string(tab);
        SavePicture(*form, name);
        SaveDarkPicture(*form, name);
    }
}

} // namespace
} // namespace quillon::test
