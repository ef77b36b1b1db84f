// What holds for every window: it can be read whole at its least size and in large letters, heard
// by name, and used by keys alone.
#include "actions/forms/DlgAddINIentry.h"
#include "actions/forms/DlgAddRegKey.h"
#include "actions/forms/DlgAutoexecConfig.h"
#include "actions/forms/DlgDeleteRegKey.h"
#include "actions/forms/DlgDestDirAdvUpdate.h"
#include "actions/forms/DlgGetRegKey.h"
#include "actions/forms/DlgInstallOptInternetAdv.h"
#include "actions/forms/DlgInstallOptions.h"
#include "actions/forms/DlgLanguage.h"
#include "actions/forms/DlgRegisterFiles.h"
#include "actions/forms/DlgRunAppAfter.h"
#include "actions/forms/DlgRunScript.h"
#include "actions/forms/DlgShowDocAfter.h"
#include "actions/forms/DlgTestNETFramework.h"
#include "actions/forms/DlgUninstallRegKey.h"
#include "actions/forms/pages/DlgDestDirDlg.h"
#include "actions/forms/pages/DlgDestDriveDlg.h"
#include "actions/forms/pages/DlgGeneral.h"
#include "actions/forms/pages/DlgLicenseInfo.h"
#include "actions/forms/pages/DlgLicenseInfoRtf.h"
#include "actions/forms/pages/DlgNameCompany.h"
#include "actions/forms/pages/DlgPassword.h"
#include "actions/forms/pages/DlgProgramGroup.h"
#include "actions/forms/previews/InstDlgDestDir.h"
#include "actions/forms/previews/InstDlgDestDrive.h"
#include "actions/forms/previews/InstDlgGeneral.h"
#include "actions/forms/previews/InstDlgLicenseInfo.h"
#include "actions/forms/previews/InstDlgLicenseInfoRtf.h"
#include "actions/forms/previews/InstDlgNameCompany.h"
#include "actions/forms/previews/InstDlgPassword.h"
#include "app/MainForm.h"
#include "app/window/window_place.h"
#include "builder/forms/DlgCompressOptions.h"
#include "builder/forms/DlgCreate.h"
#include "builder/forms/DlgTest.h"
#include "design/forms/DlgDesBackground.h"
#include "design/forms/DlgDesLogotype.h"
#include "design/forms/DlgDesOverview.h"
#include "design/forms/DlgDesPercentGauge.h"
#include "design/forms/DlgDesPictures.h"
#include "design/forms/DlgDesPicturesAnim.h"
#include "design/forms/DlgDesRTFbox.h"
#include "design/forms/DlgDesSubTitle.h"
#include "design/forms/DlgDesTextbox.h"
#include "design/forms/DlgDesTitle.h"
#include "design/forms/DlgSound.h"
#include "design/forms/DlgUnderline.h"
#include "filelist/forms/DlgChCompNr.h"
#include "filelist/forms/DlgChVariables.h"
#include "filelist/forms/DlgChangeSrcPath.h"
#include "filelist/forms/DlgCompMoreData.h"
#include "filelist/forms/DlgCompMoreDataAdv.h"
#include "filelist/forms/DlgCompShortList.h"
#include "filelist/forms/DlgCopyOptions.h"
#include "filelist/forms/DlgDestDirVars.h"
#include "filelist/forms/DlgDestinationDirectory.h"
#include "filelist/forms/DlgFileInfo.h"
#include "filelist/forms/DlgFindReplaceData.h"
#include "filelist/forms/DlgIcon.h"
#include "filelist/forms/DlgIconOptions.h"
#include "filelist/forms/DlgIconX.h"
#include "filelist/forms/DlgMDADetails.h"
#include "filelist/forms/DlgRegisterFont.h"
#include "filelist/forms/DlgShowDestDirectories.h"
#include "filelist/forms/DlgSortList.h"
#include "filelist/forms/DlgVariables.h"
#include "filelist/forms/RecursiveCollect.h"
#include "importers/forms/DlgCompareLstFile.h"
#include "importers/forms/DlgImportFolder.h"
#include "importers/forms/DlgImportVB5Project.h"
#include "importers/forms/DlgImportVB6Project.h"
#include "importers/forms/DlgImportVBNetProject.h"
#include "importers/forms/DlgNotAddedFiles.h"
#include "shell/fake_window.h"
#include "shell/forms/DlgAbout.h"
#include "shell/forms/DlgCreateFoldersAtMyDoc.h"
#include "shell/forms/DlgEditorOptions.h"
#include "shell/forms/DlgHelp.h"
#include "shell/forms/DlgVersionInfo.h"
#include "support/window_looks.h"
#include "support/window_test.h"
#include "tools/forms/PMMoreInfo.h"
#include "tools/forms/PrintFileList.h"
#include "tools/forms/ProjectManager.h"
#include "tools/forms/WizBugReportQuestions.h"
#include "tools/forms/WizBugReportReport.h"
#include "ui/dialogs/FontForm.h"
#include "ui/dialogs/SelectDir.h"
#include "ui/dialogs/XInputBox.h"
#include "ui/dialogs/form_help.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What the windows of this test show.
struct Subject {
    Session& session;
    CreateForm& create;
    InternetAdvanced& advanced;
    const ImportContext& imports;
};

