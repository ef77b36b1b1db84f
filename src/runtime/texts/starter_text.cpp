#include "runtime/texts/starter_text.h"

#include "formats/package_files.h"
#include "helpers/utf16.h"
#include "helpers/utf8.h"
#include "runtime/texts/starter_messages.h"

namespace quillon {

namespace {

constexpr std::string_view kSection = kStarterSection;
// Longer than a key, its text and the blanks round them; what follows it is not looked at.
constexpr std::size_t kMaxLineLength = 2100;

/// Gives a file character by character, in UTF-16, whatever it was saved in.
class Characters {
public:
    Characters(std::string_view file, AnsiCharacter ansi) : rest_(file), ansi_(ansi)
    {
        if (TakeMark(kUtf16Bom))
            form_ = Form::Utf16;
        else if (TakeMark(kUtf16BigEndianBom))
            form_ = Form::Utf16BigEndian;
        else if (TakeMark(kUtf8Bom) || IsUtf8(file))
            form_ = Form::Utf8;
    }

    bool AtEnd() const
    {
        const bool isWide = form_ == Form::Utf16 || form_ == Form::Utf16BigEndian;
        return !second_ && rest_.size() < (isWide ? 2 : 1);
    }

    char16_t Next()
    {
        if (second_)
            return TakeSecond();
        if (form_ == Form::Utf8)
            return NextOfUtf8();
        const auto first = static_cast<unsigned char>(rest_[0]);
        rest_.remove_prefix(1);
        if (form_ == Form::Ansi)
            return first < 0x80 ? first : ansi_(first);
        const auto second = static_cast<unsigned char>(rest_[0]);
        rest_.remove_prefix(1);
        return static_cast<char16_t>(form_ == Form::Utf16 ? first | second << 8U
                                                          : second | first << 8U);
    }

private:
    enum class Form { Ansi, Utf8, Utf16, Utf16BigEndian };

    bool TakeMark(std::string_view mark)
    {
        for (std::size_t i = 0; i < mark.size(); ++i)
            if (i >= rest_.size() || rest_[i] != mark[i])
                return false;
        rest_.remove_prefix(mark.size());
        return true;
    }

    char16_t TakeSecond()
    {
        const char16_t second = second_;
        second_ = 0;
        return second;
    }

    char16_t NextOfUtf8()
    {
        std::size_t position = 0;
        const char32_t codePoint = NextCodePoint(rest_, position);
        rest_.remove_prefix(position);
        if (codePoint < kFirstBeyond16Bits)
            return static_cast<char16_t>(codePoint);
        second_ = static_cast<char16_t>(LowSurrogate(codePoint));
        return static_cast<char16_t>(HighSurrogate(codePoint));
    }

    std::string_view rest_;
    AnsiCharacter ansi_;
    Form form_ = Form::Ansi;
    char16_t second_ = 0; // the other half of a surrogate pair
};

char16_t Folded(char16_t character)
{
    return character >= u'A' && character <= u'Z' ? character + (u'a' - u'A') : character;
}

// As `substr`, which `starts_with` calls too, but without its exception: the machinery for one is
// larger than the starter.
std::u16string_view Between(std::u16string_view text, std::size_t first, std::size_t end)
{
    end = end < text.size() ? end : text.size();
    return {text.data() + first, end - first};
}

std::u16string_view Trimmed(std::u16string_view text)
{
    const auto isBlank = [](char16_t c) { return c == u' ' || c == u'\t'; };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool IsName(std::u16string_view text, std::string_view name)
{
    text = Trimmed(text);
    if (text.size() != name.size())
        return false;
    for (std::size_t i = 0; i < name.size(); ++i)
        if (Folded(text[i]) != Folded(static_cast<unsigned char>(name[i])))
            return false;
    return true;
}

bool HasControlCharacter(std::u16string_view text)
{
    for (const char16_t c : text)
        if (c < u' ' || c == 0x7F)
            return true;
    return false;
}

std::u16string_view ReadLine(Characters& characters, char16_t (&line)[kMaxLineLength])
{
    std::size_t length = 0;
    while (!characters.AtEnd()) {
        const char16_t c = characters.Next();
        if (c == u'\r' || c == u'\n')
            break;
        if (length < kMaxLineLength)
            line[length++] = c;
    }
    return Trimmed({line, length});
}

} // namespace

bool FindStarterText(std::string_view file, std::string_view key, AnsiCharacter ansi, char16_t* to,
                     std::size_t room)
{
    Characters characters(file, ansi);
    char16_t buffer[kMaxLineLength];
    bool isInside = false;
    while (!characters.AtEnd()) {
        const std::u16string_view line = ReadLine(characters, buffer);
        const std::size_t equals = line.find(u'=');
        if (line.starts_with(u'['))
            isInside = IsName(Between(line, 1, line.find(u']')), kSection);
        else if (isInside && equals != std::u16string_view::npos &&
                 IsName(Between(line, 0, equals), key)) {
            const std::u16string_view text = Trimmed(Between(line, equals + 1, line.size()));
            if (text.empty() || text.size() >= room || HasControlCharacter(text))
                return false;
            for (std::size_t i = 0; i < text.size(); ++i)
                to[i] = text[i];
            to[text.size()] = 0;
            return true;
        }
    }
    return false;
}

} // namespace quillon
