// What a journal says: a struct for each kind of line. The journal of an installation
// (`install_journal.h`) and the journal of a transaction (`transaction_journal.h`) are files of
// such lines, and `journal_table.h` is how they stand there.
#pragma once

#include "runtime/target.h"

#include <optional>
#include <variant>

namespace quillon {

namespace record {

struct Product {
    Text name;
    bool operator==(const Product&) const = default;
};

/// What the uninstaller shows.
struct Message {
    Text key; // in the language file
    Text text;
    bool operator==(const Message&) const = default;
};

/// A folder that the setup created.
struct Folder {
    Text path;
    bool operator==(const Folder&) const = default;
};

/// The folder was there before, and files of the product were put into it.
struct Place {
    Text path;
    bool operator==(const Place&) const = default;
};

/// Written by us where there was none.
struct File {
    Text path;
    bool operator==(const File&) const = default;
};

/// Written by us over a file that was there before.
struct Replaced {
    Text path;
    bool operator==(const Replaced&) const = default;
};

/// The file that was there before is kept under another name, and comes back at uninstallation.
struct Backup {
    Text path;
    Text kept;
    bool operator==(const Backup&) const = default;
};

/// The system's count of the file's users is one higher by us.
struct Shared {
    Text path;
    bool operator==(const Shared&) const = default;
};

/// The font was announced to running programs.
struct Font {
    Text path;
    bool operator==(const Font&) const = default;
};

/// The file registered itself.
struct Registered {
    Text path;
    bool operator==(const Registered&) const = default;
};

/// `from` takes the place of `to` when the machine starts next; an empty `to` removes `from`.
struct AtRestart {
    Text from;
    Text to;
    bool operator==(const AtRestart&) const = default;
};

/// A key that the setup created.
struct Key {
    RegistryKey key;
    bool operator==(const Key&) const = default;
};

struct Value {
    RegistryKey key;
    Text name;
    RegistryData data;
    std::optional<RegistryData> former;
    bool operator==(const Value&) const = default;
};

/// To be removed at uninstallation, with all below.
struct UninstallKey {
    RegistryKey key;
    bool operator==(const UninstallKey&) const = default;
};

struct UninstallValue {
    RegistryKey key;
    Text name;
    bool operator==(const UninstallValue&) const = default;
};

/// A file that the setup created.
struct IniFile {
    Text path;
    bool operator==(const IniFile&) const = default;
};

/// The last line of the file had no line break after it before.
struct IniOpenEnd {
    Text path;
    Text lastLine;
    bool operator==(const IniOpenEnd&) const = default;
};

/// A section that the setup created.
struct IniSection {
    Text path;
    Text section;
    bool operator==(const IniSection&) const = default;
};

struct IniValue {
    Text path;
    Text section;
    Text name;
    Text value;
    std::optional<Text> formerLine; // whole, with the blanks in it
    bool operator==(const IniValue&) const = default;
};

/// A line that the setup has added to a file which the system reads when it starts.
struct StartupLine {
    Text path;
    Text line; // its bytes, as Windows-1252
    bool operator==(const StartupLine&) const = default;
};

/// The content of a file as installed: an update may remove a file whose content is still this.
struct Content {
    Text path;
    std::uint64_t size = 0;
    Text digest; // SHA-256
    bool operator==(const Content&) const = default;
};

/// A folder of the transaction's own, with all that is in it.
struct TempFolder {
    Text path;
    bool operator==(const TempFolder&) const = default;
};

/// The file of that path stands under the other name until the transaction ends.
struct MovedAside {
    Text path;
    Text aside;
    bool operator==(const MovedAside&) const = default;
};

/// A new file at the path, put there some steps after the former one was moved aside. Where no
/// former file is aside any more, the new one is not there either.
struct InsteadOf {
    Text path;
    Text aside;
    bool operator==(const InsteadOf&) const = default;
};

/// What a value was before it was written or removed; nothing where there was none.
struct FormerValue {
    RegistryKey key;
    Text name;
    std::optional<RegistryData> former;
    bool operator==(const FormerValue&) const = default;
};

/// What it is from then on, behind the line of its former state; nothing where it was removed.
struct WrittenValue {
    RegistryKey key;
    Text name;
    std::optional<RegistryData> data;
    bool operator==(const WrittenValue&) const = default;
};

struct RemovedKey {
    RegistryKey key;
    bool operator==(const RemovedKey&) const = default;
};

/// The file that was there before was registered too, by an earlier installation.
struct RegisteredBefore {
    Text path;
    bool operator==(const RegisteredBefore&) const = default;
};

/// The font that was there before was announced too, by an earlier installation.
struct AnnouncedBefore {
    Text path;
    bool operator==(const AnnouncedBefore&) const = default;
};

/// The folder goes when everything else is done, if it is empty by then.
struct LeavingFolder {
    Text path;
    bool operator==(const LeavingFolder&) const = default;
};

/// The transaction is committed: what is left to do is to clear away.
struct Committed {
    bool operator==(const Committed&) const = default;
};

} // namespace record

using JournalRecord =
    std::variant<record::Product, record::Message, record::Folder, record::Place, record::File,
                 record::Replaced, record::Backup, record::Shared, record::Font, record::Registered,
                 record::AtRestart, record::Key, record::Value, record::UninstallKey,
                 record::UninstallValue, record::IniFile, record::IniOpenEnd, record::IniSection,
                 record::IniValue, record::StartupLine, record::Content, record::TempFolder,
                 record::MovedAside, record::InsteadOf, record::FormerValue, record::WrittenValue,
                 record::RemovedKey, record::RegisteredBefore, record::AnnouncedBefore,
                 record::LeavingFolder, record::Committed>;

/// The path or the registry key that a record is about; empty where it is about none.
Text SubjectOf(const JournalRecord& record);

} // namespace quillon