struct WindowCase {
    const char* name;
    std::unique_ptr<QDialog> (*make)(Subject subject);
};

template <class Dialog, class... Arguments>
std::unique_ptr<QDialog> Made(Arguments&&... arguments)
{
    return std::make_unique<Dialog>(std::forward<Arguments>(arguments)..., nullptr);
}

/// A page of the wizard, with what all of its pages share.
template <class Page>
std::unique_ptr<QDialog> WizardPage(Subject subject)
{
    struct Shown : Page {
        explicit Shown(std::unique_ptr<BugReportWizard> shared)
            : Page(*shared, nullptr), wizard(std::move(shared))
        {
        }
        std::unique_ptr<BugReportWizard> wizard;
    };
    return std::make_unique<Shown>(std::make_unique<BugReportWizard>(subject.session));
}

template <class Dialog>
std::unique_ptr<QDialog> OfSession(Subject subject)
{
    return Made<Dialog>(subject.session);
}

ListWork WorkOn(Session& session)
{
    return {session.project, session.state, session.host, session.ask};
}

section::FileComponent& FirstComponent(Subject subject)
{
    return subject.session.project.FileComponents.front();
}

const TreeToAdd kTree{.StartDirectory = "C:\\Data\\Program", .BaseDestination = "%DESTDIR"};
const std::vector<Text> kComponents{"Ingen komponent", "Komponent nr 1 - 'Ordböcker'"};

// More than a page of the setup can show at once.
const Text kLongTitle = ReplaceAll(Text(40, 'x'), "x", "lång ");
const Text kLongText = ReplaceAll(Text(300, 'x'), "x", "En rad.\r\n");
const LicensePreview kLongLicense{kLongTitle, kLongText, kLongTitle};
constexpr DiskSpacePreview kAllSpace{.showsSpace = true, .hasSpaceButton = true};

FileListRow& FirstRow(Subject subject)
{
    return subject.session.project.Files.rows.front();
}

