#include "actions/agreement_document.h"

#include "actions/kept_path.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/dialog_keys.h"

namespace quillon {

namespace {

using section::DialogBoxData;

constexpr PathKind kDocument{"RTF-filen", "Lägg filen i en katalog närmare roten."};

} // namespace

std::optional<Text> ChooseRtfFile(Text& folder, Ask& ask)
{
    const auto path = ask.OpenFile({.title = "Välj RTF-fil",
                                    .folder = folder,
                                    .fileName = "*.rtf",
                                    .filter = "RTF-filer (*.rtf)|*.rtf",
                                    .defaultExtension = ".rtf"});
    if (!path || path->empty())
        return std::nullopt;
    folder = ExtractDirectory(*path);
    const int longest = LongestText(section::kDialogBoxData, &DialogBoxData::LicenseFilenameRtf);
    return CanKeepPath(*path, longest, kDocument, ask) ? path : std::nullopt;
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
