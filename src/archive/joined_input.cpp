#include "archive/joined_input.h"

#include <algorithm>
#include <utility>

namespace quillon {

JoinedInput::JoinedInput(std::vector<std::unique_ptr<InputFile>> pieces)
{
    for (std::unique_ptr<InputFile>& file : pieces) {
        const std::uint64_t begin = std::exchange(size_, size_ + file->Size());
        pieces_.push_back({std::move(file), begin, size_});
    }
}

std::size_t JoinedInput::Read(std::span<std::byte> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const std::size_t got = ReadFromPiece(buffer.subspan(filled));
        if (got == 0)
            break;
        filled += got;
    }
    return filled;
}

void JoinedInput::Seek(std::uint64_t position)
{
    position_ = position;
}

// A piece that has shrunk since it was opened ends the whole, since what follows would shift.
std::size_t JoinedInput::ReadFromPiece(std::span<std::byte> buffer)
{
    const auto piece = std::upper_bound(
        pieces_.begin(), pieces_.end(), position_,
        [](std::uint64_t position, const Piece& candidate) { return position < candidate.end; });
    if (piece == pieces_.end())
        return 0;
    const std::uint64_t left = piece->end - position_;
    piece->file->Seek(position_ - piece->begin);
    const std::size_t got = piece->file->Read(
        buffer.first(static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size()))));
    position_ += got;
    return got;
}

} // namespace quillon
