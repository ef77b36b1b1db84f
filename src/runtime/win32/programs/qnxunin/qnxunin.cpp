// QNXUNIN: removes a product. It is a starter like SETUP32: what it starts is the setup proper,
// which lies beside it and takes its place as the uninstaller. Its command line names the product's
// record; without a name that is the one beside it.
#include "runtime/command_line/switch_words.h"
#include "runtime/journal/recorded_text.h"
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/programs/qnxunin/self_removal.h"
#include "runtime/win32/starter/starter.h"

using namespace quillon;

namespace {

// The path of the journal, as the uninstaller itself reads the line.
void FindJournal(wchar_t* path, const Starter& starter, const wchar_t* line)
{
    const wchar_t* at = SkipSwitchBlanks(line);
    if (*at == 0 || BeginsSwitch(at) || IsSwitchMark(*at)) {
        JoinPaths(path, starter.folder, RuntimePrograms::kInstallJournal);
        return;
    }
    for (const wchar_t* const end = EndOfSwitch(at); at != end; ++at)
        if (*at != L'"')
            *path++ = *at;
    *path = 0;
}

// The installation has recorded the texts of its language in its journal.
void ReadMessage(Starter& starter, const wchar_t* line, const StarterMessage& message)
{
    SetMessage(starter, message.swedish);
    FindJournal(starter.scratch, starter, line);
    DWORD size = 0;
    char* const bytes = ReadFileOf(starter.scratch, size);
    if (bytes == nullptr)
        return;
    char text[kMaxMessageLength];
    if (FindRecordedText({bytes, size}, message.key, text, sizeof text))
        SetMessage(starter, text);
    HeapFree(GetProcessHeap(), 0, bytes);
}

bool CopyUninstaller(Starter& starter)
{
    JoinPaths(starter.scratch, starter.folder, RuntimePrograms::kUninstallerManifest);
    const ListedFiles listed(starter.scratch);
    return KeepCleaner(starter) &&
           CopyToWorkFolder(starter, starter.program, RuntimePrograms::kSetup, listed);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR line, int)
{
    StartProgram();
    int cleaned = 0;
    if (CleanUpForParent(line, cleaned))
        return cleaned;
    Starter* const starter = MakeStarter();
    if (starter == nullptr)
        return kNotStarted;
    SetupRun run;
    if (MakeWorkFolder(*starter)) {
        if (CopyUninstaller(*starter))
            run = RunSetup(*starter, {kUninstallerSwitch, starter->own, line}, nullptr);
        DeleteFileW(starter->program);
        RemoveWorkFolderAndItself(*starter);
    }
    if (!run.isStarted) {
        if (starter->isDiskFull)
            run.code = static_cast<DWORD>(ExitCode::DiskFull);
        ReadMessage(*starter, line,
                    starter->isDiskFull ? StarterMessages::kNoRoomToUninstall
                                        : StarterMessages::kNoUninstaller);
        TellRefusal(*starter, line, run.code);
    }
    return static_cast<int>(run.code);
}