// clang-format off
const WindowCase kWindows[] = {
    {"DlgAbout", [](Subject) { return Made<DlgAbout>(); }},
    {"DlgAddINIentry", [](Subject of) { return Made<DlgAddINIentry>(of.session.project.Lists.INIFiles, of.session.ask); }},
    {"DlgAddRegKey", [](Subject of) { return Made<DlgAddRegKey>(of.session.ask); }},
    {"DlgAutoexecConfig", OfSession<DlgAutoexecConfig>},
    {"DlgChangeSrcPath", [](Subject of) { return Made<DlgChangeSrcPath>("c:\\data\\a.txt", of.session); }},
    {"DlgChCompNr", [](Subject of) { return Made<DlgChCompNr>("1", of.session); }},
    {"DlgChVariables", OfSession<DlgChVariables>},
    {"DlgCompareLstFile", OfSession<DlgCompareLstFile>},
    {"DlgCompMoreData", [](Subject of) { return Made<DlgCompMoreData>(0U, of.session); }},
    {"DlgCompMoreDataAdv", [](Subject of) { return Made<DlgCompMoreDataAdv>(FirstComponent(of), of.session); }},
    {"DlgCompressOptions", [](Subject of) { return Made<DlgCompressOptions>(of.session, of.create); }},
    {"DlgCompShortList", [](Subject) { return Made<DlgCompShortList>(kComponents); }},
    {"DlgCopyOptions", [](Subject) { return Made<DlgCopyOptions>(CopyOptionTicks{}); }},
    {"DlgCreate", OfSession<DlgCreate>},
    {"DlgCreateFoldersAtMyDoc", OfSession<DlgCreateFoldersAtMyDoc>},
    {"DlgDeleteRegKey", [](Subject of) { return Made<DlgDeleteRegKey>(of.session.ask); }},
    {"DlgDesBackground", OfSession<DlgDesBackground>},
    {"DlgDesLogotype", OfSession<DlgDesLogotype>},
    {"DlgDesOverview", OfSession<DlgDesOverview>},
    {"DlgDesPercentGauge", OfSession<DlgDesPercentGauge>},
    {"DlgDesPictures", [](Subject of) { return Made<DlgDesPictures>(1U, of.session); }},
    {"DlgDesPicturesAnim", OfSession<DlgDesPicturesAnim>},
    {"DlgDesRTFbox", OfSession<DlgDesRTFbox>},
    {"DlgDesSubTitle", [](Subject of) { return Made<DlgDesSubTitle>(of.session.project.DesSubTitle.SubTitleText, of.session); }},
    {"DlgDesTextbox", OfSession<DlgDesTextbox>},
    {"DlgDesTitle", OfSession<DlgDesTitle>},
    {"DlgDestDirAdvUpdate", [](Subject of) { return Made<DlgDestDirAdvUpdate>(of.session.project.Updates, of.session); }},
    {"DlgDestDirDlg", OfSession<DlgDestDirDlg>},
    {"DlgDestDirVars", [](Subject) { return Made<DlgDestDirVars>(); }},
    {"DlgDestDriveDlg", OfSession<DlgDestDriveDlg>},
    {"DlgDestinationDirectory", [](Subject of) { return Made<DlgDestinationDirectory>(DestinationQuestion{}, of.session); }},
    {"DlgEditorOptions", OfSession<DlgEditorOptions>},
    {"DlgFileInfo", [](Subject of) { return Made<DlgFileInfo>(FirstRow(of), of.session); }},
    {"DlgFindReplaceData", [](Subject of) { return Made<DlgFindReplaceData>(ReplaceIn::Destinations, "%DESTDIR", of.session); }},
    {"DlgFormHelp", [](Subject of) { return Made<DlgFormHelp>(DlgImportVB6Project(of.imports, nullptr)); }},
    {"DlgGeneral", [](Subject of) { return Made<DlgGeneral>(kGeneralPages[0], of.session); }},
    {"DlgGetRegKey", [](Subject of) { return Made<DlgGetRegKey>(of.session.project.RunAppSelfX, of.session); }},
    {"DlgHelp", [](Subject) { return Made<DlgHelp>(ReadHelpPages("# Arkiv\n## Nytt projekt {cmd101}\nBörjar om.\n")); }},
    {"DlgIcon", [](Subject of) { return Made<DlgIcon>(FirstRow(of), of.session); }},
    {"DlgIconOptions", [](Subject) { return Made<DlgIconOptions>(IconPlaces{}); }},
    {"DlgIconX", [](Subject of) { return Made<DlgIconX>(FirstRow(of), of.session); }},
    {"DlgImportFolder", [](Subject of) { return Made<DlgImportFolder>(of.imports); }},
    {"DlgImportVB5Project", [](Subject of) { return Made<DlgImportVB5Project>(of.imports); }},
    {"DlgImportVB6Project", [](Subject of) { return Made<DlgImportVB6Project>(of.imports); }},
    {"DlgImportVBNetProject", [](Subject of) { return Made<DlgImportVBNetProject>(of.imports); }},
    {"DlgInstallOptInternetAdv", [](Subject of) { return Made<DlgInstallOptInternetAdv>(of.advanced, of.session); }},
    {"DlgInstallOptions", OfSession<DlgInstallOptions>},
    {"DlgLanguage", OfSession<DlgLanguage>},
    {"DlgLicenseInfo", OfSession<DlgLicenseInfo>},
    {"DlgLicenseInfoRtf", OfSession<DlgLicenseInfoRtf>},
    {"DlgMDADetails", OfSession<DlgMDADetails>},
    {"DlgNameCompany", OfSession<DlgNameCompany>},
    {"DlgNotAddedFiles", [](Subject) { return Made<DlgNotAddedFiles>(std::vector<NotAddedFile>{{"mscomctl.ocx", NotAdded::NotInSystemFolder}, {"comdlg32.dep", NotAdded::RestOfDepFile}}); }},
    {"DlgPassword", OfSession<DlgPassword>},
    {"DlgProgramGroup", OfSession<DlgProgramGroup>},
    {"DlgRegisterFiles", OfSession<DlgRegisterFiles>},
    {"DlgRegisterFont", [](Subject of) { return Made<DlgRegisterFont>(FirstRow(of), of.session); }},
    {"DlgRunAppAfter", OfSession<DlgRunAppAfter>},
    {"DlgRunScript", OfSession<DlgRunScript>},
    {"DlgShowDestDirectories", [](Subject) { return Made<DlgShowDestDirectories>(); }},
    {"DlgShowDocAfter", OfSession<DlgShowDocAfter>},
    {"DlgSortList", [](Subject of) { return Made<DlgSortList>(of.session.project); }},
    {"DlgSound", OfSession<DlgSound>},
    {"DlgTest", OfSession<DlgTest>},
    {"DlgTestNETFramework", OfSession<DlgTestNETFramework>},
    {"DlgUnderline", OfSession<DlgUnderline>},
    {"DlgUninstallRegKey", [](Subject of) { return Made<DlgUninstallRegKey>(of.session.ask); }},
    {"DlgVariables", [](Subject of) { return Made<DlgVariables>(of.session, DlgVariables::Use::Picker); }},
    {"DlgVersionInfo", OfSession<DlgVersionInfo>},
    {"FontForm", [](Subject of) { return Made<FontForm>(FontChoice{.name = "Arial", .size = 10, .isUnderlined = false, .isStruckOut = false, .colour = 0}, of.session.ask); }},
    {"InstDlgDestDir", [](Subject of) { return Made<InstDlgDestDir>(kAllSpace, of.session); }},
    {"InstDlgDestDrive", [](Subject of) { return Made<InstDlgDestDrive>(kAllSpace, of.session); }},
    {"InstDlgGeneral", [](Subject of) { return Made<InstDlgGeneral>(GeneralPreview{.title = kLongTitle, .text = kLongText}, of.session); }},
    {"InstDlgLicenseInfo", [](Subject of) { return Made<InstDlgLicenseInfo>(kLongLicense, of.session); }},
    {"InstDlgLicenseInfoRtf", [](Subject of) { return Made<InstDlgLicenseInfoRtf>(kLongLicense, of.session); }},
    {"InstDlgNameCompany", [](Subject of) { return Made<InstDlgNameCompany>(NameCompanyPreview{.asksAddress = true}, of.session); }},
    {"InstDlgPassword", [](Subject of) { return Made<InstDlgPassword>(kLongTitle, of.session); }},
    {"PMMoreInfo", [](Subject) { return Made<PMMoreInfo>("C:\\Projekt\\hej.qnp", ProjectVersionData{"Firma AB", "Hej", "En hälsning", "1.0", "Inga"}); }},
    {"PrintFileList", [](Subject of) { return Made<PrintFileList>(of.session, std::vector<PrinterChoice>{{"Laser", "Rum 3"}}); }},
    {"PrintFileListWithoutPrinter", [](Subject of) { return Made<PrintFileList>(of.session, std::vector<PrinterChoice>()); }},
    {"ProjectManager", OfSession<ProjectManager>},
    {"RecursiveCollect", [](Subject of) { return Made<RecursiveCollect>(WorkOn(of.session), kTree); }},
    {"SelectDir", [](Subject of) { return Made<SelectDir>(of.session.host.files, of.session.ask, "Välj en katalog.", "C:\\Data"); }},
    {"WizBugReport_1", WizardPage<WizBugReport_1>},
    {"WizBugReport_2", WizardPage<WizBugReport_2>},
    {"WizBugReport_3", WizardPage<WizBugReport_3>},
    {"WizBugReport_4", WizardPage<WizBugReport_4>},
    {"WizBugReport_5", WizardPage<WizBugReport_5>},
    {"WizBugReport_6", WizardPage<WizBugReport_6>},
    {"WizBugReport_7", WizardPage<WizBugReport_7>},
    {"WizBugReport_8", WizardPage<WizBugReport_8>},
    {"XInputBox", [](Subject) { return Made<XInputBox>("Lägg till sektion", "&Sektion:"); }},
};
// clang-format on

