// Programs that a setup starts for its user. The setup has the rights of an administrator; the
// desktop has those of whoever sits before it, so it is asked to start them. Where there is no
// desktop to ask (Windows XP and older have no such difference of rights, and services no desktop)
// they are started directly.
#include "runtime/win32/start_as_user.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

#include <exdisp.h>
#include <oleauto.h>
#include <shellapi.h>
#include <shldisp.h>
#include <shlguid.h>
#include <shlobj.h>

namespace quillon {

namespace {

template <class Interface>
class Owned {
public:
    Owned() = default;
    ~Owned()
    {
        if (pointer_ != nullptr)
            pointer_->Release();
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;

    void** Out() { return reinterpret_cast<void**>(&pointer_); }
    Interface** Typed() { return &pointer_; }
    Interface* operator->() const { return pointer_; }

private:
    Interface* pointer_ = nullptr;
};

class TextVariant {
public:
    explicit TextVariant(const std::wstring& text)
    {
        VariantInit(&value_);
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocString(text.c_str());
    }
    ~TextVariant() { VariantClear(&value_); }
    TextVariant(const TextVariant&) = delete;
    TextVariant& operator=(const TextVariant&) = delete;

    VARIANT& Value() { return value_; }

private:
    VARIANT value_;
};

// The object of the desktop that starts programs; it lives in the desktop's own process.
bool FindDesktop(Owned<IShellDispatch2>& shell)
{
    Owned<IShellWindows> windows;
    if (FAILED(CoCreateInstance(CLSID_ShellWindows, nullptr, CLSCTX_LOCAL_SERVER, IID_IShellWindows,
                                windows.Out())))
        return false;
    VARIANT place{};
    place.vt = VT_I4;
    place.lVal = CSIDL_DESKTOP;
    VARIANT none{};
    long window = 0;
    Owned<IDispatch> desktop;
    if (windows->FindWindowSW(&place, &none, SWC_DESKTOP, &window, SWFO_NEEDDISPATCH,
                              desktop.Typed()) != S_OK)
        return false;
    Owned<IServiceProvider> services;
    Owned<IShellBrowser> browser;
    Owned<IShellView> view;
    Owned<IDispatch> background;
    Owned<IShellFolderViewDual> folder;
    Owned<IDispatch> application;
    return SUCCEEDED(desktop->QueryInterface(IID_IServiceProvider, services.Out())) &&
           SUCCEEDED(
               services->QueryService(SID_STopLevelBrowser, IID_IShellBrowser, browser.Out())) &&
           SUCCEEDED(browser->QueryActiveShellView(view.Typed())) &&
           SUCCEEDED(view->GetItemObject(SVGIO_BACKGROUND, IID_IDispatch, background.Out())) &&
           SUCCEEDED(background->QueryInterface(IID_IShellFolderViewDual, folder.Out())) &&
           SUCCEEDED(folder->get_Application(application.Typed())) &&
           SUCCEEDED(application->QueryInterface(IID_IShellDispatch2, shell.Out()));
}

bool StartByDesktop(const Text& file, const Text& arguments)
{
    Owned<IShellDispatch2> shell;
    if (!FindDesktop(shell))
        return false;
    TextVariant parameters(Wide(arguments));
    TextVariant folder(Wide(ExtractDirectory(file)));
    TextVariant verb(L"open");
    VARIANT show{};
    show.vt = VT_I4;
    show.lVal = SW_SHOWNORMAL;
    const BSTR path = SysAllocString(Wide(file).c_str());
    const HRESULT result =
        shell->ShellExecute(path, parameters.Value(), folder.Value(), verb.Value(), show);
    SysFreeString(path);
    return SUCCEEDED(result);
}

} // namespace

void StartAsUser(const Text& file, const Text& arguments)
{
    if (GetFileAttributesW(WidePath(file).c_str()) == INVALID_FILE_ATTRIBUTES)
        throw RunError(ErrorNumber::kFileNotFound, file);
    if (StartByDesktop(file, arguments))
        return;
    const std::wstring path = Wide(file);
    const std::wstring parameters = Wide(arguments);
    const std::wstring folder = Wide(ExtractDirectory(file));
    SHELLEXECUTEINFOW start{};
    start.cbSize = sizeof start;
    start.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    start.lpFile = path.c_str();
    start.lpParameters = parameters.c_str();
    start.lpDirectory = folder.c_str();
    start.nShow = SW_SHOWNORMAL;
    if (!ShellExecuteExW(&start))
        throw RunError(ErrorNumber::kCannotStart, file);
}

} // namespace quillon
