// Deflates pieces of a file independently of each other, so that all cores can work on one file,
// into streams that make one stream when they are joined.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace quillon {

class BlockDeflater {
public:
    BlockDeflater();
    ~BlockDeflater();
    BlockDeflater(const BlockDeflater&) = delete;
    BlockDeflater& operator=(const BlockDeflater&) = delete;

    /// A whole stream, or nothing where it would not be smaller than `raw`. What comes back is good
    /// until the next call.
    std::span<const std::byte> DeflateIfSmaller(std::span<const std::byte> raw);

    enum class Place { InTheMiddle, AtTheEnd };
    /// A part of a longer stream, at whatever size.
    std::span<const std::byte> DeflatePart(std::span<const std::byte> raw, Place place);

private:
    struct State;
    std::unique_ptr<State> state_;
    std::vector<std::byte> packed_;
};

} // namespace quillon
