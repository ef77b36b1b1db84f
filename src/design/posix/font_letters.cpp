// A letter is looked for in the font that fontconfig takes for the wanted one, then in those that
// it lists after it. Hinting is vertical only, so that advances are the outlines' own at every
// size and lines break where they break on other systems.
#include "design/posix/font_letters.h"

#include "design/letter_join.h"
#include "helpers/closer.h"
#include "helpers/utf8.h"

#include <algorithm>
#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include <map>
#include <optional>
#include <tuple>

#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

namespace quillon {

namespace {

// A design uses a handful of fonts; a hostile text box could name thousands.
constexpr std::size_t kMaxOpenFaces = 64;
constexpr FT_Int32 kLoadFlags = FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_LIGHT;
// How much thicker an outline becomes to simulate a missing bold one, as a part of its size.
constexpr int kEmboldenPart = 24;
constexpr double kSlant = 0.2126; // of an upright outline, to simulate an italic one
constexpr FT_Pos kUnitsPerPixel = 64;
constexpr const char* kUsualFamily = "sans-serif";

using Config = std::unique_ptr<FcConfig, Closer<FcConfigDestroy>>;
using Pattern = std::unique_ptr<FcPattern, Closer<FcPatternDestroy>>;
using FontSet = std::unique_ptr<FcFontSet, Closer<FcFontSetDestroy>>;
using Library = std::unique_ptr<FT_LibraryRec_, Closer<FT_Done_FreeType>>;
using FaceHandle = std::unique_ptr<FT_FaceRec_, Closer<FT_Done_Face>>;

struct Face {
    FaceHandle handle;
    bool emboldens = false;
    bool slants = false;
};

int Pixels(FT_Pos units)
{
    return static_cast<int>((units + kUnitsPerPixel / 2) >> 6);
}

// Which font is wanted, whatever its size and the lines below and through it.
using FontKey = std::tuple<Text, bool, bool>;

FontKey KeyOf(const ScreenFont& font)
{
    return {font.name, font.isBold, font.isItalic};
}

Pattern PatternOf(FcConfig* config, const ScreenFont& font)
{
    Pattern pattern(FcPatternCreate());
    const char* family = font.name.empty() ? kUsualFamily : font.name.c_str();
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, font.isBold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT, font.isItalic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(pattern.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(config, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    return pattern;
}

int NumberIn(const FcPattern* pattern, const char* what, int ifMissing)
{
    int number = 0;
    return FcPatternGetInteger(pattern, what, 0, &number) == FcResultMatch ? number : ifMissing;
}

bool HasCharacter(const FcPattern* pattern, char32_t character)
{
    FcCharSet* characters = nullptr;
    return FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) == FcResultMatch &&
           FcCharSetHasChar(characters, character);
}

std::vector<char32_t> CodePoints(const Text& line)
{
    std::vector<char32_t> characters;
    for (std::size_t position = 0; position < line.size();)
        characters.push_back(NextCodePoint(line, position));
    return characters;
}

LetterMask MaskOf(const FT_GlyphSlotRec& glyph)
{
    const FT_Bitmap& bitmap = glyph.bitmap;
    LetterMask mask{.left = glyph.bitmap_left,
                    .top = -glyph.bitmap_top,
                    .width = static_cast<int>(bitmap.width),
                    .height = static_cast<int>(bitmap.rows)};
    for (int y = 0; y < mask.height; ++y) {
        const std::uint8_t* row = bitmap.buffer + std::ptrdiff_t{y} * bitmap.pitch;
        mask.coverage.insert(mask.coverage.end(), row, row + mask.width);
    }
    return mask;
}

} // namespace

class FontLetters::Fonts {
public:
    Fonts() : config_(FcInitLoadConfigAndFonts())
    {
        FT_Library library = nullptr;
        if (FT_Init_FreeType(&library) == 0)
            library_.reset(library);
    }

    /// The font's own face at its size; null where the machine has no font.
    Face* FaceOf(const ScreenFont& font)
    {
        Wanted& wanted = WantedOf(font);
        if (!wanted.first && wanted.match)
            wanted.first = Open(font, *wanted.match);
        return Sized(wanted.first, font);
    }

    /// The face that has the letter, or the font's own where none has.
    Face* FaceFor(const ScreenFont& font, char32_t character)
    {
        Face* first = FaceOf(font);
        if (!first || FT_Get_Char_Index(first->handle.get(), character) != 0)
            return first;
        Wanted& wanted = WantedOf(font);
        if (!wanted.others) {
            FcResult result = FcResultNoMatch;
            wanted.others.reset(FcFontSort(config_.get(), PatternOf(config_.get(), font).get(),
                                           FcTrue, nullptr, &result));
        }
        for (int i = 0; wanted.others && i < wanted.others->nfont; ++i)
            if (HasCharacter(wanted.others->fonts[i], character))
                if (Face* other = Sized(OpenOther(wanted, font, i), font))
                    return other;
        return first;
    }

private:
    struct Wanted {
        Pattern match;
        std::optional<Face> first;
        FontSet others;
        std::map<int, std::optional<Face>> opened; // of the others
    };

