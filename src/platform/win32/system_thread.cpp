#include "platform/system_thread.h"

#include <atomic>
#include <windows.h>

namespace quillon {

namespace {

constexpr DWORD kStackSize = 256 * 1024;

class WinThread : public SystemThread {
public:
    WinThread();
    ~WinThread() override;

    bool Begin() override;
    void WaitForEnd() override;

private:
    enum class Progress { Idle, Busy, Awaited };

    static DWORD WINAPI Main(void* thread);
    void Run();

    // Both events become unsignaled again for the one who waits.
    HANDLE begins_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE ends_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE thread_ = nullptr;
    bool isEnding_ = false;
    // To signal an event is a call of the system, so the end of a work is signaled only where the
    // owner waits for it.
    std::atomic<Progress> progress_ = Progress::Idle;
};

WinThread::WinThread()
{
    if (begins_ != nullptr && ends_ != nullptr)
        thread_ = CreateThread(nullptr, kStackSize, Main, this, STACK_SIZE_PARAM_IS_A_RESERVATION,
                               nullptr);
}

WinThread::~WinThread()
{
    if (thread_ != nullptr) {
        isEnding_ = true;
        SetEvent(begins_);
        WaitForSingleObject(thread_, INFINITE);
        CloseHandle(thread_);
    }
    CloseHandle(begins_);
    CloseHandle(ends_);
}

DWORD WINAPI WinThread::Main(void* thread)
{
    static_cast<WinThread*>(thread)->Run();
    return 0;
}

void WinThread::Run()
{
    for (;;) {
        WaitForSingleObject(begins_, INFINITE);
        if (isEnding_)
            return;
        Work();
        if (progress_.exchange(Progress::Idle) == Progress::Awaited)
            SetEvent(ends_);
    }
}

bool WinThread::Begin()
{
    if (thread_ == nullptr)
        return false;
    progress_ = Progress::Busy;
    SetEvent(begins_);
    return true;
}

void WinThread::WaitForEnd()
{
    Progress busy = Progress::Busy;
    if (progress_.compare_exchange_strong(busy, Progress::Awaited))
        WaitForSingleObject(ends_, INFINITE);
}

} // namespace

std::unique_ptr<SystemThread> SystemThread::Make()
{
    return std::make_unique<WinThread>();
}

} // namespace quillon
