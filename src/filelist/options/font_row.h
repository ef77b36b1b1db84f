// A font in the file list: whether the setup registers it, and under which name.
#pragma once

#include "helpers/number_text.h"
#include "platform/ask.h"
#include "project/file_list.h"

namespace quillon {

struct RowFont {
    Flag isRegistered = kOff;
    Text description;

    bool operator==(const RowFont&) const = default;
};

/// False, and shows why, where the row's file is none of the fonts that the setup can register.
bool IsFontToRegister(const FileListRow& row, Ask& ask);

/// The registration that a row has.
RowFont FontOf(const FileListRow& row);

/// Writes it to the row, in place of all copy options that stood there.
void SetFont(FileListRow& row, const RowFont& font, bool neverReplaceExisting);

} // namespace quillon
