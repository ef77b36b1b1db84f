#include "runtime/registry/registry_lines.h"

#include "formats/registry_marks.h"
#include "helpers/number_text.h"
#include "runtime/registry/protected_keys.h"

#include <algorithm>
#include <cctype>

namespace quillon {

namespace {

constexpr std::int64_t kLowestNumber = -2147483648LL;
constexpr std::int64_t kMaxDword = 4294967295LL;

Text ValueName(std::string_view name)
{
    return EqualIgnoreCase(name, kDefaultValueName) ? Text() : Text(name);
}

RegistryLine Unreadable(Message reason)
{
    RegistryLine line;
    line.reason = reason;
    return line;
}

// A typed DWORD: digits with an optional sign, either as a signed or as an unsigned number.
bool ReadNumber(std::string_view text, std::uint32_t& number)
{
    const bool plus = !text.empty() && text[0] == '+';
    const std::string_view digits = text.substr(plus || text.substr(0, 1) == "-" ? 1 : 0);
    if (!IsDigits(digits))
        return false;
    const std::int64_t value = LeadingNumber(plus ? digits : text);
    number = static_cast<std::uint32_t>(value);
    return value >= kLowestNumber && value <= kMaxDword;
}

// Bytes as pairs of digits with blanks between them.
bool ReadBytes(std::string_view text, std::string& bytes)
{
    for (std::size_t at = 0; at < text.size(); at += 3) {
        const auto byte = BytesOfHex(text.substr(at, 2));
        const bool separated = at + 2 >= text.size() || text[at + 2] == ' ';
        if (!byte || byte->empty() || !separated)
            return false;
        bytes += *byte;
    }
    return true;
}

void ReadData(RegistryLine& line, std::string_view data)
{
    if (data.size() >= 2 && data.front() == '"' && data.back() == '"') {
        line.kind = RegistryLine::Kind::TextValue;
        line.text = data.substr(1, data.size() - 2);
    } else if (!data.empty() && data.front() == '!') {
        if (ReadBytes(TrimBlanks(data.substr(1)), line.bytes))
            line.kind = RegistryLine::Kind::BytesValue;
        else
            line.reason = Message::SkipNotHexadecimal;
    } else if (ReadNumber(data, line.number)) {
        line.kind = RegistryLine::Kind::NumberValue;
    } else {
        line.reason = Message::SkipNoData;
    }
}

bool ReadKey(RegistryLine& line, std::string_view text)
{
    const std::size_t rootEnd = std::min(text.find('\\'), text.size());
    const auto root = RootNamed(TrimBlanks(text.substr(0, rootEnd)));
    if (!root) {
        line.reason = Message::SkipNoRootKey;
        return false;
    }
    const std::string_view subKey = text.substr(std::min(rootEnd + 1, text.size()));
    line.key = {*root, PlainSubKey(subKey)};
    if (line.key.subKey.empty())
        line.reason = Message::SkipNoSubKey;
    return !line.key.subKey.empty();
}

RegistryLine ReadRemoval(RegistryLine::Kind kind, std::string_view text)
{
    RegistryLine line;
    const std::size_t mark = text.find(kValueMark);
    if (!ReadKey(line, text.substr(0, mark)))
        return line;
    line.hasValue = mark != Text::npos;
    if (line.hasValue)
        line.valueName = ValueName(text.substr(mark + kValueMark.size()));
    line.kind = kind;
    if (RemovesSystemKey(line))
        return Unreadable(Message::SkipSystemKey);
    return line;
}

RegistryLine ReadAddition(std::string_view text)
{
    RegistryLine line;
    const std::size_t mark = text.find(kValueMark);
    if (!ReadKey(line, text.substr(0, mark)))
        return line;
    if (mark == Text::npos) {
        line.kind = RegistryLine::Kind::Key;
        return line;
    }
    const std::string_view value = text.substr(mark + kValueMark.size());
    const std::size_t equals = value.find('=');
    if (equals == Text::npos)
        return Unreadable(Message::SkipNoEquals);
    line.hasValue = true;
    line.valueName = ValueName(value.substr(0, equals));
    ReadData(line, value.substr(equals + 1));
    return line;
}

bool BeginsWith(std::string_view text, std::string_view mark)
{
    return EqualIgnoreCase(text.substr(0, mark.size()), mark);
}

} // namespace

Text PlainSubKey(std::string_view subKey)
{
    Text plain;
    for (const char character : subKey)
        if (character != '\\' || (!plain.empty() && plain.back() != '\\'))
            plain += character;
    if (plain.ends_with('\\'))
        plain.pop_back();
    return plain;
}

bool IsSystemKey(const RegistryKey& key)
{
    return IsProtectedKey({key.root, PlainSubKey(key.subKey)});
}

bool RemovesSystemKey(const RegistryLine& line)
{
    const bool removes =
        line.kind == RegistryLine::Kind::Delete || line.kind == RegistryLine::Kind::Uninstall;
    return removes && !line.hasValue && IsSystemKey(line.key);
}

RegistryLine ReadRegistryLine(std::string_view line)
{
    const Text text = TrimBlanks(line);
    if (BeginsWith(text, kDeleteMark))
        return ReadRemoval(RegistryLine::Kind::Delete, text.substr(kDeleteMark.size()));
    if (BeginsWith(text, kUninstallMark))
        return ReadRemoval(RegistryLine::Kind::Uninstall, text.substr(kUninstallMark.size()));
    return ReadAddition(text);
}

std::vector<RegistryListLine> ReadRegistryLines(std::string_view list)
{
    std::vector<RegistryListLine> lines;
    for (const Text& line : SplitLines(list))
        if (!TrimBlanks(line).empty())
            lines.push_back({line, ReadRegistryLine(line)});
    return lines;
}

} // namespace quillon
