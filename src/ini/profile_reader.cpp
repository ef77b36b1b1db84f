#include "ini/profile_reader.h"

#include "helpers/ansi_text.h"
#include "helpers/ascii.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <limits>
#include <utility>

namespace quillon {

namespace {

constexpr int kMaxLimit = 5000;
constexpr int kMaxLongLimit = 16384;
constexpr const char* kLimitTooLarge = "Overflow!!!";

template <class Number>
Number Fitting(std::int64_t number)
{
    if (number < std::numeric_limits<Number>::min() || number > std::numeric_limits<Number>::max())
        throw RunError(ErrorNumber::kOverflow);
    return static_cast<Number>(number);
}

std::string ReadableBytes(const FileSystem& files, const Text& path)
{
    try {
        return ReadWholeFile(files, path);
    } catch (const RunError&) {
        // The profile functions report no failure: a file that can't be read has no keys, and the
        // caller that needs one of them reports that it is missing.
        return {};
    }
}

} // namespace

void ProfileReader::SetIniFile(const FileSystem& files, const Text& path)
{
    SetIniBytes(ReadableBytes(files, path));
}

void ProfileReader::SetIniBytes(std::string bytes)
{
    bytes_ = std::move(bytes);
    sections_ = ProfileSections(bytes_);
    keysOfSections_.clear();
    SelectKeys();
}

void ProfileReader::SetIniSection(std::string_view name)
{
    section_ = FoldedName(AnsiText::ToBytes(name));
    SelectKeys();
}

Text ProfileReader::ReadIniString(std::string_view key, int limit) const
{
    return limit > kMaxLimit ? kLimitTooLarge : ReadText(key, limit);
}

Text ProfileReader::ReadIniLongString(std::string_view key, int limit) const
{
    return limit > kMaxLongLimit ? kLimitTooLarge : ReadText(key, limit);
}

Integer ProfileReader::ReadIniIntegerDefault(std::string_view key, Integer whenMissing) const
{
    const auto value = Find(key);
    return value ? Fitting<Integer>(LeadingNumber(*value)) : whenMissing;
}

Long ProfileReader::ReadIniLong(std::string_view key) const
{
    return Fitting<Long>(LeadingNumber(Find(key).value_or("")));
}

Flag ProfileReader::ReadFlag(std::string_view key, Flag whenMissing) const
{
    const auto value = Find(key);
    if (!value)
        return whenMissing;
    return LeadingNumber(*value) == 1 ? kOn : kOff;
}

Text ProfileReader::ReadText(std::string_view key, int limit) const
{
    const std::string_view value = Find(key).value_or("");
    const auto maxLength = static_cast<std::size_t>(limit > 0 ? limit - 1 : 0);
    const std::string_view fitting = value.substr(0, maxLength);
    return AnsiText::FromBytes(fitting.substr(0, fitting.find('\0')));
}

std::optional<std::string_view> ProfileReader::Find(std::string_view key) const
{
    if (!keys_)
        return std::nullopt;
    const std::string converted = IsAscii(key) ? std::string() : AnsiText::ToBytes(key);
    const std::string_view name = converted.empty() ? key : converted;
    const auto found = keys_->find(name);
    return found == keys_->end() ? std::nullopt : std::optional(BareValue(found->second));
}

void ProfileReader::SelectKeys()
{
    auto known = keysOfSections_.find(section_);
    if (known == keysOfSections_.end())
        if (const auto range = sections_.Find(section_))
            known = keysOfSections_.emplace(section_, KeysIn(*range)).first;
    keys_ = known == keysOfSections_.end() ? nullptr : &known->second;
}

ProfileReader::Keys ProfileReader::KeysIn(ProfileSections::Range range) const
{
    Keys keys;
    IniScanner lines(std::string_view(bytes_).substr(0, range.end), kProfileSyntax, range.begin);
    while (const auto line = lines.Next())
        if (line->kind == ScannedLine::Kind::Value)
            keys.try_emplace(line->name, line->value);
    return keys;
}

} // namespace quillon
