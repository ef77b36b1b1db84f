// How one value is in the project file and how it comes back: a single word for both
// directions, so that a key that is saved is also the key that is loaded.
#pragma once

#include "project/key_table.h"
#include "project/records.h"

namespace quillon {

enum class Stored {
    AsText,
    AsLines,     // several lines, their breaks encoded
    AsLongLines, // the same, up to the longest limit
    AsFirstLine, // what follows the first line break is left out
    AsDlgBitmap, // a picture; the tool's own is there by its name where its path does not fit

    AsNumber,             // 0 if missing
    AsNumberOneIfMissing, // 1 if missing
    AsNumberText,         // a number that is kept as a text
    AsPixelsX,            // twips written as pixels of the screen, for other programs; never read,
    AsPixelsY,            // since the same field is in twips beside it

    AsFlag,             // "1" or "0"; off if missing
    AsFlagOnIfMissing,  // the same, on if missing
    AsFlagWhenOn,       // the same, left out when off: files without it are as they always were
    AsFlagReadAsNumber, // written as a flag; a set one comes back as 1
    AsFlagText,         // a boolean that is kept as a text; comes back as "-1" or "0"
};

/// A place or size on the screen, which the file has in twips.
constexpr bool IsPixels(Stored form)
{
    return form == Stored::AsPixelsX || form == Stored::AsPixelsY;
}

template <class Section>
using ProjectKey = Key<Section, Stored>;

} // namespace quillon
