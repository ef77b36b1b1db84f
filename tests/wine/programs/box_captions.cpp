// box_captions LANGUAGE LOG: shows a message box of each kind in the texts of a language file, and
// presses its last button. The log gets a line for each box: the captions of its buttons, and the
// id of the one that the box says was pressed.
#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/windows/message_box.h"

#include <windows.h>

#include <shellapi.h>

using namespace quillon;

namespace {

// Of the box that is shown; a timer gets nothing else.
Text captions;

BOOL CALLBACK ReadAndPress(HWND window, LPARAM)
{
    wchar_t kind[16] = {};
    GetClassNameW(window, kind, 16);
    if (std::wstring_view(kind) != L"#32770" || !IsWindowVisible(window))
        return TRUE;
    int last = 0;
    for (const int button : {IDYES, IDNO, IDOK, IDCANCEL}) {
        const HWND found = GetDlgItem(window, button);
        if (found == nullptr)
            continue;
        wchar_t caption[64] = {};
        GetWindowTextW(found, caption, 64);
        captions += (last == 0 ? "" : "|") + Narrow(caption);
        last = button;
    }
    PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(last), 0);
    return FALSE;
}

// The box's own loop calls this, whenever it has nothing else to do, until the box is gone.
void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
{
    if (captions.empty())
        EnumThreadWindows(GetCurrentThreadId(), ReadAndPress, 0);
}

Text ShowOne(UINT kind, const LanguageTexts& texts)
{
    captions.clear();
    const UINT_PTR timer = SetTimer(nullptr, 0, 0, OnTimer);
    const int pressed = ShowMessageBox(nullptr, {"Titel", "Text", kind}, texts);
    KillTimer(nullptr, timer);
    return captions + " " + NumberText(pressed) + "\n";
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    StartProgram();
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 3)
        return 1;
    return RunErrorNumber([&] {
        WinFiles files;
        const LanguageTexts texts(ReadWholeFile(files, Narrow(arguments[1])));
        Text log;
        for (const UINT kind : {MB_OK, MB_OKCANCEL, MB_YESNO, MB_YESNOCANCEL})
            log += ShowOne(kind, texts);
        WriteWholeFile(files, Narrow(arguments[2]), log);
    });
}
