// drive_setup SCRIPT LOG: starts a setup and does on its pages what the lines of the script say, as
// a user would. The log gets a line for whatever is to be read, and the reason where a step could
// not be done. It waits for what it looks for as long as the setup runs, and for no set time.
//
//   run COMMAND          starts the program
//   other COMMAND        runs another program to its end and logs its code
//   page TITLE           waits until the page of that title is shown
//   screen               waits until the screen behind the pages is shown; then it is the page
//   progress             waits until the progress is shown, behind a box or not; then it is the
//   page list TEXT            waits until a list under that text is shown; then it is the page
//   escape               presses Esc on the screen
//   press ID             clicks the button
//   type ID TEXT         puts the text into the line and leaves it
//   choose ID ROW        chooses the row of a list
//   key ID CODE          presses the key in the control
//   tap CODE             presses the key wherever the focus is on the page
//   alt LETTER           presses Alt and the letter
//   tab                  presses Tab and logs the control that has the focus then
//   focus ID             waits until the control has the focus
//   read ID              logs the text of the control
//   margin ID            logs whether the text of a field stays away from its edges
//   await ID TEXT        waits until the control has that text
//   controls             logs kind, id and text of each control, in the order of the Tab key
//   unpacking TITLE      waits for the message of a self-extracting program; then it is the page
//   grip                 holds the page by its title bar, so that its program does not go on
//   let                  lets it go again
//   position ID          logs how far the bar is
//   filled ID            holds the page as soon as a tenth of its bar is filled
//   positions ID         holds the page, logs how far the bar is and lets go, until the page closes
//   box BUTTON           waits for a message box, logs its text and presses the button
//   buttons              waits for a message box and logs its buttons
//   aside                waits for a message box and moves it into the corner of the desktop
//   pointer X Y          moves the pointer there, in pixels of the desktop
//   where                logs left, top, right and bottom of the page in the desktop
//   hold FILE            keeps the file open, so that it can't be moved
//   release              lets go of it
//   watch                from now on is asked when the session is to end, and says no
//   session              waits until the session was to end, and logs it
//   plant FOLDER         copies the folder's files into each private folder of a setup
//   shot FILE            writes what the page looks like as a bitmap
//   inside               logs width and height of the page without its frame
//   scale DPI            sends the page what it gets when it has come to a display of that scale,
//                        by which `clipped` measures from then on
//   clipped              logs each control of the page whose text does not fit into it, or that
//                        sticks out of the page
//   close                closes the page by its frame
//   leave                closes it as Alt+F4 does
//   end                  waits for the program's end and logs its code
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "runtime/win32/windows/list_window.h"
#include "runtime/win32/windows/page_letters.h"
#include "window_look.h"

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <iterator>

using namespace quillon;

namespace {

constexpr int kMaxWait = 60'000; // milliseconds; a step that takes longer never comes
constexpr int kLook = 10;
constexpr LPARAM kAltIsDown = 1 << 29; // of a message of the keyboard

struct Search {
    const wchar_t* kind;
    std::wstring title; // empty: any
    HWND found;
    int textId = 0;       // of the control that has the title; 0: the window itself
    bool mayWait = false; // for a box in front of it
};

BOOL CALLBACK Match(HWND window, LPARAM data)
{
    auto& search = *reinterpret_cast<Search*>(data);
    const HWND told = search.textId == 0 ? window : GetDlgItem(window, search.textId);
    const bool fits = IsWindowVisible(window) && (search.mayWait || IsWindowEnabled(window)) &&
                      KindOf(window) == search.kind &&
                      (search.title.empty() || TextOf(told) == search.title);
    if (fits)
        search.found = window;
    return !fits;
}

LRESULT CALLBACK RefuseToEnd(HWND window, UINT message, WPARAM word, LPARAM data)
{
    if (message != WM_QUERYENDSESSION)
        return DefWindowProcW(window, message, word, data);
    SetWindowLongPtrW(window, GWLP_USERDATA, 1);
    return FALSE;
}

Text OneLine(const std::wstring& text)
{
    return ReplaceAll(ReplaceAll(Narrow(text), "\r\n", "|"), "\n", "|");
}

class Driver {
public:
    explicit Driver(FileSystem& files) : files_(files) {}

