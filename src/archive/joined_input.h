// Several files read as one, one after the other: the pieces of an archive that was cut to fit
// its disks.
#pragma once

#include "platform/file_system.h"

#include <memory>
#include <vector>

namespace quillon {

class JoinedInput : public InputFile {
public:
    explicit JoinedInput(std::vector<std::unique_ptr<InputFile>> pieces);

    std::size_t Read(std::span<std::byte> buffer) override;
    void Seek(std::uint64_t position) override;
    std::uint64_t Size() const override { return size_; }

private:
    struct Piece {
        std::unique_ptr<InputFile> file;
        std::uint64_t begin;
        std::uint64_t end;
    };

    std::size_t ReadFromPiece(std::span<std::byte> buffer);

    std::vector<Piece> pieces_;
    std::uint64_t size_ = 0;
    std::uint64_t position_ = 0;
};

} // namespace quillon
