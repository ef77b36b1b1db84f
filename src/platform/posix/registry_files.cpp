#include "platform/posix/registry_files.h"

#include "helpers/encoded_text.h"
#include "helpers/number_text.h"
#include "platform/registry_roots.h"

#include <charconv>

namespace quillon {

namespace {

constexpr std::string_view kFirstLines[] = {"REGEDIT4", "Windows Registry Editor Version 5.00"};

std::string_view NextLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    // More than one where a file went through a conversion of line ends twice.
    while (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

/// A text in quotation marks at the front of `line`, which is moved after it.
std::optional<Text> TakeQuoted(std::string_view& line)
{
    if (line.empty() || line.front() != '"')
        return std::nullopt;
    Text text;
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (line[i] == '"') {
            line.remove_prefix(i + 1);
            return text;
        }
        const bool isEscape = line[i] == '\\' && i + 1 < line.size();
        i += isEscape ? 1 : 0;
        text += line[i];
    }
    return std::nullopt;
}

std::optional<Text> DwordText(std::string_view digits)
{
    std::uint32_t number = 0;
    const char* end = digits.data() + digits.size();
    const auto [read, failed] = std::from_chars(digits.data(), end, number, 16);
    if (failed != std::errc() || read != end)
        return std::nullopt;
    return NumberText(number);
}

struct KeyLine {
    std::optional<RegistryRoot> root;
    Text subKey;
    bool isRemoval = false;
};

/// "[HKEY_...\sub key]", or "[-HKEY_...]" for a key that goes.
KeyLine ReadKeyLine(std::string_view line)
{
    KeyLine key;
    line = line.substr(1, line.rfind(']') - 1);
    key.isRemoval = !line.empty() && line.front() == '-';
    line.remove_prefix(key.isRemoval ? 1 : 0);
    const std::size_t nameEnd = line.find('\\');
    for (std::size_t i = 0; i < kRegistryRoots.size(); ++i)
        if (EqualIgnoreCase(line.substr(0, nameEnd), kRegistryRoots[i]))
            key.root = RegistryRootAt(i);
    if (nameEnd != std::string_view::npos)
        key.subKey = LowerCase(line.substr(nameEnd + 1));
    return key;
}

} // namespace

bool RegistryFiles::Add(std::string_view bytes)
{
    // Exports come in UTF-16, the old kind in the code page; a file written by hand is UTF-8.
    const Text decoded = DecodedText(bytes);
    std::string_view rest = decoded;
    const Text firstLine = TrimBlanks(NextLine(rest));
    if (firstLine != kFirstLines[0] && firstLine != kFirstLines[1])
        return false;

    KeyLine key;
    while (!rest.empty()) {
        const Text line = TrimBlanks(NextLine(rest));
        if (line.size() > 1 && line.front() == '[' && line.find(']') != Text::npos) {
            key = ReadKeyLine(line);
            if (key.root && key.isRemoval)
                RemoveKey(*key.root, key.subKey);
        } else if (key.root && !key.isRemoval) {
            TakeValue(*key.root, key.subKey, line);
        }
    }
    return true;
}

void RegistryFiles::RemoveKey(RegistryRoot root, const Text& subKey)
{
    const Text below = subKey + "\\";
    std::erase_if(values_, [&](const auto& value) {
        const auto& [valueRoot, valueKey, name] = value.first;
        return valueRoot == root && (valueKey == subKey || valueKey.starts_with(below));
    });
}

void RegistryFiles::TakeValue(RegistryRoot root, const Text& subKey, std::string_view line)
{
    std::optional<Text> name;
    if (line.starts_with("@")) {
        name = "";
        line.remove_prefix(1);
    } else {
        name = TakeQuoted(line);
    }
    const Text behind = TrimBlanks(line);
    if (!name || !behind.starts_with("="))
        return;

    const Text value = TrimBlanks(behind.substr(1));
    const ValueKey key{root, subKey, LowerCase(*name)};
    constexpr std::string_view kDword = "dword:";
    std::string_view quoted = value;
    if (value == "-")
        values_.erase(key);
    else if (const auto text = TakeQuoted(quoted))
        values_[key] = *text;
    else if (EqualIgnoreCase(value.substr(0, kDword.size()), kDword))
        if (const auto number = DwordText(std::string_view(value).substr(kDword.size())))
            values_[key] = *number;
}

std::optional<Text> RegistryFiles::Read(RegistryRoot root, const Text& subKey,
                                        const Text& valueName) const
{
    const auto found = values_.find({root, LowerCase(subKey), LowerCase(valueName)});
    if (found != values_.end())
        return found->second;
    if (root != RegistryRoot::ClassesRoot)
        return std::nullopt;
    const Text classes = "Software\\Classes\\" + subKey;
    const auto ofUser = Read(RegistryRoot::CurrentUser, classes, valueName);
    return ofUser ? ofUser : Read(RegistryRoot::LocalMachine, classes, valueName);
}

} // namespace quillon
