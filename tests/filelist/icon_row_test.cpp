#include "filelist/options/icon_row.h"

#include "filelist/list_builder.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

FileListRow RowOf(const Text& name, const Text& extension)
{
    FileListRow row = MakeRow(name, "%DESTDIR\\Bin", "c:\\d\\" + LowerCase(name));
    row[Extension] = extension;
    return row;
}

FileListRow RowWithIcon(const Text& marker)
{
    FileListRow row = RowOf("Prog.exe", "exe");
    row[IconMarker] = marker;
    row[IconDesc] = "Programmet";
    row[IconPar] = "/a";
    row[IconWorkDir] = "%DESTDIR";
    row[IconFile] = "%DESTDIR\\p.ico";
    row[IconDocReader] = "Notepad";
    return row;
}

TEST(IconDialogOf, GoesByTheExtension)
{
    EXPECT_EQ(IconDialogOf(RowOf("a.exe", "exe")), IconDialog::DlgIcon);
    EXPECT_EQ(IconDialogOf(RowOf("läsmig", "")), IconDialog::DlgIcon);
    EXPECT_EQ(IconDialogOf(RowOf("A.ICO", "ICO")), IconDialog::DlgIconX);
    EXPECT_EQ(IconDialogOf(RowOf("a.ico", "ico")), IconDialog::DlgIconX);
    EXPECT_EQ(IconDialogOf(RowOf("a.b.ico", "b.ico")), IconDialog::DlgIcon);
    EXPECT_EQ(IconDialogOf(RowOf("a.ttf", "ttf")), IconDialog::None);
    EXPECT_EQ(IconDialogOf(RowOf("A.TTF", "TTF")), IconDialog::None);
    EXPECT_EQ(IconDialogOf(RowOf("a.b.ttf", "b.ttf")), IconDialog::DlgIcon);
    EXPECT_EQ(IconDialogOf(MakeRow("<Dir>")), IconDialog::None);
}

TEST(IconOf, ProposesTheDestinationAsWorkingFolder)
{
    FileListRow row = RowOf("a.exe", "exe");
    row[IconDesc] = "what a font is called";
    EXPECT_EQ(IconOf(row), (RowIcon{.workDir = "%DESTDIR\\Bin", .documentReader = "<Ingen>"}));
}

TEST(IconOf, ReadsEachMarker)
{
    const std::pair<const char*, IconPlaces> markers[] = {{"Ikon", {}},
                                                          {"IkonD", {.onDesktop = true}},
                                                          {"IkonS", {.onStartMenu = true}},
                                                          {"IkonP", {.onProgramMenu = true}}};
    for (const auto& [marker, places] : markers) {
        const RowIcon expected{.isAdded = kOn,
                               .places = places,
                               .description = "Programmet",
                               .parameters = "/a",
                               .workDir = "%DESTDIR",
                               .iconFile = "%DESTDIR\\p.ico",
                               .documentReader = "Notepad"};
        EXPECT_EQ(IconOf(RowWithIcon(marker)), expected) << marker;
        FileListRow row = RowOf("Prog.exe", "exe");
        SetIcon(row, expected);
        EXPECT_EQ(row, RowWithIcon(marker));
    }
}

TEST(SetIcon, WritesTheLastOfSeveralPlaces)
{
    FileListRow row = RowOf("a.exe", "exe");
    SetIcon(row, {.isAdded = kOn, .places = {true, true, false}});
    EXPECT_EQ(row[IconMarker], "IkonS");
    SetIcon(row, {.isAdded = kOn, .places = {true, true, true}});
    EXPECT_EQ(row[IconMarker], "IkonP");
}

TEST(SetIcon, CallsAnIconWithoutNameAfterItsFile)
{
    FileListRow row = RowOf("Prog.exe", "exe");
    SetIcon(row, {.isAdded = kOn});
    EXPECT_EQ(row[IconDesc], "Prog.exe");
}

TEST(SetIcon, ForgetsEverythingWithoutAnIcon)
{
    FileListRow row = RowWithIcon("IkonD");
    RowIcon icon = IconOf(row);
    icon.isAdded = kOff;
    SetIcon(row, icon);
    EXPECT_EQ(row, RowOf("Prog.exe", "exe"));
}

TEST(SetIconOfIconFile, LeavesExternalIconAndReaderAlone)
{
    FileListRow row = RowWithIcon("Ikon");
    SetIconOfIconFile(row, {.isAdded = kOn,
                            .places = {.onDesktop = true},
                            .description = "B",
                            .parameters = "x.exe",
                            .workDir = "W",
                            .iconFile = "other",
                            .documentReader = "other"});
    FileListRow expected = RowWithIcon("IkonD");
    expected[IconDesc] = "B";
    expected[IconPar] = "x.exe";
    expected[IconWorkDir] = "W";
    EXPECT_EQ(row, expected);
    SetIconOfIconFile(row, {});
    expected[IconMarker] = expected[IconDesc] = expected[IconPar] = expected[IconWorkDir] = "";
    EXPECT_EQ(row, expected);
}

