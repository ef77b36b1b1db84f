// Find and replace in one column of all rows: destinations, sources or copy options.
#pragma once

#include "platform/ask.h"
#include "project/file_list.h"

#include <cstddef>

namespace quillon {

enum class ReplaceIn { Destinations, Sources, Options };

struct ReplaceUse {
    ReplaceIn where;
    const char* caption;     // of the dialog
    const char* replacement; // what is typed, where it has to be refused
    Column column;
    bool offersPart; // whether a part of the text can be looked for
};

const ReplaceUse& UseOf(ReplaceIn where);

struct Replacement {
    Text find;
    Text with;
    bool partOfText = false;
};

/// What is proposed to look for while this row is selected.
Text ProposedSearch(const FileListRow& row, ReplaceIn where);

/// What a text typed as copy options becomes: capitals, with "X" in place of all that is no letter
/// from A to Z.
Text AsOptionLetters(const Text& typed);

/// False, and shows why, where no row can hold the replacement.
bool MayReplaceWith(const Text& with, ReplaceIn where, Ask& ask);

/// How many rows were changed. Their order is the caller's to mend (see `SortRows`).
std::size_t ReplaceInRows(FileList& files, ReplaceIn where, const Replacement& replacement);

} // namespace quillon
