// "Hej": a small window that greets its user by the time of day. The name to greet stands in
// Hej.ini beside the program, where the installation has put it.
#include <windows.h>

#include <string>

namespace {

constexpr int kWidth = 460;
constexpr int kHeight = 220;
constexpr COLORREF kPaper = RGB(255, 250, 240);
constexpr COLORREF kInk = RGB(0, 82, 147);

std::wstring Greeting()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    if (now.wHour < 5)
        return L"God natt";
    if (now.wHour < 10)
        return L"God morgon";
    return now.wHour < 18 ? L"God dag" : L"God kväll";
}

std::wstring NameToGreet()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring file(path);
    file = file.substr(0, file.rfind(L'\\') + 1) + L"Hej.ini";
    wchar_t name[80] = {};
    GetPrivateProfileStringW(L"Hej", L"Namn", L"du", name, 80, file.c_str());
    return name;
}

void WriteLine(HDC paper, const std::wstring& text, int size, int top)
{
    const HFONT font = CreateFontW(-size, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                   OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                   VARIABLE_PITCH | FF_SWISS, L"Tahoma");
    const HGDIOBJ before = SelectObject(paper, font);
    RECT line = {0, top, kWidth, top + 2 * size};
    DrawTextW(paper, text.c_str(), -1, &line, DT_CENTER | DT_SINGLELINE | DT_TOP);
    SelectObject(paper, before);
    DeleteObject(font);
}

void Paint(HWND window)
{
    PAINTSTRUCT state;
    const HDC paper = BeginPaint(window, &state);
    SetBkMode(paper, TRANSPARENT);
    SetTextColor(paper, kInk);
    WriteLine(paper, Greeting() + L", " + NameToGreet() + L"!", 34, 40);
    WriteLine(paper, L"Roligt att du är här. Ha en riktigt fin dag.", 16, 110);
    EndPaint(window, &state);
}

LRESULT CALLBACK OnMessage(HWND window, UINT message, WPARAM wide, LPARAM extra)
{
    switch (message) {
    case WM_PAINT:
        Paint(window);
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return DefWindowProcW(window, message, wide, extra);
    }
}

} // namespace

int WINAPI wWinMain(HINSTANCE program, HINSTANCE, PWSTR, int show)
{
    WNDCLASSW look = {};
    look.lpfnWndProc = OnMessage;
    look.hInstance = program;
    look.hCursor = LoadCursor(nullptr, IDC_ARROW);
    look.hbrBackground = CreateSolidBrush(kPaper);
    look.lpszClassName = L"Hej";
    RegisterClassW(&look);

    RECT frame = {0, 0, kWidth, kHeight};
    AdjustWindowRect(&frame, WS_CAPTION | WS_SYSMENU, FALSE);
    const HWND window = CreateWindowW(L"Hej", L"Hej", WS_CAPTION | WS_SYSMENU, CW_USEDEFAULT,
                                      CW_USEDEFAULT, frame.right - frame.left,
                                      frame.bottom - frame.top, nullptr, nullptr, program, nullptr);
    ShowWindow(window, show);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
    return 0;
}
