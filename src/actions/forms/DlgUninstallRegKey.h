// A key or value that goes when the product is uninstalled.
#pragma once

#include "actions/forms/RegistryKeyForm.h"

namespace quillon {

class DlgUninstallRegKey : public RemoveRegKeyForm {
public:
    DlgUninstallRegKey(Ask& ask, QWidget* parent)
        : RemoveRegKeyForm("DlgUninstallRegKey",
                           "Nyckel eller värde som ska avlägsnas vid avinstallation",
                           RegistryRemoval::AtUninstallation, ask, parent)
    {
    }
};

} // namespace quillon
