// One thread beside the caller's, for work that the caller need not wait for: writing what is
// unpacked while the next piece is being unpacked.
#pragma once

#include <functional>
#include <memory>

namespace quillon {

class SystemThread;

/// Used by one thread, its owner. Where the system gives no thread, the work is done by the
/// owner's.
class SecondThread {
public:
    SecondThread();
    ~SecondThread();
    SecondThread(const SecondThread&) = delete;
    SecondThread& operator=(const SecondThread&) = delete;

    /// Waits for the work before it, as `Wait`; when that has failed, this work is not begun.
    void Start(std::function<void()> work);
    /// Throws what the work threw, once.
    void Wait();
    /// Waits for the work, and drops its failure.
    void Abandon();

private:
    std::unique_ptr<SystemThread> thread_;
};

} // namespace quillon
