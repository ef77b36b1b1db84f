#include "importers/forms/DlgImportVBNetProject.h"

#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgImportVBNetProject::DlgImportVBNetProject(const ImportContext& context, QWidget* parent)
    : ImportForm("DlgImportVBNetProject", "Importera Visual Basic .NET projekt", context,
                 context.session.Settings.Directories.LastVBNETProjDir, parent)
{
    Named(NAMED(labNETtestStatus), new QLabel);
    Button(NAMED(CmdTestNETFramework), "&Ändra...", [this] {
        Context().forms.showTestNETFramework(this);
        ShowNetTest();
    });
    CmdTestNETFramework->setAccessibleName("Ändra testet av .NET Framework");
    Explained(CmdTestNETFramework,
              "Väljer om installationen ska testa att .NET Framework finns, vilken version det "
              "gäller och vad som händer om den saknas.");
    setWhatsThis("Adderar de filer som ett program i Visual Basic .NET behöver: "
                 "COM-komponenterna i projektet, programmet självt och DLL-filerna bredvid det. "
                 "Filer som redan finns i fillistan ligger kvar.");
    Arrange(VBox({
        Note("För projekt från Visual Studio .NET 2002 och 2003."),
        Frame("Projekt",
              {Fields({
                  {"Projektfil (.VBPROJ):",
                   PathRow(NAMED(sVBPfile), cmdSelectVBP,
                           {"cmdSelectVBP", "Välj pro&jektfil...",
                            "Projektet som programmet byggs av. COM-komponenterna som det "
                            "refererar till adderas om de ligger i systemkatalogen. För projekt "
                            "från Visual Studio 2005 och senare finns Importera programkatalog.",
                            [this] { SelectVBP(); }})},
                  {"Programfil (.EXE):", PathRow(NAMED(sEXEfile), cmdSelectEXE,
                                                 {"cmdSelectEXE", "Välj programfi&l...",
                                                  "Programmet som projektet skapar. DLL-filerna i "
                                                  "samma katalog adderas till %DESTDIR.",
                                                  [this] { SelectEXE(); }})},
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
    const auto file = SelectProject(
        "Visual Basic projekt (*.vbproj)|*.vbproj|C#-projekt (*.csproj)|*.csproj", "*.vbproj");
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
    labNETtestStatus->setText(Context().session.project.NET.NET_TestIfInstalled != kOff
                                  ? "Testa att .NET Framework är installerad"
                                  : "Testa inte att .NET Framework är installerad");
}

ImportResult DlgImportVBNetProject::Import(const ImportWork& work)
{
    choices_.cUseDepFile = cUseDepFile->isChecked() ? 1 : 0;
    return ImportVbNetProject(work, Data(), choices_);
}

void ShowImportVBNetProject(const ImportContext& context, QWidget* parent)
{
    DlgImportVBNetProject form(context, parent);
    RunImportForm(form, context.window);
}

} // namespace quillon
