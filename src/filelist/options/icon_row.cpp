#include "filelist/options/icon_row.h"

#include "formats/icon_marker.h"
#include "helpers/text.h"

namespace quillon {

namespace {

constexpr const char* kDriveInIconFile =
    "Sökvägen du angivit i fältet 'Extern ikonfil' innehåller en enhetsbokstav. Sökvägar som anges "
    "i detta fält bör aldrig vara enhetsspecfika, även om det inte är ett krav. Men lämpligen "
    "bygger man en sökväg på variabeln %DESTDIR. Observera att sökvägen som anges här avser den på "
    "slutanvändarens hårddisk och inte på din hårddisk! Se även hjälpen för mer information.";
constexpr const char* kNoJpeg =
    "JPEG-bilder kan inte användas som ikon-filer! Du måste ange en annan ikon-fil i fältet "
    "'Extern ikonfil'. Lämpliga format är '.ICO', '.BMP' eller '.EXE'.";
constexpr const char* kNoGif =
    "GIF-bilder kan inte användas som ikon-filer! Du måste ange en annan ikon-fil i fältet 'Extern "
    "ikonfil'. Lämpliga format är '.ICO', '.BMP' eller '.EXE.'";
constexpr const char* kNoExtension = "Filen du specificerar i kommandoraden saknar namntillägg. Är "
                                     "kommandoraden korrekt?";
constexpr const char* kNoQuotes =
    "Du har inte omgett sökvägen till din fil i kommandoraden med citattecken. Använder du "
    "parametrar i en kommandorad måste sökvägen omges med citattecken eftersom även sökvägen efter "
    "expansion kan innehålla mellanslag. För mer information om detta tryck F1 i dialogrutan. Vill "
    "du redigera kommandoraden?";

Text MarkerOf(const RowIcon& icon)
{
    if (icon.isAdded == kOff)
        return {};
    Text marker = kIconMarker;
    if (icon.places.onDesktop)
        marker = kIconMarkerDesktop;
    if (icon.places.onStartMenu)
        marker = kIconMarkerStartMenu;
    if (icon.places.onProgramMenu)
        marker = kIconMarkerPrograms;
    return marker;
}

RowIcon OrNone(RowIcon icon)
{
    return icon.isAdded == kOff ? RowIcon() : std::move(icon);
}

void NameIcon(const FileListRow& row, RowIcon& icon)
{
    if (icon.description.empty())
        icon.description = row[Filename];
}

} // namespace

IconDialog IconDialogOf(const FileListRow& row)
{
    if (!row.HasSource() || EqualIgnoreCase(row[Extension], "ttf"))
        return IconDialog::None;
    return EqualIgnoreCase(row[Extension], "ico") ? IconDialog::DlgIconX : IconDialog::DlgIcon;
}

RowIcon IconOf(const FileListRow& row)
{
    const Text& marker = row[IconMarker];
    if (marker.empty())
        return {.workDir = row[Destination], .documentReader = kDocumentReaders.front()};
    return {.isAdded = kOn,
            .places = {marker == kIconMarkerDesktop, marker == kIconMarkerStartMenu,
                       marker == kIconMarkerPrograms},
            .description = row[IconDesc],
            .parameters = row[IconPar],
            .workDir = row[IconWorkDir],
            .iconFile = row[IconFile],
            .documentReader = row[IconDocReader]};
}

void SetIcon(FileListRow& row, RowIcon icon)
{
    SetIconOfIconFile(row, icon);
    icon = OrNone(std::move(icon));
    row[IconFile] = icon.iconFile;
    row[IconDocReader] = icon.documentReader;
}

void SetIconOfIconFile(FileListRow& row, RowIcon icon)
{
    NameIcon(row, icon);
    icon = OrNone(std::move(icon));
    row[IconMarker] = MarkerOf(icon);
    row[IconDesc] = icon.description;
    row[IconPar] = icon.parameters;
    row[IconWorkDir] = icon.workDir;
}

void CheckExternalIconFile(const Text& path, Ask& ask)
{
    if (CharacterCount(path) >= 2 && FirstCharacters(path, 2).ends_with(':'))
        ask.Inform("Viktig Information", kDriveInIconFile);
    const Text upperPath = UpperCase(path);
    if (ContainsText(upperPath, ".JPG") || ContainsText(upperPath, ".JPEG"))
        ask.Warn("Otillåten filtyp för ikon", kNoJpeg);
    if (ContainsText(upperPath, ".GIF"))
        ask.Warn("Otillåten filtyp för ikon", kNoGif);
}

// Kept: the first dot is taken for that of the file's name, wherever it is, and an empty
// command line is one without a dot.
bool CheckCommandLine(const Text& commandLine, Ask& ask)
{
    const std::size_t dot = commandLine.find('.');
    if (dot == Text::npos)
        return ask.YesNo("Kommandoraden", kNoExtension, Ask::Stops::OnNo);
    const std::size_t end = commandLine.find_first_of("\" ", dot);
    if (end == Text::npos || commandLine[end] == '"')
        return true;
    return !ask.YesNo("Kommandoraden", kNoQuotes, Ask::Stops::OnYes);
}

} // namespace quillon
