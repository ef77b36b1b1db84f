#include "tools/pdf_fonts.h"

#include "helpers/closer.h"
#include "helpers/utf8.h"
#include "tools/list_pages.h"

#include <cairo-ft.h>
#include <fontconfig/fontconfig.h>

namespace quillon {

namespace {

using Pattern = std::unique_ptr<FcPattern, Closer<FcPatternDestroy>>;
using Letters = std::unique_ptr<FcCharSet, Closer<FcCharSetDestroy>>;
using FontFace = std::unique_ptr<cairo_font_face_t, Closer<cairo_font_face_destroy>>;

/// The best match for the printed font; one that has the letter comes before one of its name.
Pattern MatchFor(bool bold, char32_t letter)
{
    const Pattern wanted(FcPatternCreate());
    FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(kPrintFont));
    FcPatternAddInteger(wanted.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_NORMAL);
    // A PDF takes outlines in.
    FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
    if (letter != 0) {
        const Letters letters(FcCharSetCreate());
        FcCharSetAddChar(letters.get(), letter);
        FcPatternAddCharSet(wanted.get(), FC_CHARSET, letters.get());
    }
    FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
    FcDefaultSubstitute(wanted.get());
    FcResult result = FcResultNoMatch;
    return Pattern(FcFontMatch(nullptr, wanted.get(), &result));
}

} // namespace

struct PdfFonts::Face {
    // A machine without any fonts has no match; cairo takes what it has then.
    Face(bool bold, char32_t letter)
        : match(MatchFor(bold, letter)),
          face(match ? cairo_ft_font_face_create_for_pattern(match.get())
                     : cairo_toy_font_face_create(kPrintFont, CAIRO_FONT_SLANT_NORMAL,
                                                  bold ? CAIRO_FONT_WEIGHT_BOLD
                                                       : CAIRO_FONT_WEIGHT_NORMAL))
    {
    }

    bool Has(char32_t letter) const
    {
        FcCharSet* letters = nullptr;
        return match &&
               FcPatternGetCharSet(match.get(), FC_CHARSET, 0, &letters) == FcResultMatch &&
               FcCharSetHasChar(letters, letter) == FcTrue;
    }

    Pattern match;
    FontFace face;
};

PdfFonts::PdfFonts() = default;
PdfFonts::~PdfFonts() = default;

const PdfFonts::Face& PdfFonts::UsualFace(bool bold)
{
    std::unique_ptr<Face>& face = usual_[bold];
    if (!face)
        face = std::make_unique<Face>(bold, char32_t{});
    return *face;
}

cairo_font_face_t* PdfFonts::Usual(bool bold)
{
    return UsualFace(bold).face.get();
}

cairo_font_face_t* PdfFonts::FaceWith(char32_t letter, bool bold)
{
    if (UsualFace(bold).Has(letter))
        return Usual(bold);
    for (const auto& [first, face] : others_)
        if (first.first == bold && face->Has(letter))
            return face->face.get();
    std::unique_ptr<Face>& face = others_[{bold, letter}];
    if (!face)
        face = std::make_unique<Face>(bold, letter);
    return face->Has(letter) ? face->face.get() : Usual(bold);
}

std::vector<FontRun> PdfFonts::RunsOf(const Text& text, bool bold)
{
    std::vector<FontRun> runs;
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t begin = position;
        cairo_font_face_t* const face = FaceWith(NextCodePoint(text, position), bold);
        if (runs.empty() || runs.back().face != face)
            runs.push_back({face, {}});
        runs.back().text.append(text, begin, position - begin);
    }
    return runs;
}

} // namespace quillon
