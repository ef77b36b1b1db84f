#include "filelist/forms/DlgCompMoreDataAdv.h"

#include "project/text_limits.h"
#include "ui/kit/typed_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using section::FileComponent;

} // namespace

DlgCompMoreDataAdv::DlgCompMoreDataAdv(FileComponent& component, Session& session, QWidget* parent)
    : EditorForm("DlgCompMoreDataAdv", "Komponent - avancerade inställningar", session, parent)
{
    Check01(NAMED(cOnlyUpdate),
            "&Denna komponent får endast installeras om en tidigare version redan finns "
            "installerad",
            component.CompAdvOnlyUpdate);
    Field(NAMED(tUpdateReferenceFile), component.CompAdvUpdateRefFile,
          MaxTextLength(&FileComponent::CompAdvUpdateRefFile));
    Field(NAMED(tUpdateInfoBoxTitle), component.CompAdvUpdateInfoBoxTitle,
          MaxTextLength(&FileComponent::CompAdvUpdateInfoBoxTitle));
    Area(NAMED(tUpdateInfoBoxText), component.CompAdvUpdateInfoBoxText,
         MaxTextLength(&FileComponent::CompAdvUpdateInfoBoxText));
    KeepOneLine(tUpdateInfoBoxText);
    Arrange(VBox({
        Frame("Uppdatering av komponent",
              {
                  cOnlyUpdate,
                  Fields({{"&Referensfil:", tUpdateReferenceFile}}),
                  Note("Om inte komponenten är installerad sen tidigare ska följande text visas i "
                       "en informationsruta:"),
                  Fields({{"&Titel:", tUpdateInfoBoxTitle}}),
                  Growing(Above("Te&xt:", tUpdateInfoBoxText)),
              }),
        OkCancel(),
    }));
}

} // namespace quillon
