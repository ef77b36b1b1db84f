// One setup or uninstaller at a time: two would count the same shared files and replace the same
// system files.
#pragma once

#include <windows.h>

namespace quillon {

class OnlySetup {
public:
    OnlySetup() : mutex_(CreateMutexW(nullptr, FALSE, L"Global\\QuillonSetup"))
    {
        const DWORD found = GetLastError();
        isNot_ = found == ERROR_ALREADY_EXISTS || found == ERROR_ACCESS_DENIED;
    }
    ~OnlySetup()
    {
        if (mutex_ != nullptr)
            CloseHandle(mutex_);
    }
    OnlySetup(const OnlySetup&) = delete;
    OnlySetup& operator=(const OnlySetup&) = delete;

    /// Another one runs on this machine.
    bool IsNot() const { return isNot_; }

private:
    HANDLE mutex_;
    bool isNot_ = false;
};

} // namespace quillon
