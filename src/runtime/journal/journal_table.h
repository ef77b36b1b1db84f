// The lines of a journal: a word for the kind, then its fields, with tabs between. Tab, CR, LF and
// "%" in a field stand as "%09", "%0D", "%0A" and "%25". Writer and reader walk the same table.
#pragma once

#include "runtime/journal/journal_records.h"

namespace quillon {

/// Without a line break.
Text JournalLine(const JournalRecord& record);

/// Nothing where the word is unknown, where a field is missing, too many or none of its kind, and
/// where the record would have a key of the system's own removed: from a damaged journal nothing
/// may be removed that was not installed.
std::optional<JournalRecord> ReadJournalLine(std::string_view line);

/// The records of a journal from its bytes; nothing where a line is none, or where it does not
/// begin with `firstLine`. A last line that broke off in the middle is left out.
std::optional<std::vector<JournalRecord>> ReadJournal(std::string_view bytes,
                                                      std::string_view firstLine);

} // namespace quillon
