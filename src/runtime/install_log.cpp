#include "runtime/install_log.h"

#include "helpers/windows_path.h"
#include "platform/whole_file.h"
#include "runtime/registry_lines.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::string_view kFirstLine = "Quillon installationslogg 1\r\n";
constexpr std::string_view kEscaped = "%\t\r\n";

struct Word {
    const char* word;
    std::size_t fields;
};

// In the order of RecordKind.
constexpr Word kWords[] = {
    {"PRODUCT", 1},        {"MESSAGE", 2}, {"FOLDER", 1},     {"FILE", 1},
    {"REPLACED", 1},       {"BACKUP", 2},  {"SHARED", 1},     {"FONT", 1},
    {"REGISTERED", 1},     {"KEY", 2},     {"VALUE", 7},      {"UNINSTALLKEY", 2},
    {"UNINSTALLVALUE", 3}, {"INIFILE", 1}, {"INISECTION", 2}, {"INIVALUE", 6},
};
static_assert(std::size(kWords) == std::size_t(RecordKind::Count));

Text Escape(const Text& field)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    Text escaped;
    for (const char c : field) {
        if (kEscaped.find(c) == Text::npos) {
            escaped += c;
            continue;
        }
        escaped += '%';
        escaped += kDigits[static_cast<unsigned char>(c) >> 4U];
        escaped += kDigits[static_cast<unsigned char>(c) & 15U];
    }
    return escaped;
}

Text Unescape(std::string_view field)
{
    Text text(field);
    for (const char c : {'\t', '\r', '\n', '%'})
        text = ReplaceAll(text, Escape(Text(1, c)), std::string_view(&c, 1));
    return text;
}

bool NamesRegistry(RecordKind kind)
{
    return kind == RecordKind::Key || kind == RecordKind::Value ||
           kind == RecordKind::UninstallKey || kind == RecordKind::UninstallValue;
}

bool IsSound(const LogRecord& record)
{
    if (!NamesRegistry(record.kind))
        return true;
    const auto root = RootNamed(record.fields[0]);
    const bool isWholeKey = record.kind == RecordKind::UninstallKey;
    return root && !(isWholeKey && IsSystemKey({*root, record.fields[1]}));
}

} // namespace

Text LogRecordLine(const LogRecord& record)
{
    Text line = kWords[std::size_t(record.kind)].word;
    for (const Text& field : record.fields)
        line += "\t" + Escape(field);
    return line;
}

std::optional<LogRecord> ReadLogRecord(std::string_view line)
{
    std::vector<Text> parts;
    for (std::size_t at = 0; at <= line.size();) {
        const std::size_t end = std::min(line.find('\t', at), line.size());
        parts.push_back(Unescape(line.substr(at, end - at)));
        at = end + 1;
    }
    for (std::size_t kind = 0; kind < std::size(kWords); ++kind) {
        if (parts[0] != kWords[kind].word || parts.size() != kWords[kind].fields + 1)
            continue;
        const LogRecord record{RecordKind(kind), {parts.begin() + 1, parts.end()}};
        return IsSound(record) ? std::optional(record) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<std::vector<LogRecord>> ReadInstallLog(std::string_view bytes)
{
    if (bytes.substr(0, kFirstLine.size()) != kFirstLine)
        return std::nullopt;
    std::vector<LogRecord> records;
    for (std::size_t at = kFirstLine.size(); at < bytes.size();) {
        const std::size_t end = bytes.find(kLineBreak, at);
        if (end == Text::npos)
            break;
        auto record = ReadLogRecord(bytes.substr(at, end - at));
        if (!record)
            return std::nullopt;
        records.push_back(std::move(*record));
        at = end + kLineBreak.size();
    }
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
    for (const LogRecord& record : records.value_or(std::vector<LogRecord>{}))
        if (record.kind == RecordKind::Product)
            return record.fields[0];
    return std::nullopt;
}

void InstallLog::Open(FileSystem& files, const Text& path)
{
    file_ = files.OpenOutput(path);
    file_->Write(std::as_bytes(std::span(kFirstLine)));
    for (const LogRecord& record : records_)
        Write(record);
}

void InstallLog::Close()
{
    const std::unique_ptr<OutputFile> file = std::move(file_);
    if (file)
        file->Close();
}

void InstallLog::Add(RecordKind kind, std::vector<Text> fields)
{
    records_.push_back({kind, std::move(fields)});
    if (file_)
        Write(records_.back());
}

bool InstallLog::Has(RecordKind kind, std::string_view path) const
{
    return std::any_of(records_.begin(), records_.end(), [&](const LogRecord& record) {
        return record.kind == kind && EqualIgnoreCase(record.fields[0], path);
    });
}

void InstallLog::TakeOver(std::vector<LogRecord> earlier)
{
    records_.insert(records_.begin(), std::make_move_iterator(earlier.begin()),
                    std::make_move_iterator(earlier.end()));
}

void InstallLog::Write(const LogRecord& record)
{
    const Text line = LogRecordLine(record) + Text(kLineBreak);
    file_->Write(std::as_bytes(std::span(line)));
}

} // namespace quillon
