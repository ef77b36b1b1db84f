#include "actions/registry_list.h"

#include "helpers/ansi_text.h"
#include "helpers/ascii.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

constexpr std::string_view kSoftware = "\\SOFTWARE\\";
constexpr std::size_t kMaxNumberLength = 18; // digits that surely fit in 64 bits

constexpr const char* kNoSubKey = "Ingen subnyckel har definierats!";
constexpr const char* kNoNumber =
    "Texten du skrev in vid 'Data' är ej ett giltigt tal. Ett tal får endast innehålla siffor "
    "(0-9), plustecken (+) och minustecken(-). Endast decimala tal kan anges (ej hexadecimala).";
constexpr const char* kNoBinary =
    "Texten du skrev in  vid 'Data' är ej ett giltigt binärt värde! Ett binärt värde ska anges "
    "som en serie hexademimala tal med mellanslag mellan talen, tex 'A2 FF 32'.";

// Kept: one backslash at the end goes, a second one stays.
Text KeyOf(const Text& root, const Text& subKey)
{
    Text key = root + subKey;
    if (key.ends_with('\\'))
        key.pop_back();
    return key;
}

Text ValueOf(const RegistryEntry& entry)
{
    switch (entry.type) {
    case RegistryValueType::Dword:
        return entry.data.empty() ? "0" : entry.data;
    case RegistryValueType::Binary:
        return "!" + entry.data;
    default:
        return '"' + entry.data + '"';
    }
}

} // namespace

Text SubKeyOnChoiceOfRoot(const Text& subKey, std::string_view root)
{
    if (subKey.empty() && (root == "HKEY_LOCAL_MACHINE" || root == "HKEY_CURRENT_USER"))
        return Text(kSoftware);
    if (subKey == kSoftware && (root == "HKEY_USERS" || root == "HKEY_CLASSES_ROOT"))
        return {};
    return subKey;
}

Text SubKeyOnLeave(const Text& subKey)
{
    return subKey.empty() || subKey.starts_with('\\') ? subKey : '\\' + subKey;
}

Text NameOnChoiceOfType(const Text& name, RegistryValueType type)
{
    if (type == RegistryValueType::Standard)
        return kDefaultValueName;
    return name == kDefaultValueName ? Text() : name;
}

bool HasSubKey(const Text& subKey, Ask& ask)
{
    if (!subKey.empty())
        return true;
    ask.Inform("Info", kNoSubKey);
    return false;
}

bool CheckRegistryData(RegistryValueType type, Text& data, Ask& ask)
{
    if (type == RegistryValueType::Dword && !IsRegistryNumber(data)) {
        ask.Critical("Fel", kNoNumber);
        return false;
    }
    if (type != RegistryValueType::Binary)
        return true;
    data = TrimBlanks(data);
    if (!IsRegistryBinary(data)) {
        ask.Critical("Fel", kNoBinary);
        return false;
    }
    return true;
}

bool IsRegistryNumber(std::string_view data)
{
    if (data.empty())
        return true;
    const bool isSigned = data.front() == '-' || data.front() == '+';
    const std::string_view digits = data.substr(isSigned ? 1 : 0);
    if (digits.empty() || !std::ranges::all_of(digits, IsDigit))
        return false;
    const std::string_view figures =
        digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
    if (figures.size() > kMaxNumberLength)
        return false;
    const std::int64_t size = LeadingNumber(figures);
    const std::int64_t number = data.front() == '-' ? -size : size;
    return number >= std::numeric_limits<Long>::min() && number <= std::numeric_limits<Long>::max();
}

// Kept: only the blanks between the bytes are looked at, not whether a byte is made of hexadecimal
// digits.
bool IsRegistryBinary(std::string_view data)
{
    const std::string characters = AnsiText::ToBytes(data);
    const std::size_t length = characters.size();
    if (length == 3 || length % 3 == 1)
        return false;
    for (std::size_t blank = 2; blank < length; blank += 3)
        if (characters[blank] != ' ')
            return false;
    return true;
}

Text MakeRegistryLine(const RegistryEntry& entry)
{
    const Text key = KeyOf(entry.root, entry.subKey);
    // Kept: data without a name is left out.
    if (entry.name.empty())
        return key;
    return key + Text(kValueMark) + entry.name + "=" + ValueOf(entry);
}

Text MakeRegistryRemovalLine(RegistryRemoval when, const Text& root, const Text& subKey,
                             const Text& valueName)
{
    const Text mark(when == RegistryRemoval::AtInstallation ? kDeleteMark : kUninstallMark);
    return mark + KeyOf(root, subKey) + (valueName.empty() ? "" : Text(kValueMark) + valueName);
}

Text RegistryLineToAppend(std::string_view list, const Text& line)
{
    return (list.empty() ? "" : Text(kLineBreak)) + line;
}

} // namespace quillon
