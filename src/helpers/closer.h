// The deleter of a `unique_ptr` to what a C library hands out.
#pragma once

namespace quillon {

/// Calls the library's own function: `std::unique_ptr<FcConfig, Closer<FcConfigDestroy>>`.
template <auto close>
struct Closer {
    template <class Handle>
    void operator()(Handle* handle) const
    {
        close(handle);
    }
};

} // namespace quillon
