#include "runtime/ini_files/ini_changes.h"

#include "helpers/windows_path.h"
#include "ini/encoded_ini.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "runtime/journal/rollback.h"

#include <span>

namespace quillon {

namespace {

// The record of what a line changed, and the change.
using IniRecords = std::vector<JournalRecord>;

void ApplyIniLine(const IniWork& work, EncodedIni& file, const IniLine& line, IniRecords& records)
{
    IniText& ini = file.ini;
    const std::string section = file.Coded(line.section);
    const std::string name = file.Coded(line.name);
    if (!ini.HasSection(section))
        records.push_back(record::IniSection{line.file, line.section});
    ini.MakeSection(section);
    if (line.name.empty())
        return;
    const auto former = ini.LineOf(section, name);
    records.push_back(
        record::IniValue{line.file, line.section, line.name, line.value,
                         former ? std::optional(file.Decoded(*former)) : std::nullopt});
    ini.SetValue(section, name, file.Coded(line.value));
    work.log.Line(Message::LogWritesIni, line.file, "[" + line.section + "] " + line.name);
}

void WriteIniFile(const IniWork& work, std::span<const IniLine> lines)
{
    const Text& path = lines[0].file;
    const bool existed = work.files.FileExists(path);
    auto file = EncodedIni::Read(existed ? ReadWholeFile(work.files, path) : std::string());
    if (!file) {
        work.log.Skipped(path, {Message::SkipIniUnicode});
        return;
    }
    work.transaction.MakeFolder(ExtractDirectory(path));
    if (!existed)
        work.journal.Add(record::IniFile{path});
    const std::string lastLine = file->ini.OpenLastLine();
    IniRecords records;
    for (const IniLine& line : lines)
        ApplyIniLine(work, *file, line, records);
    // The first record is the last that is taken back; the lines after it have been removed by
    // then.
    if (!lastLine.empty() && file->ini.OpenLastLine().empty())
        work.journal.Add(record::IniOpenEnd{path, file->Decoded(lastLine)});
    for (JournalRecord& record : records)
        work.journal.Add(std::move(record));
    const Text staged = work.transaction.StagingPath(path);
    WriteFlushedFile(work.files, staged, file->Bytes());
    work.transaction.PutFile({.staged = staged,
                              .path = path,
                              .replaces = existed,
                              .recorded = InstallTransaction::Recorded::No,
                              .keepsRights = true});
}

// A file that has been replaced by something else since then holds nothing of ours.
template <class Work>
void Change(const FileRewriting& rewriting, const Text& path, Work work)
{
    if (!rewriting.files.FileExists(path))
        return;
    auto file = EncodedIni::Read(ReadWholeFile(rewriting.files, path));
    if (!file)
        return;
    const std::string before = file->ini.Bytes();
    work(*file);
    if (file->ini.Bytes() != before)
        RewriteFile(rewriting, path, file->Bytes());
}

} // namespace

// The write protection goes first, or nothing could take the file's place. A run that is
// interrupted before the end leaves it on the temporary file, where the next one finds it.
void RewriteFile(const FileRewriting& rewriting, const Text& path, std::string_view bytes)
{
    FileSystem& files = rewriting.files;
    const Text staged = JoinPath(ExtractDirectory(path), "~qn-" + ExtractFilename(path) + ".tmp");
    const auto isProtected = [&](const Text& file) {
        return files.FileExists(file) && files.Status(file).isReadOnly;
    };
    const bool wasProtected = isProtected(staged) || isProtected(path);
    try {
        if (files.FileExists(staged))
            RemoveEvenReadOnly(files, staged);
        WriteFlushedFile(files, staged, bytes);
        rewriting.target.CopyRights(path, staged);
        if (wasProtected) {
            files.SetReadOnly(staged, true);
            files.SetReadOnly(path, false);
        }
        files.Rename(staged, path);
    } catch (const RunError&) {
        if (wasProtected)
            RunErrorNumber([&] { files.SetReadOnly(path, true); });
        RunErrorNumber([&] { RemoveEvenReadOnly(files, staged); });
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

void UndoIniChange(const FileRewriting& rewriting, const record::IniFile& record)
{
    FileSystem& files = rewriting.files;
    if (!files.FileExists(record.path))
        return;
    const auto file = EncodedIni::Read(ReadWholeFile(files, record.path));
    if (file && file->ini.Bytes().find_first_not_of(" \t\r\n") == Text::npos)
        RemoveEvenReadOnly(files, record.path);
}

void UndoIniChange(const FileRewriting& rewriting, const record::IniOpenEnd& record)
{
    Change(rewriting, record.path, [&](EncodedIni& file) {
        file.ini.RemoveFinalLineBreakAfter(file.Coded(record.lastLine));
    });
}

void UndoIniChange(const FileRewriting& rewriting, const record::IniSection& record)
{
    Change(rewriting, record.path,
           [&](EncodedIni& file) { file.ini.RemoveEmptySection(file.Coded(record.section)); });
}

void UndoIniChange(const FileRewriting& rewriting, const record::IniValue& record)
{
    Change(rewriting, record.path, [&](EncodedIni& file) {
        const std::string section = file.Coded(record.section);
        const std::string name = file.Coded(record.name);
        const auto present = file.ini.Value(section, name);
        const bool isOurs = present == TrimBlanks(file.Coded(record.value));
        if (!record.formerLine)
            file.ini.RemoveValue(section, name);
        else if (isOurs)
            file.ini.SetLine(section, name, file.Coded(*record.formerLine));
    });
}

} // namespace quillon
