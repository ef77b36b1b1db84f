#include "importers/import_data.h"

#include "helpers/encoded_text.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "ini/ini_scanner.h"
#include "platform/failure_text.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

// The table that comes with the tool has some ten kilobytes.
constexpr std::size_t kMaxTableSize = std::size_t{1} << 20;
constexpr std::size_t kMaxNameLength = 255;
constexpr std::size_t kMaxFaultsShown = 10;

constexpr std::array<std::string_view, 4> kSections = {"Controls", "Modules", "Wrappers",
                                                       "Windows"};

bool IsFileName(std::string_view name)
{
    return !name.empty() && name.size() <= kMaxNameLength &&
           name.find_first_of("\\/:*?\"<>|;=") == std::string_view::npos &&
           std::ranges::none_of(name, [](char c) { return static_cast<unsigned char>(c) < ' '; });
}

const char* const kNoFileName = "raden är inget filnamn";

Text FaultsText(const Text& path, const std::vector<ImportData::Fault>& faults)
{
    Text text = "Filen '" + path + "' har rader som ej kan användas. De är överhoppade.";
    for (std::size_t i = 0; i < std::min(faults.size(), kMaxFaultsShown); ++i)
        text += "\r\nRad " + NumberText(faults[i].line) + ": " + faults[i].reason + ".";
    if (faults.size() > kMaxFaultsShown)
        text += "\r\n...";
    return text;
}

void AddTable(const FileSystem& files, const Text& path, Ask& ask, ImportData& data)
{
    try {
        const std::vector<ImportData::Fault> faults =
            data.Add(ReadBeginning(files, path, kMaxTableSize));
        if (!faults.empty())
            ask.Warn("Fel i " + Text(kImportDataFile), FaultsText(path, faults));
    } catch (const RunError& error) {
        ask.Warn("Fel i " + Text(kImportDataFile), FailureText(error, path));
    }
}

} // namespace

std::vector<ImportData::Fault> ImportData::Add(std::string_view bytes)
{
    const Text text = DecodedText(bytes);
    constexpr IniSyntax kSyntax = {IniSyntax::LineEnd::AtLf, IniSyntax::Header::WholeLine};
    std::vector<Fault> faults;
    Text section;
    int number = 0;
    IniScanner lines(text, kSyntax);
    while (const auto line = lines.Next()) {
        ++number;
        if (line->text.empty() || line->text.starts_with(';'))
            continue;
        if (line->kind == ScannedLine::Kind::Header) {
            section = line->name;
            if (std::ranges::find(kSections, section) == kSections.end())
                faults.push_back({number, "avsnittet '" + section + "' är okänt"});
        } else if (Text reason = AddRow(section, Text(line->text)); !reason.empty()) {
            faults.push_back({number, std::move(reason)});
        }
    }
    return faults;
}

// Why the row can't be taken in; empty where it could.
Text ImportData::AddRow(std::string_view section, Row row)
{
    if (section == "Modules")
        return AddLibraryRule(row, modules_);
    if (section == "Wrappers")
        return AddLibraryRule(row, wrappers_);
    if (section == "Windows")
        return AddWindowsLibrary(LowerCase(row));
    if (section != "Controls")
        return "raden hör till ett okänt avsnitt";
    if (!IsFileName(row))
        return kNoFileName;
    controls_.insert(UpperCase(row));
    return {};
}

Text ImportData::AddLibraryRule(Row row, std::vector<LibraryRule>& rows)
{
    const std::size_t sign = row.find('=');
    if (sign == Row::npos)
        return "raden saknar '='";
    const Text name = TrimBlanks(row.substr(0, sign));
    const Text library = TrimBlanks(row.substr(sign + 1));
    if (!IsFileName(name) || !IsFileName(library))
        return "namnet före eller efter '=' är inget filnamn";
    rows.push_back({UpperCase(name), library});
    return {};
}

Text ImportData::AddWindowsLibrary(const Text& name)
{
    const bool isBeginning = name.ends_with('*');
    const Text plain = isBeginning ? name.substr(0, name.size() - 1) : name;
    if (!IsFileName(plain))
        return kNoFileName;
    if (isBeginning)
        windowsBeginnings_.push_back(plain);
    else
        windows_.insert(plain);
    return {};
}

bool ImportData::IsMfcControl(std::string_view fileName) const
{
    return controls_.contains(UpperCase(fileName));
}

std::vector<Text> ImportData::LibrariesOfModule(std::string_view name,
                                                std::string_view fileName) const
{
    std::vector<Text> libraries;
    for (const LibraryRule& row : modules_)
        if (EqualIgnoreCase(row.name, name) || EqualIgnoreCase(row.name, fileName))
            libraries.push_back(row.library);
    return libraries;
}

std::vector<Text> ImportData::LibrariesOfWrappersIn(std::string_view upperLine) const
{
    std::vector<Text> libraries;
    for (const LibraryRule& row : wrappers_)
        if (ContainsText(upperLine, row.name))
            libraries.push_back(row.library);
    return libraries;
}

bool ImportData::IsPartOfWindows(std::string_view library) const
{
    const Text name = LowerCase(library);
    return windows_.contains(name) || std::ranges::any_of(windowsBeginnings_, [&](const Text& row) {
               return name.starts_with(row);
           });
}

ImportData ReadImportData(const FileSystem& files, const Text& toolFolder, const Text& ownFolder,
                          Ask& ask)
{
    ImportData data;
    AddTable(files, JoinPath(toolFolder, kImportDataFile), ask, data);
    const Text own = JoinPath(ownFolder, kImportDataFile);
    if (!ownFolder.empty() && !EqualIgnoreCase(ownFolder, toolFolder) && files.FileExists(own))
        AddTable(files, own, ask, data);
    return data;
}

} // namespace quillon
