// What the texts of a row may hold.
#pragma once

#include "platform/ask.h"

namespace quillon {

/// False, and shows why, where the text cannot be in a row: a semicolon would cut the row in two
/// in the project file. `what` is the text as the user knows it, "Källsökvägen".
bool CheckRowText(const Text& text, const Text& what, Ask& ask);

/// "Fillistan rymmer högst 32767 rader."
Text FullListText();

/// What is wrong with a destination at the time when a row is made, in a sentence; empty where
/// nothing is. A destination that is empty or begins with an unknown variable may still become one:
/// that is asked for when a package is made.
Text TypedDestinationFaultText(const Text& destination);

/// The same of a text in which a character below the blank would break the row's line.
Text ControlCharacterFaultText(const Text& path);

/// False, and shows why, where no row can have the destination.
bool MayBeDestination(const Text& destination, Ask& ask);

} // namespace quillon
