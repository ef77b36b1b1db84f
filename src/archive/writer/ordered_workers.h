// Threads that do jobs side by side and hand the results back in the order of the jobs, so that
// what is made of them does not depend on how many threads there are.
#pragma once

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace quillon {

/// How many threads to start: `wanted`, or as many as the machine has where that is 0; at least one
/// and at most `max`.
inline unsigned ThreadCount(unsigned wanted, unsigned max)
{
    return std::clamp(wanted > 0 ? wanted : std::thread::hardware_concurrency(), 1U, max);
}

/// `Worker` is made by `make()` in each thread, without copying. It is called with a `Job&` and
/// returns a `Result`. What it throws is thrown by `Next`.
template <class Job, class Result>
class OrderedWorkers {
public:
    template <class MakeWorker>
    OrderedWorkers(unsigned threads, MakeWorker make)
    {
        for (unsigned i = 0; i < threads; ++i)
            threads_.emplace_back([this, make] { Run(make); });
    }
    /// Jobs that were not begun are dropped.
    ~OrderedWorkers()
    {
        {
            const std::lock_guard lock(mutex_);
            isStopping_ = true;
        }
        jobCame_.notify_all();
        for (std::thread& thread : threads_)
            thread.join();
    }
    OrderedWorkers(const OrderedWorkers&) = delete;
    OrderedWorkers& operator=(const OrderedWorkers&) = delete;

    void Submit(Job job)
    {
        auto slot = std::make_unique<Slot>(std::move(job));
        {
            const std::lock_guard lock(mutex_);
            waiting_.push_back(slot.get());
            slots_.push_back(std::move(slot));
        }
        jobCame_.notify_one();
    }

    /// Waits for the oldest job that was not handed back yet, and calls `whileWaiting` from time
    /// to time if it is not empty.
    Result Next(const std::function<void()>& whileWaiting = {})
    {
        std::unique_lock lock(mutex_);
        Slot& oldest = *slots_.front();
        while (!resultCame_.wait_for(lock, kBetweenCalls, [&] { return oldest.isDone; })) {
            lock.unlock();
            if (whileWaiting)
                whileWaiting();
            lock.lock();
        }
        const std::unique_ptr<Slot> slot = std::move(slots_.front());
        slots_.pop_front();
        if (slot->failure)
            std::rethrow_exception(slot->failure);
        return std::move(*slot->result);
    }

private:
    static constexpr std::chrono::milliseconds kBetweenCalls{30};

    struct Slot {
        explicit Slot(Job itsJob) : job(std::move(itsJob)) {}

        Job job;
        std::optional<Result> result;
        std::exception_ptr failure;
        bool isDone = false;
    };

    Slot* Take()
    {
        std::unique_lock lock(mutex_);
        jobCame_.wait(lock, [this] { return isStopping_ || !waiting_.empty(); });
        if (isStopping_)
            return nullptr;
        Slot* slot = waiting_.front();
        waiting_.pop_front();
        return slot;
    }

    template <class MakeWorker>
    void Run(const MakeWorker& make)
    {
        auto worker = make();
        while (Slot* slot = Take()) {
            try {
                slot->result.emplace(worker(slot->job));
            } catch (...) {
                // Any exception is stored and thrown again in the thread that asks for the result.
                slot->failure = std::current_exception();
            }
            const std::lock_guard lock(mutex_);
            slot->isDone = true;
            resultCame_.notify_one();
        }
    }

    std::mutex mutex_;
    std::condition_variable jobCame_;
    std::condition_variable resultCame_;
    std::deque<Slot*> waiting_;
    // Only the thread that submits and takes back touches the list itself.
    std::deque<std::unique_ptr<Slot>> slots_;
    bool isStopping_ = false;
    std::vector<std::thread> threads_;
};

} // namespace quillon
