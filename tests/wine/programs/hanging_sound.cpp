// hanging_sound FILE LOG: plays the file on a player that never answers, and comes to its end as a
// setup does.
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "runtime/win32/screen_sound.h"

#include <windows.h>

#include <shellapi.h>

using namespace quillon;

namespace {

HANDLE Asked()
{
    static const HANDLE asked = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return asked;
}

DWORD WINAPI NeverAnswer(const wchar_t*, wchar_t*, UINT, HWND)
{
    SetEvent(Asked());
    Sleep(INFINITE);
    return 0;
}

ScreenSound::SendCommand FindHangingPlayer()
{
    return NeverAnswer;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 3)
        return 1;
    return RunErrorNumber([&] {
        WinFiles files;
        const DesignFiles design(files, {}, {}, DesignFiles::Names::WholePaths);
        Text log;
        {
            ScreenSound sound(design, Narrow(arguments[1]), {}, FindHangingPlayer);
            sound.Start();
            WaitForSingleObject(Asked(), INFINITE);
            log = sound.HasFailed() ? "failed\n" : "plays\n";
        }
        WriteWholeFile(files, Narrow(arguments[2]), log + "went on\n");
    });
}