const ExpectedBox kDrive{
    BoxKind::Inform, "Viktig Information",
    "Sökvägen du angivit i fältet 'Extern ikonfil' innehåller en enhetsbokstav. Sökvägar som anges "
    "i detta fält bör aldrig vara enhetsspecfika, även om det inte är ett krav. Men lämpligen "
    "bygger man en sökväg på variabeln %DESTDIR. Observera att sökvägen som anges här avser den på "
    "slutanvändarens hårddisk och inte på din hårddisk! Se även hjälpen för mer information."};
const ExpectedBox kJpeg{BoxKind::Warn, "Otillåten filtyp för ikon",
                        "JPEG-bilder kan inte användas som ikon-filer! Du måste ange en annan "
                        "ikon-fil i fältet 'Extern ikonfil'. Lämpliga format är '.ICO', '.BMP' "
                        "eller '.EXE'."};
const ExpectedBox kGif{BoxKind::Warn, "Otillåten filtyp för ikon",
                       "GIF-bilder kan inte användas som ikon-filer! Du måste ange en annan "
                       "ikon-fil i fältet 'Extern ikonfil'. Lämpliga format är '.ICO', '.BMP' "
                       "eller '.EXE.'"};

TEST(CheckExternalIconFile, TellsOfDrivesAndOfPicturesThatAreNoIcons)
{
    const std::pair<const char*, std::deque<ExpectedBox>> cases[] = {
        {"", {}},
        {":", {}},
        {"%DESTDIR\\a.ico", {}},
        {"%DESTDIR:\\a.bmp", {}},
        {"c:\\a.ico", {kDrive}},
        {"%DESTDIR\\a.Jpg", {kJpeg}},
        {"%DESTDIR\\a.jpeg", {kJpeg}},
        {"%DESTDIR\\a.jpgx\\b.ico", {kJpeg}},
        {"%DESTDIR\\a.gif", {kGif}},
        {"D:\\a.GIF", {kDrive, kGif}},
        {"D:\\a.JPG.gif", {kDrive, kJpeg, kGif}},
    };
    for (const auto& [path, boxes] : cases) {
        SCOPED_TRACE(path);
        ScriptedAsk ask(boxes);
        CheckExternalIconFile(path, ask);
    }
}

ExpectedBox NoExtension(Answer answer)
{
    return {BoxKind::YesNo, "Kommandoraden",
            "Filen du specificerar i kommandoraden saknar namntillägg. Är kommandoraden korrekt?",
            answer};
}

ExpectedBox NoQuotes(Answer answer)
{
    return {BoxKind::YesNo, "Kommandoraden",
            "Du har inte omgett sökvägen till din fil i kommandoraden med citattecken. Använder du "
            "parametrar i en kommandorad måste sökvägen omges med citattecken eftersom även "
            "sökvägen efter expansion kan innehålla mellanslag. För mer information om detta tryck "
            "F1 i dialogrutan. Vill du redigera kommandoraden?",
            answer};
}

TEST(CheckCommandLine, AsksAboutWhatLooksWrong)
{
    struct Case {
        const char* commandLine;
        std::deque<ExpectedBox> boxes;
        bool isFine;
    };
    const Case cases[] = {
        {"%DESTDIR\\prog.exe", {}, true},
        {"\"%DESTDIR\\prog.exe\"", {}, true},
        {"\"%DESTDIR\\prog.exe\" /a /b", {}, true},
        {"%DESTDIR\\prog.exe\"", {}, true},
        {"%DESTDIR\\Min mapp\\prog.exe", {}, true},
        {"", {NoExtension(Answer::Yes)}, true},
        {"", {NoExtension(Answer::No)}, false},
        {"%DESTDIR\\prog", {NoExtension(Answer::Yes)}, true},
        {"%DESTDIR\\prog /a", {NoExtension(Answer::No)}, false},
        {"%DESTDIR\\prog.exe /a", {NoQuotes(Answer::No)}, true},
        {"%DESTDIR\\prog.exe /a", {NoQuotes(Answer::Yes)}, false},
        {"%DESTDIR\\prog.exe \"a\"", {NoQuotes(Answer::Yes)}, false},
        {"\"%DESTDIR\\v1.0 b\\prog.exe\"", {NoQuotes(Answer::No)}, true},
    };
    for (const Case& given : cases) {
        SCOPED_TRACE(given.commandLine);
        ScriptedAsk ask(given.boxes);
        EXPECT_EQ(CheckCommandLine(given.commandLine, ask), given.isFine);
    }
}

TEST(CheckCommandLine, SaysWhichAnswerStopsWhoCannotBeAsked)
{
    ScriptedAsk ask({NoExtension(Answer::Yes), NoQuotes(Answer::No)});
    EXPECT_TRUE(CheckCommandLine("a", ask));
    EXPECT_TRUE(CheckCommandLine("a.exe b", ask));
    EXPECT_EQ(ask.stops, (std::vector{Ask::Stops::OnNo, Ask::Stops::OnYes}));
}

} // namespace
} // namespace quillon::test
