// Shortcuts, which only the shell itself can write.
#include "platform/run_error.h"
#include "platform/win32/com_pointer.h"
#include "platform/win32/wide_text.h"
#include "runtime/win32/machine/win_target.h"

#include <shlobj.h>

namespace quillon {

namespace {

constexpr int kMaxArgumentsLength = 1024; // in characters, as the shell keeps them

} // namespace

void WinTarget::MakeShortcut(const Text& path, const Shortcut& shortcut)
{
    const auto check = [&](HRESULT result) {
        if (FAILED(result))
            throw RunError(ErrorNumber::kPathFileAccess, path);
    };
    ComPointer<IShellLinkW> link;
    check(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                           link.UntypedOut()));
    check(link->SetPath(Wide(shortcut.program).c_str()));
    check(link->SetArguments(Wide(shortcut.arguments).c_str()));
    check(link->SetWorkingDirectory(Wide(shortcut.workFolder).c_str()));
    check(link->SetDescription(Wide(shortcut.description).c_str()));
    if (!shortcut.iconFile.empty())
        check(link->SetIconLocation(Wide(shortcut.iconFile).c_str(), 0));
    ComPointer<IPersistFile> file;
    check(link->QueryInterface(IID_IPersistFile, file.UntypedOut()));
    check(file->Save(Wide(path).c_str(), TRUE));
}

std::optional<Shortcut> WinTarget::ReadShortcut(const Text& path) const
{
    ComPointer<IShellLinkW> link;
    ComPointer<IPersistFile> file;
    wchar_t program[MAX_PATH] = {};
    wchar_t arguments[kMaxArgumentsLength] = {};
    const bool isRead = SUCCEEDED(CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER,
                                                   IID_IShellLinkW, link.UntypedOut())) &&
                        SUCCEEDED(link->QueryInterface(IID_IPersistFile, file.UntypedOut())) &&
                        SUCCEEDED(file->Load(Wide(path).c_str(), STGM_READ)) &&
                        link->GetPath(program, MAX_PATH, nullptr, SLGP_RAWPATH) == S_OK &&
                        SUCCEEDED(link->GetArguments(arguments, kMaxArgumentsLength));
    if (!isRead)
        return std::nullopt;
    Shortcut shortcut;
    shortcut.program = Narrow(program);
    shortcut.arguments = Narrow(arguments);
    return shortcut;
}

} // namespace quillon
