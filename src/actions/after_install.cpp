#include "actions/after_install.h"

#include "formats/copy_letters.h"
#include "helpers/windows_path.h"
#include "project/text_limits.h"

namespace quillon {

namespace {

bool IsGathered(const FileListRow& row, RowsToRegister which)
{
    if (which == RowsToRegister::Marked)
        return HasOption(row[CopyOptions], CopyLetter::kRegister);
    return EqualIgnoreCase(row[Extension], "dll");
}

} // namespace

// Kept: lines are put in as often as they are asked for, also those that the list has.
Text LinesToGather(std::string_view list, const FileList& files, RowsToRegister which)
{
    Text lines;
    if (!list.empty())
        lines += kLineBreak;
    for (const FileListRow& row : files.rows)
        if (IsGathered(row, which))
            lines.append(row[Destination]).append("\\").append(row[Filename]).append(kLineBreak);
    return lines;
}

bool IsRtfDocument(std::string_view fileName)
{
    return ContainsText(UpperCase(fileName), ".RTF");
}

std::optional<Text> DocumentOfRow(const FileListRow& row, Ask& ask)
{
    using section::ShowDocAfter;
    if (!row.HasSource())
        return {};
    // A row whose file has vanished has lost its destination. The setup looks for a bare name in
    // the main folder.
    const Text path =
        row[Destination] == kFileIsGone ? row[Filename] : JoinPath(row[Destination], row[Filename]);
    const int maxLength = MaxTextLength(&ShowDocAfter::DocFileName);
    if (CharacterCount(path) <= static_cast<std::size_t>(maxLength))
        return path;
    ask.Inform("Ogiltig fil",
               "Sökvägen '" + path + "' är längre än " + NumberText(maxLength) + " tecken!");
    return {};
}

} // namespace quillon
