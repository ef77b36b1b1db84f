// The import of a Visual Basic .NET project of 2002 or 2003: its COM components, the libraries of
// wrappers that it includes, the program, and the libraries beside the program.
#pragma once

#include "importers/import_data.h"
#include "importers/import_work.h"

namespace quillon {

/// The choices of the dialog, under the names of its controls.
struct VbNetChoices {
    Text sVBPfile;
    Text sEXEfile;
    int cUseDepFile = 1; // 0, 1, or 2 for the grey state of a box, which counts as off
};

ImportResult ImportVbNetProject(const ImportWork& work, const ImportData& data,
                                const VbNetChoices& choices);

/// Where the choice of the program begins.
Text ProgramFolderOf(const Text& vbprojFile);

} // namespace quillon