    Text Run(const Text& script)
    {
        for (const Text& line : SplitLines(ReplaceAll(script, "\n", "\r\n")))
            if (!line.empty() && !Step(line)) {
                log_ += "FAILED: " + line + "\n";
                if (process_ != nullptr)
                    TerminateProcess(process_, 99);
                break;
            }
        return log_;
    }

private:
    // What follows the verb of a line.
    struct Operands {
        Text rest;
        int id;     // the number that it begins with
        Text value; // from the second word on
    };
    struct Verb {
        const char* name;
        bool (*run)(Driver& driver, const Operands& operands);
    };
    static const Verb kVerbs[];

    struct ControlOperands {
        HWND control; // of the page
        int id;
        const Text& value;
    };
    struct ControlVerb {
        const char* name;
        bool (*run)(Driver& driver, const ControlOperands& operands);
    };
    static const ControlVerb kControlVerbs[];

    bool Step(const Text& line);

    // A control notifies its window of what a user does; a message that sets its value does not.
    bool Notify(const ControlOperands& operands, WORD what) const
    {
        SendMessageW(page_, WM_COMMAND, static_cast<WPARAM>(MAKELONG(operands.id, what)),
                     reinterpret_cast<LPARAM>(operands.control));
        return true;
    }

    static bool Press(const ControlOperands& operands)
    {
        return IsWindowEnabled(operands.control) && PostMessageW(operands.control, BM_CLICK, 0, 0);
    }

    bool TypeInto(const ControlOperands& operands) const
    {
        SendMessageW(operands.control, WM_SETTEXT, 0,
                     reinterpret_cast<LPARAM>(Wide(operands.value).c_str()));
        return Notify(operands, EN_KILLFOCUS);
    }

    bool ChooseRow(const ControlOperands& operands) const
    {
        SendMessageW(operands.control, LB_SETCURSEL,
                     static_cast<WPARAM>(LeadingNumber(operands.value)), 0);
        return Notify(operands, LBN_SELCHANGE);
    }

    bool LogTextOf(HWND control)
    {
        log_ += OneLine(TextOf(control)) + "\n";
        return true;
    }

    HWND Focus() const
    {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        const bool isKnown = GetGUIThreadInfo(GetWindowThreadProcessId(page_, nullptr), &info);
        return isKnown ? info.hwndFocus : nullptr;
    }

    // The key comes to the program's queue as from the keyboard; what it means there is up to it.
    bool Tap(UINT message, WPARAM key, LPARAM state) const
    {
        const HWND focus = Focus();
        return focus != nullptr && PostMessageW(focus, message, key, state | 1);
    }

    template <class IsIt>
    bool AwaitFocus(IsIt isIt) const
    {
        for (int waited = 0; waited < kMaxWait; waited += kLook) {
            const HWND focus = Focus();
            if (focus != nullptr && GetParent(focus) == page_ && isIt(GetDlgCtrlID(focus)))
                return true;
            if (WaitForSingleObject(process_, kLook) != WAIT_TIMEOUT)
                return false;
        }
        return false;
    }

    bool Tab()
    {
        const int before = GetDlgCtrlID(Focus());
        if (!Tap(WM_KEYDOWN, VK_TAB, 0) ||
            !AwaitFocus([before](int focus) { return focus != before; }))
            return false;
        log_ += "tab " + NumberText(std::int64_t{GetDlgCtrlID(Focus())}) + "\n";
        return true;
    }

    bool Await(HWND control, const std::wstring& text) const
    {
        for (int waited = 0; TextOf(control) != text && waited < kMaxWait; waited += kLook)
            if (WaitForSingleObject(process_, kLook) != WAIT_TIMEOUT)
                return false;
        return TextOf(control) == text;
    }

