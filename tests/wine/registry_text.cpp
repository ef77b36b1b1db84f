#include "wine/registry_text.h"

#include "helpers/text.h"
#include "helpers/utf8.h"

#include <fstream>

namespace quillon::test {

namespace {

// Takes an escaped text up to its closing mark; `position` moves after the mark.
std::string TakeEscaped(const std::string& line, std::size_t& position, char closing)
{
    std::string text;
    while (position < line.size() && line[position] != closing) {
        if (line[position] != '\\') {
            text += line[position++];
            continue;
        }
        const char mark = line[position + 1];
        position += 2;
        if (mark != 'x') {
            text += mark == 'n' ? '\n' : mark == 'r' ? '\r' : mark == '0' ? '\0' : mark;
            continue;
        }
        std::size_t end = position;
        while (end < position + 4 && end < line.size() && std::isxdigit(line[end]) != 0)
            ++end;
        AppendCodePoint(text,
                        char32_t(std::stoul(line.substr(position, end - position), nullptr, 16)));
        position = end;
    }
    ++position;
    return text;
}

std::string TakeData(const std::string& line, std::size_t position)
{
    const bool isText = line.compare(position, 1, "\"") == 0;
    return isText ? TakeEscaped(line, ++position, '"') : line.substr(position);
}

} // namespace

RegistryText::RegistryText(const WinePrefix& prefix)
{
    prefix.Stop();
    Read(prefix.Folder() / "system.reg", "hklm\\");
    Read(prefix.Folder() / "user.reg", "hkcu\\");
}

void RegistryText::Read(const std::filesystem::path& path, const std::string& root)
{
    std::ifstream file(path);
    RegistryValues* values = nullptr;
    for (std::string line; std::getline(file, line);) {
        // A long value goes on in the next line.
        for (std::string more; line.ends_with('\\') && std::getline(file, more);)
            line = line.substr(0, line.size() - 1) + TrimBlanks(more);
        std::size_t position = 1;
        if (line.starts_with('[')) {
            values = &keys_[root + LowerCase(TakeEscaped(line, position, ']'))];
        } else if (line.starts_with("@=") && values != nullptr) {
            (*values)[""] = TakeData(line, 2);
        } else if (line.starts_with('"') && values != nullptr) {
            const std::string name = LowerCase(TakeEscaped(line, position, '"'));
            (*values)[name] = TakeData(line, position + 1);
        }
    }
}

std::optional<std::string> RegistryText::Value(const std::string& key,
                                               const std::string& name) const
{
    const auto found = keys_.find(LowerCase(key));
    if (found == keys_.end())
        return std::nullopt;
    const auto value = found->second.find(LowerCase(name));
    return value == found->second.end() ? std::nullopt : std::optional(value->second);
}

bool RegistryText::HasKey(const std::string& key) const
{
    return keys_.contains(LowerCase(key));
}

// At each start Wine writes here which screen and which devices it found, and that its own debugger
// has run; the setup's programs never start that.
bool IsWinesOwn(const std::string& key)
{
    return key == "hkcu\\software\\wine\\winedbg" ||
           key.starts_with("hklm\\system\\currentcontrolset\\control\\class\\") ||
           key.starts_with("hklm\\system\\currentcontrolset\\control\\video\\") ||
           key.starts_with("hklm\\system\\currentcontrolset\\enum\\") ||
           key.starts_with("hklm\\software\\microsoft\\windows nt\\currentversion\\networkcards");
}

std::string RegistryDifference(const RegistryText& before, const RegistryText& after)
{
    std::string difference;
    for (const auto& [key, values] : after.Keys()) {
        if (IsWinesOwn(key))
            continue;
        const auto old = before.Keys().find(key);
        if (old == before.Keys().end())
            difference += "new: " + key + "\n";
        else if (old->second != values)
            difference += "changed: " + key + "\n";
    }
    for (const auto& [key, values] : before.Keys())
        if (!after.Keys().contains(key) && !IsWinesOwn(key))
            difference += "lost: " + key + "\n";
    return difference;
}

} // namespace quillon::test
