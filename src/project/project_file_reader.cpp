// Reads the project file. The settings sections come back by the tables that wrote them; what a
// table can't say of reading is in the functions called AfterReading.
#include "helpers/line_breaks.h"
#include "helpers/product.h"
#include "ini/profile_reader.h"
#include "platform/run_error.h"
#include "project/file_rows.h"
#include "project/list_sections.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "project/section_walk.h"

namespace quillon {

namespace {

constexpr int kMaxHeaderSize = 200;

// Files of the tool's third and fourth generation lack what came later. Every other file, from the
// future or without a version, is read as one of today.
enum class Generation { Third, Fourth, Current };

Generation GenerationOf(const Text& version)
{
    if (version.starts_with('3'))
        return Generation::Third;
    return version.starts_with('4') ? Generation::Fourth : Generation::Current;
}

struct ReadRun {
    Project& project;
    Host& host;
    Ask& ask;
    const Text& toolFolder;
    ProfileReader reader = {};
    Generation generation = Generation::Current;
};

Text TextFromFile(const ReadRun& run, Stored form, std::string_view key, int limit)
{
    const ProfileReader& reader = run.reader;
    switch (form) {
    case Stored::AsDlgBitmap: {
        const Text path = reader.ReadIniString(key, limit);
        return EqualIgnoreCase(path, kDefaultDlgBitmapName) ? DefaultDlgBitmap(run.toolFolder)
                                                            : path;
    }
    case Stored::AsLines:
        return DecodeLineBreaks(reader.ReadIniString(key, limit));
    case Stored::AsLongLines:
        return DecodeLineBreaks(reader.ReadIniLongString(key, limit));
    case Stored::AsFlagText:
        return NumberText(reader.ReadIniBoolean(key));
    case Stored::AsNumberText:
        return NumberText(reader.ReadIniInteger(key));
    default:
        return reader.ReadIniString(key, limit);
    }
}

void IntegerFromFile(const ProfileReader& reader, Stored form, std::string_view key, Integer& field)
{
    switch (form) {
    case Stored::AsFlag:
    case Stored::AsFlagWhenOn:
        field = reader.ReadIniBoolean(key);
        break;
    case Stored::AsFlagOnIfMissing:
        field = reader.ReadIniBoolean1(key);
        break;
    case Stored::AsNumberOneIfMissing:
        field = reader.ReadIniInteger1(key);
        break;
    case Stored::AsPixelsX:
    case Stored::AsPixelsY:
        break;
    default:
        field = reader.ReadIniInteger(key);
    }
}

// What may have to come back of what stood in a record before it was read.
template <class Record>
struct Former {
    explicit Former(const Record&) {}
};

template <>
struct Former<section::DialogBoxes> {
    explicit Former(const section::DialogBoxes& dialogs) : DlgBitmap(dialogs.DlgBitmap) {}
    Text DlgBitmap;
};

template <class Record>
void AfterReading(Record&, const Former<Record>&, ReadRun&)
{
}

void AfterReading(section::InstallOptions& options, const Former<section::InstallOptions>&,
                  ReadRun&)
{
    if (options.RestartWindows != kOff)
        options.NeverRestartWindows = kOff;
}

void AfterReading(section::TargetOS& systems, const Former<section::TargetOS>&, ReadRun& run)
{
    if (run.generation == Generation::Third)
        systems = {};
    if (run.generation == Generation::Fourth)
        systems.TargetOS_WinME = systems.TargetOS_WinXP = kOn;
}

void AfterReading(section::InstallOptionsInternet& options,
                  const Former<section::InstallOptionsInternet>&, ReadRun& run)
{
    if (run.generation == Generation::Third)
        options = {.SelfExtractFilename = "Self.exe", .ExpandEXEInWinTempMap = kOff};
}

// A disk that can't answer has no such picture. This failure alone does not end the reading.
bool IsPictureThere(const FileSystem& files, const Text& path)
{
    try {
        return files.FileExists(path);
    } catch (const RunError&) {
        return false;
    }
}

void AfterReading(section::DialogBoxes& dialogs, const Former<section::DialogBoxes>& before,
                  ReadRun& run)
{
    if (dialogs.DlgBitmap.empty()) {
        dialogs.DlgBitmap = DefaultDlgBitmap(run.toolFolder);
    } else if (!IsPictureThere(run.host.files, dialogs.DlgBitmap)) {
        dialogs.DlgBitmap = before.DlgBitmap;
        run.ask.Critical("Fel inträffade",
                         "Hittar inte angiven bild för dialogrutor! Tryck OK för att fortsätta "
                         "inläsning av övrig data från projektfilen.");
    }
}

void AfterReading(section::DesTitle& title, const Former<section::DesTitle>&, ReadRun&)
{
    if (title.TitleCharInterSpace.empty())
        title.TitleCharInterSpace = "0";
}

void AfterReading(section::DesTitleUnderline& underline, const Former<section::DesTitleUnderline>&,
                  ReadRun&)
{
    constexpr Integer kThinnest = 3;
    if (underline.UnderlineHeight < kThinnest)
        underline.UnderlineHeight = kThinnest;
}

void AfterReading(section::DesLogotype& logotype, const Former<section::DesLogotype>&, ReadRun&)
{
    const section::DesLogotype fresh;
    if (logotype.LogotypeWMFWidth < 1)
        logotype.LogotypeWMFWidth = fresh.LogotypeWMFWidth;
    if (logotype.LogotypeWMFHeight < 1)
        logotype.LogotypeWMFHeight = fresh.LogotypeWMFHeight;
}

class SectionReader {
public:
    explicit SectionReader(ReadRun& run) : run_(run) {}

