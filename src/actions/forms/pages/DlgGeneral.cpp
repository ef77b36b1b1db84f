#include "actions/forms/pages/DlgGeneral.h"

#include "actions/forms/pages/PictureChoice.h"
#include "actions/forms/previews/previews.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kFieldCharacters = 50;

} // namespace

DlgGeneral::DlgGeneral(const GeneralPage& page, Session& session, QWidget* parent)
    : PageEditor("DlgGeneral", page.isOn, session, parent), page_(page.isOn)
{
    Line(NAMED(tDialogTitle), page.title);
    Lines(NAMED(tDialogText), page.text);
    Arrange(VBox({
        Growing(HBox({
            Growing(VBox({
                        Above("T&itel:", MinWidth(kFieldCharacters, tDialogTitle)),
                        Growing(Above("Te&xt:", tDialogText)),
                    }),
                    2),
            Growing(OwnPicture(page.bitmap, bitmap_)),
        })),
        Ending([this] { Test(); }),
    }));
    tDialogTitle->setFocus();
}

void DlgGeneral::Test()
{
    ShowInstDlgGeneral(session_,
                       {.title = FromQt(tDialogTitle->text()),
                        .text = LinesFromQt(TypedText(tDialogText)),
                        .bitmap = bitmap_,
                        .page = page_},
                       this);
}

} // namespace quillon
