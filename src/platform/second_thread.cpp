#include "platform/second_thread.h"

#include "platform/system_thread.h"

#include <utility>

namespace quillon {

void SystemThread::Work()
{
    try {
        work();
    } catch (...) { // thrown in the owner's thread
        failure = std::current_exception();
    }
}

SecondThread::SecondThread() : thread_(SystemThread::Make()) {}

SecondThread::~SecondThread()
{
    thread_->WaitForEnd();
}

void SecondThread::Start(std::function<void()> work)
{
    Wait();
    thread_->work = std::move(work);
    if (!thread_->Begin())
        thread_->Work();
}

void SecondThread::Wait()
{
    thread_->WaitForEnd();
    if (const auto failure = std::exchange(thread_->failure, nullptr))
        std::rethrow_exception(failure);
}

void SecondThread::Abandon()
{
    thread_->WaitForEnd();
    thread_->failure = nullptr;
}

} // namespace quillon