    void Begin(const char* name) { run_.reader.SetIniSection(name); }
    void End() {}

    template <class Record, std::size_t count>
    void Section(const char* name, const ProjectKey<Record> (&keys)[count], Record& record)
    {
        const Former<Record> before(record);
        Begin(name);
        Keys(keys, record);
        AfterReading(record, before, run_);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], Record& record)
    {
        for (const auto& key : keys)
            ReadKey(key, key.name, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], Record& record, int number)
    {
        for (const auto& key : keys)
            ReadKey(key, key.name + NumberText(number), record);
    }

    void NumberedText(const char* key, int number, Text& text, int limit)
    {
        text = run_.reader.ReadIniString(key + NumberText(number), limit);
    }

private:
    template <class Record>
    void ReadKey(const ProjectKey<Record>& key, std::string_view name, Record& record)
    {
        if (const auto text = std::get_if<Text Record::*>(&key.field))
            record.** text = TextFromFile(run_, key.form, name, key.limit);
        else if (const auto number = std::get_if<Integer Record::*>(&key.field))
            IntegerFromFile(run_.reader, key.form, name, record.**number);
        else
            record.*std::get<Long Record::*>(key.field) = run_.reader.ReadIniLong(name);
    }

    ReadRun& run_;
};

bool IsListUsed(ReadRun& run, const ListSection& list)
{
    if (!list.flag)
        return true;
    run.reader.SetIniSection(list.flagSection);
    return run.reader.ReadIniBoolean(list.flag) != kOff;
}

void TellDamage(Ask& ask)
{
    ask.ShowBusyPointer(false);
    ask.Critical("Fel", "Projektfilen är skadad eller felaktig!");
}

ReadEnd ReadList(ReadRun& run, const ListSection& list)
{
    Text& text = run.project.Lists.*list.text;
    if (!IsListUsed(run, list)) {
        if (list.withoutFlag == ListSection::WithoutFlag::Empty)
            text.clear();
        return ReadEnd::Whole;
    }
    ListLines lines(run.reader.Bytes());
    if (!lines.FindSection(list.name))
        return ReadEnd::Stopped;
    if (ReadTextList(lines, list, text))
        return ReadEnd::Whole;
    // Kept: only the first list reports that the file ends too early.
    if (&list != kListSections)
        return ReadEnd::Stopped;
    TellDamage(run.ask);
    return ReadEnd::Damaged;
}

void ReadComponents(ReadRun& run, SectionReader& sections)
{
    sections.Begin("FileComponents");
    if (run.reader.ReadIniBoolean("UseComponents") != kOff)
        VisitComponents(sections, run.project);
    else
        run.project.FileComponents = {};
}

bool BeginsAsNumber(const Text& text)
{
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    return first < text.size() && text[first] >= '0' && text[first] <= '9';
}

// The list may go on after the number of rows that it announces.
bool HasFurtherRow(ListLines& lines)
{
    for (auto line = lines.Next(); line && *line != kEndOfList; line = lines.Next())
        if (line->find('=') != std::string_view::npos)
            return true;
    return false;
}

ReadEnd ReadFileList(ReadRun& run)
{
    run.reader.SetIniSection("FileListInfo");
    const Integer files = run.reader.ReadIniInteger("Files");
    const bool isNumber = !run.reader.HasKey("Files") ||
                          BeginsAsNumber(run.reader.ReadIniString("Files", kMaxHeaderSize));
    ListLines lines(run.reader.Bytes());
    if (!lines.FindSection("FileList"))
        return ReadEnd::Stopped;

    const char decimalSign = run.host.machine.DecimalSign();
    for (Integer number = 0; number < files; ++number) {
        const auto line = lines.Next();
        if (!line)
            return ReadEnd::Stopped;
        if (*line == kEndOfList)
            return isNumber ? ReadEnd::Whole : ReadEnd::RowsLeft;
        if (!AddRowFromLine(*line, decimalSign, run.project.Files.rows))
            return ReadEnd::RowsCut;
    }
    return isNumber && !HasFurtherRow(lines) ? ReadEnd::Whole : ReadEnd::RowsLeft;
}

bool ReadHeader(ReadRun& run)
{
    run.reader.SetIniSection("ID");
    if (run.reader.ReadIniString("App", kMaxHeaderSize) != kTypeMark) {
        run.ask.Warn("Fel filformat", "Kan ej öppna! Filen är ej en Quillon 2004 projektfil.");
        return false;
    }
    run.generation = GenerationOf(run.reader.ReadIniString("Ver", kMaxHeaderSize));
    return true;
}

ReadEnd ReadEverything(ReadRun& run, const Text& path)
{
    run.reader.SetIniFile(run.host.files, path);
    if (!ReadHeader(run))
        return ReadEnd::Refused;

    SectionReader sections(run);
    VisitSettingsSections(sections, run.project);
    for (const ListSection& list : kListSections)
        if (const ReadEnd end = ReadList(run, list); end != ReadEnd::Whole)
            return end;
    ReadComponents(run, sections);
    return ReadFileList(run);
}

} // namespace

ReadEnd ReadProjectFile(Project& project, const Text& path, Host& host, Ask& ask,
                        const Text& toolFolder)
{
    ReadRun run{project, host, ask, toolFolder};
    try {
        return ReadEverything(run, path);
    } catch (const RunError&) {
        ask.Beep();
        ask.Beep();
        return ReadEnd::Failed;
    }
}

} // namespace quillon
