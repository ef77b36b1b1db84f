#include "filelist/options/font_row.h"

#include "formats/copy_letters.h"

namespace quillon {

// Kept: the extension begins at the first dot, so `a.b.ttf` counts as no font.
bool IsFontToRegister(const FileListRow& row, Ask& ask)
{
    if (EqualIgnoreCase(row[Extension], "ttf"))
        return true;
    ask.Inform("Info", "Filen är inte en TrueType-font! Quillon kan bara installera "
                       "TrueType-fonter med namntillägget '.ttf'!");
    return false;
}

RowFont FontOf(const FileListRow& row)
{
    if (!HasOption(row[CopyOptions], CopyLetter::kFont))
        return {};
    return {.isRegistered = kOn, .description = row[IconDesc]};
}

// Kept: whatever the row was copied by before is lost, also where the font is not registered.
void SetFont(FileListRow& row, const RowFont& font, bool neverReplaceExisting)
{
    const bool isRegistered = font.isRegistered != kOff;
    row[CopyOptions] = StartingLetters::kAnyFile;
    row[IconDesc].clear();
    if (!isRegistered)
        return;
    row[CopyOptions] =
        neverReplaceExisting ? StartingLetters::kKeptFontFile : StartingLetters::kFontFile;
    row[IconDesc] = font.description;
}

} // namespace quillon
