// The import of a Visual Basic 5.0 project. It handles no data controls and no dependency files,
// and ticks no boxes of its own accord.
#pragma once

#include "importers/import_work.h"

namespace quillon {

/// The choices of the dialog, under the names of its controls.
struct Vb5Choices {
    Text sVBPfile;
    Text sEXEfile;
    Text tVBDirectory;
    bool cImportDAO35 = false;
    bool cImportActiveXSysFiles = false;
    bool cAddIcon = true;
};

/// The folder of Visual Basic 5.0 as this machine has it registered; empty where it has none.
Text FindVb5Directory(const Machine& machine);

ImportResult ImportVb5Project(const ImportWork& work, const Vb5Choices& choices);

} // namespace quillon
