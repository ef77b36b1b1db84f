// The control words of RTF that change how the text after them looks, one table row each, and
// those that mean a character or begin what is not part of the text.
#pragma once

#include "rtf/rtf_text.h"

#include <array>

namespace quillon {

/// What a group inherits from the one that it is in.
struct RtfState {
    /// Where the group's text goes.
    enum class Place { Body, Fonts, Colours, Nowhere } place = Place::Body;
    RtfStyle style;
    bool isHidden = false;
    // Which font and colour are meant, by their numbers in the file's own tables.
    int fontNumber = -1;
    int foregroundNumber = 0;
    int backgroundNumber = 0;
    // How many characters after \u are its stand-in for readers without Unicode.
    int fallbackCharacters = 1;

    // The paragraph's shape, its tabs in a fixed room so that groups are cheap.
    RtfParagraph::Alignment alignment = RtfParagraph::Alignment::Left;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstLineIndent = 0;
    int spaceBefore = 0;
    int spaceAfter = 0;
    int lineSpacing = 0;
    bool isLineSpacingMultiple = false;
    std::array<int, 24> tabs{};
    std::size_t tabCount = 0;
};

/// False where the word is none of those that change the state.
bool ApplyRtfWord(RtfState& state, std::string_view word, std::optional<int> number);

/// What \pard and \plain lead back to.
void ResetParagraph(RtfState& state);
void ResetStyle(RtfState& state);

/// The character that the word or symbol means; 0 where it means none.
char32_t RtfCharacter(std::string_view word);

/// Whether the group that begins with this word holds no text of the document.
bool IsIgnorableDestination(std::string_view word);

/// The character of a byte in the fonts that hold signs in place of letters: bullets, mostly.
char32_t SymbolCharacter(unsigned char byte);

/// The code page of a font that is made for this character set; 0: the document's own.
int CodePageOfCharset(int charset);
inline constexpr int kSymbolCharset = 2;

} // namespace quillon
