#include "platform/system_thread.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace quillon {

namespace {

class PosixThread : public SystemThread {
public:
    PosixThread();
    ~PosixThread() override;

    bool Begin() override;
    void WaitForEnd() override;

private:
    void Run();

    std::mutex mutex_;
    std::condition_variable changed_;
    bool isBusy_ = false;
    bool isEnding_ = false;
    std::thread thread_;
};

PosixThread::PosixThread()
{
    try {
        thread_ = std::thread([this] { Run(); });
    } catch (const std::system_error&) {
        // Without a thread, the owner of this object does the work itself.
    }
}

PosixThread::~PosixThread()
{
    if (!thread_.joinable())
        return;
    {
        const std::lock_guard lock(mutex_);
        isEnding_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void PosixThread::Run()
{
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [&] { return isBusy_ || isEnding_; });
        if (!isBusy_)
            return;
        lock.unlock();
        Work();
        lock.lock();
        isBusy_ = false;
        changed_.notify_all();
    }
}

bool PosixThread::Begin()
{
    if (!thread_.joinable())
        return false;
    {
        const std::lock_guard lock(mutex_);
        isBusy_ = true;
    }
    changed_.notify_all();
    return true;
}

void PosixThread::WaitForEnd()
{
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return !isBusy_; });
}

} // namespace

std::unique_ptr<SystemThread> SystemThread::Make()
{
    return std::make_unique<PosixThread>();
}

} // namespace quillon
