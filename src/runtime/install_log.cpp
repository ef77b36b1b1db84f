#include "runtime/install_log.h"

#include "helpers/windows_path.h"
#include "platform/whole_file.h"
#include "runtime/journal_table.h"

namespace quillon {

namespace {

constexpr const char* kFirstLine = "Quillon installationslogg 2";
constexpr const char* kFirstLineOfFormat1 = "Quillon installationslogg 1";

// Format 1 kept an INI file's former value without the line that it stood in.
void MakeLineOfValue(JournalRecord& record)
{
    if (auto* const ini = std::get_if<record::IniValue>(&record); ini && ini->formerLine)
        ini->formerLine = ini->name + "=" + *ini->formerLine;
}

} // namespace

std::optional<std::vector<JournalRecord>> ReadInstallLog(std::string_view bytes)
{
    if (auto records = ReadJournal(bytes, kFirstLine))
        return records;
    auto records = ReadJournal(bytes, kFirstLineOfFormat1);
    if (records)
        for (JournalRecord& record : *records)
            MakeLineOfValue(record);
    return records;
}

std::vector<Text> InstallLogsIn(const FileSystem& files, const Text& mainFolder)
{
    std::vector<Text> logs;
    if (!files.DirExists(mainFolder))
        return logs;
    for (const FolderEntry& entry : files.List(mainFolder)) {
        const Text name = UpperCase(entry.name);
        if (name.starts_with("QNXUNIN") && ExtensionFromFirstPoint(name) == "LOG")
            logs.push_back(JoinPath(mainFolder, entry.name));
    }
    return logs;
}

std::optional<Text> ProductOfLog(const FileSystem& files, const Text& path)
{
    const auto records = ReadInstallLog(ReadWholeFile(files, path));
    for (const JournalRecord& record : records.value_or(std::vector<JournalRecord>{}))
        if (const auto* const product = std::get_if<record::Product>(&record))
            return product->name;
    return std::nullopt;
}

void InstallLog::Open(FileSystem& files, const Text& path)
{
    file_ = files.OpenOutput(path);
    const Text head = kFirstLine + Text(kLineBreak);
    file_->Write(std::as_bytes(std::span(head)));
    for (const JournalRecord& record : records_)
        Write(record);
}

void InstallLog::Close()
{
    const std::unique_ptr<OutputFile> file = std::move(file_);
    if (file)
        file->Close();
}

void InstallLog::Add(JournalRecord record)
{
    NoteShared(record);
    records_.push_back(std::move(record));
    if (file_)
        Write(records_.back());
}

bool InstallLog::HasShared(std::string_view path) const
{
    return shared_.count(LowerCase(path)) > 0;
}

void InstallLog::TakeOver(std::vector<JournalRecord> earlier)
{
    for (const JournalRecord& record : earlier)
        NoteShared(record);
    records_.insert(records_.begin(), std::make_move_iterator(earlier.begin()),
                    std::make_move_iterator(earlier.end()));
}

void InstallLog::NoteShared(const JournalRecord& record)
{
    if (const auto* const shared = std::get_if<record::Shared>(&record))
        shared_.insert(LowerCase(shared->path));
}

void InstallLog::Write(const JournalRecord& record)
{
    const Text line = JournalLine(record) + Text(kLineBreak);
    file_->Write(std::as_bytes(std::span(line)));
}

} // namespace quillon
