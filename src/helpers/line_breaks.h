// The one-line form of a text of several lines, used where a text is one value of a profile file.
// A line break is the two bytes 157 and 158, which no keyboard gives.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// A CR becomes the bytes 157 158 and takes the character after it away, whatever that is.
Text EncodeLineBreaks(std::string_view text);

/// A byte 157 becomes CR LF and takes the character after it away, whatever that is.
Text DecodeLineBreaks(std::string_view text);

/// The text before its first CR LF.
Text FirstLineOnly(std::string_view text);

} // namespace quillon
