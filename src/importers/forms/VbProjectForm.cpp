#include "importers/forms/VbProjectForm.h"

#include "ui/controls/PathLabel.h"

#include <QtWidgets>

namespace quillon {

// Both versions have projects of one kind (.vbp), so they share the folder.
VbProjectForm::VbProjectForm(const char* name, const Text& title, const ImportContext& context,
                             QWidget* parent)
    : ImportForm(name, title, context, context.session.Settings.Directories.LastVB6ProjDir, parent)
{
}

Piece VbProjectForm::ProjectFrame(const Text& version, const Text& folderHelp)
{
    Named(NAMED(tVBDirectory), new QLineEdit);
    Explained(tVBDirectory, folderHelp);
    return Frame(
        "Projekt",
        {Fields({
            {"Projektfil (.VBP):",
             PathRow(NAMED(sVBPfile), cmdSelectVBP,
                     {"cmdSelectVBP", "Välj pro&jektfil...",
                      "Projektet som programmet byggs av. ActiveX-filerna som det anger hämtas "
                      "från systemkatalogen; om en saknas där talar importen om det.",
                      [this] { SelectVBP(); }})},
            {"Programfil (.EXE):",
             PathRow(NAMED(sEXEfile), cmdSelectEXE,
                     {"cmdSelectEXE", "Välj programfi&l...",
                      "Programmet som projektet skapar vid kompilering. Importen frågar vart på "
                      "mottagarens dator det ska.",
                      [this] { SelectEXE(); }})},
            {"&Visual Basic " + version + " katalog:", tVBDirectory},
        })});
}

QCheckBox* VbProjectForm::IconBox()
{
    return Choice01(NAMED(cAddIcon), "Lägg till ik&on för programmet",
                    "Frågar efter ikonens uppgifter när importen är klar.");
}

std::optional<Text> VbProjectForm::SelectVbProject()
{
    return SelectProject("Visual Basic projekt (*.vbp)|*.vbp", "*.vbp");
}

} // namespace quillon
