#include "runtime/install/background_writer.h"

#include <algorithm>

namespace quillon {

namespace {

// What is handed over at a time. It costs two calls of the system and stays in the processor's
// cache.
constexpr std::size_t kPieceSize = 128 * 1024;

} // namespace

BackgroundWriter::File::File(BackgroundWriter& writer, OutputFile& output)
    : writer_(writer), output_(output)
{
    writer_.filling_.clear();
    writer_.filling_.reserve(kPieceSize);
}

BackgroundWriter::File::~File()
{
    writer_.thread_.Abandon();
}

void BackgroundWriter::File::Add(std::span<const std::byte> bytes)
{
    std::vector<std::byte>& filling = writer_.filling_;
    while (!bytes.empty()) {
        if (filling.size() == kPieceSize)
            HandOver();
        const auto piece = bytes.first(std::min(bytes.size(), kPieceSize - filling.size()));
        filling.insert(filling.end(), piece.begin(), piece.end());
        bytes = bytes.subspan(piece.size());
    }
}

void BackgroundWriter::File::HandOver()
{
    const std::span<const std::byte> bytes(writer_.filling_);
    writer_.thread_.Start([this, bytes] { Write(bytes); });
    // The other buffer is free: its work has ended before this one was begun.
    std::swap(writer_.filling_, writer_.written_);
    writer_.filling_.clear();
    writer_.filling_.reserve(kPieceSize);
}

void BackgroundWriter::File::Write(std::span<const std::byte> bytes)
{
    output_.Write(bytes);
    hash_.Add(bytes);
}

Sha256Digest BackgroundWriter::File::Finish()
{
    writer_.thread_.Wait();
    if (!writer_.filling_.empty())
        Write(writer_.filling_);
    return hash_.Finish();
}

} // namespace quillon
