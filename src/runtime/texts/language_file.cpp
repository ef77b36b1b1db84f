#include "runtime/texts/language_file.h"

#include "helpers/encoded_text.h"
#include "helpers/utf8.h"
#include "ini/ini_scanner.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quillon {

namespace {

// What is longer can't be shown and comes from a damaged file.
constexpr std::size_t kMaxTextLength = 2000;

bool IsText(std::string_view value)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; };
    return !value.empty() && value.size() <= kMaxTextLength && IsUtf8(value) &&
           std::ranges::none_of(value, isControl);
}

Text Name(std::string_view section, std::string_view key)
{
    return LowerCase(TrimBlanks(section)) + "\n" + LowerCase(TrimBlanks(key));
}

using Places = std::map<Text, std::size_t>; // by section and key

const Places& PlacesOfTexts()
{
    static const Places kPlaces = [] {
        Places places;
        for (int i = 0; i < int(Message::Count); ++i)
            places[Name(KeyOf(Message(i)).section, KeyOf(Message(i)).key)] = std::size_t(i);
        return places;
    }();
    return kPlaces;
}

/// Goes through the file once: it may be large, and there are many texts to find.
class LanguageReader {
public:
    using Texts = std::array<Text, std::size_t(Message::Count)>;

    explicit LanguageReader(Texts& texts) : texts_(texts), places_(PlacesOfTexts()) {}

    void Read(std::string_view file)
    {
        IniScanner lines(file, kSyntax);
        while (const auto line = lines.Next())
            Take(*line);
    }

private:
    // A header without its closing bracket counts up to the end of its line.
    static constexpr IniSyntax kSyntax = {IniSyntax::LineEnd::AtLfOrCr,
                                          IniSyntax::Header::ToFirstBracket};

    void Take(const ScannedLine& line)
    {
        // Longer than a key, its text and the blanks round them.
        if (line.whole.size() > 2 * kMaxTextLength)
            return;
        if (line.kind == ScannedLine::Kind::Value)
            TakeValue(line);
        else if (line.kind != ScannedLine::Kind::Other)
            section_ = line.name;
    }

    void TakeValue(const ScannedLine& line)
    {
        const auto place = places_.find(Name(section_, line.name));
        // Of two equal keys the first counts.
        if (place == places_.end() || std::exchange(isRead_[place->second], true))
            return;
        if (IsText(line.value))
            texts_[place->second] = line.value;
    }

    Texts& texts_;
    const Places& places_;
    std::array<bool, std::size_t(Message::Count)> isRead_ = {};
    Text section_;
};

} // namespace

LanguageTexts::LanguageTexts()
{
    for (std::size_t i = 0; i < texts_.size(); ++i)
        texts_[i] = KeyOf(Message(i)).swedish;
}

LanguageTexts::LanguageTexts(std::string_view bytes) : LanguageTexts()
{
    LanguageReader(texts_).Read(DecodedText(bytes));
}

// In one pass: a path may hold a "%2" of its own.
Text LanguageTexts::operator()(Message message, std::string_view first,
                               std::string_view second) const
{
    Text text;
    std::string_view rest = (*this)[message];
    for (std::size_t mark = rest.find('%'); mark != Text::npos; mark = rest.find('%')) {
        const std::string_view place = rest.substr(mark, 2);
        text += rest.substr(0, mark);
        text += place == "%1" ? first : place == "%2" ? second : place.substr(0, 1);
        rest.remove_prefix(mark + (place == "%1" || place == "%2" ? 2 : 1));
    }
    return text += rest;
}

} // namespace quillon
