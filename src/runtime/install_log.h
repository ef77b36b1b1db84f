// The record of an installation, from which the uninstaller removes what was installed and nothing
// else. A UTF-8 file of lines: a word, then fields, with tabs between. It is written ahead: a line
// stands on the disk before the change that it tells of is made, so that a broken-off installation
// can still be removed.
#pragma once

#include "platform/file_system.h"

#include <memory>
#include <optional>
#include <vector>

namespace quillon {

enum class RecordKind {
    Product,        // name
    Message,        // number of the text, text: what the uninstaller shows
    Folder,         // path: made by us
    File,           // path: written by us where there was none
    Replaced,       // path: written by us over a file that was there before
    Backup,         // path, where the file that was there before is kept
    Shared,         // path: the system's count of its users is one higher by us
    Font,           // path of a font that is announced
    Registered,     // path of a file that registered itself
    Key,            // root, subkey: made by us
    Value,          // root, subkey, name, type, bytes, former type or empty, former bytes
    UninstallKey,   // root, subkey: to be removed with all below
    UninstallValue, // root, subkey, name
    IniFile,        // path: made by us
    IniSection,     // path, section: made by us
    IniValue,       // path, section, name, value, "1" and the former value if there was one
    Count
};

struct LogRecord {
    RecordKind kind;
    std::vector<Text> fields;

    bool operator==(const LogRecord&) const = default;
};

Text LogRecordLine(const LogRecord& record);
/// Nothing where the word is unknown, fields are missing, or the registry's root or key is none:
/// from a damaged log nothing may be removed that was not installed.
std::optional<LogRecord> ReadLogRecord(std::string_view line);

/// The records of a log file from its bytes; nothing where it is no such log. A last line that
/// broke off in the middle is left out.
std::optional<std::vector<LogRecord>> ReadInstallLog(std::string_view bytes);

/// The logs of all products that share a main folder.
std::vector<Text> InstallLogsIn(const FileSystem& files, const Text& mainFolder);

/// The product that a log file is of; nothing where the file is no log.
std::optional<Text> ProductOfLog(const FileSystem& files, const Text& path);

class InstallLog {
public:
    /// Writes to the file from now on, beginning with all records so far.
    void Open(FileSystem& files, const Text& path);
    void Close();
    /// Writes no more; the file can be removed.
    void Abandon() { file_.reset(); }

    void Add(RecordKind kind, std::vector<Text> fields);
    /// Whether there is a record of that kind with this path, ignoring case.
    bool Has(RecordKind kind, std::string_view path) const;
    const std::vector<LogRecord>& Records() const { return records_; }
    void TakeOver(std::vector<LogRecord> earlier);

private:
    void Write(const LogRecord& record);

    std::vector<LogRecord> records_;
    std::unique_ptr<OutputFile> file_;
};

} // namespace quillon
