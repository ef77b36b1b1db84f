#include "rtf/rtf_text.h"

#include "helpers/code_page.h"
#include "helpers/utf16.h"
#include "helpers/utf8.h"
#include "rtf/rtf_fonts.h"
#include "rtf/rtf_tokens.h"
#include "rtf/rtf_words.h"

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

using Kind = RtfToken::Kind;
using Place = RtfState::Place;

// Deeper groups than any writer makes share the state of the deepest one that is kept.
constexpr std::size_t kMaxGroups = 200;
constexpr std::size_t kMaxColours = 1000;

/// Walks through the file once, brace by brace, with a stack of its own.
class RtfReader {
public:
    explicit RtfReader(std::string_view bytes) : tokens_(bytes) {}

    RtfText Read();

private:
    bool IsAtEnd() const { return groups_.empty() || text_.fault != RtfText::Fault::None; }
    RtfState& State() { return groups_.back(); }

    void Take(const RtfToken& token);
    void OpenGroup();
    void CloseGroup();
    void TakeSymbol(std::string_view symbol);
    void TakeWord(const RtfToken& word);
    bool TakeDocumentWord(std::string_view word, int number);
    void TakeColourWord(std::string_view word, int number);
    void TakeUnicode(int number);
    void TakeBytes(const RtfToken& token);
    void TakeByte(unsigned char byte);

    void Put(char32_t character);
    RtfStyle StyleNow();
    void EndParagraph();
    void StoreParagraph();
    bool MayBreakLine();

    int FontNow();
    int CodePageNow();

    RtfTokens tokens_;
    RtfText text_;
    RtfParagraph paragraph_;
    std::vector<RtfState> groups_;
    std::size_t groupsTooDeep_ = 0;
    bool isGroupNew_ = false; // nothing stood in the group so far
    int fallbackLeft_ = 0;
    char32_t highSurrogate_ = 0;

    int codePage_ = kWindows1252;
    int defaultFont_ = -1;
    RtfFonts fonts_;
    std::vector<Colour> colours_;
    Colour colour_ = kNoColour;

    std::size_t length_ = 0;
    std::size_t lines_ = 0;
    std::size_t runs_ = 0;
};

RtfText RtfReader::Read()
{
    groups_.emplace_back();
    tokens_.Next(); // the brace that opens it all
    while (!IsAtEnd()) {
        const auto token = tokens_.Next();
        if (!token)
            text_.fault = RtfText::Fault::Cut;
        else
            Take(*token);
    }
    if (!groups_.empty() && !paragraph_.runs.empty())
        StoreParagraph();
    return std::move(text_);
}

void RtfReader::Take(const RtfToken& token)
{
    const bool wasNew = isGroupNew_;
    isGroupNew_ = token.kind == Kind::Open;
    if (token.kind == Kind::Open)
        return OpenGroup();
    if (token.kind == Kind::Close)
        return CloseGroup();
    if (wasNew && token.text == "*" && token.kind == Kind::Symbol) {
        State().place = Place::Nowhere;
        return;
    }
    if (State().place == Place::Nowhere)
        return;
    if (token.kind == Kind::Bytes)
        return TakeBytes(token);
    if (fallbackLeft_ > 0)
        --fallbackLeft_;
    else if (token.kind == Kind::Symbol)
        TakeSymbol(token.text);
    else
        TakeWord(token);
}

void RtfReader::OpenGroup()
{
    fallbackLeft_ = 0;
    if (groups_.size() < kMaxGroups)
        groups_.push_back(State());
    else
        ++groupsTooDeep_;
}

void RtfReader::CloseGroup()
{
    fallbackLeft_ = 0;
    if (groupsTooDeep_ > 0) {
        --groupsTooDeep_;
        return;
    }
    if (State().place == Place::Fonts)
        fonts_.EndName();
    if (groups_.size() == 1 && !paragraph_.runs.empty())
        StoreParagraph();
    groups_.pop_back();
}

void RtfReader::TakeSymbol(std::string_view symbol)
{
    if (const char32_t character = RtfCharacter(symbol))
        Put(character);
    else if (symbol == "\r" || symbol == "\n")
        EndParagraph();
}

void RtfReader::TakeWord(const RtfToken& token)
{
    const std::string_view word = token.text;
    const int number = token.number.value_or(0);
    if (word == "u" && token.number)
        TakeUnicode(number);
    else if (IsIgnorableDestination(word))
        State().place = Place::Nowhere;
    else if (State().place == Place::Fonts)
        fonts_.TakeWord(word, number);
    else if (State().place == Place::Colours)
        TakeColourWord(word, number);
    else if (const char32_t character = RtfCharacter(word))
        Put(character);
    else if (!TakeDocumentWord(word, number))
        ApplyRtfWord(State(), word, token.number);
}

/// False where the word is none that ends a paragraph or speaks of the whole document.
bool RtfReader::TakeDocumentWord(std::string_view word, int number)
{
    if (word == "par" || word == "row" || word == "nestrow" || word == "sect")
        EndParagraph();
    else if (word == "page" && !paragraph_.runs.empty())
        EndParagraph();
    else if (word == "fonttbl")
        State().place = Place::Fonts;
    else if (word == "colortbl")
        State().place = Place::Colours;
    else if (word == "deff")
        defaultFont_ = number;
    else if (word == "ansicpg" && number > 0)
        codePage_ = number;
    else if (word == "mac")
        codePage_ = kMacRoman;
    else if (word == "pc")
        codePage_ = 437;
    else if (word == "pca")
        codePage_ = 850;
    else
        return false;
    return true;
}

