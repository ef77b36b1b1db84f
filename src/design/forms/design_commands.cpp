#include "design/forms/design_commands.h"

#include "design/forms/DlgDesBackground.h"
#include "design/forms/DlgDesLogotype.h"
#include "design/forms/DlgDesOverview.h"
#include "design/forms/DlgDesPercentGauge.h"
#include "design/forms/DlgDesPictures.h"
#include "design/forms/DlgDesPicturesAnim.h"
#include "design/forms/DlgDesRTFbox.h"
#include "design/forms/DlgDesTextbox.h"
#include "design/forms/DlgDesTitle.h"
#include "design/forms/DlgSound.h"
#include "design/forms/DlgUnderline.h"
#include "shell/session.h"

#include <algorithm>

namespace quillon {

namespace {

template <class Editor>
bool Edited(DesignScreen& screen)
{
    return Editor(screen.GetSession(), screen.window()).ShowModal();
}

// The box may hang below the title.
void RedrawTextBoxBelowTitle(DesignScreen& screen)
{
    if (screen.GetSession().project.DesTextBox.ShowTextBox != kOff)
        screen.DrawDesTextBox();
}

void EditObject(DesignScreen& screen, DesignScreen::Object object, std::size_t index)
{
    switch (object) {
    case DesignScreen::Object::Pictures:
        return EditDesPictures(screen, index);
    case DesignScreen::Object::PicturesAnim:
        return EditDesPicturesAnim(screen);
    case DesignScreen::Object::Logotype:
        return EditDesLogotype(screen);
    case DesignScreen::Object::TextBox:
        return EditDesTextBox(screen);
    case DesignScreen::Object::RTFbox:
        return EditDesRTFbox(screen);
    }
}

void EditSurface(DesignScreen& screen, SurfaceEditor editor)
{
    switch (editor) {
    case SurfaceEditor::Title:
        return EditDesTitle(screen);
    case SurfaceEditor::Underline:
        return EditDesUnderline(screen);
    case SurfaceEditor::Background:
        return EditDesBackground(screen);
    }
}

} // namespace

void EditDesBackground(DesignScreen& screen)
{
    if (!Edited<DlgDesBackground>(screen))
        return;
    screen.ReportAgain(DesignScreen::PictureStep::Background);
    screen.DrawDesLogotypeBackColor();
    screen.DrawDesBackground();
    screen.DrawDesTitle();
}

void EditDesTitle(DesignScreen& screen)
{
    if (!Edited<DlgDesTitle>(screen))
        return screen.DrawDesTitle(); // a font that was chosen stays
    screen.DrawDesBackground();
    screen.DrawDesTitle();
    screen.GetSession().ask.ProcessEvents();
    RedrawTextBoxBelowTitle(screen);
}

void EditDesUnderline(DesignScreen& screen)
{
    if (!Edited<DlgUnderline>(screen))
        return;
    screen.DrawDesBackground();
    screen.DrawDesTitle();
    RedrawTextBoxBelowTitle(screen);
}

void EditDesTextBox(DesignScreen& screen)
{
    if (Edited<DlgDesTextbox>(screen))
        screen.DrawDesTextBox();
    else
        screen.RepaintDesTextBox(); // a font that was chosen stays
}

void EditDesRTFbox(DesignScreen& screen)
{
    if (Edited<DlgDesRTFbox>(screen))
        screen.DrawDesRTFbox();
}

void EditDesPictures(DesignScreen& screen, std::size_t index)
{
    if (!DlgDesPictures(index, screen.GetSession(), screen.window()).ShowModal())
        return;
    screen.ReportAgain(DesignScreen::PictureStep::Pictures);
    screen.DrawDesPictures();
}

void EditDesPicturesAnim(DesignScreen& screen)
{
    if (Edited<DlgDesPicturesAnim>(screen))
        screen.DrawDesPicturesAnim();
}

void EditDesLogotype(DesignScreen& screen)
{
    if (!Edited<DlgDesLogotype>(screen))
        return;
    screen.ReportAgain(DesignScreen::PictureStep::Logotype);
    screen.DrawDesLogotype();
}

void EditDesPercentGauge(DesignScreen& screen)
{
    Edited<DlgDesPercentGauge>(screen);
}

void EditDesSound(DesignScreen& screen)
{
    Edited<DlgSound>(screen);
}

void EditDesOverview(DesignScreen& screen)
{
    Edited<DlgDesOverview>(screen);
}

std::size_t PictureToEdit(const section::DesPictures& record)
{
    const auto free = std::ranges::find_if(record.Pictures, [](const section::DesPicture& slot) {
        return slot.PictureFilename.empty();
    });
    return free == record.Pictures.end() ? 0
                                         : static_cast<std::size_t>(free - record.Pictures.begin());
}

void ConnectEditors(DesignScreen& screen)
{
    screen.onEditObject = [&screen](DesignScreen::Object object, std::size_t index) {
        EditObject(screen, object, index);
    };
    screen.onEditSurface = [&screen](SurfaceEditor editor) { EditSurface(screen, editor); };
}

} // namespace quillon
