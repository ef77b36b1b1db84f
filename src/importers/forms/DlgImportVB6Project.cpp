#include "importers/forms/DlgImportVB6Project.h"

#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr const char* kFolderHelp =
    "Katalogen som VB6.EXE ligger i. Filerna för vidaredistribution hämtas "
    "från Wizards\\PDWizard\\Redist under den.";

} // namespace

DlgImportVB6Project::DlgImportVB6Project(const ImportContext& context, QWidget* parent)
    : VbProjectForm("DlgImportVB6Project", "Importera Visual Basic 6.0 projekt", context, parent)
{
    choices_.tVBDirectory = FindVb6Directory(context.session.host.machine);
    setWhatsThis("Adderar de filer som ett program i Visual Basic 6.0 behöver: körfilerna, "
                 "ActiveX-filerna i projektet, databasfilerna du väljer och programmet självt. "
                 "Filer som redan finns i fillistan ligger kvar.");
    Arrange(VBox({
        ProjectFrame("6.0", kFolderHelp),
        HBox({Growing(MakeDatabases()), Growing(MakeOptions())}),
        Stretch(),
        Progress(),
        Buttons(),
    }));
    ShowChoices();
    cmdSelectVBP->setFocus();
}

Piece DlgImportVB6Project::MakeDatabases()
{
    Button(NAMED(cmdMDADetails), "D&etaljer...", [this] { Context().forms.showMDADetails(this); });
    cmdMDADetails->setAccessibleName("Detaljer om Data Access");
    Explained(cmdMDADetails, "Väljer om installationen av Microsoft Data Access ska synas för "
                             "mottagaren, och om han ska tillfrågas innan.");
    return Frame(
        "Databaser",
        {Choice01(NAMED(cImportDAO35), "DAO &3.5 och Jet 3.5",
                  "För program som använder Data Access Objects 3.5. Var DAO finns läses i "
                  "Registry."),
         Choice01(NAMED(cImportDAO36), "DAO 3.&6 och Jet 4.0",
                  "För program som använder Data Access Objects 3.6. Var DAO finns läses i "
                  "Registry."),
         Choice01(NAMED(cImportADO), "&ADO-datakontroll",
                  "Adderar MSADODC.OCX och MSSTDFMT.DLL. Markeras av sig självt när projektet har "
                  "kontrollen."),
         Choice01(NAMED(cImportRDO), "&RDO-datakontroll",
                  "Adderar MSRDC20.OCX, RDOCURS.DLL och MSSTDFMT.DLL. Markeras av sig självt när "
                  "projektet har kontrollen."),
         HBox({Choice01(NAMED(cInstallMDA), "Data A&ccess (MDAC)",
                        "Lägger in installationsprogrammet MDAC_TYP.EXE, som installerar "
                        "Microsoft Data Access på mottagarens dator. Omkring 6 MB."),
               Stretch(), cmdMDADetails})});
}

Piece DlgImportVB6Project::MakeOptions()
{
    return Frame(
        "Alternativ",
        {Choice01(NAMED(cImportActiveXSysFiles), "&Mfc42.dll och Msvcrt.dll",
                  "Behövs av ActiveX-kontroller som är byggda med MFC. Markeras av sig självt när "
                  "projektet har en sådan."),
         Choice01(NAMED(cUseDepFile), "Följ &DEP-filer för ActiveX",
                  "Adderar även de filer som DEP-filerna i systemkatalogen anger för projektets "
                  "ActiveX-filer."),
         IconBox(), Stretch()});
}

void DlgImportVB6Project::SelectVBP()
{
    const auto file = SelectVbProject();
    if (!file)
        return;
    TakeChoices();
    choices_.sVBPfile = *file;
    const Session& session = Context().session;
    ScanVb6Project(session.host, session.ask, Data(), choices_);
    ShowChoices();
}

void DlgImportVB6Project::SelectEXE()
{
    if (const auto file = SelectProgram()) {
        TakeChoices();
        choices_.sEXEfile = *file;
        ShowChoices();
    }
}

void DlgImportVB6Project::TakeChoices()
{
    choices_.tVBDirectory = FromQt(tVBDirectory->text());
    choices_.cImportDAO35 = cImportDAO35->isChecked();
    choices_.cImportDAO36 = cImportDAO36->isChecked();
    choices_.cImportADO = cImportADO->isChecked();
    choices_.cImportRDO = cImportRDO->isChecked();
    choices_.cInstallMDA = cInstallMDA->isChecked();
    choices_.cImportActiveXSysFiles = cImportActiveXSysFiles->isChecked();
    choices_.cUseDepFile = cUseDepFile->isChecked() ? 1 : 0;
    choices_.cAddIcon = cAddIcon->isChecked();
}

void DlgImportVB6Project::ShowChoices()
{
    sVBPfile->ShowPath(ToQt(choices_.sVBPfile));
    sEXEfile->ShowPath(ToQt(choices_.sEXEfile));
    tVBDirectory->setText(ToQt(choices_.tVBDirectory));
    cImportDAO35->setChecked(choices_.cImportDAO35);
    cImportDAO36->setChecked(choices_.cImportDAO36);
    cImportADO->setChecked(choices_.cImportADO);
    cImportRDO->setChecked(choices_.cImportRDO);
    cInstallMDA->setChecked(choices_.cInstallMDA);
    cImportActiveXSysFiles->setChecked(choices_.cImportActiveXSysFiles);
    cUseDepFile->setChecked(choices_.cUseDepFile == 1);
    cAddIcon->setChecked(choices_.cAddIcon);
}

ImportResult DlgImportVB6Project::Import(const ImportWork& work)
{
    TakeChoices();
    return ImportVb6Project(work, Data(), choices_);
}

void ShowImportVB6Project(const ImportContext& context, QWidget* parent)
{
    DlgImportVB6Project form(context, parent);
    RunImportForm(form, context.window);
}

} // namespace quillon