    bool LogPlace()
    {
        RECT place{};
        GetWindowRect(page_, &place);
        for (const LONG edge : {place.left, place.top, place.right, place.bottom})
            log_ += NumberText(std::int64_t{edge}) + " ";
        log_.back() = '\n';
        return true;
    }

    bool Scale(int dpi)
    {
        // A record that another program sends is in that program's memory, so it is put there.
        RECT place{};
        GetWindowRect(page_, &place);
        DWORD process = 0;
        GetWindowThreadProcessId(page_, &process);
        const HANDLE owner = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, process);
        void* const there =
            VirtualAllocEx(owner, nullptr, sizeof place, MEM_COMMIT, PAGE_READWRITE);
        const bool isWritten = WriteProcessMemory(owner, there, &place, sizeof place, nullptr);
        constexpr UINT kDpiChanged = 0x02E0;
        if (isWritten)
            SendMessageW(page_, kDpiChanged, static_cast<WPARAM>(MAKELONG(dpi, dpi)),
                         reinterpret_cast<LPARAM>(there));
        VirtualFreeEx(owner, there, 0, MEM_RELEASE);
        CloseHandle(owner);
        dpi_ = dpi;
        return isWritten;
    }

    bool LogClipped()
    {
        for (const HWND control : ClippedControls(page_, dpi_ == 0 ? DpiOf(page_) : dpi_))
            log_ += "clipped " + OneLine(KindOf(control)) + " " + OneLine(TextOf(control)) + "\n";
        return true;
    }

