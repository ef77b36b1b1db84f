// Small files as one piece: the text files that the tool writes and reads.
#pragma once

#include "platform/file_system.h"

#include <string>

namespace quillon {

/// All bytes of the file. Throws as `OpenInput` does.
std::string ReadWholeFile(const FileSystem& files, const Text& path);
/// From its beginning, where it has just been opened.
std::string ReadWholeFile(InputFile& file);

/// The first bytes of the file, at most `limit`; all of a smaller one. Throws as `OpenInput` does.
std::string ReadBeginning(const FileSystem& files, const Text& path, std::size_t limit);

void WriteWholeFile(FileSystem& files, const Text& path, std::string_view bytes);
/// The same, forced out to the disk: a former file that it takes the place of may be deleted next.
void WriteFlushedFile(FileSystem& files, const Text& path, std::string_view bytes);

/// A text file on its way out: Windows-1252, CR LF after every line. Lines are collected and
/// written in large pieces, so a failed write may show some lines late, and in `Close` at the
/// latest. One that is destroyed without `Close`, because its writer failed, leaves the lines so
/// far.
class AnsiTextFile {
public:
    AnsiTextFile(FileSystem& files, const Text& path);
    /// Into an output that outlives it.
    explicit AnsiTextFile(OutputFile& output) : file_(&output) {}
    ~AnsiTextFile();
    AnsiTextFile(const AnsiTextFile&) = delete;
    AnsiTextFile& operator=(const AnsiTextFile&) = delete;

    void Line(std::string_view text = {});
    void Close();

private:
    void Flush();

    std::unique_ptr<OutputFile> owned_;
    OutputFile* file_;
    std::string pending_;
};

} // namespace quillon
