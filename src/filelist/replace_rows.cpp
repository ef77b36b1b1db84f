#include "filelist/replace_rows.h"

#include "filelist/row_text.h"
#include "helpers/windows_path.h"

#include <iterator>

namespace quillon {

namespace {

// clang-format off
constexpr ReplaceUse kUses[] = {
    {ReplaceIn::Destinations, "Sök och ersätt destinationskatalog",     "Destinationskatalogen",     Destination, true},
    {ReplaceIn::Sources,      "Sök och ersätt källkatalog",             "Källsökvägen",              Source,      true},
    {ReplaceIn::Options,      "Sök och ersätt kopieringsinställningar", "Kopieringsinställningarna", CopyOptions, false},
};
// clang-format on

constexpr bool AreUsesInOrder()
{
    for (std::size_t i = 0; i < std::size(kUses); ++i)
        if (kUses[i].where != static_cast<ReplaceIn>(i))
            return false;
    return true;
}
static_assert(AreUsesInOrder(), "the rows stand in the order of ReplaceIn");

/// What a row has in place of its text; the text itself where it is not what is looked for.
Text Replaced(const FileListRow& row, ReplaceIn where, const Replacement& replacement)
{
    const ReplaceUse& use = UseOf(where);
    const Text& text = row[use.column];
    if (replacement.partOfText && use.offersPart)
        return replacement.find.empty() ? text
                                        : ReplaceAll(text, replacement.find, replacement.with);
    if (ProposedSearch(row, where) != replacement.find)
        return text;
    // Kept: a source takes the replacement alone, so the file's name goes with its folder.
    return where == ReplaceIn::Options ? UpperCase(replacement.with) : replacement.with;
}

} // namespace

const ReplaceUse& UseOf(ReplaceIn where)
{
    return kUses[static_cast<std::size_t>(where)];
}

Text ProposedSearch(const FileListRow& row, ReplaceIn where)
{
    const Text& text = row[UseOf(where).column];
    return where == ReplaceIn::Sources ? ExtractDirectory(text) : text;
}

Text AsOptionLetters(const Text& typed)
{
    Text letters;
    for (const char byte : UpperCase(typed)) {
        // The further bytes of a character outside A to Z; its first one has become the "X".
        if ((static_cast<unsigned char>(byte) & 0xC0U) == 0x80U)
            continue;
        letters += byte >= 'A' && byte <= 'Z' ? byte : 'X';
    }
    return letters;
}

bool MayReplaceWith(const Text& with, ReplaceIn where, Ask& ask)
{
    return CheckRowText(with, UseOf(where).replacement, ask);
}

std::size_t ReplaceInRows(FileList& files, ReplaceIn where, const Replacement& replacement)
{
    std::size_t changed = 0;
    for (FileListRow& row : files.rows) {
        // The row of an empty folder has no file that could lie somewhere else.
        if (where == ReplaceIn::Sources && !row.HasSource())
            continue;
        Text text = Replaced(row, where, replacement);
        Text& stored = row[UseOf(where).column];
        if (text == stored)
            continue;
        stored = std::move(text);
        ++changed;
    }
    return changed;
}

} // namespace quillon
