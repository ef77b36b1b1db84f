#include "runtime/ini_files/startup_files.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"
#include "ini/ini_text.h"
#include "platform/whole_file.h"
#include "runtime/ini_files/ini_changes.h"

#include <algorithm>

namespace quillon {

namespace {

// The files are read before Windows is there, by the characters of MS-DOS: code page 850 has all
// letters of Western Europe. From no-break space on, in the order of Windows-1252.
constexpr unsigned char kFirstOther = 0xA0;
constexpr unsigned char kOfCodePage850[] = {
    0xFF, 0xAD, 0xBD, 0x9C, 0xCF, 0xBE, 0xDD, 0xF5, 0xF9, 0xB8, 0xA6, 0xAE, 0xAA, 0xF0, 0xA9, 0xEE,
    0xF8, 0xF1, 0xFD, 0xFC, 0xEF, 0xE6, 0xF4, 0xFA, 0xF7, 0xFB, 0xA7, 0xAF, 0xAC, 0xAB, 0xF3, 0xA8,
    0xB7, 0xB5, 0xB6, 0xC7, 0x8E, 0x8F, 0x92, 0x80, 0xD4, 0x90, 0xD2, 0xD3, 0xDE, 0xD6, 0xD7, 0xD8,
    0xD1, 0xA5, 0xE3, 0xE0, 0xE2, 0xE5, 0x99, 0x9E, 0x9D, 0xEB, 0xE9, 0xEA, 0x9A, 0xED, 0xE8, 0xE1,
    0x85, 0xA0, 0x83, 0xC6, 0x84, 0x86, 0x91, 0x87, 0x8A, 0x82, 0x88, 0x89, 0x8D, 0xA1, 0x8C, 0x8B,
    0xD0, 0xA4, 0x95, 0xA2, 0x93, 0xE4, 0x94, 0xF6, 0x9B, 0x97, 0xA3, 0x96, 0x81, 0xEC, 0xE7, 0x98,
};
static_assert(sizeof kOfCodePage850 == 0x100 - kFirstOther);

constexpr const char* kAutoexec = "AUTOEXEC.BAT";
constexpr const char* kConfig = "CONFIG.SYS";

std::string DosBytes(const Text& line)
{
    std::string bytes = AnsiText::ToBytes(line);
    for (char& c : bytes)
        if (const auto byte = static_cast<unsigned char>(c); byte >= kFirstOther)
            c = static_cast<char>(kOfCodePage850[byte - kFirstOther]);
        else if (byte >= 0x80)
            c = '?';
    return bytes;
}

// Where the line begins; `npos` where there is none, whatever its case. The last one counts: ours
// was added at the end.
std::size_t FindLine(std::string_view bytes, std::string_view line)
{
    std::size_t found = std::string_view::npos;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', at), bytes.size());
        std::string_view one = bytes.substr(at, end - at);
        if (one.ends_with('\r'))
            one.remove_suffix(1);
        if (EqualIgnoreCase(AnsiText::FromBytes(one), AnsiText::FromBytes(line)))
            found = at;
        at = end + 1;
    }
    return found;
}

// Where the setup runs from another disk than C:, Windows still starts from its boot disk.
Text BootFolder(const Target& target)
{
    const auto folder = target.ReadValue(
        {RegistryRoot::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Setup"},
        "BootDir");
    const Text path = folder ? TextOf(*folder).value_or("") : Text();
    return IsDriveRoot(path) ? path : "C:\\";
}

class StartupFile {
public:
    StartupFile(const StartupWork& work, const char* name)
        : work_(work), path_(JoinPath(BootFolder(work.target), name))
    {
    }

    void Add(const Text& lines);

private:
    void AddLine(std::string& bytes, const Text& line);

    const StartupWork& work_;
    Text path_;
    std::vector<JournalRecord> records_;
};

void StartupFile::Add(const Text& lines)
{
    const bool existed = work_.files.FileExists(path_);
    std::string bytes = existed ? ReadWholeFile(work_.files, path_) : std::string();
    const std::string lastLine = IniText(bytes).OpenLastLine();
    for (const Text& line : SplitLines(lines))
        if (!TrimBlanks(line).empty())
            AddLine(bytes, work_.variables.Expand(line));
    if (records_.empty())
        return;
    if (!existed)
        work_.journal.Add(record::IniFile{path_});
    // The first record is the last that is taken back; the lines after it have been removed by
    // then.
    if (!lastLine.empty())
        work_.journal.Add(record::IniOpenEnd{path_, AnsiText::FromBytes(lastLine)});
    for (JournalRecord& record : records_)
        work_.journal.Add(std::move(record));
    const Text staged = work_.transaction.StagingPath(path_);
    WriteFlushedFile(work_.files, staged, bytes);
    work_.transaction.PutFile({.staged = staged,
                               .path = path_,
                               .replaces = existed,
                               .recorded = InstallTransaction::Recorded::No,
                               .keepsRights = true});
}

void StartupFile::AddLine(std::string& bytes, const Text& line)
{
    const std::string added = DosBytes(line);
    if (FindLine(bytes, added) != std::string::npos) {
        work_.log.Skipped(path_ + ": " + line, {Message::SkipLineThere});
        return;
    }
    if (!bytes.empty() && !bytes.ends_with('\n'))
        bytes += kLineBreak;
    bytes += added + std::string(kLineBreak);
    records_.emplace_back(record::StartupLine{path_, AnsiText::FromBytes(added)});
    work_.log.Line(Message::LogAddsLine, path_, line);
}

} // namespace

bool ReadsStartupFiles(const Target& target)
{
    return target.System() <= SystemKind::WinME;
}

std::vector<PlannedStartupLine> PlanStartupLines(const FileSystem& files, const Target& target,
                                                 const SetupVariables& variables,
                                                 const section::Lists& lists)
{
    std::vector<PlannedStartupLine> planned;
    const auto plan = [&](const char* name, const Text& lines) {
        const Text path = JoinPath(BootFolder(target), name);
        const std::string bytes = files.FileExists(path) ? ReadWholeFile(files, path) : "";
        for (const Text& line : SplitLines(lines))
            if (const Text added = variables.Expand(line);
                !TrimBlanks(line).empty() && FindLine(bytes, DosBytes(added)) == std::string::npos)
                planned.push_back({path, added});
    };
    if (!ReadsStartupFiles(target))
        return planned;
    plan(kAutoexec, lists.AutoexecBat);
    plan(kConfig, lists.ConfigSys);
    return planned;
}

void WriteStartupFiles(const StartupWork& work, const section::Lists& lists)
{
    const auto write = [&](const char* name, const Text& lines) {
        if (lines.empty())
            return;
        if (!ReadsStartupFiles(work.target))
            work.log.Skipped(work.texts(Message::PartStartupLines, name),
                             {Message::SkipNoStartupFiles});
        else
            StartupFile(work, name).Add(lines);
    };
    write(kAutoexec, lists.AutoexecBat);
    write(kConfig, lists.ConfigSys);
}

void UndoStartupLine(const FileRewriting& rewriting, const record::StartupLine& line)
{
    const FileSystem& files = rewriting.files;
    if (!files.FileExists(line.path))
        return;
    std::string bytes = ReadWholeFile(files, line.path);
    const std::size_t at = FindLine(bytes, AnsiText::ToBytes(line.line));
    if (at == std::string::npos)
        return;
    const std::size_t end = bytes.find('\n', at);
    bytes.erase(at, end == std::string::npos ? end : end + 1 - at);
    RewriteFile(rewriting, line.path, bytes);
}

} // namespace quillon
