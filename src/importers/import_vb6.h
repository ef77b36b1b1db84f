// The import of a Visual Basic 6.0 project: the run-time files, what the project file names, the
// databases that the user chooses, and the program itself.
#pragma once

#include "importers/import_data.h"
#include "importers/import_work.h"

namespace quillon {

/// The choices of the dialog, under the names of its controls. An import ticks boxes of its own.
struct Vb6Choices {
    Text sVBPfile;
    Text sEXEfile;
    Text tVBDirectory;
    bool cImportDAO35 = false;
    bool cImportDAO36 = false;
    bool cImportADO = false;
    bool cImportRDO = false;
    bool cInstallMDA = false;
    bool cImportActiveXSysFiles = false;
    // 0, 1, or 2 for the grey state of a box, which counts as off.
    int cUseDepFile = 1;
    bool cAddIcon = true;

    bool MDAQuestionAsked = false; // once for each time that the dialog is open
};

/// The folder of Visual Basic 6.0 as this machine has it registered; empty where it has none.
Text FindVb6Directory(const Machine& machine);

/// The folder with the files of Visual Basic 6.0 for redistribution.
Text GetDirectoryToVB6RedistDir(const Vb6Choices& choices);

/// Ticks what the project file is seen to need.
void ScanVb6Project(Host host, Ask& ask, const ImportData& data, Vb6Choices& choices);

ImportResult ImportVb6Project(const ImportWork& work, const ImportData& data, Vb6Choices& choices);

} // namespace quillon