    Wanted& WantedOf(const ScreenFont& font)
    {
        const FontKey key = KeyOf(font);
        const auto found = wanted_.find(key);
        if (found != wanted_.end())
            return found->second;
        if (openFaces_ >= kMaxOpenFaces) {
            wanted_.clear();
            openFaces_ = 0;
        }
        Wanted& wanted = wanted_[key];
        FcResult result = FcResultNoMatch;
        wanted.match.reset(
            FcFontMatch(config_.get(), PatternOf(config_.get(), font).get(), &result));
        return wanted;
    }

    std::optional<Face>& OpenOther(Wanted& wanted, const ScreenFont& font, int number)
    {
        std::optional<Face>& face = wanted.opened[number];
        if (!face)
            face = Open(font, *wanted.others->fonts[number]);
        return face;
    }

    std::optional<Face> Open(const ScreenFont& font, const FcPattern& pattern)
    {
        FcChar8* file = nullptr;
        FT_Face face = nullptr;
        if (FcPatternGetString(&pattern, FC_FILE, 0, &file) != FcResultMatch ||
            FT_New_Face(library_.get(), reinterpret_cast<const char*>(file),
                        NumberIn(&pattern, FC_INDEX, 0), &face) != 0)
            return std::nullopt;
        ++openFaces_;
        return Face{
            FaceHandle(face),
            font.isBold && NumberIn(&pattern, FC_WEIGHT, FC_WEIGHT_REGULAR) < FC_WEIGHT_DEMIBOLD,
            font.isItalic && NumberIn(&pattern, FC_SLANT, FC_SLANT_ROMAN) == FC_SLANT_ROMAN};
    }

    static Face* Sized(std::optional<Face>& face, const ScreenFont& font)
    {
        const auto size = static_cast<FT_UInt>(std::max(font.size, 1));
        return face && FT_Set_Pixel_Sizes(face->handle.get(), 0, size) == 0 ? &*face : nullptr;
    }

    Config config_;
    Library library_;
    std::map<FontKey, Wanted> wanted_;
    std::size_t openFaces_ = 0;
};

namespace {

int AdvanceOf(const Face& face, char32_t character)
{
    FT_FaceRec* handle = face.handle.get();
    if (FT_Load_Char(handle, character, kLoadFlags) != 0)
        return 0;
    // In 65536ths of a pixel.
    const FT_Pos width = handle->glyph->linearHoriAdvance >> 10;
    const FT_Pos bolder = face.emboldens && width > 0
                              ? handle->size->metrics.y_ppem * kUnitsPerPixel / kEmboldenPart
                              : 0;
    return Pixels(width + bolder);
}

LetterMask LetterOf(const Face& face, char32_t character)
{
    FT_FaceRec* handle = face.handle.get();
    if (FT_Load_Char(handle, character, kLoadFlags) != 0)
        return {};
    FT_GlyphSlot glyph = handle->glyph;
    if (glyph->format == FT_GLYPH_FORMAT_OUTLINE) {
        if (face.emboldens)
            FT_Outline_Embolden(&glyph->outline,
                                handle->size->metrics.y_ppem * kUnitsPerPixel / kEmboldenPart);
        const FT_Matrix slant{0x10000, static_cast<FT_Fixed>(kSlant * 0x10000), 0, 0x10000};
        if (face.slants)
            FT_Outline_Transform(&glyph->outline, &slant);
    }
    if (FT_Render_Glyph(glyph, FT_RENDER_MODE_NORMAL) != 0 ||
        glyph->bitmap.pixel_mode != FT_PIXEL_MODE_GRAY)
        return {};
    return MaskOf(*glyph);
}

} // namespace

FontLetters::FontLetters() : fonts_(std::make_unique<Fonts>()) {}

FontLetters::~FontLetters() = default;

bool FontLetters::HasFonts()
{
    return fonts_->FaceOf({.name = kUsualFamily, .size = 1}) != nullptr;
}

FontHeight FontLetters::Height(const ScreenFont& font)
{
    const Face* const face = fonts_->FaceOf(font);
    if (!face)
        return {};
    const FT_FaceRec& handle = *face->handle;
    FT_Pos ascent = handle.ascender;
    FT_Pos descent = -handle.descender;
    // What Windows reckons with, so that lines are as high in the setup.
    const auto* const table =
        static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(face->handle.get(), FT_SFNT_OS2));
    if (table && table->usWinAscent + table->usWinDescent > 0) {
        ascent = table->usWinAscent;
        descent = static_cast<FT_Short>(table->usWinDescent);
    }
    const FT_Fixed scale = handle.size->metrics.y_scale;
    return {Pixels(FT_MulFix(ascent, scale)), Pixels(FT_MulFix(descent, scale))};
}

std::vector<int> FontLetters::Advances(const ScreenFont& font, const Text& line)
{
    std::vector<int> advances;
    for (const char32_t character : CodePoints(line)) {
        const Face* const face = fonts_->FaceFor(font, character);
        advances.push_back(face ? AdvanceOf(*face, character) : 0);
    }
    return advances;
}

LetterMask FontLetters::Draw(const ScreenFont& font, const Text& line,
                             const std::vector<int>& advances)
{
    std::vector<LetterMask> letters;
    for (const char32_t character : CodePoints(line)) {
        const Face* const face = fonts_->FaceFor(font, character);
        letters.push_back(face ? LetterOf(*face, character) : LetterMask{});
    }
    return JoinLetters(font, letters, advances);
}

} // namespace quillon