    bool LogMargin(HWND control)
    {
        RECT inside{};
        RECT text{};
        GetClientRect(control, &inside);
        SendMessageW(control, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
        const bool isAway = text.left >= 4 && text.top >= 4 && text.right <= inside.right - 4;
        log_ += isAway ? "margin\n" : "no margin\n";
        return true;
    }

    bool LogInside()
    {
        RECT inside{};
        GetClientRect(page_, &inside);
        log_ += "inside " + NumberText(std::int64_t{inside.right}) + " " +
                NumberText(std::int64_t{inside.bottom}) + "\n";
        return true;
    }

    bool MoveBoxAside()
    {
        HWND box = nullptr;
        return WaitFor(L"#32770", {}, box) &&
               SetWindowPos(box, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }

    bool Hold(const std::wstring& path)
    {
        held_ = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                            nullptr);
        return held_ != INVALID_HANDLE_VALUE;
    }

    bool Watch()
    {
        WNDCLASSW kind{};
        kind.lpfnWndProc = RefuseToEnd;
        kind.lpszClassName = L"QuillonWatch";
        RegisterClassW(&kind);
        watch_ = CreateWindowW(kind.lpszClassName, L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                               nullptr, nullptr);
        return watch_ != nullptr;
    }

    bool AwaitEndOfSession()
    {
        MSG message;
        for (int waited = 0; waited < kMaxWait; waited += kLook) {
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                DispatchMessageW(&message);
            if (GetWindowLongPtrW(watch_, GWLP_USERDATA) != 0) {
                log_ += "the session was to end\n";
                return true;
            }
            MsgWaitForMultipleObjects(0, nullptr, FALSE, kLook, QS_ALLINPUT);
        }
        return false;
    }

    bool Plant(const Text& from)
    {
        wchar_t temp[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, temp);
        bool isPlanted = false;
        for (const FolderEntry& folder : files_.List(Narrow(temp))) {
            if (!folder.status.isFolder || !UpperCase(folder.name).starts_with("QN"))
                continue;
            for (const FolderEntry& file : files_.List(from))
                files_.CopyContent(JoinPath(from, file.name),
                                   JoinPath(JoinPath(Narrow(temp), folder.name), file.name));
            isPlanted = true;
        }
        return isPlanted;
    }

    bool Start(const Text& command)
    {
        std::wstring line = Wide(command);
        STARTUPINFOW start{};
        start.cb = sizeof start;
        PROCESS_INFORMATION made{};
        if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &start, &made)) {
            log_ += "error " + NumberText(std::int64_t{GetLastError()}) + "\n";
            return false;
        }
        CloseHandle(made.hThread);
        process_ = made.hProcess;
        return true;
    }

    bool RunOther(const Text& command)
    {
        const HANDLE first = process_;
        const bool isDone = Start(command) && End();
        process_ = first;
        return isDone;
    }

    // The page before is still there for a moment, so that one of the same title is another one
    // only once its controls are new: a script asks for titles that differ.
    bool WaitFor(const wchar_t* kind, const std::wstring& title, HWND& window, int textId = 0)
    {
        return WaitFor({kind, title, nullptr, textId}, window);
    }
    bool WaitFor(Search search, HWND& window)
    {
        for (int waited = 0; waited < kMaxWait; waited += kLook) {
            search.found = nullptr;
            EnumWindows(Match, reinterpret_cast<LPARAM>(&search));
            window = search.found;
            if (window != nullptr)
                return true;
            if (WaitForSingleObject(process_, kLook) != WAIT_TIMEOUT)
                return false;
        }
        return false;
    }

    // The window handles nothing but its own moving then, until Esc.
    bool Grip() const
    {
        return PostMessageW(page_, WM_SYSCOMMAND, SC_MOVE, 0) && AwaitGripped(true);
    }
    bool LetGo() const
    {
        return PostMessageW(page_, WM_KEYDOWN, VK_ESCAPE, 1) && AwaitGripped(false);
    }

    bool AwaitGripped(bool isGripped) const
    {
        const DWORD thread = GetWindowThreadProcessId(page_, nullptr);
        for (int waited = 0; IsWindow(page_) && waited < kMaxWait; ++waited) {
            GUITHREADINFO info{};
            info.cbSize = sizeof info;
            if (GetGUIThreadInfo(thread, &info) &&
                ((info.flags & GUI_INMOVESIZE) != 0) == isGripped)
                return true;
            WaitForSingleObject(process_, 1);
        }
        return false;
    }

    LRESULT PositionOf(int id) const
    {
        return SendMessageW(GetDlgItem(page_, id), PBM_GETPOS, 0, 0);
    }

    bool HoldWhenFilled(int id) const
    {
        while (Grip()) {
            if (PositionOf(id) >= 10)
                return true;
            LetGo();
        }
        return false;
    }

    bool LogPosition(int id)
    {
        log_ += "position " + NumberText(std::int64_t{PositionOf(id)}) + "\n";
        return true;
    }

    bool LogPositions(int id)
    {
        while (Grip()) {
            LogPosition(id);
            LetGo();
        }
        return !IsWindow(page_);
    }

    bool ListButtons()
    {
        HWND box = nullptr;
        if (!WaitFor(L"#32770", {}, box))
            return false;
        for (HWND control = GetWindow(box, GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT))
            if (KindOf(control) == L"Button" && IsWindowVisible(control))
                log_ += "button " + OneLine(TextOf(control)) + "\n";
        return true;
    }

    bool Answer(int button)
    {
        HWND box = nullptr;
        if (!WaitFor(L"#32770", {}, box))
            return false;
        constexpr int kTextId = 0xFFFF;
        log_ += OneLine(TextOf(box)) + ": " + OneLine(TextOf(GetDlgItem(box, kTextId))) + "\n";
        PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
        for (int waited = 0; IsWindow(box) && waited < kMaxWait; waited += kLook)
            WaitForSingleObject(process_, kLook);
        return !IsWindow(box);
    }

    bool End()
    {
        if (WaitForSingleObject(process_, kMaxWait) != WAIT_OBJECT_0)
            return false;
        DWORD code = 0;
        GetExitCodeProcess(process_, &code);
        log_ += "code " + NumberText(static_cast<std::int64_t>(code)) + "\n";
        return true;
    }

    bool ListControls()
    {
        for (HWND control = GetWindow(page_, GW_CHILD); control != nullptr;
             control = GetWindow(control, GW_HWNDNEXT)) {
            const auto style = static_cast<DWORD>(GetWindowLongW(control, GWL_STYLE));
            log_ += OneLine(KindOf(control)) + " " +
                    NumberText(std::int64_t{static_cast<short>(GetDlgCtrlID(control))}) + " " +
                    ((style & WS_TABSTOP) != 0 ? "tab " : "") +
                    (IsWindowEnabled(control) ? "" : "grey ") + OneLine(TextOf(control)) + "\n";
        }
        return true;
    }

    // What is inside the frame; taken again until it stays the same, since the window is painted
    // while the setup goes on.
    bool Shoot(const Text& path)
    {
        constexpr int kSteadyLooks = 20;
        Text file;
        for (int same = 0, waited = 0; same < kSteadyLooks && waited < kMaxWait; waited += kLook) {
            Text next = BitmapOf(page_);
            same = next == file ? same + 1 : 0;
            file = std::move(next);
            if (WaitForSingleObject(process_, kLook) != WAIT_TIMEOUT)
                return false;
        }
        WriteWholeFile(files_, path, file);
        return true;
    }

    FileSystem& files_;
    Text log_;
    HANDLE process_ = nullptr;
    HWND watch_ = nullptr;
    HANDLE held_ = INVALID_HANDLE_VALUE;
    HWND page_ = nullptr;
    int dpi_ = 0; // 0: that of the page's own display
};

