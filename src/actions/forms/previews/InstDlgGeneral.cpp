#include "actions/forms/previews/InstDlgGeneral.h"

#include "ui/controls/RunningText.h"

#include <QtWidgets>

namespace quillon {

InstDlgGeneral::InstDlgGeneral(const GeneralPreview& page, Session& session, QWidget* parent)
    : InstDlg("InstDlgGeneral", page.page, page.title, page.bitmap, session, parent)
{
    Named(NAMED(sText), new RunningText(Shown(page.text), "Text"));
    const bool isLast = page.page == &section::DialogBoxes::InstallCompletedDlg;
    ArrangePage(sText, isLast ? Buttons::Finish : Buttons::NextCancel);
}

void ShowInstDlgGeneral(Session& session, const GeneralPreview& page, QWidget* parent)
{
    InstDlgGeneral(page, session, parent).ShowModal();
}

} // namespace quillon