void RtfReader::TakeColourWord(std::string_view word, int number)
{
    const int shift = word == "red" ? 0 : word == "green" ? 8 : word == "blue" ? 16 : -1;
    if (shift < 0)
        return;
    const Colour part = std::clamp(number, 0, 255) << shift;
    colour_ = (colour_ == kNoColour ? 0 : colour_ & ~(0xFF << shift)) | part;
}

void RtfReader::TakeUnicode(int number)
{
    // Numbers from 32768 on are written as negative ones.
    const auto unit = static_cast<char32_t>(number) & 0xFFFFU;
    const char32_t high = std::exchange(highSurrogate_, IsHighSurrogate(unit) ? unit : 0);
    if (IsLowSurrogate(unit))
        Put(high != 0 ? JoinSurrogates(high, unit) : kReplacementCharacter);
    else if ((unit & 0xFF00U) == 0xF000)
        Put(SymbolCharacter(static_cast<unsigned char>(unit & 0xFFU)));
    else if (highSurrogate_ == 0)
        Put(unit);
    fallbackLeft_ = State().fallbackCharacters;
}

void RtfReader::TakeBytes(const RtfToken& token)
{
    if (token.text.empty())
        TakeByte(token.byte);
    for (const char byte : token.text) {
        if (IsAtEnd())
            return;
        TakeByte(static_cast<unsigned char>(byte));
    }
}

void RtfReader::TakeByte(unsigned char byte)
{
    if (fallbackLeft_ > 0) {
        --fallbackLeft_;
        return;
    }
    if (State().place == Place::Fonts && byte == ';')
        return fonts_.EndName();
    if (State().place == Place::Colours) {
        if (byte == ';' && colours_.size() < kMaxColours)
            colours_.push_back(std::exchange(colour_, kNoColour));
        return;
    }
    const bool isSymbol =
        State().place == Place::Body && byte >= ' ' && fonts_.IsSymbolFont(FontNow());
    Put(isSymbol ? SymbolCharacter(byte) : CodePointOf(CodePageNow(), byte));
}

void RtfReader::Put(char32_t character)
{
    if (character < ' ' && character != '\t' && character != '\n')
        return;
    if (State().place == Place::Fonts)
        return fonts_.TakeCharacter(character);
    if (State().place != Place::Body || State().isHidden)
        return;
    if (character == '\n' && !MayBreakLine())
        return;
    const RtfStyle style = StyleNow();
    if (paragraph_.runs.empty() || paragraph_.runs.back().style != style) {
        if (++runs_ > kMaxRtfRuns) {
            text_.fault = RtfText::Fault::TooLong;
            return;
        }
        paragraph_.runs.push_back({.style = style});
    }
    Text& run = paragraph_.runs.back().text;
    length_ -= run.size();
    AppendCodePoint(run, character);
    length_ += run.size();
    if (length_ >= kMaxRtfTextSize)
        text_.fault = RtfText::Fault::TooLong;
}

RtfStyle RtfReader::StyleNow()
{
    RtfState& state = State();
    const auto colour = [this](int number) {
        const bool isKnown = number >= 0 && static_cast<std::size_t>(number) < colours_.size();
        return isKnown ? colours_[static_cast<std::size_t>(number)] : kNoColour;
    };
    RtfStyle style = state.style;
    style.font = fonts_.PlaceIn(text_.fonts, FontNow());
    style.foreground = colour(state.foregroundNumber);
    style.background = colour(state.backgroundNumber);
    return style;
}

void RtfReader::EndParagraph()
{
    if (State().place == Place::Body && MayBreakLine())
        StoreParagraph();
}

void RtfReader::StoreParagraph()
{
    const RtfState& state = State();
    paragraph_.alignment = state.alignment;
    paragraph_.leftIndent = state.leftIndent;
    paragraph_.rightIndent = state.rightIndent;
    paragraph_.firstLineIndent = state.firstLineIndent;
    paragraph_.spaceBefore = state.spaceBefore;
    paragraph_.spaceAfter = state.spaceAfter;
    paragraph_.lineSpacing = state.lineSpacing;
    paragraph_.isLineSpacingMultiple = state.isLineSpacingMultiple;
    paragraph_.tabs.assign(state.tabs.begin(),
                           state.tabs.begin() + static_cast<std::ptrdiff_t>(state.tabCount));
    text_.paragraphs.push_back(std::exchange(paragraph_, {}));
}

bool RtfReader::MayBreakLine()
{
    if (++lines_ > kMaxRtfLines)
        text_.fault = RtfText::Fault::TooLong;
    return lines_ <= kMaxRtfLines;
}

/// The number of the font of the text that comes, or of the name that is in the table of fonts.
int RtfReader::FontNow()
{
    if (State().place == Place::Fonts)
        return fonts_.NumberInTable();
    return State().fontNumber >= 0 ? State().fontNumber : defaultFont_;
}

int RtfReader::CodePageNow()
{
    const int codePage = fonts_.CodePage(FontNow());
    return codePage != 0 ? codePage : codePage_;
}

} // namespace

std::optional<RtfText> ReadRtf(std::string_view bytes)
{
    constexpr std::string_view kBegin = "{\\rtf";
    const std::size_t begin = bytes.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos || !bytes.substr(begin).starts_with(kBegin))
        return std::nullopt;
    bytes.remove_prefix(begin);
    const auto isLetter = [](char byte) {
        return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    };
    if (bytes.size() > kBegin.size() && isLetter(bytes[kBegin.size()]))
        return std::nullopt;
    return RtfReader(bytes).Read();
}

} // namespace quillon
