#include "actions/forms/NetFrameworkForm.h"

#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

Piece NetFrameworkForm::NetFrameworkTest()
{
    section::NET& net = session_.project.NET;
    Check(NAMED(cTestIfNETInstalled), "Testa om Microsoft .NET Framework finns installerad",
          net.NET_TestIfInstalled);
    versions_ = Frame(
        "Version",
        {Option(NAMED(oNETver10), "Minst version 1.0 av .NET Framework måste finnas installerad",
                net.NET_ver10),
         Option(NAMED(oNETver11), "Minst version 1.1 av .NET Framework måste finnas installerad",
                net.NET_ver11)});
    consequences_ =
        Frame("Om .NET Framework saknas",
              {Option(NAMED(oWarnIfNoNET), "Visa en varnings-ruta", net.NET_WarnIfNoNET),
               Option(NAMED(oStopIfNoNET), "Stoppa installationen", net.NET_StopIfNoNET)});
    connect(cTestIfNETInstalled, &QCheckBox::toggled, this, [this] { EnableChoices(); });
    EnableChoices();
    return VBox({cTestIfNETInstalled, HBox({Growing(versions_), Growing(consequences_)})});
}

void NetFrameworkForm::EnableChoices()
{
    for (QGroupBox* frame : {versions_, consequences_})
        frame->setEnabled(cTestIfNETInstalled->isChecked());
}

} // namespace quillon
