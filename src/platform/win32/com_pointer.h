// A pointer to a COM object, which is released with it.
#pragma once

namespace quillon {

template <class Interface>
class ComPointer {
public:
    ComPointer() = default;
    ~ComPointer()
    {
        if (pointer_ != nullptr)
            pointer_->Release();
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;

    Interface* Get() const { return pointer_; }
    Interface* operator->() const { return pointer_; }
    // For a function that puts an object into it, once.
    Interface** Out() { return &pointer_; }
    void** UntypedOut() { return reinterpret_cast<void**>(&pointer_); }

private:
    Interface* pointer_ = nullptr;
};

} // namespace quillon
