#include "importers/forms/DlgImportVBNetProject.h"

#include "ui/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgImportVBNetProject::DlgImportVBNetProject(const ImportDesk& desk, QWidget* parent)
    : ImportForm("DlgImportVBNetProject", "Importera Visual Basic .NET projekt", desk, parent)
{
    Named(NAMED(labNETtestStatus), new QLabel);
    Button(NAMED(CmdTestNETFramework), "&Ändra...", [this] {
        Desk().forms.showTestNETFramework(this);
        ShowNetTest();
    });
    Arrange(VBox({
        Note("För projekt från Visual Studio .NET 2002 och 2003."),
        Frame(
            "Projekt",
            {Fields({
                {"Projektfil (.VBPROJ):", PathRow(NAMED(sVBPfile), NAMED(cmdSelectVBP),
                                                  "Välj pro&jektfil...", [this] { SelectVBP(); })},
                {"Programfil (.EXE):", PathRow(NAMED(sEXEfile), NAMED(cmdSelectEXE),
                                               "Välj programfi&l...", [this] { SelectEXE(); })},
            })}),
        Frame("Alternativ",
              {Choice01(NAMED(cUseDepFile), "Följ &DEP-filer för ActiveX",
                        "Adderar även de filer som DEP-filerna i systemkatalogen anger för de "
                        "ActiveX-filer (.ocx) som projektet refererar till.")}),
        Frame(".NET Framework", {HBox({Growing(labNETtestStatus), CmdTestNETFramework})}),
        Stretch(),
        Progress(),
        Buttons(),
    }));
    cUseDepFile->setChecked(true);
    ShowNetTest();
    cmdSelectVBP->setFocus();
}

void DlgImportVBNetProject::SelectVBP()
{
    const auto file = SelectProject("Visual Basic projekt (*.vbproj)|*.vbproj", "*.vbproj");
    if (!file)
        return;
    choices_.sVBPfile = *file;
    sVBPfile->ShowPath(ToQt(*file));
}

void DlgImportVBNetProject::SelectEXE()
{
    const Text folder = choices_.sVBPfile.empty() ? Text() : ProgramFolderOf(choices_.sVBPfile);
    const auto file = SelectProgram(folder);
    if (!file)
        return;
    choices_.sEXEfile = *file;
    sEXEfile->ShowPath(ToQt(*file));
}

void DlgImportVBNetProject::ShowNetTest()
{
    labNETtestStatus->setText(Desk().session.project.NET.NET_TestIfInstalled != kOff
                                  ? "Testa att .NET Framework är installerad"
                                  : "Testa inte att .NET Framework är installerad");
}

ImportResult DlgImportVBNetProject::Import(const ImportWork& work)
{
    choices_.cUseDepFile = cUseDepFile->isChecked() ? 1 : 0;
    return ImportVbNetProject(work, Data(), choices_);
}

void ShowImportVBNetProject(const ImportDesk& desk, QWidget* parent)
{
    DlgImportVBNetProject form(desk, parent);
    RunImportForm(form, desk.window);
}

} // namespace quillon
