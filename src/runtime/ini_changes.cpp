#include "runtime/ini_changes.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "ini/ini_text.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <span>

namespace quillon {

namespace {

constexpr std::string_view kUtf16Bom = "\xFF\xFE";

// The record of what a line changed, and the change.
using IniRecords = std::vector<JournalRecord>;

void ApplyIniLine(const IniWork& work, IniText& ini, const IniLine& line, IniRecords& records)
{
    const std::string section = AnsiText::ToBytes(line.section);
    const std::string name = AnsiText::ToBytes(line.name);
    if (!ini.HasSection(section))
        records.push_back(record::IniSection{line.file, line.section});
    ini.MakeSection(section);
    if (line.name.empty())
        return;
    const auto former = ini.LineOf(section, name);
    records.push_back(
        record::IniValue{line.file, line.section, line.name, line.value,
                         former ? std::optional(AnsiText::FromBytes(*former)) : std::nullopt});
    ini.SetValue(section, name, AnsiText::ToBytes(line.value));
    work.log.Line(Message::LogWritesIni, line.file, "[" + line.section + "] " + line.name);
}

void WriteIniFile(const IniWork& work, std::span<const IniLine> lines)
{
    const Text& path = lines[0].file;
    const bool existed = work.files.FileExists(path);
    const std::string before = existed ? ReadWholeFile(work.files, path) : std::string();
    if (before.substr(0, kUtf16Bom.size()) == kUtf16Bom) {
        work.log.Skipped(path, {Message::SkipIniUnicode});
        return;
    }
    work.changes.MakeFolder(ExtractDirectory(path));
    if (!existed)
        work.record.Add(record::IniFile{path});
    IniText ini(before);
    const std::string lastLine = ini.OpenLastLine();
    IniRecords records;
    for (const IniLine& line : lines)
        ApplyIniLine(work, ini, line, records);
    // The first record is the last that is taken back: by then the lines after it have gone.
    if (!lastLine.empty() && ini.OpenLastLine().empty())
        work.record.Add(record::IniOpenEnd{path, AnsiText::FromBytes(lastLine)});
    for (JournalRecord& record : records)
        work.record.Add(std::move(record));
    const Text staged = work.changes.StagingPath(path);
    WriteWholeFile(work.files, staged, ini.Bytes());
    work.changes.PutFile({staged, path, existed, InstallTransaction::Recorded::No});
}

template <class Work>
void Change(FileSystem& files, const Text& path, Work work)
{
    if (!files.FileExists(path))
        return;
    IniText ini(ReadWholeFile(files, path));
    const std::string before = ini.Bytes();
    work(ini);
    if (ini.Bytes() != before)
        RewriteFile(files, path, ini.Bytes());
}

} // namespace

void RewriteFile(FileSystem& files, const Text& path, std::string_view bytes)
{
    const Text staged = JoinPath(ExtractDirectory(path), "~qn-" + ExtractFilename(path) + ".tmp");
    try {
        WriteWholeFile(files, staged, bytes);
        files.Rename(staged, path);
    } catch (const RunError&) {
        RunErrorNumber([&] { files.RemoveFile(staged); });
        throw;
    }
}

void WriteIniFiles(const IniWork& work, const std::vector<IniLine>& lines)
{
    for (std::size_t first = 0, end = 0; first < lines.size(); first = end) {
        while (end < lines.size() && EqualIgnoreCase(lines[end].file, lines[first].file))
            ++end;
        WriteIniFile(work, std::span(lines).subspan(first, end - first));
    }
}

void UndoIniChange(FileSystem& files, const record::IniFile& record)
{
    if (files.FileExists(record.path) &&
        ReadWholeFile(files, record.path).find_first_not_of(" \t\r\n") == Text::npos)
        files.RemoveFile(record.path);
}

void UndoIniChange(FileSystem& files, const record::IniOpenEnd& record)
{
    Change(files, record.path,
           [&](IniText& ini) { ini.OpenEndOf(AnsiText::ToBytes(record.lastLine)); });
}

void UndoIniChange(FileSystem& files, const record::IniSection& record)
{
    Change(files, record.path,
           [&](IniText& ini) { ini.RemoveEmptySection(AnsiText::ToBytes(record.section)); });
}

void UndoIniChange(FileSystem& files, const record::IniValue& record)
{
    const std::string section = AnsiText::ToBytes(record.section);
    const std::string name = AnsiText::ToBytes(record.name);
    Change(files, record.path, [&](IniText& ini) {
        const auto present = ini.Value(section, name);
        const bool isOurs = present == TrimBlanks(AnsiText::ToBytes(record.value));
        if (!record.formerLine)
            ini.RemoveValue(section, name);
        else if (isOurs)
            ini.SetLine(section, name, AnsiText::ToBytes(*record.formerLine));
    });
}

} // namespace quillon
