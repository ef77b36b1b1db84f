#include "importers/program_folder.h"

#include "filelist/adding/file_version.h"
#include "helpers/windows_path.h"
#include "importers/program_on_disk.h"
#include "platform/entered_folders.h"
#include "platform/failure_text.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>
#include <map>
#include <unordered_set>

namespace quillon {

namespace {

// The most rows that a project can hold; a folder with more files is not that of one program.
constexpr std::size_t kMaxFiles = kMaxRows;
constexpr std::size_t kMaxDepth = 64;
constexpr std::uint64_t kMaxRuntimeConfigSize = std::uint64_t{1} << 20;

constexpr std::array<std::string_view, 7> kProgramExtensions = {".exe", ".dll", ".ocx", ".node",
                                                                ".pyd", ".cpl", ".drv"};

// Symbols, link libraries and intermediate files. No program opens them.
constexpr std::array<std::string_view, 10> kBuildExtensions = {
    ".pdb", ".ilk", ".exp", ".lib", ".obj", ".iobj", ".ipdb", ".o", ".a", ".def"};

// Programs that are beside many others and start none of them.
constexpr std::array<std::string_view, 9> kHelpers = {
    "unins",   "crashpad_handler", "createdump", "qtwebengineprocess", "vc_redist", "vcredist",
    "elevate", "squirrel",         "update"};

bool EndsInOneOf(const Text& lowerName, std::span<const std::string_view> endings)
{
    return std::ranges::any_of(
        endings, [&](std::string_view ending) { return lowerName.ends_with(ending); });
}

bool BeginsWithOneOf(const Text& lowerName, std::span<const std::string_view> beginnings)
{
    return std::ranges::any_of(
        beginnings, [&](std::string_view beginning) { return lowerName.starts_with(beginning); });
}

Text Joined(const Text& folder, const Text& name)
{
    return folder.empty() ? name : folder + "\\" + name;
}

class FolderReader {
public:
    FolderReader(const FileSystem& files, ProgramFolder& read,
                 const std::function<bool(const Text&)>& mayGoOn)
        : files_(files), read_(read), mayGoOn_(mayGoOn)
    {
    }

    void Read() { Walk("", files_.Status(read_.folder).identity); }

private:
    void Walk(const Text& folder, std::uint64_t identity)
    {
        if (entered_.Has(identity) || entered_.Depth() > kMaxDepth)
            return;
        entered_.Enter(identity);
        const std::vector<FolderEntry> entries =
            files_.List(folder.empty() ? read_.folder : JoinPath(read_.folder, folder));
        for (const FolderEntry& entry : entries)
            if (entry.status.isFolder && isGoingOn_)
                Walk(Joined(folder, entry.name), entry.status.identity);
        for (const FolderEntry& entry : entries)
            if (!entry.status.isFolder && isGoingOn_)
                Take({.folder = folder, .entry = entry, .info = {}});
        entered_.Leave();
    }

    void Take(FolderFile file)
    {
        if (read_.files.size() == kMaxFiles) {
            read_.damage = "Katalogen har fler filer än en fillista rymmer (32767).";
            isGoingOn_ = false;
            return;
        }
        isGoingOn_ = mayGoOn_(file.RelativePath());
        if (!isGoingOn_) {
            read_.damage = "Läsningen av katalogen stoppades.";
            return;
        }
        if (EndsInOneOf(LowerCase(file.entry.name), kProgramExtensions))
            file.info = InfoOfProgram(files_, JoinPath(read_.folder, file.RelativePath()));
        read_.files.push_back(std::move(file));
    }

    const FileSystem& files_;
    ProgramFolder& read_;
    const std::function<bool(const Text&)>& mayGoOn_;
    EnteredFolders entered_;
    bool isGoingOn_ = true;
};

/// How likely a program is the one that users start; the larger the likelier.
struct Likelihood {
    bool isNoHelper;
    bool isAtTheTop;
    bool hasFilesOfItsName; // a run-time configuration, or the folder itself
    std::uint64_t size;

