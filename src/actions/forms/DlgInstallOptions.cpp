#include "actions/forms/DlgInstallOptions.h"

#include "actions/forms/DlgInstallOptInternetAdv.h"
#include "actions/kept_path.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

using section::InstallOptionsInternet;
using section::Sign;

namespace {

constexpr PathKind kFile{"Filen", "Lägg filen i en katalog närmare roten."};

} // namespace

DlgInstallOptions::DlgInstallOptions(Session& session, QWidget* parent)
    : NetFrameworkForm("DlgInstallOptions", "Inställningar för installationsprogram", session,
                       parent),
      advanced_(InternetAdvancedOf(session.project))
{
    Named(NAMED(XTab), new QTabWidget, "Inställningar");
    XTab->addTab(GeneralTab(), "Allmänt");
    XTab->addTab(SystemTab(), "Operativsystem");
    XTab->addTab(internetTab_ = InternetTab(), "Internet");
    XTab->addTab(SignTab(), "Signering");
    Arrange(VBox({Growing(XTab), OkCancel()}));
    // As with OK, pressing one of these with the mouse must not move the focus out of the file
    // name's field: the box of its check would take the release of the mouse button.
    for (QPushButton* button : {cmdBrowseIcon, CmdInternetAdvanced})
        button->setFocusPolicy(Qt::TabFocus);
    GatherSigning();
    connect(cUseSign, &QCheckBox::toggled, this, [this] { EnableSigning(); });
    EnableSigning();
    connect(XTab, &QTabWidget::currentChanged, this, [this](int tab) { FocusTab(tab); });
    ComboSetupFilename->setFocus();
}

QWidget* DlgInstallOptions::GeneralTab()
{
    MakeSetupNames();
    MakeRestartOptions();
    Flag& deletesGroup = session_.project.InstallOptions.DeleteProgGroup;
    Option(NAMED(oDelOldGroup), "&Radera gammal programgrupp", deletesGroup);
    Named(NAMED(oDoNotDelOldGroup), new QRadioButton("Radera &inte gammal programgrupp"));
    oDoNotDelOldGroup->setChecked(deletesGroup == kOff);
    return Group(VBox({
        Fields({{"Setup-programmets &filnamn:", ComboSetupFilename},
                {"&Omstart:", ComboRestartOption}}),
        Frame("Programgrupp", {oDelOldGroup, oDoNotDelOldGroup}),
        UninstallFrame(),
        OtherFrame(),
        Stretch(),
    }));
}

// A name that is not offered chooses none; it is shown, and stays unless one is chosen.
void DlgInstallOptions::MakeSetupNames()
{
    Text& setupName = session_.project.InstallOptions.SetupName;
    Named(NAMED(ComboSetupFilename), new QComboBox);
    for (const char* name : kSetupNames)
        ComboSetupFilename->addItem(name);
    ComboSetupFilename->setPlaceholderText(ToQt(setupName));
    ComboSetupFilename->setCurrentIndex(SetupNameRow(setupName).value_or(-1));
    Bind([this, &setupName] {
        if (ComboSetupFilename->currentIndex() >= 0)
            setupName = FromQt(ComboSetupFilename->currentText());
    });
}

void DlgInstallOptions::MakeRestartOptions()
{
    section::InstallOptions& options = session_.project.InstallOptions;
    Named(NAMED(ComboRestartOption), new QComboBox);
    for (const char* option : kRestartOptions)
        ComboRestartOption->addItem(QString::fromUtf8(option));
    ComboRestartOption->setCurrentIndex(RestartRow(options));
    Bind([this, &options] { SetRestartRow(options, ComboRestartOption->currentIndex()); });
}

Piece DlgInstallOptions::UninstallFrame()
{
    section::InstallOptions& options = session_.project.InstallOptions;
    Check(NAMED(cUninstallSupport), "Stöd för &avinstallation", options.UninstallSupport);
    Check(NAMED(cCreateUninstallIcon), "Skapa &även avinstallations-ikon",
          options.CreateUninstallIcon);
    const auto follow = [this](QCheckBox* box, void (*click)(section::InstallOptions&, bool)) {
        connect(box, &QCheckBox::toggled, this, [this, click](bool isTicked) {
            section::InstallOptions shown = ShownUninstall();
            click(shown, isTicked);
            ShowUninstall(shown);
        });
    };
    follow(cUninstallSupport, ClickUninstallSupport);
    follow(cCreateUninstallIcon, ClickCreateUninstallIcon);
    return Frame("Avinstallation", {cUninstallSupport, cCreateUninstallIcon});
}

section::InstallOptions DlgInstallOptions::ShownUninstall() const
{
    section::InstallOptions shown;
    shown.UninstallSupport = cUninstallSupport->isChecked() ? kOn : kOff;
    shown.CreateUninstallIcon = cCreateUninstallIcon->isChecked() ? kOn : kOff;
    return shown;
}

