#include "filelist/options/copy_options.h"

#include "formats/copy_letters.h"

#include <algorithm>

namespace quillon {

namespace {

CopyOptionTicks TicksOf(std::string_view letters)
{
    CopyOptionTicks ticks{};
    for (std::size_t box = 0; box < ticks.size(); ++box)
        ticks[box] = letters.find(kCopyOptions[box].letter) != std::string_view::npos;
    return ticks;
}

} // namespace

bool CanHaveCopyOptions(const FileList& files, std::span<const std::size_t> selectedRows)
{
    return std::ranges::any_of(selectedRows,
                               [&](std::size_t row) { return files.rows[row].HasSource(); });
}

CopyOptionTicks StartingTicks(const FileList& files, std::span<const std::size_t> selectedRows)
{
    if (selectedRows.size() != 1)
        return {};
    return TicksOf(files.rows[selectedRows.front()][CopyOptions]);
}

Text CopyOptionLetters(const CopyOptionTicks& ticks)
{
    Text letters;
    for (std::size_t box = 0; box < ticks.size(); ++box) {
        const char letter = kCopyOptions[box].letter;
        // The comparison precedes what depends on it.
        const bool counts = letter != CopyLetter::kNotIfEqualVersion ||
                            HasOption(letters, CopyLetter::kVersionCheck);
        if (ticks[box] && counts)
            letters += letter;
    }
    return letters;
}

// Kept: the letters are replaced whole, so a font loses the mark by which the setup registers it.
void SetCopyOptions(FileList& files, std::span<const std::size_t> selectedRows, const Text& letters)
{
    for (const std::size_t row : selectedRows)
        files.rows[row][CopyOptions] = letters;
}

} // namespace quillon
