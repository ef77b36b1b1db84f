// Programs that a setup starts for its user. The setup has the rights of an administrator; the
// desktop has those of the logged-in user, so it is asked to start them. Where there is no desktop
// to ask (Windows XP and older have no such difference of rights, and services no desktop) they are
// started directly.
#include "runtime/win32/processes/start_as_user.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/com_pointer.h"
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
bool FindDesktop(ComPointer<IShellDispatch2>& shell)
{
    ComPointer<IShellWindows> windows;
    if (FAILED(CoCreateInstance(CLSID_ShellWindows, nullptr, CLSCTX_LOCAL_SERVER, IID_IShellWindows,
                                windows.UntypedOut())))
        return false;
    VARIANT place{};
    place.vt = VT_I4;
    place.lVal = CSIDL_DESKTOP;
    VARIANT none{};
    long window = 0;
    ComPointer<IDispatch> desktop;
    if (windows->FindWindowSW(&place, &none, SWC_DESKTOP, &window, SWFO_NEEDDISPATCH,
                              desktop.Out()) != S_OK)
        return false;
    ComPointer<IServiceProvider> services;
    ComPointer<IShellBrowser> browser;
    ComPointer<IShellView> view;
    ComPointer<IDispatch> background;
    ComPointer<IShellFolderViewDual> folder;
    ComPointer<IDispatch> application;
    return SUCCEEDED(desktop->QueryInterface(IID_IServiceProvider, services.UntypedOut())) &&
           SUCCEEDED(services->QueryService(SID_STopLevelBrowser, IID_IShellBrowser,
                                            browser.UntypedOut())) &&
           SUCCEEDED(browser->QueryActiveShellView(view.Out())) &&
           SUCCEEDED(
               view->GetItemObject(SVGIO_BACKGROUND, IID_IDispatch, background.UntypedOut())) &&
           SUCCEEDED(background->QueryInterface(IID_IShellFolderViewDual, folder.UntypedOut())) &&
           SUCCEEDED(folder->get_Application(application.Out())) &&
           SUCCEEDED(application->QueryInterface(IID_IShellDispatch2, shell.UntypedOut()));
}

bool StartByDesktop(const Text& file, const Text& arguments)
{
    ComPointer<IShellDispatch2> shell;
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