void DlgInstallOptions::ShowUninstall(const section::InstallOptions& options)
{
    cUninstallSupport->setChecked(options.UninstallSupport != kOff);
    cCreateUninstallIcon->setChecked(options.CreateUninstallIcon != kOff);
}

Piece DlgInstallOptions::OtherFrame()
{
    section::InstallOptions& options = session_.project.InstallOptions;
    return Frame("Övrigt",
                 {Check(NAMED(cCreateAutorunFile), "S&kapa Autorun-fil", options.CreateAutorunFile),
                  Check(NAMED(cDontInstallSysFilesOnNewWin),
                        "Installera inte systemfiler på Windows ME, 2000 och &XP",
                        options.DontInstallSysFilesOnNewWin),
                  CheckText(NAMED(cExpandVariablesInRegistryKeys),
                            "Expandera variabler även i Registry-nycklar",
                            options.ExpandVariablesInRegistryKeys),
                  CheckText(NAMED(cExpandVariablesInDialogBoxes),
                            "Expandera variabler även i dialogrutor (text)",
                            options.ExpandVariablesInDialogBoxes)});
}

/// A box for a text that holds a boolean.
QCheckBox* DlgInstallOptions::CheckText(QCheckBox*& member, const char* name, const Text& caption,
                                        Text& value)
{
    QCheckBox* box = Named(member, name, new QCheckBox(ToQt(caption)));
    box->setChecked(IsTrueText(value));
    Bind([box, &value] { SetTrueText(value, box->isChecked()); });
    return box;
}

QWidget* DlgInstallOptions::SystemTab()
{
    return Group(VBox({
        TargetSystemFrame(),
        Frame("Microsoft .NET Framework", {NetFrameworkTest()}),
        Stretch(),
    }));
}

Piece DlgInstallOptions::TargetSystemFrame()
{
    section::TargetOS& systems = session_.project.TargetOS;
    for (std::size_t i = 0; i < systems_.size(); ++i) {
        const TargetSystem& system = kTargetSystems[i];
        Check(systems_[i], system.control, system.caption, systems.*system.isOn);
    }
    for (std::size_t i = 0; i < systems_.size(); ++i)
        connect(systems_[i], &QCheckBox::toggled, this, [this, i] { ClickSystem(i); });
    static_assert(kTargetSystems.size() == 8);
    const auto& box = systems_;
    return Frame(
        "Målsystem",
        {HBox({Growing(VBox({box[0], box[1], box[2], box[3]})),
               Growing(VBox({box[4], box[5], box[6], box[7]}))}),
         Option(NAMED(oWarnIfWrongOS), "&Varna om fel plattform", systems.TargetOS_WarnIfWrong),
         Option(NAMED(oStopIfWrongOS), "Stoppa installationen om fel plattfor&m",
                systems.TargetOS_StopIfWrong)});
}

void DlgInstallOptions::ClickSystem(std::size_t clicked)
{
    section::TargetOS shown;
    for (std::size_t i = 0; i < systems_.size(); ++i)
        shown.*kTargetSystems[i].isOn = systems_[i]->isChecked() ? kOn : kOff;
    ClickTargetSystem(shown, kTargetSystems[clicked].isOn, systems_[clicked]->isChecked());
    for (std::size_t i = 0; i < systems_.size(); ++i)
        systems_[i]->setChecked(shown.*kTargetSystems[i].isOn != kOff);
}

QWidget* DlgInstallOptions::InternetTab()
{
    InstallOptionsInternet& internet = session_.project.InstallOptionsInternet;
    Field(NAMED(tSelfExtractFilename), internet.SelfExtractFilename,
          MaxTextLength(&InstallOptionsInternet::SelfExtractFilename));
    OnLeave(tSelfExtractFilename, [this] { LeaveSelfExtractFilename(); });
    Field(NAMED(tSelfExtractIconFilename), internet.SelfExtractIconFilename,
          MaxTextLength(&InstallOptionsInternet::SelfExtractIconFilename));
    BrowseButton(NAMED(cmdBrowseIcon), "&Bläddra...", tSelfExtractIconFilename,
                 MaxTextLength(&InstallOptionsInternet::SelfExtractIconFilename),
                 {.title = "Välj ikon", .filter = "Ikonfiler (*.ico)|*.ico"});
    Button(NAMED(CmdInternetAdvanced), "&Avancerat...",
           [this] { DlgInstallOptInternetAdv(advanced_, session_, this).ShowModal(); });
    return Group(VBox({
        Frame("Självuppackande installationsprogram",
              {Fields({{"&Filnamn:", tSelfExtractFilename},
                       {"&Ikon:", HBox({Growing(tSelfExtractIconFilename), cmdBrowseIcon})}})}),
        HBox({Stretch(), CmdInternetAdvanced}),
        Stretch(),
    }));
}

