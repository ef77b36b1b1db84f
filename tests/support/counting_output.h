// An output that only counts its bytes and drops them.
#pragma once

#include "platform/file_system.h"

namespace quillon::test {

class CountingOutput : public OutputFile {
public:
    void Write(std::span<const std::byte> bytes) override { position_ += bytes.size(); }
    void WriteAt(std::uint64_t, std::span<const std::byte>) override {}
    std::uint64_t Position() const override { return position_; }
    void Close() override {}

private:
    std::uint64_t position_ = 0;
};

} // namespace quillon::test
