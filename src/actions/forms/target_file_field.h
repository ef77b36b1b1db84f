// Fields for a program or a document as it will be on the user's machine.
#pragma once

#include "platform/ask.h"

class QLineEdit;

namespace quillon {

/// From now on the field completes variables while they are typed, and puts its path in order and
/// warns about a variable in small letters when it is left. `fieldName` is what the box calls it.
void EditTargetFile(QLineEdit* field, const Text& fieldName, Ask& ask);

} // namespace quillon
