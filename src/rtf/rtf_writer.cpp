#include "rtf/rtf_writer.h"

#include "helpers/hex.h"
#include "helpers/number_text.h"
#include "helpers/utf16.h"
#include "helpers/utf8.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kUsualFont = "Arial";

class RtfFileWriter {
public:
    explicit RtfFileWriter(const RtfText& text) : text_(text) {}

    std::string Write()
    {
        CollectColours();
        out_ = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1";
        WriteFonts();
        WriteColours();
        out_ += "\r\n";
        for (std::size_t i = 0; i < text_.paragraphs.size(); ++i)
            WriteParagraph(text_.paragraphs[i], i + 1 == text_.paragraphs.size());
        out_ += "}\r\n";
        return std::move(out_);
    }

private:
    void Word(std::string_view word, std::int64_t number)
    {
        out_.append("\\").append(word).append(NumberText(number));
    }

    void CollectColours()
    {
        for (const RtfParagraph& paragraph : text_.paragraphs)
            for (const RtfRun& run : paragraph.runs) {
                NoteColour(run.style.foreground);
                NoteColour(run.style.background);
            }
    }

    void NoteColour(Colour colour)
    {
        if (colour != kNoColour && std::ranges::find(colours_, colour) == colours_.end())
            colours_.push_back(colour);
    }

    // 0 is the reader's own colour.
    std::int64_t ColourNumber(Colour colour) const
    {
        return colour == kNoColour ? 0 : std::ranges::find(colours_, colour) - colours_.begin() + 1;
    }

    static const char* FamilyWord(RtfFont::Family family)
    {
        switch (family) {
        case RtfFont::Family::Roman:
            return "\\froman";
        case RtfFont::Family::Swiss:
            return "\\fswiss";
        case RtfFont::Family::Modern:
            return "\\fmodern";
        case RtfFont::Family::Unknown:
            break;
        }
        return "\\fnil";
    }

    // Font 0 is what runs without one have.
    void WriteFonts()
    {
        out_ += "{\\fonttbl{\\f0\\fswiss ";
        out_.append(kUsualFont).append(";}");
        for (std::size_t i = 0; i < text_.fonts.size(); ++i) {
            out_ += "{";
            Word("f", std::int64_t(i) + 1);
            out_.append(FamilyWord(text_.fonts[i].family)).append(" ");
            WriteText(text_.fonts[i].name);
            out_ += ";}";
        }
        out_ += "}";
    }

    void WriteColours()
    {
        if (colours_.empty())
            return;
        out_ += "{\\colortbl ;";
        for (const Colour colour : colours_) {
            Word("red", colour & 0xFF);
            Word("green", colour >> 8 & 0xFF);
            Word("blue", colour >> 16 & 0xFF);
            out_ += ";";
        }
        out_ += "}";
    }

    void WriteParagraph(const RtfParagraph& paragraph, bool isLast)
    {
        using Alignment = RtfParagraph::Alignment;
        out_ += "\\pard";
        out_ += paragraph.alignment == Alignment::Right       ? "\\qr"
                : paragraph.alignment == Alignment::Centre    ? "\\qc"
                : paragraph.alignment == Alignment::Justified ? "\\qj"
                                                              : "";
        const std::pair<const char*, int> distances[] = {{"li", paragraph.leftIndent},
                                                         {"ri", paragraph.rightIndent},
                                                         {"fi", paragraph.firstLineIndent},
                                                         {"sb", paragraph.spaceBefore},
                                                         {"sa", paragraph.spaceAfter}};
        for (const auto& [word, twips] : distances)
            if (twips != 0)
                Word(word, twips);
        if (paragraph.lineSpacing != 0) {
            Word("sl", paragraph.lineSpacing);
            Word("slmult", paragraph.isLineSpacingMultiple ? 1 : 0);
        }
        for (const int tab : paragraph.tabs)
            Word("tx", tab);
        for (const RtfRun& run : paragraph.runs)
            WriteRun(run);
        out_ += isLast ? "" : "\\par\r\n";
    }

    void WriteRun(const RtfRun& run)
    {
        const RtfStyle& style = run.style;
        out_ += "{";
        Word("f", style.font < 0 ? 0 : style.font + 1);
        Word("fs", style.halfPoints);
        out_ += style.isBold ? "\\b" : "";
        out_ += style.isItalic ? "\\i" : "";
        out_ += style.isUnderlined ? "\\ul" : "";
        out_ += style.isStruckOut ? "\\strike" : "";
        out_ += style.height == RtfStyle::Height::Superscript ? "\\super"
                : style.height == RtfStyle::Height::Subscript ? "\\sub"
                                                              : "";
        out_ += style.capitals == RtfStyle::Capitals::All     ? "\\caps"
                : style.capitals == RtfStyle::Capitals::Small ? "\\scaps"
                                                              : "";
        if (style.letterSpacing != 0)
            Word("expndtw", style.letterSpacing);
        if (style.foreground != kNoColour)
            Word("cf", ColourNumber(style.foreground));
        if (style.background != kNoColour)
            Word("highlight", ColourNumber(style.background));
        out_ += " ";
        WriteText(run.text);
        out_ += "}";
    }

    void WriteText(const Text& text)
    {
        for (std::size_t at = 0; at < text.size();)
            WriteCodePoint(NextCodePoint(text, at));
    }

    void WriteCodePoint(char32_t codePoint)
    {
        if (codePoint == U'\t')
            out_ += "\\tab ";
        else if (codePoint == U'\n')
            out_ += "\\line ";
        else if (codePoint == U'\\' || codePoint == U'{' || codePoint == U'}')
            out_.append("\\").push_back(static_cast<char>(codePoint));
        else if (codePoint >= U' ' && codePoint < 0x7F)
            out_.push_back(static_cast<char>(codePoint));
        else if (codePoint >= 0xA0 && codePoint <= 0xFF)
            WriteByte(static_cast<unsigned char>(codePoint)); // the same in the code page
        else if (codePoint >= kFirstBeyond16Bits)
            WriteSurrogates(codePoint);
        else if (codePoint >= 0x7F)
            WriteUnit(codePoint);
    }

    void WriteSurrogates(char32_t codePoint)
    {
        WriteUnit(HighSurrogate(codePoint));
        WriteUnit(LowSurrogate(codePoint));
    }

    // The number is one of 16 bits with a sign.
    void WriteUnit(char32_t unit)
    {
        Word("u", static_cast<std::int16_t>(unit));
        out_ += "?";
    }

    void WriteByte(unsigned char byte)
    {
        out_ += "\\'";
        AppendHexByte(out_, byte, kSmallHexDigits);
    }

    const RtfText& text_;
    std::vector<Colour> colours_;
    std::string out_;
};

} // namespace

std::string WriteRtf(const RtfText& text)
{
    return RtfFileWriter(text).Write();
}

} // namespace quillon
