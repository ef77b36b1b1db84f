// A part of a file on its way through its filter, packing and unpacking alike.
#pragma once

#include "archive/solid/solid_table.h"
#include "archive/solid/x86_filter.h"

#include <algorithm>
#include <cstring>
#include <span>

namespace quillon {

/// `read` fills the bytes that it is given, from the source; `write` takes them filtered. `buffer`
/// needs room for a few bytes more than the longest instruction.
template <class Read, class Write>
void PassThroughFilter(const SolidRun& run, X86Filter::Direction direction,
                       std::span<std::byte> buffer, const Read& read, const Write& write)
{
    X86Filter filter(direction);
    std::uint64_t left = run.size;
    std::size_t held = 0;
    while (left > 0 || held > 0) {
        const auto count =
            static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size() - held));
        read(buffer.subspan(held, count));
        left -= count;
        const auto filled = buffer.first(held + count);
        const std::size_t done =
            run.filter == SolidFilter::X86 ? filter.Convert(filled, left == 0) : filled.size();
        write(filled.first(done));
        held = filled.size() - done;
        std::memmove(buffer.data(), buffer.data() + done, held);
    }
}

} // namespace quillon
