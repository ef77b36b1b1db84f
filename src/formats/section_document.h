// The frame that the package's text files share: a header that names the file's type, sections, and
// a mark at the end of the file. A list section is free text up to a line of four dots.
#pragma once

#include "helpers/text.h"

#include <optional>
#include <vector>

namespace quillon {

struct DocumentSection {
    // RowsOrNothing is a list that, without rows, has no line of four dots either.
    enum class Kind { Keys, List, RowsOrNothing };

    Text name;
    Kind kind = Kind::Keys;
    std::vector<Text> lines = {};

    /// What follows the key's "=" and the blank after that, the first such key counting.
    /// Nothing else is taken away: a value may begin or end with blanks or quotation marks.
    std::optional<Text> Value(std::string_view key) const;
    /// The same for a value of several lines, which goes on up to the line of `nextKey`.
    std::optional<Text> ValueUpTo(std::string_view key, std::string_view nextKey) const;
};

struct SectionDocument {
    std::vector<DocumentSection> sections;
    Text toolVersion;
    Text subType; // of the file's type; empty as a rule
    // False where the type mark or the file's end is missing, or a list does not end.
    bool isWhole = false;

    const DocumentSection* Find(std::string_view name) const;
};

/// The lines before the first section proper.
std::vector<Text> FileHeaderLines(std::string_view fileType);

/// `known` are the sections to look for. A line that looks like the header of any other section, or
/// of one that came before, belongs to the text that it is in.
SectionDocument ReadSectionDocument(const Text& text, std::string_view fileType,
                                    std::vector<DocumentSection> known);

} // namespace quillon
