#include "importers/forms/DlgImportVB5Project.h"

#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr const char* kFolderHelp =
    "Katalogen som VB5.EXE ligger i. Filerna för vidaredistribution hämtas "
    "från setupkit\\kitfil32\\sys32 under den.";

} // namespace

DlgImportVB5Project::DlgImportVB5Project(const ImportContext& context, QWidget* parent)
    : VbProjectForm("DlgImportVB5Project", "Importera Visual Basic 5.0 projekt", context, parent)
{
    setWhatsThis("Adderar de filer som ett program i Visual Basic 5.0 behöver: körfilerna, "
                 "ActiveX-filerna i projektet och programmet självt. Filer som redan finns i "
                 "fillistan ligger kvar. DEP-filer följs inte.");
    Arrange(VBox({
        ProjectFrame("5.0", kFolderHelp),
        MakeOptions(),
        Stretch(),
        Progress(),
        Buttons(),
    }));
    tVBDirectory->setText(ToQt(FindVb5Directory(context.session.host.machine)));
    cmdSelectVBP->setFocus();
}

Piece DlgImportVB5Project::MakeOptions()
{
    const Piece options =
        Frame("Alternativ",
              {Choice01(NAMED(cImportDAO35), "&DAO 3.5 och Jet 3.5",
                        "För program som använder Data Access Objects 3.5. Var DAO finns läses i "
                        "Registry."),
               Choice01(NAMED(cImportActiveXSysFiles), "&Mfc42.dll och Msvcrt.dll",
                        "Behövs av ActiveX-kontroller som är byggda med MFC."),
               IconBox()});
    cAddIcon->setChecked(true);
    return options;
}

void DlgImportVB5Project::SelectVBP()
{
    const auto file = SelectVbProject();
    if (!file)
        return;
    choices_.sVBPfile = *file;
    sVBPfile->ShowPath(ToQt(*file));
}

void DlgImportVB5Project::SelectEXE()
{
    const auto file = SelectProgram();
    if (!file)
        return;
    choices_.sEXEfile = *file;
    sEXEfile->ShowPath(ToQt(*file));
}

ImportResult DlgImportVB5Project::Import(const ImportWork& work)
{
    choices_.tVBDirectory = FromQt(tVBDirectory->text());
    choices_.cImportDAO35 = cImportDAO35->isChecked();
    choices_.cImportActiveXSysFiles = cImportActiveXSysFiles->isChecked();
    choices_.cAddIcon = cAddIcon->isChecked();
    return ImportVb5Project(work, choices_);
}

void ShowImportVB5Project(const ImportContext& context, QWidget* parent)
{
    DlgImportVB5Project form(context, parent);
    RunImportForm(form, context.window);
}

} // namespace quillon
