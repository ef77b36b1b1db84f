#include "platform/whole_file.h"

#include "helpers/ansi_text.h"
#include "platform/run_error.h"

#include <utility>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 64 * 1024;

} // namespace

std::string ReadWholeFile(const FileSystem& files, const Text& path)
{
    const auto file = files.OpenInput(path);
    std::string bytes;
    for (std::size_t got = kPieceSize; got > 0;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + kPieceSize);
        got = file->Read(std::as_writable_bytes(std::span(bytes).subspan(before)));
        bytes.resize(before + got);
    }
    return bytes;
}

void WriteWholeFile(FileSystem& files, const Text& path, std::string_view bytes)
{
    const auto file = files.OpenOutput(path);
    file->Write(std::as_bytes(std::span(bytes)));
    file->Close();
}

AnsiTextFile::AnsiTextFile(FileSystem& files, const Text& path) : file_(files.OpenOutput(path)) {}

AnsiTextFile::~AnsiTextFile()
{
    try {
        Flush();
    } catch (const RunError&) {
        // The failure that brought the writer here is the one to tell; this one changes nothing.
    }
}

void AnsiTextFile::Line(std::string_view text)
{
    pending_.append(AnsiText::ToBytes(text)).append(kLineBreak);
    if (pending_.size() >= kPieceSize)
        Flush();
}

void AnsiTextFile::Close()
{
    Flush();
    file_->Close();
}

void AnsiTextFile::Flush()
{
    const std::string lines = std::exchange(pending_, {});
    if (!lines.empty())
        file_->Write(std::as_bytes(std::span(lines)));
}

} // namespace quillon