    auto operator<=>(const Likelihood&) const = default;
};

Likelihood LikelihoodOf(const ProgramFolder& folder, const FolderFile& file,
                        const std::unordered_set<Text>& lowerPaths)
{
    const Text stem = LowerCase(file.RelativePath().substr(0, file.RelativePath().size() - 4));
    return {.isNoHelper = !BeginsWithOneOf(LowerCase(file.entry.name), kHelpers),
            .isAtTheTop = file.folder.empty(),
            .hasFilesOfItsName = lowerPaths.contains(stem + ".runtimeconfig.json") ||
                                 lowerPaths.contains(stem + ".exe.config") ||
                                 EqualIgnoreCase(stem, ExtractFilename(folder.folder)),
            .size = file.entry.status.size};
}

void FindPrograms(ProgramFolder& folder)
{
    std::unordered_set<Text> lowerPaths;
    for (const FolderFile& file : folder.files)
        lowerPaths.insert(LowerCase(file.RelativePath()));
    std::vector<std::pair<Likelihood, std::size_t>> found;
    for (std::size_t i = 0; i < folder.files.size(); ++i) {
        const FolderFile& file = folder.files[i];
        if (file.info && !file.info->isLibrary && LowerCase(file.entry.name).ends_with(".exe"))
            found.emplace_back(LikelihoodOf(folder, file, lowerPaths), i);
    }
    std::ranges::stable_sort(
        found, [](const auto& left, const auto& right) { return left.first > right.first; });
    for (const auto& [likelihood, place] : found)
        folder.programs.push_back(place);
}

class MissingFinder {
public:
    MissingFinder(const ProgramFolder& folder, const ImportData& data) : data_(data)
    {
        for (const FolderFile& file : folder.files)
            here_.insert(LowerCase(file.entry.name));
    }

    void Look(const FolderFile& file)
    {
        for (const Text& library : file.info->imports)
            Take(library, file, false);
        for (const Text& library : file.info->delayedImports)
            Take(library, file, true);
    }

    std::vector<MissingLibrary> Missing() const
    {
        std::vector<MissingLibrary> missing;
        for (const auto& [name, library] : missing_)
            missing.push_back(library);
        return missing;
    }

private:
    void Take(const Text& library, const FolderFile& file, bool isDelayed)
    {
        const Text name = LowerCase(library);
        if (here_.contains(name) || data_.IsPartOfWindows(name))
            return;
        MissingLibrary& missing =
            missing_.try_emplace(name, MissingLibrary{.name = library, .isDelayed = true})
                .first->second;
        missing.neededBy.push_back(file.RelativePath());
        missing.isDelayed = missing.isDelayed && isDelayed;
    }

