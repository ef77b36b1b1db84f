#include "runtime/win32/windows/message_box.h"

#include "platform/win32/wide_text.h"

#include <utility>

namespace quillon {

namespace {

struct Caption {
    int button;
    Message text;
};

constexpr Caption kCaptions[] = {
    {IDOK, Message::Ok}, {IDCANCEL, Message::Cancel}, {IDYES, Message::Yes}, {IDNO, Message::No}};

struct Box {
    const LanguageTexts& texts;
    bool hasOkAlone;
};

// A hook gets no data of its own, so the box that it is for is stored here; one thread shows all
// boxes, one at a time.
const Box* shownBox = nullptr;

bool IsDialog(HWND window)
{
    wchar_t kind[16] = {};
    GetClassNameW(window, kind, static_cast<int>(std::size(kind)));
    return std::wstring_view(kind) == L"#32770";
}

void SetCaptions(HWND window, const Box& box)
{
    for (const Caption& caption : kCaptions) {
        const HWND button = GetDlgItem(window, caption.button);
        // The only button of a box closes it as Cancel does, and on Windows has that id.
        const bool isOk = box.hasOkAlone && caption.button == IDCANCEL;
        if (button != nullptr)
            SetWindowTextW(button, Wide(box.texts[isOk ? Message::Ok : caption.text]).c_str());
    }
}

// Called when the box has its buttons and is about to be seen.
LRESULT CALLBACK OnActivation(int code, WPARAM word, LPARAM data)
{
    const auto window = reinterpret_cast<HWND>(word);
    if (code == HCBT_ACTIVATE && shownBox != nullptr && IsDialog(window))
        SetCaptions(window, *shownBox);
    return CallNextHookEx(nullptr, code, word, data);
}

} // namespace

int ShowMessageBox(HWND owner, const MessageBoxContent& content, const LanguageTexts& texts)
{
    const Box box{texts, (content.kind & MB_TYPEMASK) == MB_OK};
    const Box* const before = std::exchange(shownBox, &box);
    const HHOOK hook = SetWindowsHookExW(WH_CBT, OnActivation, nullptr, GetCurrentThreadId());
    const int pressed = MessageBoxW(owner, Wide(content.text).c_str(), Wide(content.title).c_str(),
                                    content.kind | MB_SETFOREGROUND);
    if (hook != nullptr)
        UnhookWindowsHookEx(hook);
    shownBox = before;
    return pressed;
}

} // namespace quillon
