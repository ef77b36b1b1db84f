#include "filelist/forms/DlgChCompNr.h"

#include "filelist/components.h"
#include "shell/session.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgChCompNr::DlgChCompNr(const Text& number, Session& session, QWidget* parent)
    : EditorForm("DlgChCompNr", "Komponentnummer", session, parent), Number(number)
{
    Arrange(VBox({
        Note("Ange numret på den komponent som filerna ska ingå i. Lämna fältet tomt om filerna "
             "inte ska ingå i någon komponent."),
        Fields({{"&Komponentnummer:", Field(NAMED(tInputData), Number)}}),
        Stretch(),
        OkCancel(),
    }));
    OnLeave(tInputData, [this] { LeaveInputData(); });
    tInputData->setFocus();
    tInputData->selectAll();
}

// Kept: a number that is no component in use is removed silently.
void DlgChCompNr::LeaveInputData()
{
    tInputData->setText(ToQt(UsableComponentNumber(FromQt(tInputData->text()), session_.project,
                                                   session_.host.machine.DecimalSign())));
}

bool DlgChCompNr::MayClose()
{
    // The field may never have been left, where the focus was in no window of ours.
    LeaveInputData();
    return true;
}

} // namespace quillon
