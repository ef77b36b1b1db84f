// Keeps the session from ending while an installation is half-way: between two versions of a
// product neither can be used until a setup runs again.
#pragma once

#include "helpers/text.h"

#include <windows.h>

#include <string>

namespace quillon {

class ShutdownHold {
public:
    /// The reason is what Windows shows to whoever shuts down; they can still insist.
    explicit ShutdownHold(const Text& reason);
    ~ShutdownHold();
    ShutdownHold(const ShutdownHold&) = delete;
    ShutdownHold& operator=(const ShutdownHold&) = delete;

private:
    static DWORD WINAPI Run(void* self);
    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM word, LPARAM data);
    void HandleMessages();

    std::wstring reason_;
    HANDLE isReady_ = nullptr;
    HANDLE thread_ = nullptr;
    HWND window_ = nullptr;
};

} // namespace quillon
