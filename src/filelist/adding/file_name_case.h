// Names that other tools hand over in capitals, in a form that people like to read.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// A name that holds a lower-case letter is left alone; one in capitals gets a capital first letter
/// and small ones after it; a path in capitals becomes lower case.
Text FormatFileNameCase(std::string_view name);

} // namespace quillon