// clang-format off
const Driver::Verb Driver::kVerbs[] = {
    {"run", [](Driver& driver, const Operands& operands) { return driver.Start(operands.rest); }},
    {"other", [](Driver& driver, const Operands& operands) { return driver.RunOther(operands.rest); }},
    {"page", [](Driver& driver, const Operands& operands) { return driver.WaitFor(L"QuillonPages", Wide(operands.rest), driver.page_); }},
    {"screen", [](Driver& driver, const Operands&) { return driver.WaitFor(L"QuillonScreen", {}, driver.page_); }},
    {"progress", [](Driver& driver, const Operands&) { return driver.WaitFor({.kind = L"QuillonSetup", .mayWait = true}, driver.page_); }},
    {"list", [](Driver& driver, const Operands& operands) { return driver.WaitFor(L"QuillonList", Wide(operands.rest), driver.page_, kListTextId); }},
    {"unpacking", [](Driver& driver, const Operands& operands) { return driver.WaitFor(L"QuillonUnpack", Wide(operands.rest), driver.page_); }},
    {"grip", [](Driver& driver, const Operands&) { return driver.Grip(); }},
    {"let", [](Driver& driver, const Operands&) { return driver.LetGo(); }},
    {"filled", [](Driver& driver, const Operands& operands) { return driver.HoldWhenFilled(operands.id); }},
    {"positions", [](Driver& driver, const Operands& operands) { return driver.LogPositions(operands.id); }},
    {"buttons", [](Driver& driver, const Operands&) { return driver.ListButtons(); }},
    {"escape", [](Driver& driver, const Operands&) { return PostMessageW(driver.page_, WM_KEYDOWN, VK_ESCAPE, 1) != FALSE; }},
    {"box", [](Driver& driver, const Operands& operands) { return driver.Answer(operands.id); }},
    {"end", [](Driver& driver, const Operands&) { return driver.End(); }},
    {"shot", [](Driver& driver, const Operands& operands) { return driver.Shoot(operands.rest); }},
    {"close", [](Driver& driver, const Operands&) { return PostMessageW(driver.page_, WM_CLOSE, 0, 0) != FALSE; }},
    {"leave", [](Driver& driver, const Operands&) { return PostMessageW(driver.page_, WM_SYSCOMMAND, SC_CLOSE, 0) != FALSE; }},
    {"inside", [](Driver& driver, const Operands&) { return driver.LogInside(); }},
    {"aside", [](Driver& driver, const Operands&) { return driver.MoveBoxAside(); }},
    {"clipped", [](Driver& driver, const Operands&) { return driver.LogClipped(); }},
    {"scale", [](Driver& driver, const Operands& operands) { return driver.Scale(operands.id); }},
    {"tap", [](Driver& driver, const Operands& operands) { return driver.Tap(WM_KEYDOWN, static_cast<WPARAM>(operands.id), 0); }},
    {"alt", [](Driver& driver, const Operands& operands) { return driver.Tap(WM_SYSKEYDOWN, static_cast<WPARAM>(Wide(operands.rest).at(0)), kAltIsDown); }},
    {"tab", [](Driver& driver, const Operands&) { return driver.Tab(); }},
    {"focus", [](Driver& driver, const Operands& operands) { return driver.AwaitFocus([&](int focus) { return focus == operands.id; }); }},
    {"controls", [](Driver& driver, const Operands&) { return driver.ListControls(); }},
    {"pointer", [](Driver&, const Operands& operands) { return SetCursorPos(operands.id, static_cast<int>(LeadingNumber(operands.value))) != FALSE; }},
    {"where", [](Driver& driver, const Operands&) { return driver.LogPlace(); }},
    {"hold", [](Driver& driver, const Operands& operands) { return driver.Hold(Wide(operands.rest)); }},
    {"watch", [](Driver& driver, const Operands&) { return driver.Watch(); }},
    {"session", [](Driver& driver, const Operands&) { return driver.AwaitEndOfSession(); }},
    {"plant", [](Driver& driver, const Operands& operands) { return driver.Plant(operands.rest); }},
    {"release", [](Driver& driver, const Operands&) { return CloseHandle(driver.held_) != FALSE; }},
};