    const ImportData& data_;
    std::unordered_set<Text> here_;
    std::map<Text, MissingLibrary> missing_; // by name in lower case
};

// A build of .NET lays libraries for each machine below this folder and takes the right one.
bool IsForItsMachine(const FolderFile& file)
{
    return LowerCase(file.folder + "\\").starts_with("runtimes\\");
}

// Programs for any machine take the one of several libraries that is meant for where they run.
bool LiesInFolderOfAMachine(const FolderFile& file)
{
    constexpr std::array<std::string_view, 10> kFolders = {
        "x86",   "x64",   "amd64",   "arm64",   "i386",
        "win32", "win64", "win-x86", "win-x64", "win-arm64"};
    const Text folder = LowerCase(ExtractFilename(file.folder));
    return std::ranges::find(kFolders, folder) != kFolders.end();
}

void FindMixed(const ProgramFolder& folder, const ProgramInfo& program, ProgramFindings& findings)
{
    for (const FolderFile& file : folder.files)
        if (file.info && file.info->isLibrary && !file.info->isForAnyMachine &&
            file.info->machine != program.machine && !IsForItsMachine(file))
            findings.mixed.push_back({file.RelativePath(), file.info->machine});
}

// Such a program runs where its libraries do, and nowhere where these are for several machines.
void FindMixedForAnyMachine(const ProgramFolder& folder, ProgramFindings& findings)
{
    std::vector<MixedMachine> libraries;
    for (const FolderFile& file : folder.files)
        if (file.info && file.info->isLibrary && !file.info->isForAnyMachine &&
            !IsForItsMachine(file) && !LiesInFolderOfAMachine(file))
            libraries.push_back({file.RelativePath(), file.info->machine});
    const bool isMixed = std::ranges::any_of(libraries, [&](const MixedMachine& library) {
        return library.machine != libraries.front().machine;
    });
    if (isMixed)
        findings.mixed = std::move(libraries);
    else if (!libraries.empty())
        findings.onlyFor = libraries.front();
}

DotNetNeed FindDotNet(const FileSystem& files, const ProgramFolder& folder,
                      const FolderFile& program)
{
    const Text path = JoinPath(folder.folder, program.RelativePath());
    const Text config = path.substr(0, path.size() - 4) + ".runtimeconfig.json";
    if (!files.FileExists(config))
        return NeedOfProgram(*program.info);
    try {
        if (files.Status(config).size <= kMaxRuntimeConfigSize)
            return NeedOfRuntimeConfig(ReadWholeFile(files, config));
    } catch (const RunError&) {
        // It is reported as a damaged one.
    }
    return {.kind = DotNetNeed::Kind::Core,
            .name = ".NET",
            .damage = "filen .runtimeconfig.json kan ej läsas"};
}

Text NeededByText(const MissingLibrary& library)
{
    constexpr std::size_t kMaxNamed = 3;
    Text text;
    for (std::size_t i = 0; i < std::min(library.neededBy.size(), kMaxNamed); ++i)
        text += (i == 0 ? "" : ", ") + library.neededBy[i];
    return text + (library.neededBy.size() > kMaxNamed ? " m.fl." : "");
}

} // namespace

Text FolderFile::RelativePath() const
{
    return Joined(folder, entry.name);
}

bool IsBuildFile(const Text& name)
{
    const Text lower = LowerCase(name);
    return EndsInOneOf(lower, kBuildExtensions) || lower.find(".vshost.exe") != Text::npos;
}

Text MachineText(ProgramMachine machine)
{
    switch (machine) {
    case ProgramMachine::X86:
        return "32 bitar";
    case ProgramMachine::X64:
        return "64 bitar";
    case ProgramMachine::Arm64:
        return "64 bitar (ARM)";
    default:
        return "en okänd processor";
    }
}

ProgramFolder ReadProgramFolder(const FileSystem& files, const Text& folder,
                                const std::function<bool(const Text& file)>& mayGoOn)
{
    ProgramFolder read{.folder = RemoveLastBackslash(folder), .files = {}, .programs = {}};
    try {
        FolderReader(files, read, mayGoOn).Read();
    } catch (const RunError& error) {
        read.damage = FailureText(error, folder);
    }
    FindPrograms(read);
    return read;
}

ProgramFindings FindingsOf(const FileSystem& files, const ProgramFolder& folder,
                           const FolderFile& program, const ImportData& data)
{
    ProgramFindings findings{
        .machine = program.info->machine,
        .isForAnyMachine = program.info->isForAnyMachine,
        .onlyFor = {},
        .version = VersionDataOfFile(files, JoinPath(folder.folder, program.RelativePath())),
        .dotNet = FindDotNet(files, folder, program),
        .missing = {},
        .mixed = {}};
    if (findings.isForAnyMachine)
        FindMixedForAnyMachine(folder, findings);
    else
        FindMixed(folder, *program.info, findings);
    MissingFinder finder(folder, data);
    for (const FolderFile& file : folder.files)
        if (file.info && !IsForItsMachine(file))
            finder.Look(file);
    findings.missing = finder.Missing();
    return findings;
}

Text ProgramMachineText(const ProgramFindings& findings)
{
    if (!findings.isForAnyMachine)
        return "Programmet är för " + MachineText(findings.machine) + ".";
    if (!findings.onlyFor)
        return "Programmet är för valfri processor.";
    return "Programmet är för valfri processor, men '" + findings.onlyFor->file + "' är för " +
           MachineText(findings.onlyFor->machine) + ".";
}

std::vector<Text> FindingsText(const ProgramFindings& findings)
{
    std::vector<Text> lines{ProgramMachineText(findings)};
    const FileVersionData& version = findings.version;
    if (!version.ProductName.empty() || !version.ProductVersion.empty())
        lines.push_back("Version: " +
                        TrimBlanks(version.ProductName + " " + version.ProductVersion));
    if (const Text need = DotNetNeedText(findings.dotNet); !need.empty())
        lines.push_back(need);
    for (const MissingLibrary& library : findings.missing)
        lines.push_back("Saknas: " + library.name + " (behövs av " + NeededByText(library) +
                        (library.isDelayed ? "; laddas först när det används)" : ")"));
    for (const MixedMachine& file : findings.mixed)
        lines.push_back((findings.isForAnyMachine ? "Olika processorer: " : "Fel processor: ") +
                        file.file + " är för " + MachineText(file.machine) + ".");
    return lines;
}

} // namespace quillon
