#include "builder/compression_log.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

constexpr std::uint64_t kMaxKeptSize = 1024 * 1024;

std::string EarlierLog(const FileSystem& files, const Text& path)
{
    if (!files.FileExists(path) || files.Status(path).size > kMaxKeptSize)
        return {};
    return ReadWholeFile(files, path);
}

Text Line(const Text& path, std::uint64_t size, std::uint64_t packedSize, Integer result)
{
    return path + "; " + NumberText(static_cast<std::int64_t>(size)) + "; " +
           NumberText(static_cast<std::int64_t>(packedSize)) + "; " + NumberText(result);
}

} // namespace

void CompressionLog::AddEntry(const ZipEntryReport& entry)
{
    lines_.push_back(Line(entry.path, entry.size, entry.packedSize, CompressionResult::kDone));
}

void CompressionLog::AddFailure(const Text& path, Integer result)
{
    lines_.push_back(Line(path, 0, 0, result));
}

void CompressionLog::Write(Host& host, const Text& target, Integer result)
{
    const Text path = JoinPath(host.machine.GetWindowsDir(), "DYNAZIP.LOG");
    const LocalTime now = host.machine.Now();
    Text text = "[" + target + " " + DateText(now) + " " + TimeTextWithSeconds(now) + "]\r\n";
    for (const Text& line : lines_)
        text.append(line).append(kLineBreak);
    text.append("Resultat: " + NumberText(result)).append(kLineBreak);
    // A log that can't be written must not make the packing fail.
    RunErrorNumber([&] {
        WriteWholeFile(host.files, path, EarlierLog(host.files, path) + AnsiText::ToBytes(text));
    });
}

} // namespace quillon
