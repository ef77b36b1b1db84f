#include "importers/lst_file.h"

#include "helpers/number_text.h"
#include "ini/profile_reader.h"
#include "platform/whole_file.h"

#include <unordered_set>

namespace quillon {

namespace {

constexpr int kMaxKeys = 5000;
constexpr int kValueLimit = 200;

// Setup lists hold some hundred lines. A larger file is something else under that name.
constexpr std::int64_t kMaxLstMegabytes = 32;

// Carries the wizard's own setup, which has no use in one of this tool.
constexpr std::string_view kWizardsKit = "VB6STKIT.DLL";

// "@NAME.DLL,$(WinSysPath),..." gives "NAME.DLL".
Text NameIn(std::string_view value)
{
    if (value.starts_with('@'))
        value.remove_prefix(1);
    return Text(value.substr(0, value.find(',')));
}

std::vector<Text> NamesInSection(ProfileReader& reader, const Text& section)
{
    reader.SetIniSection(section);
    std::vector<Text> names;
    for (int i = 1; i <= kMaxKeys; ++i) {
        const Text value = reader.ReadIniString("File" + NumberText(i), kValueLimit);
        if (value.empty())
            break;
        names.push_back(NameIn(value));
    }
    return names;
}

class Comparison {
public:
    explicit Comparison(const std::vector<FileListRow>& rows)
    {
        for (const FileListRow& row : rows)
            listed_.insert(UpperCase(row[Filename]));
    }

    void Take(const Text& name)
    {
        if (!listed_.contains(UpperCase(name)))
            missing.push_back(name);
    }

    std::vector<Text> missing;

private:
    std::unordered_set<Text> listed_;
};

} // namespace

Text TooLargeLstText(const FileSystem& files, const Text& lstFile)
{
    if (files.Status(lstFile).size <= std::uint64_t{kMaxLstMegabytes} << 20)
        return {};
    return "Filen '" + lstFile + "' är för stor för att vara en LST-fil: den är större än " +
           NumberText(kMaxLstMegabytes) + " MB. Kontrollera att du valt rätt LST-fil.";
}

std::optional<std::vector<Text>> MissingFromFileList(const FileSystem& files, const Text& lstFile,
                                                     const std::vector<FileListRow>& rows)
{
    if (!TooLargeLstText(files, lstFile).empty())
        return std::nullopt;
    ProfileReader reader;
    reader.SetIniBytes(ReadWholeFile(files, lstFile));

    Comparison comparison(rows);
    const std::vector<Text> bootstrap = NamesInSection(reader, "Bootstrap Files");
    for (const Text& name : bootstrap)
        if (!EqualIgnoreCase(name, kWizardsKit))
            comparison.Take(name);
    // Kept: here the wizard's kit counts as a file like any other.
    const std::vector<Text> setup = NamesInSection(reader, "Setup1 Files");
    for (const Text& name : setup)
        comparison.Take(name);
    if (bootstrap.empty() && setup.empty())
        return std::nullopt;
    return comparison.missing;
}

} // namespace quillon