class EveryWindow : public WindowTest {
protected:
    EveryWindow()
    {
        machine.files.PutFolder("C:\\Data\\Program");
        // A package with options of its own, so that their button shows.
        machine.files.Put("C:\\Data\\MDAC_TYP.ZIP", "x");
        FileListRow& row = session.project.Files.rows.emplace_back();
        row[Filename] = "MDAC_TYP.ZIP";
        row[Source] = "c:\\data\\mdac_typ.zip";
        for (section::FileComponent& component : session.project.FileComponents)
            component.Comp = 1;
    }

    void TearDown() override { QApplication::setFont(usualFont); }

    void UseLargeLetters()
    {
        QFont large = usualFont;
        large.setPointSizeF(large.pointSizeF() * 1.5);
        QApplication::setFont(large);
    }

    /// Does this with each dialog, on each of its tabs, at its least size.
    void WithEachDialog(const std::function<void(QDialog&)>& look)
    {
        for (const WindowCase& window : kWindows) {
            SCOPED_TRACE(window.name);
            const auto dialog = window.make({session, create, advanced, imports});
            ShowActive(*dialog);
            dialog->resize(0, 0);
            auto* tabs = dialog->findChild<QTabWidget*>();
            for (int tab = 0; tab < (tabs ? tabs->count() : 1); ++tab) {
                if (tabs)
                    tabs->setCurrentIndex(tab);
                QApplication::processEvents();
                look(*dialog);
            }
        }
    }

