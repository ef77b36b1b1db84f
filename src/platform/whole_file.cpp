#include "platform/whole_file.h"

#include "helpers/ansi_text.h"
#include "helpers/ascii.h"
#include "platform/run_error.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr std::size_t kPieceSize = 64 * 1024;
constexpr std::size_t kMinChunkSize = 1024;

} // namespace

std::string ReadWholeFile(const FileSystem& files, const Text& path)
{
    return ReadWholeFile(*files.OpenInput(path));
}

std::string ReadWholeFile(InputFile& file)
{
    std::string bytes;
    // A file of the kernel's may be longer than it says; all others need one reading and a look at
    // their end.
    std::size_t piece =
        std::clamp<std::size_t>(std::size_t(file.Size()) + 1, kMinChunkSize, kPieceSize);
    for (std::size_t got = piece; got > 0;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + piece);
        got = file.Read(std::as_writable_bytes(std::span(bytes).subspan(before)));
        bytes.resize(before + got);
    }
    return bytes;
}

std::string ReadBeginning(const FileSystem& files, const Text& path, std::size_t limit)
{
    const auto file = files.OpenInput(path);
    std::string bytes;
    for (std::size_t got = 1; got > 0 && bytes.size() < limit;) {
        const std::size_t before = bytes.size();
        bytes.resize(before + std::min(kPieceSize, limit - before));
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

void WriteFlushedFile(FileSystem& files, const Text& path, std::string_view bytes)
{
    const auto file = files.OpenOutput(path);
    file->Write(std::as_bytes(std::span(bytes)));
    file->Flush();
    file->Close();
}

AnsiTextFile::AnsiTextFile(FileSystem& files, const Text& path)
    : owned_(files.OpenOutput(path)), file_(owned_.get())
{
}

AnsiTextFile::~AnsiTextFile()
{
    try {
        Flush();
    } catch (const RunError&) {
        // The failure that brought the writer here is the one to report; this one changes nothing.
    }
}

void AnsiTextFile::Line(std::string_view text)
{
    if (IsAscii(text))
        pending_.append(text);
    else
        pending_.append(AnsiText::ToBytes(text));
    pending_.append(kLineBreak);
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
