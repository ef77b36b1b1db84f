// The import of the output folder of a build: every file of it, the version data of its program,
// and the test for the .NET Framework that the program needs.
#pragma once

#include "importers/import_work.h"
#include "importers/program_folder.h"

namespace quillon {

/// The choices of the dialog, under the names of its controls.
struct FolderChoices {
    bool cVersionData = true;      // into the project's version data
    bool cSkipBuildFiles = true;   // leave out symbols and the like
    bool cTestNETFramework = true; // where the program needs one that the setup can test for
    bool cAddIcon = true;
};

/// True where the setup's test for the .NET Framework covers what the program needs.
bool CanTestFor(const DotNetNeed& need);

/// False, with a message box, where there is no folder or no program in it.
bool HasProgram(const ProgramFolder& folder, Ask& ask);

/// `program` is a place in the folder's files.
ImportResult ImportProgramFolder(const ImportWork& work, const ProgramFolder& folder,
                                 std::size_t program, const ProgramFindings& findings,
                                 const FolderChoices& choices);

} // namespace quillon
