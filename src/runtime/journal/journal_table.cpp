#include "runtime/journal/journal_table.h"

#include "helpers/hex.h"
#include "helpers/number_text.h"
#include "runtime/registry/registry_lines.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>

namespace quillon {

namespace {

template <class Record, class... Fields>
struct Row {
    const char* word;
    std::tuple<Fields Record::*...> fields;
};

template <class Record, class... Fields>
constexpr Row<Record, Fields...> Line(const char* word, Fields Record::*... fields)
{
    return {word, {fields...}};
}

// clang-format off
constexpr std::tuple kRows{
    Line("PRODUCT",          &record::Product::name),
    Line("MESSAGE",          &record::Message::key, &record::Message::text),
    Line("FOLDER",           &record::Folder::path),
    Line("PLACE",            &record::Place::path),
    Line("FILE",             &record::File::path),
    Line("REPLACED",         &record::Replaced::path),
    Line("BACKUP",           &record::Backup::path, &record::Backup::kept),
    Line("SHARED",           &record::Shared::path),
    Line("FONT",             &record::Font::path),
    Line("REGISTERED",       &record::Registered::path),
    Line("ATRESTART",        &record::AtRestart::from, &record::AtRestart::to),
    Line("KEY",              &record::Key::key),
    Line("VALUE",            &record::Value::key, &record::Value::name, &record::Value::data, &record::Value::former),
    Line("UNINSTALLKEY",     &record::UninstallKey::key),
    Line("UNINSTALLVALUE",   &record::UninstallValue::key, &record::UninstallValue::name),
    Line("INIFILE",          &record::IniFile::path),
    Line("INIOPENEND",       &record::IniOpenEnd::path, &record::IniOpenEnd::lastLine),
    Line("INISECTION",       &record::IniSection::path, &record::IniSection::section),
    Line("INIVALUE",         &record::IniValue::path, &record::IniValue::section, &record::IniValue::name,
                             &record::IniValue::value, &record::IniValue::formerLine),
    Line("STARTUPLINE",      &record::StartupLine::path, &record::StartupLine::line),
    Line("CONTENT",          &record::Content::path, &record::Content::size, &record::Content::digest),
    Line("TEMPFOLDER",       &record::TempFolder::path),
    Line("LEAVING",          &record::LeavingFolder::path),
    Line("ASIDE",            &record::MovedAside::path, &record::MovedAside::aside),
    Line("INSTEADOF",        &record::InsteadOf::path, &record::InsteadOf::aside),
    Line("FORMERVALUE",      &record::FormerValue::key, &record::FormerValue::name, &record::FormerValue::former),
    Line("WRITTENVALUE",     &record::WrittenValue::key, &record::WrittenValue::name, &record::WrittenValue::data),
    Line("REMOVEDKEY",       &record::RemovedKey::key),
    Line("REGISTEREDBEFORE", &record::RegisteredBefore::path),
    Line("ANNOUNCEDBEFORE",  &record::AnnouncedBefore::path),
    Line<record::Committed>("COMMITTED"),
};
// clang-format on

template <class Record, class Other, class... Fields>
constexpr std::size_t IsRowOf(const Row<Other, Fields...>&)
{
    return std::is_same_v<Record, Other> ? 1 : 0;
}

template <class Record>
constexpr std::size_t RowsOf()
{
    return std::apply([](const auto&... row) { return (IsRowOf<Record>(row) + ...); }, kRows);
}

template <class... Records>
constexpr bool HaveOneRowEach(const std::variant<Records...>*)
{
    return sizeof...(Records) == std::tuple_size_v<decltype(kRows)> &&
           ((RowsOf<Records>() == 1) && ...);
}

constexpr bool AreWordsUnique()
{
    const auto words = std::apply(
        [](const auto&... row) { return std::array{std::string_view(row.word)...}; }, kRows);
    for (std::size_t i = 0; i < words.size(); ++i)
        for (std::size_t other = i + 1; other < words.size(); ++other)
            if (words[i] == words[other])
                return false;
    return true;
}

// A kind of record without a row would be written as an empty line.
static_assert(HaveOneRowEach(static_cast<const JournalRecord*>(nullptr)) && AreWordsUnique());

template <class Visit>
void EachRow(Visit visit)
{
    std::apply([&](const auto&... row) { (visit(row), ...); }, kRows);
}

constexpr std::string_view kEscaped = "%\t\r\n";

Text Escape(std::string_view field)
{
    Text escaped;
    for (const char c : field) {
        if (kEscaped.find(c) == Text::npos) {
            escaped += c;
            continue;
        }
        escaped += '%';
        AppendHexByte(escaped, static_cast<unsigned char>(c), kHexDigits);
    }
    return escaped;
}

Text Unescape(std::string_view field)
{
    Text text(field);
    for (const char c : {'\t', '\r', '\n', '%'})
        text = ReplaceAll(text, Escape({&c, 1}), {&c, 1});
    return text;
}

// How each type of field is in a line. A registry key is a root and a sub key; data are a type
// and hexadecimal bytes; an empty first field means that an optional part is missing.

void Put(Text& line, const Text& field)
{
    line += "\t" + Escape(field);
}

void Put(Text& line, std::uint64_t number)
{
    Put(line, NumberText(static_cast<std::int64_t>(number)));
}

void Put(Text& line, const RegistryKey& key)
{
    Put(line, RootName(key.root));
    Put(line, key.subKey);
}

void Put(Text& line, const RegistryData& data)
{
    Put(line, NumberText(data.type));
    Put(line, HexText(data.bytes));
}

void Put(Text& line, const std::optional<RegistryData>& data)
{
    if (data)
        Put(line, *data);
    else
        line += "\t\t";
}

void Put(Text& line, const std::optional<Text>& field)
{
    line += field ? "\t1" : "\t";
    Put(line, field.value_or(""));
}

class FieldReader {
public:
    explicit FieldReader(std::string_view line) : rest_(line) { word_ = Next(); }

