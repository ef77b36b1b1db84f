#include "actions/agreement_document.h"

#include "actions/kept_path.h"
#include "platform/run_error.h"
#include "project/text_limits.h"

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr PathKind kDocument{"RTF-filen", "Lägg filen i en katalog närmare roten."};

} // namespace

std::optional<Text> ChooseRtfFile(Text& folder, Ask& ask)
{
    return ChooseKeptPath({.title = "Välj RTF-fil",
                           .fileName = "*.rtf",
                           .filter = "RTF-filer (*.rtf)|*.rtf",
                           .defaultExtension = ".rtf"},
                          folder, MaxTextLength(&DialogBoxData::LicenseFilenameRtf), kDocument,
                          ask);
}

void OpenRtfFile(const Text& path, Machine& machine, Ask& ask)
{
    try {
        machine.OpenDocument(path);
    } catch (const RunError&) {
        ask.Critical("Kan ej öppna", "Kan inte öppna RTF-filen!");
    }
}

} // namespace quillon
