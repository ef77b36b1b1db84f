// The test for the .NET Framework in a dialog of its own, shown after the import of a project that
// needs it.
#pragma once

#include "actions/forms/NetFrameworkForm.h"

namespace quillon {

class DlgTestNETFramework : public NetFrameworkForm {
public:
    DlgTestNETFramework(Session& session, QWidget* parent)
        : NetFrameworkForm("DlgTestNETFramework", "Microsoft .NET Framework", session, parent)
    {
        Arrange(VBox({NetFrameworkTest(), Stretch(), OkCancel()}));
    }
};

} // namespace quillon