    /// Does this with the main window on each of its tabs, at its least size.
    void WithEachTab(const std::function<void(MainForm&)>& look)
    {
        MainForm form(session);
        ShowActive(form);
        form.resize(0, 0);
        for (int tab = 0; tab < kTabCount; ++tab) {
            SCOPED_TRACE(tab);
            form.SelectTab(static_cast<Tab>(tab));
            QApplication::processEvents();
            look(form);
        }
    }

    void LookForCutCaptions()
    {
        WithEachDialog([](QDialog& dialog) { EXPECT_THAT(CutCaptions(dialog), IsEmpty()); });
        WithEachTab([](MainForm& form) { EXPECT_THAT(CutCaptions(form), IsEmpty()); });
    }

    /// The screen of a small laptop, whose 1280 x 800 pixels are half as many points at scale 2.
    static QScreen* SmallScreen()
    {
        for (QScreen* screen : QGuiApplication::screens())
            if (screen->size() == QSize(640, 400))
                return screen;
        qFatal("there is no screen of 640 x 400 points");
    }

    /// Inside the screen with the frame that a window manager puts round it.
    static void ExpectToFit(const QWidget& window)
    {
        constexpr QSize kFrame(8, 44);
        EXPECT_LE(window.width() + kFrame.width(), 640);
        EXPECT_LE(window.height() + kFrame.height(), 400);
    }

    static bool IsInView(const QWidget& widget)
    {
        return widget.visibleRegion().boundingRect() == widget.rect();
    }

    CreateForm create;
    InternetAdvanced advanced;
    FakeWindow mainWindow;
    const ImportContext imports{session, mainWindow, {}};
    const QFont usualFont = QApplication::font();
};

TEST_F(EveryWindow, NamesEachControlThatTakesTheFocus)
{
    WithEachDialog([](QDialog& dialog) { EXPECT_THAT(UnnamedControls(dialog), IsEmpty()); });
    WithEachTab([](MainForm& form) { EXPECT_THAT(UnnamedControls(form), IsEmpty()); });
}

TEST_F(EveryWindow, ShowsItsCaptionsWhole)
{
    LookForCutCaptions();
}

TEST_F(EveryWindow, ShowsItsCaptionsWholeInLargeLetters)
{
    UseLargeLetters();
    LookForCutCaptions();
}

TEST_F(EveryWindow, GivesEachAccessLetterOnce)
{
    WithEachDialog([](QDialog& dialog) { EXPECT_THAT(SharedAccessLetters(dialog), IsEmpty()); });
    WithEachTab([](MainForm& form) {
        EXPECT_THAT(SharedAccessLetters(form), IsEmpty());
        EXPECT_THAT(SharedMenuLetters(form), IsEmpty());
    });
}

