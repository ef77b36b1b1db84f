#include "tools/fault_note.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

namespace quillon {

Text FaultNoteFile(const Text& ownFolder)
{
    return JoinPath(ownFolder, "Recovery\\Fault.txt");
}

Text ReadFaultNote(const FileSystem& files, const Text& ownFolder)
{
    const Text file = FaultNoteFile(ownFolder);
    Text note;
    RunErrorNumber([&] {
        if (files.FileExists(file))
            note = AnsiText::FromBytes(ReadWholeFile(files, file));
    });
    return WithWindowsLineEnds(note);
}

void RemoveFaultNote(FileSystem& files, const Text& ownFolder)
{
    const Text file = FaultNoteFile(ownFolder);
    RunErrorNumber([&] {
        if (files.FileExists(file))
            files.RemoveFile(file);
    });
}

} // namespace quillon
