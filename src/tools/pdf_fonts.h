// The fonts of a PDF: Arial, or the face that this machine has for it, and for letters that it
// lacks whatever face has them.
#pragma once

#include "helpers/text.h"

#include <map>
#include <memory>
#include <vector>

using cairo_font_face_t = struct _cairo_font_face;
using FcCharSet = struct _FcCharSet;
using FcPattern = struct _FcPattern;

namespace quillon {

/// A part of a text that one face can show.
struct FontRun {
    cairo_font_face_t* face;
    Text text;
};

/// The faces live as long as this.
class PdfFonts {
public:
    PdfFonts();
    ~PdfFonts();
    PdfFonts(const PdfFonts&) = delete;
    PdfFonts& operator=(const PdfFonts&) = delete;

    cairo_font_face_t* Usual(bool bold);
    /// The text from left to right. A letter that no face has is left to the usual one, which shows
    /// a box.
    std::vector<FontRun> RunsOf(const Text& text, bool bold);

private:
    struct Face;

    const Face& UsualFace(bool bold);
    cairo_font_face_t* FaceWith(char32_t letter, bool bold);

    std::map<bool, std::unique_ptr<Face>> usual_;
    std::map<std::pair<bool, char32_t>, std::unique_ptr<Face>> others_; // by the first letter
};

} // namespace quillon
