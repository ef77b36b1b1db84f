// Formatted text in RTF, as word processors write agreements: what of it can be seen as paragraphs
// and runs. Files come from anywhere, so a cut, strange or hostile one gives what could be read of
// it, within limits, and never more than that.
#pragma once

#include "helpers/text.h"
#include "project/records.h"

#include <optional>
#include <vector>

namespace quillon {

inline constexpr Colour kNoColour = -1;

/// A line as high as its letters, where `\sl` counts in lines.
inline constexpr int kRtfLine = 240;

struct RtfStyle {
    int font = -1; // place in `RtfText::fonts`; negative: the reader's own
    int halfPoints = 24;
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckOut = false;
    enum class Height { Normal, Superscript, Subscript } height = Height::Normal;
    enum class Capitals { AsWritten, All, Small } capitals = Capitals::AsWritten;
    int letterSpacing = 0; // twips between letters; negative: closer
    Colour foreground = kNoColour;
    Colour background = kNoColour;

    bool operator==(const RtfStyle&) const = default;
};

/// A tab is '\t', a new line in the same paragraph '\n'; no other control character comes in.
struct RtfRun {
    Text text;
    RtfStyle style;
};

/// Distances are twips.
struct RtfParagraph {
    enum class Alignment { Left, Right, Centre, Justified } alignment = Alignment::Left;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstLineIndent = 0; // from the left indent; negative: it hangs out
    int spaceBefore = 0;
    int spaceAfter = 0;
    // 0: as high as the letters. A multiple counts in 1/240 of that; else positive is the least
    // height of a line, and negative the exact one.
    int lineSpacing = 0;
    bool isLineSpacingMultiple = false;
    std::vector<int> tabs;
    std::vector<RtfRun> runs;
};

struct RtfFont {
    Text name;
    enum class Family { Unknown, Roman, Swiss, Modern } family = Family::Unknown;
};

struct RtfText {
    std::vector<RtfFont> fonts;
    std::vector<RtfParagraph> paragraphs;
    /// Why the text may end too early: the file does, or it exceeds a limit.
    enum class Fault { None, Cut, TooLong } fault = Fault::None;
};

// Where the reader ends a text. A book of a thousand pages is shorter.
inline constexpr std::size_t kMaxRtfTextSize = 2'000'000; // in bytes of UTF-8
inline constexpr std::size_t kMaxRtfLines = 50'000;       // paragraphs and the breaks in them
inline constexpr std::size_t kMaxRtfRuns = 100'000;

/// Nothing where the bytes are no RTF at all.
std::optional<RtfText> ReadRtf(std::string_view bytes);

} // namespace quillon
