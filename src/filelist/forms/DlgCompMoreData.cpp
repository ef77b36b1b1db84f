#include "filelist/forms/DlgCompMoreData.h"

#include "filelist/forms/DlgCompMoreDataAdv.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

using section::FileComponent;

DlgCompMoreData::DlgCompMoreData(std::size_t component, Session& session, QWidget* parent)
    : EditorForm("DlgCompMoreData", "Komponent - mer inställningar och beskrivning", session,
                 parent),
      component_(session.project.FileComponents[component]), advanced_(component_)
{
    const Text number = NumberText(static_cast<std::int64_t>(component) + 1);
    Named(NAMED(sComponent), new QLabel(ToQt(component_.CompName + "   (# " + number + ")")));
    sComponent->setTextFormat(Qt::PlainText);
    Area(NAMED(tCompText), component_.CompText, MaxTextLength(&FileComponent::CompText));
    KeepOneLine(tCompText);
    Check01(NAMED(cCompDefault),
            "&Denna komponent ska vara ikryssad från början i installationsdialogrutan",
            component_.CompDefault);
    Check01(NAMED(cCanChangeDestDir),
            "&Användaren ska kunna ändra destinationskatalog för denna komponent",
            component_.CompCanChangeDir);
    Check01(NAMED(cMustAlwaysBeInstalled), "Denna komponent ska alltid installera&s",
            component_.CompMustAlwaysBeInstalled);
    connect(cMustAlwaysBeInstalled, &QCheckBox::toggled, this,
            [this] { TickDefaultWhereItMustBe(); });
    Button(NAMED(CmdAdvanced), "A&vancerat...",
           [this] { DlgCompMoreDataAdv(advanced_, session_, this).ShowModal(); });
    Arrange(VBox({
        sComponent,
        Growing(Above("&Beskrivning av komponenten:", tCompText)),
        Frame("Inställningar", {cCompDefault, cCanChangeDestDir, cMustAlwaysBeInstalled,
                                HBox({Stretch(), CmdAdvanced})}),
        OkCancel(),
    }));
    tCompText->setFocus();
}

void DlgCompMoreData::TickDefaultWhereItMustBe()
{
    if (cMustAlwaysBeInstalled->isChecked())
        cCompDefault->setChecked(true);
}

bool DlgCompMoreData::MayClose()
{
    TickDefaultWhereItMustBe();
    return true;
}

void DlgCompMoreData::Store()
{
    component_.CompAdvOnlyUpdate = advanced_.CompAdvOnlyUpdate;
    component_.CompAdvUpdateRefFile = advanced_.CompAdvUpdateRefFile;
    component_.CompAdvUpdateInfoBoxTitle = advanced_.CompAdvUpdateInfoBoxTitle;
    component_.CompAdvUpdateInfoBoxText = advanced_.CompAdvUpdateInfoBoxText;
    EditorForm::Store();
}

void ShowCompMoreData(Session& session, std::size_t component, QWidget* parent)
{
    DlgCompMoreData(component, session, parent).ShowModal();
}

} // namespace quillon
