#include "filelist/adding/destination_choice.h"

#include "filelist/row_text.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

using Place = DestinationQuestion::Place;

} // namespace

std::optional<Text> MakeDestination(Place place, const Text& typed, Ask& ask)
{
    // Kept: the text is looked at even where an option button makes it count for nothing.
    if (ContainsText(typed, ";")) {
        ask.Critical("Ogiltiga tecken hittade",
                     "Destinationskatalogen innehåller ogiltiga tecken!");
        return std::nullopt;
    }
    switch (place) {
    case Place::System:
        return "%SYSDIR";
    case Place::Windows:
        return "%WINDIR";
    default:
        return MayBeDestination(typed, ask) ? std::optional(RemoveLastBackslash(typed))
                                            : std::nullopt;
    }
}

std::vector<Text> RecentDestinationDirectories(const OpenProjectState& state)
{
    std::vector<Text> recent;
    for (std::size_t i = 0; i < kRecentDestinations; ++i)
        if (const Text& folder = state.DestinationDirectoryChoices[i]; !folder.empty())
            recent.push_back(folder);
    return recent;
}

void RememberDestination(OpenProjectState& state, const Text& destination)
{
    const std::vector<Text> recent = RecentDestinationDirectories(state);
    if (destination.empty() || std::ranges::find(recent, destination) != recent.end())
        return;
    auto& choices = state.DestinationDirectoryChoices;
    std::shift_right(choices.begin(), choices.begin() + kRecentDestinations, 1);
    choices.front() = destination;
}

std::vector<Text> DestinationVariables()
{
    std::vector<Text> variables{"%DESTDIR", "%PROGRAMFILES", "%MYDOCUMENTS", "%COMMONFILES",
                                "%FONTDIR"};
    for (std::size_t i = 1; i <= kComponentCount; ++i)
        variables.push_back("%COMPDIR" + NumberText(static_cast<std::int64_t>(i)));
    variables.insert(variables.end(), {"%APPDATADIR", "%TEMPLATESDIR", "%WORDSTARTUPDIR"});
    return variables;
}

} // namespace quillon
