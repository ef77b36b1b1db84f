#include "platform/posix/user_directories.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

namespace quillon {

namespace {

constexpr std::string_view kHome = "$HOME";

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The text between the quotation marks, where a backslash makes the next character a plain one.
std::optional<std::string> Unquoted(std::string_view value)
{
    if (!value.starts_with('"'))
        return std::nullopt;
    std::string text;
    for (std::size_t i = 1; i < value.size(); ++i) {
        if (value[i] == '"')
            return text;
        if (value[i] == '\\' && i + 1 < value.size())
            ++i;
        text += value[i];
    }
    return std::nullopt;
}

std::optional<std::string> AbsolutePath(const std::string& value, const std::string& home)
{
    if (value.starts_with('/'))
        return value;
    const bool isBelowHome = value == kHome || value.starts_with(std::string(kHome) + "/");
    return isBelowHome ? std::optional(home + value.substr(kHome.size())) : std::nullopt;
}

// Larger than any that a desktop writes.
constexpr std::size_t kMaxFile = 64U << 10U;

/// Empty where the file can't be read.
std::string ReadSmallFile(const std::string& path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file)
        return {};
    std::string bytes(kMaxFile, '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    return bytes;
}

} // namespace

std::optional<std::string> FindUserDirectory(const std::string& file, const std::string& key,
                                             const std::string& home)
{
    std::optional<std::string> found;
    const std::string bytes = ReadSmallFile(file);
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
        const std::string line = bytes.substr(at, end - at);
        at = end + 1;
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos || Trimmed(line.substr(0, equals)) != key)
            continue;
        const std::string value = line.substr(equals + 1);
        if (const auto text = Unquoted(Trimmed(value)))
            // The file is a shell's, where the last line counts.
            found = AbsolutePath(*text, home);
    }
    return found;
}

} // namespace quillon
