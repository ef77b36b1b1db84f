#include "runtime/journal/install_journal.h"

#include "formats/install_journal_name.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/whole_file.h"
#include "runtime/journal/journal_table.h"

namespace quillon {

namespace {

constexpr const char* kFirstLine = "Quillon installationslogg 2";
constexpr std::size_t kPieceSize = 64 * 1024;
constexpr const char* kFirstLineOfFormat1 = "Quillon installationslogg 1";

// Format 1 kept an INI file's former value without the line that it stood in.
void MakeLineOfValue(JournalRecord& record)
{
    if (auto* const ini = std::get_if<record::IniValue>(&record); ini && ini->formerLine)
        ini->formerLine = ini->name + "=" + *ini->formerLine;
}

template <class... Kinds>
bool IsOneOf(const JournalRecord& record)
{
    return (std::holds_alternative<Kinds>(record) || ...);
}

bool IsOfInstalledFile(const JournalRecord& record)
{
    return IsOneOf<record::File, record::Replaced, record::Backup, record::Shared, record::IniFile,
                   record::IniOpenEnd, record::IniSection, record::IniValue, record::StartupLine>(
        record);
}

Text LineOf(const JournalRecord& record)
{
    return JournalLine(record) + Text(kLineBreak);
}

} // namespace

std::optional<std::vector<JournalRecord>> ReadInstallJournal(std::string_view bytes)
{
    if (auto records = ReadJournal(bytes, kFirstLine))
        return records;
    auto records = ReadJournal(bytes, kFirstLineOfFormat1);
    if (records)
        for (JournalRecord& record : *records)
            MakeLineOfValue(record);
    return records;
}

std::vector<Text> InstallJournalsIn(const FileSystem& files, const Text& mainFolder)
{
    std::vector<Text> journals;
    if (!files.DirExists(mainFolder))
        return journals;
    for (const FolderEntry& entry : files.List(mainFolder))
        if (IsInstallJournalName(entry.name))
            journals.push_back(JoinPath(mainFolder, entry.name));
    return journals;
}

std::optional<Text> ProductOfJournal(const FileSystem& files, const Text& path)
{
    const auto records = ReadInstallJournal(ReadWholeFile(files, path));
    for (const JournalRecord& record : records.value_or(std::vector<JournalRecord>{}))
        if (const auto* const product = std::get_if<record::Product>(&record))
            return product->name;
    return std::nullopt;
}

// In pieces, since the largest packages make it several megabytes long.
void InstallJournal::Save(FileSystem& files, const Text& path) const
{
    const auto file = files.OpenOutput(path);
    Text lines = kFirstLine + Text(kLineBreak);
    const auto add = [&](const Text& more) {
        if (lines.size() + more.size() > kPieceSize) {
            file->Write(std::as_bytes(std::span(lines)));
            lines.clear();
        }
        lines += more;
    };
    for (const JournalRecord& record : records_)
        add(LineOf(record));
    for (const Text& piece : contents_)
        add(piece);
    file->Write(std::as_bytes(std::span(lines)));
    // Without it nothing that is installed can be removed again.
    file->Flush();
    file->Close();
}

void InstallJournal::Add(JournalRecord record)
{
    if (std::holds_alternative<record::Content>(record))
        return AddContent(record);
    NotePlace(record);
    records_.push_back(std::move(record));
    index_.insert(&records_.back());
}

// Contents are never looked up by path, and as text a record takes a third of the memory.
void InstallJournal::AddContent(const JournalRecord& content)
{
    if (contents_.empty() || contents_.back().size() >= kPieceSize)
        contents_.emplace_back();
    contents_.back() += LineOf(content);
}

void InstallJournal::TakeOver(std::vector<JournalRecord> earlier)
{
    // At an end of the deque, so that the others stay where the index has them.
    records_.insert(records_.begin(), std::make_move_iterator(earlier.begin()),
                    std::make_move_iterator(earlier.end()));
    for (std::size_t i = 0; i < earlier.size(); ++i)
        index_.insert(&records_[i]);
}

void InstallJournal::Forget(const std::set<Text>& paths)
{
    if (paths.empty())
        return;
    index_.clear();
    std::erase_if(records_, [&](const JournalRecord& record) {
        return IsOneOf<record::File, record::Replaced, record::Backup>(record) &&
               paths.count(LowerCase(SubjectOf(record))) > 0;
    });
    for (const JournalRecord& record : records_)
        index_.insert(&record);
}

// Each folder that something is put into is named once, since the uninstaller goes into no other.
void InstallJournal::NotePlace(const JournalRecord& record)
{
    if (!IsOfInstalledFile(record))
        return;
    const Text folder = ExtractDirectory(SubjectOf(record));
    if (!Has<record::Folder>(folder) && !Has<record::Place>(folder))
        Add(record::Place{folder});
}

Text InstallJournal::KeyOf(const JournalRecord& record)
{
    return NumberText(std::int64_t(record.index())) + " " + LowerCase(SubjectOf(record));
}

} // namespace quillon
