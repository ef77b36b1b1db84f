#include "tools/diagnosis_program.h"

#include "helpers/windows_path.h"
#include "tools/bug_report.h"

namespace quillon {

namespace {

constexpr const char* kWindowsProgram = "Diagnos\\Diagnos.exe";
constexpr const char* kOwnProgram = "Diagnos\\Diagnos"; // of a system other than Windows

} // namespace

void StartDiagnosis(Host& host, const Text& toolFolder, const Text& ownFolder, const Text& more)
{
    const Text own = JoinPath(toolFolder, kOwnProgram);
    const Text program = host.files.FileExists(own) ? own : JoinPath(toolFolder, kWindowsProgram);
    Text arguments = " /X";
    // Without /To= the program writes into its own folder.
    if (ownFolder != toolFolder)
        arguments += " \"/To=" + DiagnosisFile(ownFolder) + "\"";
    host.machine.StartProgram(program, arguments + more);
}

} // namespace quillon
