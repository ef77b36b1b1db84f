// The message while a self-extracting program works, with a bar that says how far it is.
#pragma once

#include "helpers/text.h"

#include <windows.h>

#include <cstdint>

namespace quillon {

class UnpackWindow {
public:
    /// An empty text shows nothing.
    UnpackWindow(HINSTANCE instance, const Text& text);
    ~UnpackWindow() { Close(); }
    UnpackWindow(const UnpackWindow&) = delete;
    UnpackWindow& operator=(const UnpackWindow&) = delete;

    /// To be called often; the window is drawn and moved meanwhile. `from` and `to` are the part of
    /// the bar that the step takes, in hundredths.
    void Show(std::uint64_t done, std::uint64_t total, int from, int to);
    void Close();

private:
    HWND window_ = nullptr;
    HWND bar_ = nullptr;
    DWORD lastLook_ = 0;
};

} // namespace quillon
