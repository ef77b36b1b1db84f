#include "runtime/win32/windows/folder_choice.h"

#include "platform/win32/wide_text.h"

#include <shlobj.h>

namespace quillon {

namespace {

int CALLBACK OnEvent(HWND window, UINT event, LPARAM, LPARAM folder)
{
    if (event == BFFM_INITIALIZED)
        SendMessageW(window, BFFM_SETSELECTIONW, TRUE, folder);
    return 0;
}

} // namespace

std::optional<Text> ChooseFolder(HWND owner, const Text& text, const Text& folder)
{
    const std::wstring words = Wide(text);
    const std::wstring first = Wide(folder);
    BROWSEINFOW question{};
    question.hwndOwner = owner;
    question.lpszTitle = words.c_str();
    question.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    question.lpfn = OnEvent;
    question.lParam = reinterpret_cast<LPARAM>(first.c_str());
    const LPITEMIDLIST chosen = SHBrowseForFolderW(&question);
    if (chosen == nullptr)
        return std::nullopt;
    wchar_t path[MAX_PATH] = {};
    const bool isFolder = SHGetPathFromIDListW(chosen, path) != FALSE;
    CoTaskMemFree(chosen);
    return isFolder ? std::optional(Narrow(path)) : std::nullopt;
}

} // namespace quillon
