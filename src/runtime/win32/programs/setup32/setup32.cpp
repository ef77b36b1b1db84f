// SETUP32: what the user starts. It unpacks nothing: it copies the setup proper and its library to
// a private folder, starts it there with the package's folder and its own switches, waits, cleans
// up and ends with the same code.
#include "formats/package_files.h"
#include "project/reference_language.h"
#include "runtime/command_line/switch_words.h"
#include "runtime/texts/starter_text.h"
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/starter/ansi_character.h"
#include "runtime/win32/starter/starter.h"
#include "runtime/win32/windows/display.h"

#include <cwchar>

using namespace quillon;

namespace {

// A text of the language file that the package names. Windows' own functions for such files would
// take UTF-8 for the code page of the machine.
void ReadMessage(Starter& starter, const StarterMessage& message)
{
    wchar_t language[MAX_PATH];
    JoinPaths(starter.scratch, starter.folder, kSetupInformationName);
    GetPrivateProfileStringW(L"Language", L"LanguageFile", L"", language, MAX_PATH,
                             starter.scratch);
    if (language[0] != 0)
        JoinPaths(starter.scratch, starter.folder, language);
    else
        JoinPaths(starter.scratch, starter.folder, kReferenceLanguage);
    SetMessage(starter, message.swedish);
    DWORD size = 0;
    char* const bytes = ReadFileOf(starter.scratch, size);
    if (bytes == nullptr)
        return;
    char16_t text[kMaxMessageLength];
    if (FindStarterText({bytes, size}, message.key, AnsiCharacterOf, text, kMaxMessageLength))
        for (int i = 0; i == 0 || text[i - 1] != 0; ++i)
            starter.message[i] = text[i];
    HeapFree(GetProcessHeap(), 0, bytes);
}

HWND ShowWaitWindow(Starter& starter)
{
    ReadMessage(starter, StarterMessages::kExtract);
    constexpr int kWidth = 320;
    constexpr int kHeight = 60;
    const quillon::PixelRect area = quillon::DisplayWithPointer().workArea;
    const HWND window = CreateWindowExW(WS_EX_DLGMODALFRAME, L"STATIC", starter.message,
                                        WS_POPUP | WS_VISIBLE | SS_CENTER | SS_CENTERIMAGE,
                                        area.left + (area.Width() - kWidth) / 2,
                                        area.top + (area.Height() - kHeight) / 2, kWidth, kHeight,
                                        nullptr, nullptr, nullptr, nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 TRUE);
    UpdateWindow(window);
    return window;
}

bool CopyRuntime(Starter& starter)
{
    JoinPaths(starter.scratch, starter.folder, kManifestName);
    const ListedFiles listed(starter.scratch);
    SetRefused(starter, wcsrchr(starter.own, L'\\') + 1);
    if (listed.AreKnown() && !listed.Hold(starter.own))
        return false;
    return CopyToWorkFolder(starter, starter.extra, RuntimePrograms::kUnzipLibrary, listed) &&
           CopyToWorkFolder(starter, starter.program, RuntimePrograms::kSetup, listed);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, LPWSTR switches, int)
{
    StartProgram();
    Starter* const starter = MakeStarter();
    if (starter == nullptr)
        return kNotStarted;
    const bool silent = HasSilentSwitch(switches);
    const HWND waitWindow = silent ? nullptr : ShowWaitWindow(*starter);
    SetupRun run;
    if (MakeWorkFolder(*starter)) {
        run.code = static_cast<DWORD>(ExitCode::DamagedPackage);
        if (CopyRuntime(*starter))
            run = RunSetup(*starter, {kPackageSwitch, starter->folder, switches}, waitWindow);
        DeleteFileW(starter->program);
        DeleteFileW(starter->extra);
        RemoveWorkFolder(*starter);
    }
    if (!run.isStarted) {
        if (starter->isDiskFull)
            run.code = static_cast<DWORD>(ExitCode::DiskFull);
        ReadMessage(*starter,
                    starter->isDiskFull ? StarterMessages::kNoRoom : StarterMessages::kNoRuntime);
        TellRefusal(*starter, switches, run.code);
    }
    return static_cast<int>(run.code);
}
