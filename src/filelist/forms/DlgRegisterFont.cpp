#include "filelist/forms/DlgRegisterFont.h"

#include "filelist/row_text.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kFieldCharacters = 50;

} // namespace

DlgRegisterFont::DlgRegisterFont(FileListRow& row, Session& session, QWidget* parent)
    : EditorForm("DlgRegisterFont", "Registrera teckensnitt", session, parent), row_(row),
      font_(FontOf(row))
{
    Named(NAMED(sFontFileName), new PathLabel)->ShowPath(ToQt(row[Filename]));
    Field(NAMED(tFontDesc), font_.description);
    Check(NAMED(cRegisterFont), "&Registrera detta teckensnitt efter installation",
          font_.isRegistered);
    Check01(NAMED(cNeverReplaceExistingFonts),
            "&Om ett teckensnitt redan existerar ska den aldrig ersättas",
            session.project.FontOptions.NeverReplaceExistingFonts);
    connect(tFontDesc, &QLineEdit::textEdited, this, [this] { cRegisterFont->setChecked(true); });
    Arrange(VBox({
        Fields({
            {"Filnamn:", sFontFileName},
            {"&Typsnittsnamn:", MinWidth(kFieldCharacters, tFontDesc)},
        }),
        cRegisterFont,
        cNeverReplaceExistingFonts,
        Stretch(),
        OkCancel(),
    }));
    tFontDesc->setFocus();
}

// A font without a name can't be registered.
bool DlgRegisterFont::MayClose()
{
    if (tFontDesc->text().isEmpty())
        cRegisterFont->setChecked(false);
    if (!cRegisterFont->isChecked() ||
        CheckRowText(FromQt(tFontDesc->text()), "Fältet 'Typsnittsnamn'", session_.ask))
        return true;
    tFontDesc->setFocus();
    return false;
}

void DlgRegisterFont::Store()
{
    EditorForm::Store();
    SetFont(row_, font_, session_.project.FontOptions.NeverReplaceExistingFonts != 0);
}

} // namespace quillon
