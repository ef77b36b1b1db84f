#include "house/layering.h"

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <utility>

namespace quillon::test {

namespace {

// Folders of the same rank do not include each other.
const std::map<std::string, int> kHeight = {
    {"helpers", 0},  {"platform", 1}, {"archive", 2}, {"ini", 2},       {"project", 3},
    {"rtf", 4},      {"formats", 4},  {"design", 5},  {"pictures", 6},  {"runtime", 7},
    {"filelist", 7}, {"diagnos", 7},  {"actions", 8}, {"importers", 8}, {"tools", 8},
    {"builder", 9},  {"shell", 10},   {"cli", 11},    {"ui", 11},       {"app", 13}};
constexpr int kFormsHeight = 12;

// The setup runtime has to stay small, so it uses these alone.
const std::set<std::string> kRuntimeUses = {"helpers",  "platform", "archive", "ini",
                                            "project",  "rtf",      "formats", "design",
                                            "pictures", "runtime"};

// Streams depend on the locale, and would double the size of the setup runtime.
const std::set<std::string> kStreams = {"iostream", "fstream", "sstream", "iomanip", "regex"};

// The libraries' headers, by how their names begin, and the folders that may use them.
const std::vector<std::pair<std::string, std::set<std::string>>> kLibraries = {
    {"zlib.h", {"archive"}},  {"libdeflate.h", {"archive"}},
    {"zstd.h", {"archive"}},  {"nlohmann/", {"cli", "importers"}},
    {"png.h", {"cli"}},       {"openssl/sha.h", {"helpers"}},
    {"cpuid.h", {"helpers"}}, {"immintrin.h", {"helpers"}},
    {"cairo-", {"tools"}},    {"fontconfig/", {"tools"}}};

// The headers that choose between the systems, for all that lies above.
const std::set<std::string> kSystemChoosers = {"platform/this_host.h", "design/system_letters.h"};

std::set<std::string> Parts(const std::string& path)
{
    std::set<std::string> parts;
    for (const auto& part : std::filesystem::path(path))
        parts.insert(part.string());
    return parts;
}

bool Has(const std::string& path, const char* part)
{
    return Parts(path).count(part) > 0;
}

std::string Folder(const std::string& path)
{
    return path.substr(0, path.find('/'));
}

int HeightOf(const std::string& path)
{
    if (Has(path, "forms"))
        return kFormsHeight;
    const auto found = kHeight.find(Folder(path));
    return found == kHeight.end() ? -1 : found->second;
}

bool IsWindow(const std::string& file)
{
    return Has(file, "forms") || Folder(file) == "ui" || Folder(file) == "app";
}

bool IsLibraryOf(const Include& include)
{
    for (const auto& [header, folders] : kLibraries)
        if (include.target.starts_with(header))
            return folders.count(Folder(include.file)) > 0;
    return false;
}

std::vector<std::string> SystemViolations(const Include& include)
{
    static const std::regex qt("^Q[A-Z].*|^Qt.*/.*");
    static const std::regex windows("^(windows|shlobj|shellapi|wincrypt|winver|objbase)\\.h$");
    static const std::regex posix(
        "^(unistd|fcntl|dirent|poll|pwd|spawn|langinfo|(sys|linux)/.*)(\\.h)?$");
    static const std::regex notStandard(".*\\.h|.*/.*");
    std::vector<std::string> found;
    if (std::regex_match(include.target, qt) && !IsWindow(include.file))
        found.push_back("Qt stays in ui, app and the forms");
    if (std::regex_match(include.target, windows) && !Has(include.file, "win32"))
        found.push_back("headers of Windows stay in win32 folders");
    if (std::regex_match(include.target, posix) && !Has(include.file, "posix"))
        found.push_back("headers of POSIX stay in posix folders");
    if (std::regex_match(include.target, notStandard) && !std::regex_match(include.target, qt) &&
        !Has(include.file, "posix") && !Has(include.file, "win32") && !IsLibraryOf(include))
        found.push_back("headers of systems and libraries stay in the folders that the test names");
    if (kStreams.count(include.target) > 0 && HeightOf(include.file) < kHeight.at("cli"))
        found.push_back("streams stay in the programs");
    return found;
}

std::vector<std::string> OwnViolations(const Include& include)
{
    std::vector<std::string> found;
    const std::string from = Folder(include.file);
    const std::string to = Folder(include.target);
    const bool staysInFolder =
        from == to && Has(include.file, "forms") == Has(include.target, "forms");
    if (kHeight.count(to) > 0 && !staysInFolder &&
        HeightOf(include.file) <= HeightOf(include.target))
        found.push_back("a folder includes from lower ones only");
    if (from == "runtime" && kHeight.count(to) > 0 && kRuntimeUses.count(to) == 0)
        found.push_back("the setup runtime does not use this folder");
    if (from == "runtime" && (include.target.starts_with("archive/writer/") ||
                              include.target.starts_with("archive/solid/writer/")))
        found.push_back("the setup runtime writes no archives");
    for (const char* system : {"posix", "win32"})
        if (Has(include.target, system) && !Has(include.file, system) &&
            kSystemChoosers.count(include.file) == 0)
            found.push_back("a header made for that chooses the system");
    return found;
}

} // namespace

std::vector<std::string> Violations(const Include& include)
{
    std::vector<std::string> found =
        include.isSystem ? SystemViolations(include) : OwnViolations(include);
    for (std::string& line : found)
        line = include.file + " includes " + include.target + ": " + line;
    return found;
}

bool HasLayer(const std::string& file)
{
    return HeightOf(file) >= 0;
}

std::vector<std::vector<std::string>> Layers()
{
    std::map<int, std::vector<std::string>> byHeight;
    for (const auto& [folder, height] : kHeight)
        byHeight[height].push_back(folder);
    std::vector<std::vector<std::string>> layers;
    for (const auto& [height, folders] : byHeight)
        layers.push_back(folders);
    return layers;
}

} // namespace quillon::test
