#include "diagnos/diagnosis_file.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "platform/failure_text.h"
#include "platform/whole_file.h"

namespace quillon {

Text WriteDiagnosisFile(const std::vector<Text>& arguments, Host& host, const DiskSize& diskSize,
                        const Text& programFolder)
{
    const DiagnosisCommand command = ReadDiagnosisCommand(arguments);
    const Text file = command.file.empty() ? JoinPath(programFolder, "Diagnos.txt") : command.file;
    try {
        Text text;
        for (const Text& line : DiagnosisLines(DescribeSystem(), command.caller, host, diskSize,
                                               ExtractDirectory(programFolder)))
            text += line + Text(kLineBreak);
        WriteWholeFile(host.files, file, AnsiText::ToBytes(text));
        return {};
    } catch (const RunError& error) {
        return FailureText(error, file);
    }
}

} // namespace quillon
