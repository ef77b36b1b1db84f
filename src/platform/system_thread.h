// The system's half of `SecondThread`.
#pragma once

#include <exception>
#include <functional>
#include <memory>

namespace quillon {

/// Does one work at a time. It ends with the object, which is idle then.
class SystemThread {
public:
    /// Never nothing: where the system gives no thread, `Begin` declines.
    static std::unique_ptr<SystemThread> Make();

    SystemThread() = default;
    virtual ~SystemThread() = default;
    SystemThread(const SystemThread&) = delete;
    SystemThread& operator=(const SystemThread&) = delete;

    /// False where there is no thread.
    virtual bool Begin() = 0;
    /// Waits until nothing is being done.
    virtual void WaitForEnd() = 0;

    /// What to do next. It is changed by the owner, and only while nothing is being done.
    std::function<void()> work;
    /// What the last work threw.
    std::exception_ptr failure;

    /// Does the work, in whichever thread calls.
    void Work();
};

} // namespace quillon
