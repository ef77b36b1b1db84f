// Diagnos: describes the machine in a text file beside itself, or where the tool tells it to.
#include "diagnos/diagnosis.h"
#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"
#include "platform/this_host.h"
#include "platform/whole_file.h"

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace quillon;
    ThisHost host;
    // The program lies in a folder of its own below the tool's.
    const Text ownFolder = host.ProgramFolder();
    const DiagnosisCommand command = ReadDiagnosisCommand({argv + 1, argv + argc});
    const Text file = command.file.empty() ? JoinPath(ownFolder, "Diagnos.txt") : command.file;
    try {
        Text text;
        for (const Text& line : DiagnosisLines(
                 DescribeSystem(), command.caller, host.host,
                 [&](const Text& root) { return host.files.SizeOf(root); },
                 ExtractDirectory(ownFolder)))
            text += line + Text(kLineBreak);
        WriteWholeFile(host.files, file, AnsiText::ToBytes(text));
    } catch (const RunError& error) {
        std::fputs((FailureText(error, file) + "\n").c_str(), stderr);
        return 1;
    }
    return 0;
}
