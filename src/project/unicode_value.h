// Values of profile files that Windows-1252 can't hold, such as paths in folders with any names:
// they are in UTF-8 after a mark. One that a reader would strip is between quotation marks,
// and every other value as it is.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// The value as a profile file can hold it within `limit` (the size of the reader's buffer). Empty
/// where it would come back as another one: it has a line break, or it is too long.
Text UnicodeValueOnFile(const Text& value, int limit);

/// The way back. A marked value that is no UTF-8 is empty.
Text UnicodeValueFromFile(const Text& onFile);

} // namespace quillon
