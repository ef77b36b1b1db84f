#include "design/forms/DlgDesSubTitle.h"

#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kFieldCharacters = 50;

} // namespace

DlgDesSubTitle::DlgDesSubTitle(Text& subTitle, Session& session, QWidget* parent)
    : EditorForm("DlgDesSubTitle", "Undertitel", session, parent)
{
    Field(NAMED(tSubtitle), subTitle, MaxTextLength(&section::DesSubTitle::SubTitleText));
    Button(NAMED(cmdVariables), "&Variabler...", [this] {
        const int cursor = tSubtitle->cursorPosition();
        if (const auto variable = session_.ask.ChooseVariable()) {
            tSubtitle->setFocus();
            tSubtitle->setCursorPosition(cursor);
            tSubtitle->insert(ToQt(*variable));
        }
    });
    Arrange(VBox({
        Above("&Undertitel:", MinWidth(kFieldCharacters, tSubtitle)),
        HBox({cmdVariables, Stretch()}),
        Stretch(),
        OkCancel(),
    }));
    tSubtitle->setFocus();
}

} // namespace quillon
