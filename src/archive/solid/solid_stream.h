// The packed bytes of a payload, unpacked one behind the other: one frame of Zstandard (RFC 8878).
#pragma once

#include "archive/solid/solid_table.h"
#include "platform/file_system.h"

#include <memory>

namespace quillon {

class SolidStream {
public:
    /// The frame is at this place of the file, which has to live as long.
    SolidStream(InputFile& file, const SolidTrailer& trailer);
    ~SolidStream();
    SolidStream(const SolidStream&) = delete;
    SolidStream& operator=(const SolidStream&) = delete;

    /// Fills all of `bytes`. Throws `SolidError`.
    void Read(std::span<std::byte> bytes);
    /// Throws `SolidError` where there is more in the frame, or behind it.
    void Finish();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon
