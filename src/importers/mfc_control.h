// Whether an ActiveX control needs the run-time of MFC.
#pragma once

#include "importers/import_data.h"
#include "platform/host.h"

namespace quillon {

/// True where the table says so, or where the control's own import table in the system folder does.
bool NeedsMfc(const ImportData& data, Host host, const Text& fileName);

} // namespace quillon
