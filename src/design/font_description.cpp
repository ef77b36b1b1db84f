#include "design/font_description.h"

namespace quillon {

Text FontDescription(const Text& name, Integer size, Flag bold, Flag italic)
{
    return name + ", " + NumberText(size) + " pt, " + (bold == kOff ? "ej fet" : "fet") + ", " +
           (italic == kOff ? "ej kursiv" : "kursiv");
}

} // namespace quillon
