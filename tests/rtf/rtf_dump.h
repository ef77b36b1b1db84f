// Formatted text as one line to compare: paragraphs end in "¶"; "<qc li720>" is the shape of one
// that is not usual, "(b i)" the look of letters where it changes. The usual look is font 0, twelve
// points; "(f-)" is no font of the file.
#pragma once

#include "rtf/rtf_text.h"

#include <array>
#include <cstdio>

namespace quillon::test {

inline Text Dump(Colour colour)
{
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%06X", static_cast<unsigned>(colour));
    return digits.data();
}

inline Text Joined(const std::vector<Text>& words, const char* open, const char* close)
{
    Text all;
    for (const Text& word : words)
        all += (all.empty() ? "" : " ") + word;
    return open + all + close;
}

inline Text Dump(const RtfStyle& style)
{
    std::vector<Text> words;
    if (style.font != 0)
        words.push_back(style.font < 0 ? "f-" : "f" + NumberText(style.font));
    if (style.isBold)
        words.push_back("b");
    if (style.isItalic)
        words.push_back("i");
    if (style.isUnderlined)
        words.push_back("ul");
    if (style.isStruckOut)
        words.push_back("st");
    if (style.height != RtfStyle::Height::Normal)
        words.push_back(style.height == RtfStyle::Height::Superscript ? "up" : "dn");
    if (style.capitals != RtfStyle::Capitals::AsWritten)
        words.push_back(style.capitals == RtfStyle::Capitals::All ? "caps" : "scaps");
    if (style.letterSpacing != 0)
        words.push_back("ex" + NumberText(style.letterSpacing));
    if (style.halfPoints != 24)
        words.push_back(NumberText(style.halfPoints));
    if (style.foreground != kNoColour)
        words.push_back(Dump(style.foreground));
    if (style.background != kNoColour)
        words.push_back("/" + Dump(style.background));
    return Joined(words, "(", ")");
}

inline Text DumpShape(const RtfParagraph& paragraph)
{
    std::vector<Text> words;
    const auto add = [&words](const char* word, int number) {
        if (number != 0)
            words.push_back(word + NumberText(number));
    };
    constexpr const char* kAlignments[] = {"", "qr", "qc", "qj"};
    if (paragraph.alignment != RtfParagraph::Alignment::Left)
        words.push_back(kAlignments[static_cast<int>(paragraph.alignment)]);
    add("li", paragraph.leftIndent);
    add("fi", paragraph.firstLineIndent);
    add("ri", paragraph.rightIndent);
    add("sb", paragraph.spaceBefore);
    add("sa", paragraph.spaceAfter);
    add(paragraph.isLineSpacingMultiple ? "slm" : "sl", paragraph.lineSpacing);
    for (const int tab : paragraph.tabs)
        add("tx", tab);
    return words.empty() ? Text() : Joined(words, "<", ">");
}

inline Text Dump(const RtfText& text)
{
    Text all;
    Text look = "()";
    for (std::size_t i = 0; i < text.paragraphs.size(); ++i) {
        all += (i > 0 ? "¶" : "") + DumpShape(text.paragraphs[i]);
        for (const RtfRun& run : text.paragraphs[i].runs) {
            if (Dump(run.style) != look)
                all += look = Dump(run.style);
            all += run.text;
        }
    }
    return all;
}

} // namespace quillon::test
