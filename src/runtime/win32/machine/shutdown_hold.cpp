#include "runtime/win32/machine/shutdown_hold.h"

#include "platform/win32/wide_text.h"

namespace quillon {

namespace {

constexpr const wchar_t* kWindowClass = L"QuillonShutdownHold";

// Systems before Windows Vista ask the window alone.
void GiveReason(HWND window, const std::wstring& reason)
{
    using Create = BOOL(WINAPI*)(HWND, LPCWSTR);
    const auto create = reinterpret_cast<Create>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"user32.dll"), "ShutdownBlockReasonCreate")));
    if (create != nullptr)
        create(window, reason.c_str());
}

} // namespace

// A thread of its own answers at any time; a silent setup has no window, and a busy one answers
// late.
ShutdownHold::ShutdownHold(const Text& reason)
    : reason_(Wide(reason)), isReady_(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      thread_(isReady_ ? CreateThread(nullptr, 0, Run, this, 0, nullptr) : nullptr)
{
    if (thread_ != nullptr)
        WaitForSingleObject(isReady_, INFINITE);
}

ShutdownHold::~ShutdownHold()
{
    if (window_ != nullptr)
        PostMessageW(window_, WM_CLOSE, 0, 0);
    for (const HANDLE handle : {thread_, isReady_})
        if (handle != nullptr) {
            WaitForSingleObject(handle, INFINITE);
            CloseHandle(handle);
        }
}

DWORD WINAPI ShutdownHold::Run(void* self)
{
    static_cast<ShutdownHold*>(self)->HandleMessages();
    return 0;
}

LRESULT CALLBACK ShutdownHold::Receive(HWND window, UINT message, WPARAM word, LPARAM data)
{
    if (message == WM_QUERYENDSESSION)
        return FALSE;
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, word, data);
}

// The window is never shown, but no child of the window for messages, which is not asked.
void ShutdownHold::HandleMessages()
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = Receive;
    kind.hInstance = GetModuleHandleW(nullptr);
    kind.lpszClassName = kWindowClass;
    RegisterClassW(&kind);
    window_ = CreateWindowExW(0, kWindowClass, reason_.c_str(), WS_POPUP, 0, 0, 0, 0, nullptr,
                              nullptr, kind.hInstance, nullptr);
    if (window_ != nullptr)
        GiveReason(window_, reason_);
    SetEvent(isReady_);
    MSG message{};
    while (window_ != nullptr && GetMessageW(&message, nullptr, 0, 0) > 0)
        DispatchMessageW(&message);
}

} // namespace quillon
