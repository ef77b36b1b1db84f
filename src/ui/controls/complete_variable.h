// Variables in fields: they complete themselves while they are typed, or are chosen from a list.
#pragma once

#include "filelist/variable_prefix.h"

class QLineEdit;

namespace quillon {

class Ask;

/// From now on the first letters of a variable become the whole word in this field, with the caret
/// after it. A text that is being deleted from its end is left alone.
void CompleteVariables(QLineEdit* field, PrefixTable table);

/// Lets the user choose a variable, puts it at the end of the field and goes on there.
void AppendVariable(QLineEdit* field, Ask& ask);

} // namespace quillon
