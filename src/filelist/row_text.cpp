#include "filelist/row_text.h"

#include "formats/row_safety.h"
#include "helpers/number_text.h"
#include "project/file_list.h"

#include <algorithm>

namespace quillon {

bool CheckRowText(const Text& text, const Text& what, Ask& ask)
{
    if (!ContainsText(text, ";"))
        return true;
    ask.Critical("Ogiltiga tecken hittade",
                 what + " innehåller ogiltiga tecken! Semikolon kan inte användas, eftersom det "
                        "skiljer fälten i projektfilen åt.");
    return false;
}

Text FullListText()
{
    return "Fillistan rymmer högst " + NumberText(kMaxRows) + " rader.";
}

Text TypedDestinationFaultText(const Text& destination)
{
    switch (FaultOfDestination(destination)) {
    case PathFault::NotAbsolute:
    case PathFault::UnknownVariable:
        return {};
    default:
        return DestinationFaultText(destination);
    }
}

Text ControlCharacterFaultText(const Text& path)
{
    const bool hasAny =
        std::ranges::any_of(path, [](char byte) { return static_cast<unsigned char>(byte) < ' '; });
    return hasAny ? "Källsökvägen fungerar inte: " + PathFaultText(PathFault::Control) + "."
                  : Text();
}

bool MayBeDestination(const Text& destination, Ask& ask)
{
    const Text fault = TypedDestinationFaultText(destination);
    if (!fault.empty())
        ask.Critical("Ogiltig destinationskatalog", fault);
    return fault.empty();
}

} // namespace quillon