    const Text& Word() const { return word_; }
    bool IsAtEnd() const { return !hasMore_; }

    bool Take(Text& field)
    {
        const bool there = hasMore_;
        field = Next();
        return there;
    }

    bool Take(std::uint64_t& number)
    {
        Text digits;
        const bool there = Take(digits);
        const std::int64_t read = LeadingNumber(digits);
        number = static_cast<std::uint64_t>(read);
        return there && read >= 0 && NumberText(read) == digits;
    }

    bool Take(RegistryKey& key)
    {
        Text name;
        const bool there = Take(name) && Take(key.subKey);
        const auto root = RootNamed(name);
        key.root = root.value_or(key.root);
        return there && root;
    }

    bool Take(RegistryData& data)
    {
        std::optional<RegistryData> read;
        const bool sound = Take(read) && read;
        data = read.value_or(data);
        return sound;
    }

    bool Take(std::optional<RegistryData>& data)
    {
        Text type;
        Text hex;
        const bool there = Take(type) && Take(hex);
        const auto bytes = BytesOfHex(hex);
        if (!type.empty() && bytes)
            data = {std::uint32_t(LeadingNumber(type)), *bytes};
        return there && bytes && (data || hex.empty());
    }

    bool Take(std::optional<Text>& field)
    {
        Text mark;
        Text text;
        const bool there = Take(mark) && Take(text);
        if (mark == "1")
            field = text;
        return there && (field || (mark.empty() && text.empty()));
    }

private:
    Text Next()
    {
        const std::size_t end = rest_.find('\t');
        Text field = Unescape(rest_.substr(0, end));
        hasMore_ = end != std::string_view::npos;
        rest_.remove_prefix(hasMore_ ? end + 1 : rest_.size());
        return field;
    }

    std::string_view rest_;
    bool hasMore_ = true;
    Text word_;
};

template <class Record>
bool IsSound(const Record&)
{
    return true;
}

bool IsSound(const record::UninstallKey& record)
{
    return !IsSystemKey(record.key);
}

template <class Record, class... Fields>
std::optional<JournalRecord> ReadAs(const Row<Record, Fields...>& row, FieldReader fields)
{
    Record record;
    const bool whole =
        std::apply([&](auto... field) { return (fields.Take(record.*field) && ...); }, row.fields);
    if (!whole || !fields.IsAtEnd() || !IsSound(record))
        return std::nullopt;
    return record;
}

} // namespace

Text SubjectOf(const JournalRecord& record)
{
    return std::visit(
        [](const auto& one) -> Text {
            if constexpr (requires { one.path; })
                return one.path;
            else if constexpr (requires { one.key.subKey; })
                return KeyText(one.key);
            else
                return {};
        },
        record);
}

Text JournalLine(const JournalRecord& record)
{
    Text line;
    EachRow([&]<class Record, class... Fields>(const Row<Record, Fields...>& row) {
        const Record* const one = std::get_if<Record>(&record);
        if (one == nullptr)
            return;
        line = row.word;
        std::apply([&](auto... field) { (Put(line, (*one).*field), ...); }, row.fields);
    });
    return line;
}

std::optional<JournalRecord> ReadJournalLine(std::string_view line)
{
    const FieldReader fields(line);
    std::optional<JournalRecord> record;
    EachRow([&](const auto& row) {
        if (fields.Word() == row.word)
            record = ReadAs(row, fields);
    });
    return record;
}

std::optional<std::vector<JournalRecord>> ReadJournal(std::string_view bytes,
                                                      std::string_view firstLine)
{
    const Text header = Text(firstLine) + Text(kLineBreak);
    if (bytes.substr(0, header.size()) != header)
        return std::nullopt;
    std::vector<JournalRecord> records;
    for (std::size_t at = header.size(); at < bytes.size();) {
        const std::size_t end = bytes.find(kLineBreak, at);
        if (end == Text::npos)
            break;
        auto record = ReadJournalLine(bytes.substr(at, end - at));
        if (!record)
            return std::nullopt;
        records.push_back(std::move(*record));
        at = end + kLineBreak.size();
    }
    return records;
}

} // namespace quillon
