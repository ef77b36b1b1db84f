// hanging_sound FILE LOG WHEN: plays the file on a player that never answers, or on one that hangs
// while it is loaded where WHEN is "load", and comes to its end as a setup does.
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "runtime/win32/screen/screen_sound.h"

#include <windows.h>

#include <shellapi.h>

using namespace quillon;

namespace {

// The process that plays has a command line of its own, but the surroundings of this one.
constexpr const wchar_t* kWhen = L"QUILLON_HANGS_AT";

HANDLE Asked()
{
    static const HANDLE asked = CreateEventW(nullptr, TRUE, FALSE, L"QuillonSoundAsked");
    return asked;
}

DWORD WINAPI NeverAnswer(const wchar_t*, wchar_t*, UINT, HWND)
{
    SetEvent(Asked());
    Sleep(INFINITE);
    return 0;
}

SendSoundCommand FindHangingPlayer()
{
    wchar_t when[16] = {};
    GetEnvironmentVariableW(kWhen, when, 16);
    if (when[0] == L'l')
        NeverAnswer(nullptr, nullptr, 0, nullptr);
    return NeverAnswer;
}

int Play(const wchar_t* sound, const wchar_t* logFile)
{
    return RunErrorNumber([&] {
        WinFiles files;
        const DesignFiles design(files, {}, {}, DesignFiles::Names::AbsolutePaths);
        Text log;
        {
            ScreenSound player(design, Narrow(sound), {});
            player.Start();
            WaitForSingleObject(Asked(), INFINITE);
            log = player.HasFailed() ? "failed\n" : "plays\n";
        }
        WriteWholeFile(files, Narrow(logFile), log + "went on\n");
    });
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR commandLine, int)
{
    if (const auto code = PlayForParent(Narrow(commandLine), FindHangingPlayer))
        return *code;
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 4)
        return 1;
    Asked();
    SetEnvironmentVariableW(kWhen, arguments[3]);
    return Play(arguments[1], arguments[2]);
}
