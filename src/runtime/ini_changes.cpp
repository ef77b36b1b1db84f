#include "runtime/ini_changes.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/ini_text.h"

#include <span>

namespace quillon {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";

void ApplyIniLine(const IniWork& work, IniText& ini, const IniLine& line)
{
    const std::string section = AnsiText::ToBytes(line.section);
    const std::string name = AnsiText::ToBytes(line.name);
    if (!ini.HasSection(section))
        work.record.Add(RecordKind::IniSection, {line.file, line.section});
    ini.MakeSection(section);
    if (line.name.empty())
        return;
    const auto former = ini.Value(section, name);
    work.record.Add(RecordKind::IniValue,
                    {line.file, line.section, line.name, line.value, former ? "1" : "",
                     former ? AnsiText::FromBytes(*former) : Text()});
    ini.SetValue(section, name, AnsiText::ToBytes(line.value));
    work.log.Line("Skriver till " + line.file + ": [" + line.section + "] " + line.name);
}

void WriteIniFile(const IniWork& work, std::span<const IniLine> lines)
{
    const Text& path = lines[0].file;
    const bool existed = work.files.FileExists(path);
    const std::string before = existed ? ReadWholeFile(work.files, path) : std::string();
    if (before.substr(0, kUtf16Mark.size()) == kUtf16Mark) {
        work.log.Skipped(path, "INI-filer i Unicode ändras inte");
        return;
    }
    work.changes.MakeFolder(ExtractDirectory(path));
    if (!existed)
        work.record.Add(RecordKind::IniFile, {path});
    IniText ini(before);
    for (const IniLine& line : lines)
        ApplyIniLine(work, ini, line);
    const Text staged = work.changes.StagingPath(path);
    WriteWholeFile(work.files, staged, ini.Bytes());
    work.changes.PutFile(staged, path, Changes::Recorded::No);
}

// The old file stays until the new one is whole, since others' lines stand in it too.
void RewriteFile(FileSystem& files, const Text& path, std::string_view bytes)
{
    const Text staged = NameBeside(files, path);
    try {
        WriteWholeFile(files, staged, bytes);
        files.Rename(staged, path);
    } catch (const RunError&) {
        RunErrorNumber([&] { files.RemoveFile(staged); });
        throw;
    }
}

} // namespace

void WriteIniFiles(const IniWork& work, const std::vector<IniLine>& lines)
{
    for (std::size_t first = 0, end = 0; first < lines.size(); first = end) {
        while (end < lines.size() && EqualIgnoreCase(lines[end].file, lines[first].file))
            ++end;
        WriteIniFile(work, std::span(lines).subspan(first, end - first));
    }
}

void TakeBackIniChange(FileSystem& files, const LogRecord& record)
{
    const Text& path = record.fields[0];
    if (!files.FileExists(path))
        return;
    IniText ini(ReadWholeFile(files, path));
    const std::string before = ini.Bytes();
    if (record.kind == RecordKind::IniFile) {
        if (before.find_first_not_of(" \t\r\n") == Text::npos)
            files.RemoveFile(path);
        return;
    }
    const std::string section = AnsiText::ToBytes(record.fields[1]);
    if (record.kind == RecordKind::IniSection) {
        ini.RemoveEmptySection(section);
    } else {
        const std::string name = AnsiText::ToBytes(record.fields[2]);
        const auto present = ini.Value(section, name);
        const bool isOurs = present == TrimBlanks(AnsiText::ToBytes(record.fields[3]));
        if (record.fields[4].empty())
            ini.RemoveValue(section, name);
        else if (isOurs)
            ini.SetValue(section, name, AnsiText::ToBytes(record.fields[5]));
    }
    if (ini.Bytes() != before)
        RewriteFile(files, path, ini.Bytes());
}

} // namespace quillon
