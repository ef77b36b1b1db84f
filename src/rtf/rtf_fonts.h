// The table of fonts at the front of an RTF file: which name, family and alphabet a font's number
// stands for.
#pragma once

#include "rtf/rtf_text.h"

#include <map>

namespace quillon {

class RtfFonts {
public:
    // While the table is read: its words, the characters of names, and the end of each name.
    void TakeWord(std::string_view word, int number);
    void TakeCharacter(char32_t character);
    void EndName();

    /// The number of the font whose row is being read.
    int NumberInTable() const { return current_; }

    /// Whether the font holds signs in place of letters.
    bool IsSymbolFont(int number) const;
    /// The code page of text in this font; 0: the document's own.
    int CodePage(int number) const;

    /// Where the font is in `used`, at its end if it is new there; negative for a font that is
    /// not in the table, and for one of signs, which are written by characters that any font has.
    int PlaceIn(std::vector<RtfFont>& used, int number);

private:
    struct Row {
        RtfFont font;
        int charset = 1; // the default one: that of the document
        int codePage = 0;
        int place = -1;
    };
    const Row* Find(int number) const;

    std::map<int, Row> rows_;
    int current_ = 0;
    Text name_;
};

} // namespace quillon