QWidget* DlgInstallOptions::SignTab()
{
    Sign& sign = session_.project.Sign;
    Check(NAMED(cUseSign), "&Signera självuppackande installationsprogram (för Internet)",
          sign.SignSelfExtractFile);
    Field(NAMED(tDesc), sign.SignDescription, MaxTextLength(&Sign::SignDescription));
    Field(NAMED(tURL), sign.SignURL, MaxTextLength(&Sign::SignURL));
    Field(NAMED(tSPC), sign.SignSPCFilename, MaxTextLength(&Sign::SignSPCFilename));
    BrowseButton(
        NAMED(cmdBrowseSPC), "&Bläddra...", tSPC, MaxTextLength(&Sign::SignSPCFilename),
        {.title = "Välj certifikationsfil", .filter = "Certifikationsfiler (*.spc)|*.spc"});
    Field(NAMED(tPVK), sign.SignPVKFilename, MaxTextLength(&Sign::SignPVKFilename));
    BrowseButton(NAMED(cmdBrowsePVK), "B&läddra...", tPVK, MaxTextLength(&Sign::SignPVKFilename),
                 {.title = "Välj privat nyckelfil", .filter = "Privata nyckelfiler (*.pvk)|*.pvk"});
    Choice(NAMED(ComboTimeStamp), kTimeStampSystems, sign.SignTimeStampSystem);
    return Group(VBox({
        cUseSign,
        Fields({
            {"B&eskrivning:", tDesc},
            {"&URL:", tURL},
            {"&Certifikationsfil:", HBox({Growing(tSPC), cmdBrowseSPC})},
            {"&Privat nyckelfil:", HBox({Growing(tPVK), cmdBrowsePVK})},
            {"&Tidsstämpel:", ComboTimeStamp},
        }),
        Stretch(),
    }));
}

QPushButton* DlgInstallOptions::BrowseButton(QPushButton*& member, const char* name,
                                             const Text& caption, QLineEdit*& field, int maxLength,
                                             const FileQuestion& question)
{
    QPushButton* button = Button(member, name, caption, [this, &field, maxLength, question] {
        Browse(*field, maxLength, question);
    });
    button->setAccessibleName(ToQt(question.title));
    return button;
}

void DlgInstallOptions::Browse(QLineEdit& field, int maxLength, const FileQuestion& question)
{
    Text folder = "C:\\";
    if (const auto path = ChooseKeptPath(question, folder, maxLength, kFile, session_.ask))
        field.setText(ToQt(*path));
}

void DlgInstallOptions::LeaveSelfExtractFilename()
{
    if (isReturning_ ||
        CheckSelfExtractFilename(FromQt(tSelfExtractFilename->text()), session_.ask))
        return;
    isReturning_ = true;
    tSelfExtractFilename->setFocus();
    // Later, since the tab that was clicked is shown only after this event.
    QTimer::singleShot(0, this, [this] { ReturnToSelfExtractFilename(); });
}

void DlgInstallOptions::ReturnToSelfExtractFilename()
{
    XTab->setCurrentWidget(internetTab_);
    tSelfExtractFilename->setFocus();
    isReturning_ = false;
}

bool DlgInstallOptions::MayClose()
{
    const Text name = FromQt(tSelfExtractFilename->text());
    if (IsSelfExtractFilename(name))
        return true;
    // OK moves the focus out of the field, and its check has already reported a bad name then.
    if (!isReturning_)
        CheckSelfExtractFilename(name, session_.ask);
    ReturnToSelfExtractFilename();
    return false;
}

void DlgInstallOptions::GatherSigning()
{
    QWidget* const fields[] = {tDesc, tURL, tSPC, tPVK, ComboTimeStamp};
    int number = 0;
    for (QWidget* field : fields) {
        ++number;
        signing_.push_back(field);
        for (QLabel* label : findChildren<QLabel*>())
            if (label->buddy() == field) {
                label->setObjectName(QString("labSign%1").arg(number));
                signing_.push_back(label);
            }
    }
    signing_.push_back(cmdBrowseSPC);
    signing_.push_back(cmdBrowsePVK);
}

void DlgInstallOptions::EnableSigning()
{
    for (QWidget* widget : signing_)
        widget->setEnabled(cUseSign->isChecked());
}

void DlgInstallOptions::FocusTab(int tab)
{
    QWidget* const firsts[] = {ComboSetupFilename, systems_.front(), tSelfExtractFilename,
                               cUseSign};
    if (!isReturning_)
        firsts[tab]->setFocus();
}

void DlgInstallOptions::Store()
{
    SetInternetAdvanced(session_.project, advanced_);
    NetFrameworkForm::Store();
}

void ShowInstallOptions(Session& session, QWidget* parent)
{
    DlgInstallOptions(session, parent).ShowModal();
}

} // namespace quillon
