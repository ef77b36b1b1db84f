#include "platform/second_thread.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace quillon {

struct SecondThread::State {
    std::mutex mutex;
    std::condition_variable changed;
    std::function<void()> work;
    std::exception_ptr failure;
    bool isBusy = false;
    bool isEnding = false;
    std::thread thread;

    void Work();
    void Run();
    std::exception_ptr WaitForFailure();
};

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
    std::unique_lock lock(mutex);
    for (;;) {
        changed.wait(lock, [&] { return isBusy || isEnding; });
        if (!isBusy)
            return;
        lock.unlock();
        Work();
        lock.lock();
        isBusy = false;
        changed.notify_all();
    }
}

std::exception_ptr SecondThread::State::WaitForFailure()
{
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return !isBusy; });
    return std::exchange(failure, nullptr);
}

SecondThread::SecondThread() : state_(std::make_unique<State>())
{
    try {
        state_->thread = std::thread([state = state_.get()] { state->Run(); });
    } catch (const std::system_error&) {
        // `Start` does the work.
    }
}

SecondThread::~SecondThread()
{
    if (!state_->thread.joinable())
        return;
    {
        const std::lock_guard lock(state_->mutex);
        state_->isEnding = true;
    }
    state_->changed.notify_all();
    state_->thread.join();
}

void SecondThread::Start(std::function<void()> work)
{
    Wait();
    state_->work = std::move(work);
    if (!state_->thread.joinable()) {
        state_->Work();
        return;
    }
    {
        const std::lock_guard lock(state_->mutex);
        state_->isBusy = true;
    }
    state_->changed.notify_all();
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
