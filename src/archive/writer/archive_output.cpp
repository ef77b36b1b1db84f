#include "archive/writer/archive_output.h"

namespace quillon {

namespace {

constexpr std::size_t kGathered = 256 * 1024;

} // namespace

ArchiveOutput::ArchiveOutput(OutputFile& file) : file_(file), written_(file.Position())
{
    pending_.reserve(kGathered);
}

void ArchiveOutput::Write(std::span<const std::byte> bytes)
{
    if (pending_.size() + bytes.size() > kGathered)
        Flush();
    if (bytes.size() > kGathered) {
        file_.Write(bytes);
        written_ += bytes.size();
        return;
    }
    pending_.insert(pending_.end(), bytes.begin(), bytes.end());
}

void ArchiveOutput::WriteAt(std::uint64_t position, std::span<const std::byte> bytes)
{
    Flush();
    file_.WriteAt(position, bytes);
}

void ArchiveOutput::Flush()
{
    if (pending_.empty())
        return;
    file_.Write(pending_);
    written_ += pending_.size();
    pending_.clear();
}

} // namespace quillon
