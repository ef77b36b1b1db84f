#include "diagnos/diagnosis.h"

#include "formats/digest_text.h"
#include "formats/package_manifest.h"
#include "helpers/ansi_text.h"
#include "helpers/number_text.h"
#include "helpers/product.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kRuleLength = 78;
constexpr double kBytesPerGigabyte = 1024.0 * 1024 * 1024;
constexpr std::size_t kLabelWidth = 22;
// A tool that was unpacked over a home folder must not make a report without an end.
constexpr std::size_t kMaxFiles = 2000;
// Links to folders may lead in circles.
constexpr int kMaxDepth = 8;
constexpr std::uint64_t kMaxHashedSize = 256U << 20U;

class DiagnosisWriter {
public:
    void Line(const Text& text = {}) { lines_.push_back(text); }
    void Rule() { Line(Text(kRuleLength, '-')); }
    void Heading(const Text& text)
    {
        Line();
        Line(text);
        Line(Text(CharacterCount(text), '-'));
    }
    void Value(const Text& label, const Text& value)
    {
        const std::size_t length = CharacterCount(label) + 1;
        const std::size_t blanks = length < kLabelWidth ? kLabelWidth - length : 1;
        Line(label + ":" + Text(blanks, ' ') + (value.empty() ? "-" : value));
    }

    std::vector<Text> Take() { return std::move(lines_); }

private:
    std::vector<Text> lines_;
};

Text Gigabytes(std::uint64_t bytes, char decimalSign)
{
    return FormatNumber(static_cast<double>(bytes) / kBytesPerGigabyte, "0.0", decimalSign) + " GB";
}

Text HashOrReason(const FileSystem& files, const Text& path, std::uint64_t size)
{
    if (size > kMaxHashedSize)
        return "(för stor för en kontrollsumma)";
    try {
        return DigestText(DigestOfFile(files, path));
    } catch (const RunError& error) {
        return "(Fel #" + NumberText(error.Number()) + ")";
    }
}

void WriteDisks(DiagnosisWriter& writer, const Host& host, const DiskSize& diskSize)
{
    const char sign = host.machine.DecimalSign();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const Text root = Text(1, letter) + ":\\";
        const DriveKind kind = host.files.DriveType(root);
        // Asking a floppy drive would start its motor.
        if (kind == DriveKind::NoRoot || kind == DriveKind::Unknown || kind == DriveKind::Removable)
            continue;
        try {
            const auto size = diskSize(root);
            writer.Value(root, Gigabytes(host.files.FreeSpace(root), sign) + " lediga" +
                                   (size ? " av " + Gigabytes(*size, sign) : Text()));
        } catch (const RunError&) {
            writer.Value(root, "går ej att läsa");
        }
    }
}

// Folders that the user fills hold nothing of the tool itself.
bool IsUsersFolder(const Text& name)
{
    constexpr const char* kNames[] = {"Projects", "BugReport", "TEMP", "Test", "Recovery"};
    return std::ranges::any_of(kNames,
                               [&](const char* known) { return EqualIgnoreCase(name, known); });
}

struct FileWalk {
    const FileSystem& files;
    std::size_t count = 0; // of files and folders
    int depth = 0;
};

void WriteFiles(DiagnosisWriter& writer, FileWalk& walk, const Text& folder, const Text& shown)
{
    const FileSystem& files = walk.files;
    if (walk.depth == kMaxDepth)
        return;
    ++walk.depth;
    std::vector<FolderEntry> entries;
    try {
        entries = files.List(folder);
    } catch (const RunError&) {
        writer.Line(shown + "\\ (går ej att läsa)");
        --walk.depth;
        return;
    }
    for (const FolderEntry& entry : entries) {
        if (++walk.count > kMaxFiles)
            break;
        const Text name = shown.empty() ? entry.name : JoinPath(shown, entry.name);
        const Text path = JoinPath(folder, entry.name);
        if (!entry.status.isFolder)
            writer.Line(name + "  " + NumberText(static_cast<std::int64_t>(entry.status.size)) +
                        "  " + HashOrReason(files, path, entry.status.size));
        else if (!shown.empty() || !IsUsersFolder(entry.name))
            WriteFiles(writer, walk, path, name);
    }
    --walk.depth;
}

bool IsSecret(const Text& line)
{
    const Text lower = LowerCase(line.substr(0, line.find('=')));
    return ContainsText(lower, "password") || ContainsText(lower, "secret");
}

void WriteSettings(DiagnosisWriter& writer, const Host& host)
{
    const Text file = JoinPath(host.machine.GetSettingsDir(), "QUILLON.INI");
    try {
        const Text text = AnsiText::FromBytes(ReadWholeFile(host.files, file));
        // The file may have been edited where lines end in a line feed alone.
        for (const Text& line : SplitLines(WithWindowsLineEnds(text)))
            if (!line.empty())
                writer.Line(IsSecret(line) ? line.substr(0, line.find('=') + 1) + "(utelämnat)"
                                           : line);
    } catch (const RunError&) {
        writer.Line("(inga)");
    }
}

} // namespace

std::vector<Text> DiagnosisLines(const SystemDescription& system, const CallerDescription& caller,
                                 Host& host, const DiskSize& diskSize, const Text& toolFolder)
{
    const char sign = host.machine.DecimalSign();
    const LocalTime now = host.machine.Now();
    DiagnosisWriter writer;
    writer.Rule();
    writer.Line("Diagnos - " + Text(kProductName));
    writer.Rule();
    writer.Line("Skapad " + DateText(now) + " " + TimeTextWithSeconds(now));
    writer.Line();
    writer.Value("Operativsystem", system.system); // line 6
    writer.Line();
    writer.Value("Dator", system.processor + ", " + NumberText(system.processorCount) +
                              " processorer, " + Gigabytes(system.memory, sign) +
                              " minne"); // line 8
    writer.Heading("System");
    writer.Value("Programversion", Text(kToolVersion));
    writer.Value("Ledigt minne", Gigabytes(system.freeMemory, sign));
    writer.Value("Språk", system.language);
    writer.Value("Teckenkod", system.codePage);
    writer.Value("Skrivbordsmiljö", system.desktop);
    writer.Value("Skärm", caller.screen);
    writer.Value("Qt", caller.qtVersion);
    writer.Heading("Enheter");
    WriteDisks(writer, host, diskSize);
    writer.Heading("Inställningar");
    WriteSettings(writer, host);
    writer.Heading("Filer i " + toolFolder);
    FileWalk walk{host.files};
    WriteFiles(writer, walk, toolFolder, "");
    if (walk.count > kMaxFiles)
        writer.Line("... och fler");
    return writer.Take();
}

DiagnosisCommand ReadDiagnosisCommand(const std::vector<Text>& arguments)
{
    DiagnosisCommand command;
    const std::pair<const char*, Text*> kValues[] = {{"/To=", &command.file},
                                                     {"/Screen=", &command.caller.screen},
                                                     {"/Qt=", &command.caller.qtVersion}};
    for (const Text& argument : arguments)
        for (const auto& [name, value] : kValues)
            if (argument.starts_with(name))
                *value = argument.substr(Text(name).size());
    return command;
}

} // namespace quillon