TEST_F(EveryWindow, LeadsTheTabKeyDownwardsAndToTheRight)
{
    WithEachDialog([](QDialog& dialog) { EXPECT_THAT(StepsBackByTab(dialog), IsEmpty()); });
    WithEachTab([](MainForm& form) { EXPECT_THAT(StepsBackByTab(form), IsEmpty()); });
}

TEST_F(EveryWindow, HasAButtonForEnterAndClosesByEsc)
{
    WithEachDialog([](QDialog& dialog) {
        const auto buttons = dialog.findChildren<QPushButton*>();
        EXPECT_EQ(std::ranges::count_if(buttons, &QPushButton::isDefault), 1);
        if (!dialog.isVisible()) // closed on a tab before this one
            return;
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
}

TEST_F(EveryWindow, NamesEachButtonOfItsToolbar)
{
    WithEachTab([](MainForm& form) {
        for (QToolButton* button : Find<QToolBar>(form, "Standard").findChildren<QToolButton*>()) {
            if (button->objectName() == "qt_toolbar_ext_button")
                continue;
            const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(button);
            EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
                << button->defaultAction()->objectName().toStdString();
        }
    });
}

TEST_F(EveryWindow, FitsASmallScreenWithItsFrameAndButtons)
{
    for (const WindowCase& window : kWindows) {
        SCOPED_TRACE(window.name);
        const auto dialog = window.make({session, create, advanced, imports});
        dialog->move(SmallScreen()->geometry().topLeft());
        ShowActive(*dialog);
        ExpectToFit(*dialog);
        EXPECT_THAT(CutCaptions(*dialog), IsEmpty());
        for (const QPushButton* button : dialog->findChildren<QPushButton*>())
            if (button->isDefault() || button->objectName() == "cmdCancel")
                EXPECT_TRUE(IsInView(*button)) << button->objectName().toStdString();
        if (dialog->isVisible())
            SavePicture(*dialog, std::string("small-") + window.name);
    }
}

TEST_F(EveryWindow, ShowsTheMainWindowWholeOnASmallScreen)
{
    MainForm form(session);
    form.setScreen(SmallScreen());
    form.move(SmallScreen()->geometry().topLeft());
    RestoreWindowPlace(form, {});
    ShowActive(form);
    for (int tab = 0; tab < kTabCount; ++tab) {
        SCOPED_TRACE(tab);
        form.SelectTab(static_cast<Tab>(tab));
        QApplication::processEvents();
        ExpectToFit(form);
        EXPECT_TRUE(IsInView(*form.statusBar()));
        SavePicture(form, "small-MainForm-" + std::to_string(tab));
    }
}

// Shows that the checks find such faults.
TEST(WindowLooks, FindFaults)
{
    QWidget window;
    window.setLayout(new QVBoxLayout);
    auto* field = new QLineEdit;
    field->setObjectName("tField");
    auto* button = new QPushButton("&Mycket lång text på en knapp");
    button->setObjectName("cmdLong");
    button->setMaximumWidth(30);
    auto* other = new QCheckBox("Något &med samma bokstav");
    for (QWidget* widget : {static_cast<QWidget*>(field), static_cast<QWidget*>(button),
                            static_cast<QWidget*>(other)})
        window.layout()->addWidget(widget);
    ShowActive(window);
    EXPECT_THAT(UnnamedControls(window), ElementsAre("QLineEdit tField"));
    EXPECT_THAT(CutCaptions(window),
                ElementsAre(testing::StartsWith("QPushButton cmdLong needs ")));
    EXPECT_THAT(SharedAccessLetters(window),
                ElementsAre("m: &Mycket lång text på en knapp, Något &med samma bokstav"));
    EXPECT_THAT(StepsBackByTab(window), IsEmpty());
    QWidget::setTabOrder(field, other);
    QWidget::setTabOrder(other, button);
    EXPECT_THAT(StepsBackByTab(window),
                ElementsAre("QCheckBox without a name before QPushButton cmdLong"));
    field->setAccessibleName("Namn");
    EXPECT_THAT(UnnamedControls(window), IsEmpty());
}

} // namespace
} // namespace quillon::test
