#include "importers/vbnet_project.h"

#include "importers/vb_project.h"

#include <algorithm>

namespace quillon {

namespace {

Text InQuotes(const Text& line)
{
    return StrBetween(line, "\"", "\"");
}

auto FirstLineWith(const std::vector<Text>& lines, std::string_view part)
{
    return std::ranges::find_if(lines, [&](const Text& line) { return ContainsText(line, part); });
}

} // namespace

std::optional<ComReferences> ComReferencesOf(const std::vector<Text>& lines)
{
    const auto list = FirstLineWith(lines, "<References>");
    if (list == lines.end())
        return std::nullopt;
    ComReferences references;
    Text name;
    for (auto line = list + 1; line != lines.end(); ++line) {
        // The name stands before the GUID, in the lines of the same reference.
        if (ContainsText(*line, "<Reference"))
            name.clear();
        if (TrimBlanks(*line).starts_with("Name = \""))
            name = InQuotes(*line);
        if (!ContainsText(*line, "Guid = \"{"))
            continue;
        // Kept: the two versions are the next two lines, whatever is there.
        references.isCut = references.list.size() == kMaxReferences;
        if (lines.end() - line <= 2 || references.isCut)
            break;
        references.list.push_back({.guid = "{" + StrBetween(*line, "{", "}") + "}",
                                   .major = InQuotes(*(line + 1)),
                                   .minor = InQuotes(*(line + 2)),
                                   .name = name});
        line += 2;
    }
    return references;
}

std::vector<Text> IncludedFileLines(const std::vector<Text>& lines)
{
    std::vector<Text> included;
    const auto list = FirstLineWith(lines, "<Include>");
    for (auto line = list; line != lines.end(); ++line)
        if (line != list && ContainsText(*line, "RelPath = \""))
            included.push_back(UpperCase(*line));
    return included;
}

bool IsMsBuildProject(const std::vector<Text>& lines)
{
    return std::ranges::any_of(lines, [](const Text& line) {
        return ContainsText(line, "<Project ") || ContainsText(line, "<Project>") ||
               TrimBlanks(line) == "<Project";
    });
}

} // namespace quillon
