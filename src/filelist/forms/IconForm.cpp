#include "filelist/forms/IconForm.h"

#include "filelist/forms/DlgIconOptions.h"
#include "filelist/row_text.h"
#include "shell/session.h"
#include "ui/controls/complete_variable.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

IconForm::IconForm(const char* name, FileListRow& row, Session& session, QWidget* parent)
    : EditorForm(name, "Ikon", session, parent), row_(row), icon_(IconOf(row))
{
    Field(NAMED(tDescription), icon_.description);
    Field(NAMED(tWorkDir), icon_.workDir);
    Check(NAMED(cAddIcon), "Adde&ra ikon till skapad programgrupp", icon_.isAdded);
    Button(NAMED(mIconOptions), "Alternati&v...", [this] { ChoosePlace(); });
    CompleteVariables(tWorkDir, PrefixTable::Folder);
    TickAddIconOnTyping(tDescription);
}

Piece IconForm::Ending()
{
    return VBox({HBox({Growing(cAddIcon), mIconOptions}), Stretch(), OkCancel()});
}

void IconForm::TickAddIconOnTyping(QLineEdit* field)
{
    connect(field, &QLineEdit::textEdited, this, [this] { cAddIcon->setChecked(true); });
}

void IconForm::ChoosePlace()
{
    DlgIconOptions form(icon_.places, this);
    if (!form.ShowModal())
        return;
    icon_.places = form.Places;
    // Kept: any OK marks the project.
    session_.state.ProjectIsDirty = kOn;
}

bool IconForm::CanStore(QLineEdit* field)
{
    if (CheckRowText(FromQt(field->text()), "Fältet '" + FromQt(field->accessibleName()) + "'",
                     session_.ask))
        return true;
    field->setFocus();
    return false;
}

bool IconForm::MayClose()
{
    return CanStore(tDescription) && CanStore(tWorkDir);
}

} // namespace quillon
