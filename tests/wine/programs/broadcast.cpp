// broadcast WORD: sends a message to each window of a setup and waits for the answers, as a program
// that has changed the system's settings does, and appends a line to C:\broadcast.txt: the word,
// how many windows it has found and how many of them gave no answer, and "held" where one of the
// setup's windows does not let the session end. Ends with the number of missing answers.
#include <windows.h>

#include <shellapi.h>

#include <cwchar>

namespace {

// Milliseconds; far more than a window that handles its messages needs.
constexpr UINT kMaxWait = 10'000;

struct Answers {
    int windows = 0;
    int missing = 0;
    bool isShutdownHeld = false;
};

BOOL CALLBACK SendTo(HWND window, LPARAM data)
{
    auto& answers = *reinterpret_cast<Answers*>(data);
    wchar_t kind[64] = {};
    GetClassNameW(window, kind, 64);
    DWORD_PTR mayEnd = TRUE;
    if (std::wcscmp(kind, L"QuillonShutdownHold") == 0 &&
        SendMessageTimeoutW(window, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, kMaxWait, &mayEnd) != 0)
        answers.isShutdownHeld = answers.isShutdownHeld || mayEnd == FALSE;
    if (std::wcscmp(kind, L"QuillonSetup") != 0)
        return TRUE;
    ++answers.windows;
    DWORD_PTR result = 0;
    if (SendMessageTimeoutW(window, WM_SETTINGCHANGE, 0, reinterpret_cast<LPARAM>(L"Environment"),
                            SMTO_NORMAL, kMaxWait, &result) == 0)
        ++answers.missing;
    return TRUE;
}

void Append(const wchar_t* word, const Answers& answers)
{
    char line[128];
    const int length = wsprintfA(line, "%ls %d %d%ls\n", word, answers.windows, answers.missing,
                                 answers.isShutdownHeld ? L" held" : L"");
    const HANDLE file =
        CreateFileW(L"C:\\broadcast.txt", FILE_APPEND_DATA, 0, nullptr, OPEN_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(file, line, static_cast<DWORD>(length), &written, nullptr);
    CloseHandle(file);
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    Answers answers;
    EnumWindows(SendTo, reinterpret_cast<LPARAM>(&answers));
    Append(count > 1 ? arguments[1] : L"", answers);
    return answers.missing;
}