// Those of a control of the page, whose number comes first.
const Driver::ControlVerb Driver::kControlVerbs[] = {
    {"press", [](Driver&, const ControlOperands& operands) { return Press(operands); }},
    {"type", [](Driver& driver, const ControlOperands& operands) { return driver.TypeInto(operands); }},
    {"choose", [](Driver& driver, const ControlOperands& operands) { return driver.ChooseRow(operands); }},
    {"key", [](Driver&, const ControlOperands& operands) { return PostMessageW(operands.control, WM_KEYDOWN, static_cast<WPARAM>(LeadingNumber(operands.value)), 1) != FALSE; }},
    {"await", [](Driver& driver, const ControlOperands& operands) { return driver.Await(operands.control, Wide(operands.value)); }},
    {"position", [](Driver& driver, const ControlOperands& operands) { return driver.LogPosition(operands.id); }},
    {"margin", [](Driver& driver, const ControlOperands& operands) { return driver.LogMargin(operands.control); }},
    {"read", [](Driver& driver, const ControlOperands& operands) { return driver.LogTextOf(operands.control); }},
};
// clang-format on

template <class Row, std::size_t count>
const Row* FindVerb(const Row (&rows)[count], const Text& name)
{
    const auto* const found =
        std::ranges::find_if(rows, [&](const Row& row) { return name == row.name; });
    return found != std::end(rows) ? found : nullptr;
}

bool Driver::Step(const Text& line)
{
    const std::size_t blank = std::min(line.find(' '), line.size());
    const Text name = line.substr(0, blank);
    const Text rest = line.substr(std::min(blank + 1, line.size()));
    const std::size_t second = rest.find(' ');
    const Operands operands{rest, static_cast<int>(LeadingNumber(rest)),
                            second == Text::npos ? "" : rest.substr(second + 1)};
    if (const Verb* const verb = FindVerb(kVerbs, name))
        return verb->run(*this, operands);
    const HWND control = GetDlgItem(page_, operands.id);
    const ControlVerb* const verb = FindVerb(kControlVerbs, name);
    return control != nullptr && verb != nullptr &&
           verb->run(*this, {control, operands.id, operands.value});
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int)
{
    // Places are given in the pixels of the display, as the setup's own.
    using Declare = BOOL(WINAPI*)();
    if (const auto declare = reinterpret_cast<Declare>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetProcessDPIAware"))))
        declare();
    int count = 0;
    wchar_t** arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    if (arguments == nullptr || count != 3)
        return 1;
    return RunErrorNumber([&] {
        WinFiles files;
        const Text log = Driver(files).Run(ReadWholeFile(files, Narrow(arguments[1])));
        WriteWholeFile(files, Narrow(arguments[2]), log);
    });
}
