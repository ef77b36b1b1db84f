// Variables that complete themselves while they are typed.
#pragma once

#include "filelist/variable_prefix.h"

class QLineEdit;

namespace quillon {

/// From now on the first letters of a variable become the whole word in this field, with the caret
/// behind it. A text that is being deleted from its end is left alone.
void CompleteVariables(QLineEdit* field, PrefixTable table);

} // namespace quillon
