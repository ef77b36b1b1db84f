#include "actions/unsavable_line.h"

#include "helpers/product.h"
#include "ini/profile_lines.h"
#include "project/list_sections.h"

#include <array>

namespace quillon {

namespace {

struct ListName {
    ListField list;
    const char* caption;
};

// clang-format off
constexpr std::array<ListName, std::size(kListSections)> kNames{{
    {&section::Lists::RunScriptBefore,  "Skript före installation"},
    {&section::Lists::RunScriptAfter,   "Skript efter installation"},
    {&section::Lists::Registry,         "Registry"},
    {&section::Lists::INIFiles,         "INI-filer"},
    {&section::Lists::AutoexecBat,      "AUTOEXEC.BAT"},
    {&section::Lists::ConfigSys,        "CONFIG.SYS"},
    {&section::Lists::RegisterFileList, "Registrera filer"},
}};

// A section between or after the lists, found by its first header in any case of letters.
struct SectionAfterLists {
    const char* name;
    ListField firstListAfter; // null where none is
    const char* hit;
};

constexpr SectionAfterLists kSectionsAfterLists[] = {
    // The file lacks it where there is no such program.
    {"RunAppSelfX",    nullptr,                            "Program i den självuppackande installationen"},
    {"Configuration",  &section::Lists::Registry,          "Registry, INI-filer, AUTOEXEC.BAT och CONFIG.SYS"},
    {"RegisterFiles",  &section::Lists::RegisterFileList,  "Registrera filer"},
    {"FileComponents", nullptr,                            "Komponenter"},
    {"FileListInfo",   nullptr,                            "Fillistan"},
};
// clang-format on

const char* CaptionOf(ListField list)
{
    for (const ListName& name : kNames)
        if (name.list == list)
            return name.caption;
    return "";
}

std::size_t PlaceOf(ListField list)
{
    std::size_t place = 0;
    while (place < std::size(kListSections) && kListSections[place].text != list)
        ++place;
    return place;
}

// A list is looked for by the first line that is exactly its header.
const char* ListHitBy(std::string_view line, ListField list)
{
    for (std::size_t i = PlaceOf(list) + 1; i < std::size(kListSections); ++i)
        if (line == Text("[") + kListSections[i].name + "]")
            return CaptionOf(kListSections[i].text);
    return line == "[FileList]" ? "Fillistan" : nullptr;
}

const char* SectionHitBy(std::string_view header, ListField list)
{
    for (const SectionAfterLists& section : kSectionsAfterLists) {
        const bool isAfter =
            !section.firstListAfter || PlaceOf(list) < PlaceOf(section.firstListAfter);
        if (isAfter && FoldedName(header) == FoldedName(section.name))
            return section.hit;
    }
    return nullptr;
}

// Sections are found in lines that end at any LF, lists in those that end at CR LF.
const char* AnySectionHitBy(std::string_view line, ListField list)
{
    IniScanner parts(line, kProfileSyntax);
    while (const auto part = parts.Next())
        if (part->kind == ScannedLine::Kind::Header)
            if (const char* const hit = SectionHitBy(part->name, list))
                return hit;
    return nullptr;
}

} // namespace

std::optional<UnsavableLine> FindUnsavableLine(ListField list, std::string_view text)
{
    const std::size_t place = PlaceOf(list);
    if (place < std::size(kListSections) &&
        kListSections[place].lines == ListSection::Lines::Marked)
        return std::nullopt;
    for (const Text& line : SplitLines(text)) {
        if (line == kEndOfList)
            return UnsavableLine{line, nullptr};
        const char* const listHit = ListHitBy(line, list);
        if (const char* const hit = listHit ? listHit : AnySectionHitBy(line, list))
            return UnsavableLine{line, hit};
    }
    return std::nullopt;
}

Text UnsavableLineWarning(const UnsavableLine& line)
{
    const Text subject = "Raden '" + line.line + "' kan ej lagras i projektfilen. ";
    if (!line.hit)
        return subject + "När projektet öppnas igen slutar listan där, och det som står efter den "
                         "raden går förlorat.";
    return subject +
           "När projektet öppnas igen tas den för något annat, och det som finns under '" +
           line.hit + "' går förlorat.";
}

std::optional<Text> WhyListsCannotBeSaved(const section::Lists& lists)
{
    for (const ListName& name : kNames)
        if (const auto line = FindUnsavableLine(name.list, lists.*name.list))
            return Text("'") + name.caption + "': " + UnsavableLineWarning(*line);
    return std::nullopt;
}

} // namespace quillon
