// A key or value that the setup takes away while it installs.
#pragma once

#include "actions/forms/RegistryKeyForm.h"

namespace quillon {

class DlgDeleteRegKey : public RemoveRegKeyForm {
public:
    DlgDeleteRegKey(Ask& ask, QWidget* parent)
        : RemoveRegKeyForm("DlgDeleteRegKey", "Nyckel eller värde som ska raderas vid installation",
                           RegistryRemoval::AtInstallation, ask, parent)
    {
    }
};

} // namespace quillon
