// The text of a message in the journal of an installation, for the uninstaller's starter: read by
// as little code as will do, without allocating. The journal's form is that of `journal_table.h`.
#pragma once

#include <string_view>

namespace quillon {

/// Puts the text with that key into `to`, in UTF-8 with a null after it. False, with `to`
/// undefined, where the journal has none or one of `capacity` bytes or more.
bool FindRecordedText(std::string_view journal, std::string_view key, char* to,
                      std::size_t capacity);

} // namespace quillon
