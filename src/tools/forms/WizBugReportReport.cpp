#include "tools/forms/WizBugReportReport.h"

#include "helpers/product.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"
#include "shell/session.h"
#include "tools/diagnosis_program.h"
#include "tools/fault_note.h"
#include "ui/controls/LinkLabel.h"
#include "ui/controls/list_area.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr const char* kBeforeDiagnosis =
    "Nu behöver felrapportguiden utföra en analys av din dator. Detta sker genom att köra "
    "programmet 'Tavrell Diagnos Verktyg'. Tryck på knappen 'Utför diagnos' nedan för att påbörja "
    "analysen.";
// Kept: the misspelt first word is what users have always read.
constexpr const char* kBehindDiagnosis = "Trycp på knappen 'Nästa' för att gå vidare.";

/// What only a program with a window knows.
Text DisplayArguments()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize pixels = screen->size() * screen->devicePixelRatio();
    return " \"/Screen=" +
           FromQt(QString("%1 x %2, %3 %")
                      .arg(pixels.width())
                      .arg(pixels.height())
                      .arg(qRound(screen->devicePixelRatio() * 100))) +
           "\" /Qt=" + qVersion();
}

} // namespace

WizBugReport_6::WizBugReport_6(BugReportWizard& wizard, QWidget* parent)
    : WizBugReportPage("WizBugReport_6", "Felrapportguide (steg 6)", wizard, parent)
{
    Named(NAMED(LabelInfo), Note(kBeforeDiagnosis));
    Button(NAMED(cmdRunDiagnos), "&Utför diagnos", [this] { RunDiagnosis(); });
    Arrange(VBox({
        MinWidth(kPageLetters, LabelInfo),
        HBox({cmdRunDiagnos, Stretch()}),
        Stretch(),
        StepButtons(Steps::All),
    }));
    cmdRunDiagnos->setFocus();
}

void WizBugReport_6::OnShow()
{
    LabelInfo->setText(QString::fromUtf8(kBeforeDiagnosis));
}

void WizBugReport_6::RunDiagnosis()
{
    Session& session = wizard_.session;
    try {
        StartDiagnosis(session.host, session.options.ToolFolder, session.options.OwnFolder,
                       DisplayArguments());
        LabelInfo->setText(QString::fromUtf8(kBehindDiagnosis));
    } catch (const RunError& error) {
        session.ask.Critical("Fel", FailureText(error, session.options.ToolFolder));
    }
}

bool WizBugReport_6::MayGoOn()
{
    return HasDiagnosis(wizard_.session.host.files, wizard_.session.options.OwnFolder,
                        wizard_.session.ask);
}

WizBugReport_7::WizBugReport_7(BugReportWizard& wizard, QWidget* parent)
    : WizBugReportPage("WizBugReport_7", "Felrapportguide (skapa felrapport)", wizard, parent)
{
    Named(NAMED(tReport), new QPlainTextEdit);
    ShowAsList(tReport);
    tReport->setReadOnly(true);
    tReport->setTabChangesFocus(true);
    Button(NAMED(cmdCreateReport), "&Skapa felrapport", [this] { CreateReport(); });
    Arrange(VBox({
        Note(
            "Så här blir felrapporten. Inget skickas härifrån; rapporten skrivs till en fil som du "
            "själv skickar."),
        Growing(Above("&Felrapport:", MinWidth(kPageLetters, tReport))),
        HBox({cmdCreateReport, Stretch()}),
        StepButtons(Steps::All),
    }));
    cmdNext->setEnabled(false);
    cmdCreateReport->setFocus();
}

void WizBugReport_7::OnShow()
{
    const Session& session = wizard_.session;
    try {
        tReport->setPlainText(LinesToQt(BugReportText(wizard_.answers, session.state, session.host,
                                                      session.options.OwnFolder)));
    } catch (const RunError&) {
        // The button says why.
        tReport->clear();
    }
}

void WizBugReport_7::CreateReport()
{
    Session& session = wizard_.session;
    try {
        WriteBugReport(wizard_.answers, session.project, session.state, session.host, session.ask,
                       session.options.OwnFolder);
    } catch (const RunError& error) {
        session.ask.Critical("Fel", FailureText(error, BugReportFile(session.options.OwnFolder)));
        return;
    }
    RemoveFaultNote(session.host.files, session.options.OwnFolder);
    cmdNext->setEnabled(true);
    session.ask.Inform("Felrapport skapad",
                       "En felrapportfil har nu skapats! Tryck på knappen 'OK' för att gå vidare.");
    GoOn();
}

WizBugReport_8::WizBugReport_8(BugReportWizard& wizard, QWidget* parent)
    : WizBugReportPage("WizBugReport_8", "Felrapportguide (färdig)", wizard, parent)
{
    Session& session = wizard.session;
    const Text folder = BugReportFolder(session.options.OwnFolder);
    const Text mail = JoinPath(session.options.ToolFolder, "support.url");
    Named(NAMED(LabelBugReportFolder), new LinkLabel(folder, [this] { OpenFolder(); }));
    Named(NAMED(LabelMailSupport), new LinkLabel(session, kSupportAddress, mail));
    Button(NAMED(cmdStartEmailApp), "Starta &e-postprogrammet",
           [&session, mail] { OpenOrTell(session, mail); });
    Arrange(VBox({
        MinWidth(kPageLetters, Note("Felrapporten är färdig. Skicka den, och projektfilen om den "
                                    "finns där, med e-post. "
                                    "Båda ligger i katalogen:")),
        LabelBugReportFolder,
        Note("Skicka dem till:"),
        LabelMailSupport,
        HBox({cmdStartEmailApp, Stretch()}),
        Stretch(),
        StepButtons(Steps::PreviousAndClose),
    }));
    cmdClose->setFocus();
}

void WizBugReport_8::OpenFolder()
{
    Session& session = wizard_.session;
    OpenOrTell(session, BugReportFolder(session.options.OwnFolder));
}

} // namespace quillon
