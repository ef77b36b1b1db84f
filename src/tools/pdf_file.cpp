// Cairo draws, since its text goes through the same font configuration as that of the desktop.
#include "tools/pdf_file.h"

#include "platform/run_error.h"
#include "platform/saved_file.h"
#include "tools/pdf_fonts.h"

#include <cairo-pdf.h>
#include <memory>

namespace quillon {

namespace {

constexpr double kPointsPerMillimetre = 72 / 25.4;

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

/// The pages are drawn into memory: a failure of the disk must not be thrown through cairo.
cairo_status_t Append(void* bytes, const unsigned char* data, unsigned length)
{
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
}

void PaintText(cairo_t* context, PdfFonts& fonts, const PrintedText& printed)
{
    cairo_set_font_face(context, fonts.Usual(printed.bold));
    // Points, on a page that is measured in millimetres.
    cairo_set_font_size(context, printed.size / kPointsPerMillimetre);
    cairo_font_extents_t font;
    cairo_font_extents(context, &font);
    cairo_move_to(context, printed.x, printed.y + font.ascent);
    for (const FontRun& run : fonts.RunsOf(printed.text, printed.bold)) {
        cairo_set_font_face(context, run.face);
        cairo_show_text(context, run.text.c_str());
    }
}

void DrawRule(cairo_t* context, const PrintedRule& rule)
{
    cairo_set_line_width(context, kRuleWidth);
    cairo_move_to(context, rule.fromX, rule.y);
    cairo_line_to(context, rule.toX, rule.y);
    cairo_stroke(context);
}

void DrawPage(cairo_t* context, PdfFonts& fonts, const PrintedPage& page)
{
    for (const PrintedText& text : page.texts)
        PaintText(context, fonts, text);
    for (const PrintedRule& rule : page.rules)
        DrawRule(context, rule);
    cairo_show_page(context);
}

std::string PdfOf(const std::vector<PrintedPage>& pages, const Text& title,
                  const LocalTime& created)
{
    std::string bytes;
    const Surface surface(cairo_pdf_surface_create_for_stream(Append, &bytes,
                                                              kPageWidth * kPointsPerMillimetre,
                                                              kPageHeight * kPointsPerMillimetre),
                          cairo_surface_destroy);
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, title.c_str());
    const Text date = DateText(created) + "T" + TimeTextWithSeconds(created);
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, date.c_str());
    const Context context(cairo_create(surface.get()), cairo_destroy);
    cairo_scale(context.get(), kPointsPerMillimetre, kPointsPerMillimetre);
    PdfFonts fonts;
    for (const PrintedPage& page : pages)
        DrawPage(context.get(), fonts, page);
    cairo_surface_finish(surface.get());
    if (cairo_status(context.get()) != CAIRO_STATUS_SUCCESS ||
        cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        throw RunError(ErrorNumber::kDeviceIo);
    return bytes;
}

} // namespace

void WritePdf(FileSystem& files, const Text& path, const std::vector<PrintedPage>& pages,
              const Text& title, const LocalTime& created)
{
    SaveWholeFile(files, path, PdfOf(pages, title, created));
}

} // namespace quillon
