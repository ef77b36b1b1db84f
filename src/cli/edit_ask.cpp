#include "cli/edit_ask.h"

#include "cli/call_context.h"
#include "filelist/adding/destination_choice.h"
#include "filelist/components.h"

#include <algorithm>

namespace quillon::cli {

void EditAsk::Critical(const Text& title, const Text& text)
{
    refusals.push_back(text);
    ConsoleAsk::Critical(title, text);
}

bool EditAsk::YesNo(const Text& title, const Text& text, Stops stops)
{
    return prepared.confirms || ConsoleAsk::YesNo(title, text, stops);
}

void EditAsk::EndCall() const
{
    throw CallFailure{(refusals.empty() ? Text("Kommandot avbröts.") : refusals.front()) +
                          " Inget är sparat.",
                      Exit::Stopped};
}

std::optional<Text> EditAsk::OpenFile(const FileQuestion&)
{
    if (filesAsked_ == prepared.oneFileEach.size())
        return std::nullopt;
    return prepared.oneFileEach[filesAsked_++];
}

std::optional<Text> EditAsk::ChooseDestination(const DestinationQuestion& question)
{
    if (prepared.destination)
        return MakeDestination(DestinationQuestion::Place::User, *prepared.destination, *this);
    return MakeDestination(question.place, question.folder, *this);
}

std::optional<Text> EditAsk::ChooseComponent(const std::vector<Text>& entries)
{
    const auto chosen = std::ranges::find(entries, prepared.componentNr, GetCompNrFromListEntry);
    return chosen == entries.end() ? std::nullopt : std::optional(*chosen);
}

} // namespace quillon::cli
