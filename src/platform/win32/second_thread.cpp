#include "platform/second_thread.h"

#include <atomic>
#include <exception>
#include <utility>
#include <windows.h>

namespace quillon {

struct SecondThread::State {
    enum class Progress { Idle, Busy, Awaited };

    State();
    ~State();

    static DWORD WINAPI Main(void* state);
    void Work();
    void Run();
    std::exception_ptr WaitForFailure();

    // Both events become unsignaled again for the one who waits.
    HANDLE begins = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE ends = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    HANDLE thread = nullptr;
    std::function<void()> work; // none: the thread ends
    std::exception_ptr failure;
    // To signal an event is a call of the system, so the end of a work is signaled only where the
    // owner waits for it.
    std::atomic<Progress> progress = Progress::Idle;
};

namespace {

constexpr DWORD kStackSize = 256 * 1024;

} // namespace

SecondThread::State::State()
{
    if (begins != nullptr && ends != nullptr)
        thread = CreateThread(nullptr, kStackSize, Main, this, STACK_SIZE_PARAM_IS_A_RESERVATION,
                              nullptr);
}

DWORD WINAPI SecondThread::State::Main(void* state)
{
    static_cast<State*>(state)->Run();
    return 0;
}

SecondThread::State::~State()
{
    if (thread != nullptr) {
        work = nullptr;
        SetEvent(begins);
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
    }
    CloseHandle(begins);
    CloseHandle(ends);
}

void SecondThread::State::Work()
{
    try {
        work();
    } catch (...) { // the owner gets it
        failure = std::current_exception();
    }
}

void SecondThread::State::Run()
{
    for (;;) {
        WaitForSingleObject(begins, INFINITE);
        if (!work)
            return;
        Work();
        if (progress.exchange(Progress::Idle) == Progress::Awaited)
            SetEvent(ends);
    }
}

std::exception_ptr SecondThread::State::WaitForFailure()
{
    Progress busy = Progress::Busy;
    if (progress.compare_exchange_strong(busy, Progress::Awaited))
        WaitForSingleObject(ends, INFINITE);
    return std::exchange(failure, nullptr);
}

SecondThread::SecondThread() : state_(std::make_unique<State>()) {}

SecondThread::~SecondThread()
{
    Abandon();
}

void SecondThread::Start(std::function<void()> work)
{
    Wait();
    state_->work = std::move(work);
    if (state_->thread == nullptr) {
        state_->Work();
        return;
    }
    state_->progress = State::Progress::Busy;
    SetEvent(state_->begins);
}

void SecondThread::Wait()
{
    if (const auto failure = state_->WaitForFailure())
        std::rethrow_exception(failure);
}

void SecondThread::Abandon()
{
    state_->WaitForFailure();
}

} // namespace quillon
