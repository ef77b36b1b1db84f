#include "runtime/journal/recorded_text.h"

#include "helpers/hex.h"

namespace quillon {

namespace {

// Not by `starts_with` and `substr`: they bring the machinery for an exception into the starter.
bool TakeWord(std::string_view& line, std::string_view word)
{
    if (line.size() <= word.size() || line[word.size()] != '\t')
        return false;
    for (std::size_t i = 0; i < word.size(); ++i)
        if (line[i] != word[i])
            return false;
    line.remove_prefix(word.size() + 1);
    return true;
}

std::string_view TakeLine(std::string_view& rest)
{
    std::size_t end = 0;
    while (end < rest.size() && rest[end] != '\n')
        ++end;
    std::string_view line(rest.data(), end);
    rest.remove_prefix(end < rest.size() ? end + 1 : end);
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

// A tab, a line break and the percent sign stand as two digits after a percent sign.
bool Unescape(std::string_view text, char* to, std::size_t capacity)
{
    std::size_t length = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (length + 1 >= capacity)
            return false;
        char c = text[i];
        if (c == '%' && i + 2 < text.size()) {
            const int byte = HexByteValue(text[i + 1], text[i + 2]);
            if (byte < 0)
                return false;
            c = static_cast<char>(byte);
            i += 2;
        }
        to[length++] = c;
    }
    to[length] = 0;
    return length > 0;
}

} // namespace

bool FindRecordedText(std::string_view journal, std::string_view key, char* to,
                      std::size_t capacity)
{
    while (!journal.empty())
        if (std::string_view line = TakeLine(journal);
            TakeWord(line, "MESSAGE") && TakeWord(line, key))
            return Unescape(line, to, capacity);
    return false;
}

} // namespace quillon
