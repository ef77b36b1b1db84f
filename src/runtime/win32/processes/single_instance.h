// One setup or uninstaller at a time: two would count the same shared files and replace the same
// system files.
#pragma once

#include <windows.h>

namespace quillon {

class SingleInstance {
public:
    SingleInstance() : mutex_(CreateMutexW(nullptr, FALSE, L"Global\\QuillonSetup"))
    {
        const DWORD found = GetLastError();
        isAlreadyRunning_ = found == ERROR_ALREADY_EXISTS || found == ERROR_ACCESS_DENIED;
    }
    ~SingleInstance()
    {
        if (mutex_ != nullptr)
            CloseHandle(mutex_);
    }
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Another one runs on this machine.
    bool IsAlreadyRunning() const { return isAlreadyRunning_; }

private:
    HANDLE mutex_;
    bool isAlreadyRunning_ = false;
};

} // namespace quillon
