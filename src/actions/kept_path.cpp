#include "actions/kept_path.h"

#include "helpers/ansi_text.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

bool CanKeepPath(const Text& path, int maxLength, const PathKind& kind, Ask& ask)
{
    const Text refusal = Text(kind.thing) + " '" + path + "' kan ej väljas. ";
    if (!AnsiText::Holds(path)) {
        ask.Critical("Ogiltiga tecken hittade",
                     refusal + "Namnet innehåller tecken som inte kan lagras i ett projekt. Byt "
                               "namn på filen eller katalogen och försök igen.");
        return false;
    }
    if (CharacterCount(path) > static_cast<std::size_t>(maxLength)) {
        ask.Critical("Fel", refusal + "Sökvägen är för lång för att kunna lagras i ett projekt. " +
                                kind.advice);
        return false;
    }
    return true;
}

} // namespace

std::optional<Text> ChooseKeptPath(FileQuestion question, Text& folder, int maxLength,
                                   const PathKind& kind, Ask& ask)
{
    question.folder = folder;
    auto path = ask.OpenFile(question);
    if (!path || path->empty())
        return std::nullopt;
    folder = ExtractDirectory(*path);
    return CanKeepPath(*path, maxLength, kind, ask) ? path : std::nullopt;
}

} // namespace quillon
