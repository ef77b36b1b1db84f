// quillonc replace: find and replace in one column of all rows.
#include "cli/calls.h"
#include "cli/project_edit.h"
#include "filelist/replace_rows.h"
#include "filelist/view/sort.h"

#include <algorithm>
#include <array>

namespace quillon::cli {

namespace {

struct ColumnWord {
    std::string_view word;
    ReplaceIn where;
};
constexpr std::array<ColumnWord, 3> kColumnWords{{{"destinations", ReplaceIn::Destinations},
                                                  {"sources", ReplaceIn::Sources},
                                                  {"options", ReplaceIn::Options}}};

ReplaceIn ColumnIn(const std::string& word)
{
    const auto found = std::ranges::find(kColumnWords, word, &ColumnWord::word);
    if (found == kColumnWords.end())
        throw UsageError{"'" + word + "' kan ej ersättas; välj destinations, sources, options."};
    return found->where;
}

Replacement ReplacementIn(const CallContext& context, ReplaceIn where)
{
    const Replacement replacement{.find = context.arguments.operands[2],
                                  .with = context.arguments.operands[3],
                                  .partOfText = context.arguments.Has("--part")};
    if (replacement.partOfText && !UseOf(where).offersPart)
        throw UsageError{"Kopieringsinställningar ersätts endast hela, utan --part."};
    // The window's field turns these into "X" while they are typed.
    if (where == ReplaceIn::Options &&
        AsOptionLetters(replacement.with) != UpperCase(replacement.with))
        throw UsageError{"'" + replacement.with +
                         "' är inga kopieringsinställningar; endast bokstäverna A till Z kan "
                         "skrivas här."};
    return replacement;
}

} // namespace

Exit ReplaceTexts(const CallContext& context)
{
    const ReplaceIn where = ColumnIn(context.arguments.operands[0]);
    const Replacement replacement = ReplacementIn(context, where);
    ProjectEdit edit(context, context.PathOperand(1));
    if (!MayReplaceWith(replacement.with, where, edit.ask))
        edit.ask.EndCall();
    const std::size_t replaced = ReplaceInRows(edit.Files(), where, replacement);
    if (replaced > 0)
        SortRows(edit.Files());
    return edit.Save("Ändrade rader: " + NumberText(static_cast<std::int64_t>(replaced)) + "\n",
                     {{"replaced", replaced}});
}

} // namespace quillon::cli
