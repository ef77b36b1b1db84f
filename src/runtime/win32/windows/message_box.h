// The system's message box with buttons in the language of the package. The system writes them in
// its own, so that a box would speak two languages.
#pragma once

#include "runtime/texts/language_file.h"

#include <windows.h>

namespace quillon {

struct MessageBoxContent {
    const Text& title;
    const Text& text;
    UINT kind; // MB_YESNO | MB_ICONEXCLAMATION, ...
};

/// The id of the button that was pressed. An owner of null is the desktop.
int ShowMessageBox(HWND owner, const MessageBoxContent& content, const LanguageTexts& texts);

} // namespace quillon
