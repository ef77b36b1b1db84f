// RTF cut into its braces, control words and text. Nothing is copied: a token points into the file.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillon {

struct RtfToken {
    enum class Kind {
        Open,   // {
        Close,  // }
        Word,   // \word or \word12; `text` is the word
        Symbol, // a backslash and one other character, in `text`
        Bytes,  // text as it is, or the one byte of \'e5
    };
    Kind kind = Kind::Bytes;
    std::string_view text;
    std::optional<int> number; // after a word
    unsigned char byte = 0;    // of \'e5, whose `text` is empty
};

class RtfTokens {
public:
    explicit RtfTokens(std::string_view bytes) : rest_(bytes) {}

    /// Nothing at the end of the file. Bytes that a \bin announces are passed over.
    std::optional<RtfToken> Next();

private:
    void SkipLineEnds();
    RtfToken ReadText();
    std::optional<RtfToken> ReadControl();
    RtfToken ReadWord();
    std::optional<int> ReadNumber();
    std::optional<RtfToken> ReadHexByte();
    std::string_view Take(std::size_t count);

    std::string_view rest_;
};

} // namespace quillon
