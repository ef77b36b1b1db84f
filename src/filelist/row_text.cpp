#include "filelist/row_text.h"

namespace quillon {

bool MayStandInRow(const Text& text, const Text& what, Ask& ask)
{
    if (!ContainsText(text, ";"))
        return true;
    ask.Critical("Ogiltiga tecken hittade",
                 what + " innehåller ogiltiga tecken! Semikolon kan inte användas, eftersom det "
                        "skiljer fälten i projektfilen åt.");
    return false;
}

} // namespace quillon
