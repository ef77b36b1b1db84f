// quillonc options: the copy options of rows, as the dialog for them gives them.
#include "cli/calls.h"
#include "cli/project_edit.h"
#include "cli/row_pattern.h"
#include "filelist/options/copy_options.h"
#include "formats/copy_letters.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quillon::cli {

namespace {

// At most one of these says what becomes of a file that is there already.
constexpr char kOneOfThese[] = {CopyLetter::kDateCheck, CopyLetter::kVersionCheck,
                                CopyLetter::kNeverReplace};

Text OfferedLetters()
{
    Text letters;
    for (const CopyOption& option : kCopyOptions)
        if (!option.control.empty())
            letters += option.letter;
    return letters;
}

// Reported as a mistake where the dialog would not let it be ticked, or would drop it.
Text OrderedOptions(const Text& typed)
{
    const Text letters = UpperCase(typed);
    const Text offered = OfferedLetters();
    if (letters.find_first_not_of(offered) != Text::npos)
        throw UsageError{"'" + typed + "' är inga kopieringsinställningar; välj bland " + offered +
                         "."};
    const auto isChosen = [&](char letter) { return letters.find(letter) != Text::npos; };
    if (std::ranges::count_if(kOneOfThese, isChosen) > 1)
        throw UsageError{"Högst en av inställningarna D, V och N kan väljas."};
    if (isChosen(CopyLetter::kNotIfEqualVersion) && !isChosen(CopyLetter::kVersionCheck))
        throw UsageError{"Inställningen E kan väljas endast tillsammans med V."};
    CopyOptionTicks ticks{};
    std::ranges::transform(offered, ticks.begin(), isChosen);
    return CopyOptionLetters(ticks);
}

} // namespace

Exit SetCopyOptions(const CallContext& context)
{
    const Text options = OrderedOptions(context.arguments.operands[2]);
    ProjectEdit edit(context, context.PathOperand(0));
    const auto rows = SelectRows(edit.Files(), std::span(context.arguments.operands).subspan(1, 1));
    if (!CanHaveCopyOptions(edit.Files(), rows))
        throw CallFailure{"Tomma kataloger har inga kopieringsinställningar.", Exit::Stopped};
    quillon::SetCopyOptions(edit.Files(), rows, options);
    return edit.Save("Kopieringsinställningar '" + options + "' för rader: " +
                         NumberText(static_cast<std::int64_t>(rows.size())) + "\n",
                     {{"options", options}, {"changedRows", RowsJson(edit.Files(), rows)}});
}

} // namespace quillon::cli
