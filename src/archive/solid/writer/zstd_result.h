// What the functions of zstd return.
#pragma once

#include <cstddef>
#include <new>
#include <zstd.h>

namespace quillon {

/// The size that a packing function returns. Throws bad_alloc instead of an error, since packing
/// fails in no other way.
inline std::size_t CheckedSize(std::size_t result)
{
    if (ZSTD_isError(result) != 0)
        throw std::bad_alloc();
    return result;
}

} // namespace quillon
