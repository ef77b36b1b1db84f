#include "runtime/pages/component_switch.h"

#include "runtime/pages/page_order.h"

#include <algorithm>

namespace quillon {

namespace {

std::vector<Text> Words(std::string_view list)
{
    std::vector<Text> words;
    for (std::size_t at = 0; at <= list.size();) {
        const std::size_t end = std::min(list.find(',', at), list.size());
        if (const Text word = TrimBlanks(list.substr(at, end - at)); !word.empty())
            words.push_back(word);
        at = end + 1;
    }
    return words;
}

// 0: none of the project's.
int ComponentNamed(const SetupInformation& setup, const Text& word)
{
    for (const int number : ComponentsInUse(setup))
        if (EqualIgnoreCase(setup.project.FileComponents[std::size_t(number) - 1].CompName, word) ||
            word == NumberText(number))
            return number;
    return 0;
}

} // namespace

std::optional<Text> TakeComponents(std::string_view list, const SetupInformation& setup,
                                   UserChoices& choices)
{
    const std::vector<Text> words = Words(list);
    const bool namesSome =
        std::ranges::any_of(words, [](const Text& word) { return word[0] != '!'; });
    if (namesSome || words.empty())
        for (const int number : ComponentsInUse(setup))
            choices.components[std::size_t(number) - 1].isTicked = false;
    for (const Text& word : words) {
        const bool leavesOut = word[0] == '!';
        const int number = ComponentNamed(setup, TrimBlanks(word.substr(leavesOut ? 1 : 0)));
        if (number == 0)
            return word;
        choices.components[std::size_t(number) - 1].isTicked = !leavesOut;
    }
    return std::nullopt;
}

} // namespace quillon
