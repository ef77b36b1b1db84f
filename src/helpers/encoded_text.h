// The text of a file whose encoding is not stated: by its byte order mark, else by its bytes.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// UTF-16 of either byte order and UTF-8 by their marks. Without a mark, UTF-8 where the bytes are
/// well-formed UTF-8 (a text of Windows-1252 with a letter beyond ASCII is hardly ever that), else
/// Windows-1252. An odd byte at the end of UTF-16 is left out.
Text DecodedText(std::string_view bytes);

} // namespace quillon
